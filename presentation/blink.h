#pragma once

#include "game/game.h"

namespace zelvo {

/// Points at `CurLot` for seven ticks: the lot twitches and a row of lights comes on, one light a
/// tick. 700 ms a tick, or 150 ms if `FastBlink` is set, which it clears. Counts in `Work` and
/// leaves it at 7, or at what cut the blink short.
void BlinkLot(Game& g);

namespace GFM {
/// A tick of the blink or of tax time.
void Timer1_Timer(Game& g);
}  // namespace GFM

}  // namespace zelvo
