#include "surface/control.h"

#include <algorithm>

#include "surface/platform.h"
#include "surface/window.h"

namespace zelvo {

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  if (kind_ == Kind::Timer) window_->platform().TimerChanged(*this);
}

void Control::SetValue(bool value) {
  if (kind_ == Kind::Option && value) {
    for (Control* other : window_->controls()) {
      if (other->kind_ == Kind::Option) other->value_ = false;
    }
  }
  value_ = value;
}

void Control::SetInterval(int milliseconds) {
  interval_ = milliseconds;
  window_->platform().TimerChanged(*this);
}

std::string Control::FullName() const {
  std::string full(name_);
  if (index_ != noIndex) full.append("(").append(std::to_string(index_)).append(")");
  return full;
}

Box Control::Place() const {
  Box place = box_;
  for (const Control* outer = container_; outer != nullptr; outer = outer->container_) {
    place.left += outer->box_.left;
    place.top += outer->box_.top;
  }
  return place;
}

Box Control::Place(const Arrangement& arrangement) const {
  const Box place = Place();
  const auto& parts = arrangement.parts;
  const auto part = std::find_if(parts.begin(), parts.end(),
                                 [&](const MovedPart& p) { return p.from.Holds(place); });
  if (part == parts.end()) return place;
  const Box& from = part->from;
  const Box& to = part->to;
  // Neighbours that share an edge go on sharing it.
  const auto x = [&](int left) { return to.left + (left - from.left) * to.width / from.width; };
  const auto y = [&](int top) { return to.top + (top - from.top) * to.height / from.height; };
  const int left = x(place.left);
  const int top = y(place.top);
  return {left, top, x(place.left + place.width) - left, y(place.top + place.height) - top};
}

bool Control::IsDrawn() const {
  const Box place = Place();
  const WindowDesign& design = window_->design();
  return kind_ != Kind::Timer && place.left < design.width && place.top < design.height;
}

bool Control::IsClickable() const {
  return kind_ == Kind::Option || kind_ == Kind::CheckBox || handlers.click != nullptr;
}

bool Control::VisibleInWindow() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->Visible) return false;
  }
  return true;
}

void Control::Reset() {
  Tag = design_.tag;
  Picture = design_.picture;
  Visible = design_.visible;
  Caption = design_.caption;
  Text.clear();
  enabled_ = design_.enabled;
  value_ = design_.value;
  interval_ = design_.interval;
  if (kind_ == Kind::Timer) window_->platform().TimerChanged(*this);
}

}  // namespace zelvo
