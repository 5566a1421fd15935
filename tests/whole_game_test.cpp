#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "game/money.h"
#include "game/text.h"
#include "presentation/cues.h"
#include "tests/policy_player.h"
#include "tests/position.h"

namespace zelvo::test {
namespace {

/// Tags and pictures agree, amounts are written as amounts, and no lot is worthless.
void ExpectWholeBoard(Game& g) {
  for (int lot = 0; lot < lotCount; ++lot) {
    const Control& image = g.GFM->Image1[lot];
    EXPECT_TRUE(image.Visible) << lot;
    EXPECT_GT(g.LotValue[lot], Currency()) << lot;
    // A mall that nobody took stands over the old tag.
    if (image.Picture == g.ICF->MALL.Picture && image.Tag.size() == 1) continue;
    const std::string picture(PictureOwner(image.Picture));
    EXPECT_NE(Lot(lot, image.Tag, "0").find(picture + "\n"), std::string::npos)
        << lot << " " << image.Tag << " " << picture;
  }
  for (const Control* cash : {&g.GFM->PCredit, &g.GFM->CCredit}) {
    ReadMoney(g, cash->Caption);
    EXPECT_EQ(MoneyText(g.Money), cash->Caption);
  }
  EXPECT_EQ(MoneyText(g.BankCash), g.GFM->BANKLABEL.Caption);
  EXPECT_GE(g.PlayerMalls, 0);
}

class PlayedByPolicy : public testing::TestWithParam<int> {};

TEST_P(PlayedByPolicy, ComesToItsEndTheSameOnEachRun) {
  PolicyPlayer first(GetParam(), "12:00:07");
  PolicyPlayer second(GetParam(), "12:00:07");
  PolicyPlayer later(GetParam(), "12:00:29");
  for (PolicyPlayer* player : {&first, &second, &later}) player->Play();
  EXPECT_EQ(first.transcript(), second.transcript());
  EXPECT_NE(first.transcript(), later.transcript());
  EXPECT_EQ(first.transcript().find("\"error\""), std::string::npos);
  EXPECT_TRUE(!first.winner().empty() || first.game().TurnNo == PolicyPlayer::lastTurn);
  ExpectWholeBoard(first.game());
  ExpectWholeBoard(later.game());
}

INSTANTIATE_TEST_SUITE_P(Levels, PlayedByPolicy, testing::Range(0, 4));

// --- A game in which everything happens

/// A part of the long game: what happens, the cues that then sound, a waiting one with a mark, the
/// commands, and what their `get` commands tell.
struct Chapter {
  std::string name;
  std::string cues;
  std::string script;
  std::string told = {};
};

/// Nothing is pending, the board is calm, the computer has no cash.
std::string Quiet() {
  std::string script = Calm() + Cash("$1,000,000", "$0");
  for (const char* name :
       {"StrikeMeter", "CasinoMeter", "PlaneMeter", "MallNext", "YearTurn", "ChanceWait"}) {
    script += Set(name, "0");
  }
  return script;
}

std::string Turn(std::initializer_list<Draw> draws) { return Draws(draws) + endTurn; }

std::string Choose(const char* lot, const char* icon) {
  return std::string("click GFM.Image1(") + lot + ")\nclick GFM.CMDBUILD\nclick GFM." + icon +
         "\nclick GFM.BUILDIT\n";
}

std::string MallOn(int lot, const std::string& answers) {
  return Level(1) + Lot(lot, "U", "100000") + Set("MallNext", "1") + Set("StrikeMeter", "7") +
         Turn({{33, 99}, {33, lot, 1}}) + answers + TagOf(lot);
}

std::string CasinoOn(int lot, const char* tag) {
  return Set("CasinoMeter", "18") + Lot(lot, tag, "100000") + Turn({{42, 90}, {42, lot}});
}

std::string RepairsOn(int lot) { return Turn({{44, lot}, {44, 90, 1}}); }

/// The end of the given sixth of the year.
std::string Sixth(int sixth) {
  return Set("YearTurn", std::to_string(6 * sixth - 1)) +
         Set("AssessCount", std::to_string(sixth - 1)) + Turn({{50, 90}, {52, 90}});
}

std::string Card(const char* second) {
  return Set("ChanceWait", "15") + Turn({{50, 40}, {50, 41}}) + "clock 12:00:" + second +
         "\nclick CHN.Image1(0)\nclick CHN.CMDOK\n" + Cashes();
}

std::vector<Chapter> LongGame() {
  const std::string cash = "get GFM.PCredit.Caption\n";
  const std::string line = "get GFM.LSHOW.Caption\n";
  const std::string winner = "get WINX.Label2.Caption\nclick WINX.CMDEXIT\n";
  const std::string start = "clock 12:00:00\nclick GST.CMDSTART\n";
  std::vector<Chapter> chapters = {{"setup", "ZELVO.WAV!", "click GST.CMDSET\nclick ICF.cmdexit\n"},
                                   {"new game", "STARTP.WAV!", "click GST.CMDSTART\n"}};
  for (const Chapter& chapter : std::vector<Chapter>{
           {"help", "",
            "click GFM.CMDHELP\nclick ICF.CMDEXP\nclick HH.CMDEXIT\nclick ICF.CMDABOUT\n"
            "close ABT\nclick ICF.cmdexit\n"},
           {"loan", "LOAN.WAV", "click GFM.Label8\nclick BK.OPT1(4)\nclick BK.CMDOK\n" + cash,
            "$1,500,000"},
           {"no loan", "NOLOAN.WAV", "click GFM.BANKLABEL\nclick BK.CMDCANCEL\n"},
           {"too dear", "nocomply.wav",
            Cash("$0", "$0") + Lot(33, "O", "1") + "click GFM.Image1(33)\nclick GFM.CMDBUY\n"},
           {"suit", "",
            Times(5, Choose("0", "SUPER") + "click HS.CMDCANCEL") + "click CHN.CMDOK\n" + cash,
            "$800,000"},
           {"build", "CHIP.WAV!", Choose("0", "BEST") + "click HS.CMDAN1(0)\n" + cash, "$725,000"},
           {"zoning", "REVIEW.WAV", Lot(10, "PU", "50000") + Choose("10", "SUPER") + "close RB\n"},
           {"park", "PARK.WAV! CLICK.WAV!",
            Set("LastPark", "0") + Lot(36, "PU", "50000") + Turn({{43, 37}, {43, 90}}) + line,
            "Park Built in Section  37"},
           {"golf", "Golf.WAV!", Set("LastGolf", "0") + Turn({{47, 26}, {47, 60}}) + line,
            "Golf Course Built in Section  26"},
           {"condemned", "PLOPFUND.WAV!",
            Set("LastCondemned", "0") + Turn({{54, 22}, {54, 90}}) + line, "Lot #  22 Condemmed"},
           {"rezoned", "", Turn({{45, 80}, {45, 15}}) + "get GFM.PSHOW.Caption\n",
            "Condemmed Lot #  22 has been rezoned"},
           {"opened", "", Set("OpenLots", "6") + Turn({{45, 30}, {45, 31}}) + line,
            "Lot #  31 Opened"},
           {"lightning", "EXPLODE.WAV",
            Set("StrikeMeter", "10") + Lot(37, "PHH", "400000", true) + Turn({{46, 60}, {46, 37}}) +
                line + cash,
            "Insurance pays up | $1,400,000"},
           {"player's mall", "MALL.WAV", MallOn(37, "click ML.CMD1(0)\n"), "MAP"},
           {"fire", "", Turn({{33, 60}, {33, 37, 1}}) + line + "close RB\n",
            "Fire burns building 37"},
           {"computer's mall", "CSMART.WAV",
            Cash("$0", "$900,000") + MallOn(36, "click ML.CMD1(1)\nanswer ok\n"), "MAC"},
           {"casino bought", "FANFARE.WAV", CasinoOn(47, "PSH") + "answer yes\n" + line + cash,
            "Casino Buys Lot 47 | $1,200,000"},
           {"casino from the computer", "", CasinoOn(66, "CSH") + Cashes(),
            "$1,000,000 | $200,000"},
           {"crash", "EXPLODE.WAV! SIREN.WAV",
            Set("PlaneMeter", "36") + Turn({{40, 95}, {44, 90}}) + line, "Plane Crash !!  95"},
           {"repairs paid", "",
            Lot(73, "PSH", "100000") + RepairsOn(73) + "click SV.CMDOK\n" + cash, "$980,000"},
           {"ruin", "BEEBOP.WAV!",
            Cash("$0", "$0") + RepairsOn(73) + "click SV.CMDOK\nclick SV.CMDOK\n" + TagOf(73),
            "PU"},
           {"computer's ruin", "",
            Lot(74, "CSH", "100000") + RepairsOn(74) + "answer ok\n" + TagOf(74), "CU"},
           {"computer's restaurant", "CSMART.WAV",
            Lot(73, "CSH", "900000") + Lot(75, "CSH", "900000") + Lot(74, "CU", "100000") +
                Cash("$0", "$500,000") + Lot(99, "XC", "50000") + Turn({{50, 90}, {51, 90}}) +
                TagOf(74),
            "CDR"},
           {"dividends", "CLICK.WAV!",
            Set("PlayerMalls", "1") + Lot(37, "MAP", "600000") + Sixth(1) +
                Get("TT.Label1.Caption TT.Label2.Caption"),
            "Property Assessment | Your Mall investments netted you $62,400"},
           {"taxes", "", Sixth(4) + "get TT.Label1.Caption\n", "Tax Time"},
           {"good card", "GOOD.WAV", Card("05"), "$1,300,000 | $0"},
           {"bad card", "OHNO.WAV", Card("01"), "$800,000 | $200,000"},
           {"player wins", "WEALTH.WAV DESPIC.WAV!",
            Set("LotValue(0)", "100000000") + Sixth(1) + winner, "Player"},
           {"computer wins", "LOSLAFF.WAV",
            start + Set("LotValue(99)", "100000000") + Sixth(1) + winner, "Computer"},
           {"bank wins", "",
            start + Set("BankCash", "100000000") + Set("BankPlays", "-1") + Sixth(1) + winner,
            "The Bank"},
           {"exit", "no-intel.WAV!", "click GST.CMDEXIT\n"}}) {
    chapters.push_back({chapter.name, chapter.cues, Quiet() + chapter.script, chapter.told});
  }
  return chapters;
}

TEST(LongGame, EveryEventEveryCueAndEveryWindowOccurs) {
  const std::vector<Chapter> chapters = LongGame();
  std::string script;
  for (const Chapter& chapter : chapters) script += chapter.script;
  const auto lines = Play(script);

  std::size_t at = 1;  // the first line comes ahead of all commands
  std::size_t cueCount = 0;
  std::set<std::string> windows;
  for (const Chapter& chapter : chapters) {
    std::string told;
    std::string cues = " ";
    const auto commands = std::count(chapter.script.begin(), chapter.script.end(), '\n');
    // The opening belongs to the first chapter.
    for (std::size_t i = at == 1 ? 0 : at; i < at + commands && i < lines.size(); ++i) {
      const Json& read = lines[i];
      EXPECT_FALSE(read.contains("error")) << chapter.name << ": " << read;
      windows.insert(read["waiting"].text());
      told += (told.empty() || !read.contains("value") ? "" : " | ") + read["value"].text();
      for (const Json& cue : read["cues"].items()) {
        cues += cue["file"].text() + (cue["waits"].text() == "true" ? "! " : " ");
      }
    }
    at += commands;
    EXPECT_EQ(told, chapter.told) << chapter.name;
    // Tax time closes itself before it ever waits; its label tells that it was there.
    if (told == "Tax Time") windows.insert("TT");
    for (const std::string& cue : Pieces(chapter.cues, ' ')) {
      EXPECT_NE(cues.find(" " + cue + " "), std::string::npos) << cue << " in " << chapter.name;
      ++cueCount;
    }
  }
  EXPECT_EQ(lines.size(), at);
  EXPECT_EQ(cueCount, static_cast<std::size_t>(Cue::Count));
  EXPECT_EQ(windows,
            (std::set<std::string>{"ABT", "BK", "CHN", "GFM", "GST", "HH", "HS", "ICF", "ML", "RB",
                                   "SV", "TT", "WINX", "ended", "message box"}));
}

}  // namespace
}  // namespace zelvo::test
