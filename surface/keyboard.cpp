#include "surface/keyboard.h"

#include <algorithm>
#include <cstdlib>

#include "surface/speech.h"

namespace zelvo {
namespace {

bool StandTogether(const Control& one, const Control& other) {
  return one.design().group != nullptr && one.design().group == other.design().group &&
         one.design().tabLevel == other.design().tabLevel;
}

bool Holds(const Stop& stop, const Control* control) {
  return std::find(stop.begin(), stop.end(), control) != stop.end();
}

/// From the middle of one place to that of another, in half twips.
struct Way {
  int right = 0;
  int down = 0;
};
Way WayBetween(const Box& from, const Box& to) {
  return {2 * (to.left - from.left) + to.width - from.width,
          2 * (to.top - from.top) + to.height - from.height};
}

/// How far a way leads ahead with a step, and how far aside.
struct Progress {
  int ahead = 0;
  int aside = 0;
};
Progress ProgressOf(Way way, Step step) {
  switch (step) {
    case Step::Left:
      return {-way.right, std::abs(way.down)};
    case Step::Right:
      return {way.right, std::abs(way.down)};
    case Step::Up:
      return {-way.down, std::abs(way.right)};
    case Step::Down:
      break;
  }
  return {way.down, std::abs(way.right)};
}

/// What lies straight ahead is nearer than all that lies aside.
int DistanceOf(Progress progress) {
  const bool straight = 2 * progress.aside <= progress.ahead;
  return straight ? progress.ahead : progress.ahead + 100 * progress.aside;
}

}  // namespace

const Group* WalkedGroup(const Control& control) {
  const Group* group = control.design().group;
  return group != nullptr && group->walked ? group : nullptr;
}

bool IsForKeyboard(const Control& control) {
  return control.IsClickable() || control.kind() == Kind::TextBox ||
         WalkedGroup(control) != nullptr;
}

bool TakesFocus(const Control& control) {
  return IsForKeyboard(control) && control.Enabled() && control.VisibleInWindow();
}

std::vector<Control*> ReadingOrder(const Window& window) {
  std::vector<Control*> order;
  for (Control* control : window.controls()) {
    if (!control->IsDrawn()) continue;
    // Behind the last that it belongs with, else behind all of its level.
    auto place = std::find_if(order.rbegin(), order.rend(), [control](const Control* other) {
      return StandTogether(*control, *other);
    });
    if (place == order.rend()) {
      place = std::find_if(order.rbegin(), order.rend(), [control](const Control* other) {
        return other->design().tabLevel <= control->design().tabLevel;
      });
    }
    order.insert(place.base(), control);
  }
  return order;
}

std::vector<Stop> StopsOf(const Window& window) {
  std::vector<Stop> stops;
  for (Control* control : ReadingOrder(window)) {
    if (!IsForKeyboard(*control)) continue;
    const Group* group = WalkedGroup(*control);
    const auto known = std::find_if(stops.begin(), stops.end(), [group](const Stop& stop) {
      return group != nullptr && WalkedGroup(*stop.front()) == group;
    });
    if (known != stops.end()) {
      known->push_back(control);
    } else {
      stops.push_back({control});
    }
  }
  return stops;
}

Control* EntryOf(const Stop& stop, const LastPlaces& last) {
  const auto known = last.find(WalkedGroup(*stop.front()));
  Control* entry = nullptr;
  for (Control* member : stop) {
    if (!TakesFocus(*member)) continue;
    if (known != last.end() && known->second == member) return member;
    if (entry == nullptr || (member->Value() && !entry->Value())) entry = member;
  }
  return entry;
}

Control* FirstEntry(const std::vector<Stop>& stops, const LastPlaces& last) {
  return NextEntry(stops, last, nullptr, true);
}

Control* NextEntry(const std::vector<Stop>& stops, const LastPlaces& last, const Control* from,
                   bool forward) {
  const int count = static_cast<int>(stops.size());
  const auto here =
      std::find_if(stops.begin(), stops.end(), [from](const Stop& s) { return Holds(s, from); });
  // Seen from nowhere, the first stop follows and the last one lies before.
  int place = static_cast<int>(here - stops.begin());
  if (forward && place == count) place = -1;
  for (int i = 1; i <= count; ++i) {
    const int next = forward ? (place + i) % count : (place + count - i) % count;
    if (Control* entry = EntryOf(stops[next], last)) return entry;
  }
  return nullptr;
}

Control* Neighbour(const Control& from, Step step, const Arrangement& arrangement) {
  const Group* group = WalkedGroup(from);
  if (group == nullptr) return nullptr;
  const Box here = from.Place(arrangement);
  Control* nearest = nullptr;
  int shortest = 0;
  for (Control* control : from.window().controls()) {
    if (WalkedGroup(*control) != group || !control->IsDrawn()) continue;
    const Progress progress = ProgressOf(WayBetween(here, control->Place(arrangement)), step);
    if (progress.ahead <= 0) continue;
    const int distance = DistanceOf(progress);
    if (nearest != nullptr && distance >= shortest) continue;
    nearest = control;
    shortest = distance;
  }
  return nearest;
}

Control* Walk(const Control& from, Step step) {
  Control* next = Neighbour(from, step);
  while (next != nullptr && !TakesFocus(*next)) next = Neighbour(*next, step);
  return next;
}

char InitialOf(const Control& control) {
  const std::string content = SpokenContent(control);
  if (content.empty()) return 0;
  const char first = content.front();
  return first >= 'A' && first <= 'Z' ? static_cast<char>(first - 'A' + 'a') : first;
}

Control* NextWithInitial(const std::vector<Stop>& stops, const LastPlaces& last,
                         const Control& from, char initial) {
  if (initial == 0) return nullptr;
  const auto isWalked = [](const Stop& stop) { return WalkedGroup(*stop.front()) != nullptr; };
  const auto own = std::find_if(stops.begin(), stops.end(),
                                [&](const Stop& s) { return isWalked(s) && Holds(s, &from); });
  for (const auto stop : {own, std::find_if(stops.begin(), stops.end(), isWalked)}) {
    if (stop == stops.end()) continue;
    Stop ring = *stop;
    const auto here = std::find(ring.begin(), ring.end(), EntryOf(ring, last));
    if (here != ring.end()) std::rotate(ring.begin(), here + 1, ring.end());
    const auto next = std::find_if(ring.begin(), ring.end(), [initial](const Control* member) {
      return TakesFocus(*member) && InitialOf(*member) == initial;
    });
    if (next != ring.end()) return *next;
  }
  return nullptr;
}

}  // namespace zelvo
