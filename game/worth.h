#pragma once

#include "game/game.h"

namespace zelvo {

/// Sums the net worth of both sides into `PlayerWorth` and `CompWorth`, shows it, and ends the game
/// if a side (or the bank, if it plays) is over the threshold. Leaves `Word` at the tag of lot 99,
/// or at "OVER" after a win. Does nothing while `Word` is "OVER".
void CheckWealth(Game& g);

namespace WINX {
void CMDEXIT_Click(Game& g);
}

}  // namespace zelvo
