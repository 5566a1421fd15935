#include <cstdlib>

#include "faces/browser/page_game.h"
#include "faces/browser/page_session.h"

// The library's own ways of giving up print what went wrong, and bring along all of printing for
// that. The page says its one sentence when the program traps.
extern "C" [[noreturn]] void abort_message(const char* /*format*/, ...) { __builtin_trap(); }
extern "C" void abort() { __builtin_trap(); }

// Where a program that winds its stack up by itself leaves it meanwhile: two words and the stack.
// Without promise integration that is how the page suspends it.
namespace {
constexpr int woundStackSize = 256 * 1024;
alignas(16) char woundStack[woundStackSize];
}  // namespace
extern "C" [[clang::export_name("woundStack")]] char* WoundStack() { return woundStack; }
extern "C" [[clang::export_name("woundStackSize")]] int WoundStackSize() { return woundStackSize; }

/// Plays the game to its end. The page calls it once.
extern "C" [[clang::export_name("play")]] void Play(int virtualTime) {
  if (virtualTime != 0) {
    zelvo::PageGame().Run();
  } else {
    zelvo::PageSession().Run();
  }
}
