// Prints the boxes of all windows and controls in twips, a line each, so that the tests of the real
// program know where to click.

#include <iostream>
#include <sstream>

#include "faces/headless/stream_game.h"

int main() {
  std::istringstream nobody;
  std::ostringstream unheard;
  zelvo::StreamGame script(nobody, unheard);
  for (const zelvo::Window* window : script.game().Windows()) {
    const auto& design = window->design();
    std::cout << design.name << " 0 0 " << design.width << ' ' << design.height << '\n';
    for (const zelvo::Control* control : window->controls()) {
      const zelvo::Box box = control->Place();
      std::cout << design.name << '.' << control->FullName() << ' ' << box.left << ' ' << box.top
                << ' ' << box.width << ' ' << box.height << '\n';
    }
  }
}
