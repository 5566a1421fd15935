#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <string>

#include "faces/desktop/desktop_platform.h"
#include "faces/game_file.h"
#include "faces/session.h"

class QDropEvent;
class QMenu;

namespace zelvo {

/// The session on the desktop: the file that the game is kept in, the menu, the keys and the
/// dialogs.
class DesktopSession final : public QObject, public Session {
 public:
  explicit DesktopSession(DesktopPlatform& platform);
  ~DesktopSession() override;

  /// Starts the program, with a kept game if a file is named.
  void Start(const std::string& file = "");

  // The errors of these are sentences for the player; empty if all is well.

  /// Puts the game into a file, in which it is kept up to date from then on.
  std::string Keep(const std::string& path);
  /// Goes on with a kept game, which is kept up to date in its file from then on.
  std::string GoOn(const std::string& path);

  /// What the menu and the keys do.
  void Do(const CommandDesign& design);
  /// The menu of all this, at a place on the screen.
  QMenu* OpenMenu(QPoint place);
  /// Tells the player something; the game stands still until he has read it, and then something
  /// else may come.
  void Say(const std::string& text, const std::function<void()>& afterwards = {});

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Write(const std::string& lines, bool anew, bool lasting) override;
  void GameLetGo() override;
  void NewGameBegins() override { LetFileGo(); }

  void Begin();
  void LetFileGo();
  void ChooseFile(Command command);
  void KeepAt(const QString& path);
  void GoOnWith(const QString& path);
  bool TakeDrop(QDropEvent& event);
  /// Says what a command has done in a word that is seen, spoken and gone again.
  void SayWord(const QString& text);
  WindowView* Front() const { return platform_.screen.Front(); }
  template <class Dialog, class Signal>
  std::weak_ptr<Gate::Pause> PauseUntil(Dialog* dialog, Signal closed);

  DesktopPlatform& platform_;
  KeptFile file_;
};

}  // namespace zelvo
