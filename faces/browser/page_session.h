#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "faces/browser/page_platform.h"
#include "game/game.h"
#include "journal/history.h"
#include "journal/journal.h"

namespace zelvo {

/// The game on the page, and what the player can do with it as a whole: keep it, go on with a kept
/// one, take back and do again. Its list lies in the browser's storage as well.
class PageSession final : public PagePlatform {
 public:
  /// Begins with the game that was interrupted, if there is one, and plays to the end of the
  /// program.
  void Run();

 private:
  void GameWaits() override;
  bool CarryOut(std::string_view command) override;

  void MakeGame();
  /// Plays a list and then what comes, until the game ends or another is to take its place.
  void Play(GameList list);
  /// Has the game that runs return from all its waits, and another one take its place then.
  void Replace(GameList list);
  /// The list of a kept game; nothing, and a sentence for the player, if it cannot be gone on with.
  std::optional<GameList> ReadKept(std::string_view name, std::string_view text);
  void Store();

  std::optional<Journal> journal_;
  std::optional<Game> game_;
  History history_;
  std::optional<GameList> next_;  // of the game that takes the place of the one that runs
  bool stores_ = false;           // the player has done something that is worth it
  Written stored_;                // of the list
};

}  // namespace zelvo
