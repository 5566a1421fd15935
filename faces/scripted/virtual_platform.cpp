#include "faces/scripted/virtual_platform.h"

namespace zelvo {

void VirtualPlatform::Yield() {
  DeliverHeldInput();
  while (Control* timer = time_.NextTick(0)) surface().Tick(*timer);
}

void VirtualPlatform::YieldUntilEvent() {
  bool happened = DeliverHeldInput();
  while (Control* timer = time_.NextTick(0)) {
    surface().Tick(*timer);
    happened = true;
  }
  if (happened) return;
  if (Control* timer = time_.NextTickWhenever()) surface().Tick(*timer);
}

void VirtualPlatform::RunModal(Window& window) {
  while (window.IsShown() && !surface().HasEnded()) WaitForPlayer();
}

}  // namespace zelvo
