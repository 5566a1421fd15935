#pragma once

#include <string>

#include "game/game.h"

namespace zelvo {

/// What holds whenever the game waits for the player, whatever was played. Returns the first thing
/// that does not, in plain words; empty if all is well.
std::string BrokenInvariant(Game& g);

}  // namespace zelvo
