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
  bool ends = false;           ///< it leads to the end of the program with no further wait
  /// How much of the list leads to the last moment at which its board was on the screen. Without a
  /// board it is all of it, but for a deed that ends the program.
  Written standing;
  bool hasBoard = false;

  /// True if nothing comes after that moment.
  bool IsWhole() const { return standing == Written::AllOf(list); }
};

KeptGame ReadKeptGame(std::string_view text);

/// The whole text of a kept game.
std::string TextOf(Surface& surface, const GameList& list);

}  // namespace zelvo
