#pragma once

#include <span>
#include <string>
#include <vector>

#include "faces/commands.h"
#include "surface/window.h"

namespace zelvo {

/// How the windows and their controls are made and which commands there are, as a JSON object.
/// Lengths are twips, colours are as in a style sheet.
std::string DesignAsJson(const std::vector<const Window*>& windows,
                         const std::vector<const Control*>& controls,
                         std::span<const CommandDesign> commands);

}  // namespace zelvo
