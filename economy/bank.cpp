#include "economy/bank.h"

#include "game/money.h"
#include "game/text.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

void StartShow(Game& g) {
  g.Work = 0;
  g.Word.clear();
  g.BK->Timer1.SetEnabled(true);
}

void WaitForTick(Game& g) {
  while (g.Word.empty() && g.WillTick(g.BK->Timer1)) g.YieldUntilEvent();
}

/// One loop over the five pictures, with the cue at the picture of that number. An offer keeps the
/// buttons shut while it runs.
void RunShow(Game& g, Cue cue, int cueAt, bool buttonsShut) {
  do {
    if (buttonsShut) {
      g.BK->CMDOK.SetEnabled(false);
      g.BK->CMDCANCEL.SetEnabled(false);
    }
    g.BK->ImageN.Picture = g.BK->Image1[g.Work].Picture;
    ++g.Work;
    if (g.Work == cueAt) PlayCue(g, cue);
    WaitForTick(g);
    g.Word.clear();
  } while (g.Work >= 0 && g.Work <= 4);
  g.BK->Timer1.SetEnabled(false);
  g.BK->ImageN.Picture = g.BK->Image1[0].Picture;
}

void Refuse(Game& g) {
  StartShow(g);
  g.BK->CMDOK.SetEnabled(false);
  g.BK->CMDCANCEL.SetEnabled(true);
  g.BK->Label1.Caption = "NO Loan, You have borrowed enough ! Beat it !";
  RunShow(g, Cue::LoanRefusal, 2, false);
}

void Offer(Game& g) {
  for (Control& option : g.BK->OPT1) option.SetValue(false);
  StartShow(g);
  RunShow(g, Cue::LoanOffer, 1, true);
  g.BK->CMDOK.SetEnabled(true);
  g.BK->CMDCANCEL.SetEnabled(true);
}

}  // namespace

void BK::Form_Activate(Game& g) {
  g.LoanAmount = Currency();
  g.BK->Label1.Caption = "I think we can arrange that";
  g.BK->Label2.Caption = "Current loan : " + MoneyText(g.PlayerLoan);
  g.BK->CMDOK.SetEnabled(true);
  if (g.PlayerLoan > Dollars(499'000)) {
    Refuse(g);
  } else {
    Offer(g);
  }
}

void BK::OPT1_Click(Game& g, int index) {
  g.LoanAmount = Dollars(100'000) * (index + 1);
  g.BK->Label1.Caption = "Current interest rate is " + NumberText(g.AssessRate) + "%";
}

void BK::CMDOK_Click(Game& g) {
  if (g.LoanAmount > Dollars(500'000) || g.LoanAmount < Dollars(100'000)) return;
  AddTo(g, g.GFM->PCredit, g.LoanAmount);
  g.PlayerLoan += g.LoanAmount;
  g.LoanAmount = Currency();
  g.Hide(g.BK);
}

void BK::CMDCANCEL_Click(Game& g) {
  g.LoanAmount = Currency();
  g.Hide(g.BK);
}

void BK::Timer1_Timer(Game& g) { g.Word = "A"; }

}  // namespace zelvo
