#pragma once

#include <string>

#include "faces/browser/page.h"
#include "faces/scripted/scripted_game.h"

namespace zelvo {

/// The game on the page in virtual time: the page's inputs are commands of scripted play, and the
/// page gets the scripted face's lines.
class PageGame final : public ScriptedGame {
 public:
  Answer MessageBox(const std::string& text, MessageStyle style, const std::string& title) override;
  void SetPointer(MousePointer pointer) override { page_.SetPointer(pointer); }
  void SetFocus(Control& control) override { page_.Focus(control); }
  void End() override;

  void Run();

 private:
  bool NextCommand(std::string& command) override;
  void Print(const std::string& line) override;
  std::string WriteFile(const std::string& path, const std::string& text) override;

  Page page_{game()};
};

}  // namespace zelvo
