#pragma once

#include <QEventLoop>
#include <QString>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "faces/desktop/gate.h"
#include "faces/desktop/screen.h"
#include "faces/desktop/sound_player.h"

class QMessageBox;

namespace zelvo {

/// What of the machine a test puts its own in for.
struct Machine {
  QString dataFolder;  ///< with the folders pictures and sounds
  std::unique_ptr<SoundPlayer> sound;
  std::function<TimeOfDay()> clock;
  Voice::Speaker speaker;
  Helpers helpers;
  /// The milliseconds that a timer of so many really takes.
  std::function<int(int)> tickLength = [](int interval) { return interval; };
  /// Leaves the program once the game has ended.
  std::function<void()> leave;
};

/// The machine that the program runs on.
Machine ThisMachine(const QString& dataFolder);

/// The game's door to the desktop: windows, sound and clock of Qt, and the waits for its events.
class DesktopPlatform final : public Platform {
 public:
  explicit DesktopPlatform(Machine machine);
  ~DesktopPlatform() override;

  /// Ties the platform to the game that runs on it, ahead of the game's start; null lets go of it.
  void Attach(Surface* surface);
  /// Takes away the message boxes of a game that was let go.
  void CloseMessageBoxes();

  void Yield() override;
  void YieldUntilEvent() override;
  void RunModal(Window& window) override;
  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  bool PlaySound(const std::string& path, bool waits) override;
  TimeOfDay WallClock() override;
  std::string AppFolder() override;
  void SetPointer(MousePointer pointer) override;
  void SetFocus(Control& control) override;
  void Refresh(Window& window) override;
  void TimerChanged(Control& timer) override;
  void End() override;

  Gate gate;
  Screen screen;

 private:
  void Wait(QEventLoop::ProcessEventsFlags flags);
  void WaitForSound(std::chrono::milliseconds longest);

  Machine machine_;
  std::vector<QMessageBox*> boxes_;  // the game's, that are open
};

}  // namespace zelvo
