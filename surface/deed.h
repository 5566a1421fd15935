#pragma once

#include "surface/window.h"

namespace zelvo {

/// Something that reaches the game from outside: what the player does, or the tick of a timer.
struct Deed {
  enum class Kind : unsigned char { Click, Hover, Close, Resize, Tick };

  Kind kind = Kind::Click;
  Window* window = nullptr;
  Control* control = nullptr;      ///< null where it is done to the window itself
  Extent extent = Extent::Normal;  ///< of a change of size
};

}  // namespace zelvo
