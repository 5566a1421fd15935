#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "faces/commands.h"
#include "faces/kept_game.h"
#include "game/game.h"
#include "journal/history.h"
#include "journal/journal.h"

namespace zelvo {

/// The game that is played, and what the player can do with it as a whole: have it written down, go
/// on with another one, take back and do again. A face lends it the few functions that only a face
/// can have.
class Session {
 public:
  /// Makes a game on that machine, ready to be started.
  explicit Session(Platform& machine);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// The game that runs. Another one comes to stand in the same place.
  Game& game() { return *game_; }
  const Journal& journal() const { return *journal_; }
  /// True while another game is about to take the place of this one.
  bool IsReplacing() const { return replacing_; }
  bool CanDo(Command command) const;

  // Each of these has another game take the place of this one, once none of its handlers stands on
  // the stack. Nothing happens if there is none.

  void TakeBack();
  void DoAgain();

 protected:
  ~Session() = default;

  /// Starts the program and plays the list that was chosen, if any. If the list ends inside a wait,
  /// this returns when the wait and all that stands below it are over.
  void Start();
  /// Reads a kept game of that name and tries it. Its error is a sentence for the player.
  static KeptGame Read(std::string_view name, std::string_view text);
  /// Goes on with a kept game that fits. With `isWritten` its list is what has been written so far.
  void GoOn(KeptGame kept, bool isWritten);
  /// Makes the game that was chosen in the place of the one that was let go, ready to be started.
  void MakeNext();

  /// The text of a file with this game, up to the last moment at which its board was on the screen;
  /// all of it if there was none.
  std::string Text();
  /// From now on the list is written, beginning with all of it if nothing has been so far.
  void BeginWriting() { writes_ = true; }
  /// From now on what follows is written, as all there is now has been.
  void GoOnWriting();
  void EndWriting();
  /// To be called wherever the game waits or rests: writes what has come since, while the board is
  /// on the screen. So what leaves the board or ends the program is not written: who comes back
  /// finds the game as it was before.
  void Follow();

  // What the face does.

  /// Writes lines behind those that have been written, or, with `anew`, in their place; `lasting`
  /// if the player has done something.
  virtual void Write(const std::string& lines, bool anew, bool lasting) = 0;
  /// The game has been let go of, and all its waits return at once. When the last of its handlers
  /// has left the stack, `MakeNext` is to be called; nothing that was meant for this game is to
  /// reach the next one.
  virtual void GameLetGo() {}
  /// The player has begun a new game after he left the one that has been written, ahead of its
  /// first line.
  virtual void NewGameBegins() {}

 private:
  void Make();
  bool IsBoardShown() { return game_->GFM.Untouched().IsShown(); }
  void Replace(GameList list, bool isWritten);

  Platform& machine_;
  std::optional<Journal> journal_;
  std::optional<Game> game_;
  History history_;
  GameList list_;  // to be played at the start of the game, or of the one that takes its place
  bool replacing_ = false;
  bool writes_ = false;              // what follows
  std::optional<Written> written_;   // of the list; nothing until its first line has been
  bool wroteBoard_ = false;          // what has been written leads to a board
  std::optional<Written> standing_;  // of the list, when the board was last on the screen
  bool hasLeft_ = false;             // the board, or has not come to it yet
};

}  // namespace zelvo
