#include "game/text.h"

#include <algorithm>
#include <cstdint>

namespace zelvo {
namespace {

/// The distance from zero, which for the lowest count has no signed form.
std::uint64_t Magnitude(Currency amount) {
  const auto counts = static_cast<std::uint64_t>(amount.counts());
  return amount.counts() < 0 ? 0 - counts : counts;
}

/// Leaves a counter that is read from a text room to count.
constexpr int largestCount = 1'000'000'000;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string NumberText(int number) {
  std::string text = std::to_string(number);
  return number < 0 ? text : ' ' + text;
}

std::string NumberText(Currency amount) {
  const std::uint64_t magnitude = Magnitude(amount);
  const std::uint64_t dollars = magnitude / Currency::countsPerDollar;
  std::string decimals =
      std::to_string(Currency::countsPerDollar + magnitude % Currency::countsPerDollar);
  decimals.front() = '.';
  while (decimals.back() == '0') decimals.pop_back();
  if (decimals == ".") decimals.clear();

  std::string text(1, amount.counts() < 0 ? '-' : ' ');
  if (dollars != 0 || decimals.empty()) text += std::to_string(dollars);
  return text + decimals;
}

std::string WinnerMoneyText(Currency amount) {
  const std::uint64_t dollars =
      (Magnitude(amount) + Currency::countsPerDollar / 2) / Currency::countsPerDollar;
  if (dollars == 0) return "$";
  std::string text = amount.counts() < 0 ? "-$" : "$";
  const std::string digits = std::to_string(dollars);
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += ',';
    text += digits[i];
  }
  return text;
}

std::string MoneyText(Currency amount) {
  std::string text = WinnerMoneyText(amount);
  return text == "$" ? "$0" : text;
}

int NumberFrom(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && text[at] == ' ') ++at;
  const bool negative = at < text.size() && text[at] == '-';
  if (negative) ++at;
  std::int64_t number = 0;
  for (; at < text.size() && IsDigit(text[at]); ++at) {
    number = number * 10 + (text[at] - '0');
    number = std::min<std::int64_t>(number, largestCount);
  }
  return static_cast<int>(negative ? -number : number);
}

}  // namespace zelvo
