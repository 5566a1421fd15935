#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "surface/deed.h"
#include "surface/surface.h"

namespace zelvo {

/// "there is no window XY", in words that do not get out of hand.
std::string NoSuch(std::string_view what, std::string_view name);

/// Reads a player's deed from its verb and what it is done to, as in "click" and "GFM.Image1(37)";
/// `error` says in plain words why it is none.
std::optional<Deed> ReadDeed(Surface& surface, std::string_view verb, std::string_view target,
                             std::string& error);

/// Why the surface takes the deed's target no input now, in plain words; empty if it does.
std::string_view WhyNot(Surface& surface, const Deed& deed);

}  // namespace zelvo
