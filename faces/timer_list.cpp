#include "faces/timer_list.h"

#include <algorithm>
#include <limits>

namespace zelvo {

void TimerList::TimerChanged(Control& timer) {
  std::erase_if(running_, [&](const Running& running) { return running.timer == &timer; });
  if (timer.Ticks()) running_.push_back({&timer, now_ + timer.Interval()});
}

std::vector<TimerList::Running>::const_iterator TimerList::First() const {
  return std::min_element(running_.begin(), running_.end(),
                          [](const auto& a, const auto& b) { return a.due < b.due; });
}

std::optional<std::int64_t> TimerList::UntilNextTick() const {
  const auto next = First();
  if (next == running_.end()) return std::nullopt;
  return std::max<std::int64_t>(0, next->due - now_);
}

Control* TimerList::NextTick(std::int64_t within) {
  const auto first = First();
  if (first == running_.end() || first->due - now_ > within) return nullptr;
  Running& next = running_[first - running_.begin()];
  now_ = std::max(now_, next.due);
  next.due += next.timer->Interval();
  return next.timer;
}

Control* TimerList::NextTickWhenever() {
  return NextTick(std::numeric_limits<std::int32_t>::max());
}

}  // namespace zelvo
