#include "faces/headless/stream_game.h"

#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

#include "faces/files.h"

namespace zelvo {

int StreamGame::PlayScript() {
  Run();
  NoteFailure(lines_.flush());
  return error_;
}

bool StreamGame::NextCommand(std::string& command) {
  // A program at the other end waits for its line before it writes the next command. That nobody
  // can hear us is to be known before the first is read.
  if (atStart_ || commands_.rdbuf()->in_avail() <= 0) NoteFailure(lines_.flush());
  if (lines_.bad()) return false;
  command.clear();
  char c = 0;
  while (commands_.get(c) && c != '\n') {
    if (command.size() <= longestCommand) command += c;
  }
  NoteFailure(commands_);
  // What was read of a line before the stream failed is no command.
  if (commands_.bad() || (commands_.eof() && command.empty())) return false;
  // Some editors begin a file with a mark that says it is UTF-8.
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (std::exchange(atStart_, false) && command.starts_with(byteOrderMark)) {
    command.erase(0, byteOrderMark.size());
  }
  return true;
}

void StreamGame::Print(const std::string& line) { NoteFailure(lines_ << line << '\n'); }

std::string StreamGame::WriteFile(const std::string& path, const std::string& text) {
  const int error = ReplaceFile(path, text);
  return error == 0 ? "" : path + " cannot be written: " + std::generic_category().message(error);
}

void StreamGame::NoteFailure(const std::ios& stream) {
  if (stream.bad() && error_ == 0) error_ = errno != 0 ? errno : EIO;
}

}  // namespace zelvo
