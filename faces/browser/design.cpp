#include "faces/browser/design.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "faces/scripted/json_text.h"
#include "presentation/cues.h"
#include "surface/speech.h"

namespace zelvo {
namespace {

constexpr std::array<std::string_view, 8> kindNames = {"button", "checkbox", "option",  "label",
                                                       "image",  "panel",    "textbox", "timer"};
constexpr std::array<std::string_view, 3> alignNames = {"left", "center", "right"};
constexpr std::array<std::string_view, 5> borderNames = {"none", "line", "sunken", "raised",
                                                         "road"};
constexpr std::array<std::string_view, 3> speechNames = {"", "news", "standing"};
constexpr std::array<std::string_view, 4> keyNames = {"", "Escape", "F1", "Ctrl+Enter"};
constexpr std::array<std::string_view, 5> commandNames = {"keep", "goOn", "takeBack", "doAgain",
                                                          "setPace"};

template <class E, std::size_t n>
std::string Name(const std::array<std::string_view, n>& names, E value) {
  return Quoted(names[static_cast<std::size_t>(value)]);
}

std::string Number(int number) { return std::to_string(number); }

/// Empty if it is transparent.
std::string ColorText(Color color) {
  if (color == transparent) return "\"\"";
  std::string text = "\"#";
  for (int shift = 20; shift >= 0; shift -= 4) text += "0123456789abcdef"[color >> shift & 0xf];
  return text + '"';
}

/// A JSON object in the making.
class Object {
 public:
  Object& Add(std::string_view name, std::string_view json) {
    text_.append(text_.empty() ? "{" : ",").append(Quoted(name)).append(":").append(json);
    return *this;
  }
  std::string Text() const { return text_ + '}'; }

 private:
  std::string text_;
};

template <class Items, class Function>
std::string Array(const Items& items, Function asJson) {
  std::string json;
  for (const auto& item : items) json.append(json.empty() ? "" : ",").append(asJson(item));
  return '[' + json + ']';
}

std::string AsJson(const Box& box) {
  return Array(std::array{box.left, box.top, box.width, box.height}, Number);
}

std::string AsJson(const Look& look) {
  return Object()
      .Add("ink", ColorText(look.ink))
      .Add("ground", ColorText(look.ground))
      .Add("letterHeight", Number(look.letterHeight))
      .Add("bold", Bool(look.bold))
      .Add("align", Name(alignNames, look.align))
      .Add("border", Name(borderNames, look.border))
      .Add("vertical", Bool(look.vertical))
      .Add("textShare", Number(static_cast<int>(100 * look.textShare)))
      .Text();
}

std::string AsJson(const Control& control, int window) {
  const ControlDesign& design = control.design();
  const bool marked = control.kind() == Kind::Option || control.kind() == Kind::CheckBox;
  Object object;
  object.Add("id", Quoted(std::string(control.window().name()) + "." + control.FullName()))
      .Add("window", Number(window))
      .Add("kind", Name(kindNames, control.kind()))
      .Add("box", AsJson(control.Place()))
      .Add("tall", AsJson(control.TallPlace()))
      .Add("look", AsJson(design.look))
      .Add("clicks", Bool(marked || control.handlers.click != nullptr))
      .Add("hovers", Bool(control.handlers.mouseMove != nullptr))
      .Add("level", Number(design.tabLevel))
      .Add("speech", Name(speechNames, design.speech))
      .Add("key", Name(keyNames, design.key));
  if (design.group != nullptr) {
    object.Add("group", Quoted(design.group->name)).Add("walked", Bool(design.group->walked));
  }
  return object.Text();
}

std::string AsJson(const Window& window) {
  const WindowDesign& design = window.design();
  const std::array tall = {design.tall.width, design.tall.height};
  return Object()
      .Add("id", Quoted(design.name))
      .Add("name", Quoted(SpokenName(window)))
      .Add("width", Number(design.width))
      .Add("height", Number(design.height))
      .Add("tall", design.tall.width == 0 ? "null" : Array(tall, Number))
      .Add("ground", ColorText(design.ground))
      .Add("dialog", Bool(design.titleBar != TitleBar::Sizable))
      .Add("titled", Bool(design.titleBar != TitleBar::NoBorder))
      .Add("closes", Bool(window.HasCloseBox()))
      .Add("clicks", Bool(window.handlers.click != nullptr))
      .Add("hovers", Bool(window.handlers.mouseMove != nullptr))
      .Text();
}

std::string AsJson(const CommandDesign& design) {
  return Object()
      .Add("does", Name(commandNames, design.command))
      .Add("name", Quoted(design.name))
      .Add("key", Quoted(design.key))
      .Add("pace", Number(design.pace))
      .Text();
}

/// The files of the cues, each once, in the order of the program.
std::string CuesAsJson() {
  std::vector<std::string> files;
  for (int cue = 0; cue < static_cast<int>(Cue::Count); ++cue) {
    const std::string file = CueFile(static_cast<Cue>(cue));
    if (std::find(files.begin(), files.end(), file) == files.end()) files.push_back(file);
  }
  return Array(files, [](const std::string& file) { return Quoted(file); });
}

}  // namespace

std::string DesignAsJson(const std::vector<const Window*>& windows,
                         const std::vector<const Control*>& controls,
                         std::span<const CommandDesign> commands) {
  const auto windowJson = [](const Window* window) { return AsJson(*window); };
  const auto controlJson = [&windows](const Control* control) {
    const auto window = std::find(windows.begin(), windows.end(), &control->window());
    return AsJson(*control, static_cast<int>(window - windows.begin()));
  };
  return Object()
      .Add("windows", Array(windows, windowJson))
      .Add("controls", Array(controls, controlJson))
      .Add("cues", CuesAsJson())
      .Add("commands", Array(commands, [](const CommandDesign& each) { return AsJson(each); }))
      .Text();
}

}  // namespace zelvo
