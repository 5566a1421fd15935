#include "faces/headless/json_text.h"

#include <algorithm>
#include <charconv>
#include <nlohmann/json.hpp>

namespace zelvo {
namespace {

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// True for characters that stand for themselves between quotes.
bool IsPlain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

}  // namespace

std::string Quoted(std::string_view text) {
  if (std::all_of(text.begin(), text.end(), IsPlain)) {
    std::string quoted(1, '"');
    quoted.append(text).append(1, '"');
    return quoted;
  }
  return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string FullDecimal(Currency amount) {
  const bool negative = amount.counts() < 0;
  const auto counts = static_cast<std::uint64_t>(amount.counts());
  std::string digits = std::to_string(negative ? 0 - counts : counts);
  if (digits.size() < 5) digits.insert(0, 5 - digits.size(), '0');
  digits.insert(digits.size() - 4, 1, '.');
  return negative ? '-' + digits : digits;
}

std::string Decimal(Currency amount) {
  std::string text = FullDecimal(amount);
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string ReadFlag(std::string_view text, bool& target) {
  if (text != "0" && text != "-1") return "a flag is 0 or -1";
  target = text == "-1";
  return "";
}

std::string ReadWhole(std::string_view text, long long lowest, long long highest,
                      long long& target) {
  long long number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc::invalid_argument || stop != end) return "that is no whole number";
  if (error != std::errc() || number < lowest || number > highest) {
    return "the number does not fit: it goes from " + std::to_string(lowest) + " to " +
           std::to_string(highest);
  }
  target = number;
  return "";
}

std::string ReadDecimal(std::string_view text, Currency& target) {
  const bool negative = !text.empty() && text.front() == '-';
  std::string_view dollars = text.substr(negative ? 1 : 0);
  std::string_view decimals;
  if (const auto point = dollars.find('.'); point != std::string_view::npos) {
    decimals = dollars.substr(point + 1);
    dollars = dollars.substr(0, point);
    if (decimals.empty()) return "a point without decimals";
  }
  if (dollars.empty() || !AllDigits(dollars) || !AllDigits(decimals) || decimals.size() > 4) {
    return "that is no amount of dollars with up to four decimals";
  }
  std::string counts(negative ? "-" : "");
  counts.append(dollars).append(decimals).append(4 - decimals.size(), '0');
  std::int64_t number = 0;
  const auto [stop, error] = std::from_chars(counts.data(), counts.data() + counts.size(), number);
  if (error != std::errc()) return "the amount does not fit";
  target = Currency::FromCounts(number);
  return "";
}

std::string ReadQuoted(std::string_view text, std::string& target) {
  // The parser takes a byte order mark for nothing and a zero byte for the end.
  const bool quoted = !text.empty() && text.front() == '"' && text.find('\0') == text.npos;
  if (!quoted) return "that is no string in double quotes";
  const auto parsed = nlohmann::json::parse(text, nullptr, false);
  if (!parsed.is_string()) return "that is no string in double quotes";
  target = parsed.get<std::string>();
  return "";
}

}  // namespace zelvo
