#pragma once

#include <array>
#include <string_view>

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

/// The tags of each side's buildings. The player's restaurant ends like a hotel, the computer's
/// does not, and the rules that look for an "H" tell them apart by it.
using BuildingTags = std::array<std::string_view, Restaurant + 1>;
constexpr BuildingTags playerTags = {"PSH", "PTH", "PQH", "PBH", "PRH", "PHH", "PDH"};
constexpr BuildingTags computerTags = {"CSH", "CTH", "CQH", "CBH", "CRH", "CHH", "CDR"};

}  // namespace zelvo
