#include "events/board_event.h"

#include <algorithm>
#include <cstdint>

#include "events/casino.h"
#include "events/plane_crash.h"
#include "events/repairs.h"
#include "events/strike.h"
#include "game/lots.h"
#include "game/spread.h"
#include "game/text.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// How an attempt ends: draw again, go through the end of the event, or be over at once.
enum class Outcome : unsigned char { NextAttempt, EndOfEvent, Over };

/// The event that one call of `BoardEvent` draws, over all its attempts.
struct DrawnEvent {
  Game& g;
  int seconds = 0;   // of the wall clock
  int digit = 0;     // the last one of the seconds, 1 for a 0
  int savedLot = 0;  // stays 0 unless an attempt gets past the digits

  bool DrawLot();
  Outcome Dispatch();
  Outcome Strike();
  Outcome DefaultRoute();
  Outcome ParkPath();
  Outcome GolfPath();
  Outcome CondemnPath();
  Outcome OpenPath();
  Outcome Rezone();
  /// Owned, built on, a mall or a casino: not for the board to change.
  bool Taken() const { return LotTag(g, g.CurLot).size() > 1; }
  bool Shows(const Control& icon) const { return LotPicture(g, g.CurLot) == icon.Picture; }
};

/// `share` / 2^24 of the width, rounded to the nearest whole number, a tie to the even one.
int RoundedShare(std::uint32_t share, int width) {
  const std::int64_t product = std::int64_t{share} * width;
  std::int64_t whole = product / RandomGenerator::modulus;
  const std::int64_t rest = product % RandomGenerator::modulus;
  constexpr std::int64_t half = RandomGenerator::modulus / 2;
  if (rest > half || (rest == half && whole % 2 != 0)) ++whole;
  return static_cast<int>(whole);
}

/// Draws a lot into `CurLot`; false if the draw falls outside the board.
bool DrawnEvent::DrawLot() {
  g.ValueSign = "+";
  g.SpreadDue = false;
  seconds = g.platform().WallClock().second;
  if (seconds == 0 || seconds == 33) g.FireFlag = true;
  if (seconds == 22 || seconds == 44 || seconds == 55) g.RepairDue = true;
  digit = seconds % 10;
  if (digit == 0) digit = 1;

  g.Work = 4 * seconds + 300 + g.FreshLot;
  const int candidate = RoundedShare(g.Generator.Next(4 * seconds), g.Work) / digit;
  constexpr int freshLotCeiling = 32'000;  // above it, hardly a draw would fall on the board
  if (g.FreshLot < freshLotCeiling) ++g.FreshLot;
  if (candidate < 1 || candidate > 99) return false;
  g.CurLot = candidate;
  g.CurTag = LotTag(g, g.CurLot);
  return true;
}

Outcome DrawnEvent::Dispatch() {
  if (g.FireFlag) return Strike();
  if (g.RepairDue) {
    g.Money = g.LotValue[g.CurLot];
    RepairLot(g);
    return Outcome::Over;
  }
  if (g.StrikeMeter > 10) return Strike();
  if (!Shows(g.ICF->CITY) && g.CasinoMeter > 18) {
    CasinoBuy(g);
    return Outcome::EndOfEvent;
  }
  if (g.PlaneMeter > 35) {
    g.Money = g.LotValue[g.CurLot];
    PlaneCrash(g);
    return Outcome::EndOfEvent;
  }
  if (g.OpenLots < 5) return OpenPath();
  switch (digit) {
    case 5:
      return OpenPath();
    case 3:
      return ParkPath();
    case 7:
      return GolfPath();
    case 4:
      return CondemnPath();
    case 6:
      ++g.StrikeMeter;
      break;
    case 9:
      ++g.PlaneMeter;
      break;
    case 2:
      ++g.CasinoMeter;
      break;
    default:
      break;
  }
  return DefaultRoute();
}

Outcome DrawnEvent::Strike() {
  g.Money = g.LotValue[g.CurLot];
  StrikeLot(g);
  return Outcome::Over;
}

Outcome DrawnEvent::DefaultRoute() {
  savedLot = g.CurLot;
  if (g.CurTag.size() > 1) return Outcome::NextAttempt;  // the meter stays raised
  if (Shows(g.ICF->LDIRT) && g.OpenLots < 20) return OpenPath();
  if (Shows(g.ICF->LOPEN) && g.OpenLots > 20) return CondemnPath();
  if (Shows(g.ICF->PARK) && g.ParkCount > 14) {
    --g.ParkCount;  // the lot stays a park
    if (g.CondemnedLots > 12) Rezone();
    return Outcome::EndOfEvent;
  }
  if (Shows(g.ICF->GOLF) && g.GolfCount > 12) {
    --g.GolfCount;
    return CondemnPath();
  }
  if (g.TurnNo < 2 && g.OpenLots > 2) return ParkPath();
  if (g.LastPark || g.LastGolf) return OpenPath();
  if (g.ParkCount > 0 || g.GolfCount > 0) return OpenPath();
  return ParkPath();
}

Outcome DrawnEvent::ParkPath() {
  if (g.LastPark) return GolfPath();
  if (g.ParkCount > 14) return CondemnPath();
  if (Taken()) return Outcome::NextAttempt;
  SetLot(g, g.CurLot, g.ICF->PARK, "K");
  ++g.ParkCount;
  --g.OpenLots;  // whatever the lot was before
  g.GFM->LSHOW.Caption = "Park Built in Section " + NumberText(g.CurLot);
  PlayCue(g, Cue::Park);
  g.LastPark = true;
  g.SpreadDue = true;
  g.ValueSign = "+";
  return Outcome::EndOfEvent;
}

Outcome DrawnEvent::GolfPath() {
  if (g.LastGolf) return CondemnPath();
  g.LastPark = false;
  if (g.GolfCount > 12) return CondemnPath();
  if (Taken()) return Outcome::NextAttempt;
  SetLot(g, g.CurLot, g.ICF->GOLF, "G");
  ++g.GolfCount;
  g.GFM->LSHOW.Caption = "Golf Course Built in Section " + NumberText(g.CurLot);
  g.LastGolf = true;
  --g.OpenLots;  // whatever the lot was before
  PlayCue(g, Cue::Golf);
  g.SpreadDue = true;
  g.ValueSign = "+";
  return Outcome::EndOfEvent;
}

Outcome DrawnEvent::CondemnPath() {
  if (g.LastCondemned) return OpenPath();
  if (g.CondemnedLots > 9) return Rezone();
  if (Taken()) return Outcome::NextAttempt;
  if (Shows(g.ICF->LOPEN)) --g.OpenLots;
  if (Shows(g.ICF->GOLF)) --g.GolfCount;
  if (Shows(g.ICF->PARK)) --g.ParkCount;
  SetLot(g, g.CurLot, g.ICF->LDIRT, "D");
  g.SpreadDue = true;
  g.ValueSign = "-";
  ++g.CondemnedLots;
  g.GFM->LSHOW.Caption = "Lot # " + NumberText(g.CurLot) + " Condemmed";
  g.LotValue[g.CurLot] = g.LotValue[g.CurLot].Share(0.25);
  PlayCue(g, Cue::Condemned);
  g.LastCondemned = true;
  g.LastGolf = false;
  g.LastPark = false;
  return Outcome::EndOfEvent;
}

Outcome DrawnEvent::OpenPath() {
  if (g.OpenLots > 15) return Rezone();
  if (Taken()) return Outcome::NextAttempt;
  if (Shows(g.ICF->LDIRT)) --g.CondemnedLots;
  SetLot(g, g.CurLot, g.ICF->LOPEN, "O");
  g.GFM->LSHOW.Caption = "Lot # " + NumberText(g.CurLot) + " Opened";
  ++g.OpenLots;
  g.LastCondemned = false;
  g.LastGolf = false;
  g.LastPark = false;
  g.ValueSign = "-";  // without a spread: no value moves
  return Outcome::EndOfEvent;
}

/// Takes the first condemned lot from `CurLot` upward off the list; there may be none.
Outcome DrawnEvent::Rezone() {
  auto& lots = g.GFM->Image1;
  const auto condemned = std::find_if(
      lots.begin() + g.CurLot, lots.end(),
      [dirt = g.ICF->LDIRT.Picture](const Control& lot) { return lot.Picture == dirt; });
  if (condemned != lots.end()) {
    const int lot = condemned->index();
    SetLot(g, lot, g.ICF->LUND, "U");
    g.GFM->PSHOW.Caption = "Condemmed Lot # " + NumberText(lot) + " has been rezoned";
    --g.CondemnedLots;
    g.ValueSign = "+";
  }
  g.CurLot = savedLot;
  return Outcome::EndOfEvent;
}

}  // namespace

void BoardEvent(Game& g) {
  DrawnEvent event{g};
  g.FireFlag = false;
  g.RepairDue = false;
  auto outcome = Outcome::NextAttempt;
  while (outcome == Outcome::NextAttempt) {
    if (event.DrawLot()) outcome = event.Dispatch();
  }
  if (outcome == Outcome::Over) return;
  SpreadValue(g);  // if one is due
  g.FreshLot = 0;
}

}  // namespace zelvo
