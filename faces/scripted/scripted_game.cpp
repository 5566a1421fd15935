#include "faces/scripted/scripted_game.h"

#include <algorithm>
#include <array>
#include <utility>

#include "faces/deed.h"
#include "faces/kept_game.h"
#include "faces/scripted/json_text.h"
#include "faces/scripted/properties.h"
#include "faces/scripted/state.h"
#include "faces/scripted/variables.h"
#include "game/text.h"
#include "journal/words.h"

namespace zelvo {
namespace {

std::string_view WithoutBlanks(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// Cuts the first word off a text and leaves the rest without blanks around it.
std::string_view FirstWordOf(std::string_view& text) {
  const std::string_view word = TakeWord(text, " \t");
  text = WithoutBlanks(text);
  return word;
}

/// A property's path, as in "GFM.Image1(3).Tag" or "GFM.Caption".
struct PropertyPath {
  Window* window = nullptr;
  Control* control = nullptr;  // null for a property of the window
  std::string_view property;
};

std::string FindProperty(Game& game, std::string_view path, PropertyPath& found) {
  const auto first = path.find('.');
  if (first == std::string_view::npos) return NoSuch("variable", path);
  found.window = game.FindWindow(path.substr(0, first));
  if (found.window == nullptr) return NoSuch("window", path.substr(0, first));
  const std::string_view rest = path.substr(first + 1);
  const auto last = rest.rfind('.');
  if (last == std::string_view::npos) {
    found.property = rest;
    if (rest != "Caption") return NoSuch("window property", rest);
  } else {
    found.control = found.window->Find(rest.substr(0, last));
    if (found.control == nullptr) return NoSuch("control", path.substr(0, first + 1 + last));
    found.property = rest.substr(last + 1);
  }
  return found.window->IsLoaded() ? "" : "the window is not loaded";
}

/// A number with zeros before it.
std::string Digits(std::int64_t number, std::size_t digits) {
  const std::string plain = std::to_string(number);
  return std::string(digits - plain.size(), '0') + plain;
}

/// As in "12:00:03.502".
std::string ClockText(std::int64_t millisecondOfDay) {
  return Digits(millisecondOfDay / 3'600'000, 2) + ':' + Digits(millisecondOfDay / 60'000 % 60, 2) +
         ':' + Digits(millisecondOfDay / 1000 % 60, 2) + '.' + Digits(millisecondOfDay % 1000, 3);
}

}  // namespace

void ScriptedGame::GoOn(GameList list) {
  for (const Entry& entry : list) {
    if (entry.kind == Entry::Kind::Clock) time().SetWallClock(entry.time);
  }
  played_ = std::move(list);
}

void ScriptedGame::Run() {
  journal_.Start(std::move(played_));
  while (!game_.HasEnded()) WaitForPlayer();
}

// --- The platform

bool ScriptedGame::DeliverHeldInput() {
  if (held_.empty()) return false;
  for (const Deed& deed : std::exchange(held_, {})) game_.Take(deed);
  return true;
}

Answer ScriptedGame::MessageBox(const std::string& text, MessageStyle style,
                                const std::string& title) {
  OpenMessage message{text, style, title, std::nullopt};
  messages_.push_back(&message);
  while (!message.answer && !game_.HasEnded()) WaitForPlayer();
  messages_.pop_back();
  return message.answer.value_or(Answer::No);
}

bool ScriptedGame::PlaySound(const std::string& path, bool waits) {
  const std::string_view file = FileNameOf(path);
  cues_.append(cues_.empty() ? "" : ",").append("{\"file\":").append(Quoted(file));
  cues_.append(waits ? ",\"waits\":true}" : ",\"waits\":false}");
  return true;
}

void ScriptedGame::End() {
  if (!leaving_) PrintLine("ended");
}

// --- The player

void ScriptedGame::WaitForPlayer() {
  PrintLine(Waiting());
  std::string line;
  std::string_view command;
  do {
    if (!NextCommand(line)) {
      leaving_ = true;
      game_.End();
      return;
    }
    command = WithoutBlanks(line);
  } while (command.empty() || command.front() == '#');
  reply_.clear();
  const std::string error =
      line.size() > longestCommand ? "the line is too long" : Execute(command);
  if (!error.empty()) reply_ = ",\"error\":" + Quoted(error);
}

std::string ScriptedGame::Waiting() {
  if (!messages_.empty()) return "message box";
  const Window* window = game_.InputWindow();
  return window == nullptr ? "" : std::string(window->name());
}

void ScriptedGame::PrintLine(std::string_view waiting) {
  std::string line;
  line.append("{\"waiting\":").append(Quoted(waiting));
  line.append(",\"time\":\"").append(ClockText(time().MillisecondOfDay())).append("\"");
  if (!cues_.empty()) line.append(",\"cues\":[").append(std::exchange(cues_, {})).append("]");
  if (!messages_.empty() && waiting != "ended") {
    const OpenMessage& message = *messages_.back();
    line.append(",\"message\":{\"text\":").append(Quoted(message.text));
    line.append(",\"title\":").append(Quoted(message.title));
    line.append(",\"style\":").append(std::to_string(static_cast<int>(message.style)));
    line += '}';
  }
  line.append(std::exchange(reply_, {})).append("}");
  Print(line);
}

std::string ScriptedGame::Execute(std::string_view line) {
  struct Command {
    std::string_view verb;
    std::string (ScriptedGame::*execute)(std::string_view rest);
  };
  static constexpr std::array<Command, 9> commands = {{
      {"answer", &ScriptedGame::ExecuteAnswer},
      {"keep", &ScriptedGame::ExecuteKeep},
      {"wait", &ScriptedGame::ExecuteWait},
      {"clock", &ScriptedGame::ExecuteClock},
      {"later", &ScriptedGame::ExecuteLater},
      {"set", &ScriptedGame::ExecuteSet},
      {"get", &ScriptedGame::ExecuteGet},
      {"state", &ScriptedGame::ExecuteState},
      {"quit", &ScriptedGame::ExecuteQuit},
  }};
  const std::string_view verb = FirstWordOf(line);
  for (const Command& command : commands) {
    if (command.verb == verb) return (this->*command.execute)(line);
  }
  return ExecuteDeed(verb, line);
}

// --- Commands

std::optional<Deed> ScriptedGame::ReadCommand(std::string_view verb, std::string_view rest,
                                              std::string& error) {
  auto deed = ReadDeed(game_, verb, rest, error);
  if (!deed || deed->control != nullptr || deed->kind != Deed::Kind::Click) return deed;
  error = "a click needs a control";
  return std::nullopt;
}

std::string ScriptedGame::ExecuteDeed(std::string_view verb, std::string_view rest) {
  std::string error;
  const auto deed = ReadCommand(verb, rest, error);
  if (!deed) return error;
  error = WhyNot(game_, *deed);
  if (error.empty()) game_.Take(*deed);
  return error;
}

std::string ScriptedGame::ExecuteLater(std::string_view rest) {
  const std::string_view verb = FirstWordOf(rest);
  if (verb != "click" && verb != "hover" && verb != "close") {
    return "only a click, a hover or a close can come later";
  }
  std::string error;
  if (const auto deed = ReadCommand(verb, rest, error)) held_.push_back(*deed);
  return error;
}

std::string ScriptedGame::ExecuteAnswer(std::string_view rest) {
  if (messages_.empty()) return "there is no message box";
  OpenMessage& message = *messages_.back();
  const bool asks = message.style == MessageStyle::YesNoQuestion;
  if (rest == "ok" && !asks) {
    message.answer = Answer::Ok;
  } else if (rest == "yes" && asks) {
    message.answer = Answer::Yes;
  } else if (rest == "no" && asks) {
    message.answer = Answer::No;
  } else {
    return "the message box offers no such answer";
  }
  return "";
}

std::string ScriptedGame::ExecuteWait(std::string_view rest) {
  long long left = 0;
  std::string error = ReadWhole(rest, 0, VirtualTime::millisecondsPerDay, left);
  if (!error.empty()) return error;
  const std::int64_t end = time().Elapsed() + left;
  while (Control* timer = time().NextTick(end - time().Elapsed())) game_.Tick(*timer);
  time().Pass(end - time().Elapsed());
  return "";
}

std::string ScriptedGame::ExecuteClock(std::string_view rest) {
  if (!LooksLikeTime(rest)) return "the clock reads HH:MM:SS";
  const auto clock = ReadTime(rest);
  if (!clock) return "there is no such time of day";
  time().SetWallClock(*clock);
  return "";
}

std::string ScriptedGame::ExecuteSet(std::string_view rest) {
  const std::string_view name = FirstWordOf(rest);
  std::string error = SetValue(name, rest);
  if (error.empty()) wasSet_ = true;
  return error;
}

std::string ScriptedGame::SetValue(std::string_view name, std::string_view value) {
  if (const auto variable = FindVariable(name)) return WriteVariable(game_, *variable, value);
  PropertyPath path;
  std::string error = FindProperty(game_, name, path);
  if (!error.empty()) return error;
  return path.control == nullptr ? ReadQuoted(value, path.window->Caption)
                                 : WriteProperty(*path.control, path.property, value);
}

std::string ScriptedGame::ExecuteKeep(std::string_view rest) {
  if (rest.empty()) return "keep needs the name of a file";
  if (wasSet_) return "something was set, which no player can do: there is no list of such a game";
  return WriteFile(std::string(rest), TextOf(game_, journal_.list()));
}

std::string ScriptedGame::ExecuteGet(std::string_view rest) {
  std::string value;
  if (const auto variable = FindVariable(rest)) {
    value = ReadVariable(game_, *variable);
  } else {
    PropertyPath path;
    std::string error = FindProperty(game_, rest, path);
    if (!error.empty()) return error;
    if (path.control == nullptr) {
      value = Quoted(path.window->Caption);
    } else {
      const auto property = ReadProperty(*path.control, path.property);
      if (!property) return "the control has no such property";
      value = *property;
    }
  }
  reply_ = ",\"value\":" + value;
  return "";
}

std::string ScriptedGame::ExecuteState(std::string_view rest) {
  if (!rest.empty()) return "state takes nothing more";
  reply_ = ",\"state\":" + StateAsJson(game_);
  return "";
}

std::string ScriptedGame::ExecuteQuit(std::string_view rest) {
  if (!rest.empty()) return "quit takes nothing more";
  PrintLine(Waiting());
  leaving_ = true;
  game_.End();
  return "";
}

}  // namespace zelvo
