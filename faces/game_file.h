#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>

#include "faces/files.h"

namespace zelvo {

// Errors are the system's numbers; 0 is none. EWOULDBLOCK tells that another program keeps its game
// there, ESTALE that another program has changed the file.

/// A file that a game is kept in. It only ever grows at its end, or is replaced in one step, so
/// that at any moment it holds a game; and it belongs to one program at a time. What another
/// program has changed all the same is left alone.
class KeptFile {
 public:
  KeptFile() = default;
  KeptFile(KeptFile&& other) noexcept { *this = std::move(other); }
  KeptFile& operator=(KeptFile&& other) noexcept;
  KeptFile(const KeptFile&) = delete;
  KeptFile& operator=(const KeptFile&) = delete;
  ~KeptFile() { Close(); }

  /// A file with a game as it was found.
  struct Found;
  /// Takes hold of a file and reads it, so that nobody else changes it before it is gone on with.
  /// The file may be the one that `current` holds.
  static Found Find(const std::string& path, const KeptFile& current);

  // Each returns the error.

  /// Goes on behind the first so many bytes of a file that was found; the rest is cut off.
  int CutTo(std::size_t bytes);
  /// Starts a file, in the place of one that is there, or puts another text into this one.
  int Replace(const std::string& path, std::string_view text);
  /// Writes at the end. With `lasting` it is on the disk when this returns. After an error nothing
  /// of it is there.
  int Append(std::string_view text, bool lasting);
  void Close();

  bool IsOpen() const { return file_ != -1; }
  const std::string& path() const { return path_; }

  enum class State : unsigned char {
    AsLeft,   ///< it holds what was written here
    Gone,     ///< nothing is in its place, and its folder is the one that it was in
    Changed,  ///< another program has written or replaced it, or its folder is another one
    Lost,     ///< its folder is not there
  };
  State Look();

 private:
  bool IsAt(const std::string& path) const;
  void Hold(int file, const std::string& path, std::string_view text);
  void NoteAsLeft();

  int file_ = -1;
  std::string path_;
  std::size_t size_ = 0;
  std::uint64_t contents_ = 0;  // a hash of them
  timespec changed_{};          // when the file last changed, as far as we know
  dev_t folderDevice_ = 0;
  ino_t folder_ = 0;
};

struct KeptFile::Found {
  KeptFile file;  ///< not open if it can only be read
  std::string text;
  int error = 0;        ///< why it cannot be read
  int notWritable = 0;  ///< why it can only be read
};

}  // namespace zelvo
