#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "surface/surface.h"

namespace zelvo {

/// The property of a control as JSON; nothing if its kind has no such property.
std::optional<std::string> ReadProperty(const Control& control, std::string_view property);
/// Sets a property from a script's text. Returns why not, in plain words; empty if it was set.
std::string WriteProperty(Control& control, std::string_view property, std::string_view text);
/// All properties that the control's kind has, as a JSON object.
std::string PropertiesAsJson(const Control& control);

}  // namespace zelvo
