#pragma once

#include "game/game.h"

/// The setup window, the help text and the About window.
namespace zelvo {

namespace ICF {
void Form_Load(Game& g);
void Form_Activate(Game& g);
void CMDSOUND_Click(Game& g);
void CMDEXP_Click(Game& g);
void CMDABOUT_Click(Game& g);
void CMDEXIT_Click(Game& g);
/// The level counts at once; the board goes on naming the old one.
void OPT1_Click(Game& g, int index);
void CKCHANCE_Click(Game& g, bool value);
void CKBANK_Click(Game& g, bool value);
}  // namespace ICF

namespace HH {
void Form_Load(Game& g);
void CMDEXIT_Click(Game& g);
}  // namespace HH

namespace ABT {
void Form_Click(Game& g);
}

}  // namespace zelvo
