#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "faces/commands.h"
#include "faces/shown.h"
#include "surface/surface.h"

namespace zelvo {

/// The page as the game sees it: it is told the design of all windows once, and then whatever is no
/// longer as it was told.
class Page {
 public:
  explicit Page(Surface& surface);

  /// Tells the page how the windows and their controls are made, and what the player can do with
  /// the game as a whole.
  void Build(std::span<const CommandDesign> commands = {});
  /// Tells the page what has changed since.
  void Sync();
  /// The same, and what takes input, now that the game waits for the player; empty once it runs on.
  void SyncWaiting(std::string_view waiting);

  /// Tells the page which of those can be done now.
  void SyncCommands(bool canTakeBack, bool canDoAgain);

  /// Answers what the page asks of nobody but the game as it stands (`questionDesigns`): those hear
  /// it who ask for it. False if it is no such question.
  bool Answer(std::string_view asked);
  /// Tells the player something; the game stands still until he has read it.
  void Warn(std::string_view text);
  /// The same of the game that was under way and does not fit: he can have it in a file.
  void WarnOfMisfit(std::string_view text);
  /// Says something in passing, where nothing else shows what was done.
  void Say(std::string_view word);
  /// Files with this game get that name.
  void SetFile(std::string_view name);

  void OpenMessage(std::string_view text, MessageStyle style, std::string_view title);
  void CloseMessage();
  void SetPointer(MousePointer pointer);
  /// Gives a control the keyboard's focus.
  void Focus(const Control& control);

 private:
  struct Drawn {
    const Control* control = nullptr;
    Shown shown;
  };
  struct Frame {
    const Window* window = nullptr;
    std::optional<std::string> title;  // that the page shows
  };

  struct Message {
    std::string text;
    std::string json;
  };

  std::string AnswerTo(Question question) const;
  void SyncFrames();
  void SyncControls();
  void Tell(std::string_view name, std::string_view json);
  int PlaceOf(const Control& control) const;
  int PlaceOf(const Window& window) const;

  Surface& surface_;
  // The page knows controls and windows by their places here.
  std::vector<Drawn> drawn_;
  std::vector<Frame> frames_;
  std::vector<Window*> stack_;     // of open windows, as last told
  std::vector<Message> messages_;  // open ones, innermost last
  std::string waiting_;
  std::string can_;      // which commands, as last told
  std::string changes_;  // members of a JSON object that the page has still to be told
};

}  // namespace zelvo
