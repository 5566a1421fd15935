#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "faces/desktop/placing.h"
#include "faces/desktop/window_view.h"

// Where a window stands on the screen, and how large.

namespace zelvo {
namespace {

constexpr double twipsPerPixel = 15;  // at scale 1
/// The part of the screen that a window takes when it comes up on its own.
constexpr double shareOfScreen = 0.84;
/// How small the player can make a window.
constexpr double smallestScale = 0.5;

}  // namespace

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
    setMinimumSize(DesignPixels(std::min(scale, smallestScale)));
    resize(DesignPixels(scale));
  }
}

void WindowView::PlaceOnScreen() {
  const QRect available = screen()->availableGeometry();
  const QSize share = available.size() * shareOfScreen;
  SetScale(ScaleThatFits(DesignPixels(1), share, HUGE_VAL));
  QRect place(QPoint(), size());
  place.moveCenter(available.center());
  setGeometry(place);
}

void WindowView::TakePlaceOf(const WindowView& opener) {
  // A click on what is seen of the opener would bury this window, which could not come up again.
  if (IsOnWayland()) StayAbove(opener);
  setMinimumSize(opener.minimumSize());
  if (opener.isMaximized()) {
    PlaceOnScreen();  // for the day when it is no longer maximised
    setWindowState(windowState() | Qt::WindowMaximized);
    return;
  }
  setGeometry(opener.geometry());
  // A desktop that tiles would halve the screen between the two. It leaves alone a window that
  // comes up with a fixed size.
  if (QGuiApplication::platformName() == "xcb") setFixedSize(size());
}

/// What a window can be only once it is on the screen.
void WindowView::Settle() {
  if (!IsDialog() && minimumSize() == maximumSize()) {
    setMinimumSize(DesignPixels(std::min(Scale(), smallestScale)));
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  }
  PutWholeOnScreen();
}

void WindowView::PlaceOver(const WindowView& opener) {
  const QMargins frame =
      windowFlags().testFlag(Qt::FramelessWindowHint) ? QMargins() : opener.Frame();
  const QRect room = opener.screen()->availableGeometry();
  SetScale(ScaleThatFits(DesignPixels(1), room.marginsRemoved(frame).size(), opener.Scale()));
  QRect place = QRect(QPoint(), size()).marginsAdded(frame);
  place.moveCenter(opener.frameGeometry().center());
  if (const QRect spot = opener.SpotOf(window_.keepsClearOf); spot.isValid()) {
    place = MovedBeside(spot, room, place);
  } else {
    place = MovedInto(room, place);
  }
  setGeometry(place.marginsRemoved(frame));
  StayAbove(opener);
}

void WindowView::StayAbove(const WindowView& opener) {
  winId();  // makes the native window, so that it can be tied to the opener's
  windowHandle()->setTransientParent(opener.windowHandle());
}

/// Where a control of this window lies on the screen, with some ground around it; nowhere if the
/// window shows no such control.
QRect WindowView::SpotOf(const Control* control) const {
  const ControlWidget* widget = control == nullptr ? nullptr : Find(*control);
  if (widget == nullptr) return {};
  const int ground = static_cast<int>(std::ceil(clearance * Scale() / twipsPerPixel));
  return QRect(widget->mapToGlobal(QPoint()), widget->size())
      .marginsAdded({ground, ground, ground, ground});
}

/// The title bar and the borders that the desktop has put around the window.
QMargins WindowView::Frame() const {
  return windowHandle() == nullptr ? QMargins() : windowHandle()->frameMargins();
}

void WindowView::FollowScreen(const WindowView* opener) {
  const QRect room = screen()->availableGeometry();
  if (opener != nullptr && IsDialog() && !room.contains(frameGeometry())) PlaceOver(*opener);
  PutWholeOnScreen();
  frameIsNew_ = true;  // some desktops give another one with another size
  update();
}

/// What frame a window gets is known only once it has it.
void WindowView::PutWholeOnScreen() {
  if (!isVisible() || isMinimized() || isMaximized()) return;
  const QRect room = screen()->availableGeometry();
  if (room.contains(frameGeometry())) return;
  const QSize inside = room.marginsRemoved(Frame()).size();
  if (IsDialog()) {
    SetScale(ScaleThatFits(DesignPixels(1), inside, Scale()));
  } else {
    resize(size().boundedTo(inside));
  }
  move(MovedInto(room, QRect(pos(), size().grownBy(Frame()))).topLeft());
}

void WindowView::LayOut() {
  const WindowDesign& design = window_.design();
  Mapping mapping;
  mapping.unit = Scale() / twipsPerPixel;
  mapping.left = (width() - design.width * mapping.unit) / 2;
  mapping.top = (height() - design.height * mapping.unit) / 2;
  for (ControlWidget* widget : widgets_) widget->Layout(mapping);
}

}  // namespace zelvo
