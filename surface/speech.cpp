#include "surface/speech.h"

namespace zelvo {
namespace {

bool EndsInPause(const std::string& text) {
  return std::string_view(".,;:!?").find(text.back()) != std::string_view::npos;
}

/// A text on one line, words one blank apart. Where a line ends a voice makes a pause.
std::string OneLine(std::string_view text) {
  std::string line;
  bool gap = false;
  bool pause = false;
  for (const char c : text) {
    if (c == ' ' || c == '\n' || c == '\r') {
      gap = true;
      pause = pause || c == '\n';
      continue;
    }
    if (gap && !line.empty()) line += pause && !EndsInPause(line) ? ", " : " ";
    line += c;
    gap = pause = false;
  }
  return line;
}

/// Adds a sentence to a text.
void Join(std::string& text, const std::string& sentence) {
  if (sentence.empty()) return;
  if (!text.empty()) text += EndsInPause(text) ? " " : ". ";
  text += sentence;
}

std::string AllOf(const Window& window, Speech speech) {
  std::string text;
  for (const Control* control : window.controls()) {
    if (control->design().speech == speech && control->VisibleInWindow()) {
      Join(text, SpokenName(*control));
    }
  }
  return text;
}

}  // namespace

std::string SpokenContent(const Control& control) {
  if (!control.design().words.empty()) return std::string(control.design().words);
  const std::string caption = OneLine(control.Caption);
  return caption.empty() ? std::string(control.window().surface().MeaningOf(control.Picture))
                         : caption;
}

std::string SpokenName(const Control& control) {
  const ControlDesign& design = control.design();
  std::string name(design.label);
  if (design.numbered) name += " " + std::to_string(control.index());
  const std::string shown = SpokenContent(control);
  if (!name.empty() && !shown.empty()) name += ", ";
  return name + shown;
}

std::string SpokenNews(const Window& window) { return AllOf(window, Speech::News); }

std::string SpokenStanding(Surface& surface) {
  std::string standing;
  for (const Window* window : surface.Windows()) {
    if (window->IsShown()) Join(standing, AllOf(*window, Speech::Standing));
  }
  return standing;
}

std::string SpokenName(const Window& window) {
  const std::string_view label = window.design().label;
  return OneLine(label.empty() ? window.Caption : label);
}

}  // namespace zelvo
