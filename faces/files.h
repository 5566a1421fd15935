#pragma once

#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace zelvo {

// What the system does for files that games are kept in. Errors are the system's numbers; 0 is
// none. EWOULDBLOCK tells that another program keeps its game there.

/// A whole file, or the error that kept it from being read. Of a file that is too long to be a game
/// only so much that this is seen.
struct FileText {
  std::string text;
  int error = 0;
};
FileText ReadFile(const std::string& path);

/// Puts a text in the place of a file in one step: whatever happens, the file holds the old text or
/// the new one. Returns the error; after one all is as it was.
int ReplaceFile(const std::string& path, std::string_view text);
/// The same; `file` is left open on the new file, and locked.
int ReplaceFile(const std::string& path, std::string_view text, int& file);

/// An open file that is closed at the end unless it is released.
class Handle {
 public:
  explicit Handle(int file) : file_(file) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle();
  int get() const { return file_; }
  int Release() { return std::exchange(file_, -1); }

 private:
  int file_;
};

/// Calls the system, again if a signal came in between. Returns the error.
template <class Call>
int Try(Call call) {
  while (call() == -1) {
    if (errno != EINTR) return errno;
  }
  return 0;
}

/// Keeps other programs from a file until it is closed. Returns the error.
int Lock(int file);
/// Writes all of a text where the file stands. Returns the error.
int WriteAll(int file, std::string_view text);
/// The beginning of an open file, up to so many bytes.
FileText ReadUpTo(int file, std::size_t most);
/// An open file as `ReadFile` reads it.
FileText ReadGame(int file);

/// The folder in which a path ends.
std::string FolderOf(const std::string& path);
/// The file that a name leads to, through links, so that a link stays one, even if nothing is at
/// its end yet. Of a circle of links one of them; the system refuses it.
std::string TargetOf(std::string path);
/// A folder holds no game, and a pipe or a device could take for ever. What is not there is no
/// error yet.
int ErrorIfNoFile(const std::string& path);
/// Whether another program holds the file.
int ErrorIfHeld(const std::string& path);
/// True while a path leads to an open file.
bool LeadsTo(const std::string& path, int file);

}  // namespace zelvo
