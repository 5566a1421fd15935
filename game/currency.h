#pragma once

#include <compare>
#include <cstdint>

namespace zelvo {

/// An amount of money, or a rate: a whole number of ten-thousandths of a dollar. It saturates at
/// the ends of 64 bits. No other number turns into it or comes out of it silently.
class Currency {
 public:
  static constexpr std::int64_t countsPerDollar = 10'000;

  constexpr Currency() = default;
  static constexpr Currency FromCounts(std::int64_t tenThousandths) {
    Currency result;
    result.counts_ = tenThousandths;
    return result;
  }
  static Currency FromDollars(std::int64_t dollars);

  constexpr std::int64_t counts() const { return counts_; }

  Currency operator+(Currency other) const;
  Currency operator-(Currency other) const;
  Currency operator-() const { return Currency() - *this; }
  Currency& operator+=(Currency other) { return *this = *this + other; }
  Currency& operator-=(Currency other) { return *this = *this - other; }
  /// An exact whole-number multiple.
  Currency operator*(int times) const;
  Currency operator*(double) const = delete;
  /// An amount times a rate: the exact product, rounded to the nearest ten-thousandth, a tie to
  /// the even one.
  Currency operator*(Currency rate) const;
  /// A share of the amount, reckoned in double precision with every step rounded, then brought
  /// back to the nearest ten-thousandth, a tie to the even one. Other ways of reckoning it differ
  /// in a few amounts of a hundred.
  Currency Share(double rate) const;

  constexpr std::strong_ordering operator<=>(const Currency& other) const {
    return counts_ <=> other.counts_;
  }
  constexpr bool operator==(const Currency&) const = default;

 private:
  std::int64_t counts_ = 0;
};

/// A whole number of dollars.
inline Currency Dollars(std::int64_t dollars) { return Currency::FromDollars(dollars); }

}  // namespace zelvo
