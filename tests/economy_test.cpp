#include <gtest/gtest.h>

#include "tests/position.h"

namespace zelvo::test {
namespace {

std::string Ledgers() { return Cashes() + "get BankCash\n"; }

/// A board where only the lots that a test puts there belong to anybody, and a computer that sits
/// its turn out, so that its cash stays as the calendar left it.
std::string BareBoard() {
  return Calm() + Lot(0, "U", "50000") + Lot(99, "U", "50000") + Set("MallNext", "1") +
         Set("StrikeMeter", "7");
}

/// A turn that ends the given sixth of the year, 1 to 4.
std::string Assessment(int sixth) {
  return Set("YearTurn", std::to_string(6 * sixth - 1)) +
         Set("AssessCount", std::to_string(sixth - 1)) + Draws({{50, 40}}) + endTurn;
}

// Values that an assessment at 4 per cent lifts to a round sum, as it does 192307.6923 to 200,000.
constexpr const char* aMillion = "961538.4615";
constexpr const char* exactlyFiveMillionAhead = "5961538.4615";  // of 1,200,000
constexpr const char* justMore = "5961538.4616";

TEST(Revenue, PaysTheRateOfEachBuildingAndMoreToTheSideFarBehind) {
  // The side with two hotels, against a bare lot of the other.
  const auto side = [](const std::string& owner, int level, const char* ahead) {
    return Level(level) + Lot(20, owner + "HH", aMillion) + Lot(30, owner + "SH", "192307.6923") +
           Lot(70, owner == "P" ? "CU" : "PU", ahead);
  };
  const std::string bank = Set("BankPlays", "-1");
  ExpectTold(BareBoard() + Cash("$0", "$0"),
             {{side("P", 0, "0"), "$60,000 | $0 | 1007200"},
              {side("P", 0, "0") + bank, "$60,000 | $0 | 1010800"},
              {side("P", 0, exactlyFiveMillionAhead), "$60,000 | $0 | 1007200"},
              {side("P", 0, justMore), "$90,000 | $0 | 1010800"},
              {side("P", 0, justMore) + bank, "$90,000 | $0 | 1016200"},
              {side("P", 1, justMore), "$90,000 | $0 | 1010800"},
              {side("P", 2, justMore), "$60,000 | $0 | 1007200"},
              {side("C", 0, justMore) + bank, "$0 | $60,000 | 1000000"},
              {side("C", 1, exactlyFiveMillionAhead), "$0 | $60,000 | 1000000"},
              {side("C", 1, justMore), "$0 | $90,000 | 1000000"},
              {side("C", 2, justMore), "$0 | $90,000 | 1000000"},
              {side("C", 3, justMore), "$0 | $90,000 | 1000000"}},
             Assessment(2) + Ledgers());
}

TEST(Revenue, CountsBuildingsAloneAndLeavesItsFiguresForOthers) {
  std::string script = BareBoard() + Cash("-$100,000", "$5,000") + Set("RestCount", "9");
  int lot = 30;
  for (const char* tag : {"PU", "CU", "MAP", "MAC", "MAX", "XC", "K"}) {
    script += Lot(++lot, tag, aMillion);
  }
  script += Lot(51, "PDH", aMillion) + Lot(53, "PTH", aMillion) + Lot(61, "CDR", aMillion);
  EXPECT_EQ(Told(script + Assessment(2) + Ledgers() +
                 Get("RestCount Delta Tally OwnerTags(1) OwnerTags(7)")),
            "$0 | $55,000 | 1012000 | 2 | 55000 | 50000 | CSH | CDR");
}

TEST(TaxTime, RateStandsAtATenthAndStartsOverAboveIt) {
  ExpectTold(BareBoard() + Lot(55, "MAX", "100000"),
             {{Set("AssessRate", "0.04"), "104000 | 0.05"},
              {Set("AssessRate", "0.1"), "110000 | 0.11"},
              {Set("AssessRate", "0.1001"), "104000 | 0.05"},
              {Set("AssessRate", "0.03"), "104000 | 0.05"}},
             Assessment(2) + Get("LotValue(55) AssessRate"));
}

TEST(TaxTime, LoanIsPaidBackByTheTermsOfTheLevel) {
  const auto loan = [](int level, const char* sum, int sixth) {
    return Level(level) + Set("PlayerLoan", sum) + Assessment(sixth);
  };
  ExpectTold(BareBoard() + Cash("$1,000,000", "$0") + Set("AssessRate", "0.07"),
             {{loan(0, "100000", 4), "$991,600 | $0 | 1008400 | 92000"},
              {loan(1, "500000", 4), "$944,000 | $0 | 1056000 | 450000"},
              {loan(2, "100000", 4), "$982,300 | $0 | 1017700 | 85000"},
              {loan(3, "100000", 4), "$975,600 | $0 | 1024400 | 80000"},
              {loan(3, "0", 4), "$1,000,000 | $0 | 1000000 | 0"},
              {loan(3, "100000", 3), "$1,000,000 | $0 | 1000000 | 100000"}},
             Ledgers() + "get PlayerLoan\n");
}

TEST(TaxTime, TaxesEveryLotOfASideAndLetsCashFallBelowZero) {
  EXPECT_EQ(Told(BareBoard() + Cash("$100", "$0") + Set("AssessRate", "0.07") +
                 Lot(20, "PU", "100000") + Lot(30, "MAP", "100000") + Lot(40, "CDR", "200000") +
                 Lot(50, "XC", "100000") + Assessment(4) + Ledgers() +
                 Get("AssessCount YearTurn TT.Label1.Caption TT.Label2.Caption")),
            // The restaurant's revenue makes up for its tax.
            "-$8,460 | $0 | 1025680 | 0 | 0 | Tax Time | Calculating Taxes and Bank loan payments");
}

TEST(TaxTime, MallsPayOnceAYearWhileThePlayerHasOne) {
  const std::string both = Lot(20, "MAP", aMillion) + Lot(30, "MAC", "480769.2308");
  const std::string one = Set("PlayerMalls", "1");
  const std::string news = " | Your Mall investments netted you $";
  ExpectTold(
      BareBoard() + Cash("$0", "$0") + Level(1),
      {{both + one, "$100,000 | $50,000 | 1012000" + news + "100,000"},
       {both + one + Set("BankPlays", "-1"), "$100,000 | $50,000 | 1018000" + news + "100,000"},
       {both + one + Level(0), "$100,000 | $0 | 1012000" + news + "100,000"},
       {both, "$0 | $0 | 1000000 | Calculating Property Values and revenue"},
       {Lot(20, "MAX", aMillion) + one, "$0 | $0 | 1000000" + news + "0"}},
      Assessment(1) + Ledgers() + "get TT.Label2.Caption\n");
}

TEST(TaxTime, FirstYearGrowsFourTimesAndTaxesAtEightPerCent) {
  const std::string script = Calm() + Set("MallNext", "1") + Set("StrikeMeter", "7") +
                             Cash("$1,000,000", "$0") +
                             Times(24, Set("ChanceWait", "0") + "clock 12:00:50\nclick GFM.CMDGO");
  EXPECT_EQ(Told(script + Ledgers() +
                 Get("LotValue(3) AssessRate TurnNo YearTurn GFM.Timer1.Enabled TT.XSHOW.Caption")),
            "$995,046 | -$4,954 | 1009908.3712 | 61927.32 | 0.08 | 24 | 0 | 0 |  4");
}

/// A turn at whose end a card is due. The window stays open for what follows.
std::string CardDue() {
  return BareBoard() + Set("ChanceWait", "15") + Draws({{50, 40}}) + endTurn;
}

std::string DrawCard(int card, int second) {
  return std::string("clock 12:00:") + (second < 10 ? "0" : "") + std::to_string(second) +
         "\nclick CHN.Image1(" + std::to_string(card) + ")\n";
}

constexpr const char* leaveCards = "click CHN.CMDOK\n";

TEST(Chance, EachCardOwnsThreeDraws) {
  // Whether each card gives or takes, and how it begins.
  const std::string cards =
      "-City adds | +City over | -City garb | +Telephone | +You win law | -You must ret | "
      "+You win bui | -Customer | -Your empl | +Your stock | -Your stock | +Your Hotel | "
      "-You must app | +A conv | -The conv | +The Bad | -The good | +You paid | -The IRS | "
      "+You win big";
  const std::string label = "get CHN.Label2.Caption\n";
  int first = 1;
  for (const std::string& card : Pieces(cards)) {
    const std::string end = card.front() == '+' ? "    $300,000" : "    $200,000";
    // The first number with the first card (0 counts as 1), the last one with the third card.
    const int second = first == 1 ? 0 : first;
    for (const std::string& text :
         Texts(CardDue() + DrawCard(0, second) + label + DrawCard(2, first) + label)) {
      EXPECT_TRUE(text.starts_with(card.substr(1)) && text.ends_with(end)) << first << " " << text;
    }
    first += 3;
  }
  EXPECT_EQ(Told(CardDue() + DrawCard(0, 4) + label + DrawCard(1, 37) + label),
            "City over billed luxury tax. Money returned.\n\rYou receive \n\r    $300,000 | "
            "You must apply for a liquer license, pay up.\n\r    $200,000");
  // The third card at the last second waits for the clock to turn, and draws 2 then.
  EXPECT_TRUE(Told(CardDue() + DrawCard(2, 59) + label).starts_with("City adds"));
}

TEST(Chance, LastDrawCountsAndABadOneMarksTheVisit) {
  const std::string bad = DrawCard(0, 1);
  const std::string good = DrawCard(0, 4);
  ExpectTold(Cash("$1,000,000", "$10,000") + CardDue(),
             {{bad, "$800,000 | $210,000 | 1244000"},
              {good, "$1,300,000 | $10,000 | 1066000"},
              {bad + bad, "$800,000 | $210,000 | 1444000"},
              {bad + good, "$1,300,000 | $310,000 | 1332000"},
              {good + bad, "$800,000 | $210,000 | 1310000"},
              {Set("GFM.PCredit.Caption", "\"-$1,000\"") + bad, "-$800 | $9,800 | 999756"}},
             leaveCards + Ledgers());
}

TEST(Chance, IsDueEverySixteenthTurnWithCashAtHand) {
  const std::string rich = Cash("$50,000", "$0") + Draws({{50, 40}}) + endTurn;
  const std::string poor = Cash("$49,999", "$0") + Draws({{50, 40}}) + endTurn;
  ExpectTold(BareBoard(),
             {{Set("ChanceWait", "14") + rich, "15"},
              {Set("ChanceWait", "15") + rich + DrawCard(0, 1) + leaveCards, "0"},
              {Set("ChanceWait", "15") + poor, "16"},
              {Set("ChanceWait", "16") + rich + DrawCard(0, 1) + leaveCards, "0"}},
             "get ChanceWait\n");
}

/// The player chooses a hotel on lot 0 and comes to its contract.
const std::string contract =
    "click GFM.Image1(0)\nclick GFM.CMDBUILD\nclick GFM.QUALITY\nclick GFM.BUILDIT\n";
const std::string cancelBuild = contract + "click HS.CMDCANCEL";

TEST(Chance, BuilderSuesAtTheFifthCancellation) {
  const std::string sued = Times(4, cancelBuild) + "get CancelledBuilds\n" + cancelBuild + "\n" +
                           Get("CancelledBuilds CHN.Label1.Caption CHN.Label2.Caption");
  const std::string served =
      "4 | 0 | Contract disagreement - You are served notice | You have been sued by the builder "
      "for backing \n\rout of the contract. You need a lawyer. Your cost \n\r    $200,000 | ";
  // The next visit finds the window as it was made.
  EXPECT_EQ(
      Told(sued + leaveCards + Ledgers() + CardDue() + Get("CHN.Label1.Caption CHN.CMDOK.Visible")),
      served +
          "$800,000 | $1,000,000 | 1000000 | Your turn has come to Click on a chance "
          "card | 0");
  // A card drawn on top replaces the suit's loss.
  EXPECT_EQ(Told(sued + DrawCard(1, 3) + leaveCards + Ledgers()),
            served + "$1,300,000 | $1,000,000 | 1066000");
  // A visit that falls due in between serves the suit from the fourth on.
  EXPECT_EQ(Told(Times(4, cancelBuild) + CardDue() + leaveCards + Ledgers()),
            "$800,000 | $1,000,000 | 1000000");
}

TEST(Chance, WithoutCardsAVisitTouchesNoCash) {
  const std::string off = Set("UseChance", "0");
  // After a finished build another figure than cash is in hand.
  const std::string build =
      off + Set("CancelledBuilds", "5") + Lot(0, "PU", "50000") + contract + "click HS.CMDAN1(1)\n";
  ExpectTold(Cash("$1,000,000", "$10,000"),
             {{off + CardDue(), "$1,000,000 | $10,000 | 1000000"},
              {off + Times(5, cancelBuild), "$1,000,000 | $10,000 | 1000000"},
              {build, "$800,000 | $10,000 | 1000000"},
              {off + CardDue() + DrawCard(0, 4), "$1,300,000 | $10,000 | 1066000"},
              {CardDue() + DrawCard(0, 4) + leaveCards + build, "$1,100,000 | $10,000 | 1066000"}},
             leaveCards + Ledgers());
}

}  // namespace
}  // namespace zelvo::test
