#include "faces/scripted/json_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace zelvo {
namespace {

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The length of the character in UTF-8 that a text begins with; 0 if it is none. `bad` is then the
/// length of what has to be left out: the part of a character that is cut short, or one byte.
std::size_t CharacterLength(std::string_view text, std::size_t& bad) {
  const auto byteAt = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned first = byteAt(0);
  bad = 1;
  if (first < 0x80) return 1;
  if (first < 0xc2 || first > 0xf4) return 0;
  const std::size_t length = first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
  // After some first bytes, a second one out of its range would give a longer form than need be,
  // half of a pair, or a number beyond the last character.
  const unsigned lowest = first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
  const unsigned highest = first == 0xed ? 0x9f : first == 0xf4 ? 0x8f : 0xbf;
  for (; bad < length; ++bad) {
    if (bad == text.size() || byteAt(bad) < (bad == 1 ? lowest : 0x80)) return 0;
    if (byteAt(bad) > (bad == 1 ? highest : 0xbf)) return 0;
  }
  return length;
}

struct Escape {
  char letter;
  char character;
};
constexpr std::array<Escape, 7> escapes = {
    {{'"', '"'}, {'\\', '\\'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}}};

/// True for characters that stand for themselves between quotes.
bool IsPlain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

std::string Escaped(char character) {
  for (const Escape& escape : escapes) {
    if (escape.character == character) return {'\\', escape.letter};
  }
  constexpr char digits[] = "0123456789abcdef";
  if (character >= ' ') return {character};
  return std::string("\\u00") + digits[character / 16] + digits[character % 16];
}

void AppendCharacter(std::string& text, unsigned code) {
  const auto add = [&text](unsigned byte) { text += static_cast<char>(byte); };
  if (code < 0x80) return add(code);
  if (code < 0x800) {
    add(0xc0 | code >> 6);
  } else if (code < 0x10000) {
    add(0xe0 | code >> 12);
    add(0x80 | (code >> 6 & 0x3f));
  } else {
    add(0xf0 | code >> 18);
    add(0x80 | (code >> 12 & 0x3f));
    add(0x80 | (code >> 6 & 0x3f));
  }
  add(0x80 | (code & 0x3f));
}

/// Takes the four digits of "\u1234" off a text, behind its u; nothing if they are not there.
std::optional<unsigned> TakeCode(std::string_view& text) {
  constexpr std::size_t digits = 4;
  unsigned code = 0;
  if (text.size() < digits) return std::nullopt;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + digits, code, 16);
  if (error != std::errc() || stop != text.data() + digits) return std::nullopt;
  text.remove_prefix(digits);
  return code;
}

/// Takes an escape off a text, behind its backslash, and appends what it stands for; false if there
/// is no such escape.
bool TakeEscape(std::string_view& text, std::string& target) {
  if (text.empty()) return false;
  const char letter = text.front();
  text.remove_prefix(1);
  for (const Escape& escape : escapes) {
    if (escape.letter != letter) continue;
    target += escape.character;
    return true;
  }
  if (letter == '/') target += letter;
  if (letter != 'u') return letter == '/';
  auto code = TakeCode(text);
  if (!code || (*code >= 0xdc00 && *code < 0xe000)) return false;
  if (*code >= 0xd800 && *code < 0xdc00) {  // the first half of a pair
    if (text.substr(0, 2) != "\\u") return false;
    text.remove_prefix(2);
    const auto second = TakeCode(text);
    if (!second || *second < 0xdc00 || *second >= 0xe000) return false;
    code = 0x10000 + ((*code - 0xd800) << 10) + (*second - 0xdc00);
  }
  AppendCharacter(target, *code);
  return true;
}

/// Reads a whole text as a string in double quotes, with blanks behind it.
std::optional<std::string> Unquoted(std::string_view text) {
  if (text.empty() || text.front() != '"') return std::nullopt;
  text.remove_prefix(1);
  std::string result;
  while (!text.empty() && text.front() != '"') {
    std::size_t bad = 0;
    const std::size_t length = CharacterLength(text, bad);
    const bool control = static_cast<unsigned char>(text.front()) < ' ';
    if (length == 0 || control) return std::nullopt;
    const bool escaped = text.front() == '\\';
    if (!escaped) result.append(text.substr(0, length));
    text.remove_prefix(length);
    if (escaped && !TakeEscape(text, result)) return std::nullopt;
  }
  const bool closed = !text.empty() && text.find_first_not_of(" \t\n\r", 1) == text.npos;
  return closed ? std::optional(result) : std::nullopt;
}

}  // namespace

std::string Quoted(std::string_view text) {
  constexpr std::string_view replacement = "\xef\xbf\xbd";
  std::string quoted = "\"";
  while (true) {
    const auto plain = std::find_if_not(text.begin(), text.end(), IsPlain) - text.begin();
    quoted += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) return quoted + '"';
    std::size_t bad = 0;
    const std::size_t length = CharacterLength(text, bad);
    if (length == 0) {
      quoted += replacement;
    } else if (length == 1) {
      quoted += Escaped(text.front());
    } else {
      quoted += text.substr(0, length);
    }
    text.remove_prefix(length == 0 ? bad : length);
  }
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
  auto unquoted = Unquoted(text);
  if (!unquoted) return "that is no string in double quotes";
  target = std::move(*unquoted);
  return "";
}

}  // namespace zelvo
