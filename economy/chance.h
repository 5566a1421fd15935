#pragma once

#include "game/game.h"

namespace zelvo::CHN {

/// Lays out the cards, or serves the builder's suit if the player has cancelled too many builds.
void Form_Activate(Game& g);
/// Draws a card by the clock; the card clicked (0 to 2) is added to its seconds. The player's new
/// cash waits in `Money`, the amount in `CardAmount`.
void Image1_Click(Game& g, int index);
/// Posts what the last draw or suit left.
void CMDOK_Click(Game& g);

}  // namespace zelvo::CHN
