#pragma once

#include "game/game.h"

namespace zelvo {

/// The opponent's half of a full turn: up to four selections, each of which finds a lot, buys it if
/// need be and puts up the dearest building that cash allows. Scans start from `CurLot`.
void ComputerTurn(Game& g);

}  // namespace zelvo
