#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "surface/surface.h"

namespace zelvo {

/// Something that the player does to a control or a window, kept until the game can take it.
struct Deed {
  enum class Kind : unsigned char { Click, Hover, Close } kind;
  Control* control;  ///< null for a window
  Window* window;
};

/// Reads a deed from its verb and what it is done to, as in "click" and "GFM.Image1(37)"; `error`
/// says in plain words why it is none.
std::optional<Deed> ReadDeed(Surface& surface, std::string_view verb, std::string_view target,
                             std::string& error);

/// Why the surface takes the deed's target no input now, in plain words; empty if it does.
std::string_view WhyNot(Surface& surface, const Deed& deed);

/// Hands the deed to the surface, which drops what it cannot take.
void Deliver(Surface& surface, const Deed& deed);

}  // namespace zelvo
