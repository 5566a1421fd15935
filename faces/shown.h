#pragma once

#include <string>

#include "surface/control.h"

namespace zelvo {

/// What a face has drawn of a control. It draws the control anew when that is no longer what is.
struct Shown {
  std::string caption;
  std::string text;
  PictureId picture{};
  bool enabled = true;
  bool value = false;
  bool visible = false;  ///< and all panels around it as well
  bool inHand = false;

  static Shown Of(const Control& control);
  /// The same as a comparison with `Of`, but copies no text.
  bool Shows(const Control& control) const;
};

}  // namespace zelvo
