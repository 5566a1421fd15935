#include "faces/browser/page_session.h"

#include <utility>

#include "faces/browser/host.h"
#include "faces/browser/input.h"
#include "faces/kept_game.h"
#include "faces/scripted/state.h"

namespace zelvo {

void PageSession::Run() {
  MakeGame();
  page().Build(commandDesigns);
  next_.emplace();
  const std::string text = TakeKeptGame();
  if (!text.empty()) {
    if (auto list = ReadKept("The game that was under way", text)) next_ = std::move(list);
  }
  stores_ = !next_->empty();
  while (next_) {
    if (game_->HasEnded()) MakeGame();
    Play(*std::exchange(next_, std::nullopt));
  }
}

/// Each game stands where the one before it stood, so what the page shows of it stays as it is.
void PageSession::MakeGame() {
  game_.reset();
  journal_.emplace(*this);
  game_.emplace(*journal_);
  journal_->Attach(*game_);
  Attach(*game_);
}

void PageSession::Play(GameList list) {
  stored_ = {};
  journal_->whenPlayed = [this] { history_.Settle(*journal_); };
  journal_->Start(std::move(list));
  while (!game_->HasEnded()) WaitForEvent(Waiting());
}

void PageSession::Replace(GameList list) {
  stores_ = true;
  next_ = std::move(list);
  journal_->Abandon();
}

std::optional<GameList> PageSession::ReadKept(std::string_view name, std::string_view text) {
  KeptGame kept = ReadKeptGame(text);
  if (kept.error.empty()) return kept.ends ? WithoutTheEnd(std::move(kept.list)) : kept.list;
  page().Warn(std::string(name) + " cannot be gone on with: " + kept.error + ".");
  return std::nullopt;
}

// --- The game waits

void PageSession::GameWaits() {
  // A window of the page has one size; a game that comes from elsewhere learns of it.
  for (Window* window : std::vector<Window*>(game_->Stack())) {
    if (window->extent != Extent::Normal) game_->Resize(*window, Extent::Normal);
  }
  history_.Follow(*journal_);
  page().SyncCommands(History::CanTakeBack(*journal_), history_.CanDoAgain(*journal_));
  stores_ = stores_ || History::CanTakeBack(*journal_);
  if (stores_) Store();
}

/// Only ever adds to what lies there, or replaces it in one step.
void PageSession::Store() {
  const GameList& list = journal_->list();
  const bool anew = stored_.entries == 0;
  const std::string lines = anew ? TextOf(*game_, list) : LinesSince(*game_, list, stored_);
  stored_ = Written::AllOf(list);
  if (!lines.empty()) host::ZelvoStore(lines.data(), lines.size(), anew ? 1 : 0);
}

// --- The player

bool PageSession::CarryOut(std::string_view command) {
  if (command == "takeBack") {
    if (History::CanTakeBack(*journal_)) Replace(history_.TakeBack(*journal_));
  } else if (command == "doAgain") {
    if (history_.CanDoAgain(*journal_)) Replace(history_.DoAgain(*journal_));
  } else if (command == "keep") {
    const std::string text = TextOf(*game_, journal_->list());
    host::ZelvoKeep(text.data(), text.size());
  } else if (command.substr(0, 5) == "goOn ") {
    auto list = ReadKept(command.substr(5), TakeKeptGame());
    if (!list) return true;
    history_.Forget();
    Replace(std::move(*list));
  } else if (command == "state") {
    const std::string line = "{\"state\":" + StateAsJson(*game_) + '}';
    host::ZelvoPrint(line.data(), line.size());
  } else {
    return false;
  }
  return true;
}

}  // namespace zelvo
