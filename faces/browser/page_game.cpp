#include "faces/browser/page_game.h"

#include "faces/browser/host.h"
#include "faces/browser/input.h"

namespace zelvo {

void PageGame::Run() {
  page_.Build();
  ScriptedGame::Run();
}

Answer PageGame::MessageBox(const std::string& text, MessageStyle style, const std::string& title) {
  page_.OpenMessage(text, style, title);
  const Answer answer = ScriptedGame::MessageBox(text, style, title);
  page_.CloseMessage();
  return answer;
}

bool PageGame::NextCommand(std::string& command) {
  page_.SyncWaiting(Waiting());
  do {
    while (!TakeInput(command)) host::ZelvoWait(-1);
  } while (page_.Answer(command));
  page_.SyncWaiting("");
  return true;
}

void PageGame::Print(const std::string& line) { host::ZelvoPrint(line.data(), line.size()); }

std::string PageGame::WriteFile(const std::string& /*path*/, const std::string& /*text*/) {
  return "a page has no files";
}

void PageGame::End() {
  ScriptedGame::End();
  page_.SyncWaiting("ended");
}

}  // namespace zelvo
