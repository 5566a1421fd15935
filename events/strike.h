#pragma once

#include "game/game.h"

namespace zelvo {

/// Lightning, or a fire if `FireFlag` is set, on `CurLot`; after each real strike the next call
/// zones a mall instead. Leaves the lot's old value in `Delta`.
void StrikeLot(Game& g);

}  // namespace zelvo
