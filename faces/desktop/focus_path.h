#pragma once

#include <QPoint>
#include <QString>
#include <map>
#include <vector>

#include "surface/control.h"

namespace zelvo {

class ControlWidget;

/// The way of the keyboard's focus through the controls of one window. The focus never vanishes:
/// when the control that has it goes, it moves to what the player has in hand or to the first stop.
class FocusPath {
 public:
  explicit FocusPath(std::vector<ControlWidget*> widgets);

  /// The window comes up: the focus starts anew at the first stop.
  void Start();
  /// The control got the focus.
  void CameTo(ControlWidget& widget);
  /// The control can have the focus no longer, and passes it on if it has it. If it comes back
  /// while the focus still is where it was passed to, as the button that ends the turn does, it
  /// gets the focus again.
  void Leave(ControlWidget& widget);
  void ComeBack(ControlWidget& widget);

  /// Goes to the next or the previous stop. False if there is none.
  bool Tab(bool next);
  /// Goes to the nearest control of a walked group in a direction, as from lot to lot; an option is
  /// selected by that.
  void Walk(ControlWidget& from, QPoint direction);
  /// Goes to the next control that shows something with that initial, as from one open lot to the
  /// next: in the walked group where the keyboard is, else in the first one.
  void WalkToInitial(ControlWidget& from, const QString& initial);

 private:
  std::vector<ControlWidget*> Stops() const;
  std::vector<ControlWidget*> Members(const Group& group) const;
  ControlWidget* EntryOf(const Group& group) const;

  std::vector<ControlWidget*> order_;
  std::map<const Group*, ControlWidget*> last_;  // where the keyboard was in a walked group
  ControlWidget* left_ = nullptr;                // went away with the focus
  ControlWidget* passedTo_ = nullptr;            // and this one got it
};

}  // namespace zelvo
