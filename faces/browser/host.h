#pragma once

#include <cstddef>

/// What the page offers the game. Only `Wait`, `Pause` and `PlayCue` suspend the game's stack; the
/// page never calls into a game that is suspended, it puts what the player does into a queue.
namespace zelvo::host {

#define ZELVO_HOST(name) [[clang::import_module("host"), clang::import_name(name)]]
extern "C" {

/// Suspends until something is in the queue of inputs or that many milliseconds are over, however
/// long that takes if they are negative.
ZELVO_HOST("wait") void ZelvoWait(double milliseconds);
/// Suspends that long without regard to the queue.
ZELVO_HOST("pause") void ZelvoPause(double milliseconds);
/// Starts a cue and cuts off the one that plays; with `waits` suspends to its end.
ZELVO_HOST("playCue") void ZelvoPlayCue(const char* file, std::size_t length, int waits);
/// 0 if there is nothing to play cues on.
ZELVO_HOST("canPlay") int ZelvoCanPlay();
/// Takes the first input off the queue, as much of it as there is room for; its length, or -1 if
/// there is none.
ZELVO_HOST("takeInput") int ZelvoTakeInput(char* text, std::size_t room);
/// Takes a JSON object with the design of the windows.
ZELVO_HOST("design") void ZelvoDesign(const char* json, std::size_t length);
/// Takes a JSON object with what has changed on the page.
ZELVO_HOST("show") void ZelvoShow(const char* json, std::size_t length);
/// Takes a line of scripted play.
ZELVO_HOST("print") void ZelvoPrint(const char* line, std::size_t length);
/// Puts more of the game's list into the browser's storage, or, with `anew`, a list in the place of
/// what is there.
ZELVO_HOST("store") void ZelvoStore(const char* lines, std::size_t length, int anew);
/// Gives the player a file with a kept game.
ZELVO_HOST("keep") void ZelvoKeep(const char* text, std::size_t length);
/// The length of the kept game that is to be gone on with, 0 if there is none.
ZELVO_HOST("keptLength") std::size_t ZelvoKeptLength();
/// Takes its text, for which there must be room.
ZELVO_HOST("takeKept") void ZelvoTakeKept(char* text);
/// Milliseconds of a clock that only runs on.
ZELVO_HOST("now") double ZelvoNow();
/// The second of the local day.
ZELVO_HOST("secondOfDay") int ZelvoSecondOfDay();

}  // extern "C"
#undef ZELVO_HOST

}  // namespace zelvo::host
