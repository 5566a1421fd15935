#include "player/inspect.h"

#include <array>
#include <string>

#include "game/buildings.h"
#include "game/lots.h"
#include "game/text.h"
#include "game/turn.h"

namespace zelvo {
namespace {

std::string Describe(const Game& g) {
  const Currency value = g.LotValue[g.CurLot];
  return "Property # " + NumberText(g.CurLot) + "-" + g.CurTag +
         (g.LotInsured[g.CurLot] ? " - Insured" : " - Not Insured") + g.CrLf +
         "Property Value is " + MoneyText(value) + g.CrLf + "Taxes are " +
         MoneyText(value.Share(0.05)) + " per year";
}

void OfferTrade(Game& g, bool sell, bool buy) {
  g.GFM->CMDSELL.Visible = sell;
  g.GFM->CMDBUY.Visible = buy;
}

/// The tests run one after the other, and a later one overrules an earlier one.
void OfferTradeFor(Game& g) {
  const PictureId picture = LotPicture(g, g.CurLot);
  if (picture == g.ICF->LUND.Picture || g.CurTag == "U") OfferTrade(g, false, false);
  if (picture == g.ICF->CITY.Picture) OfferTrade(g, false, false);
  if (picture == g.ICF->PARK.Picture) OfferTrade(g, false, false);
  if (picture == g.ICF->GOLF.Picture) OfferTrade(g, false, false);
  if (picture == g.ICF->LDIRT.Picture) OfferTrade(g, false, true);
  if (g.CurTag == "PU") OfferTrade(g, true, false);
  if (g.GFM->CMDSHOT.Visible) OfferTrade(g, true, false);
  if (picture == g.ICF->LOPEN.Picture) OfferTrade(g, false, true);
  // A mall, or a lot under a strike, is not for trade, whatever its tag says.
  for (const Control* icon : {&g.ICF->MALL, &g.ICF->ELEC, &g.ICF->FIRE, &g.ICF->PLANE}) {
    if (picture == icon->Picture) OfferTrade(g, false, false);
  }
}

/// The restaurant's multiple goes by level, the hotels' do not.
int MultipleOf(const Game& g, const BuildingClass& building) {
  static constexpr std::array<int, 4> restaurant = {3, 5, 6, 7};
  return building.IsRestaurant() ? restaurant[g.SkillLevel] : building.multiple;
}

const BuildingClass& ClassOfIcon(const Game& g, const Control& icon) {
  for (const BuildingClass& building : buildingClasses) {
    if (&(g.GFM.Untouched().*building.icon) == &icon) return building;
  }
  return buildingClasses.front();  // not reached: the table of events names the seven icons alone
}

}  // namespace

void GFM::Image1_Click(Game& g, int index) {
  g.CurLot = index;
  g.CurTag = LotTag(g, g.CurLot);
  g.GFM->PSHOW.Caption = Describe(g);
  g.GFM->CMDSHOT.Visible = false;
  if (BeginsWith(g.CurTag, 'C')) {
    HideActions(g);
    return;
  }
  if (BeginsWith(g.CurTag, 'P') && EndsWith(g.CurTag, 'H')) g.GFM->CMDSHOT.Visible = true;
  OfferTradeFor(g);
  g.GFM->CMDBUILD.Visible = g.CurTag == "PU";
}

void GFM::CMDBUILD_Click(Game& g) {
  g.GFM->BUILDIT.Visible = true;
  g.GFM->CMDSHOT.Visible = false;
  g.GFM->PSHOW.Caption = "Choose the Hotel to build By Clicking the Icon above then Click Build it";
  g.GFM->CMDBUILD.Visible = false;
  g.Word.clear();  // no choice yet: a build without one does nothing
  g.SetFocus(g.GFM->BUILDIT);
}

void GFM::ClassIcon_Click(Game& g, Control& icon) {
  if (!g.GFM->BUILDIT.Visible) return;
  const BuildingClass& building = ClassOfIcon(g, icon);
  g.GFM->LSHOW.Caption = icon.Tag + std::string(building.owned);
  g.BuildCost = g.LotValue[g.CurLot] * MultipleOf(g, building);
  g.GFM->PSHOW.Caption = std::string(building.title) + g.CrLf +
                         "Cost to Build = " + MoneyText(g.BuildCost) + g.CrLf +
                         "Yearly Taxes  = " + MoneyText(g.BuildCost * g.AssessRate);
  g.Word = building.keyword;
}

}  // namespace zelvo
