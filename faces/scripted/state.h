#pragma once

#include <string>

#include "game/game.h"

namespace zelvo {

/// Every shared variable, every loaded window and every control of it, as a JSON object.
std::string StateAsJson(Game& game);

}  // namespace zelvo
