#include "faces/browser/page_session.h"

#include <utility>

#include "faces/browser/host.h"
#include "faces/browser/input.h"
#include "faces/scripted/state.h"

namespace zelvo {

void PageSession::Run() {
  page().Build(commandDesigns);
  if (host::ZelvoKeptLength() > 0) {
    const std::string error = GoOnWith("The game that was under way");
    if (!error.empty()) page().WarnOfMisfit(error);
  }
  do {
    if (IsReplacing()) MakeNext();
    Attach(game());
    Start();
    while (!game().HasEnded()) WaitForEvent(Waiting());
  } while (IsReplacing());
}

std::string PageSession::GoOnWith(std::string_view name) {
  KeptGame kept = Read(name, TakeKeptGame());
  if (!kept.error.empty()) return kept.error;
  GoOn(std::move(kept), false);
  BeginWriting();
  return "";
}

// --- The game waits

void PageSession::GameWaits() {
  // A window of the page has one size; a game that comes from elsewhere learns of it.
  for (Window* window : std::vector<Window*>(game().Stack())) {
    if (window->extent != Extent::Normal) game().Resize(*window, Extent::Normal);
  }
  // A game in which nothing was done yet leaves alone what lies in the storage.
  if (CanDo(Command::TakeBack)) BeginWriting();
  Follow();
  page().SyncCommands(CanDo(Command::TakeBack), CanDo(Command::DoAgain));
}

/// Only ever adds to what lies there, or replaces it in one step.
void PageSession::Write(const std::string& lines, bool anew, bool /*lasting*/) {
  host::ZelvoStore(lines.data(), lines.size(), anew ? 1 : 0);
}

// --- The player

bool PageSession::CarryOut(std::string_view command) {
  if (command == "takeBack") {
    if (CanDo(Command::TakeBack)) page().Say(takenBack);
    TakeBack();
  } else if (command == "doAgain") {
    if (CanDo(Command::DoAgain)) page().Say(doneAgain);
    DoAgain();
  } else if (command == "keep") {
    const std::string text = Text();
    host::ZelvoKeep(text.data(), text.size());
  } else if (command.substr(0, 5) == "goOn ") {
    const std::string_view name = command.substr(5);
    const std::string error = GoOnWith(name);
    if (error.empty()) {
      page().SetFile(name);
    } else {
      page().Warn(error);
    }
  } else if (command == "state") {
    const std::string line = "{\"state\":" + StateAsJson(game()) + '}';
    host::ZelvoPrint(line.data(), line.size());
  } else {
    return false;
  }
  return true;
}

}  // namespace zelvo
