#include "faces/desktop/gate.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <utility>

namespace zelvo {

Gate::Hold::Hold(Gate& gate, Time time) : gate_(gate), time_(time) {
  ++gate_.holds_;
  if (time_ == Time::StandsStill && gate_.standstills_++ == 0) gate_.ticker_.Stop();
}

Gate::Hold::~Hold() {
  --gate_.holds_;
  if (time_ == Time::StandsStill && --gate_.standstills_ == 0) gate_.ticker_.GoOn();
  gate_.Release();
}

Gate::Gate(std::function<int(int)> tickLength)
    : ticker_(std::move(tickLength), [this] { Tick(); }) {}

void Gate::Attach(Surface* surface) {
  surface_ = surface;
  held_.clear();
  ticker_.Clear();
}

Surface* Gate::Running() const {
  return surface_ != nullptr && !surface_->HasEnded() ? surface_ : nullptr;
}

bool Gate::IsOpen() const { return holds_ == 0 && Running() != nullptr && surface_->IsOpen(); }

// --- What reaches the game

void Gate::Deliver(const Event& event, const void* subject) {
  if (Running() == nullptr) return;
  if (!IsOpen()) {
    if (subject != nullptr) std::erase_if(held_, [&](Held& h) { return h.subject == subject; });
    held_.push_back({subject, event});
    return;
  }
  {
    const QScopedValueRollback deeper(depth_, depth_ + 1);
    event(*surface_);
    whenDelivered();
  }
  Release();
  if (depth_ == 0 && idle_) WhenIdle(std::exchange(idle_, {}));
}

void Gate::Tick() {
  if (!IsOpen()) return;  // `Release` has it come again
  Control* timer = ticker_.Take();
  if (timer != nullptr) Deliver([timer](Surface& surface) { surface.Tick(*timer); });
}

/// Each of what was held is an event of its own: the game may yield in the middle of one.
void Gate::Release() {
  if (!IsOpen()) return;
  ticker_.TellWhatIsDue();
  if (!held_.empty()) QMetaObject::invokeMethod(this, &Gate::LetIn, Qt::QueuedConnection);
}

void Gate::LetIn() {
  if (!IsOpen() || held_.empty()) return;
  const Held first = std::move(held_.front());
  held_.erase(held_.begin());
  Deliver(first.event, first.subject);
}

// --- Waits

void Gate::RunEvents(QEventLoop::ProcessEventsFlags flags) {
  Release();
  QCoreApplication::processEvents(flags);
  StandStill();
}

void Gate::StandStill() const {
  while (IsPaused() && Running() != nullptr) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

void Gate::WhenIdle(std::function<void()> what) {
  idle_ = std::move(what);
  if (depth_ == 0) QMetaObject::invokeMethod(this, &Gate::RunIdle, Qt::QueuedConnection);
}

void Gate::RunIdle() {
  if (depth_ == 0 && idle_) std::exchange(idle_, {})();
}

}  // namespace zelvo
