#include "faces/session.h"

#include <algorithm>
#include <utility>

namespace zelvo {
namespace {

/// True if something came that is more than moves of the mouse and the passing of time.
bool IsWorthWaitingFor(const GameList& list, std::size_t since) {
  return std::any_of(list.begin() + static_cast<std::ptrdiff_t>(since), list.end(),
                     [](const Entry& entry) {
                       return entry.kind != Entry::Kind::Hover && entry.kind != Entry::Kind::Back;
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
  const bool isWhole = kept.IsWhole();
  Replace(Beginning(std::move(kept.list), kept.standing), isWritten && isWhole);
}

// --- The list

void Session::GoOnWriting() {
  writes_ = true;
  written_ = Written::AllOf(journal_->list());
}

void Session::EndWriting() {
  writes_ = false;
  written_.reset();
}

void Session::Follow() {
  if (IsReplacing() || game_->HasEnded() || !game_->IsOpen()) return;
  history_.Follow(*journal_);
  if (!writes_) return;
  const GameList& list = journal_->list();
  const bool anew = !written_;
  const std::string lines = anew ? Text() : LinesSince(*game_, list, *written_);
  if (lines.empty()) return;
  const bool lasting = IsWorthWaitingFor(list, anew ? 0 : written_->entries);
  written_ = Written::AllOf(list);
  Write(lines, anew, lasting);
}

}  // namespace zelvo
