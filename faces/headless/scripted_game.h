#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "faces/headless/virtual_platform.h"
#include "game/game.h"

namespace zelvo {

/// Plays the real game without a screen: the player is a stream of commands, one a line, and each
/// time the game comes to wait for the player it prints a line of JSON. Time is virtual, so the
/// same script gives the same lines everywhere.
class ScriptedGame : public VirtualPlatform {
 public:
  ScriptedGame(std::istream& commands, std::ostream& lines);

  /// Starts the program and plays to the end of the script or of the program.
  void Run();

  Game& game() { return game_; }

  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  bool PlaySound(const std::string& path, bool waits) override;
  void End() override;

 private:
  struct OpenMessage {
    std::string text;
    MessageStyle style;
    std::string title;
    std::optional<Answer> answer;
  };

  /// Something that the player does to a control or a window.
  struct Deed {
    enum class Kind : unsigned char { Click, Hover, Close } kind;
    Control* control;  // null for a window
    Window* window;
  };

  void WaitForPlayer() override;
  bool DeliverHeldInput() override;
  Surface& surface() override { return game_; }

  bool ReadLine(std::string& line);
  void PrintLine(std::string_view waiting);
  std::string Waiting();

  // Each carries out a command and returns why not, in plain words, or an empty text.
  std::string Execute(std::string_view line);
  std::string ExecuteDeed(std::string_view verb, std::string_view rest);
  std::string ExecuteAnswer(std::string_view rest);
  std::string ExecuteWait(std::string_view rest);
  std::string ExecuteClock(std::string_view rest);
  std::string ExecuteLater(std::string_view rest);
  std::string ExecuteSet(std::string_view rest);
  std::string ExecuteGet(std::string_view rest);
  std::string ExecuteState(std::string_view rest);
  std::string ExecuteQuit(std::string_view rest);

  /// Reads a click, hover or close; `error` says why it is none.
  std::optional<Deed> ParseDeed(std::string_view verb, std::string_view rest, std::string& error);
  std::string WhyNot(const Deed& deed);
  void Do(const Deed& deed);
  std::string StateAsJson();

  std::istream& commands_;
  std::ostream& lines_;
  std::vector<Deed> held_;              // for the next yield
  std::vector<OpenMessage*> messages_;  // innermost last
  std::string cues_;                    // JSON objects of the cues since the last line
  std::string reply_;                   // JSON members that the last command adds to its line
  bool leaving_ = false;                // the script is over, not the program
  Game game_{*this};
};

}  // namespace zelvo
