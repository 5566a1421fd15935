#include "faces/shown.h"

#include "surface/window.h"

namespace zelvo {

Shown Shown::Of(const Control& control) {
  return {control.Caption,
          control.Text,
          control.Picture,
          control.Enabled(),
          control.Value(),
          control.VisibleInWindow(),
          control.window().inHand == &control};
}

bool Shown::Shows(const Control& control) const {
  return visible == control.VisibleInWindow() && picture == control.Picture &&
         enabled == control.Enabled() && value == control.Value() &&
         inHand == (control.window().inHand == &control) && caption == control.Caption &&
         text == control.Text;
}

}  // namespace zelvo
