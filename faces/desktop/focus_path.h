#pragma once

#include <Qt>
#include <vector>

#include "surface/keyboard.h"

namespace zelvo {

class ControlWidget;
class WindowView;

/// The way of the keyboard's focus through the controls of one window. The focus never vanishes:
/// when the control that has it goes, it moves to what the player has in hand or to the first stop.
class FocusPath {
 public:
  explicit FocusPath(const WindowView& view);

  /// The window comes up: the focus starts anew at the first stop.
  void Start();
  /// The control got the focus.
  void CameTo(const Control& control);
  /// The control can have the focus no longer, and passes it on if it has it. If it comes back
  /// while the focus still is where it was passed to, as the button that ends the turn does, it
  /// gets the focus again.
  void Leave(const ControlWidget& widget);
  void ComeBack(const Control& control);

  /// Goes to the next or the previous stop. False if there is none.
  bool Tab(bool next);
  /// Goes to the nearest control of a walked group in a direction, as from lot to lot; an option is
  /// selected by that.
  void Walk(const Control& from, Step step);
  /// Goes to the next control that shows something with that initial, or says that there is none.
  void WalkToInitial(const Control& from, char initial);

 private:
  void GoTo(const Control& control, Qt::FocusReason reason) const;

  const WindowView& view_;
  std::vector<Stop> stops_;
  LastPlaces last_;
  const Control* left_ = nullptr;      // went away with the focus
  const Control* passedTo_ = nullptr;  // and this one got it
};

}  // namespace zelvo
