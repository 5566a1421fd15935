#pragma once

#include <string>

namespace zelvo {

/// Takes the first input off the page's queue; false if there is none. A command that is too long
/// for scripted play is cut short, but stays too long.
bool TakeInput(std::string& text);

/// Takes the kept game that the page has ready; empty if there is none.
std::string TakeKeptGame();

}  // namespace zelvo
