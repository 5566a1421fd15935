#pragma once

#include <optional>
#include <string>
#include <vector>

#include "faces/browser/page.h"
#include "faces/timer_list.h"
#include "game/game.h"

namespace zelvo {

/// The game's door to the page, in real time. It is the only place where the game's stack is
/// suspended, and the only one where the player's input and the ticks reach the game.
class PagePlatform final : public Platform {
 public:
  /// Starts the game and plays it to the end of the program.
  void Run();

  void Yield() override;
  void YieldUntilEvent() override;
  void RunModal(Window& window) override;
  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  bool PlaySound(const std::string& path, bool waits) override;
  TimeOfDay WallClock() override;
  std::string AppFolder() override { return "."; }
  void SetPointer(MousePointer pointer) override { page_.SetPointer(pointer); }
  void SetFocus(Control& control) override { page_.Focus(control); }
  void Refresh(Window& /*window*/) override { page_.Sync(); }
  void TimerChanged(Control& timer) override;
  void End() override { page_.SyncWaiting("ended"); }

 private:
  void WaitForEvent(std::string_view waiting);
  bool RunPending();
  bool IsOpen() const;
  void Take(std::string_view input);
  void PassTime();
  std::string_view Waiting();

  std::vector<std::optional<Answer>> answers_;  // of open message boxes, innermost last
  TimerList timers_;
  double passedUntil_ = 0;  // by the page's clock
  double breathed_ = 0;     // when the page last had its turn
  Game game_{*this};
  Page page_{game_};
};

}  // namespace zelvo
