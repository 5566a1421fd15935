#include "faces/browser/design.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "faces/scripted/json_text.h"
#include "faces/shown.h"
#include "presentation/cues.h"
#include "surface/keyboard.h"
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
/// As the browser names the keys that take a step.
constexpr std::array<std::string_view, 4> stepKeys = {"ArrowLeft", "ArrowRight", "ArrowUp",
                                                      "ArrowDown"};
static_assert(stepKeys.size() == steps.size());
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
  std::string Text() const { return (text_.empty() ? "{" : text_) + '}'; }

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

/// Null for an arrangement that the window has not.
std::string SizeAsJson(int width, int height) {
  return width == 0 ? "null" : Array(std::array{width, height}, Number);
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

/// The places of windows and controls in the lists that the page gets, by which it is told of them.
class Places {
 public:
  Places(const std::vector<const Window*>& windows, const std::vector<const Control*>& controls)
      : windows_(windows), controls_(controls) {}
  std::string Of(const Window& window) const { return In(windows_, &window); }
  std::string Of(const Control& control) const { return In(controls_, &control); }
  std::string Of(const std::vector<Control*>& controls) const {
    return Array(controls, [this](const Control* control) { return Of(*control); });
  }

 private:
  template <class List, class Item>
  static std::string In(const List& list, Item item) {
    return Number(static_cast<int>(std::find(list.begin(), list.end(), item) - list.begin()));
  }

  const std::vector<const Window*>& windows_;
  const std::vector<const Control*>& controls_;
};

/// Where each key that takes a step leads to.
std::string StepsAsJson(const Control& control, const Arrangement& arrangement,
                        const Places& places) {
  Object object;
  for (const Step step : steps) {
    const Control* next = Neighbour(control, step, arrangement);
    if (next != nullptr) object.Add(stepKeys[static_cast<std::size_t>(step)], places.Of(*next));
  }
  return object.Text();
}

std::string AsJson(const Control& control, const Places& places) {
  const ControlDesign& design = control.design();
  const WindowDesign& window = control.window().design();
  Object object;
  object.Add("id", Quoted(std::string(control.window().name()) + "." + control.FullName()))
      .Add("window", places.Of(control.window()))
      .Add("kind", Name(kindNames, control.kind()))
      .Add("box", AsJson(control.Place()))
      .Add("tall", AsJson(control.Place(window.tall)))
      .Add("low", AsJson(control.Place(window.low)))
      .Add("look", AsJson(design.look))
      .Add("clicks", Bool(control.IsClickable()))
      .Add("hovers", Bool(control.handlers.mouseMove != nullptr))
      .Add("speech", Name(speechNames, design.speech))
      .Add("key", Name(keyNames, design.key));
  if (design.group != nullptr) {
    object.Add("group", Quoted(design.group->name)).Add("walked", Bool(design.group->walked));
  }
  if (WalkedGroup(control) != nullptr) {
    object.Add("steps", Object()
                            .Add("box", StepsAsJson(control, {}, places))
                            .Add("tall", StepsAsJson(control, window.tall, places))
                            .Add("low", StepsAsJson(control, window.low, places))
                            .Text());
  }
  return object.Text();
}

std::string AsJson(const Window& window, const Places& places) {
  const WindowDesign& design = window.design();
  return Object()
      .Add("id", Quoted(design.name))
      .Add("box", SizeAsJson(design.width, design.height))
      .Add("tall", SizeAsJson(design.tall.width, design.tall.height))
      .Add("low", SizeAsJson(design.low.width, design.low.height))
      .Add("ground", ColorText(design.ground))
      .Add("dialog", Bool(design.titleBar != TitleBar::Sizable))
      .Add("titled", Bool(design.titleBar != TitleBar::NoBorder))
      .Add("closes", Bool(window.HasCloseBox()))
      .Add("clicks", Bool(window.handlers.click != nullptr))
      .Add("hovers", Bool(window.handlers.mouseMove != nullptr))
      .Add("order", places.Of(ReadingOrder(window)))
      .Add("stops", Array(StopsOf(window), [&](const Stop& stop) { return places.Of(stop); }))
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

std::string AsJson(const QuestionDesign& design) {
  return Object().Add("text", Quoted(design.text)).Add("key", Quoted(design.key)).Text();
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
  const Places places(windows, controls);
  const auto windowJson = [&](const Window* window) { return AsJson(*window, places); };
  const auto controlJson = [&](const Control* control) { return AsJson(*control, places); };
  return Object()
      .Add("windows", Array(windows, windowJson))
      .Add("controls", Array(controls, controlJson))
      .Add("stepKeys", Array(stepKeys, [](std::string_view key) { return Quoted(key); }))
      .Add("goneFor", Number(goneForMilliseconds))
      .Add("clearance", Number(clearance))
      .Add("cues", CuesAsJson())
      .Add("commands", Array(commands, [](const CommandDesign& each) { return AsJson(each); }))
      .Add("nothing", Quoted(nothingBeginsWith))
      .Add("questions", Array(questionDesigns, [](const QuestionDesign& q) { return AsJson(q); }))
      .Text();
}

}  // namespace zelvo
