#include "surface/windows/picture.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zelvo {
namespace {

struct Row {
  std::string_view owner;
  std::string_view meaning;
};

constexpr std::array<Row, static_cast<std::size_t>(PictureId::Count)> rows = {{
    {"", ""},
    {"ICF.LUND", "lot without zoning"},
    {"ICF.LOPEN", "open lot"},
    {"ICF.LDIRT", "condemned lot"},
    {"ICF.PLAYER", "player's bare lot"},
    {"ICF.COMP", "computer's bare lot"},
    {"ICF.GOLF", "golf course"},
    {"ICF.PARK", "park"},
    {"ICF.CITY", "casino"},
    {"ICF.MALL", "mall"},
    {"ICF.CREST", "computer's restaurant"},
    {"ICF.SUPER", "computer's Super Saver"},
    {"ICF.THRIFTY", "computer's Thrifty"},
    {"ICF.QUALITY", "computer's Quality Inn"},
    {"ICF.BEST", "computer's Best Western"},
    {"ICF.RAMADA", "computer's Ramada"},
    {"ICF.HILTON", "computer's Hilton"},
    {"ICF.ELEC", "lightning strike"},
    {"ICF.FIRE", "fire"},
    {"ICF.PLANE", "plane crash"},
    {"ICF.PAINT", "repairs"},
    {"ICF.IRS", "tax man"},
    {"ICF.MAN1", "a silly face"},
    {"GFM.SUPER", "player's Super Saver"},
    {"GFM.THRIFTY", "player's Thrifty"},
    {"GFM.QUALITY", "player's Quality Inn"},
    {"GFM.BEST", "player's Best Western"},
    {"GFM.RAMADA", "player's Ramada"},
    {"GFM.HILTON", "player's Hilton"},
    {"GFM.Rest", "player's restaurant"},
    {"GFM.Image2", "player's emblem"},
    {"GFM.Image3", "computer's emblem"},
    {"GFM.CMDGO", "arrow and green light"},
    {"GFM.CMDHELP", "cogwheel with a question mark"},
    {"GFM.CMDEXIT", "open door"},
    {"GST.Image2", "the name Zelvo over a street of hotels"},
    {"WINX.CMDEXIT", "trophy"},
    {"HH.CMDEXIT", "closed book"},
    {"SV.Image1", "scaffold and toolbox"},
    {"RB.MAN", "stern chairman of the zoning board"},
    {"CHN.Image1(0)", "face down"},
    {"CHN.Image1(1)", "face down"},
    {"CHN.Image1(2)", "face down"},
    {"BK.Image1(0)", "banker behind his grille"},
    {"BK.Image1(1)", "customer asks the banker for money"},
    {"BK.Image1(2)", "banker reads the books"},
    {"BK.Image1(3)", "banker at the open vault"},
    {"BK.Image1(4)", "banker stamps a paper beside a bag of money"},
    {"ABT.Image1", "hotel with a golden crown"},
}};

/// The same in every language of the system.
char LowerCase(char letter) {
  const bool upper = letter >= 'A' && letter <= 'Z';
  return upper ? static_cast<char>(letter - 'A' + 'a') : letter;
}

const Row& RowOf(PictureId picture) { return rows.at(static_cast<std::size_t>(picture)); }

}  // namespace

std::string_view PictureOwner(PictureId picture) { return RowOf(picture).owner; }

std::optional<PictureId> PictureOwnedBy(std::string_view owner) {
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [owner](const Row& row) { return row.owner == owner; });
  if (found == rows.end()) return std::nullopt;
  return static_cast<PictureId>(found - rows.begin());
}

std::string_view PictureMeaning(PictureId picture) { return RowOf(picture).meaning; }

std::string PictureFile(PictureId picture) {
  if (picture == PictureId::None) return "";
  std::string file;
  for (const char c : PictureOwner(picture)) {
    if (c == '.' || c == '(') {
      file += '-';
    } else if (c != ')') {
      file += LowerCase(c);
    }
  }
  return file + ".svg";
}

}  // namespace zelvo
