#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zelvo {

/// A whole file, or the system's number of the error that kept it from being read.
struct FileText {
  std::string text;
  int error = 0;
};
FileText ReadFile(const std::string& path);

/// Puts a text in the place of a file in one step: whatever happens, the file holds the old text or
/// the new one. Returns the system's number of the error, or 0; after an error all is as it was.
int ReplaceFile(const std::string& path, std::string_view text);

/// A file that a game is kept in. It only ever grows at its end, or is replaced in one step, so
/// that at any moment it holds a game; and no two programs keep a game in one file.
class KeptFile {
 public:
  KeptFile() = default;
  KeptFile(const KeptFile&) = delete;
  KeptFile& operator=(const KeptFile&) = delete;
  ~KeptFile() { Close(); }

  // Each returns the system's number of the error, or 0. EWOULDBLOCK tells that another program
  // keeps its game there.

  /// Goes on with a file of which the first so many bytes count; the rest is cut off. After an
  /// error the file that was open before, if another one, still is.
  int Open(const std::string& path, std::size_t bytes);
  /// Starts a file, in the place of one that is there, or puts another text into this one.
  int Replace(const std::string& path, std::string_view text);
  /// Writes at the end. With `lasting` it is on the disk when this returns. After an error nothing
  /// of it is there and the file is closed.
  int Append(std::string_view text, bool lasting);
  void Close();

  bool IsOpen() const { return file_ != -1; }
  const std::string& path() const { return path_; }
  /// True while the path still leads to the file: nobody has moved, replaced or removed it.
  bool IsInPlace() const;

 private:
  bool IsAt(const std::string& path) const;

  int file_ = -1;
  std::size_t size_ = 0;
  std::string path_;
};

}  // namespace zelvo
