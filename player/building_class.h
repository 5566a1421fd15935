#pragma once

#include <array>
#include <string_view>

#include "game/buildings.h"
#include "game/game.h"

namespace zelvo {

/// What the player can build: one of the six hotels or a restaurant.
struct BuildingClass {
  std::string_view keyword;         ///< what a choice leaves in `Word`
  Member<Control, GFMWindow> icon;  ///< its tag counts the player's buildings of the class
  int multiple;                     ///< of the lot's value; the restaurant's goes by level
  std::string_view title;           ///< of the quote
  std::string_view owned;           ///< behind the count
  Building building;

  std::string_view Tag() const { return playerTags[building]; }  ///< on the lot
  bool IsRestaurant() const { return building == Restaurant; }
  /// The hotel's number in `BrandSold`.
  int Brand() const { return building + 1; }
};

constexpr std::array<BuildingClass, 7> buildingClasses = {{
    {"SUPER", &GFMWindow::SUPER, 2, "      Super Saver", " Supers owned", SuperSaver},
    {"THRIFTY", &GFMWindow::THRIFTY, 3, "      Thrifty Saver", " Thriftys owned", ThriftyInn},
    {"QUALITY", &GFMWindow::QUALITY, 4, "      Quality Inn", " Quality Inns owned", QualityInn},
    {"BEST", &GFMWindow::BEST, 5, "      Best Western", " Best Westerns owned", BestWestern},
    {"RAMADA", &GFMWindow::RAMADA, 6, "      Ramada Inn", " Ramadas owned", RamadaInn},
    {"HILTON", &GFMWindow::HILTON, 7, "      Hilton", " Hiltons Owned", Hilton},
    {"REST", &GFMWindow::Rest, 0, "      Restaurant", " Restaurants owned", Restaurant},
}};

/// The class of a keyword; null if the word is none.
const BuildingClass* ClassOfKeyword(std::string_view keyword);

/// Adds to the count that the tag of an icon holds as text.
void AddToCount(Control& icon, int change);

}  // namespace zelvo
