#include "surface/speech.h"

namespace zelvo {
namespace {

/// A text on one line, words one blank apart.
std::string OneLine(std::string_view text) {
  std::string line;
  bool gap = false;
  for (const char c : text) {
    const bool blank = c == ' ' || c == '\n' || c == '\r';
    if (!blank && gap && !line.empty()) line += ' ';
    if (!blank) line += c;
    gap = blank;
  }
  return line;
}

}  // namespace

std::string SpokenContent(const Control& control) {
  if (!control.design().words.empty()) return std::string(control.design().words);
  const std::string caption = OneLine(control.Caption);
  return caption.empty() ? std::string(PictureMeaning(control.Picture)) : caption;
}

std::string SpokenName(const Control& control) {
  const ControlDesign& design = control.design();
  std::string name(design.label);
  if (design.numbered) name += " " + std::to_string(control.index());
  const std::string shown = SpokenContent(control);
  if (!name.empty() && !shown.empty()) name += ", ";
  return name + shown;
}

std::string SpokenName(const Window& window) {
  const std::string_view label = window.design().label;
  return OneLine(label.empty() ? window.Caption : label);
}

}  // namespace zelvo
