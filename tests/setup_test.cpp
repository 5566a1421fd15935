#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/position.h"

namespace zelvo::test {
namespace {

using Lines = std::vector<std::pair<const char*, const char*>>;

TEST(Setup, LevelCountsAtOnceAndTheBoardNamesItWithTheNextGame) {
  const std::string level = Get("SkillLevel GFM.Label1.Caption GFM.Label10.Caption");
  EXPECT_EQ(Told("click GFM.CMDHELP\nclick ICF.OPT1(3)\nclick ICF.cmdexit\n" + level +
                 "get ICF.Label1.Caption\nclick GFM.CMDEXIT\nclick GST.CMDSTART\n" + level),
            "3 | Zelvo 3.2 - Easy Level | Level  0 | Move mouse over Icons | 3 | Zelvo 3.2 - "
            "Genius Level | Level  3");
}

TEST(Setup, FromTheStartWindowItIsMadeAfreshEachTime) {
  EXPECT_EQ(Told("click GFM.CMDEXIT\nclick GST.CMDSET\nclick ICF.OPT1(2)\nhover ICF.LUND\n"
                 "click ICF.cmdexit\nclick GST.CMDSET\n" +
                 Get("ICF.Label1.Caption ICF.OPT1(2).Value ICF.OPT1(0).Value SkillLevel") +
                 "click ICF.cmdexit\nclick GST.CMDSTART\nget GFM.Label1.Caption\n"),
            "Move mouse over Icons | -1 | 0 | 2 | Zelvo 3.2 - Hard Level");
}

TEST(Setup, BoxesSetTheirFlagsAndANewGameKeepsTheBanksAlone) {
  const std::string flags = Get("UseChance BankPlays");
  const std::string both = "click ICF.CKCHANCE\nclick ICF.CKBANK\n" + flags;
  EXPECT_EQ(Told(flags + "click GFM.CMDHELP\nget ICF.CKBANK.Value\n" + both + both +
                 "click ICF.CKCHANCE\nclick ICF.cmdexit\nget UseChance\nclick GFM.CMDEXIT\n"
                 "click GST.CMDSTART\n" +
                 flags),
            "-1 | 0 | -1 | 0 | 0 | -1 | -1 | 0 | -1 | -1");
}

TEST(Setup, SoundSwitchWorksFromTheNextCueOn) {
  const std::string park =
      Lot(0, "PU", "50000") + Calm() + Set("LastPark", "0") + Draws({{43, 1}, {43, 90}}) + endTurn;
  const std::string press =
      "click GFM.CMDHELP\nget ICF.CMDSOUND.Caption\nclick ICF.CMDSOUND\n"
      "get ICF.CMDSOUND.Caption\nclick ICF.cmdexit\nget SoundOn\n";
  EXPECT_EQ(Told(press + press), "Sound on | Sound off | 0 | Sound off | Sound on | -1");
  EXPECT_FALSE(Last(press + park).contains("cues"));
  EXPECT_EQ(Last(press + park + press + park)["cues"].items().at(0)["file"], "PARK.WAV");
}

TEST(Setup, LegendTellsWhatEachIconMeans) {
  for (const auto& [icon, line] :
       Lines{{"ICF", "Move mouse over Icons for descriptions"},
             {"ICF.MAN1", "Y O U  Bone Head"},
             {"ICF.OPT1(0)", "Easy to win"},
             {"ICF.OPT1(3)", "Better be Smart"},
             {"ICF.CMDSOUND", "Empty Non-zoned lot"}}) {  // nothing clears it
    EXPECT_EQ(Told("click GFM.CMDHELP\nhover ICF.LUND\nhover " + std::string(icon) +
                   "\nget ICF.Label1.Caption\n"),
              line);
  }
  std::string script = "click GFM.CMDHELP\n";
  for (const std::string& icon : Pieces("LUND LOPEN LDIRT PLAYER COMP SUPER THRIFTY QUALITY BEST "
                                        "RAMADA HILTON CREST PARK GOLF MALL CITY ELEC FIRE PLANE "
                                        "PAINT IRS MAN1",
                                        ' ')) {
    script += "hover ICF." + icon + "\nget ICF.Label1.Caption\n";
  }
  const auto texts = Texts(script);
  EXPECT_EQ(std::set<std::string>(texts.begin(), texts.end()).size(), 22U);
}

TEST(Hover, BoardsTitleFollowsTheMouse) {
  const auto on = [](const char* tag) { return Lot(37, tag, "1") + "hover GFM.Image1(37)\n"; };
  const std::string title = "get GFM.Caption\n";
  EXPECT_EQ(Told(title + "hover GFM.Label8\n" + title + "hover GFM.CMDGO\n" + title +
                 "hover GFM.Panel3D2\n" + title + "hover GFM.Rest\n" + title + "hover GFM.LSHOW\n" +
                 title),
            "Board Game | Click to borrow money from the bank | Finished, Computers Turn | "
            "Zelvo Help | Restaurant | Restaurant");
  EXPECT_EQ(Told(on("O") + title + on("PU") + title + on("CU") + title + on("K") + title +
                 on("CDR") + title + on("XC") + title + on("PDH") + title),
            "Zoned undeveloped lot | Player owned lot | Computer owned lot | Park, raises property "
            "value | Restaurant, raises surounding property values. | Caseno owned lot | "
            "Restaurant, raises surounding property values.");
  // Hotels and malls say nothing.
  EXPECT_EQ(Told(on("U") + on("CHH") + title + on("PSH") + title + on("MAX") + title),
            "Not zoned undeveloped lot | Not zoned undeveloped lot | Not zoned undeveloped lot");
}

TEST(Help, ExplainsTheGameInEightParagraphs) {
  const std::string read = "click ICF.CMDEXP\nget HH.Text1.Text\nclick HH.CMDEXIT\n";
  const auto texts = Texts("click GFM.CMDHELP\n" + read + read);
  EXPECT_EQ(texts[0], texts[1]);  // filled once
  EXPECT_TRUE(texts[0].starts_with("The game\n\r\n\r The object") && texts[0].ends_with("luck."));
  EXPECT_EQ(std::count(texts[0].begin(), texts[0].end(), '\r'), 14);
}

TEST(About, TellsWhoMadeTheGameAndLeavesItsTextInWord) {
  const std::string text =
      "Zelvo 32\n\rVersion 3.2.4\n\rDesigned and built by the Zelvo developers\n\rQuestions are "
      "welcome in the issue tracker of the project\n\rAny problems, questions or suggestions, "
      "please let us know.\n\r         Click to close";
  for (const std::string leave : {"click ABT.Image1\n", "click ABT.Label1\n", "close ABT\n"}) {
    const std::string about = "click GFM.CMDHELP\nclick ICF.CMDABOUT\n";
    EXPECT_EQ(Told(about + "get ABT.Label1.Caption\nget ABT.Caption\n" + leave + "get Word\n"),
              text + " | About Box | " + text);
    EXPECT_EQ(Last(about + leave)["waiting"], "ICF") << leave;
  }
}

TEST(About, AChoiceOfABuildingIsForgottenOverIt) {
  EXPECT_EQ(Told("click GFM.Image1(0)\nclick GFM.CMDBUILD\nclick GFM.QUALITY\n"
                 "click GFM.CMDHELP\nclick ICF.CMDABOUT\nclose ABT\nclick ICF.cmdexit\n"
                 "click GFM.BUILDIT\n" +
                 Get("GFM.PCredit.Caption GFM.BUILDIT.Visible GFM.Image1(0).Tag")),
            "$1,000,000 | -1 | PU");
}

}  // namespace
}  // namespace zelvo::test
