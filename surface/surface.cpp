#include "surface/surface.h"

#include <utility>

namespace zelvo {

/// While it lives, the handlers that run stand still and let others in.
class Surface::Wait {
 public:
  explicit Wait(Surface& surface, const Window* modal = nullptr)
      : surface_(surface),
        waiting_(std::exchange(surface.waiting_, surface.running_)),
        awaited_(std::exchange(surface.awaited_, modal)) {}
  Wait(const Wait&) = delete;
  Wait& operator=(const Wait&) = delete;
  ~Wait() {
    surface_.waiting_ = waiting_;
    surface_.awaited_ = awaited_;
  }

 private:
  Surface& surface_;
  int waiting_;
  const Window* awaited_;
};

Window* Surface::FindWindow(std::string_view name) const {
  for (Window* window : windows_) {
    if (window->name() == name) return window;
  }
  return nullptr;
}

template <class Handler, class... Arguments>
void Surface::Raise(Window& window, Handler handler, Arguments&... arguments) {
  if (handler == nullptr || ended_) return;
  Window* outer = std::exchange(atWork_, &window);
  ++running_;
  handler(Self(), arguments...);
  --running_;
  atWork_ = outer;
}

void Surface::Load(Window& window) {
  if (window.IsLoaded()) return;
  window.state_ = WindowState::Hidden;
  window.Reset();
  Raise(window, window.handlers.load);
}

void Surface::Show(Window& window) {
  if (ended_) return;
  Load(window);
  const bool wasShown = window.IsShown();
  window.state_ = WindowState::Shown;
  if (!wasShown) window.inHand = nullptr;
  if (!wasShown && atWork_ != &window) {
    window.opener_ = atWork_ != nullptr || stack_.empty() ? atWork_ : stack_.back();
  }
  BringToFront(window);
  if (!wasShown) Raise(window, window.handlers.resize);
  Activate(&window);
}

void Surface::ShowModal(Window& window) {
  if (ended_) return;
  modals_.push_back(&window);
  Show(window);
  if (window.IsShown() && !ended_) {
    const Wait wait(*this, &window);
    platform_.RunModal(window);
  }
  modals_.pop_back();
  Activate(InputWindow());
}

void Surface::Hide(Window& window) {
  if (!window.IsShown()) return;
  window.state_ = WindowState::Hidden;
  TakeOffStack(window);
}

void Surface::Unload(Window& window) {
  // The board's own unload handlers unload the board again.
  if (!window.IsLoaded() || window.unloading_) return;
  window.unloading_ = true;
  Raise(window, window.handlers.queryUnload);
  Raise(window, window.handlers.unload);
  window.unloading_ = false;
  TakeOffStack(window);
  window.Reset();
  window.state_ = WindowState::NotLoaded;
}

void Surface::BringToFront(Window& window) {
  std::erase(stack_, &window);
  stack_.push_back(&window);
  ++broughtToFront_;
}

void Surface::TakeOffStack(Window& window) {
  const bool wasInFront = !stack_.empty() && stack_.back() == &window;
  std::erase(stack_, &window);
  Window* opener = std::exchange(window.opener_, nullptr);
  if (!wasInFront || stack_.empty()) return;
  BringToFront(opener != nullptr && opener->IsShown() ? *opener : *stack_.back());
}

void Surface::Yield() {
  if (ended_) return;
  const Wait wait(*this);
  platform_.Yield();
}

void Surface::YieldUntilEvent() {
  if (ended_) return;
  const Wait wait(*this);
  if (!stack_.empty()) stack_.back()->inHand = nullptr;
  platform_.YieldUntilEvent();
}

Answer Surface::MessageBox(const std::string& text, MessageStyle style, const std::string& title) {
  if (ended_) return style == MessageStyle::YesNoQuestion ? Answer::No : Answer::Ok;
  const Wait wait(*this);
  ++messageBoxes_;
  const Answer answer = platform_.MessageBox(text, style, title);
  --messageBoxes_;
  return answer;
}

void Surface::SetPointer(MousePointer pointer) {
  pointer_ = pointer;
  if (!ended_) platform_.SetPointer(pointer);
}

void Surface::SetFocus(Control& control) {
  if (!ended_) platform_.SetFocus(control);
}

void Surface::Refresh(Window& window) {
  if (!ended_) platform_.Refresh(window);
}

void Surface::End() {
  if (ended_) return;
  ended_ = true;
  platform_.End();
}

bool Surface::IsOpen() const {
  return running_ == waiting_ && (awaited_ == nullptr || awaited_->IsShown());
}

Window* Surface::InputWindow() const {
  for (std::size_t i = modals_.size(); i-- > 0;) {
    if (modals_[i]->IsShown()) return modals_[i];
  }
  for (std::size_t i = windows_.size(); i-- > 0;) {
    if (windows_[i]->design().isMain && windows_[i]->IsShown()) return windows_[i];
  }
  return nullptr;
}

std::string_view Surface::WhyNoInput(Window& window) {
  if (ended_) return "the program has ended";
  if (!window.IsShown()) return "the window is not shown";
  if (!IsOpen()) return "the game is at work";
  if (messageBoxes_ > 0) return "a message box keeps the window from input";
  // The main windows are all live as long as no modal window is up.
  const Window* input = InputWindow();
  const bool modal = input == nullptr || !input->design().isMain;
  if (modal) return input == &window ? "" : "a modal window keeps the window from input";
  return running_ < deepest ? "" : "too many handlers are running";
}

std::string_view Surface::WhyNoInput(Control& control) {
  const std::string_view why = WhyNoInput(control.window());
  if (!why.empty()) return why;
  if (!control.VisibleInWindow()) return "the control is hidden";
  return control.Enabled() ? "" : "the control is disabled";
}

bool Surface::Click(Control& control) {
  if (control.kind() == Kind::Timer || !WhyNoInput(control).empty()) return false;
  if (control.handlers.dropsClicksWhileBusy && running_ > 0) return false;
  platform_.Took({Deed::Kind::Click, &control.window(), &control});
  if (control.kind() == Kind::Option) control.SetValue(true);
  if (control.kind() == Kind::CheckBox) control.SetValue(!control.Value());
  Raise(control.window(), control.handlers.click, control);
  const bool canBeHeld = control.kind() == Kind::Image && control.index() != Control::noIndex;
  if (canBeHeld) control.window().inHand = &control;
  return true;
}

bool Surface::Click(Window& window) {
  if (!WhyNoInput(window).empty()) return false;
  platform_.Took({Deed::Kind::Click, &window});
  Raise(window, window.handlers.click);
  return true;
}

bool Surface::Hover(Control& control) {
  if (control.kind() == Kind::Timer || !WhyNoInput(control).empty()) return false;
  platform_.Took({Deed::Kind::Hover, &control.window(), &control});
  Raise(control.window(), control.handlers.mouseMove, control);
  return true;
}

bool Surface::Hover(Window& window) {
  if (!WhyNoInput(window).empty()) return false;
  platform_.Took({Deed::Kind::Hover, &window});
  Raise(window, window.handlers.mouseMove);
  return true;
}

bool Surface::Close(Window& window) {
  if (!window.HasCloseBox() || !WhyNoInput(window).empty()) return false;
  platform_.Took({Deed::Kind::Close, &window});
  Unload(window);
  return true;
}

bool Surface::Resize(Window& window, Extent extent) {
  if (ended_ || !window.IsShown() || !IsOpen()) return false;
  platform_.Took({Deed::Kind::Resize, &window, nullptr, extent});
  window.extent = extent;
  Raise(window, window.handlers.resize);
  return true;
}

bool Surface::Tick(Control& timer) {
  if (ended_ || !timer.window().IsLoaded() || !timer.Ticks() || !IsOpen()) return false;
  platform_.Took({Deed::Kind::Tick, &timer.window(), &timer});
  Raise(timer.window(), timer.handlers.timer, timer);
  return true;
}

bool Surface::Take(const Deed& deed) {
  switch (deed.kind) {
    case Deed::Kind::Click:
      return deed.control != nullptr ? Click(*deed.control) : Click(*deed.window);
    case Deed::Kind::Hover:
      return deed.control != nullptr ? Hover(*deed.control) : Hover(*deed.window);
    case Deed::Kind::Close:
      return Close(*deed.window);
    case Deed::Kind::Resize:
      return Resize(*deed.window, deed.extent);
    case Deed::Kind::Tick:
      return Tick(*deed.control);
  }
  return false;
}

void Surface::Activate(Window* window) {
  if (window != nullptr && window->IsShown()) Raise(*window, window->handlers.activate);
}

}  // namespace zelvo
