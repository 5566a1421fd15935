#pragma once

#include "game/game.h"

namespace zelvo {

/// Carries a change on `CurLot` over to its four neighbours: moves their values by `Delta` in the
/// direction of `ValueSign`, and pays the owners of raised lots a share. Does nothing unless
/// `SpreadDue` is set; leaves `SpreadDue` off and `ValueSign` empty.
void SpreadValue(Game& g);

/// Asks for a spread and runs it.
void SpreadFrom(Game& g, const char* valueSign);

}  // namespace zelvo
