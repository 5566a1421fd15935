// A random player: clicks, hovers and closes whatever the game offers, for as many full turns as
// asked, and looks at what must always hold after each of them.

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "fuzz/invariants.h"
#include "tests/auto_player.h"

namespace zelvo {
namespace {

class RandomPlayer {
 public:
  explicit RandomPlayer(std::uint32_t seed) : random_(seed) {
    player_.inModal = [this](Game&) { Play(); };
    player_.onMessage = [this](const std::string&, MessageStyle style) {
      if (style != MessageStyle::YesNoQuestion) return Answer::Ok;
      return OneIn(2) ? Answer::Yes : Answer::No;
    };
    game().Start();
  }

  Game& game() { return player_.game(); }

  /// One thing that a player can do, chosen at random.
  void Play() {
    Game& g = game();
    Window& window = *g.InputWindow();
    if (&window == &g.GFM.Untouched() && OneIn(3)) {
      ++turns;
      g.Click(g.GFM->CMDGO);
    } else if (OneIn(20'000) || (window.name() == "RB" && OneIn(3))) {
      if (window.name() != "GST") g.Close(window);  // which would end the program
    } else {
      ClickSomething(window);
    }
    if (OneIn(5000)) g.Click(g.GST->CMDSTART);
    if (const std::string broken = BrokenInvariant(g); !broken.empty()) {
      std::cerr << "after " << turns << " turns: " << broken << '\n';
      std::abort();
    }
  }

  std::int64_t turns = 0;

 private:
  bool OneIn(std::uint32_t chances) { return random_() % chances == 0; }

  void ClickSomething(Window& window) {
    Game& g = game();
    std::vector<Control*>& known = clickable_[window.controls().front()];
    if (known.empty()) {
      for (Control* control : window.controls()) {
        if (control->handlers.click != nullptr) known.push_back(control);
      }
    }
    if (known.empty()) return;
    Control* control = known[random_() % known.size()];
    if (control == &g.GST->CMDEXIT) return;
    // Leaving the board is rare, or no game would get far.
    if (control == &g.GFM->CMDEXIT && !OneIn(200)) return;
    if (OneIn(10)) g.Hover(*control);
    g.Click(*control);
  }

  std::minstd_rand random_;
  AutoPlayer player_;
  std::map<const Control*, std::vector<Control*>> clickable_;
};

}  // namespace
}  // namespace zelvo

// NOLINTNEXTLINE(bugprone-exception-escape): a pattern of the invariants throws if it is malformed
int main(int argc, char** argv) {
  const std::int64_t turns = argc > 1 ? std::atoll(argv[1]) : 20'000;
  const auto seed = static_cast<std::uint32_t>(argc > 2 ? std::atoll(argv[2]) : 1);
  zelvo::RandomPlayer player(seed);
  while (player.turns < turns) player.Play();
  std::cout << player.turns << " turns, no invariant broken\n";
  return 0;
}
