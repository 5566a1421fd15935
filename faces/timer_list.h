#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "surface/control.h"

namespace zelvo {

/// The timers that run and the order in which their ticks come. It has no clock of its own: time
/// moves on when a face says so, be it real or virtual.
class TimerList {
 public:
  /// Milliseconds since the start.
  std::int64_t Elapsed() const { return now_; }
  void Pass(std::int64_t milliseconds) { now_ += milliseconds; }

  /// Starts or stops the count of a timer.
  void TimerChanged(Control& timer);
  /// Milliseconds until a tick is due, 0 if one is overdue; nothing if no timer runs.
  std::optional<std::int64_t> UntilNextTick() const;
  /// The timer whose tick is due first, if it is due within that many milliseconds. Time moves on
  /// to the tick, and the timer's next one is due an interval later.
  Control* NextTick(std::int64_t within);
  /// The same however far off the tick is; null if no timer runs.
  Control* NextTickWhenever();

 private:
  struct Running {
    Control* timer;
    std::int64_t due;
  };
  std::vector<Running>::const_iterator First() const;

  std::vector<Running> running_;
  std::int64_t now_ = 0;
};

}  // namespace zelvo
