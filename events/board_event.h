#pragma once

#include "game/game.h"

namespace zelvo {

/// Draws one event of the board from the clock and the generator and carries it out. Leaves the
/// drawn lot in `CurLot`, and 0 in `FreshLot` after all but strikes and repairs.
void BoardEvent(Game& g);

}  // namespace zelvo
