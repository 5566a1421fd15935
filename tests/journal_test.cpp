#include "journal/journal.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

#include "faces/files.h"
#include "faces/kept_game.h"
#include "faces/scripted/state.h"
#include "tests/folder.h"
#include "tests/play.h"

namespace zelvo::test {
namespace {

/// Plays a game by random commands, with deeds inside waits, restarts and closed boards, and notes
/// what state belongs to which part of the list.
class RandomGame : public Scripted {
 public:
  RandomGame(unsigned seed, int length) : random_(seed), left_(length) {}

  /// The state at a rest after so many entries, if there was one.
  std::map<std::size_t, std::pair<std::uint32_t, std::string>> states;
  GameList list;

 private:
  bool OneIn(unsigned chances) { return random_() % chances == 0; }

  bool NextCommand(std::string& command) override {
    list = journal().list();
    states[list.size()] = {list.empty() ? 0 : list.back().count, StateAsJson(game())};
    if (--left_ < 0) return false;
    command = Command();
    return true;
  }
  void Print(const std::string& line) override {
    message_ = line.find("\"message\"") != std::string::npos;
  }

  std::string Command() {
    if (message_) return OneIn(2) ? "answer yes" : OneIn(2) ? "answer no" : "answer ok";
    if (OneIn(8)) return "clock 12:" + std::to_string(10 + random_() % 50) + ":" + "05";
    if (OneIn(8)) return "wait " + std::to_string(random_() % 40'000);
    const Window& window = *game().InputWindow();
    const bool board = window.name() == "GFM";
    if (board && OneIn(4)) return "click GFM.CMDGO";
    if (OneIn(board ? 40 : 10))
      return "close " + std::string(window.name() == "GST" ? "GFM" : window.name());
    if (OneIn(60)) return "click GST.CMDSTART";
    const std::string when = OneIn(4) ? "later " : "";
    const Control& control = *window.controls()[random_() % window.controls().size()];
    if (control.FullName() == "CMDEXIT" && window.name() != "WINX" && !OneIn(20))
      return "hover GFM";
    const std::string verb = OneIn(4) ? "hover " : "click ";
    if (window.name() == "GST" && control.FullName() == "CMDEXIT") return "click GST.CMDSET";
    return when + verb + std::string(window.name()) + "." + control.FullName();
  }

  std::minstd_rand random_;
  int left_;
  bool message_ = false;
};

/// The state where a list ends.
std::string StateAfter(const GameList& list) {
  Journal trial;
  Game game(trial);
  trial.Attach(game);
  std::string state = "the list ends the program";
  trial.whenPlayed = [&] { state = StateAsJson(game); };
  trial.Start(list);
  return trial.misfit().empty() ? state : trial.misfit();
}

TEST(KeptGames, CutAnywhereStandWhereTheirLastWholeLineLeftThem) {
  const char* wish = std::getenv("ZELVO_CUTS");
  const int cuts = wish != nullptr ? std::atoi(wish) : 300;
  std::minstd_rand random(7);
  int compared = 0;
  for (int cut = 0; cut < cuts;) {
    RandomGame played(static_cast<unsigned>(random()), 300);
    played.Run();
    const std::string text = TextOf(played.game(), played.list);
    for (int i = 0; i < 50; ++i, ++cut) {
      const std::string part = text.substr(0, random() % (text.size() + 1));
      const KeptGame kept = ReadKeptGame(part);
      if (part.size() < ListHeader().size()) {
        EXPECT_EQ(kept.error, "it is cut off in its first line");
        continue;
      }
      ASSERT_EQ(kept.error, "") << part;
      EXPECT_EQ(kept.wholeBytes, part.rfind('\n') + 1);
      EXPECT_FALSE(kept.ends);
      const auto known = played.states.find(kept.list.size());
      const bool sameRun = known != played.states.end() && !kept.list.empty() &&
                           known->second.first == kept.list.back().count;
      if (sameRun) {
        ++compared;
        EXPECT_EQ(StateAfter(kept.list), known->second.second) << part;
      }
      // Whoever goes on adds to the list and changes nothing in it.
      Scripted further("hover GFM\nclick GFM.CMDGO\nanswer no\nwait 9999\n");
      further.GoOn(kept.list);
      EXPECT_FALSE(further.Lines().empty());
      GameList begins = further.journal().list();
      ASSERT_GE(begins.size(), kept.list.size());
      begins.resize(kept.list.size());
      if (!begins.empty()) begins.back().count = kept.list.back().count;
      EXPECT_EQ(TextOf(further.game(), begins), part.substr(0, kept.wholeBytes));
    }
  }
  EXPECT_GT(compared, cuts / 20);
}

/// A list that has come as far as the board, which a line too much is added to.
std::string Board(const std::string& more) {
  return "zelvo-game 1\n# to the board\nback\nsound yes\nclick GST.CMDSTART\nsound yes\n"
         "clock 12:00:00\nback\nclock 12:00:00\nback\nclock 12:00:00\nback\nclock 12:00:00\n"
         "back 2\nclock 12:00:00\n" +
         more;
}

TEST(KeptGames, ThatDoNotFitAreRefusedWithTheirLine) {
  const auto why = [](const std::string& text) { return ReadKeptGame(text).error; };
  for (const char* fit : {"", "torn", "hover GFM.CMDGO\nhover GFM.CMDGO\n# a remark\n"}) {
    EXPECT_EQ(why(Board(fit)), "");
  }
  for (const std::string& line : Pieces(R"(
click GFM.Nothing | clik GFM.CMDGO | click  GFM.CMDGO | click GFM.Image1(01) | tick GFM.CMDGO |
click GFM.Timer1 | close GFM.CMDGO | resize GFM | resize GFM wide | clock 24:00:00 |
clock 12:0:00 | clock 12:00:00 0 | back 01 | back 1000001 | sound maybe | answer)")) {
    EXPECT_EQ(why(Board(line + "\n")), "its line 16 cannot be read") << line;
  }
  for (const std::string line : {"", "click GFM.CMDGO ", "click GFM.CMDGO\r\r"}) {
    EXPECT_EQ(why(Board(line + "\n")), "its line 16 cannot be read") << line;
  }
  EXPECT_EQ(why(Board(std::string("click\0GFM\n", 10))), "its line 16 cannot be read");
  // Each last line does not fit what is before it.
  for (const std::string& lines : Pieces(R"(
back | answer ok | sound no | clock 23:59:59 3 | click GFM.CMDBUY | close BK | tick GFM.Timer1 |
resize ICF maximised | close GFM
click GFM.CMDGO | close GST
hover GST | click GFM.CMDHELP
click ICF.cmdexit
click ICF.cmdexit | click GFM.CMDGO
back
answer yes)")) {
    const auto number = std::to_string(16 + std::count(lines.begin(), lines.end(), '\n'));
    EXPECT_EQ(why(Board(lines + "\n")), "its line " + number + " does not fit the game: " +
                                            lines.substr(lines.rfind('\n') + 1));
  }
  for (const auto& [text, error] : std::initializer_list<std::pair<std::string, std::string>>{
           {"", "it is cut off in its first line"},
           {"zelvo-game 1", "it is cut off in its first line"},
           {"zelvo-game 2\nfold GFM\n", "it was kept by a later version of the game"},
           {"zelvo-game one\n", "it is no kept game"},
           {"\xEF\xBB\xBF\xEF\xBB\xBFzelvo-game 1\n", "it is no kept game"},
           {"<html>\n", "it is no kept game"}}) {
    EXPECT_EQ(why(text), error) << text;
  }
}

TEST(KeptGames, HoldOneLineForTheSameReadingsAndAnAnswerThatFitsItsMessageBox) {
  Scripted game(
      "click GST.CMDSTART\nclock 12:00:30\nclick GFM.CMDGO\nclock 12:00:53\n"
      "click GFM.CMDGO\nclock 12:00:44\nclick GFM.CMDGO\nanswer ok\n");
  game.Lines();
  const std::string text = TextOf(game.game(), game.journal().list());
  EXPECT_NE(text.find("\nclock 12:00:30 7\n"), std::string::npos) << text;
  EXPECT_EQ(ReadKeptGame(text).error, "");
  for (const std::string other : {"answer yes", "answer no"}) {
    std::string changed = text;
    changed.replace(text.find("answer ok"), 9, other);
    EXPECT_NE(ReadKeptGame(changed).error.find("does not fit the game: " + other),
              std::string::npos);
  }
}

TEST(KeptGames, StandAtTheLastMomentAtWhichTheirBoardWasOnTheScreen) {
  const std::string start = "zelvo-game 1\nback\nsound yes\n";
  const struct {
    std::string begins, rest;
    bool ends;
  } games[] = {
      {Board("hover GFM.CMDGO\n"), "", false},
      {Board("hover GFM.CMDGO\n"), "click GFM.CMDEXIT\n", false},
      {Board("hover GFM.CMDGO\n"), "close GFM\nhover GST\n", false},
      {Board(""), "close GST\n", true},
      {Board(""), "click GFM.CMDEXIT\nclick GST.CMDEXIT\nsound yes\n", true},
      {Board(""), "click GFM.CMDEXIT\nclick GST.CMDEXIT\n", true},    // the sound is torn off
      {Board("click GFM.CMDGO\nback\nclock 12:00:00\n"), "", false},  // in the middle of a turn
      {start, "", false},
      {start + "hover GST\n", "close GST\n", true},
      {start, "click GST.CMDEXIT\n", true},
  };
  for (const auto& [begins, rest, ends] : games) {
    const KeptGame kept = ReadKeptGame(begins + rest);
    ASSERT_EQ(kept.error, "") << begins << rest;
    EXPECT_EQ(kept.ends, ends) << begins << rest;
    EXPECT_EQ(kept.IsWhole(), rest.empty()) << begins << rest;
    const KeptGame other = ReadKeptGame(begins);
    Scripted game;
    EXPECT_EQ(TextOf(game.game(), Beginning(kept.list, kept.standing)),
              TextOf(game.game(), other.list));
  }
}

TEST(KeptGames, AreReadAsOtherProgramsWriteThemAndOnlyIfTheyCanBePlayed) {
  const std::string text = Board("hover GFM.CMDGO\nclick GFM.Image1(0)\n");
  std::string lines = "\xEF\xBB\xBF";
  for (const char c : text) lines += c == '\n' ? "\r\n" : std::string(1, c);
  const KeptGame kept = ReadKeptGame(lines);
  EXPECT_EQ(kept.error, "");
  EXPECT_EQ(kept.wholeBytes, lines.size());
  EXPECT_EQ(StateAfter(kept.list), StateAfter(ReadKeptGame(text).list));

  std::string endless = text;
  for (int i = 0; i < 100; ++i) endless += "clock 12:00:00 1000000\n";
  EXPECT_EQ(ReadKeptGame(endless).error, "it is too long to be played");
  std::string heavy = text + "#";
  heavy.append(longestText, '-').append("\n");
  EXPECT_EQ(ReadKeptGame(heavy).error, "it is too long to be played");
}

TEST(KeepCommand, WritesTheListOrSaysWhyNot) {
  const Folder folder;
  const std::string file = folder.File("a.zelvo");
  Write(file, "old");
  const std::string keep = "keep " + file + "\n";
  const auto last = [](const std::string& script) { return Play(script).back(); };
  EXPECT_EQ(last("keep\n")["error"], "keep needs the name of a file");
  EXPECT_EQ(last("keep /no/such\n")["error"],
            "/no/such cannot be written: No such file or directory");
  EXPECT_EQ(last("keep " + folder.path + "\n")["error"],
            folder.path + " cannot be written: Is a directory");
  // Not a device, which a fault would replace.
  const std::string pipe = folder.File("pipe");
  EXPECT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(last("keep " + pipe + "\n")["error"],
            pipe + " cannot be written: Operation not supported");
  EXPECT_EQ(last("set Word \"x\"\n" + keep)["error"],
            "something was set, which no player can do: there is no list of such a game");
  EXPECT_EQ(ReadFile(file).text, "old");
  // A set that was refused has set nothing; a deed that the surface drops is not in the list.
  EXPECT_FALSE(last("set CurLot 100\nclick GST.CMDSTART\nclick GFM.CMDBUY\nhover GFM\nhover GFM\n"
                    "clock 09:08:07\nclick GFM.CMDHELP\nclick ICF.OPT1(2)\n" +
                    keep)
                   .contains("error"));
  EXPECT_EQ(ReadFile(file).text,
            "zelvo-game 1\nback\nsound yes\nclick GST.CMDSTART\nsound yes\nclock 12:00:00\nback\n"
            "clock 12:00:00\nback\nclock 12:00:00\nback\nclock 12:00:00\nback 2\nclock 12:00:00\n"
            "hover GFM\nclick GFM.CMDHELP\nclick ICF.OPT1(2)\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path), {}), 2);
}

/// A machine that hands in a click where a machine may not.
struct Restless : Scripted {
  Restless() : Scripted("click GST.CMDSTART\nclick GFM.CMDHELP\n") {}
  bool PlaySound(const std::string& path, bool waits) override {
    taken += game().Click(game().GST->CMDSET) ? 1 : 0;
    return Scripted::PlaySound(path, waits);
  }
  void RunModal(Window& window) override {
    taken += game().Click(game().ICF->cmdexit) ? 1 : 0;
    EXPECT_FALSE(window.IsShown());
    taken += game().Hover(game().GST) || game().Resize(game().GST, Extent::Maximised) ? 1 : 0;
  }
  int taken = 0;
};

TEST(Journals, NothingReachesTheGameButWhereItWaits) {
  Restless machine;
  machine.Lines();
  EXPECT_EQ(machine.taken, 1) << "the click that closes the setup";
  EXPECT_EQ(machine.game().GST->extent, Extent::Normal);
}

}  // namespace
}  // namespace zelvo::test
