#pragma once

#include <string>
#include <string_view>

#include "faces/browser/page_platform.h"
#include "faces/session.h"

namespace zelvo {

/// The session on the page: a game is kept by a download, gone on with from a file that the page
/// has at hand, and lies in the browser's storage as well.
class PageSession final : public PagePlatform, private Session {
 public:
  PageSession() : Session(static_cast<Platform&>(*this)) { Attach(game()); }

  /// Begins with the game that was interrupted, if there is one, and plays to the end of the
  /// program.
  void Run();

 private:
  void GameWaits() override;
  bool CarryOut(std::string_view command) override;

  void Write(const std::string& lines, bool anew, bool lasting) override;

  /// Goes on with the kept game that the page has ready; a sentence for the player if it cannot.
  std::string GoOnWith(std::string_view name);
};

}  // namespace zelvo
