#pragma once

#include <array>
#include <string_view>

#include "game/game.h"
#include "surface/in_order.h"

namespace zelvo {

/// What can be built on a lot, cheapest first. `BrandSold` numbers the hotels from 1 in this order.
enum Building : unsigned char {
  SuperSaver,
  ThriftyInn,
  QualityInn,
  BestWestern,
  RamadaInn,
  Hilton,
  Restaurant
};

/// One of the six hotels or a restaurant, for either side.
struct BuildingClass {
  Building building;
  std::string_view keyword;                 ///< what the player's choice leaves in `Word`
  int multiple;                             ///< of the lot's value; the restaurant's goes by level
  bool cheap;                               ///< not for the edges of the board
  Member<Control, GFMWindow> icon;          ///< its tag counts the player's buildings of the class
  Member<Control, ICFWindow> computerIcon;  ///< its tag counts the computer's
  /// On the lot. The player's restaurant ends like a hotel, the computer's does not, and the rules
  /// that look for an "H" tell them apart by it.
  std::string_view playerTag;
  std::string_view computerTag;
  std::string_view title;  ///< of the player's quote
  std::string_view owned;  ///< behind the player's count
  std::string_view news;   ///< of the computer's purchase, ahead of the lot's number

  bool IsRestaurant() const { return building == Restaurant; }
  /// The hotel's number in `BrandSold`.
  int Brand() const { return building + 1; }
};

constexpr std::array<BuildingClass, Restaurant + 1> buildingClasses = {{
    {SuperSaver, "SUPER", 2, true, &GFMWindow::SUPER, &ICFWindow::SUPER, "PSH", "CSH",
     "      Super Saver", " Supers owned", "Computer Purchased a Super Saver on lot "},
    {ThriftyInn, "THRIFTY", 3, true, &GFMWindow::THRIFTY, &ICFWindow::THRIFTY, "PTH", "CTH",
     "      Thrifty Saver", " Thriftys owned", "Computer Purchased a Thrifty on lot "},
    {QualityInn, "QUALITY", 4, false, &GFMWindow::QUALITY, &ICFWindow::QUALITY, "PQH", "CQH",
     "      Quality Inn", " Quality Inns owned", "Computer Purchased a Quality Inn on lot "},
    {BestWestern, "BEST", 5, false, &GFMWindow::BEST, &ICFWindow::BEST, "PBH", "CBH",
     "      Best Western", " Best Westerns owned", "Computer Purchased a Best Western on lot "},
    {RamadaInn, "RAMADA", 6, false, &GFMWindow::RAMADA, &ICFWindow::RAMADA, "PRH", "CRH",
     "      Ramada Inn", " Ramadas owned", "Computer Purchased a Ramada Inn on lot "},
    {Hilton, "HILTON", 7, false, &GFMWindow::HILTON, &ICFWindow::HILTON, "PHH", "CHH",
     "      Hilton", " Hiltons Owned", "Computer Purchased a Hilton on lot "},
    {Restaurant, "REST", 0, false, &GFMWindow::Rest, &ICFWindow::CREST, "PDH", "CDR",
     "      Restaurant", " Restaurants owned", "Computer Purchased a Restaurant"},
}};

static_assert(InOrder(buildingClasses, &BuildingClass::building));

/// The class of a keyword; null if the word is none.
const BuildingClass* ClassOfKeyword(std::string_view keyword);

/// Adds to the count that the tag of an icon holds as text.
void AddToCount(Control& icon, int change);

}  // namespace zelvo
