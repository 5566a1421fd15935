#pragma once

#include <utility>

#include "faces/desktop/gate.h"
#include "faces/desktop/pictures.h"
#include "faces/desktop/voice.h"

namespace zelvo {

class WindowView;

/// What all windows of the desktop share: the artwork, and the way of the player's input to the
/// game.
class Desk {
 public:
  Desk(Gate& theGate, const QString& pictureFolder, Voice::Speaker speaker, Helpers helpers)
      : gate(theGate),
        pictures(pictureFolder),
        voice(std::move(speaker)),
        tellHelpers(std::move(helpers)) {}
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  virtual ~Desk() = default;

  /// The window in front, as the game put them; null while none is shown.
  virtual WindowView* Front() const = 0;

  Gate& gate;
  Pictures pictures;
  Voice voice;
  Helpers tellHelpers;
  /// The player's last input came from the keyboard, so the focus is to be seen.
  bool usesKeys = false;
  /// How often a button of the mouse went down on a window so far.
  int presses = 0;
  /// How often the game brought a window to the front so far.
  int fronts = 0;
};

}  // namespace zelvo
