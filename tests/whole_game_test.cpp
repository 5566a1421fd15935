#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>

#include "game/money.h"
#include "game/text.h"
#include "presentation/cues.h"
#include "tests/policy_player.h"
#include "tests/position.h"

namespace zelvo::test {
namespace {

using Strings = std::vector<std::string>;

class PlayedByPolicy : public testing::TestWithParam<int> {};

TEST_P(PlayedByPolicy, ComesToItsEndTheSameOnEachRun) {
  PolicyPlayer first(GetParam(), "12:00:07");
  first.Play();
  PolicyPlayer second(GetParam(), "12:00:07");
  second.Play();
  EXPECT_EQ(first.transcript(), second.transcript());
  EXPECT_EQ(first.transcript().find("\"error\""), std::string::npos);
  EXPECT_TRUE(!first.winner().empty() || first.game().TurnNo == PolicyPlayer::lastTurn);
  PolicyPlayer later(GetParam(), "12:00:08");
  later.Play();
  EXPECT_NE(first.transcript(), later.transcript());
}

TEST_P(PlayedByPolicy, KeepsTheBoardWhole) {
  PolicyPlayer player(GetParam(), "12:00:29");
  player.Play();
  Game& g = player.game();
  for (int lot = 0; lot < lotCount; ++lot) {
    const Control& image = g.GFM->Image1[lot];
    EXPECT_TRUE(image.Visible) << lot;
    // The picture belongs to the tag, but for a mall that nobody took.
    if (image.Picture == g.ICF->MALL.Picture && image.Tag.size() == 1) continue;
    const std::string expected = Lot(lot, image.Tag, "0");
    EXPECT_NE(expected.find(std::string(PictureOwner(image.Picture)) + "\n"), std::string::npos)
        << lot << " " << image.Tag << " " << PictureOwner(image.Picture);
    EXPECT_GT(g.LotValue[lot], Currency()) << lot;
  }
  for (const Control* cash : {&g.GFM->PCredit, &g.GFM->CCredit}) {
    ReadMoney(g, cash->Caption);
    EXPECT_EQ(MoneyText(g.Money), cash->Caption);
  }
  EXPECT_EQ(MoneyText(g.BankCash), g.GFM->BANKLABEL.Caption);
  EXPECT_GE(g.PlayerMalls, 0);
}

INSTANTIATE_TEST_SUITE_P(Levels, PlayedByPolicy, testing::Range(0, 4));

// --- A game in which everything happens

/// A part of the long game: what happens, by which commands, and what can be read afterwards.
struct Chapter {
  std::string name;
  std::string script;
  Strings values = {};  // of its `get` commands
};

/// Nothing is pending, the board is calm, the computer has no cash.
std::string Quiet() {
  return Calm() + Cash("$1,000,000", "$0") + Set("StrikeMeter", "0") + Set("CasinoMeter", "0") +
         Set("PlaneMeter", "0") + Set("MallNext", "0") + Set("YearTurn", "0") +
         Set("ChanceWait", "0") + Set("PlayerLoan", "0");
}

std::string Turn(std::initializer_list<Draw> draws) { return Draws(draws) + "click GFM.CMDGO\n"; }

std::string Choose(const char* lot, const char* icon) {
  return std::string("click GFM.Image1(") + lot + ")\nclick GFM.CMDBUILD\nclick GFM." + icon +
         "\nclick GFM.BUILDIT\n";
}

std::string MallOn(int lot) {
  return Quiet() + Lot(lot, "U", "100000") + Set("MallNext", "1") + Set("StrikeMeter", "7") +
         Set("SkillLevel", "1");
}
std::string MallTurn(int lot) { return Turn({{33, 99}, {33, lot, 1}}); }

std::string Card(const char* draw) {
  return Quiet() + Set("ChanceWait", "15") + Turn({{50, 40}, {50, 41}}) + draw +
         "click CHN.CMDOK\n";
}

std::vector<Chapter> LongGame() {
  const std::string cash = "get GFM.PCredit.Caption\n";
  const std::string news = "get GFM.PSHOW.Caption\n";
  const std::string line = "get GFM.LSHOW.Caption\n";
  const std::string cancel = Choose("0", "SUPER") + "click HS.CMDCANCEL";
  return {
      {"setup", "click GST.CMDSET\nclick ICF.cmdexit\n"},
      {"new game", "click GST.CMDSTART\n"},
      {"help",
       "click GFM.CMDHELP\nclick ICF.CMDEXP\nclick HH.CMDEXIT\nclick ICF.CMDABOUT\n"
       "close ABT\nclick ICF.cmdexit\n"},
      {"loan",
       Quiet() + "click GFM.Label8\nclick BK.OPT1(4)\nclick BK.CMDOK\n" + cash,
       {"$1,500,000"}},
      {"no loan", "click GFM.BANKLABEL\nclick BK.CMDCANCEL\n"},
      {"too dear",
       Cash("$0", "$0") + Lot(33, "O", "50000") + "click GFM.Image1(33)\nclick GFM.CMDBUY\n" + cash,
       {"$0"}},
      {"suit", Quiet() + Times(5, cancel) + "click CHN.CMDOK\n" + cash, {"$800,000"}},
      {"build", Quiet() + Choose("0", "BEST") + "click HS.CMDAN1(0)\n" + cash, {"$725,000"}},
      {"zoning", Quiet() + Lot(10, "PU", "50000") + Choose("10", "SUPER") + "close RB\n"},
      {"park",
       Quiet() + Set("LastPark", "0") + Lot(36, "PU", "50000") + Turn({{43, 37}, {43, 90}}) + line,
       {"Park Built in Section  37"}},
      {"golf",
       Quiet() + Set("LastGolf", "0") + Turn({{47, 26}, {47, 60}}) + line,
       {"Golf Course Built in Section  26"}},
      {"condemned",
       Quiet() + Set("LastCondemned", "0") + Turn({{54, 22}, {54, 90}}) + line,
       {"Lot #  22 Condemmed"}},
      {"rezoned",
       Quiet() + Turn({{45, 80}, {45, 15}}) + news,
       {"Condemmed Lot #  22 has been rezoned"}},
      {"opened",
       Quiet() + Set("OpenLots", "6") + Turn({{45, 30}, {45, 31}}) + line,
       {"Lot #  31 Opened"}},
      {"lightning",
       Quiet() + Set("StrikeMeter", "10") + Lot(37, "PHH", "400000", true) +
           Turn({{46, 60}, {46, 37}}) + line + cash,
       {"Insurance pays up", "$1,400,000"}},
      {"player's mall",
       MallOn(37) + MallTurn(37) + "click ML.CMD1(0)\nget GFM.Image1(37).Tag\n",
       {"MAP"}},
      {"fire",
       Quiet() + Turn({{33, 60}, {33, 37, 1}}) + line + "close RB\n",
       {"Fire burns building 37"}},
      {"computer's mall",
       MallOn(36) + Cash("$0", "$900,000") + MallTurn(36) +
           "click ML.CMD1(1)\nanswer ok\nget GFM.Image1(36).Tag\n",
       {"MAC"}},
      {"mall too dear",
       MallOn(35) + Cash("$0", "$0") + MallTurn(35) +
           "click ML.CMD1(0)\nanswer ok\nget GFM.Image1(35).Tag\n",
       {"MAX"}},
      {"casino bought",
       Quiet() + Set("CasinoMeter", "18") + Lot(47, "PSH", "100000") + Turn({{42, 90}, {42, 47}}) +
           "answer yes\n" + line + cash,
       {"Casino Buys Lot 47", "$1,200,000"}},
      {"casino refused",
       Quiet() + Set("CasinoMeter", "18") + Lot(65, "PU", "100000") + Turn({{42, 90}, {42, 65}}) +
           "answer no\nget GFM.Image1(65).Tag\n",
       {"PU"}},
      {"casino from the computer",
       Quiet() + Set("CasinoMeter", "18") + Lot(66, "CSH", "100000") + Turn({{42, 90}, {42, 66}}) +
           "get GFM.CCredit.Caption\n",
       {"$200,000"}},
      {"crash",
       Quiet() + Set("PlaneMeter", "36") + Turn({{40, 95}, {44, 90}}) + line,
       {"Plane Crash !!  95"}},
      {"repairs paid",
       Quiet() + Lot(73, "PSH", "100000") + Turn({{44, 73}, {44, 90, 1}}) + "click SV.CMDOK\n" +
           cash,
       {"$980,000"}},
      {"ruin",
       Quiet() + Cash("$0", "$0") + Turn({{44, 73}, {44, 90, 1}}) +
           "click SV.CMDOK\nclick SV.CMDOK\nget GFM.Image1(73).Tag\n",
       {"PU"}},
      {"computer's ruin",
       Quiet() + Lot(74, "CSH", "100000") + Turn({{44, 74}, {44, 90, 1}}) +
           "answer ok\nget GFM.Image1(74).Tag\n",
       {"CU"}},
      {"computer's restaurant",
       Quiet() + Lot(73, "CSH", "900000") + Lot(75, "CSH", "900000") + Lot(74, "CU", "100000") +
           Cash("$0", "$500,000") + Lot(99, "XC", "50000") + Turn({{50, 90}, {51, 90}}) +
           "get GFM.Image1(74).Tag\n",
       {"CDR"}},
      {"dividends",
       Quiet() + Set("YearTurn", "5") + Set("AssessCount", "0") + Set("PlayerMalls", "1") +
           Lot(37, "MAP", "600000") + Turn({{50, 90}, {52, 90}}) + "get TT.Label1.Caption\n" +
           "get TT.Label2.Caption\n",
       {"Property Assessment", "Your Mall investments netted you $62,400"}},
      {"taxes",
       Quiet() + Set("YearTurn", "23") + Set("AssessCount", "3") + Turn({{50, 90}, {52, 90}}) +
           "get TT.Label1.Caption\n",
       {"Tax Time"}},
      {"good card", Card("clock 12:00:05\nclick CHN.Image1(0)\n") + cash, {"$1,300,000"}},
      {"bad card", Card("clock 12:00:01\nclick CHN.Image1(0)\n") + cash, {"$800,000"}},
      {"player wins",
       Quiet() + Set("LotValue(0)", "100000000") + Set("YearTurn", "5") +
           Turn({{50, 90}, {52, 90}}) + "get WINX.Label2.Caption\n" + "click WINX.CMDEXIT\n",
       {"Player"}},
      {"computer wins",
       "clock 12:00:00\nclick GST.CMDSTART\n" + Set("LotValue(99)", "100000000") +
           Set("YearTurn", "5") + Turn({{50, 90}, {52, 90}}) +
           "get WINX.Label2.Caption\nclick WINX.CMDEXIT\n",
       {"Computer"}},
      {"bank wins",
       "clock 12:00:00\nclick GST.CMDSTART\n" + Set("BankCash", "100000000") +
           Set("BankPlays", "-1") + Set("YearTurn", "5") + Turn({{50, 90}, {52, 90}}) +
           "get WINX.Label2.Caption\n" + "click WINX.CMDEXIT\n",
       {"The Bank"}},
      {"exit", "click GST.CMDEXIT\n"},
  };
}

struct CueRow {
  const char* file;
  bool waits;
  const char* chapter;
};

constexpr CueRow cueRows[] = {
    {"ZELVO.WAV", true, "setup"},
    {"STARTP.WAV", true, "new game"},
    {"no-intel.WAV", true, "exit"},
    {"nocomply.wav", false, "too dear"},
    {"CHIP.WAV", true, "build"},
    {"REVIEW.WAV", false, "zoning"},
    {"CLICK.WAV", true, "park"},
    {"CLICK.WAV", true, "dividends"},
    {"PARK.WAV", true, "park"},
    {"Golf.WAV", true, "golf"},
    {"PLOPFUND.WAV", true, "condemned"},
    {"EXPLODE.WAV", false, "lightning"},
    {"EXPLODE.WAV", true, "crash"},
    {"SIREN.WAV", false, "crash"},
    {"FANFARE.WAV", false, "casino bought"},
    {"MALL.WAV", false, "player's mall"},
    {"CSMART.WAV", false, "computer's mall"},
    {"CSMART.WAV", false, "computer's restaurant"},
    {"BEEBOP.WAV", true, "ruin"},
    {"GOOD.WAV", false, "good card"},
    {"OHNO.WAV", false, "bad card"},
    {"LOAN.WAV", false, "loan"},
    {"NOLOAN.WAV", false, "no loan"},
    {"WEALTH.WAV", false, "player wins"},
    {"LOSLAFF.WAV", false, "computer wins"},
    {"DESPIC.WAV", true, "player wins"},
};

static_assert(std::size(cueRows) == static_cast<std::size_t>(Cue::Count));

TEST(LongGame, EveryEventEveryCueAndEveryWindowOccurs) {
  std::string script;
  for (const Chapter& chapter : LongGame()) script += chapter.script;
  const auto lines = Play(script);

  std::size_t at = 1;  // the first line comes ahead of all commands
  std::set<std::string> windows;
  std::set<std::tuple<std::string, std::string, bool>> cues;  // chapter, file and flag
  std::set<std::string> files;
  for (const Chapter& chapter : LongGame()) {
    Strings values;
    const auto commands = std::count(chapter.script.begin(), chapter.script.end(), '\n');
    // The opening belongs to the first chapter.
    for (std::size_t i = at == 1 ? 0 : at; i < at + commands && i < lines.size(); ++i) {
      const Json& read = lines[i];
      EXPECT_FALSE(read.contains("error")) << chapter.name << ": " << read;
      windows.insert(read["waiting"].get<std::string>());
      if (read.contains("value")) values.push_back(read["value"]);
      if (!read.contains("cues")) continue;
      for (const Json& cue : read["cues"]) {
        cues.emplace(chapter.name, cue["file"], cue["waits"]);
        files.insert(cue["file"]);
      }
    }
    at += commands;
    EXPECT_EQ(values, chapter.values) << chapter.name;
    // Tax time closes itself before it ever waits; its label tells that it was there.
    if (values == Strings{"Tax Time"}) windows.insert("TT");
  }
  EXPECT_EQ(lines.size(), at);
  EXPECT_EQ(lines.back()["waiting"], "ended");
  for (const CueRow& row : cueRows) {
    EXPECT_TRUE(cues.contains({row.chapter, row.file, row.waits})) << row.file << row.chapter;
  }
  EXPECT_EQ(files.size(), 23U);
  EXPECT_EQ(windows,
            (std::set<std::string>{"ABT", "BK", "CHN", "GFM", "GST", "HH", "HS", "ICF", "ML", "RB",
                                   "SV", "TT", "WINX", "ended", "message box"}));
}

}  // namespace
}  // namespace zelvo::test
