#include "surface/picture.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace zelvo {
namespace {

constexpr std::array<std::string_view, static_cast<std::size_t>(PictureId::Count)> owners = {
    "",
    "ICF.LUND",
    "ICF.LOPEN",
    "ICF.LDIRT",
    "ICF.PLAYER",
    "ICF.COMP",
    "ICF.GOLF",
    "ICF.PARK",
    "ICF.CITY",
    "ICF.MALL",
    "ICF.CREST",
    "ICF.SUPER",
    "ICF.THRIFTY",
    "ICF.QUALITY",
    "ICF.BEST",
    "ICF.RAMADA",
    "ICF.HILTON",
    "ICF.ELEC",
    "ICF.FIRE",
    "ICF.PLANE",
    "ICF.PAINT",
    "ICF.IRS",
    "ICF.MAN1",
    "GFM.SUPER",
    "GFM.THRIFTY",
    "GFM.QUALITY",
    "GFM.BEST",
    "GFM.RAMADA",
    "GFM.HILTON",
    "GFM.Rest",
    "GFM.Image2",
    "GFM.Image3",
    "GFM.CMDGO",
    "GFM.CMDHELP",
    "GFM.CMDEXIT",
    "GST.Image2",
    "WINX.CMDEXIT",
    "HH.CMDEXIT",
    "SV.Image1",
    "RB.MAN",
    "CHN.Image1(0)",
    "CHN.Image1(1)",
    "CHN.Image1(2)",
    "BK.Image1(0)",
    "BK.Image1(1)",
    "BK.Image1(2)",
    "BK.Image1(3)",
    "BK.Image1(4)",
    "ABT.Image1",
};

}  // namespace

std::string_view PictureOwner(PictureId picture) {
  return owners.at(static_cast<std::size_t>(picture));
}

std::optional<PictureId> PictureOwnedBy(std::string_view owner) {
  const auto* found = std::find(owners.begin(), owners.end(), owner);
  if (found == owners.end()) return std::nullopt;
  return static_cast<PictureId>(found - owners.begin());
}

std::string PictureFile(PictureId picture) {
  if (picture == PictureId::None) return "";
  std::string file;
  for (const char c : PictureOwner(picture)) {
    if (c == '.' || c == '(') {
      file += '-';
    } else if (c != ')') {
      file += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
  }
  return file + ".svg";
}

}  // namespace zelvo
