#include "player/trade.h"

#include "game/buildings.h"
#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "game/turn.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// Raises the net worth that the board shows; the next sum of the lots overwrites it.
void ShiftWorth(Game& g, Currency change) {
  ReadMoney(g, g.GFM->PNW.Caption);
  g.GFM->PNW.Caption = MoneyText(g.Money + change);
}

void CountBrandSold(Game& g) {
  for (const BuildingClass& building : buildingClasses) {
    if (building.IsRestaurant() || g.CurTag != building.playerTag) continue;
    AddToCount(g.GFM->*building.icon, -1);
    ++g.BrandSold[building.Brand()];
  }
}

}  // namespace

LoanOffer OfferLoan(Game& g) {
  PlayCue(g, Cue::TooLittleCash);
  if (g.PlayerLoan > Dollars(450'000)) return LoanOffer::Declined;
  const Answer answer =
      g.MessageBox("You don't have enough money ! Do you wish to borrow the money from the bank ?",
                   MessageStyle::YesNoQuestion, "Bank Loan");
  if (answer != Answer::Yes) return LoanOffer::Declined;
  g.Yield();
  g.ShowModal(g.BK);
  return LoanOffer::BankVisited;
}

void GFM::CMDBUY_Click(Game& g) {
  ReadMoney(g, g.GFM->PCredit.Caption);
  while (g.Money < g.LotValue[g.CurLot]) {
    if (OfferLoan(g) == LoanOffer::Declined) return;
    ReadMoney(g, g.GFM->PCredit.Caption);
  }
  g.FreshLot = g.CurLot;
  --g.OpenLots;  // also for a condemned lot
  SetLot(g, g.CurLot, g.ICF->PLAYER, "PU");
  g.GFM->PCredit.Caption = MoneyText(g.Money - g.LotValue[g.CurLot]);
  ShiftWorth(g, g.LotValue[g.CurLot]);
  g.GFM->CMDBUY.Visible = false;
  g.GFM->CMDBUILD.Visible = true;
  g.GFM->CMDSHOT.Visible = false;
  ++g.PlayerHotels;
  g.GFM->PNOH.Caption = NumberText(g.PlayerHotels);
}

void GFM::CMDSELL_Click(Game& g) {
  g.LotInsured[g.CurLot] = false;
  ReadMoney(g, g.GFM->PCredit.Caption);
  SetLot(g, g.CurLot, g.ICF->LUND, "U");
  g.Delta = g.LotValue[g.CurLot];
  if (g.FreshLot == g.CurLot) g.Delta = g.LotValue[g.CurLot].Share(0.5);
  g.GFM->PCredit.Caption = MoneyText(g.Money + g.Delta);
  ShiftWorth(g, -g.LotValue[g.CurLot]);  // the full value, also for half the refund
  PayIntoBank(g, g.LotValue[g.CurLot].Share(0.22));
  HideActions(g);
}

void GFM::CMDSHOT_Click(Game& g) {
  g.LotInsured[g.CurLot] = false;
  g.CurTag = LotTag(g, g.CurLot);
  SetLot(g, g.CurLot, g.ICF->PLAYER, "PU");
  const Currency refund = g.LotValue[g.CurLot].Share(0.6);
  g.LotValue[g.CurLot] -= refund;
  ReadMoney(g, g.GFM->PCredit.Caption);
  g.GFM->PCredit.Caption = MoneyText(g.Money + refund);
  ShiftWorth(g, -refund);
  CountBrandSold(g);
  HideActions(g);
}

}  // namespace zelvo
