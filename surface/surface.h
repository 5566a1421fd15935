#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "surface/deed.h"
#include "surface/platform.h"
#include "surface/window.h"

namespace zelvo {

/// The windows of a program, their life, and the way of the player's input to the handlers. The
/// windows themselves are members of what derives from it.
class Surface {
 public:
  explicit Surface(Platform& platform) : platform_(platform) {}
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  virtual ~Surface() = default;

  Platform& platform() const { return platform_; }
  /// All windows, loaded or not, in the order in which they were made.
  const std::vector<Window*>& Windows() const { return windows_; }
  /// The window of that name; null if there is none.
  Window* FindWindow(std::string_view name) const;
  /// What a picture shows, in words for those who do not see it; empty for none.
  virtual std::string_view MeaningOf(PictureId picture) const = 0;
  /// The control of a window that the player has in hand, which the faces mark; null if there is
  /// none.
  virtual const Control* InHand(const Window& window) const { return window.inHand; }

  /// The program's start: loads the first window.
  virtual void Start() = 0;

  // The life of a window.

  /// Gives a window its design values and raises its load event; nothing if it is loaded.
  void Load(Window& window);
  /// Shows a window in front of the others and returns at once.
  void Show(Window& window);
  /// Shows a window above the others and returns when it is hidden or unloaded and its handlers
  /// have ended.
  void ShowModal(Window& window);
  /// Hides a window; it keeps what it holds. Ends a modal show. The window that it was opened from
  /// comes to the front.
  void Hide(Window& window);
  /// Raises the events of unloading, then sets the window back to its design values in place.
  void Unload(Window& window);

  // How the windows stand, for the face to follow.

  /// The shown windows as the game put them, the lowest first.
  const std::vector<Window*>& Stack() const { return stack_; }
  /// Counts how often the game has brought a window to the front of the stack. When it has grown,
  /// the front window is to be seen, above the others and active, even if it stood there before:
  /// the player may have minimised or covered it.
  int broughtToFront() const { return broughtToFront_; }
  /// The window whose handler runs, the innermost one, where message boxes belong; null at rest.
  Window* AtWork() const { return atWork_; }

  // Operations of the application. After `End` they all return at once.

  void Yield();
  void YieldUntilEvent();
  Answer MessageBox(const std::string& text, MessageStyle style,
                    const std::string& title = "Zelvo");
  void SetPointer(MousePointer pointer);
  MousePointer pointer() const { return pointer_; }
  /// Gives a control the keyboard focus.
  void SetFocus(Control& control);
  void Refresh(Window& window);
  /// Stops the program: no further event is raised, and what still runs comes to its end unheard.
  void End();
  bool HasEnded() const { return ended_; }

  // The player's input, as a face delivers it. What cannot take it drops it.

  /// True while deeds and ticks are let in: no handler runs but those that wait. A wait for a modal
  /// window is over when the window is no longer shown, even if its platform has not yet returned.
  bool IsOpen() const;
  /// The window that takes input: the innermost modal one, else the main window that was made last.
  /// Null while none of these is shown.
  Window* InputWindow() const;
  /// Why the window or control takes no input now, in plain words; empty if it does.
  std::string_view WhyNoInput(Window& window);
  std::string_view WhyNoInput(Control& control);
  // Each is false if it was dropped.

  bool Click(Control& control);
  bool Click(Window& window);
  bool Hover(Control& control);
  bool Hover(Window& window);
  /// The close box.
  bool Close(Window& window);
  /// The player has changed a window's size or put it to `extent`.
  bool Resize(Window& window, Extent extent);
  /// A timer's interval is over.
  bool Tick(Control& timer);
  /// Any of these.
  bool Take(const Deed& deed);
  /// True while a tick of the timer can still come. A wait loop that looks for ticks ends without
  /// it, so that nothing waits for ever once the timer's window was closed under the loop.
  bool WillTick(const Control& timer) const { return !ended_ && timer.Ticks(); }

 protected:
  /// How deep handlers may run on top of one another before the main windows refuse input. No
  /// player comes near it; it keeps a script from exhausting the stack.
  static constexpr int deepest = 60;

  /// The game that the handlers work on.
  virtual Game& Self() = 0;

 private:
  friend class Window;
  class Wait;

  /// Runs a handler of the window, if there is one.
  template <class Handler, class... Arguments>
  void Raise(Window& window, Handler handler, Arguments&... arguments);
  void Activate(Window* window);
  void BringToFront(Window& window);
  void TakeOffStack(Window& window);

  Platform& platform_;
  std::vector<Window*> windows_;
  std::vector<Window*> modals_;  // outermost first; one that is hidden may still be ending
  std::vector<Window*> stack_;
  int broughtToFront_ = 0;
  Window* atWork_ = nullptr;
  MousePointer pointer_ = MousePointer::Arrow;
  int running_ = 0;                  // handlers on the stack
  int waiting_ = 0;                  // those of them that stand in the innermost wait or under it
  int messageBoxes_ = 0;             // open ones
  const Window* awaited_ = nullptr;  // the modal window of the innermost wait, if it is for one
  bool ended_ = false;
};

template <class W>
void WindowSlot<W>::LoadNow() {
  surface_.Load(window_);
}

}  // namespace zelvo
