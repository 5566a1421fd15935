#include <gtest/gtest.h>

#include "tests/position.h"

namespace zelvo::test {
namespace {

/// The Normal level, and nobody's lot where the computer begins.
std::string NoLots() { return Level(1) + Lot(99, "U", "50000"); }

/// The computer's turn on a calm board, with its scans starting behind a lot without an owner.
std::string ComputerPlays(int from = 40) {
  return Calm() + Draws({{50, from}, {50, 60}}) + endTurn;
}

/// The computer's turn with so much cash, and what it then has and has made of a lot.
std::string Makes(int lot, const char* cash, const char* tag = "CU", const char* value = "100000") {
  return Lot(lot, tag, value) + Cash("$0", cash) + ComputerPlays() + "get GFM.CCredit.Caption\n" +
         TagAndValue(lot) + Get("LotInsured(" + std::to_string(lot) + ")");
}

TEST(ComputerTurn, LevelSetsPriceAndPremiumOfTheDearestClassInReach) {
  ExpectTold("",
             {{Level(0), "$120,000 | CBH | 850000 | -1"},
              {Level(1), "$250,000 | CHH | 800000 | -1"},
              {Level(2), "$360,000 | CHH | 800000 | -1"},
              {Level(3), "$470,000 | CHH | 800000 | -1"}},
             Makes(99, "$900,000"));
}

TEST(ComputerTurn, CashMustExceedTheCostAndThePremium) {
  ExpectTold(NoLots(), {{Makes(55, "$650,001"), "$1 | CHH | 800000 | -1"},
                        // Cash for the premium to the dollar is too little.
                        {Makes(55, "$650,000"), "$20,000 | CHH | 800000 | 0"},
                        {Makes(55, "$630,001"), "$1 | CHH | 800000 | 0"},
                        {Makes(55, "$630,000"), "$70,000 | CRH | 700000 | -1"},
                        {Makes(55, "$540,000"), "$70,000 | CBH | 600000 | -1"},
                        {Makes(55, "$450,000"), "$70,000 | CQH | 500000 | -1"},
                        {Makes(55, "$360,000"), "$70,000 | CTH | 400000 | -1"},
                        {Makes(55, "$270,000"), "$70,000 | CSH | 300000 | -1"},
                        {Makes(55, "$180,000"), "$180,000 | CU | 100000 | 0"}});
}

TEST(ComputerTurn, ZoningBoardKnowsEdgesAndTheHotelsThatThePlayerSold) {
  ExpectTold(NoLots(),
             {{Makes(50, "$200,000"), "$200,000 | CU | 100000 | 0"},
              {Makes(59, "$300,000"), "$300,000 | CU | 100000 | 0"},  // nor a cheaper class
              {Makes(50, "$370,000"), "$10,000 | CQH | 500000 | 0"},  // dear ones may
              {Makes(91, "$200,000"), "$20,000 | CSH | 300000 | 0"},
              {Set("BrandSold(2)", "4") + Makes(55, "$200,000"), "$20,000 | CSH | 300000 | 0"},
              {Set("BrandSold(2)", "5") + Makes(55, "$200,000"), "$200,000 | CU | 100000 | 0"},
              {Set("BrandSold(1)", "5") + Makes(55, "$200,000"), "$20,000 | CSH | 300000 | 0"},
              {Set("BrandSold(3)", "5") + Makes(55, "$280,000"), "$280,000 | CU | 100000 | 0"}});
}

TEST(ComputerTurn, CashDecidesWhichLotsItLooksFor) {
  ExpectTold(
      NoLots(),
      {{Makes(12, "$11,999", "D", "5000"), "$11,999 | D | 5000 | 0"},
       {Makes(12, "$12,000", "D", "5000"), "$7,000 | CU | 5000 | 0"},
       {Makes(12, "$49,999", "CU", "10000"), "$49,999 | CU | 10000 | 0"},
       {Makes(12, "$50,000", "CU", "10000"), "$3,000 | CBH | 60000 | -1"},
       {Makes(45, "$49,999", "O", "10000"), "$49,999 | O | 10000 | 0"},
       {Makes(45, "$50,000", "O", "10000"), "$2,000 | CQH | 50000 | -1"},
       {Makes(45, "$60,000", "O", "60000"), "$60,000 | O | 60000 | 0"},
       {Makes(45, "$60,001", "O", "60000"), "$1 | CU | 60000 | 0"},
       {Makes(45, "$160,000", "O", "60000"), "$100,000 | CU | 60000 | 0"},
       // On the Easy level a purchase leaves the net worth in hand; the class goes by that.
       {Level(0) + Set("GFM.CNW.Caption", "\"$10,000,000\"") + Makes(45, "$60,000", "O", "50000"),
        "-$515,000 | CHH | 575000 | 0"}});
}

TEST(ComputerTurn, SellsAllBareLotsWhenShortOfCash) {
  const auto bareLots = [](int count, const char* value, const char* cash) {
    std::string script;
    for (int lot = 21; lot < 21 + count; ++lot) script += Lot(lot, "CU", value);
    return script + Cash("$0", cash);
  };
  ExpectTold(NoLots() + Lot(12, "D", "12000"),
             {{bareLots(7, "10000", "$124,999"), "$194,999 | U | 7500 | 1070000 | D"},
              {bareLots(7, "10000", "$125,000"), "$4,000 | CHH | 80000 | 1000000 | D"},
              {bareLots(6, "10000", "$124,999"), "$3,999 | CHH | 80000 | 1000000 | D"},
              // A quarter of the last lot sold is all that it looks at before it goes on.
              {bareLots(7, "47999", "$10,000"), "$345,993 | U | 35999.25 | 1335993 | D"},
              {bareLots(7, "48000", "$10,000"), "$256,000 | U | 36000 | 1336000 | CHH"}},
             ComputerPlays() + Get("GFM.CCredit.Caption GFM.Image1(21).Tag LotValue(21) BankCash "
                                   "GFM.Image1(12).Tag"));
}

TEST(ComputerTurn, StandsStillWhileAMallIsForced) {
  ExpectTold(Lot(99, "CU", "10000"),
             {{Set("MallNext", "1") + Set("StrikeMeter", "7"), "CU"},
              {Set("MallNext", "1") + Set("StrikeMeter", "6"), "CHH"},
              {Set("MallNext", "0") + Set("StrikeMeter", "7"), "CHH"}},
             ComputerPlays() + TagOf(99));
}

TEST(ComputerTurn, ScansGoByTheLotThatTheBoardDrew) {
  const auto own = [](int from, const char* value = "100000") {
    return Lot(20, "CU", value) + Lot(70, "CU", "100000") + Cash("$0", "$700,000") +
           ComputerPlays(from);
  };
  const auto open = [](int from, const char* cash = "$800,000", const std::string& other = "") {
    return Lot(0, "O", "10000") + Lot(30, "O", "100000") + Lot(60, "O", "100000") + other +
           Cash("$0", cash) + ComputerPlays(from);
  };
  ExpectTold(NoLots(),
             {{own(48), "PU | CHH | U | U | CU"},            // upward
              {own(49), "PU | CU | U | U | CHH"},            // downward
              {own(99), "PU | CHH | U | U | CU"},            // upward behind the last lot
              {own(40, "700000"), "PU | CU | U | U | CHH"},  // the first in reach
              {open(40), "O | U | O | CHH | U"},             // upward from the drawn one
              {open(99), "O | U | CHH | O | U"},
              {open(70), "O | U | O | O | U"},  // none above ends the turn
              // The next selection begins at lot 1, never at lot 0.
              {open(40, "$2,000,000"), "O | U | CHH | CHH | U"},
              {open(40, "$800,000", Lot(20, "D", "100000")), "O | CHH | O | O | U"}},
             TagOf(0) + TagOf(20) + TagOf(30) + TagOf(60) + TagOf(70));
}

TEST(ComputerTurn, FourSelectionsAtMost) {
  std::string script = NoLots() + Cash("$0", "$9,000,000");
  for (const int lot : {11, 13, 15, 17, 31}) script += Lot(lot, "O", "10000");
  EXPECT_EQ(Told(script + ComputerPlays(20) +
                 Get("GFM.Image1(31).Tag GFM.Image1(11).Tag GFM.Image1(15).Tag GFM.Image1(17).Tag "
                     "GFM.CNOH.Caption OpenLots ICF.HILTON.Tag")),
            "CHH | CHH | CHH | O |  4 | 46 |  4");
}

TEST(ComputerTurn, PlayerWatchesIt) {
  EXPECT_EQ(
      NewsDuring(NoLots() + Lot(55, "CU", "100000") + Cash("$0", "$500,000") + ComputerPlays()),
      std::set<std::string>{"Computer Purchased a Best Western on lot  55"});
  const std::string staysBare =
      NoLots() + Lot(45, "O", "60000") + Cash("$0", "$60,001") + ComputerPlays();
  EXPECT_EQ(NewsDuring(staysBare), std::set<std::string>{"Computer Purchased a lot on Lot # 45"});
  // It pointed at the lot with the fast blink, and nothing of it is left.
  const Json state = Last(staysBare + "state\n")["state"];
  EXPECT_EQ(state["pointer"], 1);
  EXPECT_EQ(Told(staysBare + Get("FastBlink GFM.Timer1.Interval GFM.Timer1.Enabled "
                                 "GFM.CUP.Visible GFM.CMDGO.Visible GFM.LITE(1).Visible "
                                 "GFM.LITE(6).Visible")),
            "0 | 150 | 0 | 0 | -1 | 0 | 0");
}

TEST(ComputerRestaurant, StandsAmongOwnHotels) {
  using Around = std::vector<std::pair<int, const char*>>;  // distance and tag
  const auto among = [](const Around& around, int level, int lot = 55,
                        const char* cash = "$500,000") {
    std::string script = Level(level) + Lot(lot, "CU", "100000");
    // A neighbour's value is beyond the cash, so that none is chosen before the lot.
    for (const auto& [distance, tag] : around) script += Lot(lot + distance, tag, "1000000");
    return script + Cash("$0", cash) + ComputerPlays() + TagOf(lot);
  };
  const Around two = {{-1, "CSH"}, {1, "CHH"}};
  const Around rival = {{-1, "CSH"}, {1, "CSH"}, {10, "PSH"}};
  const Around rivals = {{-1, "CSH"}, {1, "CSH"}, {10, "PSH"}, {-10, "PDH"}};
  ExpectTold(NoLots() + Set("BrandSold(3)", "5"),
             {{among(two, 1), "CDR"},
              {among(two, 1, 55, "$499,999"), "CBH"},
              {among({{-10, "CU"}, {10, "CSH"}}, 1), "CBH"},
              {among({{-1, "CSH"}, {1, "CSH"}, {10, "CDR"}}, 1), "CBH"},
              {among(two, 0, 55, "$900,000"), "CBH"},
              {among(rivals, 1), "CDR"},
              {among(rivals, 2), "CRH"},
              {among(rival, 3), "CDR"},
              {among(two, 1, 20), "CBH"},  // at the edge; the end of the row before counts
              {among(two, 2, 39), "CDR"},
              // The zoning board takes the three hotels around for a class that sold too often.
              {among({{-1, "CSH"}, {1, "CSH"}, {10, "CSH"}}, 1), "CBH"}});
}

TEST(ComputerRestaurant, CostsFiveTimesTheLotAndMovesNoNeighbour) {
  // The hotel before it on lot 21 left a remainder of 7,000, which the restaurant's lot gains.
  const std::string script =
      NoLots() + Lot(21, "CU", "10000") + Lot(54, "CSH", "300000") + Lot(56, "CSH", "300000");
  EXPECT_EQ(Told(script + Makes(55, "$1,000,000") +
                 Get("LotValue(54) LotValue(56) LotValue(45) RestCount ICF.CREST.Tag "
                     "GFM.Image1(55).Picture")),
            "$415,000 | CDR | 607000 | -1 | 300000 | 300000 | 75000 | 1 |  1 | ICF.CREST");
}

}  // namespace
}  // namespace zelvo::test
