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

constexpr std::array<Row, static_cast<std::size_t>(PictureId::Count)> rows = {
    {{"", ""},
#define ICON(name, tag, meaning, hover) {"ICF." #name, meaning},
     ZELVO_LEGEND(ICON)
#undef ICON
#define PICTURE(name, owner, meaning) {owner, meaning},
         ZELVO_PICTURES(PICTURE)
#undef PICTURE
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
