#include "economy/tax_time.h"

#include <array>
#include <string_view>

#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// A rate of exactly 0.1 stands; one above it starts over, and does not fall to 0.1.
void BoundRate(Game& g) {
  const Currency lowest = Currency::FromCounts(400);
  const Currency highest = Currency::FromCounts(1'000);
  if (g.AssessRate > highest) g.AssessRate = lowest;
  if (g.AssessRate < lowest) g.AssessRate = lowest;
}

void GrowValues(Game& g) {
  for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
    g.LotValue[g.Idx] += g.LotValue[g.Idx] * g.AssessRate;
  }
  g.AssessRate += Currency::FromCounts(100);
}

/// The part of the loan that is due, taken off the loan. On the Easy level the share is the rate
/// of assessment, a money value.
Currency LoanPayment(Game& g) {
  static constexpr std::array<double, 4> share = {0, 0.1, 0.15, 0.2};
  if (g.PlayerLoan <= Currency()) return {};
  const Currency payment =
      g.SkillLevel == 0 ? g.PlayerLoan * g.AssessRate : g.PlayerLoan.Share(share[g.SkillLevel]);
  g.PlayerLoan -= payment;
  return payment;
}

struct Taxes {
  Currency player;
  Currency computer;
};

/// Bare lots are taxed like buildings; malls and casinos on nobody.
Taxes SumTaxes(Game& g) {
  Taxes taxes;
  for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
    const auto tag = LotTag(g, g.Idx);
    if (BeginsWith(tag, 'C')) taxes.computer += g.LotValue[g.Idx] * g.AssessRate;
    if (BeginsWith(tag, 'P')) taxes.player += g.LotValue[g.Idx] * g.AssessRate;
  }
  g.CurTag = LotTag(g, lotCount - 1);
  return taxes;
}

void TaxTime(Game& g) {
  static constexpr std::array<double, 4> interestRate = {0.05, 0.12, 0.18, 0.22};
  const Currency payment = LoanPayment(g);
  const Currency interest = payment.Share(interestRate[g.SkillLevel]);
  if (g.PlayerLoan < Currency()) g.PlayerLoan = Currency();
  g.AssessCount = 0;
  g.TT->Label1.Caption = "Tax Time";
  g.TT->Label2.Caption = "Calculating Taxes and Bank loan payments";
  const Taxes taxes = SumTaxes(g);

  const Currency due = taxes.player + payment + interest;
  TakeFrom(g, g.GFM->PCredit, due);
  g.Refresh(g.GFM);
  PayIntoBank(g, due);
  TakeFrom(g, g.GFM->CCredit, taxes.computer);
  g.Money = Currency();
  g.Refresh(g.GFM);
  PayIntoBank(g, taxes.computer);
}

Currency DividendOf(Game& g, std::string_view mallTag) {
  Currency sum;
  for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
    if (LotTag(g, g.Idx) == mallTag) sum += g.LotValue[g.Idx];
  }
  return sum.Share(0.1);
}

void Credit(Game& g, Control& cash, Currency amount) {
  AddTo(g, cash, amount);
  g.Refresh(g.GFM);
}

/// The computer's malls pay only while the player has one.
void PayDividends(Game& g) {
  Currency computers;
  if (g.PlayerMalls > 0) {
    const Currency players = DividendOf(g, "MAP");
    computers = DividendOf(g, "MAC");
    g.TT->Label2.Caption = "Your Mall investments netted you " + MoneyText(players);
    PayIntoBank(g, players.Share(g.BankPlays ? 0.18 : 0.12));  // on top
    g.Yield();
    Credit(g, g.GFM->PCredit, players);
    PlayCue(g, Cue::DividendPaid);
  }
  if (g.SkillLevel > 0) Credit(g, g.GFM->CCredit, computers);
}

void CountToFive(Game& g) {
  constexpr int ticks = 5;
  g.Work = 0;
  g.GFM->Timer1.SetInterval(550);
  g.GFM->Timer1.SetEnabled(true);
  while (g.Work < ticks && g.WillTick(g.GFM->Timer1)) {
    g.TT->XSHOW.Caption = NumberText(g.Work);
    g.YieldUntilEvent();
  }
  if (g.Work < ticks) g.Work = ticks;
  g.GFM->Image1[g.CurLot].Visible = true;
  g.GFM->Timer1.SetEnabled(false);
}

}  // namespace

void TT::Form_Activate(Game& g) {
  g.GFM->CMDGO.Visible = false;
  g.TT->Image1.Picture = g.ICF->IRS.Picture;
  ++g.AssessCount;
  BoundRate(g);
  g.TT->Label1.Caption = "Property Assessment";
  g.TT->Label2.Caption = "Calculating Property Values and revenue";
  GrowValues(g);
  if (g.AssessCount == 4) TaxTime(g);
  g.Yield();
  if (g.AssessCount == 1) PayDividends(g);
  CountToFive(g);
  if (g.Turn == "P") g.GFM->CMDGO.Visible = true;
  g.Hide(g.TT);
}

}  // namespace zelvo
