#include "fuzz/invariants.h"

#include <map>
#include <regex>
#include <string_view>

#include "game/lots.h"

namespace zelvo {
namespace {

const std::map<std::string_view, PictureId>& PictureOfTag() {
  static const std::map<std::string_view, PictureId> pictures = {
      {"U", PictureId::ICF_LUND},      {"O", PictureId::ICF_LOPEN},
      {"D", PictureId::ICF_LDIRT},     {"G", PictureId::ICF_GOLF},
      {"K", PictureId::ICF_PARK},      {"PU", PictureId::ICF_PLAYER},
      {"CU", PictureId::ICF_COMP},     {"PSH", PictureId::GFM_SUPER},
      {"PTH", PictureId::GFM_THRIFTY}, {"PQH", PictureId::GFM_QUALITY},
      {"PBH", PictureId::GFM_BEST},    {"PRH", PictureId::GFM_RAMADA},
      {"PHH", PictureId::GFM_HILTON},  {"PDH", PictureId::GFM_Rest},
      {"CSH", PictureId::ICF_SUPER},   {"CTH", PictureId::ICF_THRIFTY},
      {"CQH", PictureId::ICF_QUALITY}, {"CBH", PictureId::ICF_BEST},
      {"CRH", PictureId::ICF_RAMADA},  {"CHH", PictureId::ICF_HILTON},
      {"CDR", PictureId::ICF_CREST},   {"MAP", PictureId::ICF_MALL},
      {"MAC", PictureId::ICF_MALL},    {"MAX", PictureId::ICF_MALL},
      {"XC", PictureId::ICF_CITY}};
  return pictures;
}

/// A strike or a crash shows its own picture for a while, and a lot zoned for a mall that nobody
/// took shows the mall over its old tag.
bool MayPart(PictureId picture) {
  return picture == PictureId::ICF_ELEC || picture == PictureId::ICF_FIRE ||
         picture == PictureId::ICF_PLANE || picture == PictureId::ICF_MALL ||
         picture == PictureId::ICF_CITY;
}

std::string BrokenLot(Game& g, int lot) {
  const Control& image = g.GFM->Image1[lot];
  const auto known = PictureOfTag().find(image.Tag);
  if (known == PictureOfTag().end()) return "an unknown tag: " + image.Tag;
  if (image.Picture != known->second && !MayPart(image.Picture)) {
    return "tag and picture disagree: " + image.Tag;
  }
  return "";
}

bool IsMoney(const std::string& caption) {
  static const std::regex format(R"(-?\$(0|[1-9][0-9]{0,2}(,[0-9]{3})*))");
  return std::regex_match(caption, format);
}

}  // namespace

std::string BrokenInvariant(Game& g) {
  if (g.HasEnded()) return "";
  if (g.InputWindow() == nullptr) return "no window takes input";
  if (!g.GFM.Untouched().IsShown()) return "";
  for (int lot = 0; lot < lotCount; ++lot) {
    if (auto broken = BrokenLot(g, lot); !broken.empty()) {
      return "lot " + std::to_string(lot) + ": " + broken;
    }
  }
  for (const Control* amount :
       {&g.GFM->PCredit, &g.GFM->CCredit, &g.GFM->PNW, &g.GFM->CNW, &g.GFM->BANKLABEL}) {
    if (!IsMoney(amount->Caption)) return amount->FullName() + " reads " + amount->Caption;
  }
  const auto inRange = [](int value, int lowest, int highest) {
    return value >= lowest && value <= highest;
  };
  if (!inRange(g.CurLot, 0, lotCount - 1)) return "CurLot is off the board";
  if (!inRange(g.SkillLevel, 0, 3)) return "there is no such level";
  if (!inRange(g.YearTurn, 0, 23)) return "the year has 24 turns";
  if (!inRange(g.AssessCount, 0, 3)) return "every fourth assessment is tax time";
  if (!inRange(g.MallNext, 0, 1)) return "a strike and a mall take turns";
  if (!inRange(g.FreshLot, 0, 32'000)) return "FreshLot is out of range";
  if (g.PlayerMalls < 0) return "PlayerMalls is below 0";
  if (g.OpenLots > 16) return "OpenLots is above 16";
  if (g.PlayerLoan < Currency()) return "the loan is below 0";
  return "";
}

}  // namespace zelvo
