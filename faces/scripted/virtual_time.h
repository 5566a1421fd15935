#pragma once

#include <cstdint>

#include "faces/timer_list.h"
#include "surface/platform.h"

namespace zelvo {

/// Time that moves only when it is told to, with the timers that count in it and a wall clock. It
/// starts at noon.
class VirtualTime : public TimerList {
 public:
  static constexpr std::int64_t millisecondsPerDay = 24LL * 60 * 60 * 1000;

  /// The wall clock, in milliseconds of the day.
  std::int64_t MillisecondOfDay() const;
  /// Sets the wall clock; running timers count on undisturbed.
  void SetWallClock(TimeOfDay time);
  /// Reads the wall clock, which takes a millisecond.
  TimeOfDay ReadWallClock();

 private:
  std::int64_t wallClockAhead_ = millisecondsPerDay / 2;
};

}  // namespace zelvo
