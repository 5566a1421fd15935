#include "events/casino.h"

#include <string>

#include "game/lots.h"
#include "game/money.h"
#include "game/spread.h"
#include "game/text.h"
#include "game/worth.h"
#include "presentation/blink.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// The bank gets its 18 per cent on top.
void PaySeller(Game& g, Control& cash) {
  AddTo(g, cash, g.Delta);
  PayIntoBank(g, g.Delta.Share(0.18));
}

bool PlayerSells(Game& g) {
  g.Word = "Current lot value is " + MoneyText(g.LotValue[g.CurLot]) + g.CrLf +
           "Casino wants to buy your property # " + NumberText(g.CurLot) +
           " Do you wish to sell it for " + MoneyText(g.Delta);
  return g.MessageBox(g.Word, MessageStyle::YesNoQuestion, "Buy out") == Answer::Yes;
}

}  // namespace

void CasinoBuy(Game& g) {
  g.CasinoMeter = 0;
  PlayCue(g, Cue::Casino);
  const std::string& tag = g.GFM->Image1[g.CurLot].Tag;
  const char owner = tag.empty() ? ' ' : tag.front();
  std::string news = "Too bad You didn't own the lot !";
  if (owner == 'P') {
    g.Delta = g.LotValue[g.CurLot] * 2;
    // The price text brings a dollar sign of its own.
    news = "You're Richer !  Player Gets $" + MoneyText(g.Delta);
    if (!PlayerSells(g)) return;
    PaySeller(g, g.GFM->PCredit);
  }
  if (owner == 'C') {
    g.Delta = g.LotValue[g.CurLot] * 2;
    news = "Computer gets Richer. Too bad You didn't own the lot !";
    PaySeller(g, g.GFM->CCredit);
  }
  g.LotValue[g.CurLot] = g.LotValue[g.CurLot] * 5;
  g.GFM->Image1[g.CurLot].Picture = g.ICF->CITY.Picture;
  g.GFM->LSHOW.Caption = "Casino Buys Lot" + NumberText(g.CurLot);
  g.GFM->PSHOW.Caption = news;
  BlinkLot(g);
  g.CasinoMeter = 0;
  g.GFM->Image1[g.CurLot].Tag = "XC";
  g.LotValue[g.CurLot] = g.LotValue[g.CurLot] * 2;
  SpreadFrom(g, "+");
  CheckWealth(g);
  g.Yield();
}

}  // namespace zelvo
