#include "player/zoning.h"

#include "game/buildings.h"
#include "game/text.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// The board's codes, as `Ruling` carries them to its window.
enum Code : int { NoSuchHotel = 0, TooManyRestaurants = 7, MallCleanup = 55, TurnedDown = 99 };

/// The left and right edges of the board, without lot 0.
bool OnEdge(int lot) {
  const int column = lot % boardWidth;
  return lot != 0 && (column == 0 || column == boardWidth - 1);
}

/// True if the player sold too many hotels of the class that `Work` names. What else `Work` may
/// hold names no class.
bool ChainTurnsDown(const Game& g) {
  return g.Work >= 0 && g.Work < static_cast<int>(g.BrandSold.size()) && g.BrandSold[g.Work] > 4;
}

void Speak(Game& g, int code) {
  g.Ruling = code;
  g.SetPointer(MousePointer::Arrow);
  if (g.Turn == "C") {
    g.Refused = true;
    return;
  }
  g.ShowModal(g.RB);
}

/// The cheapest classes, and all of the computer's plans. The hourglass stays up if they pass.
void ReviewCheap(Game& g) {
  if (OnEdge(g.CurLot)) {
    Speak(g, NoSuchHotel);
  } else if (ChainTurnsDown(g)) {
    Speak(g, TurnedDown);
  }
}

void ReviewDear(Game& g, int reviewMark) {
  if (ChainTurnsDown(g)) {
    Speak(g, TurnedDown);
  } else if (reviewMark == mallCleanup) {
    Speak(g, MallCleanup);
  } else {
    g.SetPointer(MousePointer::Arrow);
  }
}

/// Restaurants may not outgrow a third of all properties.
void ReviewRestaurant(Game& g) {
  g.Work = g.PlayerHotels + g.CompHotels;
  if (g.Work == 0 || g.RestCount == 0) return;
  if (g.Work / 3 > g.RestCount) return;
  Speak(g, TooManyRestaurants);
}

}  // namespace

void ZoningReview(Game& g, int reviewMark) {
  g.Refused = false;
  g.SetPointer(MousePointer::Hourglass);
  g.Ruling = 0;
  if (g.Turn == "C") {
    ReviewCheap(g);
    return;
  }
  const BuildingClass* plan = ClassOfKeyword(g.Word);
  if (plan != nullptr && plan->IsRestaurant()) {
    ReviewRestaurant(g);
    return;
  }
  if (plan != nullptr) g.Work = plan->Brand();
  if (plan != nullptr && plan->cheap) {
    ReviewCheap(g);
  } else {
    ReviewDear(g, reviewMark);
  }
}

void RB::Form_Activate(Game& g) {
  g.Refused = false;
  PlayCue(g, Cue::ZoningBoard);
  switch (g.Ruling) {
    case NoSuchHotel:
      g.RB->Label2.Caption = "The zoing board has met and decided, You can't build a stinkin " +
                             g.Word + " hotel on this fine property ! Slum lords go elseware.";
      g.Refused = true;
      break;
    case TurnedDown:
      g.RB->Label2.Caption =
          g.Word +
          " hotels has turned you down for a license. You sold too many of their hotels in the "
          "past. Try someone else.";
      g.Refused = true;
      break;
    case TooManyRestaurants:
      g.RB->Label2.Caption =
          "The zoing board has met and has decided not to allow you to build another restaurant "
          "on this property ! There are too many now.";
      g.Refused = true;
      break;
    case MallCleanup:
      g.RB->Label2.Caption =
          "The zoing board has met and decided you must pay 50% cleanup costs on the destroyed "
          "mall.";
      break;
    default:
      break;
  }
  g.Ruling = 0;
  g.Refresh(g.RB);
  g.Yield();
}

}  // namespace zelvo
