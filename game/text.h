#pragma once

#include <string>
#include <string_view>

#include "game/currency.h"

namespace zelvo {

/// The number text of a whole number: a leading blank or minus sign, then the digits.
std::string NumberText(int number);
/// The number text of an amount: up to four decimals, no trailing zeros, no zero ahead of the
/// point, as in " .05".
std::string NumberText(Currency amount);
/// The money format "$#,###,##0": whole dollars, a half rounded away from zero, as in "-$5,000".
std::string MoneyText(Currency amount);
/// The same without the forced digit, "$#,###,###": no dollars at all give a lone "$".
std::string WinnerMoneyText(Currency amount);
/// Reads the whole number at the head of a text, after leading blanks; 0 if there is none. A
/// number beyond a thousand million reads as that.
int NumberFrom(std::string_view text);
/// The text without the blanks at both ends. Inline: the rules look at a hundred tags at a time.
inline std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}
/// True if the text begins (ends) with that letter.
inline bool BeginsWith(std::string_view text, char letter) {
  return !text.empty() && text.front() == letter;
}
inline bool EndsWith(std::string_view text, char letter) {
  return !text.empty() && text.back() == letter;
}

}  // namespace zelvo
