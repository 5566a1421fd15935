#pragma once

#include "game/game.h"

namespace zelvo {

/// What a review is about.
constexpr int plainReview = 0;
constexpr int mallCleanup = 55;

/// The zoning board rules on the plan in `Word` (on the computer's side: in `Work`) for `CurLot`.
/// The result is in `Refused`. A refusal of the player is told in a window, the computer's is
/// silent. May leave the hourglass up when a plan passes.
void ZoningReview(Game& g, int reviewMark);

namespace RB {
void Form_Activate(Game& g);
}

}  // namespace zelvo
