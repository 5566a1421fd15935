#pragma once

#include "game/game.h"

namespace zelvo {

namespace GFM {
/// Writes what lies under the mouse into the board's title. The text stays until the next one.
void Control_MouseMove(Game& g, Control& control);
/// The same for a lot (0 to 99), by its picture; a hotel or a mall leaves the title as it was.
void Image1_MouseMove(Game& g, int index);
}  // namespace GFM

namespace ICF {
/// Writes an icon's meaning, or an option's tip, into the legend line.
void Icon_MouseMove(Game& g, Control& icon);
void OPT1_MouseMove(Game& g, int index);
void Form_MouseMove(Game& g);
}  // namespace ICF

}  // namespace zelvo
