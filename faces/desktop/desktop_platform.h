#pragma once

#include <QEventLoop>
#include <QObject>
#include <QString>
#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "faces/desktop/desk.h"
#include "faces/desktop/lost_window.h"
#include "faces/desktop/sound_player.h"
#include "faces/desktop/window_view.h"
#include "surface/surface.h"

class QMessageBox;
class QTimer;

namespace zelvo {

/// What of the machine a test puts its own in for.
struct Machine {
  QString dataFolder;  ///< with the folders pictures and sounds
  std::unique_ptr<SoundPlayer> sound;
  std::function<TimeOfDay()> clock;
  Voice::Speaker speaker;
  Helpers helpers;
  /// The milliseconds that a timer of so many really takes.
  std::function<int(int)> tickLength = [](int interval) { return interval; };
  /// Leaves the program once the game has ended.
  std::function<void()> leave;
};

/// The machine that the program runs on.
Machine ThisMachine(const QString& dataFolder);

/// The game's door to the desktop: events, windows, sound and clock of Qt.
class DesktopPlatform final : public QObject, public Platform, public Desk {
 public:
  explicit DesktopPlatform(Machine machine);
  ~DesktopPlatform() override;

  /// Ties the platform to the game that runs on it, ahead of the game's start.
  void Attach(Surface& surface) {
    surface_ = &surface;
    extentsTold_ = false;
  }
  /// Makes ready for another game in the place of one that was let go: the windows stay on the
  /// screen until the new game has shown which it has.
  void Detach();
  /// Calls once no handler of the game stands on the stack any more, from the event loop.
  void WhenIdle(std::function<void()> what);
  /// Called whenever the windows show what the game's data holds, and the game waits or rests.
  std::function<void()> whenSynced;
  /// Takes away the message boxes of a game that was let go.
  void CloseMessageBoxes();
  /// While it is paused, nothing reaches the game.
  void Pause(bool paused);
  bool IsPaused() const { return paused_; }
  /// Makes the waits so many times as fast.
  void SetPace(int pace);
  int pace() const { return pace_; }
  /// The window's picture on the screen; null while it has never been shown.
  WindowView* ViewOf(const Window& window) const;
  /// Opens and closes windows and shows in them what the game's data holds.
  void Sync();

  void Yield() override;
  void YieldUntilEvent() override;
  void RunModal(Window& window) override;
  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  bool PlaySound(const std::string& path, bool waits) override;
  TimeOfDay WallClock() override;
  std::string AppFolder() override;
  void SetPointer(MousePointer pointer) override;
  void SetFocus(Control& control) override;
  void Refresh(Window& window) override;
  void TimerChanged(Control& timer) override;
  void End() override;

  void Deliver(const std::function<void(Surface&)>& event, const void* subject = nullptr) override;
  bool Listens() const override;
  WindowView* Front() const override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void customEvent(QEvent* event) override;

 private:
  struct Held {
    const void* subject;
    std::function<void(Surface&)> event;
  };
  struct ReleasedEvent;

  bool HasEnded() const { return surface_ == nullptr || surface_->HasEnded(); }
  /// Tells the game of windows whose size on the screen is not what its data says, as after a list
  /// was played. A window that was minimised comes up at its normal size.
  void TellExtents();
  void OpenAndCloseWindows();
  void LoseWindow(WId id);
  void Tick(Control& timer);
  void ReleaseHeld();
  void ProcessEvents(QEventLoop::ProcessEventsFlags flags);
  void WaitForSound(std::chrono::milliseconds longest);
  int TickLength(const Control& timer) const;
  void RunIdle();

  Machine machine_;
  Surface* surface_ = nullptr;
  std::map<const Window*, std::unique_ptr<WindowView>> views_;
  std::vector<WindowView*> open_;  // on the screen
  int followed_ = 0;               // of the times that the game brought a window to the front
  std::map<const Control*, std::unique_ptr<QTimer>> timers_;
  std::vector<Held> held_;              // what came while the game was at work, in its order
  std::set<const Control*> heldTicks_;  // of timers whose time came meanwhile
  std::vector<QMessageBox*> boxes_;     // the game's, that are open
  std::function<void()> idle_;          // to be called when no handler is on the stack
  int depth_ = 0;                       // events that the game is taking
  int pace_ = 1;
  bool paused_ = false;
  bool waitsForSound_ = false;
  bool extentsTold_ = false;
  bool syncing_ = false;
  bool syncAgain_ = false;
  LostWindowWatch lostWindows_{[this](WId id) {
    const auto lose = [this, id] { LoseWindow(id); };
    QMetaObject::invokeMethod(this, lose, Qt::QueuedConnection);
  }};
};

}  // namespace zelvo
