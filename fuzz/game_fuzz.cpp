// Feeds lists to whoever goes on with a kept game. What is refused is refused with a reason; what
// fits is gone on with.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <utility>

#include "faces/headless/stream_game.h"
#include "faces/kept_game.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string text(zelvo::ListHeader());
  text.append(reinterpret_cast<const char*>(data), size);
  zelvo::KeptGame kept = zelvo::ReadKeptGame(text);
  if (!kept.error.empty()) {
    const bool told =
        kept.error.starts_with("its line ") || kept.error == "it is too long to be played";
    if (!told) std::abort();
    return 0;
  }
  std::istringstream commands("hover GFM\nclick GFM.CMDGO\nanswer no\nanswer ok\n");
  std::ostringstream lines;
  zelvo::StreamGame game(commands, lines);
  const bool ends = kept.ends;
  game.GoOn(std::move(kept.list));
  game.Run();
  const bool ended = lines.str().find("\"ended\"") != std::string::npos;
  if (ended != ends) std::abort();
  return 0;
}
