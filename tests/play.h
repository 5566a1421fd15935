#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "faces/headless/stream_game.h"
#include "tests/json.h"

namespace zelvo::test {

/// Plays a script through the scripted face and gives its lines.
std::vector<Json> Play(const std::string& script);

/// Starts a game at a quiet second of the clock, with every opening event passed over lots that it
/// leaves as they were, then plays the script. Gives the values of its `get` commands in one line,
/// as in "$1,000 | CU | -1"; a command with an error fails the test.
std::string Told(const std::string& script);

/// The last line of a script that is played in a new game, as that of `Told` is.
Json Last(const std::string& script);

/// `get` commands for the names of a text, with blanks between them.
std::string Get(const std::string& names);

/// The pieces of a table between its separators, without blanks and line ends around them.
std::vector<std::string> Pieces(const std::string& table, char separator = '|');

struct ScriptStreams {
  std::istringstream commands;
  std::ostringstream output;
};

/// A scripted game with a script of its own, for a test that watches it or has a hand in it.
class Scripted : private ScriptStreams, public StreamGame {
 public:
  explicit Scripted(const std::string& script = "");
  /// Plays the script and gives its lines.
  std::vector<Json> Lines();
};

}  // namespace zelvo::test
