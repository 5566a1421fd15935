#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "journal/game_list.h"

namespace zelvo {

/// A kept game that was read and played once, to see whether it fits.
struct KeptGame {
  GameList list;
  std::string error;           ///< why it cannot be gone on with, in plain words, or empty
  std::size_t wholeBytes = 0;  ///< length of its text without a last line that is torn off
  bool ends = false;           ///< the list ends the program itself
};

KeptGame ReadKeptGame(std::string_view text);

/// A list that ends the program, up to the deed that does.
GameList WithoutTheEnd(GameList list);

/// The whole text of a kept game.
std::string TextOf(Surface& surface, const GameList& list);

}  // namespace zelvo
