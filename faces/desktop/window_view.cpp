#include "faces/desktop/window_view.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "faces/commands.h"
#include "surface/speech.h"

namespace zelvo {
namespace {

Qt::WindowFlags FlagsOf(TitleBar titleBar) {
  constexpr Qt::WindowFlags titled =
      Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::MSWindowsFixedSizeDialogHint;
  switch (titleBar) {
    case TitleBar::Sizable:
      return Qt::Window;
    case TitleBar::CloseOnly:
      return titled | Qt::WindowCloseButtonHint;
    case TitleBar::NoBorder:
      return Qt::Dialog | Qt::FramelessWindowHint;
    case TitleBar::Fixed:
    case TitleBar::NoButtons:
      break;
  }
  return titled;
}

Extent ExtentOf(Qt::WindowStates states) {
  if (states.testFlag(Qt::WindowMinimized)) return Extent::Minimised;
  return states.testFlag(Qt::WindowMaximized) ? Extent::Maximised : Extent::Normal;
}

/// A key that controls can have; Key::None for any other.
Key KeyOf(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (enter && modifiers == Qt::ControlModifier) return Key::CtrlEnter;
  if (modifiers != Qt::NoModifier) return Key::None;
  if (event.key() == Qt::Key_Escape) return Key::Escape;
  return event.key() == Qt::Key_F1 ? Key::F1 : Key::None;
}

}  // namespace

WindowView::WindowView(Window& window, Desk& desk)
    : QWidget(nullptr, FlagsOf(window.design().titleBar)),
      window_(window),
      desk_(desk),
      widgets_(MakeWidgets()),
      focusPath_(*this) {
  MakeGroups();
  setMouseTracking(true);
  setAcceptDrops(true);
  if (IsDialog()) setWindowModality(Qt::ApplicationModal);
}

void WindowView::MakeGroups() {
  for (ControlWidget* widget : widgets_) {
    const Group* group = widget->control().design().group;
    if (group == nullptr) continue;
    ControlGroup* known = GroupOf(*widget);
    if (known == nullptr) groups_.push_back(known = new ControlGroup(*group, this));
    known->members.push_back(widget);
  }
}

ControlGroup* WindowView::GroupOf(const ControlWidget& widget) const {
  const auto found = std::find_if(groups_.begin(), groups_.end(), [&widget](ControlGroup* known) {
    return &known->group == widget.control().design().group;
  });
  return found == groups_.end() ? nullptr : *found;
}

/// Makes a widget, owned by this one, for each control that the client area shows.
std::vector<ControlWidget*> WindowView::MakeWidgets() {
  std::vector<ControlWidget*> widgets;
  for (Control* control : window_.controls()) {
    if (!control->IsDrawn()) continue;
    widgets.push_back(new ControlWidget(*control, *this));
  }
  return widgets;
}

ControlWidget* WindowView::Find(const Control& control) const {
  const auto found = std::find_if(widgets_.begin(), widgets_.end(), [&](const ControlWidget* w) {
    return &w->control() == &control;
  });
  return found == widgets_.end() ? nullptr : *found;
}

// On the screen.

void WindowView::Open(const WindowView* opener) {
  opening_ = true;
  if (windowHandle() == nullptr && IsOnWayland()) NoteMinimising();
  // The window may have been unloaded while it was maximised.
  if (extent_ != window_.extent) ApplyExtent();
  if (opener == nullptr) {
    PlaceOnScreen();
  } else if (IsDialog()) {
    PlaceOver(*opener);
  } else {
    TakePlaceOf(*opener);
  }
  LayOut();
  for (ControlWidget* widget : widgets_) widget->SyncOnOpening();
  // A screen reader reads out a dialog that comes up, but not another window.
  if (IsDialog()) desk_.voice.NoteAsTold(widgets_);
  Sync();
  focusPath_.Start();
  frameIsNew_ = true;
  show();
  opening_ = false;
}

/// There only the player orders windows, and the desktop tells a window little of itself.
bool WindowView::IsOnWayland() { return QGuiApplication::platformName().startsWith("wayland"); }

/// Wayland tells a window neither that it is minimised nor that it comes back. So it is minimised
/// from when the player pressed the button of its frame until something reaches it again.
void WindowView::NoteMinimising() {
  winId();  // makes the native window
  connect(windowHandle(), &QWindow::windowStateChanged, this, [this](Qt::WindowState state) {
    if (state == Qt::WindowMinimized) setWindowState(windowState() | state);
  });
  windowHandle()->installEventFilter(this);
}

bool WindowView::eventFilter(QObject* /*native*/, QEvent* event) {
  const bool reachesPlayer = event->isInputEvent() || event->type() == QEvent::FocusIn;
  if (reachesPlayer && isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  return false;
}

void WindowView::BringToFront() {
  ++desk_.fronts;
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

void WindowView::ComeAnew() {
  windowHandle()->destroy();
  windowHandle()->setVisible(true);
  BringToFront();
}

void WindowView::resizeEvent(QResizeEvent* /*event*/) {
  LayOut();
  if (!opening_) TellSize();
}

void WindowView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || ExtentOf(windowState()) == extent_) return;
  extent_ = ExtentOf(windowState());
  window_.extent = extent_;
  TellSize();
}

void WindowView::TellSize() {
  desk_.gate.Deliver([this](Surface& surface) { surface.Resize(window_, extent_); }, this);
}

void WindowView::ApplyExtent() {
  extent_ = window_.extent;
  Qt::WindowStates states = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
  if (extent_ == Extent::Minimised) states |= Qt::WindowMinimized;
  if (extent_ == Extent::Maximised) states |= Qt::WindowMaximized;
  setWindowState(states);
}

// What the window shows.

void WindowView::Sync() {
  // Qt would put the program's name in the place of an empty title.
  setWindowTitle(window_.Caption.empty() ? " " : QString::fromStdString(window_.Caption));
  if (window_.extent != extent_ && !MustStayMinimised()) ApplyExtent();
  for (ControlWidget* widget : widgets_) widget->Sync();
  desk_.voice.TellNews(widgets_);
}

/// What comes back from being minimised comes up on top and active on most desktops. So the start
/// window, which follows the board, waits until it is in front itself. On Wayland none comes back
/// by what the program does.
bool WindowView::MustStayMinimised() const {
  return !IsOnWayland() && extent_ == Extent::Minimised && desk_.Front() != this;
}

void WindowView::paintEvent(QPaintEvent* /*event*/) {
  if (std::exchange(frameIsNew_, false)) {
    QMetaObject::invokeMethod(this, &WindowView::Settle, Qt::QueuedConnection);
  }
  QPainter(this).fillRect(rect(), ToColor(window_.design().ground));
}

// What the player does.

void WindowView::closeEvent(QCloseEvent* event) {
  event->ignore();  // the game decides whether the window goes
  desk_.gate.Deliver([this](Surface& surface) { surface.Close(window_); });
}

void WindowView::keyPressEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() || IsQuestion(event->key())) return;
  const Key key = KeyOf(*event);
  if (key != Key::None) PressByKey(key);
}

/// Tells those who do not see the game what they ask for.
bool WindowView::IsQuestion(int key) {
  const auto design = std::find_if(
      questionDesigns.begin(), questionDesigns.end(), [key](const QuestionDesign& each) {
        return QKeySequence(QString::fromLatin1(
                   each.key.data(), static_cast<qsizetype>(each.key.size()))) == QKeySequence(key);
      });
  if (design == questionDesigns.end()) return false;
  if (design->question == Question::News) {
    desk_.voice.Say(QString::fromStdString(SpokenNews(window_)));
  } else {
    desk_.gate.Deliver([this](Surface& surface) {
      desk_.voice.Say(QString::fromStdString(SpokenStanding(surface)));
    });
  }
  return true;
}

void WindowView::PressByKey(Key key) {
  for (ControlWidget* widget : widgets_) {
    if (widget->control().design().key == key) return widget->Press();
  }
  // Not the board's close box: a key pressed in error must not end a game.
  if (key == Key::Escape && IsDialog()) close();
}

void WindowView::mouseMoveEvent(QMouseEvent* /*event*/) {
  desk_.gate.Deliver([this](Surface& surface) { surface.Hover(window_); }, &desk_);
}

void WindowView::mousePressEvent(QMouseEvent* event) {
  ++desk_.presses;
  if (event->button() == Qt::LeftButton) pressed_ = true;
}

void WindowView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
  if (!rect().contains(event->position().toPoint())) return;
  DeliverClick([this](Surface& surface) { surface.Click(window_); });
}

/// A click that was held while the game was at work is for what the player saw then. Clicks out of
/// impatience on "Start Game" are to start one game.
void WindowView::DeliverClick(const std::function<void(Surface&)>& click) {
  // A window takes its time to come up, and a click on the one behind it can raise that again.
  WindowView* front = desk_.Front();
  const bool isBehind = front != nullptr && front != this;
  if (isBehind && !desk_.gate.IsOpen()) return front->BringToFront();
  desk_.gate.Deliver([this, click, fronts = desk_.fronts](Surface& surface) {
    if (fronts == desk_.fronts) click(surface);
  });
}

void WindowView::Click(ControlWidget& widget, int first) {
  DeliverClick([&widget, first](Surface& surface) {
    // Who clicks twice has not seen what came up in between, such as the button that ends the turn.
    if (first != 0 && widget.CameUpSince(first)) return;
    surface.Click(widget.control());
  });
}

void WindowView::Hover(ControlWidget& widget) {
  desk_.gate.Deliver([&widget](Surface& surface) { surface.Hover(widget.control()); }, &desk_);
}

// The keyboard's way.

void WindowView::FocusOn(const Control& control) {
  if (ControlWidget* widget = Find(control)) widget->setFocus();
}

void WindowView::FocusCame(ControlWidget& widget, Qt::FocusReason reason) {
  focusPath_.CameTo(widget.control());
  widget.update();
  // The lines that tell what lies under the mouse follow the keyboard too, while it is in use.
  if (desk_.usesKeys && reason != Qt::OtherFocusReason) Hover(widget);
}

void WindowView::ShowFocus() {
  if (QWidget* widget = focusWidget()) widget->update();
}

bool WindowView::focusNextPrevChild(bool next) { return focusPath_.Tab(next); }

}  // namespace zelvo
