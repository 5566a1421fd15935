#pragma once

#include <QEventLoop>
#include <QObject>
#include <functional>
#include <vector>

#include "faces/desktop/ticker.h"
#include "surface/surface.h"

namespace zelvo {

/// All that reaches the game on the desktop passes here, be it the player's or a tick: it is let
/// through, held until the game is ready for it, or dropped with the game that it was meant for.
class Gate final : public QObject {
 public:
  using Event = std::function<void(Surface&)>;

  /// The game's time while something is held.
  enum class Time : unsigned char { Passes, StandsStill };

  /// A reason to hold, for as long as it lives: the windows are just being drawn, or the game waits
  /// for something that is not to be disturbed.
  class Hold {
   public:
    Hold(Gate& gate, Time time);
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;
    ~Hold();

   private:
    Gate& gate_;
    Time time_;
  };
  /// A reason for the game itself to stand still wherever it waits: a dialog or menu of the
  /// program's own.
  class Pause {
   public:
    explicit Pause(Gate& gate) : gate_(gate), hold_(gate, Time::StandsStill) { ++gate_.pauses_; }
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
    ~Pause() { --gate_.pauses_; }

   private:
    Gate& gate_;
    Hold hold_;
  };

  /// See `Machine::tickLength`.
  explicit Gate(std::function<int(int)> tickLength);

  /// The game that all is for, ahead of its start; null if there is none. What was held for the one
  /// before it is dropped, and its timers are forgotten.
  void Attach(Surface* surface);
  /// That game, until it ends.
  Surface* Running() const;
  bool IsOpen() const;
  bool IsPaused() const { return pauses_ > 0; }

  /// Hands an event to the game. While the gate is shut it is held; of those with the same
  /// `subject` only the latest.
  void Deliver(const Event& event, const void* subject = nullptr);
  /// Called after each event that was let through.
  std::function<void()> whenDelivered;
  /// Calls once no handler of the game stands on the stack any more, from the event loop.
  void WhenIdle(std::function<void()> what);

  // For the platform's waits.

  /// Has what was held come ahead of all that comes next.
  void Release();
  /// Runs the event loop once. The game stands still until all that pauses it is over.
  void RunEvents(QEventLoop::ProcessEventsFlags flags);
  void StandStill() const;

  void TimerChanged(Control& timer) { ticker_.TimerChanged(timer); }
  void StopTicks() { ticker_.Clear(); }
  /// Makes the waits so many times as fast.
  void SetPace(int pace) { ticker_.SetPace(pace); }
  int pace() const { return ticker_.pace(); }

 private:
  struct Held {
    const void* subject;
    Event event;
  };

  void Tick();
  void LetIn();
  void RunIdle();

  Surface* surface_ = nullptr;
  std::vector<Held> held_;      // in its order
  std::function<void()> idle_;  // to be called when no handler is on the stack
  int depth_ = 0;               // events that the game is taking
  int holds_ = 0;
  int standstills_ = 0;  // those of them that let time stand still
  int pauses_ = 0;
  Ticker ticker_;
};

}  // namespace zelvo
