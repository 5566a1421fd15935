#pragma once

#include "game/game.h"

namespace zelvo {

/// Tries a restaurant on `CurLot` if the lot stands among the computer's hotels. `Refused` tells
/// afterwards that one was built and is to be paid for. Does nothing on the Easy level; on all
/// others it leaves the computer's cash in `Money` and the price in `BuildCost`, built or not.
void ComputerRestaurant(Game& g);

}  // namespace zelvo
