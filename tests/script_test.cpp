#include <gtest/gtest.h>

#include "tests/play.h"

namespace zelvo::test {
namespace {

// Wrong lines are recorded, in games/script.txt, but for these, which no file of lines can hold.
TEST(Script, ALineThatIsNoTextOrTooLongGetsAnError) {
  EXPECT_TRUE(Play(std::string("set Word \"a\"\0b\n", 15)).back().contains("error"));
  EXPECT_TRUE(Play("get " + std::string(100'000, 'x') + "\n").back().contains("error"));
}

TEST(Script, LinesTellOfTheGameToTheLetter) {
  const auto lines = Play("\xEF\xBB\xBF# nothing\n   \n\t get  SkillLevel \r\nquit\nget Skill");
  ASSERT_EQ(lines.size(), 3U) << "blank lines, remarks and the mark at the start have no answer";
  EXPECT_EQ(lines[0].dump(), R"({"cues":[{"file":"ZELVO.WAV","waits":true}],"time":"12:00:00.000",)"
                             R"("waiting":"GST"})");
  EXPECT_EQ(lines[1].dump(), R"({"time":"12:00:00.000","value":0,"waiting":"GST"})");
  EXPECT_EQ(lines[2].dump(), R"({"time":"12:00:00.000","waiting":"GST"})");
  EXPECT_EQ(Last("set GFM.Image1(5).Tag \"O\"\nset GFM.Image1(5).Picture ICF.LOPEN\n"
                 "set GFM.PCredit.Caption \"$0\"\nclick GFM.Image1(5)\nclick GFM.CMDBUY\n")
                .dump(),
            R"({"cues":[{"file":"nocomply.wav","waits":false}],"message":{"style":36,"text":"You )"
            R"(don't have enough money ! Do you wish to borrow the money from the bank ?",)"
            R"("title":"Bank Loan"},"time":"12:00:00.005","waiting":"message box"})");
  EXPECT_EQ(Play("click GST.CMDEXIT\nget SkillLevel\n").back().dump(),
            R"({"cues":[{"file":"no-intel.WAV","waits":true}],"time":"12:00:00.000",)"
            R"("waiting":"ended"})");
}

TEST(Script, StateHoldsEveryVariableAndEveryLoadedControl) {
  const Json state = Last("state\n")["state"];
  EXPECT_EQ(state["pointer"], 1);
  EXPECT_EQ(state["variables"].size(), 59U);
  EXPECT_EQ(state["variables"]["LotValue"].items()[37], "50000.0000");
  EXPECT_EQ(state["windows"].dump(),
            R"({"GFM":{"Caption":"Board Game","state":"shown"},)"
            R"("GST":{"Caption":"Start Screen","state":"shown"},)"
            R"("ICF":{"Caption":"Zelvo Setup options","state":"hidden"}})");
  const Json controls = state["controls"];
  EXPECT_EQ(controls["GFM.Image1(0)"].dump(),
            R"({"Picture":"ICF.PLAYER","Tag":"PU","Visible":-1})");
  EXPECT_EQ(controls["GFM.CMDBUY"].dump(),
            R"({"Caption":"Buy Property","Enabled":-1,"Tag":"","Visible":0})");
  EXPECT_EQ(controls["ICF.CKBANK"].dump(),
            R"({"Caption":"Bank is Player also","Tag":"","Value":-1,"Visible":-1})");
}

TEST(Script, TimeMovesTimersAndTheClockStandsApart) {
  EXPECT_EQ(
      Told("set Work 0\nset GFM.Timer1.Interval 100\n"
           "wait 99\nget Work\nwait 1\nget Work\nwait 250\nget Work\n"
           // The count starts anew with the interval.
           "set GFM.Timer1.Interval 100\nwait 99\nget Work\nwait 1\nget Work\n"
           // Switching on what is on changes nothing.
           "wait 60\nset GFM.Timer1.Enabled -1\nwait 40\nget Work\n"
           "set GFM.Timer1.Enabled 0\nwait 1000\nget Work\n"
           "set GFM.Timer1.Enabled -1\nwait 100\nget Work\nclock 23:59:59\nwait 50\nget Work\n"
           "set GFM.Timer1.Interval 0\nwait 1000\nget Work"),
      "0 | 1 | 3 | 3 | 4 | 5 | 5 | 6 | 6 | 6");
  EXPECT_EQ(Play("clock 23:59:59\nwait 1001\n").back()["time"], "00:00:00.001");
}

}  // namespace
}  // namespace zelvo::test
