#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <cstdint>
#include <functional>

#include "faces/timer_list.h"

namespace zelvo {

/// The game's time on the desktop: it passes with the machine's, by the pace times as fast, but can
/// stand still. All timers of the game are one timer of the toolkit, which waits for the next tick.
class Ticker {
 public:
  /// `length` tells the milliseconds that so many of the game really take; `due` is called when a
  /// tick has become due.
  Ticker(std::function<int(int)> length, const std::function<void()>& due);

  void TimerChanged(Control& timer);
  /// Lets time stand still.
  void Stop();
  /// Lets it pass from now on.
  void GoOn();
  /// Has a tick that was due and not taken come again.
  void TellWhatIsDue() {
    if (!wait_.isActive()) WaitForTick();
  }
  /// The timer whose tick is due, which is taken thereby.
  Control* Take();
  void SetPace(int pace);
  int pace() const { return pace_; }
  /// No timer runs any more.
  void Clear();

 private:
  void Settle();
  void WaitForTick();

  std::function<int(int)> length_;
  TimerList timers_;
  QTimer wait_;             // for the next tick, while time passes
  QElapsedTimer since_;     // its start
  std::int64_t until_ = 0;  // the game's milliseconds that it takes
  double rest_ = 0;         // of a millisecond that has passed
  int pace_ = 1;
  bool stands_ = false;
};

}  // namespace zelvo
