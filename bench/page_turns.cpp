// An entry into the page's program that plays turns with nothing around the rules. bench/browser
// calls it.

#include "bench/turns.h"

/// Plays so many turns, in each of which the player buys and builds.
extern "C" [[clang::export_name("playTurns")]] void PlayTurns(int turns) {
  zelvo::AutoPlayer player;
  player.inModal = zelvo::Insure;
  zelvo::StartGame(player.game());
  for (int turn = 0; turn < turns; ++turn) {
    zelvo::BuyAndBuild(player.game());
    zelvo::EndTurn(player.game());
  }
}
