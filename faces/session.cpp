#include "faces/session.h"

#include <algorithm>
#include <utility>

namespace zelvo {
namespace {

/// True if something came that the player did, and not the passing of time.
bool HasDeed(const GameList& list, std::size_t since) {
  return std::any_of(list.begin() + static_cast<std::ptrdiff_t>(since), list.end(),
                     [](const Entry& entry) {
                       return entry.kind == Entry::Kind::Click ||
                              entry.kind == Entry::Kind::Close || entry.kind == Entry::Kind::Answer;
                     });
}

}  // namespace

Session::Session(Platform& machine) : machine_(machine) { Make(); }

// --- The game

/// Each game stands where the one before it stood, so what a face shows of it stays as it is.
void Session::Make() {
  game_.reset();
  journal_.emplace(machine_);
  game_.emplace(*journal_);
  journal_->Attach(*game_);
  journal_->whenWaiting = [this] {
    if (IsBoardShown()) standing_ = journal_->Played();
  };
  standing_.reset();
  hasLeft_ = false;
}

void Session::Start() {
  journal_->whenPlayed = [this] { history_.Settle(*journal_); };
  journal_->Start(std::exchange(list_, {}));
}

/// The game that runs may stand deep in nested waits, which have to end first.
void Session::Replace(GameList list, bool isWritten) {
  replacing_ = true;
  list_ = std::move(list);
  written_.reset();
  if (isWritten) written_ = Written::AllOf(list_);
  journal_->Abandon();
  GameLetGo();
}

void Session::MakeNext() {
  Make();
  replacing_ = false;
}

// --- The player

bool Session::CanDo(Command command) const {
  if (IsReplacing() || game_->HasEnded()) return false;
  if (command == Command::TakeBack) return History::CanTakeBack(*journal_);
  if (command == Command::DoAgain) return history_.CanDoAgain(*journal_);
  return true;
}

void Session::TakeBack() {
  if (CanDo(Command::TakeBack)) Replace(history_.TakeBack(*journal_), false);
}

void Session::DoAgain() {
  if (CanDo(Command::DoAgain)) Replace(history_.DoAgain(*journal_), false);
}

KeptGame Session::Read(std::string_view name, std::string_view text) {
  KeptGame kept = ReadKeptGame(text);
  if (kept.error.empty()) return kept;
  kept.error = std::string(name) + " cannot be gone on with: " + kept.error + ".";
  return kept;
}

void Session::GoOn(KeptGame kept, bool isWritten) {
  history_.Forget();
  wroteBoard_ = kept.hasBoard;
  const bool isWhole = kept.IsWhole();
  Replace(Beginning(std::move(kept.list), kept.standing), isWritten && isWhole);
}

// --- The list

std::string Session::Text() {
  const GameList& list = journal_->list();
  // It may be asked for ahead of the next wait.
  if (IsBoardShown()) standing_ = Written::AllOf(list);
  return TextOf(*game_, standing_ ? Beginning(list, *standing_) : list);
}

void Session::GoOnWriting() {
  writes_ = true;
  written_ = standing_.value_or(Written::AllOf(journal_->list()));
  wroteBoard_ = standing_.has_value();
}

void Session::EndWriting() {
  writes_ = false;
  written_.reset();
  wroteBoard_ = false;
}

void Session::Follow() {
  if (IsReplacing() || game_->HasEnded() || !game_->IsOpen()) return;
  history_.Follow(*journal_);
  const bool comesAnew = std::exchange(hasLeft_, !IsBoardShown()) && !hasLeft_;
  if (comesAnew && wroteBoard_) NewGameBegins();
  if (!hasLeft_) standing_ = Written::AllOf(journal_->list());
  // A game that was left, or taken back to ahead of its board, stays as it is written.
  if (!writes_ || (hasLeft_ && (standing_ || wroteBoard_))) return;
  const GameList& list = journal_->list();
  const bool anew = !written_;
  const std::string lines = anew ? Text() : LinesSince(*game_, list, *written_);
  if (lines.empty()) return;
  const bool lasting = HasDeed(list, anew ? 0 : written_->entries);
  written_ = Written::AllOf(list);
  wroteBoard_ = !hasLeft_;
  Write(lines, anew, lasting);
}

}  // namespace zelvo
