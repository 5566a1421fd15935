#include "faces/desktop/screen.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "faces/desktop/placing.h"

namespace zelvo {

Screen::Screen(Gate& theGate, const QString& pictureFolder, Voice::Speaker speaker, Helpers helpers)
    : Desk(theGate, pictureFolder, std::move(speaker), std::move(helpers)) {
  qApp->installEventFilter(this);
  qApp->installNativeEventFilter(&lostWindows_);
  for (const QScreen* screen : QGuiApplication::screens()) Watch(screen);
  connect(qApp, &QGuiApplication::screenAdded, this, &Screen::Watch);
  // The toolkit has moved nothing yet.
  connect(qApp, &QGuiApplication::screenRemoved, this, &Screen::FollowScreens,
          Qt::QueuedConnection);
}

Screen::~Screen() = default;

WindowView* Screen::ViewOf(const Window& window) const {
  const auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second.get();
}

WindowView* Screen::Front() const {
  const Surface* surface = gate.Running();
  if (surface == nullptr || surface->Stack().empty()) return nullptr;
  return ViewOf(*surface->Stack().back());
}

bool Screen::IsOpen(const WindowView* view) const {
  return std::find(open_.begin(), open_.end(), view) != open_.end();
}

void Screen::FollowAnew() {
  followed_ = -1;
  extentsTold_ = false;
}

void Screen::Sync() {
  Surface* surface = gate.Running();
  if (surface == nullptr) return;
  // Showing a window can raise an event that changes data again.
  if (syncing_) {
    syncAgain_ = true;
    return;
  }
  if (!std::exchange(extentsTold_, true)) TellExtents(*surface);
  {
    const Gate::Hold drawing(gate, Gate::Time::Passes);
    syncing_ = true;
    do {
      syncAgain_ = false;
      Draw(*surface);
    } while (syncAgain_ && !surface->HasEnded());
    syncing_ = false;
  }
  if (whenSynced && !surface->HasEnded()) whenSynced();
}

void Screen::Draw(Surface& surface) {
  OpenAndCloseWindows(surface);
  for (WindowView* view : std::vector<WindowView*>(open_)) view->Sync();
  const bool newFront = followed_ != surface.broughtToFront();
  followed_ = surface.broughtToFront();
  if (newFront && Front() != nullptr) Front()->BringToFront();
}

void Screen::OpenAndCloseWindows(Surface& surface) {
  const auto gone = std::stable_partition(
      open_.begin(), open_.end(), [](WindowView* view) { return view->window().IsShown(); });
  const std::vector<WindowView*> closing(gone, open_.end());
  open_.erase(gone, open_.end());
  for (WindowView* view : closing) view->hide();
  for (Window* window : std::vector<Window*>(surface.Stack())) {
    auto& view = views_[window];
    if (!view) view = std::make_unique<WindowView>(*window, *this);
    if (IsOpen(view.get())) continue;
    view->Open(window->opener() == nullptr ? nullptr : ViewOf(*window->opener()));
    open_.push_back(view.get());
  }
}

/// Tells the game of windows whose size on the screen is not what its data says, as after a list
/// was played. A window that was minimised comes up at its normal size.
void Screen::TellExtents(Surface& surface) {
  for (Window* window : std::vector<Window*>(surface.Stack())) {
    const WindowView* view = ViewOf(*window);
    Extent extent = window->extent == Extent::Minimised ? Extent::Normal : window->extent;
    if (IsOpen(view)) extent = view->extent();
    if (extent == window->extent) continue;
    window->extent = extent;
    gate.Deliver([window, extent](Surface& game) { game.Resize(*window, extent); }, view);
  }
}

void Screen::Watch(const QScreen* screen) {
  connect(screen, &QScreen::availableGeometryChanged, this, &Screen::FollowScreens,
          Qt::QueuedConnection);
}

/// A screen has become smaller or is gone.
void Screen::FollowScreens() {
  for (WindowView* view : open_) {
    const Window* opener = view->window().opener();
    view->FollowScreen(opener == nullptr ? nullptr : ViewOf(*opener));
  }
  // Message boxes and what else the toolkit shows.
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (!widget->isVisible() || dynamic_cast<WindowView*>(widget) != nullptr) continue;
    const QRect room = widget->screen()->availableGeometry();
    if (room.contains(widget->frameGeometry())) continue;
    widget->move(MovedInto(room, widget->frameGeometry()).topLeft());
  }
}

void Screen::CloseAll() {
  for (WindowView* view : std::exchange(open_, {})) view->hide();
}

bool Screen::eventFilter(QObject* /*object*/, QEvent* event) {
  const bool key = event->type() == QEvent::KeyPress;
  const bool mouse = event->type() == QEvent::MouseButtonPress;
  if ((key || mouse) && usesKeys != key) {
    usesKeys = key;
    for (WindowView* view : open_) view->ShowFocus();
  }
  return false;
}

/// A window was destroyed by somebody else. The game counts on it as long as it shows it, so it
/// comes anew; but who destroys the only one wants the program to end.
void Screen::LoseWindow(WId id) {
  Surface* surface = gate.Running();
  if (surface == nullptr) return;
  const auto isLost = [id](const QWidget* widget) { return widget->internalWinId() == id; };
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box != nullptr && isLost(box)) return box->reject();
  const auto lost = std::find_if(open_.begin(), open_.end(), isLost);
  if (lost == open_.end()) return;
  if (open_.size() == 1) {
    surface->End();
  } else {
    (*lost)->ComeAnew();
  }
}

}  // namespace zelvo
