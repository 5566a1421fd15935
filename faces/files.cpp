#include "faces/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <memory>

#include "journal/game_list.h"

namespace zelvo {
namespace {

/// What a text is written to before it is moved into its place, in the folder of that place. Its
/// name has nothing of the other, which may be as long as names can be.
constexpr std::string_view partName = ".zelvo-part-XXXXXX";

/// After this the folder will know the file's name even if the power fails.
void SyncFolder(const std::string& folder) {
  const Handle handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (handle.get() != -1) fsync(handle.get());
}

/// The permissions of a file, or those of a new one.
mode_t ModeOf(const std::string& path) {
  struct stat facts = {};
  if (stat(path.c_str(), &facts) == 0) return facts.st_mode & 07777;
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

/// Takes away what programs that were killed have left of their writing in a folder. What is locked
/// is still being written.
void ClearParts(const std::string& folder) {
  const std::string_view known = partName.substr(0, partName.find('X'));
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(folder.c_str()), closedir);
  while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
    const std::string_view name = entry->d_name;
    if (name.size() != partName.size() || !name.starts_with(known)) continue;
    const std::string path = folder + "/" + std::string(name);
    const Handle part(open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (part.get() != -1 && Lock(part.get()) == 0) unlink(path.c_str());
  }
}

/// Makes a file for a text that is to be moved into its place, locked; -1 with the error in
/// `errno`.
int MakePart(std::string& path) {
  const std::string folder = FolderOf(path);
  ClearParts(folder);
  int error = EWOULDBLOCK;
  // Somebody who clears may be quicker than the lock.
  for (int tries = 0; error == EWOULDBLOCK && tries < 100; ++tries) {
    path = folder + "/" + std::string(partName);
    Handle part(mkostemp(path.data(), O_CLOEXEC));
    if (part.get() == -1) return -1;
    error = Lock(part.get());
    if (error == 0 && LeadsTo(path, part.get())) return part.Release();
    if (error == 0) error = EWOULDBLOCK;
    unlink(path.c_str());
  }
  errno = error;
  return -1;
}

}  // namespace

Handle::~Handle() {
  if (file_ != -1) close(file_);
}

int Lock(int file) {
  return Try([file] { return flock(file, LOCK_EX | LOCK_NB); });
}

int WriteAll(int file, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(file, text.data(), text.size());
    if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
    if (written == -1 && errno != EINTR) return errno;
  }
  return 0;
}

FileText ReadUpTo(int file, std::size_t most) {
  FileText read;
  std::array<char, 65'536> piece{};
  while (read.text.size() < most) {
    const std::size_t wanted = std::min(piece.size(), most - read.text.size());
    const ssize_t size = pread(file, piece.data(), wanted, static_cast<off_t>(read.text.size()));
    if (size == 0) break;
    if (size > 0) read.text.append(piece.data(), static_cast<std::size_t>(size));
    if (size == -1 && errno != EINTR) return {"", errno};
  }
  return read;
}

FileText ReadGame(int file) { return ReadUpTo(file, longestText + 1); }

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string TargetOf(std::string path) {
  constexpr int mostLinks = 40;
  for (int link = 0; link < mostLinks; ++link) {
    std::array<char, PATH_MAX> room{};
    const ssize_t length = readlink(path.c_str(), room.data(), room.size());
    if (length == -1) return path;
    const std::string target(room.data(), static_cast<std::size_t>(length));
    path = target.starts_with("/") ? target : FolderOf(path).append("/").append(target);
  }
  return path;
}

int ErrorIfNoFile(const std::string& path) {
  struct stat facts = {};
  if (stat(path.c_str(), &facts) != 0) return errno == ELOOP ? ELOOP : 0;
  if (S_ISREG(facts.st_mode)) return 0;
  return S_ISDIR(facts.st_mode) ? EISDIR : ENOTSUP;
}

bool LeadsTo(const std::string& path, int file) {
  struct stat ours = {};
  struct stat there = {};
  return fstat(file, &ours) == 0 && stat(path.c_str(), &there) == 0 &&
         ours.st_ino == there.st_ino && ours.st_dev == there.st_dev;
}

int ErrorIfHeld(const std::string& path) {
  const Handle file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file.get() == -1) return 0;
  return Lock(file.get()) == EWOULDBLOCK ? EWOULDBLOCK : 0;
}

int ReplaceFile(const std::string& path, std::string_view text, int& file) {
  if (const int error = ErrorIfNoFile(path)) return error;
  const std::string target = TargetOf(path);
  // Somebody else's file that may not be written is not to be replaced either.
  if (access(target.c_str(), F_OK) == 0 && access(target.c_str(), W_OK) != 0) return errno;
  std::string beside = target;
  Handle part(MakePart(beside));
  if (part.get() == -1) return errno;
  int error = WriteAll(part.get(), text);
  if (error == 0) error = Try([&] { return fchmod(part.get(), ModeOf(target)); });
  if (error == 0) error = Try([&] { return fsync(part.get()); });
  if (error == 0) error = Try([&] { return std::rename(beside.c_str(), target.c_str()); });
  if (error != 0) {
    unlink(beside.c_str());
    return error;
  }
  SyncFolder(FolderOf(target));
  file = part.Release();
  return 0;
}

FileText ReadFile(const std::string& path) {
  if (const int error = ErrorIfNoFile(path)) return {"", error};
  const Handle file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.get() == -1) return {"", errno};
  return ReadGame(file.get());
}

int ReplaceFile(const std::string& path, std::string_view text) {
  if (const int error = ErrorIfHeld(path)) return error;
  int file = -1;
  const int error = ReplaceFile(path, text, file);
  if (file != -1) close(file);
  return error;
}

}  // namespace zelvo
