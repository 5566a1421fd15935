#pragma once

#include "game/game.h"

namespace zelvo::TT {

/// The year's bookkeeping, all of it in the window's activation: values grow, the rate rises,
/// taxes and the loan payment fall due on every fourth visit, dividends on every first. The
/// window counts five ticks of the board's timer and hides itself. Leaves `Work` at 5.
void Form_Activate(Game& g);

}  // namespace zelvo::TT
