#include "faces/browser/page_platform.h"

#include <algorithm>

#include "faces/browser/host.h"
#include "faces/browser/input.h"
#include "faces/deed.h"

namespace zelvo {
namespace {

/// The page gets its turn at least this often, in milliseconds. What the player does meanwhile
/// comes that much later.
constexpr double breath = 4;
/// A tick that comes later than this is not made up for: behind a long cue, or in a tab in the
/// background, the next one is a whole interval away.
constexpr std::int64_t late = 50;

}  // namespace

void PagePlatform::Attach(Surface& surface) {
  surface_ = &surface;
  timers_ = {};
  passedUntil_ = host::ZelvoNow();
  if (!page_) page_.emplace(surface);
}

// Events.

void PagePlatform::Yield() {
  if (host::ZelvoNow() - breathed_ >= breath) {
    page_->Sync();
    host::ZelvoWait(0);
    breathed_ = host::ZelvoNow();
  }
  RunPending();
}

void PagePlatform::YieldUntilEvent() { WaitForEvent(""); }

void PagePlatform::RunModal(Window& window) {
  while (window.IsShown() && !surface_->HasEnded()) WaitForEvent(Waiting());
}

Answer PagePlatform::MessageBox(const std::string& text, MessageStyle style,
                                const std::string& title) {
  page_->OpenMessage(text, style, title);
  answers_.emplace_back();
  while (!answers_.back() && !surface_->HasEnded()) WaitForEvent("message box");
  const Answer answer = answers_.back().value_or(Answer::No);
  answers_.pop_back();
  page_->CloseMessage();
  return answer;
}

void PagePlatform::WaitForEvent(std::string_view waiting) {
  if (RunPending()) return;
  GameWaits();
  page_->SyncWaiting(waiting);
  const auto until = timers_.UntilNextTick();
  host::ZelvoWait(until ? static_cast<double>(*until) : -1);
  breathed_ = host::ZelvoNow();
  page_->SyncWaiting("");
  RunPending();
}

/// Inputs and ticks that come when a wait is over stay where they are for the wait around it.
bool PagePlatform::RunPending() {
  bool happened = false;
  std::string input;
  PassTime();
  page_->Sync();  // an input meets what is to be seen
  while (IsOpen() && TakeInput(input)) {
    Take(input);
    page_->Sync();
    happened = true;
  }
  while (IsOpen()) {
    Control* timer = timers_.NextTick(0);
    if (timer == nullptr) break;
    surface_->Tick(*timer);
    page_->Sync();
    happened = true;
  }
  return happened;
}

bool PagePlatform::IsOpen() const {
  return !surface_->HasEnded() && surface_->IsOpen() && (answers_.empty() || !answers_.back());
}

void PagePlatform::Take(std::string_view input) {
  if (page_->Answer(input) || CarryOut(input)) return;
  const auto blank = std::min(input.find(' '), input.size());
  const std::string_view verb = input.substr(0, blank);
  const std::string_view rest = input.substr(std::min(blank + 1, input.size()));
  if (verb == "answer") {
    if (answers_.empty()) return;
    answers_.back() = rest == "yes" ? Answer::Yes : rest == "no" ? Answer::No : Answer::Ok;
    return;
  }
  std::string error;
  const auto deed = ReadDeed(*surface_, verb, rest, error);
  if (deed) surface_->Take(*deed);
}

std::string_view PagePlatform::Waiting() {
  const Window* window = surface_->InputWindow();
  return window == nullptr ? "" : window->name();
}

// Time.

void PagePlatform::PassTime() {
  const double now = host::ZelvoNow();
  const auto passed = static_cast<std::int64_t>(now - passedUntil_);
  const auto until = timers_.UntilNextTick();
  if (until && passed > *until + late) {
    timers_.Pass(*until);
    passedUntil_ = now;
  } else {
    timers_.Pass(passed);
    passedUntil_ += static_cast<double>(passed);  // part of a millisecond is left for later
  }
}

void PagePlatform::TimerChanged(Control& timer) {
  PassTime();
  timers_.TimerChanged(timer);
}

TimeOfDay PagePlatform::WallClock() {
  // A rule may read the clock again and again until the second changes.
  host::ZelvoPause(1);
  const int second = host::ZelvoSecondOfDay();
  return {second / 3600, second / 60 % 60, second % 60};
}

// Sound.

bool PagePlatform::PlaySound(const std::string& path, bool waits) {
  const std::string_view file = std::string_view(path).substr(path.rfind('\\') + 1);
  if (host::ZelvoCanPlay() == 0) return false;
  if (waits) page_->Sync();
  host::ZelvoPlayCue(file.data(), file.size(), waits ? 1 : 0);
  return true;
}

}  // namespace zelvo
