#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "surface/platform.h"

namespace zelvo {

// What lists and scripts are read by.

/// Cuts the first word off a line, with the one blank behind it.
std::string_view TakeWord(std::string_view& line, std::string_view blanks = " ");

/// A time of day as in 09:05:00; nothing for any other text.
std::optional<TimeOfDay> ReadTime(std::string_view text);
/// True for a text that is laid out as a time of day, even if there is no such time.
bool LooksLikeTime(std::string_view text);
std::string TimeText(TimeOfDay time);

}  // namespace zelvo
