#include "events/mall.h"

#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "presentation/blink.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// A mall stands at five times the price of the investment.
void RaiseMall(Game& g, const char* tag) {
  --g.OpenLots;
  SetLot(g, g.CurLot, g.ICF->MALL, tag);
  g.LotValue[g.CurLot] = g.LotValue[g.CurLot] * 5;
}

void PlayerInvests(Game& g) {
  g.Money -= g.LotValue[g.CurLot];
  g.GFM->PCredit.Caption = MoneyText(g.Money);
  ++g.PlayerMalls;
  RaiseMall(g, "MAP");
}

void ComputerInvests(Game& g) {
  g.Delta = g.Money - g.LotValue[g.CurLot];
  g.GFM->CCredit.Caption = MoneyText(g.Delta);
  PlayCue(g, Cue::ComputerInvests);
  g.MessageBox("Computer invested in mall", MessageStyle::OkExclamation);
  RaiseMall(g, "MAC");
}

void ComputerDecides(Game& g) {
  if (g.SkillLevel == 0) return;
  if (g.SkillLevel == 3) {
    RaiseMall(g, "MAC");  // and pays nothing
    return;
  }
  ReadMoney(g, g.GFM->CCredit.Caption);
  // Cash that just equals the price does nothing at all.
  if (g.Money == g.LotValue[g.CurLot]) return;
  if (g.Money < g.LotValue[g.CurLot]) {
    RaiseMall(g, "MAX");
  } else {
    ComputerInvests(g);
  }
}

/// True if the player took the offer and could pay.
bool PlayerTakes(Game& g) {
  g.Money = Currency();
  ReadMoney(g, g.GFM->PCredit.Caption);
  if (g.Money >= g.LotValue[g.CurLot]) {
    PlayerInvests(g);
    return true;
  }
  PlayCue(g, Cue::TooLittleCash);
  g.MessageBox("You Don't have enough Money !", MessageStyle::OkExclamation, "Get lost");
  return false;
}

}  // namespace

void ML::Form_Activate(Game& g) {
  g.GFM->Image1[g.CurLot].Picture = g.ICF->MALL.Picture;
  g.ML->Image1.Picture = g.ICF->MALL.Picture;
  g.LotValue[g.CurLot] = g.LotValue[g.CurLot] * 2;
  g.Money = g.LotValue[g.CurLot];
  g.ML->Label2.Caption =
      "This property has been zone for a Mall. You have first dibs on investing. The investment "
      "is " +
      MoneyText(g.Money) +
      ", you will have a 50% share in the Mall and it's profit and loss. Do you wish to invest ?";
  g.Work = 0;
  PlayCue(g, Cue::Mall);
  BlinkLot(g);
}

void ML::CMD1_Click(Game& g, int index) {
  if (index == 1 || !PlayerTakes(g)) ComputerDecides(g);
  PayIntoBank(g, g.LotValue[g.CurLot].Share(0.22));
  g.Hide(g.ML);
}

}  // namespace zelvo
