#include "game/buildings.h"

#include "game/text.h"

namespace zelvo {

const BuildingClass* ClassOfKeyword(std::string_view keyword) {
  for (const BuildingClass& building : buildingClasses) {
    if (building.keyword == keyword) return &building;
  }
  return nullptr;
}

void AddToCount(Control& icon, int change) { icon.Tag = NumberText(NumberFrom(icon.Tag) + change); }

}  // namespace zelvo
