#include <gtest/gtest.h>

#include <algorithm>

#include "tests/position.h"

namespace zelvo::test {
namespace {

using Strings = std::vector<std::string>;

TEST(Setup, FromTheStartWindowItIsMadeAfreshEachTime) {
  const auto lines = Play(
      "click GST.CMDSET\nclick ICF.OPT1(2)\nget SkillLevel\nhover ICF.LUND\nclick ICF.cmdexit\n"
      "get ICF.Label1.Caption\nclick GST.CMDSET\nget ICF.Label1.Caption\nget ICF.OPT1(2).Value\n"
      "get ICF.OPT1(0).Value\nclick ICF.cmdexit\nclick GST.CMDSTART\nget GFM.Label1.Caption\n");
  EXPECT_EQ(lines[1]["waiting"], "ICF");
  EXPECT_EQ(lines[3]["value"], 2);
  EXPECT_EQ(lines[5]["waiting"], "GST");
  EXPECT_TRUE(lines[6].contains("error"));
  EXPECT_EQ(lines[8]["value"], "Move mouse over Icons");
  EXPECT_EQ(lines[9]["value"], -1);
  EXPECT_EQ(lines[10]["value"], 0);
  EXPECT_EQ(lines[13]["value"], "Zelvo 3.2 - Hard Level");
}

TEST(Setup, LevelCountsAtOnceAndTheBoardNamesItWithTheNextGame) {
  const std::string level = Gets({"SkillLevel", "GFM.Label1.Caption", "GFM.Label10.Caption"});
  EXPECT_EQ(Told("click GFM.CMDHELP\nclick ICF.OPT1(3)\nclick ICF.cmdexit\n" + level +
                 "get ICF.Label1.Caption\nclick GFM.CMDEXIT\nclick GST.CMDSTART\n" + level),
            "3 | Zelvo 3.2 - Easy Level | Level  0 | Move mouse over Icons | 3 | Zelvo 3.2 - "
            "Genius Level | Level  3");
}

TEST(Setup, BoxesSetTheirFlagsAndANewGameKeepsTheBanksAlone) {
  const std::string flags = Gets({"UseChance", "BankPlays"});
  const std::string both = "click ICF.CKCHANCE\nclick ICF.CKBANK\n" + flags;
  EXPECT_EQ(Told(flags + "click GFM.CMDHELP\nget ICF.CKBANK.Value\n" + both + both +
                 "click ICF.CKCHANCE\nclick ICF.cmdexit\nget UseChance\nclick GFM.CMDEXIT\n"
                 "click GST.CMDSTART\n" +
                 flags),
            "-1 | 0 | -1 | 0 | 0 | -1 | -1 | 0 | -1 | -1");
}

TEST(Setup, SoundSwitchWorksFromTheNextCueOn) {
  const std::string raise = Lot(0, "PU", "50000") + Calm() + Set("LastPark", "0") +
                            Set("OpenLots", "50") + Draws({{43, 1}, {43, 90}}) +
                            "click GFM.CMDGO\n";
  const auto lines = Play(
      "click GST.CMDSTART\nclick GFM.CMDHELP\nget ICF.CMDSOUND.Caption\n"
      "click ICF.CMDSOUND\nget ICF.CMDSOUND.Caption\nclick ICF.cmdexit\n" +
      raise + "click GFM.CMDHELP\nclick ICF.CMDSOUND\nget SoundOn\n" + "click ICF.cmdexit\n" +
      raise);
  EXPECT_EQ(lines[0]["cues"].dump(), R"([{"file":"ZELVO.WAV","waits":true}])");
  EXPECT_EQ(lines[3]["value"], "Sound on");
  EXPECT_EQ(lines[5]["value"], "Sound off");
  for (std::size_t i = 5; i + 1 < lines.size(); ++i) {
    EXPECT_FALSE(lines[i].contains("cues")) << lines[i];
  }
  EXPECT_EQ(lines.back()["cues"][0]["file"], "PARK.WAV");
}

TEST(Cues, ASpreadClicksOnceForEachLotOfThePlayer) {
  std::string script = "click GST.CMDSTART\n" + Calm() + Set("LastPark", "0") + Cash("$0", "$0");
  for (const int lot : {36, 38, 27, 47}) script += Lot(lot, "PU", "100000");
  script += Draws({{43, 37}, {43, 90}}) + "click GFM.CMDGO\n";
  std::string files;
  const Json cues = Play(script).back()["cues"];
  for (const Json& cue : cues) {
    files += cue["file"].get<std::string>() + " ";
  }
  EXPECT_EQ(files, "PARK.WAV CLICK.WAV CLICK.WAV CLICK.WAV CLICK.WAV ");
}

TEST(Setup, LegendTellsWhatEachIconMeans) {
  const std::pair<const char*, const char*> rows[] = {
      {"ICF", "Move mouse over Icons for descriptions"},
      {"ICF.LUND", "Empty Non-zoned lot"},
      {"ICF.LOPEN", "Open zoned lot"},
      {"ICF.LDIRT", "Condemed Lot"},
      {"ICF.PLAYER", "Player owned lot"},
      {"ICF.COMP", "Computer owned lot"},
      {"ICF.SUPER", "Super Saver - Lowest price"},
      {"ICF.THRIFTY", "Thrifty Inn"},
      {"ICF.QUALITY", "Quality Inn"},
      {"ICF.BEST", "Best Westren"},
      {"ICF.RAMADA", "Ramada Inn"},
      {"ICF.HILTON", "Hilton - Highest Priced"},
      {"ICF.CREST", "Restaurant, increases area property values"},
      {"ICF.PARK", "Park - raises property value"},
      {"ICF.GOLF", "Golf Course - raises property value"},
      {"ICF.MALL", "Mall, increases property value plus you may invest !"},
      {"ICF.CITY", "Caseno lot Worth $$$"},
      {"ICF.ELEC", "Lighting Strike - Levels hotel"},
      {"ICF.FIRE", "Fire, Destroys property"},
      {"ICF.PLANE", "Plane Crash - destroys property and value"},
      {"ICF.PAINT", "Repairs needed on property, you better have enough money"},
      {"ICF.IRS", "IRS Agent - Tax man - Banker, aren't they all the same ?"},
      {"ICF.MAN1", "Y O U  Bone Head"},
      {"ICF.OPT1(0)", "Easy to win"},
      {"ICF.OPT1(1)", "Normal Chances"},
      {"ICF.OPT1(2)", "Better be Smart"},
      {"ICF.OPT1(3)", "Better be Smart"},
      {"ICF.CMDSOUND", "Better be Smart"},  // nothing clears the line
  };
  std::string script = "click GFM.CMDHELP\n";
  Strings expected;
  for (const auto& [icon, line] : rows) {
    script += std::string("hover ") + icon + "\nget ICF.Label1.Caption\n";
    expected.emplace_back(line);
  }
  EXPECT_EQ(Texts(script), expected);
}

TEST(Hover, BoardsTitleFollowsTheMouse) {
  const std::pair<const char*, const char*> controls[] = {
      {"BANKLABEL", "Click to borrow money from the bank"},
      {"Label8", "Click to borrow money from the bank"},
      {"SUPER", "Super Saver"},
      {"THRIFTY", "Thrifty Inn"},
      {"QUALITY", "Quality Inn"},
      {"BEST", "Best Western"},
      {"RAMADA", "Ramada Inn"},
      {"HILTON", "Hilton"},
      {"Rest", "Restaurant"},
      {"CMDEXIT", "Click to Exit game"},
      {"CMDGO", "Finished, Computers Turn"},
      {"CMDHELP", "Click for Setup menu"},
      {"Label1", "Click to change Skill level"},
      {"Panel3D2", "Zelvo Help"},
      {"PSHOW", "Play Instructions"},
      {"Panel3D4", "Zelvo Help"},
      {"LSHOW", "Zelvo Help"},
  };
  const std::pair<const char*, const char*> lots[] = {
      {"U", "Not zoned undeveloped lot"},
      {"O", "Zoned undeveloped lot"},
      {"D", "Condemed lot"},
      {"CU", "Computer owned lot"},
      {"PU", "Player owned lot"},
      {"XC", "Caseno owned lot"},
      {"G", "Golf Course, raises property value"},
      {"K", "Park, raises property value"},
      {"CDR", "Restaurant, raises surounding property values."},
      {"CHH", "Restaurant, raises surounding property values."},  // hotels and malls say nothing
      {"U", "Not zoned undeveloped lot"},
      {"PDH", "Restaurant, raises surounding property values."},
      {"U", "Not zoned undeveloped lot"},
      {"PSH", "Not zoned undeveloped lot"},
      {"MAX", "Not zoned undeveloped lot"},
  };
  std::string script = "get GFM.Caption\n";
  Strings expected = {"Board Game"};
  for (const auto& [control, title] : controls) {
    script += std::string("hover GFM.") + control + "\nget GFM.Caption\n";
    expected.emplace_back(title);
  }
  for (const auto& [tag, title] : lots) {
    script += Lot(37, tag, "50000") + "hover GFM.Image1(37)\nget GFM.Caption\n";
    expected.emplace_back(title);
  }
  EXPECT_EQ(Texts(script), expected);
}

TEST(Help, ExplainsTheGameInEightParagraphs) {
  const Strings texts = Texts(
      "click GFM.CMDHELP\nclick ICF.CMDEXP\nget HH.Text1.Text\n"
      "click HH.CMDEXIT\nclick ICF.CMDEXP\nget HH.Text1.Text\n");
  EXPECT_EQ(texts[0], texts[1]);  // filled once
  Strings heads;
  std::string rest = texts[0] + "\n\r\n\r";
  for (std::size_t end = rest.find("\n\r\n\r"); end != std::string::npos;
       end = rest.find("\n\r\n\r")) {
    heads.push_back(rest.substr(0, std::min<std::size_t>(end, 16)));
    rest.erase(0, end + 4);
  }
  EXPECT_EQ(heads, (Strings{"The game", " The object of t", "  At certain int", " The hotels are ",
                            " Strategies are ", " When Malls are ", " You may start w",
                            " Oh, by the way,"}));
  EXPECT_TRUE(texts[0].ends_with("take a chance, good luck."));
}

TEST(About, TellsWhoMadeTheGameAndLeavesItsTextInWord) {
  const std::string text =
      "Zelvo 32\n\rVersion 3.2.4\n\rDesigned and built by the Zelvo developers\n\rQuestions are "
      "welcome in the issue tracker of the project\n\rAny problems, questions or suggestions, "
      "please let us know.\n\r         Click to close";
  for (const char* leave : {"click ABT.Image1\n", "click ABT.Label1\n", "close ABT\n"}) {
    const auto lines = Play(
        "click GST.CMDSTART\nclick GFM.CMDHELP\nclick ICF.CMDABOUT\n"
        "get ABT.Label1.Caption\nget ABT.Caption\n" +
        std::string(leave) + "get Word\n");
    EXPECT_EQ(lines[3]["waiting"], "ABT");
    EXPECT_EQ(lines[4]["value"], text);
    EXPECT_EQ(lines[5]["value"], "About Box");
    EXPECT_EQ(lines[6]["waiting"], "ICF") << leave;
    EXPECT_EQ(lines[7]["value"], text);
  }
}

TEST(About, AChoiceOfABuildingIsForgottenOverIt) {
  EXPECT_EQ(Told("click GFM.Image1(0)\nclick GFM.CMDBUILD\nclick GFM.QUALITY\n"
                 "click GFM.CMDHELP\nclick ICF.CMDABOUT\nclose ABT\nclick ICF.cmdexit\n"
                 "click GFM.BUILDIT\nget GFM.PCredit.Caption\nget GFM.BUILDIT.Visible\n"
                 "get GFM.Image1(0).Tag\n"),
            "$1,000,000 | -1 | PU");
}

}  // namespace
}  // namespace zelvo::test
