#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "surface/control.h"
#include "surface/member.h"
#include "surface/platform.h"

namespace zelvo {

class Surface;

/// What a window's frame offers.
enum class TitleBar : unsigned char { Sizable, Fixed, NoButtons, CloseOnly, NoBorder };
enum class WindowState : unsigned char { NotLoaded, Hidden, Shown };
/// How a shown window stands on the desktop.
enum class Extent : unsigned char { Normal, Minimised, Maximised };

/// A part of a window and where it lies in another arrangement of it, both seen from the window.
struct MovedPart {
  Box from;
  Box to;
};

/// Another arrangement of a window, for screens of another shape.
struct Arrangement {
  int width = 0;   ///< of the client area, twips; 0 for a window without one
  int height = 0;  ///< of the client area, twips
  /// The first part that holds a control takes it along.
  std::span<const MovedPart> parts = {};
};

struct WindowDesign {
  std::string_view name;
  std::string_view title;
  int width = 0;   ///< of the client area, twips
  int height = 0;  ///< of the client area, twips
  TitleBar titleBar = TitleBar::NoButtons;
  Color ground = colors::ground;
  /// What the window is, for those who do not see it; empty where its title says it.
  std::string_view label = {};
  Arrangement tall = {};  ///< for screens that are higher than wide
  Arrangement low = {};   ///< for the others, where it gets no smaller there
  /// It takes input whenever no modal window is up.
  bool isMain = false;
};

/// The functions that a window raises in its life, from the table of events; null where there is
/// none.
struct WindowHandlers {
  using Function = void (*)(Game&);
  Function load = nullptr;
  Function activate = nullptr;
  Function resize = nullptr;
  Function queryUnload = nullptr;
  Function unload = nullptr;
  Function mouseMove = nullptr;
  Function click = nullptr;
};

/// A control of a window with its name: its member's, and its index in an array.
struct NamedControl {
  Control& control;
  std::string_view name;
  int index = Control::noIndex;
};

/// A window with its controls, as plain data. Each window of a program derives from it and has its
/// controls as members.
class Window {
 public:
  Window(Surface& surface, const WindowDesign& design);
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  /// The title.
  std::string Caption;
  Extent extent = Extent::Normal;
  /// A control of another window that the player is to see while this one is shown, or null: a face
  /// places the window beside it.
  const Control* keepsClearOf = nullptr;
  /// The picture of an array that the player clicked last; null if there is none, and once the game
  /// has begun to show something.
  const Control* inHand = nullptr;

  const WindowDesign& design() const { return design_; }
  std::string_view name() const { return design_.name; }
  WindowState state() const { return state_; }
  bool IsLoaded() const { return state_ != WindowState::NotLoaded; }
  bool IsShown() const { return state_ == WindowState::Shown; }
  bool HasCloseBox() const;
  /// The window from which this one was shown; null for the first and for one that is not shown.
  Window* opener() const { return opener_; }
  /// All controls, in the order in which they lie on the window, lowest first.
  const std::vector<Control*>& controls() const { return controls_; }
  /// The control of that full name, as in "Image1(37)"; null if there is none.
  Control* Find(std::string_view fullName) const;
  Surface& surface() const { return surface_; }
  Platform& platform() const;

  WindowHandlers handlers;

 protected:
  ~Window() = default;
  /// Puts a control on the window. Its container, if any, is placed before it.
  void Place(NamedControl named, Kind kind, Box box, const ControlDesign& design = {},
             const Control* container = nullptr);

 private:
  friend class Surface;
  void Reset();

  Surface& surface_;
  WindowDesign design_;
  WindowState state_ = WindowState::NotLoaded;
  bool unloading_ = false;
  Window* opener_ = nullptr;
  std::vector<Control*> controls_;
};

/// A window under the name that the rules use. Touching it through `->` or `->*` loads it if it is
/// not loaded.
template <class W>
class WindowSlot {
 public:
  explicit WindowSlot(Surface& surface) : surface_(surface), window_(surface) {}
  W* operator->() {
    if (!window_.IsLoaded()) LoadNow();
    return &window_;
  }
  /// The same for a control that a table names, as in `g.ICF->*row.icon`.
  template <class T>
  T& operator->*(Member<T, W> member) {
    return operator->()->*member;
  }
  /// The window itself, loaded or not; loads nothing.
  operator Window&() { return window_; }  // NOLINT(google-explicit-constructor): `g.Show(g.BK)`
  W& Untouched() { return window_; }
  const W& Untouched() const { return window_; }

 private:
  void LoadNow();

  Surface& surface_;
  W window_;
};

}  // namespace zelvo
