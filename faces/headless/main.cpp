#include <iostream>

#include "faces/headless/stream_game.h"

int main() {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  zelvo::StreamGame game(std::cin, std::cout);
  game.Run();
  std::cout.flush();
  return 0;
}
