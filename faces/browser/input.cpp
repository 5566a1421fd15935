#include "faces/browser/input.h"

#include <array>

#include "faces/browser/host.h"

namespace zelvo {

bool TakeInput(std::string& text) {
  static std::array<char, 65'536 + 1> room;
  const int length = host::ZelvoTakeInput(room.data(), room.size());
  text.assign(room.data(), length < 0 ? 0 : static_cast<std::size_t>(length));
  return length >= 0;
}

std::string TakeKeptGame() {
  std::string text(host::ZelvoKeptLength(), '\0');
  if (!text.empty()) host::ZelvoTakeKept(text.data());
  return text;
}

}  // namespace zelvo
