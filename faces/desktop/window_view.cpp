#include "faces/desktop/window_view.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace zelvo {
namespace {

constexpr double twipsPerPixel = 15;  // at scale 1
/// The part of the screen that a window takes when it comes up on its own.
constexpr double shareOfScreen = 0.84;

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

bool OnClientArea(const Control& control) {
  const Box place = control.Place();
  const WindowDesign& design = control.window().design();
  return place.left < design.width && place.top < design.height;
}

}  // namespace

WindowView::WindowView(Window& window, Desk& desk)
    : QWidget(nullptr, FlagsOf(window.design().titleBar)), window_(window), desk_(desk) {
  setMouseTracking(true);
  if (IsDialog()) {
    setWindowModality(Qt::ApplicationModal);
  } else {
    setMinimumSize(DesignPixels(1));
  }
  for (Control* control : window.controls()) {
    if (control->kind() == Kind::Timer || !OnClientArea(*control)) continue;
    widgets_.push_back(new ControlWidget(*control, *this));  // owned by this widget
  }
}

ControlWidget* WindowView::Find(const Control& control) const {
  const auto found = std::find_if(widgets_.begin(), widgets_.end(), [&](const ControlWidget* w) {
    return &w->control() == &control;
  });
  return found == widgets_.end() ? nullptr : *found;
}

// Place and size.

QSize WindowView::DesignPixels(double scale) const {
  const WindowDesign& design = window_.design();
  return (QSizeF(design.width, design.height) * scale / twipsPerPixel).toSize();
}

double WindowView::Scale() const {
  const WindowDesign& design = window_.design();
  return std::min(static_cast<double>(width()) / design.width,
                  static_cast<double>(height()) / design.height) *
         twipsPerPixel;
}

void WindowView::SetScale(double scale) {
  if (IsDialog()) {
    setFixedSize(DesignPixels(scale));
  } else {
    resize(DesignPixels(scale));
  }
}

void WindowView::Open(const WindowView* opener) {
  opening_ = true;
  // The window may have been unloaded while it was maximised.
  if (extent_ != window_.extent) ApplyExtent();
  awaited_ = nullptr;
  lastFocused_.clear();
  ClearMark();
  if (opener == nullptr) {
    PlaceOnScreen();
  } else if (IsDialog()) {
    CentreOver(*opener);
  } else {
    TakePlaceOf(*opener);
  }
  LayOut();
  for (ControlWidget* widget : widgets_) widget->SyncOnOpening();
  Sync();
  const auto stops = TabStops();
  if (!stops.empty()) stops.front()->setFocus();
  show();
  raise();
  activateWindow();
  opening_ = false;
}

void WindowView::PlaceOnScreen() {
  const QRect available = screen()->availableGeometry();
  const QSizeF design = DesignPixels(1);
  SetScale(shareOfScreen *
           std::min(available.width() / design.width(), available.height() / design.height()));
  QRect place(QPoint(), size());
  place.moveCenter(available.center());
  setGeometry(place);
}

void WindowView::TakePlaceOf(const WindowView& opener) {
  if (opener.isMaximized()) {
    PlaceOnScreen();  // for the day when it is no longer maximised
    setWindowState(windowState() | Qt::WindowMaximized);
    return;
  }
  setGeometry(opener.geometry());
}

void WindowView::CentreOver(const WindowView& opener) {
  const QRect available = opener.screen()->availableGeometry();
  const QSizeF design = DesignPixels(1);
  SetScale(std::min({opener.Scale(), available.width() / design.width(),
                     shareOfScreen * available.height() / design.height()}));
  QRect place(QPoint(), size());
  place.moveCenter(opener.geometry().center());
  place.moveLeft(std::clamp(place.left(), available.left(),
                            std::max(available.left(), available.right() - place.width())));
  place.moveTop(std::clamp(place.top(), available.top(),
                           std::max(available.top(), available.bottom() - place.height())));
  setGeometry(place);
  winId();  // makes the native window, so that it can be tied to the opener's
  windowHandle()->setTransientParent(opener.windowHandle());
}

void WindowView::LayOut() {
  const WindowDesign& design = window_.design();
  Mapping mapping;
  mapping.unit = Scale() / twipsPerPixel;
  mapping.left = (width() - design.width * mapping.unit) / 2;
  mapping.top = (height() - design.height * mapping.unit) / 2;
  for (ControlWidget* widget : widgets_) widget->Layout(mapping);
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
  sizeTold_ = false;
  desk_.Deliver([this](Surface& surface) {
    sizeTold_ = surface.Resize(window_, extent_) || !window_.IsShown();
  });
}

void WindowView::TellSizeIfDue() {
  if (!sizeTold_) TellSize();
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
  if (window_.extent != extent_) ApplyExtent();
  for (ControlWidget* widget : widgets_) widget->Sync();
}

void WindowView::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).fillRect(rect(), ToColor(window_.design().ground));
}

// What the player does.

void WindowView::closeEvent(QCloseEvent* event) {
  event->ignore();  // the game decides whether the window goes
  desk_.Deliver([this](Surface& surface) { surface.Close(window_); });
}

void WindowView::keyPressEvent(QKeyEvent* event) {
  // Not the board's close box: a key pressed in error must not end a game.
  if (event->key() == Qt::Key_Escape && IsDialog()) close();
}

void WindowView::mouseMoveEvent(QMouseEvent* /*event*/) {
  desk_.Deliver([this](Surface& surface) { surface.Hover(window_); });
}

void WindowView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed_ = true;
}

void WindowView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
  if (!rect().contains(event->position().toPoint())) return;
  desk_.Deliver([this](Surface& surface) { surface.Click(window_); });
}

void WindowView::Click(ControlWidget& widget) {
  desk_.Deliver([this, &widget](Surface& surface) {
    if (surface.Click(widget.control())) Mark(widget);
  });
}

/// The picture of an array that was clicked last is the one in hand.
void WindowView::Mark(ControlWidget& widget) {
  if (!widget.IsWalked() || widget.control().kind() != Kind::Image) return;
  for (ControlWidget* other : widgets_) {
    if (other->control().name() == widget.control().name()) other->SetInHand(other == &widget);
  }
}

void WindowView::ClearMark() {
  for (ControlWidget* widget : widgets_) widget->SetInHand(false);
}

void WindowView::Hover(ControlWidget& widget) {
  desk_.Deliver([&widget](Surface& surface) { surface.Hover(widget.control()); });
}

// The keyboard's way.

void WindowView::FocusOn(const Control& control) {
  if (ControlWidget* widget = Find(control)) widget->setFocus();
}

void WindowView::FocusCame(ControlWidget& widget, Qt::FocusReason reason) {
  awaited_ = nullptr;
  if (widget.IsWalked()) lastFocused_[widget.control().name()] = &widget;
  widget.update();
  const bool moved = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
  if (moved && desk_.usesKeys) Hover(widget);
}

void WindowView::AwaitFocusOf(ControlWidget& widget) {
  widget.clearFocus();  // or Qt would hand it to the next one
  awaited_ = &widget;
}

void WindowView::ComeBack(ControlWidget& widget) {
  if (awaited_ == &widget) widget.setFocus(Qt::OtherFocusReason);
}

void WindowView::ShowFocus() {
  if (ControlWidget* widget = FocusedWidget()) widget->update();
}

ControlWidget* WindowView::FocusedWidget() const {
  const auto found = std::find_if(widgets_.begin(), widgets_.end(), [this](ControlWidget* widget) {
    return widget == focusWidget() || widget->isAncestorOf(focusWidget());
  });
  return found == widgets_.end() ? nullptr : *found;
}

void WindowView::Walk(ControlWidget& from, QPoint direction) {
  if (!from.IsWalked()) return;
  ControlWidget* nearest = nullptr;
  int shortest = 0;
  for (ControlWidget* widget : widgets_) {
    if (widget->control().name() != from.control().name() || !widget->TakesFocus()) continue;
    const QPoint way = widget->geometry().center() - from.geometry().center();
    const int ahead = QPoint::dotProduct(way, direction);
    const int aside = std::abs(QPoint::dotProduct(way, direction.transposed()));
    if (ahead <= 0 || aside > ahead / 2) continue;
    if (nearest != nullptr && ahead >= shortest) continue;
    nearest = widget;
    shortest = ahead;
  }
  if (nearest != nullptr) nearest->setFocus(Qt::TabFocusReason);
}

/// The member of a walked array at which the keyboard enters it: where it was last, else the
/// option that is selected, else the first.
ControlWidget* WindowView::EntryOf(const ControlWidget& member) const {
  const std::string_view array = member.control().name();
  const auto last = lastFocused_.find(array);
  if (last != lastFocused_.end() && last->second->TakesFocus()) return last->second;
  ControlWidget* entry = nullptr;
  for (ControlWidget* widget : widgets_) {
    if (widget->control().name() != array || !widget->TakesFocus()) continue;
    if (widget->control().Value()) return widget;
    if (entry == nullptr) entry = widget;
  }
  return entry;
}

std::vector<ControlWidget*> WindowView::TabStops() const {
  std::vector<ControlWidget*> stops;
  for (ControlWidget* widget : widgets_) {
    if (!widget->TakesFocus()) continue;
    if (!widget->IsWalked() || widget == EntryOf(*widget)) stops.push_back(widget);
  }
  return stops;
}

bool WindowView::focusNextPrevChild(bool next) {
  const std::vector<ControlWidget*> stops = TabStops();
  if (stops.empty()) return false;
  // The focus may be on a control that has just gone, so places are compared, not stops.
  const auto place = [this](const ControlWidget* widget) {
    return std::find(widgets_.begin(), widgets_.end(), widget) - widgets_.begin();
  };
  const ControlWidget* focused = FocusedWidget();
  const auto from = place(focused != nullptr ? focused : awaited_);
  ControlWidget* target = nullptr;
  if (next) {
    const auto after = std::find_if(stops.begin(), stops.end(),
                                    [&](ControlWidget* stop) { return place(stop) > from; });
    target = after == stops.end() ? stops.front() : *after;
  } else {
    const auto before = std::find_if(stops.rbegin(), stops.rend(),
                                     [&](ControlWidget* stop) { return place(stop) < from; });
    target = before == stops.rend() ? stops.back() : *before;
  }
  target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

}  // namespace zelvo
