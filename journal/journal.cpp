#include "journal/journal.h"

#include <utility>

namespace zelvo {
namespace {

bool SameHover(const Entry& a, const Entry& b) {
  return a.kind == Entry::Kind::Hover && b.kind == a.kind && a.window == b.window &&
         a.control == b.control;
}

/// True if the entry only makes the run of the last one longer.
bool Continues(const Entry& last, const Entry& entry) {
  if (last.kind != entry.kind || last.count >= longestRun) return false;
  if (entry.kind == Entry::Kind::Back) return true;
  return entry.kind == Entry::Kind::Clock && last.time.hour == entry.time.hour &&
         last.time.minute == entry.time.minute && last.time.second == entry.time.second;
}

/// True if a deed can change the game; a click beside all that can be clicked is none to speak of.
bool Matters(const Deed& deed) {
  if (deed.kind == Deed::Kind::Close) return true;
  if (deed.kind != Deed::Kind::Click) return false;
  if (deed.control == nullptr) return deed.window->handlers.click != nullptr;
  const Kind kind = deed.control->kind();
  return deed.control->handlers.click != nullptr || kind == Kind::Option || kind == Kind::CheckBox;
}

Entry Of(Entry::Kind kind) {
  Entry entry;
  entry.kind = kind;
  return entry;
}

}  // namespace

class Journal::Wait {
 public:
  Wait(Journal& journal, WaitKind kind) : waits_(journal.waits_) { waits_.push_back(kind); }
  Wait(const Wait&) = delete;
  Wait& operator=(const Wait&) = delete;
  ~Wait() { waits_.pop_back(); }

 private:
  std::vector<WaitKind>& waits_;
};

// --- Playing

void Journal::Start(GameList list) {
  list_ = std::move(list);
  playing_ = true;
  surface_->Start();
  while (NextInWait() != nullptr) PlayDeed();
  const bool over = surface_->HasEnded() && playing_;
  if (over && misfit_.empty() && next_ < list_.size()) Misfit(list_[next_]);
}

const Entry* Journal::Next() {
  if (!playing_ || surface_->HasEnded()) return nullptr;
  if (next_ < list_.size()) return &list_[next_];
  HandOver();
  return nullptr;
}

const Entry* Journal::NextInWait() {
  if (playing_ && whenWaiting && !surface_->HasEnded()) whenWaiting();
  return Next();
}

const Entry* Journal::NextAnswer(Entry::Kind kind) {
  // A trial finds out where the game comes to wait next.
  if (machine_ == nullptr && next_ == list_.size()) return nullptr;
  const Entry* entry = Next();
  if (entry == nullptr) return nullptr;
  if (entry->kind != kind) {
    Misfit(*entry);
    return nullptr;
  }
  UseUp();
  return entry;
}

Written Journal::Played() const {
  if (used_ > 0) return {next_ + 1, used_};
  return {next_, next_ > 0 ? list_[next_ - 1].count : 0};
}

void Journal::UseUp() {
  if (++used_ < list_[next_].count) return;
  ++next_;
  used_ = 0;
}

void Journal::PlayDeed() {
  const Entry entry = list_[next_];
  UseUp();
  if (!entry.IsDeed()) return Misfit(entry);
  const Deed deed = DeedOf(*surface_, entry);
  if (deed.kind == Deed::Kind::Click) focus_ = deed.control;
  if (!surface_->Take(deed)) Misfit(entry);
}

bool Journal::PlayUpTo(Entry::Kind end) {
  while (const Entry* entry = NextInWait()) {
    if (entry->kind == end) return true;
    PlayDeed();
  }
  return false;
}

void Journal::HandOver() {
  playing_ = false;
  if (whenPlayed) whenPlayed();
  if (machine_ == nullptr) return surface_->End();
  for (Window* window : surface_->Windows()) {
    if (!window->IsLoaded()) continue;
    for (Control* control : window->controls()) {
      if (control->kind() == Kind::Timer && control->Ticks()) machine_->TimerChanged(*control);
    }
  }
  machine_->SetPointer(surface_->pointer());
  if (focus_ == nullptr || &focus_->window() != surface_->InputWindow()) return;
  if (focus_->VisibleInWindow() && focus_->Enabled()) machine_->SetFocus(*focus_);
}

void Journal::Misfit(const Entry& entry) {
  if (!misfit_.empty()) return;
  std::string line = LineOf(*surface_, entry);
  line.pop_back();
  misfit_ = "its line " + std::to_string(entry.line) + " does not fit the game: " + line;
  surface_->End();
}

// --- Recording

void Journal::Record(const Entry& entry) {
  if (machine_ == nullptr || surface_->HasEnded()) return;
  if (!list_.empty() && SameHover(list_.back(), entry)) return;
  if (!list_.empty() && Continues(list_.back(), entry)) {
    ++list_.back().count;
  } else {
    list_.push_back(entry);
  }
}

void Journal::Took(const Deed& deed) {
  const std::size_t place = playing_ ? next_ - 1 : list_.size();
  if (IsAtRest() && Matters(deed)) deedsAtRest_.push_back(place);
  if (!playing_) Record(EntryOf(*surface_, deed));
}

void Journal::Abandon() {
  machine_ = nullptr;
  surface_->End();
}

// --- The platform

void Journal::Yield() {
  const Wait wait(*this, WaitKind::Passing);
  if (PlayUpTo(Entry::Kind::Back)) return UseUp();
  if (HasMachine() && !surface_->HasEnded()) machine_->Yield();
  Record(Of(Entry::Kind::Back));
}

void Journal::YieldUntilEvent() {
  const Wait wait(*this, WaitKind::Passing);
  const std::size_t before = next_;
  if (PlayUpTo(Entry::Kind::Back)) return UseUp();
  // If something has happened inside the wait already, it is over.
  const bool nothingYet = next_ == before;
  if (HasMachine() && nothingYet && !surface_->HasEnded()) machine_->YieldUntilEvent();
  Record(Of(Entry::Kind::Back));
}

void Journal::RunModal(Window& window) {
  const Wait wait(*this, WaitKind::ForPlayer);
  while (window.IsShown() && NextInWait() != nullptr) PlayDeed();
  const bool goesOn = window.IsShown() && !surface_->HasEnded();
  if (HasMachine() && goesOn) machine_->RunModal(window);
}

Answer Journal::MessageBox(const std::string& text, MessageStyle style, const std::string& title) {
  const Wait wait(*this, WaitKind::ForPlayer);
  const bool asks = style == MessageStyle::YesNoQuestion;
  if (PlayUpTo(Entry::Kind::Answer)) {
    const Entry entry = list_[next_];
    if ((entry.answer == Answer::Ok) == asks) Misfit(entry);
    deedsAtRest_.push_back(next_);
    UseUp();
    return entry.answer;
  }
  if (!HasMachine() || surface_->HasEnded()) return asks ? Answer::No : Answer::Ok;
  Entry entry = Of(Entry::Kind::Answer);
  entry.answer = machine_->MessageBox(text, style, title);
  if (!surface_->HasEnded()) deedsAtRest_.push_back(list_.size());
  Record(entry);
  return entry.answer;
}

bool Journal::PlaySound(const std::string& path, bool waits) {
  if (const Entry* entry = NextAnswer(Entry::Kind::Sound)) return entry->hasSound;
  if (!HasMachine() || surface_->HasEnded()) return false;
  Entry entry = Of(Entry::Kind::Sound);
  entry.hasSound = machine_->PlaySound(path, waits);
  Record(entry);
  return entry.hasSound;
}

TimeOfDay Journal::WallClock() {
  if (const Entry* entry = NextAnswer(Entry::Kind::Clock)) return entry->time;
  // What still runs after the end may wait for the clock to turn.
  if (!HasMachine() || surface_->HasEnded()) return {0, 0, afterwards_++ % 60};
  Entry entry = Of(Entry::Kind::Clock);
  entry.time = machine_->WallClock();
  Record(entry);
  return entry.time;
}

std::string Journal::AppFolder() {
  return machine_ == nullptr ? std::string(".") : machine_->AppFolder();
}

void Journal::SetPointer(MousePointer pointer) {
  if (HasMachine()) machine_->SetPointer(pointer);
}

void Journal::SetFocus(Control& control) {
  focus_ = &control;
  if (HasMachine()) machine_->SetFocus(control);
}

void Journal::Refresh(Window& window) {
  if (HasMachine()) machine_->Refresh(window);
}

void Journal::TimerChanged(Control& timer) {
  if (HasMachine()) machine_->TimerChanged(timer);
}

void Journal::End() {
  // A list may itself end the program.
  if (machine_ != nullptr && misfit_.empty()) machine_->End();
}

}  // namespace zelvo
