#pragma once

#include <string>

#include "surface/surface.h"

/// What those hear who do not see the windows. Any face can speak it, or hand it to a helper that
/// does.
namespace zelvo {

/// What a control is and what it shows now, as in "Lot 37, casino" or "Buy Property"; empty for one
/// that shows nothing.
std::string SpokenName(const Control& control);

/// What a control shows now, as in "casino".
std::string SpokenContent(const Control& control);

/// What is said to a letter with which nothing begins to which the keyboard could go; the letter
/// and a full stop follow.
constexpr std::string_view nothingBeginsWith = "Nothing here begins with ";

/// What a window is, its title as a rule.
std::string SpokenName(const Window& window);

/// All that is news on a window now.
std::string SpokenNews(const Window& window);

/// How the game stands: the amounts on all shown windows.
std::string SpokenStanding(Surface& surface);

}  // namespace zelvo
