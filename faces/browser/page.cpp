#include "faces/browser/page.h"

#include <algorithm>

#include "faces/browser/design.h"
#include "faces/browser/host.h"
#include "faces/scripted/json_text.h"
#include "surface/keyboard.h"
#include "surface/speech.h"
#include "surface/windows/picture.h"

namespace zelvo {
namespace {

std::string Number(long long number) { return std::to_string(number); }

std::string AsJson(int index, const Control& control, const Shown& shown) {
  std::string json = "{\"at\":" + Number(index);
  json.append(",\"caption\":").append(Quoted(shown.caption));
  if (control.kind() == Kind::TextBox) json.append(",\"text\":").append(Quoted(shown.text));
  json.append(",\"picture\":").append(Quoted(PictureFile(shown.picture)));
  json.append(",\"name\":").append(Quoted(SpokenName(control)));
  if (const char initial = InitialOf(control)) {
    json.append(",\"initial\":").append(Quoted(std::string_view(&initial, 1)));
  }
  json.append(",\"enabled\":").append(Bool(shown.enabled));
  json.append(",\"value\":").append(Bool(shown.value));
  json.append(",\"visible\":").append(Bool(shown.visible));
  json.append(",\"inHand\":").append(Bool(shown.inHand));
  return json + '}';
}

}  // namespace

Page::Page(Surface& surface) : surface_(surface) {
  for (Window* window : surface.Windows()) {
    frames_.push_back({window, {}});
    for (const Control* control : window->controls()) {
      if (control->IsDrawn()) drawn_.push_back({control, {}});
    }
  }
}

void Page::Build(std::span<const CommandDesign> commands) {
  std::vector<const Control*> controls;
  for (const Drawn& drawn : drawn_) controls.push_back(drawn.control);
  std::vector<const Window*> windows;
  for (const Frame& frame : frames_) windows.push_back(frame.window);
  const std::string json = DesignAsJson(windows, controls, commands);
  host::ZelvoDesign(json.data(), json.size());
}

void Page::Sync() {
  SyncFrames();
  SyncControls();
  if (changes_.empty()) return;
  const std::string json = '{' + changes_ + '}';
  changes_.clear();
  host::ZelvoShow(json.data(), json.size());
}

void Page::SyncWaiting(std::string_view waiting) {
  if (waiting_ != waiting) Tell("waiting", Quoted(waiting_ = waiting));
  Sync();
}

void Page::SyncCommands(bool canTakeBack, bool canDoAgain) {
  const std::string can = '[' + Bool(canTakeBack) + ',' + Bool(canDoAgain) + ']';
  if (can_ != can) Tell("can", can_ = can);
}

bool Page::Answer(std::string_view asked) {
  const auto design =
      std::find_if(questionDesigns.begin(), questionDesigns.end(),
                   [asked](const QuestionDesign& each) { return each.text == asked; });
  if (design == questionDesigns.end()) return false;
  Tell("said", Quoted(AnswerTo(design->question)));
  Sync();
  return true;
}

std::string Page::AnswerTo(Question question) const {
  if (question == Question::Standing) return SpokenStanding(surface_);
  if (!messages_.empty()) return messages_.back().text;
  return surface_.Stack().empty() ? "" : SpokenNews(*surface_.Stack().back());
}

/// The open windows as they stand, the lowest first, and all titles that are new.
void Page::SyncFrames() {
  if (stack_ != surface_.Stack()) {
    stack_ = surface_.Stack();
    std::string places;
    for (const Window* window : stack_) {
      const Control* clear = window->keepsClearOf;
      places.append(places.empty() ? "" : ",").append("{\"at\":").append(Number(PlaceOf(*window)));
      places.append(",\"clearOf\":").append(Number(clear == nullptr ? -1 : PlaceOf(*clear))) += '}';
    }
    Tell("stack", '[' + places + ']');
  }
  std::string titles;
  for (int i = 0; i < static_cast<int>(frames_.size()); ++i) {
    Frame& frame = frames_[i];
    if (!frame.window->IsShown() || frame.title == frame.window->Caption) continue;
    frame.title = frame.window->Caption;
    titles.append(titles.empty() ? "" : ",").append("{\"at\":").append(Number(i));
    titles.append(",\"title\":").append(Quoted(*frame.title));
    titles.append(",\"name\":").append(Quoted(SpokenName(*frame.window))) += '}';
  }
  if (!titles.empty()) Tell("titles", '[' + titles + ']');
}

void Page::SyncControls() {
  std::string controls;
  for (int i = 0; i < static_cast<int>(drawn_.size()); ++i) {
    const Control& control = *drawn_[i].control;
    if (!control.window().IsShown() || drawn_[i].shown.Shows(control)) continue;
    drawn_[i].shown = Shown::Of(control);
    controls.append(controls.empty() ? "" : ",").append(AsJson(i, control, drawn_[i].shown));
  }
  if (!controls.empty()) Tell("controls", '[' + controls + ']');
}

void Page::Warn(std::string_view text) { Tell("notice", Quoted(text)); }

void Page::WarnOfMisfit(std::string_view text) { Tell("misfit", Quoted(text)); }

void Page::Say(std::string_view word) { Tell("word", Quoted(word)); }

void Page::SetFile(std::string_view name) { Tell("file", Quoted(name)); }

void Page::OpenMessage(std::string_view text, MessageStyle style, std::string_view title) {
  std::string json = "{\"text\":" + Quoted(text);
  json.append(",\"title\":").append(Quoted(title));
  json.append(",\"style\":").append(Number(static_cast<int>(style)));
  messages_.push_back({std::string(text), json + '}'});
  Tell("message", messages_.back().json);
}

void Page::CloseMessage() {
  messages_.pop_back();
  Tell("message", messages_.empty() ? "null" : messages_.back().json);
}

void Page::SetPointer(MousePointer pointer) {
  Tell("busy", Bool(pointer == MousePointer::Hourglass));
}

void Page::Focus(const Control& control) {
  SyncControls();  // it may just have come up
  Tell("focus", Number(PlaceOf(control)));
}

void Page::Tell(std::string_view name, std::string_view json) {
  changes_.append(changes_.empty() ? "" : ",").append(Quoted(name)).append(":").append(json);
}

int Page::PlaceOf(const Control& control) const {
  const auto found = std::find_if(drawn_.begin(), drawn_.end(),
                                  [&](const Drawn& drawn) { return drawn.control == &control; });
  return found == drawn_.end() ? -1 : static_cast<int>(found - drawn_.begin());
}

int Page::PlaceOf(const Window& window) const {
  const auto found = std::find_if(frames_.begin(), frames_.end(),
                                  [&](const Frame& frame) { return frame.window == &window; });
  return static_cast<int>(found - frames_.begin());
}

}  // namespace zelvo
