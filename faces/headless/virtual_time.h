#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "surface/control.h"
#include "surface/platform.h"

namespace zelvo {

/// Time that moves only when it is told to, with the timers that count in it. It starts at noon.
class VirtualTime {
 public:
  static constexpr std::int64_t millisecondsPerDay = 24LL * 60 * 60 * 1000;

  /// Milliseconds since the start.
  std::int64_t Elapsed() const { return now_; }
  /// The wall clock, in milliseconds of the day.
  std::int64_t MillisecondOfDay() const;
  /// Sets the wall clock; running timers count on undisturbed.
  void SetWallClock(TimeOfDay time);
  /// Reads the wall clock, which takes a millisecond.
  TimeOfDay ReadWallClock();

  /// Starts or stops the count of a timer.
  void TimerChanged(Control& timer);
  /// The timer whose tick is due first, if it is due within that many milliseconds. Time moves on
  /// to the tick, and the timer's next one is due an interval later.
  Control* NextTick(std::int64_t within);
  /// The same however far off the tick is; null if no timer runs.
  Control* NextTickWhenever();
  void Pass(std::int64_t milliseconds) { now_ += milliseconds; }

 private:
  struct Running {
    Control* timer;
    std::int64_t due;
  };

  std::vector<Running> running_;
  std::int64_t now_ = 0;
  std::int64_t wallClockAhead_ = millisecondsPerDay / 2;
};

}  // namespace zelvo
