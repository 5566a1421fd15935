#include "computer/computer_turn.h"

#include <array>
#include <string>

#include "computer/computer_restaurant.h"
#include "game/buildings.h"
#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "player/zoning.h"
#include "presentation/blink.h"

namespace zelvo {
namespace {

struct Skill {
  double price;      // what the computer pays of the plain cost
  double remainder;  // what it does not pay and the lot gains all the same
  double premium;    // of the lot's value
};

constexpr std::array<Skill, 4> skills = {
    {{1.5, 0.0, 0.3}, {0.9, 0.1, 0.2}, {0.75, 0.25, 0.15}, {0.6, 0.4, 0.1}}};

/// The working figures of one turn. `Money` is not always the cash: after a purchase it is the net
/// worth, after a sell-off a quarter of a lot, until cash is read again.
struct Selections {
  Game& g;
  int number = 1;
  bool buyFirst = false;  // skips the scan of own lots
  int openFrom = 0;
  bool upward = false;  // the way of the scans of own and condemned lots
  Currency remainder = {};

  void Begin();
  bool NextSelection();
  bool Select();
  void SellOff();
  bool ScanFor(const Control& icon);
  bool ScanOpenLots();
  void Buy();
  void Build();
  const BuildingClass* AffordableClass();
  bool PutUp(const BuildingClass& building);
  void Pay();
  void Blink() const;
};

void ReadCash(Game& g) { ReadMoney(g, g.GFM->CCredit.Caption); }

void Selections::Begin() {
  g.GFM->CMDGO.Visible = false;
  g.GFM->Label8.Visible = false;
  g.Yield();
  g.SetPointer(MousePointer::Hourglass);
  openFrom = g.CurLot + 1;
  if (!OnBoard(openFrom)) openFrom = 1;
  upward = openFrom < lotCount / 2;

  g.CompBareLots = 0;
  g.CompHotels = 0;
  for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
    if (LotPicture(g, g.Idx) == g.ICF->COMP.Picture) ++g.CompBareLots;
    if (BeginsWith(LotTag(g, g.Idx), 'C')) ++g.CompHotels;
  }
  g.Word = LotTag(g, lotCount - 1);
  g.GFM->CNOH.Caption = NumberText(g.CompHotels);
  ReadCash(g);
}

/// Runs a selection; false when the turn ends.
bool Selections::NextSelection() {
  if (!Select()) return false;
  ++number;
  if (number > 4) return false;
  ReadCash(g);
  if (g.Money < Dollars(12'000)) return false;
  openFrom = 1;
  return true;
}

/// False if the turn ends in the middle of it.
bool Selections::Select() {
  g.GFM->CUP.Visible = true;
  g.GFM->PUP.Visible = false;
  g.GFM->PSHOW.Caption =
      "Computer" + g.CrLf + "Computer making Selection " + NumberText(number) + " now";
  g.Turn = "C";
  if (g.MallNext == 1 && g.StrikeMeter > 6) return false;
  if (g.Money < Dollars(125'000) && g.CompBareLots > 6) SellOff();
  if (g.Money < Dollars(12'000)) return false;
  if (g.Money < Dollars(50'000)) buyFirst = true;

  if (!buyFirst) {
    if (ScanFor(g.ICF->COMP)) {
      Build();
      return true;
    }
    buyFirst = true;
  }
  if (!ScanFor(g.ICF->LDIRT)) {
    if (g.Money < Dollars(50'000)) return true;
    if (!ScanOpenLots()) {
      number = 5;  // nothing left to look for in this turn
      return true;
    }
  }
  Buy();
  Build();
  return true;
}

/// Sells every bare lot, not just as many as it takes.
void Selections::SellOff() {
  for (g.Idx = 0; g.Idx < lotCount; ++g.Idx) {
    const int lot = g.Idx;  // reading money moves `Idx`
    g.CurLot = lot;
    if (LotPicture(g, lot) == g.ICF->COMP.Picture) {
      SetLot(g, lot, g.ICF->LUND, "U");
      g.LotInsured[lot] = false;
      AddTo(g, g.GFM->CCredit, g.LotValue[lot]);
      PayIntoBank(g, g.LotValue[lot]);
      TakeFrom(g, g.GFM->CNW, g.LotValue[lot]);
      --g.CompBareLots;
      g.Money = g.LotValue[lot].Share(0.25);
      g.LotValue[lot] -= g.Money;
    }
    g.Idx = lot;
  }
}

/// Takes the first lot that shows the icon and that `Money` exceeds into `CurLot`. The last lot
/// looked at stays there in any case.
bool Selections::ScanFor(const Control& icon) {
  const int step = upward ? 1 : -1;
  for (g.Idx = upward ? 0 : lotCount - 1; OnBoard(g.Idx); g.Idx += step) {
    g.CurLot = g.Idx;
    if (LotPicture(g, g.Idx) == icon.Picture && g.Money > g.LotValue[g.Idx]) return true;
  }
  return false;
}

bool Selections::ScanOpenLots() {
  for (g.Idx = openFrom; g.Idx < lotCount; ++g.Idx) {
    g.CurLot = g.Idx;
    if (LotPicture(g, g.Idx) == g.ICF->LOPEN.Picture && g.Money > g.LotValue[g.Idx]) return true;
  }
  return false;
}

void Selections::Buy() {
  SetLot(g, g.CurLot, g.ICF->COMP, "CU");
  TakeFrom(g, g.GFM->CCredit, g.LotValue[g.CurLot]);
  ReadMoney(g, g.GFM->CNW.Caption);  // stays in `Money` until cash is read again
  g.GFM->CNW.Caption = MoneyText(g.Money + g.LotValue[g.CurLot]);
  --g.OpenLots;  // also for a condemned lot
  g.GFM->PSHOW.Caption = "Computer Purchased a lot on Lot #" + NumberText(g.CurLot);
}

void Selections::Build() {
  g.Refresh(g.GFM);
  g.Yield();
  ComputerRestaurant(g);
  if (g.Refused) {
    g.Refused = false;  // a restaurant stands; the remainder is the last class choice's
    Pay();
    Blink();
    return;
  }
  const BuildingClass* building = AffordableClass();
  if (building == nullptr) {
    g.BuildCost = Currency();
    buyFirst = true;
    Blink();
    return;
  }
  if (!PutUp(*building)) return;
  Pay();
  Blink();
}

/// The dearest hotel that `Money` exceeds; null if none. A restaurant has had its chance before.
const BuildingClass* Selections::AffordableClass() {
  const Skill& skill = skills[g.SkillLevel];
  for (int hotel = Hilton; hotel >= SuperSaver; --hotel) {
    const BuildingClass& building = buildingClasses[hotel];
    g.Work = building.multiple;
    const Currency plainCost = g.LotValue[g.CurLot] * building.multiple;
    remainder = plainCost.Share(skill.remainder);
    g.BuildCost = plainCost.Share(skill.price);
    if (g.Money > g.BuildCost) return &building;
  }
  return nullptr;
}

/// False if the zoning board refuses; no other class is tried then.
bool Selections::PutUp(const BuildingClass& building) {
  g.Refused = false;
  if (building.cheap) ZoningReview(g, plainReview);
  buyFirst = false;
  if (g.Refused) {
    g.Refused = false;
    return false;
  }
  Control& icon = g.ICF->*building.computerIcon;
  SetLot(g, g.CurLot, icon, building.computerTag);
  AddToCount(icon, 1);
  g.GFM->PSHOW.Caption = std::string(building.news) + NumberText(g.CurLot);
  return true;
}

void Selections::Pay() {
  --g.CompBareLots;
  ++g.CompHotels;
  g.GFM->CNOH.Caption = NumberText(g.CompHotels);
  ReadCash(g);
  g.Money -= g.BuildCost;
  g.Delta = g.LotValue[g.CurLot].Share(skills[g.SkillLevel].premium);
  g.LotInsured[g.CurLot] = g.Money > g.Delta;
  if (g.LotInsured[g.CurLot]) g.Money -= g.Delta;
  g.GFM->CCredit.Caption = MoneyText(g.Money);
  g.LotValue[g.CurLot] += g.BuildCost + remainder;
  ReadMoney(g, g.GFM->CNW.Caption);
  g.GFM->CNW.Caption = MoneyText(g.Money + g.BuildCost + remainder);
  ++g.CompHotels;  // once more; the next census corrects it
}

void Selections::Blink() const {
  g.FastBlink = true;
  BlinkLot(g);
}

}  // namespace

void ComputerTurn(Game& g) {
  Selections selections{g};
  selections.Begin();
  while (selections.NextSelection()) {
  }
  g.Yield();
  g.SetPointer(MousePointer::Arrow);
}

}  // namespace zelvo
