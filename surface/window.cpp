#include "surface/window.h"

#include "surface/surface.h"

namespace zelvo {

// A design is copied once a window, at the program's start.
// NOLINTNEXTLINE(modernize-pass-by-value)
Window::Window(Surface& surface, const WindowDesign& design) : surface_(surface), design_(design) {
  surface.windows_.push_back(this);
}

bool Window::HasCloseBox() const {
  return design_.titleBar == TitleBar::Sizable || design_.titleBar == TitleBar::CloseOnly;
}

Control* Window::Find(std::string_view fullName) const {
  for (Control* control : controls_) {
    if (fullName.substr(0, control->name().size()) != control->name()) continue;
    if (control->FullName() == fullName) return control;
  }
  return nullptr;
}

Platform& Window::platform() const { return surface_.platform(); }

void Window::Place(NamedControl named, Kind kind, Box box, const ControlDesign& design,
                   const Control* container) {
  Control& control = named.control;
  control.kind_ = kind;
  control.name_ = named.name;
  control.index_ = named.index;
  control.box_ = box;
  control.design_ = design;
  control.container_ = container;
  control.window_ = this;
  controls_.push_back(&control);
}

void Window::Reset() {
  Caption = design_.title;
  extent = Extent::Normal;
  keepsClearOf = nullptr;
  inHand = nullptr;
  for (Control* control : controls_) control->Reset();
}

}  // namespace zelvo
