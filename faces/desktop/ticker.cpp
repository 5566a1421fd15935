#include "faces/desktop/ticker.h"

#include <algorithm>
#include <utility>

namespace zelvo {

Ticker::Ticker(std::function<int(int)> length, const std::function<void()>& due)
    : length_(std::move(length)) {
  wait_.setSingleShot(true);
  wait_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&wait_, &QTimer::timeout, &wait_, [this, due] {
    timers_.Pass(until_);
    rest_ = 0;
    due();
  });
}

void Ticker::TimerChanged(Control& timer) {
  Settle();
  timers_.TimerChanged(timer);
  WaitForTick();
}

void Ticker::Stop() {
  Settle();
  stands_ = true;
}

void Ticker::GoOn() {
  stands_ = false;
  TellWhatIsDue();
}

Control* Ticker::Take() {
  Settle();
  Control* timer = timers_.NextTick(0);
  WaitForTick();
  return timer;
}

void Ticker::SetPace(int pace) {
  Settle();
  pace_ = pace;
  WaitForTick();
}

void Ticker::Clear() {
  wait_.stop();
  timers_ = {};
  rest_ = 0;
}

/// Ends the wait for the next tick and lets pass as much of the game's time as it took so far.
void Ticker::Settle() {
  if (!wait_.isActive()) return;
  const double took = static_cast<double>(since_.nsecsElapsed()) / 1e6;
  const double share = wait_.interval() == 0 ? 1 : std::min(1.0, took / wait_.interval());
  const auto until = static_cast<double>(until_);
  const double passed = std::min(until, rest_ + until * share);
  timers_.Pass(static_cast<std::int64_t>(passed));
  rest_ = passed - static_cast<double>(static_cast<std::int64_t>(passed));
  wait_.stop();
}

void Ticker::WaitForTick() {
  const auto until = timers_.UntilNextTick();
  if (stands_ || !until) return;
  until_ = *until;
  wait_.start(until_ == 0 ? 0 : length_(static_cast<int>(until_)) / pace_);
  since_.start();
}

}  // namespace zelvo
