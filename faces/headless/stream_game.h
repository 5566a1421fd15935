#pragma once

#include <istream>
#include <ostream>

#include "faces/headless/scripted_game.h"

namespace zelvo {

/// A scripted game between two streams: a command a line comes in, a line of JSON goes out.
class StreamGame : public ScriptedGame {
 public:
  StreamGame(std::istream& commands, std::ostream& lines) : commands_(commands), lines_(lines) {}

 private:
  bool NextCommand(std::string& command) override;
  void Print(const std::string& line) override { lines_ << line << '\n'; }

  std::istream& commands_;
  std::ostream& lines_;
};

}  // namespace zelvo
