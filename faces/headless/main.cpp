#include <getopt.h>

#include <cerrno>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#include "faces/headless/stream_game.h"
#include "faces/standard_streams.h"

namespace {

using zelvo::Complain;
using zelvo::PrintAnswer;
using zelvo::WithReason;

constexpr const char* program = "zelvo-headless";

constexpr char help[] =
    "Usage: zelvo-headless [SCRIPT]\n"
    "Plays the game without a screen: reads a command a line from the file SCRIPT, or from "
    "standard\n"
    "input, and prints a line of JSON each time the game waits for the player.\n"
    "\n"
    "Options:\n"
    "  -h, --help     Displays this help.\n"
    "  -v, --version  Displays version information.\n";

struct Call {
  const char* script = nullptr;  // null for standard input
};

/// Reads the command line. Returns an exit status if it leaves nothing to play.
std::optional<int> ReadCall(int argc, char** argv, Call& call) {
  static constexpr option options[] = {{"help", no_argument, nullptr, 'h'},
                                       {"version", no_argument, nullptr, 'v'},
                                       {nullptr, 0, nullptr, 0}};
  for (int option = 0; (option = getopt_long(argc, argv, "hv", options, nullptr)) != -1;) {
    switch (option) {
      case 'h':
        return PrintAnswer(program, help);
      case 'v':
        return PrintAnswer(program, "zelvo-headless " ZELVO_VERSION "\n");
      default:
        return zelvo::wrongCall;  // getopt has said what it is
    }
  }
  if (optind < argc) call.script = argv[optind++];
  if (optind < argc) {
    return Complain(program, std::string("one script only, not also ") + argv[optind],
                    zelvo::wrongCall);
  }
  return std::nullopt;
}

int Play(std::istream& commands, const std::string& name) {
  zelvo::StreamGame game(commands, std::cout);
  const int error = game.PlayScript();
  if (error == 0) return zelvo::success;
  const std::string what =
      commands.bad() ? name + " cannot be read" : "standard output cannot be written";
  return Complain(program, WithReason(what, error), zelvo::failure);
}

}  // namespace

int main(int argc, char** argv) {
  zelvo::GuardStandardStreams();
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  Call call;
  if (const auto status = ReadCall(argc, argv, call)) return *status;
  if (call.script == nullptr) return Play(std::cin, "standard input");
  std::ifstream script(call.script);
  const std::string name = call.script;
  if (!script) {
    return Complain(program, WithReason(name + " cannot be read", errno), zelvo::failure);
  }
  return Play(script, name);
}
