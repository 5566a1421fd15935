#pragma once

#include <string>

#include "surface/control.h"

namespace zelvo {

/// A control that is hidden stays gone for this many milliseconds, even if it is shown again at
/// once: the lot that the game points at twitches for no longer than a pass of a loop, too short
/// for any screen.
constexpr int goneForMilliseconds = 90;

/// Twips that stay free around a control that a dialog keeps clear of.
constexpr int clearance = 120;

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
