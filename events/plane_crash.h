#pragma once

#include "game/game.h"

namespace zelvo {

/// A plane comes down on `CurLot`: it and its uninsured neighbours become condemned lots worth a
/// quarter. Nobody is paid.
void PlaneCrash(Game& g);

}  // namespace zelvo
