#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "faces/shown.h"
#include "tests/play.h"

namespace zelvo::test {
namespace {

/// A scripted game whose waits a test can disturb. One that never ends fails.
struct Watched : Scripted {
  using Scripted::Scripted;

  std::function<void(int wait)> onWait = [](int /*wait*/) {};
  bool soundPlayer = true;
  int played = 0;  // cues
  int waits = 0;

  void YieldUntilEvent() override {
    if (++waits > 1000) throw std::runtime_error("the game waits for ever");
    onWait(waits);
    Scripted::YieldUntilEvent();
  }
  bool PlaySound(const std::string& path, bool waiting) override {
    ++played;
    return Scripted::PlaySound(path, waiting) && soundPlayer;
  }
};

TEST(Start, TheOpeningPlaysAndTheStartWindowWaits) {
  const auto lines = Play("get SoundOn\nclose GST\nget SoundOn\n");
  EXPECT_EQ(lines[1]["value"], -1);
  ASSERT_EQ(lines.size(), 3U) << "nothing comes after the end";
  EXPECT_EQ(lines[2]["waiting"], "ended");
  Watched silent("click GST.CMDSTART\nget SoundOn\nclick GST.CMDEXIT\n");
  silent.soundPlayer = false;
  EXPECT_EQ(silent.Lines()[2]["value"], 0);
  EXPECT_EQ(silent.played, 1) << "the opening alone";
  // Nothing starts while it sounds.
  EXPECT_EQ(Play("set Word \"NO\"\nclick GST.CMDSTART\n").back()["waiting"], "GST");
}

TEST(Start, OverAGameThatRunsTheLotInHandIsTheOneThatTheButtonsActOn) {
  const std::string begun = "clock 12:00:37\nclick GST.CMDSTART\nclick GFM.Image1(0)\n";
  for (const bool away : {false, true}) {
    // With the board put away by its button, or from the start window behind it.
    Scripted script(begun + (away ? "click GFM.CMDEXIT\n" : "") + "click GST.CMDSTART\n");
    const auto lines = script.Lines();
    Game& g = script.game();
    const Control& lot = g.GFM->Image1[g.CurLot];
    ASSERT_TRUE(g.GFM->CMDSELL.Visible && g.CurLot != 0);
    EXPECT_TRUE(g.InHand(g.GFM) == &lot && Shown::Of(lot).inHand);
    EXPECT_FALSE(Shown::Of(g.GFM->Image1[0]).inHand);
  }
  // Where no button stands it is the one that was clicked.
  Scripted sold(begun + "click GFM.CMDSELL\n");
  sold.Lines();
  EXPECT_EQ(sold.game().InHand(sold.game().GFM), &sold.game().GFM->Image1[0]);
}

TEST(WaitLoops, EndWhenTheBoardGoesUnderThem) {
  const std::string casino = "set CasinoMeter 19\nclock 12:00:01\nset Generator 0\n";
  for (const std::string& due : {casino, std::string("set YearTurn 5\n")}) {
    const std::string turn =
        "click GST.CMDSTART\nset GFM.CCredit.Caption \"$0\"\n" + due + "click GFM.CMDGO\n";
    for (int at = 1; at <= 5; ++at) {
      Watched game(turn + "get TurnNo\n");
      Game& g = game.game();
      game.onWait = [&](int wait) {
        if (wait != at) return;
        g.Close(g.GFM);  // tax time keeps the board from input
        EXPECT_EQ(g.GFM.Untouched().IsShown(), due != casino);
        g.Unload(g.GFM);
      };
      EXPECT_EQ(game.Lines().back()["value"], 1) << "the turn runs to its end, at wait " << at;
    }
  }
}

}  // namespace
}  // namespace zelvo::test
