#pragma once

#include <functional>
#include <string>

#include "faces/scripted/virtual_platform.h"
#include "game/game.h"

namespace zelvo {

/// A game played by a program in the same process, without commands and lines. The player is a
/// function that is called whenever the game waits; message boxes have one of their own.
class AutoPlayer : public VirtualPlatform {
 public:
  using Player = std::function<void(Game&)>;
  using Adviser = std::function<Answer(const std::string& text, MessageStyle style)>;

  /// Called when the game waits inside a modal window; must in the end close it.
  Player inModal;
  /// Answers message boxes; without it the answer is No or Ok.
  Adviser onMessage;
  /// Called for every cue with its path.
  std::function<void(const std::string& path, bool waits)> onSound;

  Game& game() { return game_; }

  Answer MessageBox(const std::string& text, MessageStyle style,
                    const std::string& /*title*/) override {
    if (onMessage) return onMessage(text, style);
    return style == MessageStyle::YesNoQuestion ? Answer::No : Answer::Ok;
  }
  bool PlaySound(const std::string& path, bool waits) override {
    if (onSound) onSound(path, waits);
    return true;
  }

 private:
  void WaitForPlayer() override { inModal(game_); }
  Surface& surface() override { return game_; }

  Game game_{*this};
};

/// Closes the modal window that waits in the most harmless way: no loan, no mall, no build, the
/// first card.
inline void Dismiss(Game& g) {
  Window* window = g.InputWindow();
  if (window == nullptr) return;
  if (window->HasCloseBox()) g.Close(*window);
  for (const char* name : {"cmdexit", "CMDEXIT", "CMDCANCEL", "CMD1(1)", "CMDOK", "Image1(0)"}) {
    Control* control = window->Find(name);
    if (control == nullptr || !g.WhyNoInput(*control).empty()) continue;
    g.Click(*control);
    return;
  }
}

}  // namespace zelvo
