#include "game/turn.h"

#include <algorithm>
#include <array>

#include "computer/computer_turn.h"
#include "economy/revenue.h"
#include "events/board_event.h"
#include "game/lots.h"
#include "game/money.h"
#include "game/start.h"
#include "game/text.h"
#include "game/worth.h"

namespace zelvo {
namespace {

/// The buttons that act on the lot in hand.
constexpr std::array<Member<Control, GFMWindow>, 5> actions = {
    &GFMWindow::BUILDIT, &GFMWindow::CMDBUILD, &GFMWindow::CMDSELL, &GFMWindow::CMDBUY,
    &GFMWindow::CMDSHOT};

/// Bare lots count as properties; malls and casinos count for nobody.
void CountProperties(Game& g) {
  g.PlayerHotels = 0;
  g.CompHotels = 0;
  for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
    const auto tag = LotTag(g, g.Idx);
    if (BeginsWith(tag, 'P')) ++g.PlayerHotels;
    if (BeginsWith(tag, 'C')) ++g.CompHotels;
  }
  g.Word = LotTag(g, lotCount - 1);
  g.GFM->PNOH.Caption = NumberText(g.PlayerHotels);
  g.GFM->CNOH.Caption = NumberText(g.CompHotels);
}

void DealChanceCard(Game& g) {
  ++g.ChanceWait;
  if (g.ChanceWait <= 15) return;
  ReadMoney(g, g.GFM->PCredit.Caption);
  if (g.Money < Dollars(50'000)) return;  // the wait goes on, and so does the count
  g.ShowModal(g.CHN);
  g.ChanceWait = 0;
}

}  // namespace

void StartPlayerTurn(Game& g) {
  CountProperties(g);
  g.Yield();
  g.GFM->PUP.Visible = true;
  g.GFM->CUP.Visible = false;
  g.GFM->PSHOW.Caption = "Player" + g.CrLf + "Choose Purchased or open lot to build or buy";
  g.Turn = "P";
  BoardEvent(g);
  g.GFM->CMDGO.Visible = true;
  g.GFM->Label8.Visible = true;
  DealChanceCard(g);
}

void YearTick(Game& g) {
  ++g.YearTurn;
  if (g.YearTurn != 6 && g.YearTurn != 12 && g.YearTurn != 18 && g.YearTurn != 24) return;
  if (g.YearTurn == 24) g.YearTurn = 0;
  g.ShowModal(g.TT);
  CheckWealth(g);
  PayRevenue(g);
}

void HideActions(Game& g) {
  for (const auto action : actions) (g.GFM->*action).Visible = false;
}

const Control* Game::InHand(const Window& window) const {
  const GFMWindow& board = GFM.Untouched();
  if (&window != &board) return window.inHand;
  const bool act = std::any_of(actions.begin(), actions.end(),
                               [&](auto action) { return (board.*action).Visible; });
  return act ? &board.Image1[CurLot] : window.inHand;
}

void GFM::CMDGO_Click(Game& g) {
  g.GFM->CMDGO.Visible = false;
  g.GFM->Label8.Visible = false;
  // Tax time shows the button again ahead of the computer's half of the turn; a click on it there
  // goes no further than this.
  if (g.Turn == "C") return;
  g.Yield();
  ++g.TurnNo;
  YearTick(g);
  HideActions(g);
  g.Turn = "C";
  BoardEvent(g);
  ComputerTurn(g);
  g.Turn = "P";
  StartPlayerTurn(g);
}

void GFM::CMDEXIT_Click(Game& g) {
  g.Hide(g.GFM);
  g.Word = "OVER";
}

void GFM::CMDHELP_Click(Game& g) { g.ShowModal(g.ICF); }

void GFM::Label1_Click(Game& g) {
  g.SkillLevel = g.SkillLevel >= 3 ? 0 : g.SkillLevel + 1;
  ShowLevel(g);
}

void GFM::Label8_Click(Game& g) { g.ShowModal(g.BK); }

void GFM::BANKLABEL_Click(Game& g) {
  if (g.GFM->Label8.Visible) g.ShowModal(g.BK);
}

}  // namespace zelvo
