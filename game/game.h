#pragma once

#include "game/random.h"
#include "game/variables.h"
#include "surface/windows/windows.h"

namespace zelvo {

/// The whole state of a running program: the shared variables, the windows and the generator. The
/// rules are free functions over it; a program can hold any number of games.
class Game : public GameWindows, public ProgramVariables, public GameVariables {
 public:
  /// Ties the controls and windows to their handlers; shows nothing yet.
  explicit Game(Platform& platform);

  /// On the board, the lot that its buttons act on while there are any. As a rule that is the one
  /// that was clicked last, but a game that is started over another one leaves the buttons
  /// standing.
  const Control* InHand(const Window& window) const override;

  RandomGenerator Generator;

 private:
  Game& Self() override { return *this; }
};

}  // namespace zelvo
