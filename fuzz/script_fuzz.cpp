// Feeds scripts to the scripted face and the game behind it. The sanitizers watch the memory; the
// harness watches that each script gets its lines.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "faces/headless/stream_game.h"

namespace {

/// Long waits are the script's own wish and would only look like a hang.
std::string WithoutLongWaits(const std::string& script) {
  std::string kept;
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) {
    const bool longWait = line.find("wait") != std::string::npos && line.size() > 12;
    if (!longWait) kept += line + '\n';
  }
  return kept;
}

/// Keeps no games: a script can name any file.
struct HarmlessGame : zelvo::StreamGame {
  using StreamGame::StreamGame;
  std::string WriteFile(const std::string& /*path*/, const std::string& /*text*/) override {
    return "not here";
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string script(reinterpret_cast<const char*>(data), size);
  std::istringstream commands(WithoutLongWaits(script));
  std::ostringstream lines;
  HarmlessGame game(commands, lines);
  game.Run();
  if (lines.str().empty() || lines.str().back() != '\n') std::abort();
  return 0;
}
