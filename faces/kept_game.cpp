#include "faces/kept_game.h"

#include <utility>

#include "game/game.h"
#include "journal/journal.h"

namespace zelvo {
namespace {

/// A list that ends the program, up to the deed that does.
GameList WithoutTheEnd(GameList list) {
  while (!list.empty()) {
    const Entry::Kind last = list.back().kind;
    list.pop_back();
    if (last == Entry::Kind::Click || last == Entry::Kind::Close) break;
  }
  return list;
}

}  // namespace

KeptGame ReadKeptGame(std::string_view text) {
  Journal trial;
  Game game(trial);
  trial.Attach(game);
  ReadList read = ReadGameList(game, text);
  KeptGame kept{std::move(read.list), std::move(read.error), read.wholeBytes, true, {}, false};
  if (!kept.error.empty()) return kept;
  trial.whenWaiting = [&] {
    if (!game.GFM.Untouched().IsShown()) return;
    kept.hasBoard = true;
    kept.standing = trial.Played();
  };
  trial.whenPlayed = [&kept] { kept.ends = false; };
  trial.Start(kept.list);
  kept.error = trial.misfit();
  if (kept.hasBoard) return kept;
  kept.standing = Written::AllOf(kept.ends ? WithoutTheEnd(kept.list) : kept.list);
  return kept;
}

std::string TextOf(Surface& surface, const GameList& list) {
  return std::string(ListHeader()) + LinesSince(surface, list, {});
}

}  // namespace zelvo
