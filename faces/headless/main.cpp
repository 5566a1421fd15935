#include <iostream>

#include "faces/headless/scripted_game.h"

int main() {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  zelvo::ScriptedGame game(std::cin, std::cout);
  game.Run();
  return 0;
}
