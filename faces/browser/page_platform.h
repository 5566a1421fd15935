#pragma once

#include <optional>
#include <string>
#include <vector>

#include "faces/browser/page.h"
#include "faces/timer_list.h"
#include "surface/surface.h"

namespace zelvo {

/// The game's door to the page, in real time. It is the only place where the game's stack is
/// suspended, and the only one where the player's input and the ticks reach the game.
class PagePlatform : public Platform {
 public:
  void Yield() override;
  void YieldUntilEvent() override;
  void RunModal(Window& window) override;
  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  bool PlaySound(const std::string& path, bool waits) override;
  TimeOfDay WallClock() override;
  std::string AppFolder() override { return "."; }
  void SetPointer(MousePointer pointer) override { page_->SetPointer(pointer); }
  void SetFocus(Control& control) override { page_->Focus(control); }
  void Refresh(Window& /*window*/) override { page_->Sync(); }
  void TimerChanged(Control& timer) override;
  void End() override { page_->SyncWaiting("ended"); }

 protected:
  /// Ties the page to a game. A further one has to stand in the very place of the first.
  void Attach(Surface& surface);
  Page& page() { return *page_; }

  /// Runs what is pending, and if that is nothing, sleeps until something is.
  void WaitForEvent(std::string_view waiting);
  std::string_view Waiting();

  /// Called whenever the game comes to wait.
  virtual void GameWaits() = 0;
  /// Carries out an input that is meant for the game as a whole; false if it is another.
  virtual bool CarryOut(std::string_view command) = 0;

 private:
  bool RunPending();
  bool IsOpen() const;
  void Take(std::string_view input);
  void PassTime();

  std::vector<std::optional<Answer>> answers_;  // of open message boxes, innermost last
  TimerList timers_;
  double passedUntil_ = 0;  // by the page's clock
  double breathed_ = 0;     // when the page last had its turn
  Surface* surface_ = nullptr;
  std::optional<Page> page_;
};

}  // namespace zelvo
