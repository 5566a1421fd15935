#pragma once

#include <string>

#include "game/game.h"

namespace zelvo {

/// The moments that the game marks with a sound.
enum class Cue : unsigned char {
  Opening,
  NewGame,
  Exit,
  TooLittleCash,
  BuildingPaid,
  ZoningBoard,
  NeighbourMoved,
  DividendPaid,
  Park,
  Golf,
  Condemned,
  Strike,
  PlaneCrash,
  PlaneSiren,
  Casino,
  Mall,
  ComputerInvests,
  ComputerRestaurant,
  CannotPayRepairs,
  GoodCard,
  BadCard,
  LoanOffer,
  LoanRefusal,
  PlayerWins,
  PlayerLoses,
  WinnerLeaves,
  Count
};

/// Plays a cue if the sound is on. A waiting cue holds the game to its end; a running one goes on
/// beside it until the next cue cuts it off.
void PlayCue(Game& g, Cue cue);

/// The wave file of a cue, upper and lower case as on disk.
std::string CueFile(Cue cue);
/// True if the game stands still while the cue sounds.
bool CueWaits(Cue cue);

}  // namespace zelvo
