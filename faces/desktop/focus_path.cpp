#include "faces/desktop/focus_path.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "faces/desktop/control_widget.h"
#include "surface/speech.h"

namespace zelvo {

FocusPath::FocusPath(std::vector<ControlWidget*> widgets) : order_(std::move(widgets)) {
  std::stable_sort(order_.begin(), order_.end(), [](ControlWidget* one, ControlWidget* other) {
    return one->control().design().tabLevel < other->control().design().tabLevel;
  });
}

void FocusPath::Start() {
  last_.clear();
  left_ = nullptr;
  const auto stops = Stops();
  if (!stops.empty()) stops.front()->setFocus();
}

void FocusPath::CameTo(ControlWidget& widget) {
  if (&widget != passedTo_) left_ = nullptr;
  if (const Group* group = widget.WalkedGroup()) last_[group] = &widget;
}

void FocusPath::Leave(ControlWidget& widget) {
  if (!widget.IsFocusOfItsWindow()) return;
  const auto stops = Stops();
  const auto held = std::find_if(order_.begin(), order_.end(), [](ControlWidget* other) {
    return other->IsInHand() && other->TakesFocus();
  });
  passedTo_ = held != order_.end() ? *held : stops.empty() ? nullptr : stops.front();
  if (passedTo_ == nullptr) return;
  passedTo_->setFocus(Qt::OtherFocusReason);
  left_ = &widget;
}

void FocusPath::ComeBack(ControlWidget& widget) {
  if (left_ == &widget && widget.TakesFocus()) widget.setFocus(Qt::OtherFocusReason);
}

std::vector<ControlWidget*> FocusPath::Members(const Group& group) const {
  std::vector<ControlWidget*> members;
  std::copy_if(order_.begin(), order_.end(), std::back_inserter(members),
               [&group](const ControlWidget* widget) {
                 return widget->WalkedGroup() == &group && widget->TakesFocus();
               });
  return members;
}

/// Where the keyboard enters a walked group: where it was last, else at the option that is
/// selected, else at the first.
ControlWidget* FocusPath::EntryOf(const Group& group) const {
  const auto last = last_.find(&group);
  if (last != last_.end() && last->second->TakesFocus()) return last->second;
  const auto members = Members(group);
  const auto selected = std::find_if(members.begin(), members.end(), [](ControlWidget* member) {
    return member->control().Value();
  });
  if (selected != members.end()) return *selected;
  return members.empty() ? nullptr : members.front();
}

std::vector<ControlWidget*> FocusPath::Stops() const {
  std::vector<ControlWidget*> stops;
  std::map<const Group*, ControlWidget*> entries;
  for (ControlWidget* widget : order_) {
    if (!widget->TakesFocus()) continue;
    const Group* group = widget->WalkedGroup();
    if (group != nullptr && entries.count(group) == 0) entries[group] = EntryOf(*group);
    if (group == nullptr || entries[group] == widget) stops.push_back(widget);
  }
  return stops;
}

bool FocusPath::Tab(bool next) {
  const auto stops = Stops();
  if (stops.empty()) return false;
  const auto focused = std::find_if(order_.begin(), order_.end(), [](const ControlWidget* widget) {
    return widget->IsFocusOfItsWindow();
  });
  // The focus may be on a control that has just gone, so places are compared, not stops.
  const auto place = [this](const ControlWidget* widget) {
    return std::find(order_.begin(), order_.end(), widget);
  };
  ControlWidget* target = nullptr;
  if (next) {
    const auto after = std::find_if(stops.begin(), stops.end(),
                                    [&](ControlWidget* stop) { return place(stop) > focused; });
    target = after == stops.end() ? stops.front() : *after;
  } else {
    const auto before = std::find_if(stops.rbegin(), stops.rend(),
                                     [&](ControlWidget* stop) { return place(stop) < focused; });
    target = before == stops.rend() ? stops.back() : *before;
  }
  target->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

void FocusPath::Walk(ControlWidget& from, QPoint direction) {
  if (from.WalkedGroup() == nullptr) return;
  ControlWidget* nearest = nullptr;
  int shortest = 0;
  for (ControlWidget* widget : Members(*from.WalkedGroup())) {
    const QPoint way = widget->geometry().center() - from.geometry().center();
    const int ahead = QPoint::dotProduct(way, direction);
    if (ahead <= 0) continue;
    // What lies straight ahead is nearer than all that lies aside.
    const int aside = std::abs(QPoint::dotProduct(way, direction.transposed()));
    const int distance = aside <= ahead / 2 ? ahead : ahead + 100 * aside;
    if (nearest != nullptr && distance >= shortest) continue;
    nearest = widget;
    shortest = distance;
  }
  if (nearest == nullptr) return;
  nearest->setFocus(Qt::TabFocusReason);
  if (nearest->control().kind() == Kind::Option) nearest->Press();
}

void FocusPath::WalkToInitial(ControlWidget& from, const QString& initial) {
  const Group* group = from.WalkedGroup();
  for (const ControlWidget* widget : order_) {
    if (group == nullptr) group = widget->WalkedGroup();
  }
  if (group == nullptr) return;
  auto members = Members(*group);
  const auto here = std::find(members.begin(), members.end(), EntryOf(*group));
  if (here != members.end()) std::rotate(members.begin(), here + 1, members.end());
  for (ControlWidget* widget : members) {
    const auto shown = QString::fromStdString(SpokenContent(widget->control()));
    if (shown.startsWith(initial, Qt::CaseInsensitive)) {
      return widget->setFocus(Qt::TabFocusReason);
    }
  }
}

}  // namespace zelvo
