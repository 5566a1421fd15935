#pragma once

#include <array>
#include <string_view>

namespace zelvo {

/// What the player can do with the game as a whole, in every face with the same words and keys.
enum class Command : unsigned char { Keep, GoOn, TakeBack, DoAgain, SetPace };

struct CommandDesign {
  Command command;
  std::string_view name;
  std::string_view key;
  int pace = 0;  ///< of `SetPace`: so many times as fast as the game's own waits
};

/// What is said when the player has taken back or done again, as the game may look as before.
constexpr std::string_view takenBack = "Taken back.";
constexpr std::string_view doneAgain = "Done again.";

constexpr std::array<CommandDesign, 7> commandDesigns = {{
    {Command::Keep, "Keep this game in a file...", "Ctrl+S"},
    {Command::GoOn, "Go on with a kept game...", "Ctrl+O"},
    {Command::TakeBack, "Take back", "Ctrl+Z"},
    {Command::DoAgain, "Do again", "Ctrl+Shift+Z"},
    {Command::SetPace, "Waits as they are", "Ctrl+1", 1},
    {Command::SetPace, "Waits twice as fast", "Ctrl+2", 2},
    {Command::SetPace, "Waits five times as fast", "Ctrl+5", 5},
}};

/// What those can ask to hear who do not see the windows, by a key of any window. `text` is how a
/// face hands it on.
enum class Question : unsigned char { News, Standing };

struct QuestionDesign {
  Question question;
  std::string_view text;
  std::string_view key;
};

constexpr std::array<QuestionDesign, 2> questionDesigns = {{
    {Question::News, "say news", "F2"},
    {Question::Standing, "say standing", "F3"},
}};

/// The end of the names of kept games.
constexpr std::string_view keptGameSuffix = "zelvo";

}  // namespace zelvo
