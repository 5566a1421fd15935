#pragma once

#include <string>

#include "faces/scripted/virtual_time.h"
#include "surface/surface.h"

namespace zelvo {

/// A machine without a screen, whose clock is virtual. What is left open is the player: what to do
/// when the game waits for one, and what to answer.
class VirtualPlatform : public Platform {
 public:
  VirtualTime& time() { return time_; }

  void Yield() override;
  void YieldUntilEvent() override;
  void RunModal(Window& window) override;
  bool PlaySound(const std::string& /*path*/, bool /*waits*/) override { return true; }
  TimeOfDay WallClock() override { return time_.ReadWallClock(); }
  /// The same on every machine, so that a script gives the same lines everywhere.
  std::string AppFolder() override { return "."; }
  void SetPointer(MousePointer /*pointer*/) override {}
  void SetFocus(Control& /*control*/) override {}
  void Refresh(Window& /*window*/) override {}
  void TimerChanged(Control& timer) override { time_.TimerChanged(timer); }
  void End() override {}

 protected:
  /// The game waits for the player: give it one thing to do.
  virtual void WaitForPlayer() = 0;
  /// Delivers the input that was held back for a yield; true if there was any.
  virtual bool DeliverHeldInput() { return false; }
  virtual Surface& surface() = 0;

 private:
  VirtualTime time_;
};

}  // namespace zelvo
