#include "faces/game_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace zelvo {
namespace {

/// Calls the system, again if a signal came in between. Returns the error, or 0.
template <class Call>
int Try(Call call) {
  while (call() == -1) {
    if (errno != EINTR) return errno;
  }
  return 0;
}

int WriteAll(int file, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(file, text.data(), text.size());
    if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
    if (written == -1 && errno != EINTR) return errno;
  }
  return 0;
}

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

/// The file that a name leads to, through links, so that a link stays one.
std::string TargetOf(const std::string& path) {
  char* target = realpath(path.c_str(), nullptr);
  if (target == nullptr) return path;
  std::string found(target);
  std::free(target);
  return found;
}

/// After this the folder will know the file's name even if the power fails.
void SyncFolder(const std::string& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle == -1) return;
  fsync(handle);
  close(handle);
}

/// The permissions of a file, or those of a new one.
mode_t ModeOf(const std::string& path) {
  struct stat facts = {};
  if (stat(path.c_str(), &facts) == 0) return facts.st_mode & 07777;
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

/// A folder holds no game, and a pipe or a device could take for ever. What is not there is no
/// error yet.
int ErrorIfNoFile(const std::string& path) {
  struct stat facts = {};
  if (stat(path.c_str(), &facts) != 0 || S_ISREG(facts.st_mode)) return 0;
  return S_ISDIR(facts.st_mode) ? EISDIR : ENOTSUP;
}

/// Writes a text beside a file and moves it into its place. `file` is left open on it.
int WriteAndMove(const std::string& path, std::string_view text, int& file) {
  if (const int error = ErrorIfNoFile(path)) return error;
  const std::string target = TargetOf(path);
  // Somebody else's file that may not be written is not to be replaced either.
  if (access(target.c_str(), F_OK) == 0 && access(target.c_str(), W_OK) != 0) return errno;
  std::string beside = target + ".XXXXXX";
  file = mkostemp(beside.data(), O_CLOEXEC);
  if (file == -1) return errno;
  int error = WriteAll(file, text);
  if (error == 0) error = Try([&] { return fchmod(file, ModeOf(target)); });
  if (error == 0) error = Try([&] { return fsync(file); });
  if (error == 0) error = Try([&] { return flock(file, LOCK_EX | LOCK_NB); });
  if (error == 0) error = Try([&] { return std::rename(beside.c_str(), target.c_str()); });
  if (error == 0) {
    SyncFolder(FolderOf(target));
    return 0;
  }
  unlink(beside.c_str());
  close(std::exchange(file, -1));
  return error;
}

/// Whether another program holds the file.
int ErrorIfHeld(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file == -1) return 0;
  const int error = Try([file] { return flock(file, LOCK_EX | LOCK_NB); });
  close(file);
  return error == EWOULDBLOCK ? error : 0;
}

}  // namespace

FileText ReadFile(const std::string& path) {
  FileText read;
  if (const int error = ErrorIfNoFile(path)) return {"", error};
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file == -1) return {"", errno};
  std::array<char, 65'536> piece{};
  ssize_t size = 0;
  do {
    size = ::read(file, piece.data(), piece.size());
    if (size > 0) read.text.append(piece.data(), static_cast<std::size_t>(size));
    if (size == -1 && errno != EINTR) read.error = errno;
  } while (size != 0 && read.error == 0);
  close(file);
  return read;
}

int ReplaceFile(const std::string& path, std::string_view text) {
  if (const int error = ErrorIfHeld(path)) return error;
  int file = -1;
  const int error = WriteAndMove(path, text, file);
  if (file != -1) close(file);
  return error;
}

int KeptFile::Open(const std::string& path, std::size_t bytes) {
  const bool isOurs = IsAt(path);
  const int file = open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
  if (file == -1) return errno;
  if (isOurs) Close();
  int error = Try([file] { return flock(file, LOCK_EX | LOCK_NB); });
  if (error == 0) error = Try([&] { return ftruncate(file, static_cast<off_t>(bytes)); });
  if (error != 0) {
    close(file);
    return error;
  }
  Close();
  file_ = file;
  size_ = bytes;
  path_ = path;
  return 0;
}

int KeptFile::Replace(const std::string& path, std::string_view text) {
  if (!IsAt(path)) {
    if (const int error = ErrorIfHeld(path)) return error;
  }
  int file = -1;
  if (const int error = WriteAndMove(path, text, file)) return error;
  Close();
  file_ = file;
  size_ = text.size();
  path_ = path;
  return 0;
}

int KeptFile::Append(std::string_view text, bool lasting) {
  int error = WriteAll(file_, text);
  if (error == 0 && lasting) error = Try([this] { return fdatasync(file_); });
  if (error == 0) {
    size_ += text.size();
    return 0;
  }
  // What cannot be cut off either is a torn line, which readers drop.
  if (ftruncate(file_, static_cast<off_t>(size_)) == 0) fdatasync(file_);
  Close();
  return error;
}

void KeptFile::Close() {
  if (file_ != -1) close(std::exchange(file_, -1));
}

bool KeptFile::IsAt(const std::string& path) const {
  return IsOpen() && IsInPlace() && TargetOf(path) == TargetOf(path_);
}

bool KeptFile::IsInPlace() const {
  struct stat ours = {};
  struct stat there = {};
  return fstat(file_, &ours) == 0 && stat(path_.c_str(), &there) == 0 &&
         ours.st_ino == there.st_ino && ours.st_dev == there.st_dev;
}

}  // namespace zelvo
