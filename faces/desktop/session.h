#pragma once

#include <QObject>
#include <optional>
#include <string>

#include "faces/commands.h"
#include "faces/desktop/desktop_platform.h"
#include "faces/game_file.h"
#include "game/game.h"
#include "journal/history.h"
#include "journal/journal.h"

class QMenu;

namespace zelvo {

/// The game on the desktop, and what the player can do with it as a whole: keep it in a file, go on
/// with a kept one, take back and do again, set the pace of its waits.
class Session final : public QObject {
 public:
  explicit Session(DesktopPlatform& platform);
  ~Session() override;

  /// The game that runs. Another one comes to stand in the same place.
  Game& game() { return *game_; }
  const Journal& journal() const { return *journal_; }
  /// True while another game is about to take the place of this one.
  bool IsReplacing() const { return replacing_; }

  /// Starts the program, with a kept game if a file is named.
  void Start(const std::string& file = "");

  // Each of these takes effect when the game that runs has come to its end, from the event loop.
  // Errors are sentences for the player; empty if all is well.

  /// Puts the game into a file, in which it is kept up to date from then on.
  std::string Keep(const std::string& path);
  /// Goes on with a kept game, which is kept up to date in its file from then on.
  std::string GoOn(const std::string& path);
  void TakeBack();
  void DoAgain();

  /// What the menu and the keys do.
  void Do(const CommandDesign& design);
  /// The menu of all this, at a place on the screen.
  QMenu* OpenMenu(QPoint place);
  /// Tells the player something; the game stands still until he has read it.
  void Say(const std::string& text);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Begin(GameList list);
  void Replace(GameList list, bool isInFile);
  void Follow();
  void LoseFile(int error);
  void ChooseFile(Command command);
  bool CanDo(Command command) const;
  WindowView* Front() const { return platform_.Front(); }
  template <class Dialog, class Signal>
  void PauseUntil(Dialog* dialog, Signal closed);

  DesktopPlatform& platform_;
  std::optional<Journal> journal_;
  std::optional<Game> game_;
  History history_;
  KeptFile file_;
  Written written_;  // of the list, in the file
  bool replacing_ = false;
};

}  // namespace zelvo
