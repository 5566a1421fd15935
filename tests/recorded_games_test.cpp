#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "faces/headless/variables.h"
#include "tests/play.h"

namespace zelvo::test {
namespace {

/// Everything that a game holds, by name.
using Snapshot = std::map<std::string, std::string>;

std::string Describe(const Control& control) {
  std::string text = '"' + control.Caption + control.Text + '"';
  if (!control.Tag.empty()) text += " tag " + control.Tag;
  if (control.Picture != PictureId::None) text.append(" ").append(PictureOwner(control.Picture));
  if (!control.Visible) text += " hidden";
  if (!control.Enabled()) text += " disabled";
  if (control.Value()) text += " chosen";
  if (control.Interval() != 0) text += " every " + std::to_string(control.Interval());
  return text;
}

Snapshot Take(Game& game) {
  Snapshot all = {{"pointer", std::to_string(static_cast<int>(game.pointer()))}};
  for (const SharedVariable& variable : SharedVariables()) {
    for (int index = variable.first; index <= std::max(variable.first, variable.last); ++index) {
      const int at = variable.IsArray() ? index : Control::noIndex;
      const std::string suffix = variable.IsArray() ? "(" + std::to_string(index) + ")" : "";
      all[std::string(variable.name) + suffix] = ReadVariable(game, {&variable, at});
    }
  }
  for (Window* window : game.Windows()) {
    const std::string name(window->name());
    all[name] = window->IsLoaded() ? window->Caption + (window->IsShown() ? " shown" : " hidden")
                                   : "not loaded";
    for (const Control* control : window->controls()) {
      if (window->IsLoaded()) all[name + "." + control->FullName()] = Describe(*control);
    }
  }
  return all;
}

/// Plays the commands of a recording, and records what each of them brings: the line that is
/// printed, and all that is not as it was before.
class Recorder : public Scripted {
 public:
  explicit Recorder(std::istream& recording) {
    for (std::string line; std::getline(recording, line);) {
      if (line.starts_with("> ")) script_.push_back(line.substr(2));
    }
  }
  std::string recorded;

 private:
  bool NextCommand(std::string& command) override {
    Snapshot now = Take(game());
    for (const auto& [name, value] : now) {
      const auto before = last_.find(name);
      if (before != last_.end() && before->second == value) continue;
      std::string line = name + " " + value;
      std::erase(line, '\r');
      std::replace(line.begin(), line.end(), '\n', '/');
      recorded += line + "\n";
    }
    last_ = std::move(now);
    if (next_ == script_.size()) return false;
    command = script_[next_++];
    recorded += "> " + command + "\n";
    return true;
  }
  void Print(const std::string& line) override { recorded += line + "\n"; }

  std::vector<std::string> script_;
  std::size_t next_ = 0;
  Snapshot last_;
};

// A rule that is changed on purpose changes recordings: look at the difference to the file that the
// failing test leaves, and put that in the place of the recording. A new recording begins as
// commands alone, each behind "> ".
TEST(RecordedGames, GoAsTheyWent) {
  for (const auto& file : std::filesystem::directory_iterator(ZELVO_SOURCE_DIR "/tests/games")) {
    const std::string name = file.path().filename();
    std::ifstream stream(file.path());
    std::stringstream expected;
    expected << stream.rdbuf();
    Recorder game(expected);
    game.PlayScript();
    if (game.recorded == expected.str()) continue;
    const std::string left = ZELVO_PROGRAMS "/" + name;
    std::ofstream(left) << game.recorded;
    std::istringstream was(expected.str()), is(game.recorded);
    std::string command, line, other;
    while (std::getline(was, line) && std::getline(is, other) && line == other) {
      if (line.starts_with("> ")) command = line;
    }
    ADD_FAILURE() << name << ", after " << command << "\nrecorded: " << line
                  << "\nnow:      " << other << "\nall of it: " << left;
  }
}

}  // namespace
}  // namespace zelvo::test
