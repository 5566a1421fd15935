#include "game/spread.h"

#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "game/worth.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// The owner's share of a raised lot; a spread that lowers takes no cash from anybody.
void PayOwner(Game& g, Control& cash, int lot) {
  if (g.ValueSign == "-") return;
  g.Money += g.LotValue[lot].Share(0.05);
  cash.Caption = MoneyText(g.Money);
}

void SpreadTo(Game& g, int lot) {
  const Currency floor = Dollars(10'000);
  if (g.ValueSign == "+") g.LotValue[lot] += g.Delta;
  if (g.ValueSign == "-") g.LotValue[lot] -= g.Delta;
  if (g.LotValue[lot] < floor) g.LotValue[lot] = floor;

  g.Word = LotTag(g, lot);
  if (BeginsWith(g.Word, 'P')) {
    ReadMoney(g, g.GFM->PCredit.Caption);
    PlayCue(g, Cue::NeighbourMoved);
    PayOwner(g, g.GFM->PCredit, lot);
  } else if (BeginsWith(g.Word, 'C')) {
    ReadMoney(g, g.GFM->CCredit.Caption);
    PayOwner(g, g.GFM->CCredit, lot);
  }
}

}  // namespace

void SpreadValue(Game& g) {
  if (g.Turn < "A" || !g.SpreadDue) return;
  g.GFM->CMDGO.Visible = false;
  g.GFM->Label8.Visible = false;
  // A condemned lot always lowers its neighbours, whatever the caller asked.
  if (LotPicture(g, g.CurLot) == g.ICF->LDIRT.Picture) g.ValueSign = "-";
  g.Idx = 0;
  for (const int neighbour : Neighbours(g.CurLot)) {
    if (OnBoard(neighbour)) SpreadTo(g, neighbour);
  }
  CheckWealth(g);
  g.SpreadDue = false;
  if (g.Turn == "P") {
    g.GFM->CMDGO.Visible = true;
    g.GFM->Label8.Visible = true;
  }
  g.ValueSign.clear();
}

void SpreadFrom(Game& g, const char* valueSign) {
  g.SpreadDue = true;
  g.ValueSign = valueSign;
  SpreadValue(g);
}

}  // namespace zelvo
