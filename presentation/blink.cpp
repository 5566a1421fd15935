#include "presentation/blink.h"

namespace zelvo {

void BlinkLot(Game& g) {
  constexpr int ticks = 7;
  g.Work = 0;
  g.GFM->Timer1.SetInterval(g.FastBlink ? 150 : 700);
  g.GFM->Timer1.SetEnabled(true);
  while (g.Work < ticks && g.WillTick(g.GFM->Timer1)) {
    g.YieldUntilEvent();
    if (g.Work >= 1 && g.Work <= 6) g.GFM->LITE[g.Work].Visible = true;
    g.GFM->Image1[g.CurLot].Visible = true;
  }
  if (g.Work < ticks) g.Work = ticks;
  g.GFM->Timer1.SetEnabled(false);
  for (int light = 1; light <= 6; ++light) g.GFM->LITE[light].Visible = false;
  // What ran inside the blink may have moved `CurLot` after a tick; no lot stays hidden for that.
  for (Control& lot : g.GFM->Image1) lot.Visible = true;
  g.FastBlink = false;
}

void GFM::Timer1_Timer(Game& g) {
  ++g.Work;
  g.GFM->Image1[g.CurLot].Visible = false;
}

}  // namespace zelvo
