#include "faces/game_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zelvo {
namespace {

constexpr std::uint64_t hashOfNothing = 14'695'981'039'346'656'037U;
/// Goes on with the hash of a text, byte by byte.
std::uint64_t HashOf(std::string_view text, std::uint64_t hash = hashOfNothing) {
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1'099'511'628'211U;
  return hash;
}

}  // namespace

KeptFile& KeptFile::operator=(KeptFile&& other) noexcept {
  if (this == &other) return *this;
  Close();
  file_ = std::exchange(other.file_, -1);
  path_ = std::move(other.path_);
  size_ = other.size_;
  contents_ = other.contents_;
  changed_ = other.changed_;
  folderDevice_ = other.folderDevice_;
  folder_ = other.folder_;
  return *this;
}

KeptFile::Found KeptFile::Find(const std::string& path, const KeptFile& current) {
  Found found;
  if ((found.error = ErrorIfNoFile(path)) != 0) return found;
  while (true) {
    // A file that is held already is read through what holds it, as a lock goes with that.
    Handle file(current.IsAt(path) ? fcntl(current.file_, F_DUPFD_CLOEXEC, 0)
                                   : open(path.c_str(), O_RDWR | O_APPEND | O_CLOEXEC));
    if (file.get() == -1) {
      found.notWritable = errno;
      auto [text, error] = ReadFile(path);
      found.text = std::move(text);
      found.error = error;
      return found;
    }
    if ((found.error = Lock(file.get())) != 0) return found;
    // Who held it until now may have put another file in its place.
    if (!LeadsTo(path, file.get())) continue;
    auto [text, error] = ReadGame(file.get());
    found.text = std::move(text);
    found.error = error;
    if (error == 0) found.file.Hold(file.Release(), path, found.text);
    return found;
  }
}

int KeptFile::CutTo(std::size_t bytes) {
  if (bytes == size_) return 0;
  auto [text, error] = ReadUpTo(file_, bytes);
  if (error == 0) {
    error = Try([&] { return ftruncate(file_, static_cast<off_t>(bytes)); });
  }
  if (error != 0) return error;
  size_ = bytes;
  contents_ = HashOf(text);
  NoteAsLeft();
  return 0;
}

int KeptFile::Replace(const std::string& path, std::string_view text) {
  if (IsOpen() && path == path_ && Look() == State::Changed) return ESTALE;
  if (!IsAt(path)) {
    if (const int error = ErrorIfHeld(path)) return error;
  }
  int file = -1;
  if (const int error = ReplaceFile(path, text, file)) return error;
  Close();
  Hold(file, path, text);
  return 0;
}

int KeptFile::Append(std::string_view text, bool lasting) {
  if (Look() != State::AsLeft) return ESTALE;
  int error = Try([this] { return lseek(file_, 0, SEEK_END) == -1 ? -1 : 0; });
  if (error == 0) error = WriteAll(file_, text);
  if (error == 0 && lasting) error = Try([this] { return fdatasync(file_); });
  if (error == 0) {
    size_ += text.size();
    contents_ = HashOf(text, contents_);
    NoteAsLeft();
    return 0;
  }
  // What cannot be cut off either is a torn line, which readers drop.
  if (ftruncate(file_, static_cast<off_t>(size_)) == 0) fdatasync(file_);
  NoteAsLeft();
  return error;
}

void KeptFile::Close() {
  if (file_ != -1) close(std::exchange(file_, -1));
}

KeptFile::State KeptFile::Look() {
  struct stat folder = {};
  if (stat(FolderOf(TargetOf(path_)).c_str(), &folder) != 0) return State::Lost;
  if (folder.st_ino != folder_ || folder.st_dev != folderDevice_) return State::Changed;
  struct stat there = {};
  if (stat(path_.c_str(), &there) != 0) return errno == ENOENT ? State::Gone : State::Changed;
  if (!LeadsTo(path_, file_) || static_cast<std::size_t>(there.st_size) != size_) {
    return State::Changed;
  }
  const bool untouched =
      there.st_mtim.tv_sec == changed_.tv_sec && there.st_mtim.tv_nsec == changed_.tv_nsec;
  if (untouched) return State::AsLeft;
  const auto [text, error] = ReadUpTo(file_, size_);
  if (error != 0 || HashOf(text) != contents_) return State::Changed;
  NoteAsLeft();
  return State::AsLeft;
}

void KeptFile::Hold(int file, const std::string& path, std::string_view text) {
  file_ = file;
  path_ = path;
  size_ = text.size();
  contents_ = HashOf(text);
  struct stat folder = {};
  stat(FolderOf(TargetOf(path)).c_str(), &folder);
  folder_ = folder.st_ino;
  folderDevice_ = folder.st_dev;
  NoteAsLeft();
}

void KeptFile::NoteAsLeft() {
  struct stat facts = {};
  if (fstat(file_, &facts) == 0) changed_ = facts.st_mtim;
}

bool KeptFile::IsAt(const std::string& path) const { return IsOpen() && LeadsTo(path, file_); }

}  // namespace zelvo
