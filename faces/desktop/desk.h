#pragma once

#include <functional>

#include "faces/desktop/pictures.h"
#include "surface/surface.h"

namespace zelvo {

class WindowView;

/// What all windows of the desktop share: the artwork, and the way of the player's input to the
/// game.
class Desk {
 public:
  explicit Desk(const QString& pictureFolder) : pictures(pictureFolder) {}
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  virtual ~Desk() = default;

  /// Hands an event to the game, unless the game is holding still for a sound, and carries what it
  /// changed over to the windows. False if it was not handed over.
  virtual bool Deliver(const std::function<void(Surface&)>& event) = 0;

  /// The window in front, as the game put them; null while none is shown.
  virtual WindowView* Front() const = 0;

  Pictures pictures;
  /// The player's last input came from the keyboard, so the focus is to be seen.
  bool usesKeys = false;
};

}  // namespace zelvo
