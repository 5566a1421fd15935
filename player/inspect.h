#pragma once

#include "game/game.h"

namespace zelvo::GFM {

/// Takes a lot (0 to 99) in hand: tells about it in `PSHOW` and offers the action buttons that
/// fit. Moves no money and changes no lot.
void Image1_Click(Game& g, int index);

/// Opens the choice of a building for the lot in hand.
void CMDBUILD_Click(Game& g);

/// A click on one of the seven class icons: quotes its price. Leaves the choice in `Word` and
/// `BuildCost`; does nothing unless `BUILDIT` is visible.
void ClassIcon_Click(Game& g, Control& icon);

}  // namespace zelvo::GFM
