#pragma once

#include <QAccessible>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "faces/desktop/desktop_session.h"

namespace zelvo {

/// A player of sounds that are never heard, and never over.
struct SilentPlayer : SoundPlayer {
  bool IsThere() override { return isThere; }
  void Start(const WaveFile& wave) override {
    ++started;
    if (whileItPlays) whileItPlays(wave);
  }
  bool IsPlaying() override { return --looksWhilePlaying >= 0; }

  bool isThere = false;
  int started = 0;
  int looksWhilePlaying = 0;  ///< how often a sound still plays when asked
  std::function<void(const WaveFile&)> whileItPlays;
};

/// True if the control's caption is drawn whole.
bool TextFits(ControlWidget& widget);

/// The real windows over a game whose clock stands and whose timers are always due.
class DesktopGame {
 public:
  DesktopGame();
  DesktopGame(const DesktopGame&) = delete;
  DesktopGame& operator=(const DesktopGame&) = delete;
  ~DesktopGame();

  /// Presses "Start Game" on the start window.
  void StartGame();
  /// The widget of a control of a window that has been shown.
  ControlWidget& Widget(Control& control);
  WindowView& View(Window& window);
  /// Shows a window that is fit to be looked at, with the longest texts that it comes to hold.
  void Exhibit(Window& window);

  TimeOfDay now{12, 30, 37};
  std::function<void()> whenClockIsRead;
  int tickLength = 0;  ///< milliseconds of any timer's interval
  SilentPlayer* sound = nullptr;
  int timesLeft = 0;  ///< how often the game left the program
  std::vector<std::string> spoken;
  std::vector<std::pair<QObject*, QAccessible::Event>> helpersHeard;
  DesktopPlatform platform;
  DesktopSession session{platform};
  Game& game = session.game();

 private:
  Machine TestMachine();
};

}  // namespace zelvo
