#include "game/worth.h"

#include <optional>
#include <string>

#include "game/text.h"
#include "game/turn.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

struct Winner {
  std::string name;
  Currency amount;
};

std::optional<Winner> FindWinner(const Game& g) {
  const Currency threshold = Dollars(99'999'999);
  if (g.PlayerWorth > threshold) return Winner{"Player", g.PlayerWorth};
  if (g.CompWorth > threshold) return Winner{"Computer", g.CompWorth};
  if (g.BankCash > threshold && g.BankPlays) return Winner{"The Bank", g.BankCash};
  return std::nullopt;
}

void SumWorths(Game& g) {
  g.Work = 0;
  g.PlayerWorth = Currency();
  g.CompWorth = Currency();
  for (int lot = 0; lot < lotCount; ++lot) {
    const std::string& tag = g.GFM->Image1[lot].Tag;
    if (BeginsWith(tag, 'P')) g.PlayerWorth += g.LotValue[lot];
    if (BeginsWith(tag, 'C')) g.CompWorth += g.LotValue[lot];
  }
  g.Word = g.GFM->Image1[lotCount - 1].Tag;
  g.GFM->PNW.Caption = MoneyText(g.PlayerWorth);
  g.GFM->CNW.Caption = MoneyText(g.CompWorth);
}

void Celebrate(Game& g, const Winner& winner) {
  const bool player = winner.name.front() == 'P';
  g.Word = "OVER";
  g.WINX->Label1.Caption = "Billionaire !!!";
  g.WINX->Label2.Caption = winner.name;
  g.WINX->Label3.Caption = "With " + WinnerMoneyText(winner.amount);
  g.SetPointer(MousePointer::Arrow);
  PlayCue(g, player ? Cue::PlayerWins : Cue::PlayerLoses);
  g.ShowModal(g.WINX);
  g.Word = "OVER";
  if (player) PlayCue(g, Cue::WinnerLeaves);
  // The caller's rule runs on to its end over the hidden board.
  GFM::CMDEXIT_Click(g);
}

}  // namespace

void CheckWealth(Game& g) {
  if (g.Word == "OVER") return;
  SumWorths(g);
  if (const auto winner = FindWinner(g)) Celebrate(g, *winner);
}

void WINX::CMDEXIT_Click(Game& g) {
  g.Word = "OVER";
  g.Hide(g.WINX);
}

}  // namespace zelvo
