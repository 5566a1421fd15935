#pragma once

#include "game/game.h"

namespace zelvo::ML {

/// Zones `CurLot` for a mall: doubles its value and puts the offer to the player.
void Form_Activate(Game& g);
/// The player's answer: 0 for Yes, 1 for No. What the player does not take, the computer decides.
void CMD1_Click(Game& g, int index);

}  // namespace zelvo::ML
