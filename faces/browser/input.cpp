#include "faces/browser/input.h"

#include "faces/browser/host.h"

namespace zelvo {

bool TakeInput(std::string& text) {
  constexpr std::size_t room = 65'536 + 1;
  text.resize(room);
  const int length = host::ZelvoTakeInput(text.data(), room);
  text.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
  return length >= 0;
}

}  // namespace zelvo
