#include "faces/desktop/focus_path.h"

#include <algorithm>

#include "faces/desktop/window_view.h"
#include "surface/speech.h"

namespace zelvo {

FocusPath::FocusPath(const WindowView& view) : view_(view), stops_(StopsOf(view.window())) {}

void FocusPath::GoTo(const Control& control, Qt::FocusReason reason) const {
  if (ControlWidget* widget = view_.Find(control)) widget->setFocus(reason);
}

void FocusPath::Start() {
  last_.clear();
  left_ = nullptr;
  if (const Control* first = FirstEntry(stops_, last_)) GoTo(*first, Qt::OtherFocusReason);
}

void FocusPath::CameTo(const Control& control) {
  if (&control != passedTo_) left_ = nullptr;
  if (const Group* group = WalkedGroup(control)) last_[group] = &control;
}

void FocusPath::Leave(const ControlWidget& widget) {
  if (!widget.IsFocusOfItsWindow()) return;
  const Control* held = view_.window().surface().InHand(view_.window());
  const bool isThere = held != nullptr && view_.Find(*held) != nullptr && TakesFocus(*held);
  passedTo_ = isThere ? held : FirstEntry(stops_, last_);
  if (passedTo_ == nullptr) return;
  GoTo(*passedTo_, Qt::OtherFocusReason);
  left_ = &widget.control();
}

void FocusPath::ComeBack(const Control& control) {
  if (left_ == &control && TakesFocus(control)) GoTo(control, Qt::OtherFocusReason);
}

bool FocusPath::Tab(bool next) {
  const auto& widgets = view_.widgets();
  const auto focused = std::find_if(widgets.begin(), widgets.end(),
                                    [](const ControlWidget* w) { return w->IsFocusOfItsWindow(); });
  const Control* from = focused == widgets.end() ? nullptr : &(*focused)->control();
  const Control* target = NextEntry(stops_, last_, from, next);
  if (target == nullptr) return false;
  GoTo(*target, next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

void FocusPath::Walk(const Control& from, Step step) {
  const Control* next = zelvo::Walk(from, step);
  if (next == nullptr) return;
  GoTo(*next, Qt::TabFocusReason);
  if (next->kind() == Kind::Option) view_.Find(*next)->Press();
}

void FocusPath::WalkToInitial(const Control& from, char initial) {
  const Control* next = NextWithInitial(stops_, last_, from, initial);
  if (next != nullptr) return GoTo(*next, Qt::TabFocusReason);
  const char letter = initial >= 'a' && initial <= 'z' ? static_cast<char>(initial - 'a' + 'A') : 0;
  if (letter == 0) return;
  view_.desk().voice.Say(QString::fromStdString(std::string(nothingBeginsWith) + letter + '.'));
}

}  // namespace zelvo
