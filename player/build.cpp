#include "player/build.h"

#include <array>
#include <string>

#include "game/buildings.h"
#include "game/lots.h"
#include "game/money.h"
#include "game/spread.h"
#include "game/text.h"
#include "game/worth.h"
#include "player/trade.h"
#include "player/zoning.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// The insurance premium as a share of the building's cost, by level.
constexpr std::array<double, 4> premiumShare = {0.1, 0.2, 0.25, 0.3};

/// True once the cash in `Money` covers the building; false if the player gives up on it.
bool HasCash(Game& g, const std::string& choice) {
  g.SetPointer(MousePointer::Arrow);
  ReadMoney(g, g.GFM->PCredit.Caption);
  while (g.Money < g.BuildCost) {
    if (OfferLoan(g) == LoanOffer::Declined) return false;
    g.Word = choice;  // the bank uses `Word` for its own ends
    g.SetPointer(MousePointer::Arrow);
    ReadMoney(g, g.GFM->PCredit.Caption);
  }
  return true;
}

/// Puts the question of insurance. Afterwards `Refused` tells the answer, or `Word` is "CANCEL".
void AskForInsurance(Game& g, Currency premium) {
  const bool affordable = g.BuildCost + premium <= g.Money;
  g.HS->Label1[3].Caption = "Insurance Cost " + MoneyText(premium);
  g.HS->CMDAN1[0].Visible = affordable;
  g.HS->Label1[5].Caption = "Total: " + MoneyText(g.BuildCost + premium);
  g.Refused = false;
  g.HS->Label1[1].Caption = "Total Properties owned : " + NumberText(g.PlayerHotels);
  g.HS->Label1[2].Caption = Trimmed(g.GFM->LSHOW.Caption);
  g.HS->Label1[4].Caption = affordable ? "" : "Not enough money for insurance";
  g.ShowModal(g.HS);
}

/// Pays for the building; the lot's value grows by all that was paid, the premium included.
void Pay(Game& g) {
  PlayCue(g, Cue::BuildingPaid);
  g.GFM->PCredit.Caption = MoneyText(g.Money - g.BuildCost);
  ++g.PlayerHotels;
  g.GFM->PNOH.Caption = NumberText(g.PlayerHotels);
  g.LotValue[g.CurLot] += g.BuildCost;
  ReadMoney(g, g.GFM->PNW.Caption);
  g.WorkWorth = g.Money + g.BuildCost;
  g.GFM->PNW.Caption = MoneyText(g.WorkWorth);
}

void PutUp(Game& g, const BuildingClass& building) {
  Control& icon = g.GFM->*building.icon;
  SetLot(g, g.CurLot, icon, building.playerTag);
  AddToCount(icon, 1);
  if (!building.IsRestaurant()) return;
  g.Word = "REST";
  ++g.RestCount;
  g.Delta = g.LotValue[g.CurLot].Share(0.1);  // the building's cost counts
  SpreadFrom(g, "+");
  CheckWealth(g);
  g.Yield();
}

/// Closes the choice, and sends in the builder's lawyers after too many cancellations.
void CloseChoice(Game& g) {
  g.Word.clear();
  g.GFM->BUILDIT.Visible = false;
  g.GFM->CMDBUILD.Visible = false;
  g.GFM->CMDSELL.Visible = false;
  g.GFM->CMDBUY.Visible = false;
  g.Ruling = 0;
  g.Refused = false;  // a declined insurance must not reach the computer's turn
  if (g.CancelledBuilds > 4) g.ShowModal(g.CHN);
}

}  // namespace

void GFM::BUILDIT_Click(Game& g) {
  const std::string choice = g.Word;
  const BuildingClass* building = ClassOfKeyword(choice);
  if (building == nullptr || !HasCash(g, choice)) return;
  ZoningReview(g, plainReview);
  if (g.Refused) {
    g.Refused = false;
    return;
  }
  ReadMoney(g, g.GFM->PCredit.Caption);
  const Currency premium = g.BuildCost.Share(premiumShare[g.SkillLevel]);
  AskForInsurance(g, premium);
  if (g.Word != "CANCEL") {
    if (!g.Refused) g.BuildCost += premium;
    g.LotInsured[g.CurLot] = !g.Refused;
    Pay(g);
    g.Word = choice;
    PutUp(g, *building);
  }
  CloseChoice(g);
}

void HS::Form_Activate(Game& g) {
  // The zoning board leaves the hourglass up when it lets a plan pass.
  g.SetPointer(MousePointer::Arrow);
}

void HS::CMDAN1_Click(Game& g, int index) {
  g.Refused = index == 1;
  g.SetPointer(MousePointer::Arrow);
  g.Hide(g.HS);
}

void HS::CMDCANCEL_Click(Game& g) {
  ++g.CancelledBuilds;
  g.Word = "CANCEL";
  g.SetPointer(MousePointer::Arrow);
  g.Hide(g.HS);
}

}  // namespace zelvo
