#pragma once

#include <functional>
#include <string>
#include <vector>

#include "journal/game_list.h"
#include "surface/surface.h"

namespace zelvo {

/// Stands between a game and its machine and keeps the list of what reaches the game: what the
/// surface takes, and what the machine answers. Played again, the list builds the same game, down
/// to the handlers that wait for something; where it ends, the machine takes over.
class Journal final : public Platform {
 public:
  /// For a game on that machine.
  explicit Journal(Platform& machine) : machine_(&machine) {}
  /// For a trial: the game has no machine and ends where the list does.
  Journal() = default;

  /// Ties the journal to the game that has it for its platform, ahead of the game's start.
  void Attach(Surface& surface) { surface_ = &surface; }

  /// Starts the program, plays a list into it, and lets the machine take over. If the list ends
  /// inside a wait, this returns when the wait and all that stands below it are over. A list that
  /// does not fit ends the game; `misfit` tells why.
  void Start(GameList list = {});
  /// What did not fit, in plain words; empty if nothing. The machine knows nothing of the game
  /// then.
  const std::string& misfit() const { return misfit_; }
  /// Called where the list is over, ahead of anything new. A trial calls it at the next wait; it
  /// does not if the list ends the program, or leads to its end with no further wait.
  std::function<void()> whenPlayed;
  /// Called wherever the game waits while the list is played, ahead of what comes next.
  std::function<void()> whenWaiting;
  /// How much of the list has been played so far.
  Written Played() const;

  /// All that has reached the game so far.
  const GameList& list() const { return list_; }
  /// The places in the list of what the player did and chose while the game was at rest: not in a
  /// wait that ends by itself.
  const std::vector<std::size_t>& deedsAtRest() const { return deedsAtRest_; }
  /// True while the game waits for nothing but the player.
  bool IsAtRest() const {
    return surface_->IsOpen() && (waits_.empty() || waits_.back() == WaitKind::ForPlayer);
  }

  /// Lets go of the game: its machine hears no more of it, and all its waits return at once.
  void Abandon();

  void Yield() override;
  void YieldUntilEvent() override;
  void RunModal(Window& window) override;
  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  bool PlaySound(const std::string& path, bool waits) override;
  TimeOfDay WallClock() override;
  std::string AppFolder() override;
  void SetPointer(MousePointer pointer) override;
  void SetFocus(Control& control) override;
  void Refresh(Window& window) override;
  void TimerChanged(Control& timer) override;
  void Took(const Deed& deed) override;
  void End() override;

 private:
  enum class WaitKind : unsigned char { Passing, ForPlayer };
  class Wait;

  bool HasMachine() const { return machine_ != nullptr && !playing_; }
  /// The next entry to be played; null if the game has ended, or after the machine has taken over
  /// because there is none.
  const Entry* Next();
  /// The same where the game waits.
  const Entry* NextInWait();
  /// The same where the game asks for an answer of that kind, which is then used up; an entry of
  /// another kind does not fit.
  const Entry* NextAnswer(Entry::Kind kind);
  void UseUp();
  void PlayDeed();
  /// Plays what happened inside a wait up to the entry that ends it; true if there is one.
  bool PlayUpTo(Entry::Kind end);
  void HandOver();
  void Record(const Entry& entry);
  void Misfit(const Entry& entry);

  Platform* machine_ = nullptr;
  Surface* surface_ = nullptr;
  GameList list_;
  std::size_t next_ = 0;    // of the list, while it is played
  std::uint32_t used_ = 0;  // of the run of that entry
  bool playing_ = false;
  std::string misfit_;
  std::vector<WaitKind> waits_;  // outermost first
  std::vector<std::size_t> deedsAtRest_;
  Control* focus_ = nullptr;  // where the keyboard was when the list ended
  int afterwards_ = 0;        // readings of the clock since the end of the program
};

}  // namespace zelvo
