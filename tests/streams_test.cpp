#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace zelvo::test {
namespace {

struct Outcome {
  std::string printed;  // by the last part of the command line, as it was redirected
  int status;
};

/// Runs a line of shell in which $p stands for the folder of the programs. A program that does not
/// end by itself is stopped after a minute, with status 124.
Outcome Shell(const std::string& line) {
  std::FILE* pipe =
      popen(("export p=" ZELVO_PROGRAMS "; exec timeout 60 bash -c '" + line + "'").c_str(), "r");
  Outcome outcome{};
  std::array<char, 4096> piece{};
  while (const std::size_t read = std::fread(piece.data(), 1, piece.size(), pipe)) {
    outcome.printed.append(piece.data(), read);
  }
  outcome.status = WEXITSTATUS(pclose(pipe));
  return outcome;
}

TEST(Streams, WhatCannotBeReadOrWrittenIsToldInOneLine) {
  const std::string read = " cannot be read: ";
  const std::string written = "standard output cannot be written: ";
  const std::string badNumber = "Bad file descriptor";
  for (const auto& [line, told] : std::initializer_list<std::pair<std::string, std::string>>{
           {"$p/zelvo-headless </", "standard input" + read + "Is a directory"},
           {"$p/zelvo-headless <&-", "standard input" + read + badNumber},
           {"$p/zelvo-headless /", "/" + read + "Is a directory"},
           {"$p/zelvo-headless /no/file", "/no/file" + read + "No such file or directory"},
           {"yes | $p/zelvo-headless >/dev/full", written + "No space left on device"},
           {"yes | $p/zelvo-headless | true; exit ${PIPESTATUS[1]}", written + "Broken pipe"},
           {"cat /dev/zero | $p/zelvo-headless >/dev/full", written + "No space left on device"},
           {"$p/zelvo-headless >&- </dev/null", written + badNumber},
           {"$p/zelvo-headless /dev/null >&- <&-", written + badNumber},
           {"$p/zelvo-headless --help >/dev/full", written + "No space left on device"},
           {"$p/zelvo-headless --version >&-", written + badNumber}}) {
    const auto [printed, status] = Shell("{ " + line + "; } 2>&1 >/dev/null");
    EXPECT_EQ(printed, "zelvo-headless: " + told + "\n") << line;
    EXPECT_EQ(status, 1) << line;
  }
}

TEST(Streams, ProgramsAnswerOrNameWhatTheyDoNotKnow) {
  for (const char* program : {"$p/zelvo-headless"}) {
    for (const auto& [call, told, expected] :
         std::initializer_list<std::array<std::string, 3>>{{"--help", "Options:", "0"},
                                                           {"-v", "zelvo", "0"},
                                                           {"--version", " 3.", "0"},
                                                           {"--fly", "fly", "2"},
                                                           {"-x", "x", "2"},
                                                           {"--version=3", "version", "2"},
                                                           {"/dev/null surplus", "surplus", "2"}}) {
      const auto [printed, status] = Shell(program + (" " + call) + " 2>&1");
      EXPECT_NE(printed.find(told), std::string::npos) << program << call << printed;
      EXPECT_EQ(std::to_string(status), expected) << program << call;
    }
  }
}

}  // namespace
}  // namespace zelvo::test
