#include "journal/words.h"

#include <algorithm>

namespace zelvo {
namespace {

std::string TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

}  // namespace

std::string_view TakeWord(std::string_view& line, std::string_view blanks) {
  const auto end = std::min(line.find_first_of(blanks), line.size());
  const std::string_view word = line.substr(0, end);
  line.remove_prefix(std::min(end + 1, line.size()));
  return word;
}

bool LooksLikeTime(std::string_view text) {
  return text.size() == 8 && text[2] == ':' && text[5] == ':';
}

std::optional<TimeOfDay> ReadTime(std::string_view text) {
  if (!LooksLikeTime(text)) return std::nullopt;
  const auto two = [text](std::size_t at) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (!isDigit(text[at]) || !isDigit(text[at + 1])) return 99;
    return (text[at] - '0') * 10 + text[at + 1] - '0';
  };
  const TimeOfDay time{two(0), two(3), two(6)};
  if (time.hour > 23 || time.minute > 59 || time.second > 59) return std::nullopt;
  return time;
}

std::string TimeText(TimeOfDay time) {
  return TwoDigits(time.hour) + ':' + TwoDigits(time.minute) + ':' + TwoDigits(time.second);
}

}  // namespace zelvo
