#pragma once

#include "game/game.h"

namespace zelvo {

/// A casino takes `CurLot`, after asking if it is the player's. A lot of either side is paid with
/// twice its value, which is left in `Delta`.
void CasinoBuy(Game& g);

}  // namespace zelvo
