#include <getopt.h>

#include <cerrno>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

#include "faces/files.h"
#include "faces/headless/stream_game.h"
#include "faces/kept_game.h"
#include "faces/standard_streams.h"

namespace {

using zelvo::Complain;
using zelvo::failure;
using zelvo::PrintAnswer;
using zelvo::WithReason;

constexpr const char* program = "zelvo-headless";

constexpr char help[] =
    "Usage: zelvo-headless [--game FILE] [SCRIPT]\n"
    "Plays the game without a screen: reads a command a line from the file SCRIPT, or from "
    "standard\n"
    "input, and prints a line of JSON each time the game waits for the player.\n"
    "\n"
    "Options:\n"
    "  -g, --game FILE  Begins where the game kept in FILE stands.\n"
    "  -h, --help       Displays this help.\n"
    "  -v, --version    Displays version information.\n";

struct Call {
  const char* script = nullptr;  // null for standard input
  const char* game = nullptr;    // null for a new one
};

/// Reads the command line. Returns an exit status if it leaves nothing to play.
std::optional<int> ReadCall(int argc, char** argv, Call& call) {
  static constexpr option options[] = {{"game", required_argument, nullptr, 'g'},
                                       {"help", no_argument, nullptr, 'h'},
                                       {"version", no_argument, nullptr, 'v'},
                                       {nullptr, 0, nullptr, 0}};
  for (int option = 0; (option = getopt_long(argc, argv, "g:hv", options, nullptr)) != -1;) {
    switch (option) {
      case 'g':
        call.game = optarg;
        break;
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

/// Reads and tries a kept game. Returns an exit status if it cannot be gone on with.
std::optional<int> ReadGame(const std::string& file, zelvo::GameList& list) {
  const auto [text, error] = zelvo::ReadFile(file);
  if (error != 0) return Complain(program, WithReason(file + " cannot be read", error), failure);
  zelvo::KeptGame kept = zelvo::ReadKeptGame(text);
  if (!kept.error.empty()) {
    return Complain(program, file + " cannot be played: " + kept.error, failure);
  }
  list = std::move(kept.list);
  return std::nullopt;
}

int Play(zelvo::GameList list, std::istream& commands, const std::string& name) {
  zelvo::StreamGame game(commands, std::cout);
  game.GoOn(std::move(list));
  const int error = game.PlayScript();
  if (error == 0) return zelvo::success;
  const std::string what =
      commands.bad() ? name + " cannot be read" : "standard output cannot be written";
  return Complain(program, WithReason(what, error), failure);
}

}  // namespace

int main(int argc, char** argv) {
  zelvo::GuardStandardStreams();
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  Call call;
  if (const auto status = ReadCall(argc, argv, call)) return *status;
  zelvo::GameList list;
  if (call.game != nullptr) {
    if (const auto status = ReadGame(call.game, list)) return *status;
  }
  if (call.script == nullptr) return Play(std::move(list), std::cin, "standard input");
  std::ifstream script(call.script);
  const std::string name = call.script;
  if (!script) {
    return Complain(program, WithReason(name + " cannot be read", errno), failure);
  }
  return Play(std::move(list), script, name);
}
