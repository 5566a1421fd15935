#pragma once

#include <array>
#include <map>
#include <vector>

#include "surface/window.h"

/// The order of the keyboard in a window, the same in every face: where Tab stops, where an arrow
/// key walks and what a letter goes to. A face only knows where the keyboard is.
namespace zelvo {

/// A step of the keyboard within a walked group.
enum class Step : unsigned char { Left, Right, Up, Down };
constexpr std::array<Step, 4> steps = {Step::Left, Step::Right, Step::Up, Step::Down};

/// What Tab stops at once: a control, or all those of a walked group.
using Stop = std::vector<Control*>;
/// Where the keyboard was last in walked groups.
using LastPlaces = std::map<const Group*, const Control*>;

/// The group in which arrow keys walk from this control; null if it is in none.
const Group* WalkedGroup(const Control& control);
/// True if the keyboard can go to the control whenever that is to be seen and enabled.
bool IsForKeyboard(const Control& control);
/// True if it can go there now.
bool TakesFocus(const Control& control);

/// All that is drawn of a window in the order in which Tab comes to it and a reader tells it: by
/// levels, and through one as it was placed, but what belongs together stands together.
std::vector<Control*> ReadingOrder(const Window& window);
/// All that the keyboard can go to, be it there now or not, in the order of Tab.
std::vector<Stop> StopsOf(const Window& window);

/// Where Tab enters a stop: where the keyboard was last, else at the option that is selected, else
/// at the first control that takes the focus; null if none does.
Control* EntryOf(const Stop& stop, const LastPlaces& last);
/// The first control of a window that Tab comes to now; null if there is none.
Control* FirstEntry(const std::vector<Stop>& stops, const LastPlaces& last);
/// The control that Tab goes to, or Shift and Tab if not `forward`, round the window; null if there
/// is none. `from` may be a control that has just gone, or null.
Control* NextEntry(const std::vector<Stop>& stops, const LastPlaces& last, const Control* from,
                   bool forward);

/// The nearest control of the same walked group that way, be it there now or not; null at the edge.
Control* Neighbour(const Control& from, Step step, const Arrangement& arrangement = {});
/// The first one that way that takes the focus; null if none does.
Control* Walk(const Control& from, Step step);

/// The first letter of what a control shows, a small one; 0 if it shows nothing.
char InitialOf(const Control& control);
/// The next control that shows something with that initial, as from one open lot to the next: in
/// the walked group where the keyboard is, else in the window's first one; null if there is none.
Control* NextWithInitial(const std::vector<Stop>& stops, const LastPlaces& last,
                         const Control& from, char initial);

}  // namespace zelvo
