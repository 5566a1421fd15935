#include "events/plane_crash.h"

#include "game/lots.h"
#include "game/text.h"
#include "game/worth.h"
#include "presentation/blink.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// Takes three quarters of the lot's value and condemns it.
void Flatten(Game& g, int lot) {
  g.Tally = g.LotValue[lot].Share(0.75);
  g.LotValue[lot] -= g.Tally;
  SetLot(g, lot, g.ICF->LDIRT, "D");
}

}  // namespace

void PlaneCrash(Game& g) {
  g.PlaneMeter = 0;
  g.Yield();
  Currency totalLoss = g.LotValue[g.CurLot];
  g.GFM->Image1[g.CurLot].Picture = g.ICF->PLANE.Picture;
  PlayCue(g, Cue::PlaneCrash);
  PlayCue(g, Cue::PlaneSiren);
  g.Yield();
  g.GFM->LSHOW.Caption = "Plane Crash !! " + NumberText(g.CurLot);
  g.LotInsured[g.CurLot] = false;
  for (const int neighbour : Neighbours(g.CurLot)) {
    if (!OnBoard(neighbour) || g.LotInsured[neighbour]) continue;
    totalLoss += g.LotValue[neighbour];
    Flatten(g, neighbour);
  }
  g.GFM->PSHOW.Caption = "Properties were distroyed. Total Loss " + MoneyText(totalLoss);
  BlinkLot(g);
  g.CondemnedLots += 5;  // however many neighbours were hit
  g.PlaneMeter = 0;
  Flatten(g, g.CurLot);
  g.Yield();
  g.SpreadDue = false;
  CheckWealth(g);
  g.Yield();
}

}  // namespace zelvo
