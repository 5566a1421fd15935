#include "faces/deed.h"

namespace zelvo {
namespace {

std::string_view WhyImpossible(const Deed& deed) {
  const bool onControl = deed.control != nullptr;
  if (onControl && deed.control->kind() == Kind::Timer) {
    return "a timer takes no click and no mouse move";
  }
  if (deed.kind != Deed::Kind::Close) return "";
  if (onControl) return "only a window can be closed";
  return deed.window->HasCloseBox() ? "" : "the window has no close box";
}

}  // namespace

std::string NoSuch(std::string_view what, std::string_view name) {
  constexpr std::size_t longestName = 80;
  return "there is no " + std::string(what) + " " + std::string(name.substr(0, longestName));
}

std::optional<Deed> ReadDeed(Surface& surface, std::string_view verb, std::string_view target,
                             std::string& error) {
  Deed deed;
  if (verb == "hover") {
    deed.kind = Deed::Kind::Hover;
  } else if (verb == "close") {
    deed.kind = Deed::Kind::Close;
  } else if (verb != "click") {
    error = NoSuch("command", verb);
    return std::nullopt;
  }
  const auto point = target.find('.');
  const std::string_view windowName = target.substr(0, point);
  deed.window = surface.FindWindow(windowName);
  if (deed.window == nullptr) {
    error = NoSuch("window", windowName);
  } else if (point != std::string_view::npos) {
    deed.control = deed.window->Find(target.substr(point + 1));
    if (deed.control == nullptr) error = NoSuch("control", target);
  }
  if (error.empty()) error = WhyImpossible(deed);
  if (!error.empty()) return std::nullopt;
  return deed;
}

std::string_view WhyNot(Surface& surface, const Deed& deed) {
  return deed.control != nullptr ? surface.WhyNoInput(*deed.control)
                                 : surface.WhyNoInput(*deed.window);
}

}  // namespace zelvo
