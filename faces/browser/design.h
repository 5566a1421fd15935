#pragma once

#include <string>
#include <vector>

#include "surface/window.h"

namespace zelvo {

/// How the windows and their controls are made, as a JSON object. Lengths are twips, colours are
/// as in a style sheet.
std::string DesignAsJson(const std::vector<const Window*>& windows,
                         const std::vector<const Control*>& controls);

}  // namespace zelvo
