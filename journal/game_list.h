#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "surface/surface.h"

namespace zelvo {

/// One thing that reached a game from outside. The same list plays in any game, so windows and
/// controls are told by their places.
struct Entry {
  enum class Kind : std::uint8_t { Click, Hover, Close, Resize, Tick, Clock, Sound, Answer, Back };
  static constexpr std::int16_t noControl = -1;

  Kind kind = Kind::Back;
  std::uint8_t window = 0;            ///< of a deed: place among the windows
  std::int16_t control = noControl;   ///< of a deed: place among the window's controls
  Extent extent = Extent::Normal;     ///< of a change of size
  bool hasSound = false;              ///< of a sound: the machine has a player
  zelvo::Answer answer = Answer::Ok;  ///< of a message box
  TimeOfDay time;                     ///< of the clock
  std::uint32_t count = 1;            ///< so many one after the other; of clock and back only
  std::uint32_t line = 0;             ///< where it was read; 0 if it was not

  bool IsDeed() const { return kind <= Kind::Tick; }
};

using GameList = std::vector<Entry>;

/// So many readings or returns at most stand in one entry.
constexpr std::uint32_t longestRun = 1'000'000;
/// A text of more bytes is not read.
constexpr std::size_t longestText = 16'777'216;  // 16 MiB

Entry EntryOf(Surface& surface, const Deed& deed);
Deed DeedOf(Surface& surface, const Entry& entry);

/// The first line of a list, with its end.
std::string_view ListHeader();
/// An entry's line, with its end. The surface tells the names.
std::string LineOf(Surface& surface, const Entry& entry);

/// How much of a list has been written. The list grows at its end only, be it that the run of its
/// last entry gets longer.
struct Written {
  std::size_t entries = 0;
  std::uint32_t count = 0;  ///< of the last of them

  static Written AllOf(const GameList& list);
  bool operator==(const Written&) const = default;
};
/// The first so much of a list.
GameList Beginning(GameList list, Written length);
/// The lines of what came since, without the header.
std::string LinesSince(Surface& surface, const GameList& list, Written written);

/// A list as it was read.
struct ReadList {
  GameList list;
  std::string error;           ///< why there is none, in plain words; empty if all is well
  std::size_t wholeBytes = 0;  ///< length of the text without a last line that is torn off
};
ReadList ReadGameList(Surface& surface, std::string_view text);

}  // namespace zelvo
