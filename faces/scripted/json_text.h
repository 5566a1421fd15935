#pragma once

#include <string>
#include <string_view>

#include "game/currency.h"

namespace zelvo {

/// A string in double quotes with JSON's escapes; bytes that are no UTF-8 are replaced.
std::string Quoted(std::string_view text);

/// A truth value as JSON.
inline std::string Bool(bool flag) { return flag ? "true" : "false"; }
/// A decimal number of dollars with up to four decimals, as in 75000 or -0.05.
std::string Decimal(Currency amount);
/// The same with all four decimals, as in 75000.0000.
std::string FullDecimal(Currency amount);
/// Flags are -1 and 0.
inline std::string Flag(bool flag) { return flag ? "-1" : "0"; }

// Readers of the values that a script gives. Each returns an empty text if the value was read, or
// why it was not, in plain words; the target is written only if it was.

std::string ReadFlag(std::string_view text, bool& target);
std::string ReadWhole(std::string_view text, long long lowest, long long highest,
                      long long& target);
std::string ReadDecimal(std::string_view text, Currency& target);
std::string ReadQuoted(std::string_view text, std::string& target);

}  // namespace zelvo
