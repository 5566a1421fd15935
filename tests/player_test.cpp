#include <gtest/gtest.h>

#include "tests/position.h"

namespace zelvo::test {
namespace {

/// Takes lot 45 in hand as the player's bare lot and opens the choice.
const std::string choose = Lot(45, "PU", "100000") + "click GFM.Image1(45)\nclick GFM.CMDBUILD\n";

/// Chooses a class for the lot in hand and asks for the building.
std::string Build(const std::string& icon) { return "click GFM." + icon + "\nclick GFM.BUILDIT\n"; }

TEST(Inspect, TheButtonsGoByWhatStandsOnTheLot) {
  // Tag; which of buy, sell, sell building, select and build are shown, with the choice open and
  // everything else shown before the click; a picture that is not the tag's.
  for (const std::string& row :
       Pieces("CU ----- | CBH ----- | CDR ----- | U ----g | O b---g | D b---g | PU -s-cg |"
              "PSH -sx-g | PDH -sx-g | K ----g | G ----g | XC ----g | MAP ----g | MAX ----g |"
              "PBH --x-g ICF.ELEC | O ----g ICF.FIRE | O ----g ICF.PLANE")) {
    std::istringstream words(row);
    std::string tag, expected, picture, shown;
    words >> tag >> expected >> picture;
    std::string script = Lot(45, tag, "50000");
    if (!picture.empty()) script += Set("GFM.Image1(45).Picture", picture);
    const char* buttons[] = {"CMDBUY", "CMDSELL", "CMDSHOT", "CMDBUILD", "BUILDIT"};
    for (const std::string button : buttons) script += Set("GFM." + button + ".Visible", "-1");
    script += "click GFM.Image1(45)\n";
    for (const std::string button : buttons) script += "get GFM." + button + ".Visible\n";
    for (const Json& flag : Values(script)) shown += flag == -1 ? "bsxcg"[shown.size()] : '-';
    EXPECT_EQ(shown, expected) << row;
  }
}

TEST(Inspect, ThreeLinesTellOfTheLot) {
  EXPECT_EQ(Told("click GFM.Image1(0)\nget GFM.PSHOW.Caption\n" + Lot(7, "PBH", "1234567.5", true) +
                 Set("GFM.Image1(7).Tag", "\" PBH \"") + "click GFM.Image1(7)\n" +
                 Get("GFM.PSHOW.Caption CurLot CurTag")),
            "Property #  0-PU - Not Insured\n\rProperty Value is $50,000\n\r"
            "Taxes are $2,500 per year | Property #  7-PBH - Insured\n\r"
            "Property Value is $1,234,568\n\rTaxes are $61,728 per year | 7 | PBH");
}

TEST(Classes, EachIsQuotedBuiltAndSold) {
  for (const auto& [name, level, title, multiple, premium, owned, tag] :
       {std::tuple{"SUPER", "0", "Super Saver", 2, "$20,000", "Supers owned", "PSH"},
        {"THRIFTY", "1", "Thrifty Saver", 3, "$60,000", "Thriftys owned", "PTH"},
        {"QUALITY", "2", "Quality Inn", 4, "$100,000", "Quality Inns owned", "PQH"},
        {"BEST", "3", "Best Western", 5, "$150,000", "Best Westerns owned", "PBH"},
        {"RAMADA", "0", "Ramada Inn", 6, "$60,000", "Ramadas owned", "PRH"},
        {"HILTON", "1", "Hilton", 7, "$140,000", "Hiltons Owned", "PHH"},
        {"Rest", "0", "Restaurant", 3, "$30,000", "Restaurants owned", "PDH"},
        {"Rest", "1", "Restaurant", 5, "$100,000", "Restaurants owned", "PDH"},
        {"Rest", "2", "Restaurant", 6, "$150,000", "Restaurants owned", "PDH"},
        {"Rest", "3", "Restaurant", 7, "$210,000", "Restaurants owned", "PDH"}}) {
    const std::string icon = std::string("GFM.") + name;
    const std::string brand = "BrandSold(" + std::to_string(multiple - 1) + ")";
    const bool hotel = icon != "GFM.Rest";
    EXPECT_EQ(Told(choose + Set("SkillLevel", level) + "click " + icon + "\n" +
                   Get("GFM.PSHOW.Caption GFM.LSHOW.Caption") +
                   "click GFM.BUILDIT\nget HS.Label1(3).Caption\nclick HS.CMDAN1(1)\n" +
                   Get("GFM.Image1(45).Tag GFM.Image1(45).Picture " + icon + ".Tag") +
                   "click GFM.Image1(45)\nclick GFM.CMDSHOT\n" +
                   Get("GFM.Image1(45).Tag LotValue(45) " + icon + ".Tag " + (hotel ? brand : ""))),
              std::string("      ") + title + "\n\rCost to Build = $" + std::to_string(multiple) +
                  "00,000\n\rYearly Taxes  = $" + std::to_string(4 * multiple) + ",000 | 0 " +
                  owned + " | Insurance Cost " + premium + " | " + tag + " | " + icon +
                  " |  1 | PU | " + std::to_string(40'000 * (multiple + 1)) +
                  (hotel ? " |  0 | 1" : " |  1"));
  }
  EXPECT_EQ(Told("set Word \"x\"\nclick GFM.BEST\n" + Get("Word BuildCost GFM.LSHOW.Caption")),
            "x | 0 | ")
      << "the choice is not open";
}

/// What a deal about lot 45 moves.
const std::string deal =
    Get("GFM.Image1(45).Tag GFM.Image1(45).Picture GFM.PCredit.Caption GFM.PNW.Caption "
        "GFM.PNOH.Caption LotValue(45) LotInsured(45) BankCash");

TEST(Trade, BuyingAndSelling) {
  const std::string buy =
      Lot(45, "O", "75000") + Set("OpenLots", "3") + "click GFM.Image1(45)\nclick GFM.CMDBUY\n";
  EXPECT_EQ(Told(Cash("$75,000", "$0") + buy + deal + Get("OpenLots FreshLot GFM.CMDBUY.Visible")),
            "PU | ICF.PLAYER | $0 | $75,000 |  2 | 75000 | 0 | 1000000 | 2 | 45 | 0");
  // Sold at once it brings half, and the bank has its share of the whole.
  EXPECT_EQ(Told(buy + "click GFM.Image1(45)\nclick GFM.CMDSELL\n" + deal + Get("Delta")),
            "U | ICF.LUND | $962,500 | $0 |  2 | 75000 | 0 | 1016500 | 37500");
  const std::string best =
      Lot(45, "PBH", "600001", true) + Set("GFM.BEST.Tag", "\" 1\"") + "click GFM.Image1(45)\n";
  ExpectTold(best,
             {{"click GFM.CMDSELL\n",
               "U | ICF.LUND | $1,600,001 | -$600,001 |  1 | 600001 | 0 | 1132000.22 |  1 | 0"},
              {"click GFM.CMDSHOT\n",
               "PU | ICF.PLAYER | $1,360,001 | -$360,001 |  1 | 240000.4 | 0 | 1000000 |  0 | 1"}},
             deal + Get("GFM.BEST.Tag BrandSold(4)"));
}

TEST(Loan, APurchaseThatFallsShortLeadsThroughTheBankToTheLot) {
  const std::string shortOf =
      Lot(45, "O", "75000") + Cash("$74,999", "$0") + "click GFM.Image1(45)\nclick GFM.CMDBUY\n";
  EXPECT_EQ(Last("set PlayerLoan 450000\n" + shortOf)["waiting"], "message box");
  EXPECT_EQ(Last("set PlayerLoan 450000.0001\n" + shortOf)["waiting"], "GFM");
  const std::string look = Get("GFM.Image1(45).Tag GFM.PCredit.Caption PlayerLoan BankCash");
  EXPECT_EQ(Told(shortOf + "answer no\n" + look), "O | $74,999 | 0 | 1000000");
  EXPECT_EQ(Told(shortOf + "answer yes\nclick BK.CMDCANCEL\nanswer yes\nclick BK.OPT1(1)\n" +
                 "click BK.CMDOK\n" + look),
            "PU | $199,999 | 200000 | 1000000");
}

TEST(Loan, ABuildingThatFallsShortKeepsItsClassThroughTheBank) {
  const std::string loan = choose + Cash("$499,999", "$0") + Build("BEST") +
                           "answer yes\nclick BK.OPT1(0)\nclick BK.CMDOK\n";
  EXPECT_EQ(Told(loan + "click HS.CMDAN1(1)\n" + Get("GFM.Image1(45).Tag GFM.PCredit.Caption")),
            "PBH | $99,999");
  // The loan stays when the zoning board then refuses the class.
  EXPECT_EQ(Told("set BrandSold(4) 5\n" + loan + "close RB\n" + Get("PlayerLoan Word")),
            "100000 | BEST");
}

TEST(Bank, TheShowEndsAtACounterThatKnowsTheCustomer) {
  ExpectTold("",
             {{"set PlayerLoan 499000\n", "I think we can arrange that | -1 | -1 | 0"},
              {"set PlayerLoan 499000.0001\n",
               "NO Loan, You have borrowed enough ! Beat it ! | 0 | -1 | 0"}},
             "click GFM.Label8\n" +
                 Get("BK.Label1.Caption BK.CMDOK.Enabled BK.CMDCANCEL.Enabled BK.Timer1.Enabled"));
}

TEST(Bank, AnOptionIsTheAmountAndOneIsNeeded) {
  EXPECT_EQ(Last("click GFM.Label8\nclick BK.CMDOK\n")["waiting"], "BK");
  EXPECT_EQ(
      Told("set AssessRate 0.05\nset PlayerLoan 499000\nclick GFM.Label8\nclick BK.OPT1(3)\n" +
           Get("BK.Label1.Caption BK.Label2.Caption") + "click BK.CMDOK\n" +
           Get("GFM.PCredit.Caption PlayerLoan LoanAmount")),
      "Current interest rate is  .05% | Current loan : $499,000 | $1,400,000 | 899000 | 0");
  // An option clicked during the show counts; the buttons are shut until it is over.
  EXPECT_EQ(Told("later click BK.OPT1(2)\nlater click BK.CMDOK\nlater click BK.CMDCANCEL\n"
                 "click GFM.Label8\nget PlayerLoan\nclick BK.CMDOK\nget PlayerLoan\n"),
            "0 | 300000");
  // The next visit starts without a choice.
  EXPECT_EQ(Told("click GFM.Label8\nclick BK.OPT1(2)\nclick BK.CMDCANCEL\nclick GFM.Label8\n" +
                 Get("LoanAmount BK.OPT1(2).Value")),
            "0 | 0");
}

TEST(Build, WithInsuranceAndWithout) {
  const std::string best = choose + Set("SkillLevel", "1") + Build("BEST");
  EXPECT_EQ(Told(best + Get("HS.Label1(1).Caption HS.Label1(2).Caption HS.Label1(5).Caption")),
            "Total Properties owned :  1 | 0 Best Westerns owned | Total: $600,000");
  ExpectTold(
      best,
      {{"click HS.CMDAN1(0)\n",
        "PBH | GFM.BEST | $400,000 | $600,000 |  2 | 700000 | -1 | 1000000 |  1 |  | 0 | 0 | 0 | "
        "0"},
       {"set LotInsured(45) -1\nclick HS.CMDAN1(1)\n",
        "PBH | GFM.BEST | $500,000 | $500,000 |  2 | 600000 | 0 | 1000000 |  1 |  | 0 | 0 | 0 | 0"},
       {"set LotInsured(45) -1\nclick HS.CMDCANCEL\n",
        "PU | ICF.PLAYER | $1,000,000 | $0 |  1 | 100000 | -1 | 1000000 | 0 |  | 0 | 1 | 0 | 0"}},
      deal +
          Get("GFM.BEST.Tag Word Refused CancelledBuilds GFM.BUILDIT.Visible GFM.CMDSELL.Visible"));
  ExpectTold(choose,
             {{Cash("$220,000", "$0"), "-1 | "},
              {Cash("$219,999", "$0"), "0 | Not enough money for insurance"}},
             Build("SUPER") + Get("HS.CMDAN1(0).Visible HS.Label1(4).Caption"));
}

TEST(Build, ARestaurantRaisesItsNeighboursByATenthAndPaysTheirOwners) {
  // 100,000 and three times as much for the restaurant: a tenth of 400,000 to each neighbour.
  EXPECT_EQ(Told(choose + Lot(44, "PU", "75000") + Lot(55, "CU", "75000") +
                 Lot(35, "MAP", "75000") + Build("Rest") + "click HS.CMDAN1(1)\n" +
                 Get("LotValue(44) LotValue(46) LotValue(35) LotValue(55) GFM.PCredit.Caption "
                     "GFM.CCredit.Caption Delta RestCount GFM.PNW.Caption Word")),
            "115000 | 90000 | 115000 | 115000 | $705,750 | $1,005,750 | 40000 | 1 | $565,000 | ");
}

TEST(Build, NothingHappensWithoutAChoice) {
  // A choice is forgotten when the choice opens anew, but follows to another lot.
  ExpectTold(choose,
             {{"set BuildCost 5\nclick GFM.BUILDIT\n", "$1,000,000 | PU | U | -1"},
              {"click GFM.BEST\nclick GFM.Image1(45)\nclick GFM.CMDBUILD\nclick GFM.BUILDIT\n",
               "$1,000,000 | PU | U | -1"},
              {"click GFM.BEST\nclick GFM.Image1(46)\nclick GFM.BUILDIT\nclick HS.CMDAN1(1)\n",
               "$500,000 | PU | PBH | 0"}},
             Get("GFM.PCredit.Caption GFM.Image1(45).Tag GFM.Image1(46).Tag GFM.BUILDIT.Visible"));
}

TEST(Zoning, CheapHotelsAreRefusedOnTheEdges) {
  const auto plan = [](int lot) {
    return Lot(lot, "PU", "50000") + "click GFM.Image1(" + std::to_string(lot) +
           ")\nclick GFM.CMDBUILD\n" + Build("SUPER");
  };
  for (int lot = 0; lot < 100; ++lot) {
    const bool edge = lot != 0 && (lot % 10 == 0 || lot % 10 == 9);
    EXPECT_EQ(Last(plan(lot))["waiting"], edge ? "RB" : "HS") << lot;
  }
  // The choice stays open; a second click brings the same answer.
  EXPECT_EQ(Told(plan(10) + "close RB\n" +
                 Get("GFM.BUILDIT.Visible Word Refused Ruling GFM.PCredit.Caption") +
                 "click GFM.BUILDIT\nget RB.Label2.Caption\n"),
            "-1 | SUPER | 0 | 0 | $1,000,000 | The zoing board has met and decided, You can't "
            "build a stinkin SUPER hotel on this fine "
            "property ! Slum lords go elseware.");
}

TEST(Zoning, TheSalesRuleAndTheRestaurantRule) {
  // The class, how many hotels of a brand were sold, the properties of each side and the
  // restaurants; then where the game waits.
  for (const std::string& row :
       Pieces("SUPER 1 4 1 1 0 HS | SUPER 1 5 1 1 0 RB | THRIFTY 2 5 1 1 0 RB | "
              "QUALITY 3 5 1 1 0 RB | BEST 4 5 1 1 0 RB | RAMADA 5 5 1 1 0 RB | "
              "HILTON 6 5 1 1 0 RB | HILTON 5 5 1 1 0 HS | Rest 6 9 1 1 0 HS | Rest 1 0 8 1 2 HS | "
              "Rest 1 0 9 1 3 RB | Rest 1 0 1 1 1 RB | Rest 1 0 0 0 1 HS")) {
    std::istringstream words(row);
    std::string icon, brand, sold, players, computers, restaurants, waiting;
    words >> icon >> brand >> sold >> players >> computers >> restaurants >> waiting;
    EXPECT_EQ(
        Last(choose + Set("BrandSold(" + brand + ")", sold) + Set("PlayerHotels", players) +
             Set("CompHotels", computers) + Set("RestCount", restaurants) + Build(icon))["waiting"],
        waiting)
        << row;
  }
  EXPECT_EQ(Told(choose + "set BrandSold(6) 5\n" + Build("HILTON") + "get RB.Label2.Caption\n"),
            "HILTON hotels has turned you down for a license. You sold too many of their hotels in "
            "the past. Try someone else.");
  EXPECT_EQ(Told(choose + "set RestCount 1\n" + Build("Rest") + "get RB.Label2.Caption\n"),
            "The zoing board has met and has decided not to allow you to build another restaurant "
            "on this property ! There are too many now.");
}

TEST(Zoning, FiveSalesOfAClassMakeItRefuse) {
  const std::string build = "click GFM.Image1(45)\nclick GFM.CMDBUILD\n" + Build("QUALITY");
  const std::string sale = build + "click HS.CMDAN1(1)\nclick GFM.Image1(45)\nclick GFM.CMDSHOT\n";
  const std::string rich = choose + Cash("$900,000,000", "$0");
  EXPECT_EQ(Last(rich + Times(4, sale) + build)["waiting"], "HS");
  EXPECT_EQ(Last(rich + Times(5, sale) + build)["waiting"], "RB");
}

}  // namespace
}  // namespace zelvo::test
