#include <gtest/gtest.h>

#include "tests/position.h"

namespace zelvo::test {
namespace {

std::string Ledgers() { return Gets({"GFM.PCredit.Caption", "GFM.CCredit.Caption", "BankCash"}); }

/// A board where only the lots that a test puts there belong to anybody, and a computer that sits
/// its turn out, so that its cash stays as the calendar left it.
std::string BareBoard() {
  return Calm() + Lot(0, "U", "50000") + Lot(99, "U", "50000") + Set("MallNext", "1") +
         Set("StrikeMeter", "7");
}

/// A turn that ends the given sixth of the year, 1 to 4.
std::string Assessment(int sixth) {
  return Set("YearTurn", std::to_string(6 * sixth - 1)) +
         Set("AssessCount", std::to_string(sixth - 1)) + Draws({{50, 40}}) + "click GFM.CMDGO\n";
}

// Values that an assessment at 4 per cent lifts to a round sum.
constexpr const char* twoHundredThousand = "192307.6923";
constexpr const char* halfAMillion = "480769.2308";
constexpr const char* aMillion = "961538.4615";
constexpr const char* exactlyFiveMillionAhead = "5961538.4615";  // of 1,200,000
constexpr const char* justMore = "5961538.4616";

TEST(Revenue, PaysTheRateOfEachBuildingAndMoreToTheSideFarBehind) {
  struct Row {
    const char* level;
    const char* ahead;  // the other side's bare lot
    const char* bankPlays;
    const char* player;    // its cash and the bank's, if the player has the buildings
    const char* computer;  // the same if the computer has them
  };
  const char* plain = "$60,000 | 1007200";
  const char* better = "$90,000 | 1010800";
  const char* computers = "$60,000 | 1000000";
  const char* computersBetter = "$90,000 | 1000000";
  for (const auto& [level, ahead, bankPlays, player, computer] : {
           Row{"0", "0", "0", plain, computers},
           Row{"0", "0", "-1", "$60,000 | 1010800", computers},
           Row{"0", exactlyFiveMillionAhead, "0", plain, computers},
           Row{"0", justMore, "0", better, computers},
           Row{"0", justMore, "-1", "$90,000 | 1016200", computers},
           Row{"1", exactlyFiveMillionAhead, "0", plain, computers},
           Row{"1", justMore, "0", better, computersBetter},
           Row{"2", justMore, "0", plain, computersBetter},
           Row{"3", justMore, "0", plain, computersBetter},
           Row{"3", exactlyFiveMillionAhead, "0", plain, computers},
       }) {
    const std::string common =
        BareBoard() + Set("SkillLevel", level) + Set("BankPlays", bankPlays) + Cash("$0", "$0");
    EXPECT_EQ(
        Told(common + Lot(20, "PHH", aMillion) + Lot(30, "PSH", twoHundredThousand) +
             Lot(70, "CU", ahead) + Assessment(2) + Gets({"GFM.PCredit.Caption", "BankCash"})),
        player)
        << "player, level " << level << ", " << ahead;
    EXPECT_EQ(
        Told(common + Lot(20, "CHH", aMillion) + Lot(30, "CSH", twoHundredThousand) +
             Lot(70, "PU", ahead) + Assessment(2) + Gets({"GFM.CCredit.Caption", "BankCash"})),
        computer)
        << "computer, level " << level << ", " << ahead;
  }
}

TEST(Revenue, CountsBuildingsAloneAndLeavesItsFiguresForOthers) {
  std::string script = BareBoard() + Cash("-$100,000", "$5,000") + Set("RestCount", "9");
  int lot = 30;
  for (const char* tag : {"PU", "CU", "MAP", "MAC", "MAX", "XC", "K"}) {
    script += Lot(++lot, tag, aMillion);
  }
  script += Lot(51, "PDH", aMillion) + Lot(53, "PTH", aMillion) + Lot(61, "CDR", aMillion);
  EXPECT_EQ(Told(script + Assessment(2) + Ledgers() +
                 Gets({"RestCount", "Delta", "Tally", "OwnerTags(1)", "OwnerTags(7)"})),
            "$0 | $55,000 | 1012000 | 2 | 55000 | 50000 | CSH | CDR");
}

TEST(TaxTime, RateStandsAtATenthAndStartsOverAboveIt) {
  struct Row {
    const char* before;
    const char* valueAndRate;
  };
  for (const auto& [before, valueAndRate] :
       {Row{"0.04", "104000 | 0.05"}, Row{"0.1", "110000 | 0.11"}, Row{"0.1001", "104000 | 0.05"},
        Row{"0.11", "104000 | 0.05"}, Row{"0.03", "104000 | 0.05"}}) {
    EXPECT_EQ(Told(BareBoard() + Lot(55, "MAX", "100000") + Set("AssessRate", before) +
                   Assessment(2) + Gets({"LotValue(55)", "AssessRate"})),
              valueAndRate)
        << before;
  }
}

TEST(TaxTime, LoanIsPaidBackByTheTermsOfTheLevel) {
  struct Row {
    const char* level;
    const char* loan;
    int sixth;
    const char* expected;  // cashes, bank, loan left
  };
  for (const auto& [level, loan, sixth, expected] :
       {Row{"0", "100000", 4, "$991,600 | $0 | 1008400 | 92000"},
        Row{"1", "500000", 4, "$944,000 | $0 | 1056000 | 450000"},
        Row{"2", "100000", 4, "$982,300 | $0 | 1017700 | 85000"},
        Row{"3", "100000", 4, "$975,600 | $0 | 1024400 | 80000"},
        Row{"3", "0", 4, "$1,000,000 | $0 | 1000000 | 0"},
        Row{"3", "100000", 3, "$1,000,000 | $0 | 1000000 | 100000"}}) {
    EXPECT_EQ(Told(BareBoard() + Cash("$1,000,000", "$0") + Set("SkillLevel", level) +
                   Set("PlayerLoan", loan) + Set("AssessRate", "0.07") + Assessment(sixth) +
                   Ledgers() + "get PlayerLoan\n"),
              expected)
        << "level " << level;
  }
}

TEST(TaxTime, TaxesEveryLotOfASideAndLetsCashFallBelowZero) {
  EXPECT_EQ(Told(BareBoard() + Cash("$100", "$0") + Set("AssessRate", "0.07") +
                 Lot(20, "PU", "100000") + Lot(30, "MAP", "100000") + Lot(40, "CDR", "200000") +
                 Lot(50, "XC", "100000") + Assessment(4) + Ledgers() +
                 Gets({"AssessCount", "YearTurn", "TT.Label1.Caption", "TT.Label2.Caption"})),
            // The restaurant's revenue makes up for its tax.
            "-$8,460 | $0 | 1025680 | 0 | 0 | Tax Time | Calculating Taxes and Bank loan payments");
}

TEST(TaxTime, MallsPayOnceAYearWhileThePlayerHasOne) {
  struct Row {
    const char* level;
    const char* playerMalls;
    std::string lots;
    const char* bankPlays;
    const char* expected;  // cashes, bank
    const char* news;
  };
  const std::string both = Lot(20, "MAP", aMillion) + Lot(30, "MAC", halfAMillion);
  const char* news = "Your Mall investments netted you $100,000";
  for (const auto& [level, playerMalls, lots, bankPlays, expected, label] : {
           Row{"1", "1", both, "0", "$100,000 | $50,000 | 1012000", news},
           Row{"1", "1", both, "-1", "$100,000 | $50,000 | 1018000", news},
           Row{"0", "1", both, "0", "$100,000 | $0 | 1012000", news},
           Row{"1", "0", both, "0", "$0 | $0 | 1000000", "Calculating Property Values and revenue"},
           Row{"1", "1", Lot(20, "MAX", aMillion), "0", "$0 | $0 | 1000000",
               "Your Mall investments netted you $0"},
       }) {
    EXPECT_EQ(Told(BareBoard() + Cash("$0", "$0") + Set("SkillLevel", level) +
                   Set("PlayerMalls", playerMalls) + Set("BankPlays", bankPlays) + lots +
                   Assessment(1) + Ledgers() + "get TT.Label2.Caption\n"),
              std::string(expected) + " | " + label)
        << "level " << level << ", malls " << playerMalls << ", " << lots;
  }
}

TEST(TaxTime, FirstYearGrowsFourTimesAndTaxesAtEightPerCent) {
  std::string script =
      Calm() + Set("MallNext", "1") + Set("StrikeMeter", "7") + Cash("$1,000,000", "$0");
  script += Times(24, Set("ChanceWait", "0") + "clock 12:00:50\nclick GFM.CMDGO");
  EXPECT_EQ(Told(script + Ledgers() +
                 Gets({"LotValue(3)", "AssessRate", "TurnNo", "YearTurn", "GFM.Timer1.Enabled",
                       "TT.XSHOW.Caption"})),
            "$995,046 | -$4,954 | 1009908.3712 | 61927.32 | 0.08 | 24 | 0 | 0 |  4");
}

/// A turn at whose end a card is due. The window stays open for what follows.
std::string CardDue() {
  return BareBoard() + Set("ChanceWait", "15") + Draws({{50, 40}}) + "click GFM.CMDGO\n";
}

std::string DrawCard(int card, int second) {
  return std::string("clock 12:00:") + (second < 10 ? "0" : "") + std::to_string(second) +
         "\nclick CHN.Image1(" + std::to_string(card) + ")\n";
}

constexpr const char* leaveCards = "click CHN.CMDOK\n";

/// The ledgers after a visit that the player leaves by OK.
std::string AfterVisit(const std::string& visit) { return Told(visit + leaveCards + Ledgers()); }

TEST(Chance, EachCardOwnsThreeDraws) {
  struct Row {
    bool good;
    const char* text;
  };
  const Row cards[] = {
      {false, "City adds .2% luxury tax on hotels. You pay \n"},
      {true, "City over billed luxury tax. Money returned.\nYou receive \n"},
      {false,
       "City garbage collectors go on strike. You must pay for private collection.\n You pay \n"},
      {true, "Telephone company over billed. Money returned. You receive \n"},
      {true, "You win lawsuit against Hilton Inns. You collect.\n"},
      {false, "You must retain lawyer to sue builder. You pay.\n"},
      {true, "You win builder lawsuit. You collect.\n"},
      {false, "Customer wins lawsuit. You pay\n"},
      {false, "Your employees go on strike for back pay and better wages.\n You pay.\n"},
      {true, "Your stock investments have gone up. You collect.\n"},
      {false, "Your stock investments have gone down. You lose.\n"},
      {true, "Your Hotel chain is voted #1. The advertising increased business by \n"},
      {false, "You must apply for a liquer license, pay up.\n"},
      {true, "A convention has booked all your rooms. You gross\n"},
      {false, "The convention people tore up the place. You need repairs of \n"},
      {true, "The Bad news, your alcoholic brother just died. the Good news is he left you \n"},
      {false, "The good news, your spouse has divorced you, the bad news is it cost you\n"},
      {true, "You paid too much in taxes ! The IRS has sent a refund of\n"},
      {false,
       "The IRS didn't have a sense of humor when you told them your dog ate your return. Pay\n"},
      {true, "You win big in the casino! Collect\n"},
  };
  int first = 1;
  for (const auto& [good, text] : cards) {
    std::string label;
    for (const char c : std::string(text)) label += c == '\n' ? "\n\r" : std::string(1, c);
    label += good ? "    $300,000" : "    $200,000";
    // The first number with the first card (0 counts as 1), the last one with the third card.
    EXPECT_EQ(Texts(Cash("$1,000,000", "$0") + CardDue() + DrawCard(0, first == 1 ? 0 : first) +
                    "get CHN.Label2.Caption\n" + DrawCard(2, first) + "get CHN.Label2.Caption\n"),
              (std::vector<std::string>{label, label}))
        << "from " << first;
    first += 3;
  }
  // The third card at the last second waits for the clock to turn, and draws 2 then.
  EXPECT_EQ(Texts(CardDue() + DrawCard(2, 59) + "get CHN.Label2.Caption\n")[0].substr(0, 9),
            "City adds");
}

TEST(Chance, LastDrawCountsAndABadOneMarksTheVisit) {
  struct Row {
    const char* rule;
    std::string visit;
    const char* ledgers;
  };
  const std::string bad = DrawCard(0, 1);
  const std::string good = DrawCard(0, 4);
  for (const auto& [rule, visit, expected] : {
           Row{"bad", bad, "$800,000 | $210,000 | 1244000"},
           Row{"good", good, "$1,300,000 | $10,000 | 1066000"},
           Row{"bad twice", bad + bad, "$800,000 | $210,000 | 1444000"},
           Row{"bad, then good", bad + good, "$1,300,000 | $310,000 | 1332000"},
           Row{"good, then bad", good + bad, "$800,000 | $210,000 | 1310000"},
           Row{"debts", Set("GFM.PCredit.Caption", "\"-$1,000\"") + bad, "-$800 | $9,800 | 999756"},
       }) {
    EXPECT_EQ(AfterVisit(Cash("$1,000,000", "$10,000") + CardDue() + visit), expected) << rule;
  }
}

TEST(Chance, IsDueEverySixteenthTurnWithCashAtHand) {
  struct Row {
    const char* wait;
    const char* cash;
    const char* waiting;
    const char* waitAfter;
  };
  for (const auto& [wait, cash, waiting, waitAfter] :
       {Row{"14", "$50,000", "GFM", "15"}, Row{"15", "$50,000", "CHN", "0"},
        Row{"15", "$49,999", "GFM", "16"}, Row{"16", "$50,000", "CHN", "0"}}) {
    std::string script = BareBoard() + Set("ChanceWait", wait) + Cash(cash, "$0") +
                         Draws({{50, 40}}) + "click GFM.CMDGO\n";
    EXPECT_EQ(Play("click GST.CMDSTART\n" + script).back()["waiting"], waiting) << wait << cash;
    if (std::string(waiting) == "CHN") script += DrawCard(0, 1) + leaveCards;
    EXPECT_EQ(Told(script + "get ChanceWait\n"), waitAfter) << wait << cash;
  }
}

/// The player chooses a hotel on lot 0 and backs out of the contract.
std::string CancelBuild() {
  return "click GFM.Image1(0)\nclick GFM.CMDBUILD\nclick GFM.QUALITY\nclick GFM.BUILDIT\n"
         "click HS.CMDCANCEL\n";
}

TEST(Chance, BuilderSuesAtTheFifthCancellation) {
  const std::string sued = Times(4, CancelBuild()) + "get CancelledBuilds\n" + CancelBuild() +
                           Gets({"CancelledBuilds", "CHN.Label1.Caption", "CHN.Label2.Caption"});
  const std::string served =
      "4 | 0 | Contract disagreement - You are served notice | You have been sued by the builder "
      "for backing \n\rout of the contract. You need a lawyer. Your cost \n\r    $200,000 | ";
  // The next visit finds the window as it was made.
  EXPECT_EQ(Told(sued + leaveCards + Ledgers() + CardDue() +
                 Gets({"CHN.Label1.Caption", "CHN.CMDOK.Visible"})),
            served +
                "$800,000 | $1,000,000 | 1000000 | Your turn has come to Click on a chance "
                "card | 0");
  // A card drawn on top replaces the suit's loss.
  EXPECT_EQ(Told(sued + DrawCard(1, 3) + leaveCards + Ledgers()),
            served + "$1,300,000 | $1,000,000 | 1066000");
  // A visit that falls due in between serves the suit from the fourth on.
  EXPECT_EQ(Told(Times(4, CancelBuild()) + CardDue() + leaveCards + Ledgers()),
            "$800,000 | $1,000,000 | 1000000");
}

TEST(Chance, WithoutCardsAVisitTouchesNoCash) {
  const std::string off = Set("UseChance", "0");
  const std::string cash = Cash("$1,000,000", "$10,000");
  const std::string afterACard = CardDue() + DrawCard(0, 4) + leaveCards;
  const std::string build =
      off + Set("CancelledBuilds", "5") + Lot(0, "PU", "50000") +
      "click GFM.Image1(0)\nclick GFM.CMDBUILD\nclick GFM.QUALITY\nclick GFM.BUILDIT\n"
      "click HS.CMDAN1(1)\n";
  struct Row {
    const char* rule;
    std::string visit;
    const char* ledgers;
  };
  for (const auto& [rule, visit, expected] : {
           Row{"due", off + CardDue(), "$1,000,000 | $10,000 | 1000000"},
           Row{"sued", off + Times(5, CancelBuild()), "$1,000,000 | $10,000 | 1000000"},
           // After a finished build another figure than cash is in hand.
           Row{"built", build, "$800,000 | $10,000 | 1000000"},
           Row{"drawn all the same", off + CardDue() + DrawCard(0, 4),
               "$1,300,000 | $10,000 | 1066000"},
           Row{"built after a card", afterACard + build, "$1,100,000 | $10,000 | 1066000"},
       }) {
    EXPECT_EQ(AfterVisit(cash + visit), expected) << rule;
  }
}

}  // namespace
}  // namespace zelvo::test
