#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "faces/deed.h"
#include "faces/scripted/virtual_platform.h"
#include "game/game.h"
#include "journal/journal.h"

namespace zelvo {

/// Plays the real game by commands: each time it comes to wait for the player it gives a line of
/// JSON and asks for the next command. Time is virtual, so the same commands give the same lines
/// everywhere. Where they come from and go to is left open.
class ScriptedGame : public VirtualPlatform {
 public:
  ScriptedGame() { journal_.Attach(game_); }

  /// Has `Run` begin with a kept game, which must fit. Virtual time goes on from its last clock.
  void GoOn(GameList list);
  /// Starts the program and plays to the end of the script or of the program.
  void Run();

  Game& game() { return game_; }
  const Journal& journal() const { return journal_; }

  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  bool PlaySound(const std::string& path, bool waits) override;
  void End() override;

 protected:
  /// The next command, a line without its end; false when there are no more. Of a line that is
  /// longer than `longestCommand` a part that is longer as well will do.
  virtual bool NextCommand(std::string& command) = 0;
  /// Takes a line of the answer, without its end.
  virtual void Print(const std::string& line) = 0;
  /// Puts a text into a file. Returns why not, in plain words; empty if it is there.
  virtual std::string WriteFile(const std::string& path, const std::string& text) = 0;

  static constexpr std::size_t longestCommand = 65'536;

  /// What takes input: the name of a window, or "message box".
  std::string Waiting();

 private:
  struct OpenMessage {
    std::string text;
    MessageStyle style;
    std::string title;
    std::optional<Answer> answer;
  };

  void WaitForPlayer() override;
  bool DeliverHeldInput() override;
  Surface& surface() override { return game_; }

  void PrintLine(std::string_view waiting);

  // Each carries out a command and returns why not, in plain words, or an empty text.
  std::string Execute(std::string_view line);
  std::string ExecuteDeed(std::string_view verb, std::string_view rest);
  std::string ExecuteAnswer(std::string_view rest);
  std::string ExecuteKeep(std::string_view rest);
  std::string ExecuteWait(std::string_view rest);
  std::string ExecuteClock(std::string_view rest);
  std::string ExecuteLater(std::string_view rest);
  std::string ExecuteSet(std::string_view rest);
  std::string ExecuteGet(std::string_view rest);
  std::string ExecuteState(std::string_view rest);
  std::string ExecuteQuit(std::string_view rest);

  /// Reads a click, hover or close; `error` says why it is none.
  std::optional<Deed> ReadCommand(std::string_view verb, std::string_view rest, std::string& error);
  std::string SetValue(std::string_view name, std::string_view value);

  std::vector<Deed> held_;              // for the next yield
  std::vector<OpenMessage*> messages_;  // innermost last
  std::string cues_;                    // JSON objects of the cues since the last line
  std::string reply_;                   // JSON members that the last command adds to its line
  bool leaving_ = false;                // the script is over, not the program
  bool wasSet_ = false;                 // the game holds what is in no list
  GameList played_;                     // the kept game to begin with
  Journal journal_{*this};
  Game game_{journal_};
};

}  // namespace zelvo
