#include "journal/game_list.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>
#include <unordered_map>

#include "journal/words.h"
#include "surface/in_order.h"

namespace zelvo {
namespace {

constexpr std::string_view formatName = "zelvo-game ";
constexpr std::string_view header = "zelvo-game 1\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

struct Verb {
  Entry::Kind kind;
  std::string_view name;
};
constexpr std::array<Verb, 9> verbs = {{{Entry::Kind::Click, "click"},
                                        {Entry::Kind::Hover, "hover"},
                                        {Entry::Kind::Close, "close"},
                                        {Entry::Kind::Resize, "resize"},
                                        {Entry::Kind::Tick, "tick"},
                                        {Entry::Kind::Clock, "clock"},
                                        {Entry::Kind::Sound, "sound"},
                                        {Entry::Kind::Answer, "answer"},
                                        {Entry::Kind::Back, "back"}}};
static_assert(InOrder(verbs, &Verb::kind));

struct ExtentName {
  Extent extent;
  std::string_view name;
};
constexpr std::array<ExtentName, 3> extents = {{{Extent::Normal, "normal"},
                                                {Extent::Minimised, "minimised"},
                                                {Extent::Maximised, "maximised"}}};
static_assert(InOrder(extents, &ExtentName::extent));

struct AnswerName {
  Answer answer;
  std::string_view name;
};
constexpr std::array<AnswerName, 3> answers = {
    {{Answer::Ok, "ok"}, {Answer::Yes, "yes"}, {Answer::No, "no"}}};

/// The row of that name; null if there is none.
template <class Rows>
auto Find(const Rows& rows, std::string_view name) -> decltype(rows.data()) {
  for (const auto& row : rows) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

std::optional<std::uint32_t> ReadNumber(std::string_view text) {
  std::uint32_t number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const bool plain = !text.empty() && (text.front() != '0' || text.size() == 1);
  if (!plain || error != std::errc() || stop != end) return std::nullopt;
  return number;
}

std::string NameOf(Surface& surface, const Entry& entry) {
  const Window& window = *surface.Windows().at(entry.window);
  std::string name(window.name());
  if (entry.control != Entry::noControl) {
    name.append(".").append(window.controls()[entry.control]->FullName());
  }
  return name;
}

/// Reads the lines of a list.
class Reader {
 public:
  explicit Reader(Surface& surface) {
    const auto& windows = surface.Windows();
    for (std::size_t w = 0; w < windows.size(); ++w) {
      const std::string window(windows[w]->name());
      targets_[window] = {static_cast<std::uint8_t>(w), Entry::noControl, windows[w], nullptr};
      std::int16_t place = 0;
      for (Control* control : windows[w]->controls()) {
        targets_[window + "." + control->FullName()] = {static_cast<std::uint8_t>(w), place++,
                                                        windows[w], control};
      }
    }
  }

  /// False if the line is no entry.
  bool Read(std::string_view line, Entry& entry) const {
    if (line.empty() || line.back() == ' ') return false;
    const Verb* verb = Find(verbs, TakeWord(line));
    if (verb == nullptr) return false;
    entry.kind = verb->kind;
    if (entry.IsDeed()) return ReadDeed(line, entry);
    switch (entry.kind) {
      case Entry::Kind::Clock: {
        const auto time = ReadTime(TakeWord(line));
        if (!time) return false;
        entry.time = *time;
        return ReadRun(line, entry);
      }
      case Entry::Kind::Sound:
        entry.hasSound = line == "yes";
        return line == "yes" || line == "no";
      case Entry::Kind::Answer: {
        const AnswerName* answer = Find(answers, line);
        if (answer != nullptr) entry.answer = answer->answer;
        return answer != nullptr;
      }
      default:
        return ReadRun(line, entry);
    }
  }

 private:
  struct Target {
    std::uint8_t window = 0;
    std::int16_t control = Entry::noControl;
    const Window* where = nullptr;
    const Control* what = nullptr;
  };

  bool ReadDeed(std::string_view line, Entry& entry) const {
    const auto found = targets_.find(std::string(TakeWord(line)));
    if (found == targets_.end()) return false;
    const Target& target = found->second;
    entry.window = target.window;
    entry.control = target.control;
    const bool onTimer = target.what != nullptr && target.what->kind() == Kind::Timer;
    const bool onWindow = target.what == nullptr;
    switch (entry.kind) {
      case Entry::Kind::Tick:
        return onTimer && line.empty();
      case Entry::Kind::Close:
        return onWindow && line.empty();
      case Entry::Kind::Resize: {
        const ExtentName* extent = Find(extents, line);
        if (extent != nullptr) entry.extent = extent->extent;
        return extent != nullptr && onWindow;
      }
      default:
        return !onTimer && line.empty();
    }
  }

  static bool ReadRun(std::string_view line, Entry& entry) {
    if (line.empty()) return true;
    const auto count = ReadNumber(line);
    if (!count || *count < 1 || *count > longestRun) return false;
    entry.count = *count;
    return true;
  }

  std::unordered_map<std::string, Target> targets_;
};

/// So many readings, returns and deeds are played in two seconds, and in five on a slow page;
/// nobody waits longer for a game.
constexpr std::uint64_t mostPlayed = 30'000'000;

/// Cuts the first line off a text.
std::string_view TakeLine(std::string_view& text) {
  const auto end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

/// Why a text does not begin as a list does.
std::string WhyNoList(std::string_view text) {
  if (header.substr(0, text.size()) == text) return "it is cut off in its first line";
  if (text.substr(0, formatName.size()) != formatName) return "it is no kept game";
  const std::string_view version =
      text.substr(formatName.size(), text.find('\n') - formatName.size());
  const auto number = ReadNumber(version);
  return number && *number > 1 ? "it was kept by a later version of the game"
                               : "it is no kept game";
}

}  // namespace

Entry EntryOf(Surface& surface, const Deed& deed) {
  Entry entry;
  entry.kind = static_cast<Entry::Kind>(deed.kind);
  const auto& windows = surface.Windows();
  const auto window = std::find(windows.begin(), windows.end(), deed.window);
  entry.window = static_cast<std::uint8_t>(window - windows.begin());
  if (deed.control != nullptr) {
    const auto& controls = deed.window->controls();
    const auto control = std::find(controls.begin(), controls.end(), deed.control);
    entry.control = static_cast<std::int16_t>(control - controls.begin());
  }
  entry.extent = deed.extent;
  return entry;
}

Deed DeedOf(Surface& surface, const Entry& entry) {
  Window* window = surface.Windows().at(entry.window);
  Control* control =
      entry.control == Entry::noControl ? nullptr : window->controls()[entry.control];
  return {static_cast<Deed::Kind>(entry.kind), window, control, entry.extent};
}

std::string_view ListHeader() { return header; }

std::string LineOf(Surface& surface, const Entry& entry) {
  std::string line(verbs.at(static_cast<std::size_t>(entry.kind)).name);
  if (entry.IsDeed()) line.append(" ").append(NameOf(surface, entry));
  switch (entry.kind) {
    case Entry::Kind::Resize:
      line.append(" ").append(extents.at(static_cast<std::size_t>(entry.extent)).name);
      break;
    case Entry::Kind::Clock:
      line.append(" ").append(TimeText(entry.time));
      break;
    case Entry::Kind::Sound:
      line.append(entry.hasSound ? " yes" : " no");
      break;
    case Entry::Kind::Answer:
      for (const AnswerName& row : answers) {
        if (row.answer == entry.answer) line.append(" ").append(row.name);
      }
      break;
    default:
      break;
  }
  if (entry.count > 1) line.append(" ").append(std::to_string(entry.count));
  return line += '\n';
}

Written Written::AllOf(const GameList& list) {
  return {list.size(), list.empty() ? 0 : list.back().count};
}

GameList Beginning(GameList list, Written length) {
  list.resize(length.entries);
  if (!list.empty()) list.back().count = length.count;
  return list;
}

std::string LinesSince(Surface& surface, const GameList& list, Written written) {
  std::string lines;
  if (written.entries > 0 && list[written.entries - 1].count > written.count) {
    Entry grown = list[written.entries - 1];
    grown.count -= written.count;
    lines += LineOf(surface, grown);
  }
  for (std::size_t i = written.entries; i < list.size(); ++i) lines += LineOf(surface, list[i]);
  return lines;
}

ReadList ReadGameList(Surface& surface, std::string_view text) {
  ReadList read;
  read.wholeBytes = text.rfind('\n') + 1;
  std::string_view lines = text.substr(0, read.wholeBytes);
  // Some editors begin a text with a mark that says it is UTF-8, and end lines in their own way.
  for (std::string_view* part : {&lines, &text}) {
    if (part->starts_with(byteOrderMark)) part->remove_prefix(byteOrderMark.size());
  }
  if (TakeLine(lines) != header.substr(0, header.size() - 1)) {
    read.error = WhyNoList(text);
    return read;
  }
  const Reader reader(surface);
  std::uint64_t played = 0;
  for (std::uint32_t number = 2; !lines.empty(); ++number) {
    const std::string_view line = TakeLine(lines);
    if (!line.empty() && line.front() == '#') continue;
    Entry entry;
    entry.line = number;
    if (!reader.Read(line, entry)) {
      read.error = "its line " + std::to_string(number) + " cannot be read";
    } else if ((played += entry.count) > mostPlayed || text.size() > longestText) {
      read.error = "it is too long to be played";
    }
    if (!read.error.empty()) {
      read.list.clear();
      return read;
    }
    read.list.push_back(entry);
  }
  return read;
}

}  // namespace zelvo
