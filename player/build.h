#pragma once

#include "game/game.h"

namespace zelvo {

namespace GFM {
/// Carries out the choice in `Word` and `BuildCost` on the lot in hand: money, zoning board,
/// insurance, payment, building. Leaves `Word` empty, or the choice if money or the board refuse.
void BUILDIT_Click(Game& g);
}  // namespace GFM

namespace HS {
void Form_Activate(Game& g);
/// 0 takes the insurance, 1 declines it.
void CMDAN1_Click(Game& g, int index);
void CMDCANCEL_Click(Game& g);
}  // namespace HS

}  // namespace zelvo
