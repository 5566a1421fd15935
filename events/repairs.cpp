#include "events/repairs.h"

#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "presentation/blink.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// Takes the cost from the owner's cash, if at least a dollar is left.
bool OwnerPays(Game& g, Control& cash, Currency cost) {
  ReadMoney(g, cash.Caption);
  g.Delta = g.Money - cost;
  if (g.Delta < Dollars(1)) return false;
  cash.Caption = MoneyText(g.Delta);
  return true;
}

void PayBankForRuin(Game& g) { PayIntoBank(g, g.LotValue[g.CurLot].Share(0.7)); }

void KeepRest(Game& g) {
  g.Money = g.LotValue[g.CurLot].Share(0.3);
  g.LotValue[g.CurLot] = g.Money;
}

void ShowBill(Game& g) {
  g.SV->Label1.Caption = g.Word;
  g.SV->keepsClearOf = &g.GFM->Image1[g.CurLot];
  g.ShowModal(g.SV);
}

void RepairPlayers(Game& g, Currency cost) {
  g.Word = "Property Repairs on Lot # " + NumberText(g.CurLot) + g.CrLf +
           "Repairs to your property are needed. This will cost you " + MoneyText(cost);
  ShowBill(g);
  if (OwnerPays(g, g.GFM->PCredit, cost)) return;
  PlayCue(g, Cue::CannotPayRepairs);
  g.Word = "You don't have enough money ! The building is comdemed !";
  ShowBill(g);
  SetLot(g, g.CurLot, g.ICF->PLAYER, "PU");
  PayBankForRuin(g);
  KeepRest(g);
  g.Yield();
}

void RepairComputers(Game& g, Currency cost) {
  if (OwnerPays(g, g.GFM->CCredit, cost)) return;
  g.GFM->PSHOW.Caption = "Computer building # " + NumberText(g.CurLot) + " was condemed";
  g.MessageBox(g.GFM->PSHOW.Caption, MessageStyle::Ok);
  SetLot(g, g.CurLot, g.ICF->COMP, "CU");
  PayBankForRuin(g);
  g.Yield();
  KeepRest(g);
  BlinkLot(g);
  g.Work = 1;
}

}  // namespace

void RepairLot(Game& g) {
  const auto tag = LotTag(g, g.CurLot);
  if (!EndsWith(tag, 'H')) return;
  const Currency cost = g.LotValue[g.CurLot].Share(0.2);
  if (BeginsWith(tag, 'P')) {
    RepairPlayers(g, cost);
  } else {
    RepairComputers(g, cost);
  }
}

void SV::Form_Activate(Game& g) {
  g.Work = 0;
  g.RepairDue = true;
  BlinkLot(g);
  g.RepairDue = false;
}

void SV::CMDOK_Click(Game& g) {
  g.Work = 9;  // above the last tick, so that the blink is cut short
  g.GFM->Image1[g.CurLot].Visible = true;
  g.Yield();
  g.Hide(g.SV);
}

}  // namespace zelvo
