#pragma once

// The icons of the legend, in the order in which they stand on the setup window, which owns their
// pictures: name, tag, what the picture shows for those who do not see it, and what the legend says
// when it is pointed at.
#define ZELVO_LEGEND(ICON)                                                               \
  ICON(LUND, "U", "lot without zoning", "Empty Non-zoned lot")                           \
  ICON(LOPEN, "O", "open lot", "Open zoned lot")                                         \
  ICON(LDIRT, "D", "condemned lot", "Condemed Lot")                                      \
  ICON(PLAYER, "PU", "player's bare lot", "Player owned lot")                            \
  ICON(COMP, "CU", "computer's bare lot", "Computer owned lot")                          \
  ICON(GOLF, "G", "golf course", "Golf Course - raises property value")                  \
  ICON(PARK, "K", "park", "Park - raises property value")                                \
  ICON(CITY, "", "casino", "Caseno lot Worth $$$")                                       \
  ICON(MALL, "", "mall", "Mall, increases property value plus you may invest !")         \
  ICON(CREST, "", "computer's restaurant", "Restaurant, increases area property values") \
  ICON(SUPER, "CS", "computer's Super Saver", "Super Saver - Lowest price")              \
  ICON(THRIFTY, "CT", "computer's Thrifty", "Thrifty Inn")                               \
  ICON(QUALITY, "CQ", "computer's Quality Inn", "Quality Inn")                           \
  ICON(BEST, "CB", "computer's Best Western", "Best Westren")                            \
  ICON(RAMADA, "CR", "computer's Ramada", "Ramada Inn")                                  \
  ICON(HILTON, "CH", "computer's Hilton", "Hilton - Highest Priced")                     \
  ICON(ELEC, "", "lightning strike", "Lighting Strike - Levels hotel")                   \
  ICON(FIRE, "", "fire", "Fire, Destroys property")                                      \
  ICON(PLANE, "", "plane crash", "Plane Crash - destroys property and value")            \
  ICON(PAINT, "", "repairs", "Repairs needed on property, you better have enough money") \
  ICON(IRS, "", "tax man", "IRS Agent - Tax man - Banker, aren't they all the same ?")   \
  ICON(MAN1, "", "a silly face", "Y O U  Bone Head")
