#include "faces/scripted/virtual_time.h"

namespace zelvo {

std::int64_t VirtualTime::MillisecondOfDay() const {
  return (Elapsed() + wallClockAhead_) % millisecondsPerDay;
}

void VirtualTime::SetWallClock(TimeOfDay time) {
  const std::int64_t target = ((time.hour * 60LL + time.minute) * 60 + time.second) * 1000;
  wallClockAhead_ = target - Elapsed() % millisecondsPerDay + millisecondsPerDay;
}

TimeOfDay VirtualTime::ReadWallClock() {
  const auto seconds = static_cast<int>(MillisecondOfDay() / 1000);
  Pass(1);
  return {seconds / 3600, seconds / 60 % 60, seconds % 60};
}

}  // namespace zelvo
