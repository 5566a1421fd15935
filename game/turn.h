#pragma once

#include "game/game.h"

namespace zelvo {

/// Opens the player's turn: recounts the properties, draws a board event, shows `CMDGO` and
/// `Label8`, and deals a chance card when one is due.
void StartPlayerTurn(Game& g);

/// Moves the calendar by a turn. Every sixth turn values are assessed, the win is tested and the
/// revenue is paid, in that order.
void YearTick(Game& g);

/// Hides the five action buttons of the board.
void HideActions(Game& g);

namespace GFM {
void CMDGO_Click(Game& g);
void CMDEXIT_Click(Game& g);
void CMDHELP_Click(Game& g);
void Label1_Click(Game& g);
void Label8_Click(Game& g);
void BANKLABEL_Click(Game& g);
}  // namespace GFM

}  // namespace zelvo
