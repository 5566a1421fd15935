#pragma once

#include "game/game.h"

namespace zelvo {

/// Bills the owner of the building on `CurLot` for repairs; an owner who cannot pay loses it. Does
/// nothing on a lot without a building. Leaves the owner's cash less the cost in `Delta`.
void RepairLot(Game& g);

namespace SV {
void Form_Activate(Game& g);
void CMDOK_Click(Game& g);
}  // namespace SV

}  // namespace zelvo
