#pragma once

#include <array>
#include <string_view>

#include "game/game.h"

namespace zelvo {

/// What the player can build: one of the six hotels or a restaurant.
struct BuildingClass {
  std::string_view keyword;  ///< what a choice leaves in `Word`
  Control GFMWindow::*icon;  ///< its tag counts the player's buildings of the class
  int multiple;              ///< of the lot's value; the restaurant's goes by level
  std::string_view title;    ///< of the quote
  std::string_view owned;    ///< behind the count
  std::string_view tag;      ///< on the lot
  int brand;                 ///< the hotel's number in `BrandSold`; 0 for the restaurant
};

constexpr std::array<BuildingClass, 7> buildingClasses = {{
    {"SUPER", &GFMWindow::SUPER, 2, "      Super Saver", " Supers owned", "PSH", 1},
    {"THRIFTY", &GFMWindow::THRIFTY, 3, "      Thrifty Saver", " Thriftys owned", "PTH", 2},
    {"QUALITY", &GFMWindow::QUALITY, 4, "      Quality Inn", " Quality Inns owned", "PQH", 3},
    {"BEST", &GFMWindow::BEST, 5, "      Best Western", " Best Westerns owned", "PBH", 4},
    {"RAMADA", &GFMWindow::RAMADA, 6, "      Ramada Inn", " Ramadas owned", "PRH", 5},
    {"HILTON", &GFMWindow::HILTON, 7, "      Hilton", " Hiltons Owned", "PHH", 6},
    {"REST", &GFMWindow::Rest, 0, "      Restaurant", " Restaurants owned", "PDH", 0},
}};

/// The class of a keyword; null if the word is none.
const BuildingClass* ClassOfKeyword(std::string_view keyword);

/// Adds to the count that the tag of an icon holds as text.
void AddToCount(Control& icon, int change);

}  // namespace zelvo
