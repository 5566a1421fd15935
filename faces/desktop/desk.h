#pragma once

#include <functional>
#include <utility>

#include "faces/desktop/pictures.h"
#include "faces/desktop/voice.h"
#include "surface/surface.h"

namespace zelvo {

class WindowView;

/// What all windows of the desktop share: the artwork, and the way of the player's input to the
/// game.
class Desk {
 public:
  Desk(const QString& pictureFolder, Voice::Speaker speaker, Helpers helpers)
      : pictures(pictureFolder), voice(std::move(speaker)), tellHelpers(std::move(helpers)) {}
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  virtual ~Desk() = default;

  /// Hands an event to the game and carries what it changed over to the windows. While the game is
  /// at work and does not yield, the event is held until it does; of those with the same `subject`
  /// only the latest.
  virtual void Deliver(const std::function<void(Surface&)>& event,
                       const void* subject = nullptr) = 0;

  /// False while the game is at work and does not yield.
  virtual bool Listens() const = 0;

  /// The window in front, as the game put them; null while none is shown.
  virtual WindowView* Front() const = 0;

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
