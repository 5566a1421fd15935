#pragma once

#include <string>
#include <string_view>

namespace zelvo {

class Control;
class Window;
struct Deed;

/// A reading of the local wall clock.
struct TimeOfDay {
  int hour = 0;
  int minute = 0;
  int second = 0;
};

enum class MousePointer : unsigned char { Arrow = 1, Hourglass = 11 };

/// The styles of message boxes: which buttons and which icon.
enum class MessageStyle : unsigned char { Ok = 0, YesNoQuestion = 36, OkExclamation = 48 };
enum class Answer : unsigned char { Ok = 1, Yes = 6, No = 7 };

/// The file that the path of a wave file ends in.
inline std::string_view FileNameOf(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);
}

/// The only door to the machine. A face implements it; everything that a test wants to steer
/// (clock, player, sound) lies behind it.
class Platform {
 public:
  Platform() = default;
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  virtual ~Platform() = default;

  /// Runs every event that is pending, then returns.
  virtual void Yield() = 0;
  /// The same, but if nothing is pending sleeps until something is.
  virtual void YieldUntilEvent() = 0;
  /// Runs events until the window is no longer shown, or the program has ended.
  virtual void RunModal(Window& window) = 0;
  /// Asks the player; returns one of the style's answers.
  virtual Answer MessageBox(const std::string& text, MessageStyle style,
                            const std::string& title) = 0;
  /// Plays a wave file, cutting off the one that plays; with `waits` returns at its end. False if
  /// the machine has no sound player at all; a missing file is no failure.
  virtual bool PlaySound(const std::string& path, bool waits) = 0;
  /// The local time of day.
  virtual TimeOfDay WallClock() = 0;
  /// The folder with the wave files, with or without a trailing backslash.
  virtual std::string AppFolder() = 0;
  virtual void SetPointer(MousePointer pointer) = 0;
  /// Gives a control the keyboard focus.
  virtual void SetFocus(Control& control) = 0;
  /// Paints at once what was written to a window.
  virtual void Refresh(Window& window) = 0;
  /// A timer was switched on or off or got a new interval (see `Control::Ticks`).
  virtual void TimerChanged(Control& timer) = 0;
  /// The surface has taken a deed of the player or a tick; told ahead of its handlers.
  virtual void Took(const Deed& /*deed*/) {}
  /// The program is over; no further event is raised.
  virtual void End() = 0;
};

}  // namespace zelvo
