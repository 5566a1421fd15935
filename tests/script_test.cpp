#include <gtest/gtest.h>

#include "tests/play.h"

namespace zelvo::test {
namespace {

// Where a script can stand when a line is wrong: at the start window, on the board, in a dialog, in
// a message box.
const std::string onBoard = "click GST.CMDSTART\n";
const std::string inBank = onBoard + "set PlayerLoan 500000\nclick GFM.Label8\n";
const std::string inMessage =
    onBoard + Lot(5, "O", "75000") + Cash("$0", "$0") + "click GFM.Image1(5)\nclick GFM.CMDBUY\n";

TEST(Script, AWrongLineGetsAnErrorAndChangesNothing) {
  for (const auto& [script, wrong] : std::initializer_list<std::pair<std::string, const char*>>{
           {"", R"(click GFM.CMDGO | close GFM | hover GFM | get GFM.PCredit.Caption | answer ok |
set ICF.LUND.Tag "x")"},
           {onBoard, R"(
fly | CLICK GFM.CMDGO | click | click GFM | click GFM. | click GFM.Nothing | click XYZ.CMDGO |
click GFM.CMDGO now | click GFM.Image1 | click GFM.Image1(100) | click GFM.Image1(-1) |
click GFM.Image1(07) | click GFM.Image1(7 | click GFM.LITE(0) | click GFM.CMDBUY |
click GFM.Timer1 | hover GFM.Timer1 | hover BK | close GFM.CMDGO | close BK | close RB | answer |
answer yes | wait | wait -1 | wait 1.5 | wait 99999999999999999999 | clock | clock 12:00 |
clock 24:00:00 | clock 12:60:00 | clock 12:00:60 | clock 12:00:0a | clock 12-00-00 | later |
later wait 5 | later later click GFM.CMDGO | later click GFM.Nothing | later click GFM.Timer1 |
later close BK | set | set Nothing 5 | set CurLot | set CurLot 100 | set CurLot -1 |
set CurLot 5 5 | set CurLot 5.0 | set SkillLevel 4 | set SoundOn 1 | set LotValue 5 |
set LotValue(100) 5 | set LotValue(5) 1.00001 | set LotValue(5) 1. | set LotValue(5) $5 |
set LotValue(5) 1e3 | set LotValue(5) 922337203685477.5808 | set TurnNo 99999999999 |
set BrandSold(0) 1 | set BrandSold(7) 1 | set Generator 16777216 | set FreshLot 32001 |
set Word SUPER | set Word "SUPER | set Word "\q" | set Word 5 | set Word ﻿"a" | set GFM.CMDGO.Visible 1 |
set GFM.CMDGO.Picture ICF.LUND | set GFM.Image1(5).Picture ICF.Nothing |
set GFM.Image1(5).Picture | set GFM.Timer1.Interval -1 | set GFM.Width 5 |
set BK.Label1.Caption "x" | get | get Nothing | get LotValue | get CurLot(1) |
get GFM.PCredit.Value | get BK.Label1.Caption | state all | quit now)"},
           {inBank, R"(
click GFM.CMDGO | click GST.CMDSTART | hover GFM.CMDGO | close GFM | click BK.CMDOK)"},
           {inMessage, R"(
click GFM.CMDGO | hover GFM | close GST | answer ok | answer maybe | click GST.CMDEXIT)"}}) {
    for (const std::string& line : Pieces(wrong)) {
      const auto lines = Play(script + "state\n" + line + "\nstate\n");
      ASSERT_GE(lines.size(), 3U);
      const Json& before = lines[lines.size() - 3];
      const Json& answer = lines[lines.size() - 2];
      EXPECT_TRUE(before.contains("state") && lines.back() == before) << line;
      EXPECT_NE(answer["error"].text(), "") << line;
      EXPECT_EQ(answer.without("error"), before.without("state"))
          << line << ": neither time nor place moves, and nothing is told";
    }
  }
  EXPECT_TRUE(Play(std::string("set Word \"a\"\0b\n", 15)).back().contains("error"));
  EXPECT_TRUE(Play("get " + std::string(100'000, 'x') + "\n").back().contains("error"));
}

TEST(Script, TheSameScriptGivesTheSameLinesTwice) {
  const std::string turn = "click GFM.CMDGO\nclick ML.CMD1(1)\nanswer no\nclick SV.CMDOK\nstate";
  const std::string script = onBoard + Times(40, turn);
  EXPECT_EQ(Play(script), Play(script));
}

TEST(Script, LinesTellOfTheGameToTheLetter) {
  const auto lines = Play("\xEF\xBB\xBF# nothing\n   \n\t get  SkillLevel \r\nquit\nget Skill");
  ASSERT_EQ(lines.size(), 3U) << "blank lines, remarks and the mark at the start have no answer";
  EXPECT_EQ(lines[0].dump(), R"({"cues":[{"file":"ZELVO.WAV","waits":true}],"time":"12:00:00.000",)"
                             R"("waiting":"GST"})");
  EXPECT_EQ(lines[1].dump(), R"({"time":"12:00:00.000","value":0,"waiting":"GST"})");
  EXPECT_EQ(lines[2].dump(), R"({"time":"12:00:00.000","waiting":"GST"})");
  EXPECT_EQ(Play(inMessage).back().dump(),
            R"({"cues":[{"file":"nocomply.wav","waits":false}],"message":{"style":36,"text":"You )"
            R"(don't have enough money ! Do you wish to borrow the money from the bank ?",)"
            R"("title":"Bank Loan"},"time":"12:00:00.005","waiting":"message box"})");
  EXPECT_EQ(Play("click GST.CMDEXIT\nget SkillLevel\n").back().dump(),
            R"({"cues":[{"file":"no-intel.WAV","waits":true}],"time":"12:00:00.000",)"
            R"("waiting":"ended"})");
}

TEST(Script, WhatIsSetIsReadBack) {
  for (const std::string& row : Pieces(R"t(
CurLot 37 | LotValue(37) -0.0001 | LotValue(99) 922337203685477.5807 | BrandSold(6) 5 |
LotInsured(0) -1 | BankCash 75000.25 | Word "a \"b\"\n\u00e9" | Generator 16777215 |
GFM.Caption "Title" | GFM.PCredit.Caption "-$5" | GFM.Image1(37).Picture "BK.Image1(3)" |
GFM.Image1(37).Picture "" | GFM.Timer1.Interval 150 | GFM.CMDGO.Enabled 0 |
ICF.OPT1(2).Value -1 | GFM.LITE(3).Visible -1)t")) {
    const auto blank = row.find(' ');
    const Json line = Last("set " + row + "\nget " + row.substr(0, blank) + "\n");
    EXPECT_EQ(line["value"], Json::parse(row.substr(blank))) << row;
  }
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
