#include "faces/headless/virtual_time.h"

#include <algorithm>
#include <limits>

namespace zelvo {

std::int64_t VirtualTime::MillisecondOfDay() const {
  return (now_ + wallClockAhead_) % millisecondsPerDay;
}

void VirtualTime::SetWallClock(TimeOfDay time) {
  const std::int64_t target = ((time.hour * 60LL + time.minute) * 60 + time.second) * 1000;
  wallClockAhead_ = target - now_ % millisecondsPerDay + millisecondsPerDay;
}

TimeOfDay VirtualTime::ReadWallClock() {
  const auto seconds = static_cast<int>(MillisecondOfDay() / 1000);
  ++now_;
  return {seconds / 3600, seconds / 60 % 60, seconds % 60};
}

void VirtualTime::TimerChanged(Control& timer) {
  std::erase_if(running_, [&](const Running& running) { return running.timer == &timer; });
  if (timer.Ticks()) running_.push_back({&timer, now_ + timer.Interval()});
}

Control* VirtualTime::NextTick(std::int64_t within) {
  const auto next = std::min_element(running_.begin(), running_.end(),
                                     [](const auto& a, const auto& b) { return a.due < b.due; });
  if (next == running_.end() || next->due - now_ > within) return nullptr;
  now_ = std::max(now_, next->due);
  next->due += next->timer->Interval();
  return next->timer;
}

Control* VirtualTime::NextTickWhenever() {
  return NextTick(std::numeric_limits<std::int32_t>::max());
}

}  // namespace zelvo
