#include "computer/computer_restaurant.h"

#include "game/buildings.h"
#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "game/worth.h"
#include "player/zoning.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// Counts the buildings around `CurLot` and tells whether a restaurant belongs there. Leaves the
/// count of own hotels in `Work`, where the zoning board looks.
bool StandsAmongHotels(Game& g) {
  int playerBuildings = 0;
  int ownRestaurants = 0;
  g.Work = 0;
  for (const int neighbour : Neighbours(g.CurLot)) {
    if (!OnBoard(neighbour)) continue;
    g.Word = LotTag(g, neighbour);
    if (BeginsWith(g.Word, 'C') && EndsWith(g.Word, 'H')) ++g.Work;
    if (BeginsWith(g.Word, 'P') && EndsWith(g.Word, 'H')) ++playerBuildings;
    if (BeginsWith(g.Word, 'C') && EndsWith(g.Word, 'R')) ++ownRestaurants;
  }
  if (g.Work < 2 || ownRestaurants > 0) return false;
  return g.SkillLevel <= 1 || playerBuildings <= 1;
}

}  // namespace

void ComputerRestaurant(Game& g) {
  if (g.SkillLevel == 0) return;
  g.Refused = false;
  g.BuildCost = g.LotValue[g.CurLot] * 5;
  ReadMoney(g, g.GFM->CCredit.Caption);
  if (g.Money < g.BuildCost || !StandsAmongHotels(g)) return;
  if (g.SkillLevel == 1) {
    ZoningReview(g, plainReview);
    if (g.Refused) {
      g.Refused = false;
      return;
    }
  }
  const BuildingClass& restaurant = buildingClasses[Restaurant];
  Control& icon = g.ICF->*restaurant.computerIcon;
  SetLot(g, g.CurLot, icon, restaurant.computerTag);
  AddToCount(icon, 1);
  ++g.RestCount;
  // No spread: a restaurant of the computer moves no neighbour's value.
  CheckWealth(g);
  PlayCue(g, Cue::ComputerRestaurant);
  g.GFM->PSHOW.Caption = restaurant.news;
  g.Refused = true;
}

}  // namespace zelvo
