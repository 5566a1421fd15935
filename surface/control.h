#pragma once

#include <string>
#include <string_view>

#include "surface/colors.h"
#include "surface/picture_id.h"

namespace zelvo {

class Game;
class Window;
struct Arrangement;

/// What a control is. The options of one window form one group.
enum class Kind : unsigned char { Button, CheckBox, Option, Label, Image, Panel, TextBox, Timer };

/// A place in twips (1,440 to the inch), seen from the top left corner of the container.
struct Box {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  /// True if the other box lies within this one.
  constexpr bool Holds(const Box& other) const {
    return other.left >= left && other.top >= top && other.left + other.width <= left + width &&
           other.top + other.height <= top + height;
  }
};

enum class Align : unsigned char { Left, Center, Right };
enum class Border : unsigned char { None, Line, Sunken, Raised, Road };

/// How a face is to draw a control. Design-time data only: no rule reads it.
struct Look {
  Color ink = colors::ink;
  Color ground = transparent;
  int letterHeight = 200;  ///< twips; a face may draw smaller to make a long text fit
  bool bold = false;
  Align align = Align::Left;
  Border border = Border::None;
  bool vertical = false;  ///< the text runs from bottom to top
  double textShare = 1;   ///< how much of the width the text keeps to, from the left
};

/// A key that presses a control, wherever in its window the keyboard is.
enum class Key : unsigned char {
  None,
  Escape,  ///< the way out of a dialog; one in which the game wants an answer has none
  F1,
  CtrlEnter,
};

/// When those who do not see a control hear what it shows, besides when they go to it.
enum class Speech : unsigned char {
  WhenReached,
  News,      ///< whenever it changes
  Standing,  ///< when they ask how the game stands
};

/// Controls of a window that belong together, wherever they lie.
struct Group {
  std::string_view name;
  /// Tab stops at the group once and arrow keys walk its controls; else they are told as one
  /// thing, but each is reached on its own.
  bool walked = false;
};

class Control;

/// The handlers of a control's events, from the table of events; null where there is none.
struct Handlers {
  using Function = void (*)(Game&, Control&);
  Function click = nullptr;
  Function mouseMove = nullptr;
  Function timer = nullptr;
  /// Clicks that arrive while another handler runs are dropped: the rules behind these controls
  /// count on what they work on to stay put while they run.
  bool dropsClicksWhileBusy = false;
};

/// What a control holds when its window is loaded.
struct ControlDesign {
  std::string_view caption = {};
  std::string_view tag = {};
  bool visible = true;
  bool enabled = true;
  bool value = false;
  int interval = 0;  ///< milliseconds
  PictureId picture{};
  Look look = {};
  /// What the control is, told ahead of what it shows, as in "Player's credit".
  std::string_view label = {};
  /// What it shows, where neither its caption nor its picture says it in words.
  std::string_view words = {};
  /// What the window writes elsewhere while the control is pointed at.
  std::string_view hover = {};
  bool numbered = false;  ///< its index is told with its label
  const Group* group = nullptr;
  int tabLevel = 0;  ///< Tab goes through the lower levels first, through one as it was placed
  Speech speech = Speech::WhenReached;
  Key key = Key::None;
};

/// One control of a window, of any kind; a kind uses the properties that it has and leaves the
/// others at their design values. Properties whose change has consequences have a setter.
class Control {
 public:
  static constexpr int noIndex = -1;

  // The tag and the picture come first: the rules scan them for a hundred lots at a time.
  std::string Tag;
  PictureId Picture{};
  bool Visible = true;
  std::string Caption;
  std::string Text;

  bool Enabled() const { return enabled_; }
  bool Value() const { return value_; }
  int Interval() const { return interval_; }

  /// Greys a button or an option out, or starts and stops a timer.
  void SetEnabled(bool enabled);
  /// Ticks a check box, or selects an option and with it clears the others of its window.
  void SetValue(bool value);
  /// Sets a timer's interval in milliseconds and starts its count anew; 0 silences it.
  void SetInterval(int milliseconds);
  /// True while a timer ticks: it is enabled and its interval is not 0.
  bool Ticks() const { return enabled_ && interval_ > 0; }

  Kind kind() const { return kind_; }
  /// The name without an index, as in "Image1".
  std::string_view name() const { return name_; }
  /// The index in a control array, or `noIndex`.
  int index() const { return index_; }
  /// Name and index, as in "Image1(37)".
  std::string FullName() const;
  Window& window() const { return *window_; }
  const Control* container() const { return container_; }
  const ControlDesign& design() const { return design_; }
  /// The place in the window in twips, containers reckoned in.
  Box Place() const;
  /// The place in another arrangement of the window; the same in one that the window has not.
  Box Place(const Arrangement& arrangement) const;
  /// True for what a face draws, once it is visible: no timers, and nothing beyond the window.
  bool IsDrawn() const;
  /// True if a click can mean something, be the control enabled or not.
  bool IsClickable() const;
  /// True if the control and the panels that hold it are all visible.
  bool VisibleInWindow() const;

  Handlers handlers;

 private:
  friend class Window;
  void Reset();

  bool enabled_ = true;
  bool value_ = false;
  int interval_ = 0;
  Kind kind_ = Kind::Label;
  int index_ = noIndex;
  std::string_view name_;
  Window* window_ = nullptr;
  const Control* container_ = nullptr;
  Box box_;
  ControlDesign design_;
};

}  // namespace zelvo
