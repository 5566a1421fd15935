#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "tests/position.h"

namespace zelvo::test {
namespace {

/// A scripted game whose waits a test can watch and disturb. One that never ends fails.
struct Watched : Scripted {
  explicit Watched(const std::string& script) : Scripted("click GST.CMDSTART\n" + script) {}

  std::function<void(int wait)> onWait = [](int) {};
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

/// The computer is too poor to act, so that a turn is two events and no more.
const std::string quiet = "set GFM.CCredit.Caption \"$0\"\n";
/// A turn with fires that find nothing to burn.
const std::string quietTurn = quiet + "clock 12:00:00\nclick GFM.CMDGO\n";
/// A turn in whose first event a casino takes a lot, over a blink, without asking anybody.
const std::string casinoTurn =
    quiet + "set CasinoMeter 19\nclock 12:00:01\nset Generator 0\nclick GFM.CMDGO\n";

TEST(Start, TheOpeningPlaysAndTheStartWindowWaits) {
  const auto lines = Play("get GST.Label2.Caption\nget SoundOn\nclose GST\nget SoundOn\n");
  EXPECT_EQ(lines[1]["value"], "Version 3.2.4  Enjoy !");
  EXPECT_EQ(lines[2]["value"], -1);
  ASSERT_EQ(lines.size(), 4U) << "nothing comes after the end";
  EXPECT_EQ(lines[3]["waiting"], "ended");
  Watched silent("get SoundOn\nclick GST.CMDEXIT\n");
  silent.soundPlayer = false;
  EXPECT_EQ(silent.Lines()[2]["value"], 0);
  EXPECT_EQ(silent.played, 1) << "the opening alone";
  // Nothing starts while it sounds.
  EXPECT_EQ(Play("set Word \"NO\"\nclick GST.CMDSTART\n").back()["waiting"], "GST");
}

TEST(NewGame, LaysTheBoardAndFillsTheLedgers) {
  EXPECT_EQ(Told(Get("LotValue(0) LotValue(1) LotValue(2) LotValue(3) LotValue(4) LotValue(5) "
                     "LotValue(6) LotValue(7) LotValue(8) LotValue(9) LotValue(10) LotValue(59) "
                     "LotValue(99) GFM.Image1(0).Tag GFM.Image1(98).Tag GFM.Image1(98).Picture "
                     "GFM.Image1(99).Tag GFM.Image1(99).Picture")),
            "50000 | 100000 | 50000 | 50000 | 75000 | 75000 | 50000 | 50000 | 75000 | 125000 | "
            "125000 | 125000 | 50000 | PU | U | ICF.LUND | CU | ICF.COMP");
  EXPECT_EQ(Told(Get("GFM.PCredit.Caption GFM.CCredit.Caption GFM.PNW.Caption GFM.PNOH.Caption "
                     "GFM.CNOH.Caption GFM.BANKLABEL.Caption GFM.Label1.Caption GFM.PSHOW.Caption "
                     "GFM.PUP.Visible GFM.CUP.Visible GFM.CMDGO.Visible TurnNo ChanceWait "
                     "AssessRate Turn FreshLot")),
            "$1,000,000 | $1,000,000 | $0 |  1 |  1 | $1,000,000 | Zelvo 3.2 - Easy Level | Player"
            "\n\rChoose Purchased or open lot to build or buy | -1 | 0 | -1 | 0 | 1 | 0.04 | P | "
            "15");
}

TEST(NewGame, KeepsSettingsAndBrandCountsAndNothingElse) {
  const std::string play =
      "set SkillLevel 2\nset SoundOn 0\nset BankPlays -1\nset UseChance 0\nset BrandSold(3) 5\n"
      "set GFM.BEST.Tag \" 3\"\nset BankCash 5\nset PlayerLoan 7\nset TurnNo 9\n" +
      Lot(5, "PBH", "1", true);
  const std::string look =
      "click GST.CMDSTART\n" +
      Get("SkillLevel SoundOn BankPlays UseChance BrandSold(3) BankCash PlayerLoan LotInsured(5) "
          "GFM.Image1(5).Tag TurnNo YearTurn GFM.BEST.Tag");
  const std::string kept = "2 | 0 | -1 | -1 | 0 | 1000000 | 0 | 0 | U | 0 | 0 | ";
  ExpectTold(play,
             {{"", kept + " 3"}, {"click GFM.CMDEXIT\n", kept + " 3"}, {"close GFM\n", kept + "0"}},
             look);
}

TEST(Flow, TheLevelGoesRoundAndCountsAtOnce) {
  EXPECT_EQ(Told(Times(4, "click GFM.Label1\nget GFM.Label1.Caption\nget GFM.Label10.Caption")),
            "Zelvo 3.2 - Normal Level | Level  1 | Zelvo 3.2 - Hard Level | Level  2 | "
            "Zelvo 3.2 - Genius Level | Level  3 | Zelvo 3.2 - Easy Level | Level  0");
}

TEST(Flow, ATurnCountsHidesTheActionsAndTakesTheCensus) {
  EXPECT_EQ(
      Told(Cash("-$5,000", "$0") + Lot(44, "CHH", "1") + Lot(45, "PDH", "1") + Lot(46, "CDR", "1") +
           Lot(47, "MAP", "1") + Lot(48, "XC", "1") + Set("GFM.Image1(46).Tag", "\" CDR \"") +
           "click GFM.Image1(0)\n" + "click GFM.CMDBUILD\n" + quietTurn +
           Get("TurnNo YearTurn Turn ChanceWait AssessCount GFM.PCredit.Caption "
               "GFM.PNOH.Caption GFM.CNOH.Caption GFM.BUILDIT.Visible GFM.CMDBUILD.Visible "
               "GFM.CMDSELL.Visible GFM.CMDGO.Visible GFM.Label8.Visible")),
      "1 | 1 | P | 2 | 0 | -$5,000 |  2 |  3 | 0 | 0 | 0 | -1 | -1");
  EXPECT_EQ(Told(Times(24, "set ChanceWait 0\n" + quietTurn) + Get("TurnNo YearTurn AssessRate")),
            "24 | 0 | 0.08");
}

TEST(Flow, NothingGoesOnInTheComputersHalf) {
  const Json line = Last("set Turn \"C\"\nclick GFM.CMDGO\nclick GFM.BANKLABEL\nget TurnNo\n");
  EXPECT_TRUE(line["waiting"] == "GFM" && line["value"] == 0) << line;
}

TEST(Flow, TheWinIsTestedAfterTheAssessmentAndBeforeTheRevenue) {
  EXPECT_EQ(Told(Set("YearTurn", "5") + Lot(0, "PSH", "97000000") + quietTurn +
                 Get("WINX.Label3.Caption GFM.PCredit.Caption Turn TurnNo") +
                 "click WINX.CMDEXIT\nget GFM.PCredit.Caption\n"),
            "With $100,880,000 | $1,000,000 | P | 1 | $6,044,000");
}

TEST(Blink, TheLightsComeOnOneByOneAndTheFastOneIsFastOnce) {
  Watched game("set FastBlink -1\n" + casinoTurn + casinoTurn);
  Game& g = game.game();
  std::string seen;
  game.onWait = [&](int wait) {
    int lit = 0;
    for (int light = 1; light <= 6; ++light) lit += g.GFM->LITE[light].Visible ? 1 : 0;
    seen += std::to_string(lit) + (g.GFM->Image1[g.CurLot].Visible ? " " : "hidden ");
    EXPECT_EQ(g.GFM->Timer1.Interval(), wait <= 7 ? 150 : 700);
  };
  game.Run();
  EXPECT_EQ(seen, "0 1 2 3 4 5 6 0 1 2 3 4 5 6 ");
  for (const Control& lot : g.GFM->Image1) EXPECT_TRUE(lot.Visible);
}

TEST(BankShow, ChangesThePictureAtEachTickAndPlaysItsCueOnTheWay) {
  // The picture, and how many cues have been played by then, with the two of the start.
  for (const auto& [loan, expected] :
       {std::pair{"0", "0:3 1:3 2:3 3:3 4:3 "}, {"500000", "0:2 1:3 2:3 3:3 4:3 "}}) {
    Watched game(Set("PlayerLoan", loan) + "click GFM.Label8\n");
    std::string seen;
    game.onWait = [&](int /*wait*/) {
      const char picture = PictureOwner(game.game().BK->ImageN.Picture)[10];  // in "BK.Image1(3)"
      seen += std::string(1, picture) + ":" + std::to_string(game.played) + " ";
    };
    game.Run();
    EXPECT_EQ(seen, expected);
  }
}

TEST(WaitLoops, EndWhenTheBoardGoesUnderThem) {
  const std::string taxTurn = quiet + "set YearTurn 5\nclick GFM.CMDGO\n";
  for (const std::string& turn : {casinoTurn, taxTurn}) {
    for (int at = 1; at <= 5; ++at) {
      Watched game(turn + "get TurnNo\n");
      Game& g = game.game();
      game.onWait = [&](int wait) {
        if (wait != at) return;
        g.Close(g.GFM);  // tax time keeps the board from input
        EXPECT_EQ(g.GFM.Untouched().IsShown(), turn == taxTurn);
        g.Unload(g.GFM);
      };
      EXPECT_EQ(game.Lines().back()["value"], 1) << "the turn runs to its end, at wait " << at;
    }
  }
}

TEST(WaitLoops, AVisitToTheBankOnTopOfAnotherEndsBoth) {
  // A refused customer can leave during the show and come in again.
  const auto lines = Watched(
                         "set PlayerLoan 500000\nlater click BK.CMDCANCEL\n"
                         "later click GFM.Label8\nclick GFM.Label8\nget BK.Timer1.Enabled\n"
                         "click BK.CMDCANCEL\nget BK.ImageN.Picture\nget Work\n")
                         .Lines();
  ASSERT_EQ(lines.size(), 10U);
  EXPECT_EQ(lines[5]["cues"].size(), 1U) << "the first show was cut before its second picture";
  EXPECT_EQ(lines[6]["value"], 0);
  EXPECT_EQ(lines[7]["waiting"], "GFM");
  EXPECT_TRUE(lines[8]["value"] == "BK.Image1(0)" && lines[9]["value"] == 5);
}

TEST(Reentry, ClicksOnLotsAndActionsAreDroppedWhileAHandlerRuns) {
  for (const char* control : {"Image1(5)", "BEST", "Rest", "CMDSELL", "BUILDIT"}) {
    // The setup window, opened by the second click, shows what the first one did to the turn.
    const std::string script =
        "click GFM.Image1(0)\nclick GFM.CMDBUILD\nset Word \"BEST\"\n"
        "set GFM.PSHOW.Caption \"as before\"\nlater click GFM." +
        std::string(control) + "\nlater click GFM.CMDHELP\n" + quietTurn;
    EXPECT_EQ(Last(script)["waiting"], "ICF") << control;
    EXPECT_EQ(Told(script + Get("GFM.PSHOW.Caption GFM.Image1(0).Tag")), "as before | PU")
        << control;
  }
}

TEST(Reentry, OtherClicksActAtOnce) {
  // The end of a turn between a sale and its deposit: the turn passes first.
  EXPECT_EQ(Told(quiet + "click GFM.Image1(0)\nlater click GFM.CMDGO\nclick GFM.CMDSELL\n" +
                 Get("TurnNo BankCash")),
            "1 | 1011000");
  // In the opening events of a game, whose board is on the screen already.
  EXPECT_EQ(Play("later click GFM.CMDGO\nclick GST.CMDSTART\nget TurnNo\n").back()["value"], 1);
  // A new game inside a turn: the turn goes on over the new board.
  EXPECT_EQ(Told("set TurnNo 7\nset GFM.PCredit.Caption \"$5\"\nlater click GST.CMDSTART\n" +
                 quietTurn + Get("TurnNo GFM.PCredit.Caption Turn")),
            "1 | $1,000,000 | P");
}

TEST(Reentry, TheEndInsideAHandlerIsTheEnd) {
  for (const std::string end : {"click GST.CMDEXIT", "close GST"}) {
    for (const std::string& turn : {quietTurn, "set YearTurn 5\n" + casinoTurn}) {
      const auto lines = Watched("later " + end + "\n" + turn + "get TurnNo\n").Lines();
      const Json& last = lines.back();
      EXPECT_TRUE(last["waiting"] == "ended" && lines[lines.size() - 2]["waiting"] != "ended");
      EXPECT_FALSE(last.contains("value") || last.contains("error"));
      EXPECT_EQ(last.contains("cues"), end == "click GST.CMDEXIT");
    }
  }
}

}  // namespace
}  // namespace zelvo::test
