#include "faces/headless/stream_game.h"

namespace zelvo {

bool StreamGame::NextCommand(std::string& command) {
  constexpr int endOfInput = std::char_traits<char>::eof();
  std::streambuf& input = *commands_.rdbuf();
  // A program at the other end waits for its line before it writes the next command.
  if (input.in_avail() <= 0) lines_.flush();
  command.clear();
  int c = input.sbumpc();
  if (c == endOfInput) return false;
  for (; c != endOfInput && c != '\n'; c = input.sbumpc()) {
    if (command.size() <= longestCommand) command += static_cast<char>(c);
  }
  return true;
}

}  // namespace zelvo
