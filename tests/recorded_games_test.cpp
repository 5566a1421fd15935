#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <regex>
#include <set>

#include "faces/scripted/variables.h"
#include "presentation/cues.h"
#include "tests/play.h"
#include "tests/recorded.h"

namespace zelvo::test {
namespace {

/// One thing that a game holds: its name, and what it holds, an empty text if it is not there.
struct Held {
  std::string name;
  std::function<std::string(Game&)> value;
};

std::string Describe(const Control& control) {
  if (!control.window().IsLoaded()) return "";
  std::string text = '"' + control.Caption + control.Text + '"';
  if (!control.Tag.empty()) text += " tag " + control.Tag;
  if (control.Picture != PictureId::None) text.append(" ").append(PictureOwner(control.Picture));
  if (!control.Visible) text += " hidden";
  if (!control.Enabled()) text += " disabled";
  if (control.Value()) text += " chosen";
  if (control.Interval() != 0) text += " every " + std::to_string(control.Interval());
  return text;
}

std::string Describe(const Window& window) {
  if (!window.IsLoaded()) return "not loaded";
  const std::string inHand = window.inHand != nullptr ? ", " + window.inHand->FullName() : "";
  return window.Caption + (window.IsShown() ? " shown" : " hidden") + inHand;
}

std::vector<Held> Everything(Game& game) {
  std::vector<Held> all = {
      {"pointer", [](Game& g) { return std::to_string(static_cast<int>(g.pointer())); }}};
  for (const SharedVariable& variable : SharedVariables()) {
    for (int index = variable.first; index <= std::max(variable.first, variable.last); ++index) {
      const int at = variable.IsArray() ? index : Control::noIndex;
      const std::string suffix = variable.IsArray() ? "(" + std::to_string(index) + ")" : "";
      const auto read = [&variable, at](Game& g) { return ReadVariable(g, {&variable, at}); };
      all.push_back({std::string(variable.name) + suffix, read});
    }
  }
  for (const Window* window : game.Windows()) {
    const std::string name(window->name());
    all.push_back({name, [window](Game&) { return Describe(*window); }});
    for (const Control* control : window->controls()) {
      all.push_back(
          {name + "." + control->FullName(), [control](Game&) { return Describe(*control); }});
    }
  }
  std::ranges::sort(all, {}, &Held::name);
  return all;
}

/// Plays commands, and records what each of them brings: the line that is printed, and all that is
/// not as it was before; behind "..." what a wait on the way shows. What a command sets is no news.
class Recorder : public Scripted {
 public:
  /// Records nothing of the first commands.
  Recorder(std::vector<std::string> script, std::size_t unrecorded)
      : script_(std::move(script)), unrecorded_(unrecorded), recording_(unrecorded == 0) {}
  std::string recorded;

 private:
  bool NextCommand(std::string& command) override {
    const bool isOver = next_ == script_.size();
    const std::string next = isOver ? "" : script_[next_];
    const bool isRecorded = next_ >= unrecorded_;
    const bool brings = isRecorded && !next.starts_with("set ") && !next.starts_with("clock ");
    if (recording_ || brings) NoteChanges("");
    if (isOver) return false;
    command = next;
    ++next_;
    recording_ = brings;
    if (isRecorded) recorded += "> " + command + "\n";
    return true;
  }
  void Print(const std::string& line) override {
    if (line.find("\"error\"") != std::string::npos) recording_ = true;
    if (recording_) recorded += line + "\n";
  }
  void YieldUntilEvent() override {
    if (recording_) NoteChanges("...\n");
    Scripted::YieldUntilEvent();
  }
  void NoteChanges(const std::string& heading) {
    std::string changes;
    for (std::size_t i = 0; i < held_.size(); ++i) {
      std::string value = held_[i].value(game());
      if (value == last_[i]) continue;
      last_[i] = value;
      std::erase(value, '\r');
      std::ranges::replace(value, '\n', '/');
      if (!value.empty()) changes += held_[i].name + " " + value + "\n";
    }
    if (recording_ && !changes.empty()) recorded += heading + changes;
  }

  std::vector<std::string> script_;
  std::size_t unrecorded_;
  bool recording_;
  std::size_t next_ = 0;
  std::vector<Held> held_ = Everything(game());
  std::vector<std::string> last_ = std::vector<std::string>(held_.size());
};

/// Plays the commands of a recording anew. It holds a game from the program's start on, or parts
/// behind titles, each from the first rest of a new game on, in which the computer has other sums
/// than the player, so that neither side's can pass for the other's, and no working sum is empty,
/// so that a rule that takes one for empty is seen.
std::string RecordAnew(const std::string& recording) {
  const auto newGame = Pieces(
      "click GST.CMDSTART | set GFM.CCredit.Caption \"$1,200,000\" | "
      "set LotValue(99) 60000 | set Tally 12 | set Idx 14 | set WorkWorth 15");
  struct Part {
    std::string title;
    std::vector<std::string> script;
  };
  std::vector<Part> parts(1);
  for (const std::string& line : Pieces(recording, '\n')) {
    if (line.starts_with("== ")) parts.push_back({line + "\n", newGame});
    if (line.starts_with("> ")) parts.back().script.push_back(line.substr(2));
  }
  std::string recorded;
  for (const auto& [title, script] : parts) {
    if (script.empty()) continue;
    Recorder game(script, title.empty() ? 0 : newGame.size());
    game.Run();
    recorded += title + game.recorded;
  }
  return recorded;
}

// A new recording begins as commands alone, each behind "> ", with a title behind "== " ahead of
// each part.
TEST(RecordedGames, GoAsTheyWent) {
  std::set<std::string> heard;
  for (const auto& entry : std::filesystem::directory_iterator(ZELVO_SOURCE_DIR "/tests/games")) {
    const std::string file = "games/" + entry.path().filename().string();
    const std::string recorded = RecordAnew(ReadTestFile(file));
    static const std::regex cue(R"(\{"file":[^}]*\})");
    heard.insert(std::sregex_token_iterator(recorded.begin(), recorded.end(), cue), {});
    ExpectAsRecorded(file, recorded, [](const std::string& line) {
      return line.starts_with("> ") || line.starts_with("== ");
    });
  }
  for (int row = 0; row < static_cast<int>(Cue::Count); ++row) {
    const Cue known = static_cast<Cue>(row);
    const std::string waits = CueWaits(known) ? "true" : "false";
    EXPECT_TRUE(heard.contains(R"({"file":")" + CueFile(known) + R"(","waits":)" + waits + "}"))
        << CueFile(known);
  }
}

}  // namespace
}  // namespace zelvo::test
