#include "economy/revenue.h"

#include <array>
#include <string_view>

#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"

namespace zelvo {
namespace {

using Tags = std::array<std::string_view, 7>;

// The order is that of the scan; the last one is the restaurant.
constexpr Tags playerTags = {"PSH", "PTH", "PQH", "PBH", "PRH", "PHH", "PDH"};
constexpr Tags computerTags = {"CSH", "CTH", "CQH", "CBH", "CRH", "CHH", "CDR"};

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

/// The income of a lot. The better rate is a floating number and no money value.
Currency Income(const Game& g, int lot, bool better) {
  if (!better) return g.LotValue[lot] * g.AssessRate;
  const double rate = static_cast<double>(g.AssessRate.counts()) / 10'000.0 * 1.5;
  return g.LotValue[lot].Share(rate);
}

/// Adds up the income of the buildings with these tags in `Tally`, and counts the restaurants.
void SumIncome(Game& g, const Tags& tags, bool better) {
  g.OwnerTags.fill("");
  for (std::size_t i = 0; i < tags.size(); ++i) g.OwnerTags[i + 1] = tags[i];
  for (const std::string_view earning : tags) {
    for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
      if (LotTag(g, g.Idx) != earning) continue;
      g.Money = Income(g, g.Idx, better);
      g.Tally += g.Money;
      if (earning == tags.back()) ++g.RestCount;
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
  ClearSums(g);
  g.RestCount = 0;
  SumIncome(g, playerTags, better.player);
  PayOut(g, g.GFM->PCredit);
  PayIntoBank(g, g.Tally.Share(g.BankPlays ? 0.18 : 0.12));  // on top; the player gets it all
  ClearSums(g);
  SumIncome(g, computerTags, better.computer);
  PayOut(g, g.GFM->CCredit);
}

}  // namespace zelvo
