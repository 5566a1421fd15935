#include "game/currency.h"

#include <cmath>
#include <limits>

namespace zelvo {
namespace {

__extension__ using Wide = __int128;

constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();

Currency Saturated(Wide counts) {
  if (counts < lowest) return Currency::FromCounts(lowest);
  if (counts > highest) return Currency::FromCounts(highest);
  return Currency::FromCounts(static_cast<std::int64_t>(counts));
}

}  // namespace

Currency Currency::FromDollars(std::int64_t dollars) {
  return Saturated(Wide(dollars) * countsPerDollar);
}

Currency Currency::operator+(Currency other) const {
  return Saturated(Wide(counts_) + other.counts_);
}

Currency Currency::operator-(Currency other) const {
  return Saturated(Wide(counts_) - other.counts_);
}

Currency Currency::operator*(int times) const { return Saturated(Wide(counts_) * times); }

Currency Currency::operator*(Currency rate) const {
  const Wide product = Wide(counts_) * rate.counts_;
  Wide counts = product / countsPerDollar;
  const Wide rest = product % countsPerDollar;  // has the sign of the product
  const Wide twice = 2 * (rest < 0 ? -rest : rest);
  const bool away = twice > countsPerDollar || (twice == countsPerDollar && counts % 2 != 0);
  if (away) counts += product < 0 ? -1 : 1;
  return Saturated(counts);
}

Currency Currency::Share(double rate) const {
  const double dollars = static_cast<double>(counts_) / 10'000.0;
  const double share = dollars * rate;
  const double counts = std::nearbyint(share * 10'000.0);
  constexpr double limit = 9'223'372'036'854'775'808.0;  // one past the highest count
  if (counts >= limit) return FromCounts(highest);
  if (counts < -limit) return FromCounts(lowest);
  return FromCounts(static_cast<std::int64_t>(counts));
}

}  // namespace zelvo
