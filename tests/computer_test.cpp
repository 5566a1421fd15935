#include <gtest/gtest.h>

#include "tests/position.h"

namespace zelvo::test {
namespace {

using Strings = std::vector<std::string>;

/// A board without a lot of the computer.
std::string NoLots() { return Lot(99, "U", "50000"); }

/// The computer's turn on a calm board, with its scans starting behind a lot without an owner.
std::string ComputerPlays(int from = 40) {
  return Calm() + Draws({{50, from}, {50, 60}}) + "click GFM.CMDGO\n";
}

std::string CashTagValue(int lot) {
  const std::string index = "(" + std::to_string(lot) + ")";
  return Gets({"GFM.CCredit.Caption", "GFM.Image1" + index + ".Tag", "LotValue" + index,
               "LotInsured" + index});
}

TEST(ComputerTurn, LevelSetsPriceAndPremiumOfTheDearestClassInReach) {
  const char* expected[] = {"$120,000 | CBH | 850000 | -1", "$250,000 | CHH | 800000 | -1",
                            "$360,000 | CHH | 800000 | -1", "$470,000 | CHH | 800000 | -1"};
  for (int level = 0; level < 4; ++level) {
    EXPECT_EQ(Told(Set("SkillLevel", std::to_string(level)) + Lot(99, "CU", "100000") +
                   Cash("$0", "$900,000") + ComputerPlays() + CashTagValue(99)),
              expected[level])
        << "level " << level;
  }
}

TEST(ComputerTurn, CashMustExceedTheCostAndThePremium) {
  struct Row {
    const char* cash;
    const char* expected;
  };
  for (const auto& [cash, expected] :
       {Row{"$650,001", "$1 | CHH | 800000 | -1"},
        Row{"$650,000", "$20,000 | CHH | 800000 | 0"},  // the premium is all that is left
        Row{"$630,001", "$1 | CHH | 800000 | 0"}, Row{"$630,000", "$70,000 | CRH | 700000 | -1"},
        Row{"$540,000", "$70,000 | CBH | 600000 | -1"},
        Row{"$450,000", "$70,000 | CQH | 500000 | -1"},
        Row{"$360,000", "$70,000 | CTH | 400000 | -1"},
        Row{"$270,000", "$70,000 | CSH | 300000 | -1"}, Row{"$180,001", "$1 | CSH | 300000 | 0"},
        Row{"$180,000", "$180,000 | CU | 100000 | 0"}}) {
    EXPECT_EQ(Told(Set("SkillLevel", "1") + NoLots() + Lot(55, "CU", "100000") + Cash("$0", cash) +
                   ComputerPlays() + CashTagValue(55)),
              expected)
        << cash;
  }
}

TEST(ComputerTurn, ZoningBoardKnowsEdgesAndTheHotelsThatThePlayerSold) {
  struct Row {
    int lot;
    const char* cash;
    std::string sold;
    const char* expected;
  };
  for (const auto& [lot, cash, sold, expected] : {
           Row{50, "$200,000", "", "$200,000 | CU | 100000 | 0"},
           Row{59, "$300,000", "", "$300,000 | CU | 100000 | 0"},  // nor a cheaper class
           Row{50, "$370,000", "", "$10,000 | CQH | 500000 | 0"},  // dear ones may
           Row{91, "$200,000", "", "$20,000 | CSH | 300000 | 0"},
           Row{55, "$200,000", Set("BrandSold(2)", "4"), "$20,000 | CSH | 300000 | 0"},
           Row{55, "$200,000", Set("BrandSold(2)", "5"), "$200,000 | CU | 100000 | 0"},
           Row{55, "$200,000", Set("BrandSold(1)", "5"), "$20,000 | CSH | 300000 | 0"},
           Row{55, "$280,000", Set("BrandSold(3)", "5"), "$280,000 | CU | 100000 | 0"},
       }) {
    EXPECT_EQ(Told(Set("SkillLevel", "1") + NoLots() + Lot(lot, "CU", "100000") + Cash("$0", cash) +
                   sold + ComputerPlays() + CashTagValue(lot)),
              expected)
        << "lot " << lot << " " << cash << " " << sold;
  }
}

TEST(ComputerTurn, CashDecidesWhichLotsItLooksFor) {
  const std::string condemned = Lot(12, "D", "5000");
  const std::string open = Lot(45, "O", "10000");
  struct Row {
    const char* rule;
    std::string lots;
    int lot;
    const char* cash;
    const char* expected;
  };
  for (const auto& [rule, lots, lot, cash, expected] : {
           Row{"ends", condemned, 12, "$11,999", "$11,999 | D | 5000 | 0"},
           Row{"goes on", condemned, 12, "$12,000", "$7,000 | CU | 5000 | 0"},
           Row{"own lots", Lot(12, "CU", "10000"), 12, "$49,999", "$49,999 | CU | 10000 | 0"},
           Row{"own lots", Lot(12, "CU", "10000"), 12, "$50,000", "$3,000 | CBH | 60000 | -1"},
           Row{"open lots", open, 45, "$49,999", "$49,999 | O | 10000 | 0"},
           Row{"open lots", open, 45, "$50,000", "$2,000 | CQH | 50000 | -1"},
           Row{"cash is the price", Lot(45, "O", "60000"), 45, "$60,000",
               "$60,000 | O | 60000 | 0"},
           Row{"cash is above it", Lot(45, "O", "60000"), 45, "$60,001", "$1 | CU | 60000 | 0"},
           Row{"stays bare", Lot(45, "O", "60000"), 45, "$160,000", "$100,000 | CU | 60000 | 0"},
           // On this level a purchase leaves the net worth in hand, and the class goes by that.
           Row{"easy worth",
               Set("SkillLevel", "0") + Set("GFM.CNW.Caption", "\"$10,000,000\"") +
                   Lot(45, "O", "50000"),
               45, "$60,000", "-$515,000 | CHH | 575000 | 0"},
       }) {
    EXPECT_EQ(Told(Set("SkillLevel", "1") + NoLots() + lots + Cash("$0", cash) + ComputerPlays() +
                   CashTagValue(lot)),
              expected)
        << rule << " " << cash;
  }
}

TEST(ComputerTurn, SellsAllBareLotsWhenShortOfCash) {
  struct Row {
    int bareLots;
    const char* value;
    const char* cash;
    const char* expected;  // cash, tag and value of a bare lot, bank, tag of the condemned lot
  };
  for (const auto& [bareLots, value, cash, expected] : {
           Row{7, "10000", "$124,999", "$194,999 | U | 7500 | 1070000 | D"},
           Row{7, "10000", "$125,000", "$4,000 | CHH | 80000 | 1000000 | D"},
           Row{6, "10000", "$124,999", "$3,999 | CHH | 80000 | 1000000 | D"},
           // A quarter of the last lot sold is all that it looks at before it goes on.
           Row{7, "47999", "$10,000", "$345,993 | U | 35999.25 | 1335993 | D"},
           Row{7, "48000", "$10,000", "$256,000 | U | 36000 | 1336000 | CHH"},
       }) {
    std::string script = Set("SkillLevel", "1") + NoLots() + Lot(12, "D", "12000");
    for (int lot = 21; lot < 21 + bareLots; ++lot) script += Lot(lot, "CU", value);
    EXPECT_EQ(Told(script + Cash("$0", cash) + ComputerPlays() +
                   Gets({"GFM.CCredit.Caption", "GFM.Image1(21).Tag", "LotValue(21)", "BankCash",
                         "GFM.Image1(12).Tag"})),
              expected)
        << bareLots << " lots of " << value << ", " << cash;
  }
}

TEST(ComputerTurn, StandsStillWhileAMallIsForced) {
  struct Row {
    const char* mallNext;
    const char* strikeMeter;
    const char* tag;
  };
  for (const auto& [mallNext, strikeMeter, tag] :
       {Row{"1", "7", "CU"}, Row{"1", "6", "CHH"}, Row{"0", "7", "CHH"}}) {
    EXPECT_EQ(Told(Set("MallNext", mallNext) + Set("StrikeMeter", strikeMeter) +
                   Lot(99, "CU", "10000") + ComputerPlays() + Gets({"GFM.Image1(99).Tag"})),
              tag);
  }
}

TEST(ComputerTurn, ScansGoByTheLotThatTheBoardDrew) {
  const std::string twoOwn = NoLots() + Lot(20, "CU", "100000") + Lot(70, "CU", "100000");
  const std::string twoOpen =
      NoLots() + Lot(0, "O", "10000") + Lot(30, "O", "100000") + Lot(60, "O", "100000");
  struct Row {
    const char* rule;
    std::string lots;
    int from;
    const char* cash;
    const char* tags;  // of lots 0, 20, 30, 60 and 70
  };
  for (const auto& [rule, lots, from, cash, tags] : {
           Row{"upward", twoOwn, 48, "$700,000", "PU | CHH | U | U | CU"},
           Row{"downward", twoOwn, 49, "$700,000", "PU | CU | U | U | CHH"},
           Row{"upward behind the last lot", twoOwn, 99, "$700,000", "PU | CHH | U | U | CU"},
           Row{"open lots upward from the drawn one", twoOpen, 40, "$800,000",
               "O | U | O | CHH | U"},
           Row{"open lots upward from lot 1 next, never lot 0", twoOpen, 40, "$2,000,000",
               "O | U | CHH | CHH | U"},
           Row{"no open lot above ends the turn", NoLots() + Lot(30, "O", "100000"), 40, "$800,000",
               "PU | U | O | U | U"},
           Row{"open lots behind the last lot", twoOpen, 99, "$800,000", "O | U | CHH | O | U"},
           Row{"condemned before open", twoOpen + Lot(20, "D", "100000"), 40, "$800,000",
               "O | CHH | O | O | U"},
           Row{"first in reach, not the cheapest", twoOwn + Lot(20, "CU", "700000"), 40, "$700,000",
               "PU | CU | U | U | CHH"},
       }) {
    EXPECT_EQ(Told(Set("SkillLevel", "1") + lots + Cash("$0", cash) + ComputerPlays(from) +
                   Gets({"GFM.Image1(0).Tag", "GFM.Image1(20).Tag", "GFM.Image1(30).Tag",
                         "GFM.Image1(60).Tag", "GFM.Image1(70).Tag"})),
              tags)
        << rule;
  }
}

TEST(ComputerTurn, FourSelectionsAtMost) {
  std::string script = Set("SkillLevel", "1") + NoLots() + Cash("$0", "$9,000,000");
  for (const int lot : {11, 13, 15, 17, 31}) script += Lot(lot, "O", "10000");
  EXPECT_EQ(Told(script + ComputerPlays(20) +
                 Gets({"GFM.Image1(31).Tag", "GFM.Image1(11).Tag", "GFM.Image1(13).Tag",
                       "GFM.Image1(15).Tag", "GFM.Image1(17).Tag", "GFM.CNOH.Caption", "OpenLots",
                       "ICF.HILTON.Tag"})),
            "CHH | CHH | CHH | CHH | O |  4 | 46 |  4");
}

TEST(ComputerTurn, PlayerWatchesIt) {
  EXPECT_EQ(NewsDuring(Set("SkillLevel", "1") + NoLots() + Lot(55, "CU", "100000") +
                       Cash("$0", "$500,000") + ComputerPlays()),
            Strings{"Computer Purchased a Best Western on lot  55"});
  const std::string staysBare =
      NoLots() + Lot(45, "O", "60000") + Cash("$0", "$60,001") + Set("SkillLevel", "1");
  EXPECT_EQ(NewsDuring(staysBare + ComputerPlays()),
            Strings{"Computer Purchased a lot on Lot # 45"});
  // It pointed at the lot with the fast blink, and nothing of it is left.
  const Json state =
      Play("click GST.CMDSTART\n" + staysBare + ComputerPlays() + "state\n").back()["state"];
  EXPECT_EQ(state["pointer"], 1);
  EXPECT_EQ(state["variables"]["FastBlink"], 0);
  const Json& controls = state["controls"];
  EXPECT_EQ(controls["GFM.Timer1"]["Interval"], 150);
  EXPECT_EQ(controls["GFM.Timer1"]["Enabled"], 0);
  EXPECT_EQ(controls["GFM.CUP"]["Visible"], 0);
  EXPECT_EQ(controls["GFM.CMDGO"]["Visible"], -1);
  for (int light = 1; light <= 6; ++light) {
    EXPECT_EQ(controls["GFM.LITE(" + std::to_string(light) + ")"]["Visible"], 0);
  }
}

TEST(ComputerRestaurant, StandsAmongOwnHotels) {
  struct Row {
    const char* rule;
    int lot;
    const char* level;
    const char* cash;
    std::vector<std::pair<int, const char*>> around;  // distance and tag
    const char* tag;
  };
  using Around = std::vector<std::pair<int, const char*>>;
  const Around two = {{-1, "CSH"}, {1, "CHH"}};
  for (const auto& [rule, lot, level, cash, around, tag] : {
           Row{"two hotels", 55, "1", "$500,000", two, "CDR"},
           Row{"cash below the cost", 55, "1", "$499,999", two, "CBH"},
           Row{"one hotel", 55, "1", "$500,000", Around{{10, "CSH"}}, "CBH"},
           Row{"a bare lot is no hotel", 55, "1", "$500,000", Around{{-10, "CU"}, {10, "CSH"}},
               "CBH"},
           Row{"a restaurant near", 55, "1", "$500,000",
               Around{{-1, "CSH"}, {1, "CSH"}, {10, "CDR"}}, "CBH"},
           Row{"easy", 55, "0", "$900,000", two, "CBH"},
           Row{"two of the player", 55, "1", "$500,000",
               Around{{-1, "CSH"}, {1, "CSH"}, {10, "PSH"}, {-10, "PDH"}}, "CDR"},
           Row{"two of the player", 55, "2", "$500,000",
               Around{{-1, "CSH"}, {1, "CSH"}, {10, "PSH"}, {-10, "PDH"}}, "CRH"},
           Row{"one of the player", 55, "3", "$500,000",
               Around{{-1, "CSH"}, {1, "CSH"}, {10, "PSH"}}, "CDR"},
           Row{"edge, next row's end counts", 20, "1", "$500,000", two, "CBH"},
           Row{"edge", 39, "2", "$500,000", two, "CDR"},
           Row{"refused for three Qualitys", 55, "1", "$500,000",
               Around{{-1, "CSH"}, {1, "CSH"}, {10, "CSH"}}, "CBH"},
       }) {
    std::string script =
        NoLots() + Set("SkillLevel", level) + Set("BrandSold(3)", "5") + Lot(lot, "CU", "100000");
    // A neighbour's value is beyond the cash, so that none is chosen before the lot.
    for (const auto& [distance, neighbour] : around) {
      script += Lot(lot + distance, neighbour, "1000000");
    }
    EXPECT_EQ(Told(script + Cash("$0", cash) + ComputerPlays() +
                   Gets({"GFM.Image1(" + std::to_string(lot) + ").Tag"})),
              tag)
        << rule << ", level " << level;
  }
}

TEST(ComputerRestaurant, CostsFiveTimesTheLotAndMovesNoNeighbour) {
  // The hotel before it on lot 20 left a remainder of 7,000, which the restaurant's lot gains.
  const std::string script = Set("SkillLevel", "1") + NoLots() + Lot(21, "CU", "10000") +
                             Lot(55, "CU", "100000") + Lot(54, "CSH", "300000") +
                             Lot(56, "CSH", "300000") + Cash("$0", "$1,000,000") + ComputerPlays();
  EXPECT_EQ(Told(script + CashTagValue(55) +
                 Gets({"LotValue(54)", "LotValue(56)", "LotValue(45)", "RestCount", "ICF.CREST.Tag",
                       "GFM.Image1(55).Picture"})),
            "$415,000 | CDR | 607000 | -1 | 300000 | 300000 | 75000 | 1 |  1 | ICF.CREST");
}

}  // namespace
}  // namespace zelvo::test
