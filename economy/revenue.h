#pragma once

#include "game/game.h"

namespace zelvo {

/// Pays both sides the income of their buildings; the side that lags far behind gets a better rate.
/// Recounts `RestCount`; leaves the computer's new cash in `Delta`, where the next spread finds it.
void PayRevenue(Game& g);

}  // namespace zelvo
