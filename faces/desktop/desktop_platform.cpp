#include "faces/desktop/desktop_platform.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScreen>
#include <QThread>
#include <QTime>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "faces/desktop/control_access.h"

namespace zelvo {
namespace {

// How wide the text of a message may be: what the toolkit keeps from wrapping.
constexpr double shareOfScreen = 0.4;
constexpr double widestText = 700;     // pixels
constexpr double messageLetters = 13;  // pixels at scale 1

TimeOfDay LocalTime() {
  // A rule may read the clock again and again until the second changes; it is not to burn the
  // processor meanwhile.
  QThread::msleep(1);
  const QTime now = QTime::currentTime();
  return {now.hour(), now.minute(), now.second()};
}

/// Ends a wait for events; may be called from any thread.
void WakeUp() { QAbstractEventDispatcher::instance(qApp->thread())->wakeUp(); }

}  // namespace

Machine ThisMachine(const QString& dataFolder) {
  Machine machine;
  machine.dataFolder = dataFolder;
  machine.sound = MakeSoundPlayer(WakeUp);
  machine.clock = LocalTime;
  machine.helpers = [](QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); };
  machine.speaker = [announcer =
                         std::make_shared<Announcer>(machine.helpers)](const QString& text) {
    if (QAccessible::isActive()) announcer->Say(text);
  };
  machine.leave = QCoreApplication::quit;
  return machine;
}

DesktopPlatform::DesktopPlatform(Machine machine)
    : Desk(machine.dataFolder + "/pictures", machine.speaker, machine.helpers),
      machine_(std::move(machine)) {
  // The game's windows have one design and their texts one language, whatever the system's is.
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  DescribeControlsToHelpers();
  qApp->installEventFilter(this);
  qApp->installNativeEventFilter(&lostWindows_);
}

DesktopPlatform::~DesktopPlatform() = default;

WindowView* DesktopPlatform::ViewOf(const Window& window) const {
  const auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second.get();
}

// Between the game's data and the screen.

void DesktopPlatform::Sync() {
  if (HasEnded()) return;
  // Showing a window can raise an event that changes data again.
  if (syncing_) {
    syncAgain_ = true;
    return;
  }
  if (!std::exchange(extentsTold_, true)) TellExtents();
  syncing_ = true;
  do {
    syncAgain_ = false;
    OpenAndCloseWindows();
    for (WindowView* view : std::vector<WindowView*>(open_)) view->Sync();
    const bool newFront = followed_ != surface_->broughtToFront();
    followed_ = surface_->broughtToFront();
    if (newFront && Front() != nullptr) Front()->BringToFront();
  } while (syncAgain_ && !HasEnded());
  syncing_ = false;
  if (whenSynced && !HasEnded()) whenSynced();
}

void DesktopPlatform::OpenAndCloseWindows() {
  const auto gone = std::stable_partition(
      open_.begin(), open_.end(), [](WindowView* view) { return view->window().IsShown(); });
  const std::vector<WindowView*> closing(gone, open_.end());
  open_.erase(gone, open_.end());
  for (WindowView* view : closing) view->hide();
  for (Window* window : std::vector<Window*>(surface_->Stack())) {
    auto& view = views_[window];
    if (!view) view = std::make_unique<WindowView>(*window, *this);
    if (std::find(open_.begin(), open_.end(), view.get()) != open_.end()) continue;
    view->Open(window->opener() == nullptr ? nullptr : ViewOf(*window->opener()));
    open_.push_back(view.get());
  }
}

WindowView* DesktopPlatform::Front() const {
  return HasEnded() || surface_->Stack().empty() ? nullptr : ViewOf(*surface_->Stack().back());
}

/// Brings what was held to the event loop.
struct DesktopPlatform::ReleasedEvent : QEvent {
  explicit ReleasedEvent(Held what) : QEvent(QEvent::User), held(std::move(what)) {}
  Held held;
};

bool DesktopPlatform::Listens() const {
  return !HasEnded() && !waitsForSound_ && !syncing_ && !paused_ && surface_->IsOpen();
}

void DesktopPlatform::Deliver(const std::function<void(Surface&)>& event, const void* subject) {
  if (HasEnded()) return;
  if (!Listens()) {
    if (subject != nullptr) std::erase_if(held_, [&](Held& h) { return h.subject == subject; });
    held_.push_back({subject, event});
    return;
  }
  {
    const QScopedValueRollback deeper(depth_, depth_ + 1);
    event(*surface_);
    Sync();
  }
  ReleaseHeld();
  if (depth_ == 0 && idle_) WhenIdle(std::exchange(idle_, {}));
}

// A game in the place of another.

void DesktopPlatform::WhenIdle(std::function<void()> what) {
  idle_ = std::move(what);
  if (depth_ == 0) {
    QMetaObject::invokeMethod(this, &DesktopPlatform::RunIdle, Qt::QueuedConnection);
  }
}

void DesktopPlatform::RunIdle() {
  if (depth_ == 0 && idle_) std::exchange(idle_, {})();
}

void DesktopPlatform::Detach() {
  surface_ = nullptr;
  held_.clear();
  heldTicks_.clear();
  QCoreApplication::removePostedEvents(this, QEvent::User);
  for (const auto& [control, timer] : timers_) timer->stop();
  followed_ = -1;
}

void DesktopPlatform::CloseMessageBoxes() {
  for (QMessageBox* box : boxes_) box->reject();
}

void DesktopPlatform::Pause(bool paused) {
  paused_ = paused;
  if (!HasEnded()) ReleaseHeld();
}

void DesktopPlatform::SetPace(int pace) {
  pace_ = pace;
  for (const auto& [control, timer] : timers_) {
    if (timer->isActive()) timer->start(TickLength(*control));
  }
}

void DesktopPlatform::TellExtents() {
  for (Window* window : std::vector<Window*>(surface_->Stack())) {
    WindowView* view = ViewOf(*window);
    const bool open = std::find(open_.begin(), open_.end(), view) != open_.end();
    Extent extent = window->extent == Extent::Minimised ? Extent::Normal : window->extent;
    if (open) extent = view->extent();
    if (extent == window->extent) continue;
    window->extent = extent;
    Deliver([window, extent](Surface& surface) { surface.Resize(*window, extent); }, view);
  }
}

/// Puts what was held ahead of all that comes next. Each is an event of its own: the game may yield
/// in the middle of one.
void DesktopPlatform::ReleaseHeld() {
  if (!Listens()) return;
  for (const Held& held : std::exchange(held_, {})) {
    QCoreApplication::postEvent(this, new ReleasedEvent(held));
  }
  for (const Control* control : std::exchange(heldTicks_, {})) timers_.at(control)->start(0);
}

void DesktopPlatform::customEvent(QEvent* event) {
  const Held& held = static_cast<ReleasedEvent*>(event)->held;
  Deliver(held.event, held.subject);
}

void DesktopPlatform::ProcessEvents(QEventLoop::ProcessEventsFlags flags) {
  ReleaseHeld();
  QCoreApplication::processEvents(flags);
}

bool DesktopPlatform::eventFilter(QObject* /*object*/, QEvent* event) {
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
void DesktopPlatform::LoseWindow(WId id) {
  if (HasEnded()) return;
  const auto isLost = [id](const QWidget* widget) { return widget->internalWinId() == id; };
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box != nullptr && isLost(box)) return box->reject();
  const auto lost = std::find_if(open_.begin(), open_.end(), isLost);
  if (lost == open_.end()) return;
  if (open_.size() == 1) {
    surface_->End();
  } else {
    (*lost)->ComeAnew();
  }
}

// Events.

void DesktopPlatform::Yield() {
  Sync();
  ProcessEvents(QEventLoop::AllEvents);
}

void DesktopPlatform::YieldUntilEvent() {
  Sync();
  ProcessEvents(QEventLoop::WaitForMoreEvents);
}

void DesktopPlatform::RunModal(Window& window) {
  while (window.IsShown() && !HasEnded()) {
    Sync();
    ProcessEvents(QEventLoop::WaitForMoreEvents);
  }
}

Answer DesktopPlatform::MessageBox(const std::string& text, MessageStyle style,
                                   const std::string& title) {
  Sync();
  const bool question = style == MessageStyle::YesNoQuestion;
  const Window* asking = surface_->AtWork();
  WindowView* parent = asking != nullptr && asking->IsShown() ? ViewOf(*asking) : Front();
  QMessageBox box(parent);
  box.setWindowTitle(QString::fromStdString(title));
  box.setTextFormat(Qt::PlainText);
  if (parent != nullptr)
    box.setFont(ScreenFont(static_cast<int>(messageLetters * parent->Scale()), false));
  const QSize screen = box.screen()->availableSize();
  const double width = std::min(shareOfScreen * screen.width(), widestText);
  box.setText(InEvenLines(ScreenText(text), box.font(), width));
  if (question) box.setIcon(QMessageBox::Question);
  if (style == MessageStyle::OkExclamation) box.setIcon(QMessageBox::Warning);
  box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  box.setEscapeButton(question ? QMessageBox::No : QMessageBox::Ok);
  // The toolkit would break lines anew at a width of its own.
  for (QLabel* label : box.findChildren<QLabel*>()) {
    if (label->text() == box.text()) label->setMinimumWidth(label->sizeHint().width());
  }
  ReleaseHeld();
  boxes_.push_back(&box);
  const int button = box.exec();
  boxes_.pop_back();
  if (!question) return Answer::Ok;
  return button == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void DesktopPlatform::SetPointer(MousePointer pointer) {
  const bool isSet = QGuiApplication::overrideCursor() != nullptr;
  const bool hourglass = pointer == MousePointer::Hourglass;
  if (hourglass && !isSet) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  if (!hourglass && isSet) QGuiApplication::restoreOverrideCursor();
}

void DesktopPlatform::SetFocus(Control& control) {
  Sync();
  if (WindowView* view = ViewOf(control.window())) view->FocusOn(control);
}

void DesktopPlatform::Refresh(Window& window) {
  Sync();
  if (WindowView* view = ViewOf(window)) view->repaint();
}

void DesktopPlatform::End() {
  for (WindowView* view : std::exchange(open_, {})) view->hide();
  for (const auto& [control, timer] : timers_) timer->stop();
  QGuiApplication::restoreOverrideCursor();
  machine_.leave();
}

// Timers.

void DesktopPlatform::TimerChanged(Control& control) {
  heldTicks_.erase(&control);
  auto& timer = timers_[&control];
  if (!timer) {
    timer = std::make_unique<QTimer>();
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer.get(), &QTimer::timeout, this, [this, &control] { Tick(control); });
  }
  if (control.Ticks()) {
    timer->start(TickLength(control));
  } else {
    timer->stop();
  }
}

int DesktopPlatform::TickLength(const Control& timer) const {
  return machine_.tickLength(timer.Interval()) / pace_;
}

void DesktopPlatform::Tick(Control& control) {
  if (HasEnded()) return;
  if (!Listens()) {
    heldTicks_.insert(&control);
    return;
  }
  QTimer& timer = *timers_.at(&control);
  const int length = TickLength(control);
  if (timer.interval() != length) timer.setInterval(length);  // after a held tick
  Deliver([&control](Surface& surface) { surface.Tick(control); });
}

/// A draw can read the clock for most of a second, until a second comes that suits it. The windows
/// are painted meanwhile; what else comes is held.
TimeOfDay DesktopPlatform::WallClock() {
  QCoreApplication::processEvents();
  return machine_.clock();
}

// Sound.

std::string DesktopPlatform::AppFolder() {
  QString folder = machine_.dataFolder + "/sounds";
  return folder.replace('/', '\\').toStdString();
}

bool DesktopPlatform::PlaySound(const std::string& path, bool waits) {
  const std::string name = path.substr(path.rfind('\\') + 1);
  const auto wave = ReadWaveFile(machine_.dataFolder + "/sounds/" + QString::fromStdString(name));
  if (wave) {
    machine_.sound->Start(*wave);
    if (waits) WaitForSound(wave->LongestWait());
  }
  return machine_.sound->IsThere();
}

/// The game stands still until the sound is over, but its windows are painted. A sound that never
/// says that it has ended is waited for no longer than its file is long.
void DesktopPlatform::WaitForSound(std::chrono::milliseconds longest) {
  Sync();
  const QScopedValueRollback waits(waitsForSound_, true);
  QTimer end;
  end.setSingleShot(true);
  end.setTimerType(Qt::PreciseTimer);
  end.start(longest / pace_);
  while (end.isActive() && machine_.sound->IsPlaying() && !HasEnded()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

}  // namespace zelvo
