#include "events/strike.h"

#include <algorithm>
#include <string>

#include "game/lots.h"
#include "game/money.h"
#include "game/spread.h"
#include "game/text.h"
#include "game/worth.h"
#include "player/zoning.h"
#include "presentation/blink.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

void ZoneMall(Game& g) {
  const auto tag = LotTag(g, g.CurLot);
  // On a lot that is taken, the next strike tries again.
  if (BeginsWith(tag, 'C') || BeginsWith(tag, 'P') || BeginsWith(tag, 'M') || BeginsWith(tag, 'X'))
    return;
  g.MallNext = 0;
  g.ML->keepsClearOf = &g.GFM->Image1[g.CurLot];
  g.ShowModal(g.ML);
  CheckWealth(g);
}

void CountBuildingLost(Game& g) {
  if (!EndsWith(g.CurTag, 'H')) return;
  if (BeginsWith(g.CurTag, 'P')) {
    --g.PlayerHotels;
    g.GFM->PNOH.Caption = NumberText(g.PlayerHotels);
  }
  if (BeginsWith(g.CurTag, 'C')) {
    --g.CompHotels;
    g.GFM->CNOH.Caption = NumberText(g.CompHotels);
  }
}

/// Insurance pays the whole value of the lot as it stood; a lot with a loss was not insured.
void Settle(Game& g, Control& cash, Currency loss) {
  if (loss > Currency()) return;
  AddTo(g, cash, g.Delta);
  g.GFM->LSHOW.Caption = "Insurance pays up";
}

void LoseMall(Game& g) {
  const std::string& tag = g.GFM->Image1[g.CurLot].Tag;
  if (tag != "MAP" && tag != "MAC") return;
  g.PlayerMalls = std::max(g.PlayerMalls - 1, 0);  // for a mall of either side
  ZoningReview(g, mallCleanup);
}

}  // namespace

void StrikeLot(Game& g) {
  if (g.MallNext == 1) {
    ZoneMall(g);
    return;
  }
  g.Delta = g.LotValue[g.CurLot];
  Currency loss = g.LotValue[g.CurLot];
  if (g.FireFlag && LotTag(g, g.CurLot).size() < 3) {
    g.FireFlag = false;  // a fire needs a building
    return;
  }
  Control& lot = g.GFM->Image1[g.CurLot];
  lot.Picture = g.FireFlag ? g.ICF->FIRE.Picture : g.ICF->ELEC.Picture;
  g.Yield();
  PlayCue(g, Cue::Strike);
  ++g.MallNext;

  g.CurTag = LotTag(g, g.CurLot);
  char owner = g.CurTag.empty() ? ' ' : g.CurTag.front();
  CountBuildingLost(g);
  if (BeginsWith(g.CurTag, 'M') && EndsWith(g.CurTag, 'P')) {
    owner = 'P';
    loss = g.LotValue[g.CurLot].Share(0.5);
  }
  if (g.SkillLevel <= 1 && BeginsWith(g.CurTag, 'M') && EndsWith(g.CurTag, 'C')) {
    owner = 'C';
    loss = g.LotValue[g.CurLot].Share(0.5);
  }
  std::string news = "Property was distroyed. All is lost ";
  g.GFM->LSHOW.Caption =
      (g.FireFlag ? "Fire burns building" : "Lighting Struck Lot ") + NumberText(g.CurLot);
  if (g.LotInsured[g.CurLot]) loss = Currency();
  g.LotInsured[g.CurLot] = false;
  if (owner == 'P') {
    news += " Player Loses " + MoneyText(loss);
    Settle(g, g.GFM->PCredit, loss);
  }
  if (owner == 'C') {
    news += " Computer Loses " + MoneyText(loss);
    Settle(g, g.GFM->CCredit, loss);
  }
  g.GFM->PSHOW.Caption = news;
  BlinkLot(g);

  LoseMall(g);
  SetLot(g, g.CurLot, g.ICF->LDIRT, "D");
  g.LotValue[g.CurLot] = g.LotValue[g.CurLot].Share(0.2);
  ++g.CondemnedLots;
  if (!g.FireFlag) g.StrikeMeter = 0;
  g.GFM->Image1[g.CurLot].Visible = true;
  SpreadFrom(g, "-");
  CheckWealth(g);
  g.Yield();
}

}  // namespace zelvo
