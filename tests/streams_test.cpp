#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace zelvo::test {
namespace {

struct Outcome {
  std::string printed;
  int status;
};

/// Runs a line of shell in which $p stands for the folder of the programs. A program that does not
/// end by itself is stopped after a minute, with status 124.
Outcome Shell(const std::string& line) {
  std::FILE* pipe =
      popen(("export p=" ZELVO_PROGRAMS "; exec timeout 60 bash -c '" + line + "'").c_str(), "r");
  Outcome outcome{};
  if (pipe == nullptr) {
    ADD_FAILURE() << "no shell: " << std::strerror(errno);
    return outcome;
  }
  std::array<char, 4096> piece{};
  while (const std::size_t read = std::fread(piece.data(), 1, piece.size(), pipe)) {
    outcome.printed.append(piece.data(), read);
  }
  outcome.status = WEXITSTATUS(pclose(pipe));
  return outcome;
}

struct Complaint {
  std::string line;
  std::string said;  // its beginning, after the program's name
};

/// The program complains in one line and ends with status 1.
void ExpectComplaints(const std::string& program, std::initializer_list<Complaint> rows) {
  for (const auto& [line, said] : rows) {
    const auto [printed, status] = Shell("{ " + line + "; } 2>&1 >/dev/null");
    EXPECT_EQ(printed.find(std::string(program).append(": ").append(said)), 0)
        << line << ": " << printed;
    EXPECT_EQ(printed.find('\n'), printed.size() - 1) << line << ": " << printed;
    EXPECT_EQ(status, 1) << line;
  }
}

/// The program answers, or names what it does not know.
void ExpectAnswers(const std::string& program) {
  for (const auto& [call, told, expected] :
       std::initializer_list<std::array<std::string, 3>>{{"--help", "Options:", "0"},
                                                         {"-h", "--version", "0"},
                                                         {"-v", "zelvo", "0"},
                                                         {"--version", " 3.", "0"},
                                                         {"--fly", "fly", "2"},
                                                         {"-x", "x", "2"},
                                                         {"--version=3", "version", "2"},
                                                         {"/dev/null surplus", "", "2"}}) {
    const auto [printed, status] =
        Shell(std::string(program).append(" ").append(call).append(" 2>&1"));
    EXPECT_NE(printed.find(told), std::string::npos) << program << call << printed;
    EXPECT_EQ(std::to_string(status), expected) << program << call;
  }
}

const std::string written = "standard output cannot be written: ";
const std::string full = written + "No space left on device\n";
const std::string badNumber = "Bad file descriptor\n";

TEST(Streams, WhatCannotBeReadOrWrittenIsToldInOneLine) {
  const std::string read = "standard input cannot be read: ";
  ExpectComplaints("zelvo-headless",
                   {{"$p/zelvo-headless </", read + "Is a directory\n"},
                    {"$p/zelvo-headless <&-", read + badNumber},
                    {"$p/zelvo-headless /", "/ cannot be read: Is a directory\n"},
                    {"$p/zelvo-headless /no", "/no cannot be read: No such file or directory\n"},
                    {"yes | $p/zelvo-headless >/dev/full", full},
                    {"cat /dev/zero | $p/zelvo-headless >/dev/full", full},
                    {"yes | $p/zelvo-headless | true; exit ${PIPESTATUS[1]}", written + "Broken"},
                    {"$p/zelvo-headless >&- </dev/null", written + badNumber},
                    {"$p/zelvo-headless /dev/null >&- <&-", written + badNumber},
                    {"$p/zelvo-headless --help >/dev/full", full},
                    {"$p/zelvo-headless --version >&-", written + badNumber}});
  ExpectAnswers("$p/zelvo-headless");
}

#ifdef ZELVO_HAS_DESKTOP
TEST(Streams, TheDesktopProgramSaysWhyItOpensNoWindow) {
  const std::string nowhere = "there is no display to open a window on";
  const std::string on = "no window can be opened on the platform ";
  unsetenv("WAYLAND_DISPLAY");
  unsetenv("QT_QPA_PLATFORM");
  for (const char* display : {"", ":none"}) {
    setenv("DISPLAY", display, 1);
    ExpectComplaints("zelvo", {{"$p/zelvo", nowhere},
                               {"$p/zelvo -style=fusion <&- >&-", nowhere},
                               {"QT_QPA_PLATFORM=fly $p/zelvo", on + "\"fly\""},
                               {"$p/zelvo -platform xcb", on + "\"xcb\""},
                               {"$p/zelvo --help >/dev/full", full},
                               {"$p/zelvo --version >&-", written + badNumber}});
  }
  ExpectAnswers("QT_QPA_PLATFORM=offscreen $p/zelvo");
}
#endif

}  // namespace
}  // namespace zelvo::test
