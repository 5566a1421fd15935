#include "economy/revenue.h"

#include <string_view>

#include "game/buildings.h"
#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"

namespace zelvo {
namespace {

/// A side's rate for one payment. The better rate is a floating number and no money value.
struct Rate {
  Currency plain;
  bool better = false;

  Currency Of(Currency value) const {
    if (!better) return value * plain;
    return value.Share(static_cast<double>(plain.counts()) / 10'000.0 * 1.5);
  }
};

/// Which side, if any, earns at the better rate.
struct BetterRate {
  bool player = false;
  bool computer = false;
};

BetterRate FindBetterRate(Game& g) {
  const Currency farBehind = Dollars(5'000'000);
  if (g.SkillLevel != 0) {
    g.Delta = g.PlayerWorth - g.CompWorth;
    if (g.Delta > farBehind) return {.computer = true};
    if (g.SkillLevel > 1) return {};
  }
  g.Delta = g.CompWorth - g.PlayerWorth;
  return {.player = g.Delta > farBehind};
}

/// Adds up the income of a side's buildings, which have these tags, in `Tally`, and counts the
/// restaurants.
void SumIncome(Game& g, Member<std::string_view, BuildingClass> sideTag, const Rate& rate) {
  g.OwnerTags.fill("");
  for (const BuildingClass& earning : buildingClasses) {
    g.OwnerTags[earning.building + 1] = earning.*sideTag;
  }
  for (const BuildingClass& earning : buildingClasses) {
    for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
      if (LotTag(g, g.Idx) != earning.*sideTag) continue;
      g.Money = rate.Of(g.LotValue[g.Idx]);
      g.Tally += g.Money;
      if (earning.IsRestaurant()) ++g.RestCount;
    }
  }
  g.CurTag = LotTag(g, lotCount - 1);
}

void PayOut(Game& g, Control& cash) {
  ReadMoney(g, cash.Caption);
  g.Delta = g.Tally + g.Money;
  cash.Caption = MoneyText(g.Delta);
}

void ClearSums(Game& g) {
  g.Tally = Currency();
  g.Money = Currency();
  g.Delta = Currency();
}

}  // namespace

void PayRevenue(Game& g) {
  g.Yield();
  const BetterRate better = FindBetterRate(g);
  const Rate playerRate{g.AssessRate, better.player};
  const Rate computerRate{g.AssessRate, better.computer};
  ClearSums(g);
  g.RestCount = 0;
  SumIncome(g, &BuildingClass::playerTag, playerRate);
  PayOut(g, g.GFM->PCredit);
  PayIntoBank(g, g.Tally.Share(g.BankPlays ? 0.18 : 0.12));  // on top; the player gets it all
  ClearSums(g);
  SumIncome(g, &BuildingClass::computerTag, computerRate);
  PayOut(g, g.GFM->CCredit);
}

}  // namespace zelvo
