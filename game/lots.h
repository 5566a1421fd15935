#pragma once

#include <array>
#include <string_view>

#include "game/game.h"
#include "game/text.h"

namespace zelvo {

/// The tag of a lot (0 to 99) without blanks; valid until the tag is written.
inline std::string_view LotTag(Game& g, int lot) { return Trimmed(g.GFM->Image1[lot].Tag); }

inline PictureId LotPicture(Game& g, int lot) { return g.GFM->Image1[lot].Picture; }

/// Puts an icon and its tag on a lot. A strike, a crash, a casino and a mall show their picture
/// before they change the tag.
inline void SetLot(Game& g, int lot, const Control& icon, std::string_view tag) {
  Control& image = g.GFM->Image1[lot];
  image.Picture = icon.Picture;
  image.Tag = tag;
}

/// The four neighbours of a lot, in the order in which every rule visits them. They go by index
/// alone: the first lot of a row neighbours the last lot of the row above. Those outside the board
/// are for the caller to skip.
inline std::array<int, 4> Neighbours(int lot) {
  return {lot - 1, lot + 1, lot - boardWidth, lot + boardWidth};
}

inline bool OnBoard(int lot) { return lot >= 0 && lot < lotCount; }

}  // namespace zelvo
