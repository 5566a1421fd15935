#include "faces/desktop/desktop_platform.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
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
    : gate(machine.tickLength),
      screen(gate, machine.dataFolder + "/pictures", machine.speaker, machine.helpers),
      machine_(std::move(machine)) {
  // The game's windows have one design and their texts one language, whatever the system's is.
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  DescribeControlsToHelpers();
  gate.whenDelivered = [this] { screen.Sync(); };
}

DesktopPlatform::~DesktopPlatform() = default;

void DesktopPlatform::Attach(Surface* surface) {
  gate.Attach(surface);
  screen.FollowAnew();
}

void DesktopPlatform::CloseMessageBoxes() {
  for (QMessageBox* box : boxes_) box->reject();
}

// Waits.

void DesktopPlatform::Wait(QEventLoop::ProcessEventsFlags flags) {
  screen.Sync();
  gate.RunEvents(flags);
}

void DesktopPlatform::Yield() { Wait(QEventLoop::AllEvents); }

void DesktopPlatform::YieldUntilEvent() { Wait(QEventLoop::WaitForMoreEvents); }

void DesktopPlatform::RunModal(Window& window) {
  while (window.IsShown() && gate.Running() != nullptr) Wait(QEventLoop::WaitForMoreEvents);
}

Answer DesktopPlatform::MessageBox(const std::string& text, MessageStyle style,
                                   const std::string& title) {
  screen.Sync();
  gate.StandStill();  // so that it does not cover what the player is told
  const bool question = style == MessageStyle::YesNoQuestion;
  const Window* asking = gate.Running()->AtWork();
  WindowView* parent =
      asking != nullptr && asking->IsShown() ? screen.ViewOf(*asking) : screen.Front();
  QMessageBox box(parent);
  box.setWindowTitle(QString::fromStdString(title));
  box.setTextFormat(Qt::PlainText);
  if (parent != nullptr)
    box.setFont(ScreenFont(static_cast<int>(messageLetters * parent->Scale()), false));
  const int room = box.screen()->availableSize().width();
  const double width = std::min(shareOfScreen * room, widestText);
  box.setText(InEvenLines(ScreenText(text), box.font(), width));
  if (question) box.setIcon(QMessageBox::Question);
  if (style == MessageStyle::OkExclamation) box.setIcon(QMessageBox::Warning);
  box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  box.setEscapeButton(question ? QMessageBox::No : QMessageBox::Ok);
  // The toolkit would break lines anew at a width of its own.
  for (QLabel* label : box.findChildren<QLabel*>()) {
    if (label->text() == box.text()) label->setMinimumWidth(label->sizeHint().width());
  }
  gate.Release();
  boxes_.push_back(&box);
  const int button = box.exec();
  boxes_.pop_back();
  gate.StandStill();
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
  screen.Sync();
  if (WindowView* view = screen.ViewOf(control.window())) view->FocusOn(control);
}

void DesktopPlatform::Refresh(Window& window) {
  screen.Sync();
  if (WindowView* view = screen.ViewOf(window)) view->repaint();
}

void DesktopPlatform::End() {
  screen.CloseAll();
  gate.StopTicks();
  QGuiApplication::restoreOverrideCursor();
  machine_.leave();
}

void DesktopPlatform::TimerChanged(Control& timer) { gate.TimerChanged(timer); }

/// A draw can read the clock for most of a second, until a second comes that suits it. The windows
/// are painted meanwhile; what else comes is held.
TimeOfDay DesktopPlatform::WallClock() {
  {
    const Gate::Hold draw(gate, Gate::Time::Passes);
    gate.RunEvents(QEventLoop::AllEvents);
  }
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
  screen.Sync();
  const Gate::Hold cue(gate, Gate::Time::StandsStill);
  QTimer end;
  end.setSingleShot(true);
  end.setTimerType(Qt::PreciseTimer);
  end.start(longest / gate.pace());
  while (end.isActive() && machine_.sound->IsPlaying() && gate.Running() != nullptr) {
    gate.RunEvents(QEventLoop::WaitForMoreEvents);
  }
}

}  // namespace zelvo
