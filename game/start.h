#pragma once

#include "game/game.h"

namespace zelvo {

/// Sets up a game: all its variables, the board, the ledgers, four opening events; ends in the
/// player's first turn. Leaves the level, the sound switch, `Turn` and the brand counters alone.
void NewGame(Game& g);

/// Plays the opening sound, which also decides whether there is sound at all (`SoundOn`).
void OpeningSound(Game& g);

/// Writes the level's name and number into the strip below the board.
void ShowLevel(Game& g);

namespace GST {
void Form_Load(Game& g);
void Form_QueryUnload(Game& g);
void Form_Unload(Game& g);
void CMDSTART_Click(Game& g);
void CMDSET_Click(Game& g);
void CMDEXIT_Click(Game& g);
}  // namespace GST

namespace GFM {
void Form_Resize(Game& g);
void Form_Activate(Game& g);
void Form_QueryUnload(Game& g);
void Form_Unload(Game& g);
}  // namespace GFM

}  // namespace zelvo
