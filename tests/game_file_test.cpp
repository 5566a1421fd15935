#include "faces/game_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>

#include "tests/folder.h"

namespace zelvo::test {
namespace {

std::string TextIn(const std::string& path) { return ReadFile(path).text; }

/// Takes hold of a file and goes on behind its first bytes. Returns the error.
int GoOn(KeptFile& kept, const std::string& path, std::size_t bytes) {
  KeptFile::Found found = KeptFile::Find(path, kept);
  if (found.error != 0 || found.notWritable != 0) return found.error + found.notWritable;
  kept = std::move(found.file);
  return kept.CutTo(bytes);
}

std::ptrdiff_t OpenHandles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(KeptFile, GrowsAtItsEndAndBelongsToOneProgram) {
  const Folder folder;
  const auto handles = OpenHandles();
  const std::string file = folder.File("a.zelvo");
  KeptFile kept;
  EXPECT_EQ(KeptFile::Find(file, kept).error, ENOENT);
  EXPECT_EQ(kept.Replace(file, "one\n"), 0);
  EXPECT_EQ(kept.Append("two\n", true), 0);
  EXPECT_EQ(TextIn(file), "one\ntwo\n");
  KeptFile other;
  EXPECT_EQ(GoOn(other, file, 0), EWOULDBLOCK);
  EXPECT_EQ(other.Replace(file, "other"), EWOULDBLOCK);
  EXPECT_EQ(ReplaceFile(file, "other"), EWOULDBLOCK);
  const std::string own = folder.File("own.zelvo");
  EXPECT_EQ(other.Replace(own, "one\n"), 0);
  EXPECT_EQ(GoOn(other, file, 0), EWOULDBLOCK);
  EXPECT_EQ(other.Append("two\n", false), 0) << "it still keeps its own";
  EXPECT_EQ(GoOn(other, own, 4), 0) << "and can go on with it anew";
  EXPECT_EQ(other.Append("2\n", false), 0);
  EXPECT_EQ(TextIn(own), "one\n2\n");
  EXPECT_EQ(TextIn(file), "one\ntwo\n");
  EXPECT_EQ(kept.Replace(file, "three\nto"), 0);
  EXPECT_EQ(GoOn(other, file, 0), EWOULDBLOCK) << "the new file is held like the old one";
  kept.Close();
  // A torn line is cut off; permissions and links stay.
  EXPECT_EQ(chmod(file.c_str(), 0640), 0);
  const std::string link = folder.File("link.zelvo");
  EXPECT_EQ(symlink(file.c_str(), link.c_str()), 0);
  EXPECT_EQ(GoOn(other, link, 6), 0);
  EXPECT_EQ(other.Append("four\n", false), 0);
  EXPECT_EQ(TextIn(file), "three\nfour\n");
  EXPECT_EQ(other.Replace(link, "five\n"), 0);
  EXPECT_EQ(TextIn(file), "five\n");
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(static_cast<int>(std::filesystem::status(file).permissions()), 0640);
  EXPECT_EQ(other.Look(), KeptFile::State::AsLeft);
  other.Close();
  EXPECT_EQ(OpenHandles(), handles);
}

TEST(KeptFile, IsWrittenThroughALinkToNothingAndUnderALongName) {
  const Folder folder;
  KeptFile kept;
  const std::string link = folder.File("link.zelvo");
  EXPECT_EQ(symlink("new.zelvo", link.c_str()), 0);
  EXPECT_EQ(kept.Replace(link, "one\n"), 0);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(TextIn(folder.File("new.zelvo")), "one\n");
  const std::string circle = folder.File("circle");
  EXPECT_EQ(symlink("circle", circle.c_str()), 0);
  EXPECT_NE(kept.Replace(circle, "one\n"), 0);
  EXPECT_EQ(kept.Replace(folder.File(std::string(250, 'n')), "one\n"), 0);
  EXPECT_EQ(kept.Replace(folder.File(std::string(256, 'n')), "one\n"), ENAMETOOLONG);
  EXPECT_EQ(folder.Count(), 4);
}

/// What others do to a file that a game is kept in.
TEST(KeptFile, ThatAnotherProgramHasChangedIsLeftAlone) {
  const std::string ours = "one\ntwo\n";
  const struct {
    const char* what;
    std::function<void(const std::string& file, const Folder& folder)> change;
    KeptFile::State state;
  } changes[] = {
      {"nothing", [](auto&, auto&) {}, KeptFile::State::AsLeft},
      {"touch",
       [](auto& file, auto&) {
         std::filesystem::last_write_time(file, std::filesystem::file_time_type());
       },
       KeptFile::State::AsLeft},
      {">>", [](auto& file, auto&) { std::ofstream(file, std::ios::app) << "three\n"; },
       KeptFile::State::Changed},
      {">", [](auto& file, auto&) { Write(file, "x"); }, KeptFile::State::Changed},
      {"cp of the same length",
       [](auto& file, auto&) {
         Write(file, "on3\ntwo\n");
         std::filesystem::last_write_time(file, std::filesystem::file_time_type());
       },
       KeptFile::State::Changed},
      {"mv onto it",
       [&ours](auto& file, auto& folder) {
         Write(folder.File("new"), ours);
         std::filesystem::rename(folder.File("new"), file);
       },
       KeptFile::State::Changed},
      {"rm", [](auto& file, auto&) { std::filesystem::remove(file); }, KeptFile::State::Gone},
      {"another folder in the place of its own",
       [](auto& file, auto& folder) {
         std::filesystem::rename(folder.File("games"), folder.File("elsewhere"));
         std::filesystem::create_directory(folder.File("games"));
         EXPECT_FALSE(std::filesystem::exists(file));
       },
       KeptFile::State::Changed},
      {"no folder at all",
       [](auto&, auto& folder) {
         std::filesystem::rename(folder.File("games"), folder.File("elsewhere"));
       },
       KeptFile::State::Lost},
  };
  for (const auto& [what, change, state] : changes) {
    const Folder folder;
    std::filesystem::create_directory(folder.File("games"));
    const std::string file = folder.File("games/a.zelvo");
    KeptFile kept;
    EXPECT_EQ(kept.Replace(file, "one\n"), 0);
    EXPECT_EQ(kept.Append("two\n", false), 0);
    change(file, folder);
    const std::string theirs = TextIn(file);
    EXPECT_EQ(kept.Look(), state) << what;
    const bool asLeft = state == KeptFile::State::AsLeft;
    EXPECT_EQ(kept.Append("more\n", false), asLeft ? 0 : ESTALE) << what;
    EXPECT_EQ(TextIn(file), asLeft ? ours + "more\n" : theirs) << what;
    const int error = state == KeptFile::State::Changed ? ESTALE
                      : state == KeptFile::State::Lost  ? ENOENT
                                                        : 0;
    EXPECT_EQ(kept.Replace(file, "all\n"), error) << what;
    EXPECT_EQ(TextIn(file), error != 0 ? theirs : "all\n") << what;
  }
}

TEST(KeptFile, LeavesNothingHalfDoneAndNoLitter) {
  const Folder folder;
  const std::string file = folder.File("a.zelvo");
  // A pipe, a device or a folder is no place to keep a game.
  const std::string pipe = folder.File("pipe");
  EXPECT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  KeptFile kept;
  for (const std::string& place : {folder.path, pipe, std::string("/dev/zero")}) {
    EXPECT_NE(kept.Replace(place, "text"), 0) << place;
    EXPECT_NE(ReadFile(place).error, 0) << place;
  }
  EXPECT_EQ(ReadFile(folder.path).error, EISDIR);
  const std::string longText(200'000, 'x');
  EXPECT_EQ(ReplaceFile(file, longText), 0);
  EXPECT_EQ(TextIn(file), longText);
  // What could be written in part alone leaves nothing behind.
  rlimit most{};
  getrlimit(RLIMIT_FSIZE, &most);
  const rlimit little{1'000, most.rlim_max};
  const auto before = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &little);
  EXPECT_EQ(ReplaceFile(file, "x" + longText), EFBIG);
  setrlimit(RLIMIT_FSIZE, &most);
  std::signal(SIGXFSZ, before);
  EXPECT_EQ(TextIn(file), longText);
  EXPECT_EQ(folder.Count(), 2);
  // What a program that was killed has left goes with the next writing, but not what another one is
  // writing now.
  Write(folder.File(".zelvo-part-killed"), "half");
  const std::string busy = folder.File(".zelvo-part-ab12Cd");
  EXPECT_EQ(ReplaceFile(busy, "half"), 0);
  KeptFile::Found writing = KeptFile::Find(busy, kept);
  EXPECT_EQ(writing.error, 0);
  EXPECT_EQ(ReplaceFile(file, "new"), 0);
  EXPECT_FALSE(std::filesystem::exists(folder.File(".zelvo-part-killed")));
  EXPECT_TRUE(std::filesystem::exists(busy));
}

TEST(KeptFile, IsReadNoFurtherThanAGameCanBe) {
  const Folder folder;
  const std::string file = folder.File("a.zelvo");
  Write(file, "");
  std::filesystem::resize_file(file, 600'000'000);
  EXPECT_LT(ReadFile(file).text.size(), 17'000'000U);
}

}  // namespace
}  // namespace zelvo::test
