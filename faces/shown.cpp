#include "faces/shown.h"

#include "surface/surface.h"

namespace zelvo {
namespace {

bool IsInHand(const Control& control) {
  return control.window().surface().InHand(control.window()) == &control;
}

}  // namespace

Shown Shown::Of(const Control& control) {
  return {control.Caption,   control.Text,    control.Picture,
          control.Enabled(), control.Value(), control.VisibleInWindow(),
          IsInHand(control)};
}

bool Shown::Shows(const Control& control) const {
  return visible == control.VisibleInWindow() && picture == control.Picture &&
         enabled == control.Enabled() && value == control.Value() && inHand == IsInHand(control) &&
         caption == control.Caption && text == control.Text;
}

}  // namespace zelvo
