#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "journal/journal.h"

namespace zelvo {

/// What was taken back and can be done again. A step is a deed of the player while the game was at
/// rest, with all that came of it.
class History {
 public:
  static bool CanTakeBack(const Journal& now) { return !now.deedsAtRest().empty(); }
  bool CanDoAgain(const Journal& now) const { return now.deedsAtRest().size() < steps_.size(); }

  /// The list of the game up to its last step, which can be done again. There must be one.
  GameList TakeBack(const Journal& now);
  /// The list of the game with the next step done again. There must be one.
  GameList DoAgain(const Journal& now) const;
  /// To be called when a list has been played, be it one of these or another.
  void Settle(const Journal& now) { standing_ = now.deedsAtRest().size(); }
  /// To be called when something has happened: a new step leaves nothing to be done again.
  void Follow(const Journal& now);
  void Forget() { steps_.clear(); }

 private:
  GameList list_;                   // with all steps that were taken back
  std::vector<std::size_t> steps_;  // their places in it
  std::size_t standing_ = 0;        // steps of the game when it was last settled
};

}  // namespace zelvo
