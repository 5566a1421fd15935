#pragma once

#include <istream>
#include <ostream>

#include "faces/scripted/scripted_game.h"

namespace zelvo {

/// A scripted game between two streams: a command a line comes in, a line of JSON goes out.
class StreamGame : public ScriptedGame {
 public:
  StreamGame(std::istream& commands, std::ostream& lines) : commands_(commands), lines_(lines) {}

  /// Starts the program and plays to the end of the script or of the program. Commands that cannot
  /// be read and lines that cannot be written end it at once: the stream is bad then, and the
  /// system's number of the error is returned. Otherwise 0.
  int PlayScript();

 private:
  bool NextCommand(std::string& command) override;
  void Print(const std::string& line) override;
  std::string WriteFile(const std::string& path, const std::string& text) override;
  void NoteFailure(const std::ios& stream);

  std::istream& commands_;
  std::ostream& lines_;
  int error_ = 0;        // of the stream that failed first
  bool atStart_ = true;  // no line has been read
};

}  // namespace zelvo
