#include <gtest/gtest.h>

#include "tests/position.h"

namespace zelvo::test {
namespace {

constexpr const char* endTurn = "click GFM.CMDGO\n";

/// A fire on lot 37 in the player's half of the turn; the computer's half has one on bare ground.
std::string FireOn37() { return Draws({{33, 2}, {33, 37, 1}}) + endTurn; }

/// Lightning on lot 37 in the player's half; the meter passes its mark in the computer's half.
std::string LightningOn37() {
  return Calm() + Set("StrikeMeter", "10") + Draws({{46, 60}, {46, 37}}) + endTurn;
}

std::string Cashes() { return Gets({"GFM.PCredit.Caption", "GFM.CCredit.Caption"}); }

std::string Lot37() { return Gets({"GFM.Image1(37).Tag", "LotValue(37)"}); }

std::string StrikeNews() {
  return Cashes() + Lot37() +
         Gets({"GFM.PSHOW.Caption", "GFM.LSHOW.Caption", "LotInsured(37)", "MallNext"});
}

TEST(Strike, FirePaysTheInsuredAndTellsTheOthersTheirLoss) {
  struct Row {
    const char* level;
    std::string lot;
    const char* cashes;
    const char* value;
    const char* loss;
    const char* line;
  };
  const char* fire = "Fire burns building 37";
  const char* paid = "Insurance pays up";
  for (const auto& [level, lot, cash, value, loss, line] : {
           Row{"0", Lot(37, "PHH", "400000", true), "$1,400,000 | $0", "80000", " Player Loses $0",
               paid},
           Row{"0", Lot(37, "PHH", "400000"), "$1,000,000 | $0", "80000", " Player Loses $400,000",
               fire},
           Row{"1", Lot(37, "CSH", "400000", true), "$1,000,000 | $400,000", "80000",
               " Computer Loses $0", paid},
           Row{"1", Lot(37, "CDR", "400000"), "$1,000,000 | $0", "80000",
               " Computer Loses $400,000", fire},
           Row{"0", Lot(37, "MAP", "600000"), "$1,000,000 | $0", "120000", " Player Loses $300,000",
               fire},
           Row{"1", Lot(37, "MAC", "600000"), "$1,000,000 | $0", "120000",
               " Computer Loses $300,000", fire},
           // On the higher levels nobody owns the computer's mall.
           Row{"2", Lot(37, "MAC", "600000", true), "$1,000,000 | $0", "120000", "", fire},
           Row{"2", Lot(37, "MAX", "600000"), "$1,000,000 | $0", "120000", "", fire},
       }) {
    const bool mall = lot.find("MAP") != std::string::npos || lot.find("MAC") != std::string::npos;
    EXPECT_EQ(Told(Set("SkillLevel", level) + lot + Cash("$1,000,000", "$0") + FireOn37() +
                   (mall ? "close RB\n" : "") + StrikeNews() + "get CondemnedLots\nget BankCash\n"),
              std::string(cash) + " | D | " + value + " | Property was distroyed. All is lost " +
                  loss + " | " + line + " | 0 | 1 | 1 | 1000000")
        << lot << " level " << level;
  }
}

TEST(Strike, FireFindsNothingToBurnOnBareGround) {
  for (const char* tag : {"U", "O", "D", "PU", "CU", "XC", "K"}) {
    EXPECT_EQ(Told(Lot(37, tag, "400000") + Cash("$0", "$0") + FireOn37() + Lot37() +
                   Gets({"MallNext", "FireFlag", "LotValue(38)"})),
              std::string(tag) + " | 400000 | 0 | 0 | 75000");
  }
}

TEST(Strike, LightningHitsAnyLotAndStartsTheMeterAnew) {
  struct Row {
    std::string lot;
    const char* cashesAndValue;
    const char* loss;
    const char* line;
  };
  const char* lightning = "Lighting Struck Lot  37";
  for (const auto& [lot, expected, loss, line] : {
           Row{Lot(37, "PHH", "400000", true), "$1,400,000 | $0 | D | 80000", " Player Loses $0",
               "Insurance pays up"},
           Row{Lot(37, "PU", "50000"), "$1,000,000 | $0 | D | 10000", " Player Loses $50,000",
               lightning},
           Row{Lot(37, "XC", "1000000"), "$1,000,000 | $0 | D | 200000", "", lightning},
           Row{Lot(37, "K", "50000"), "$1,000,000 | $0 | D | 10000", "", lightning},
       }) {
    EXPECT_EQ(Told(lot + Cash("$1,000,000", "$0") + LightningOn37() + StrikeNews() +
                   Gets({"StrikeMeter", "OpenLots"})),
              std::string(expected) + " | Property was distroyed. All is lost " + loss + " | " +
                  line + " | 0 | 1 | 0 | 50")
        << lot;
  }
}

TEST(Strike, CountsBuildingsOutButForTheComputersRestaurant) {
  struct Row {
    const char* tag;
    const char* properties;
  };
  for (const auto& [tag, properties] : {Row{"PSH", " 1 |  1"}, Row{"PDH", " 1 |  1"},
                                        Row{"CHH", " 1 |  1"}, Row{"CDR", " 1 |  2"}}) {
    EXPECT_EQ(Told(Lot(37, tag, "100000") + Cash("$0", "$0") + Set("StrikeMeter", "9") +
                   FireOn37() + Gets({"GFM.PNOH.Caption", "GFM.CNOH.Caption", "StrikeMeter"})),
              std::string(properties) + " | 9")
        << tag;
  }
}

TEST(Strike, DragsTheNeighboursDownToTheirFloorWithoutMovingCash) {
  const std::string script = Lot(37, "PHH", "400000") + Lot(27, "PSH", "500000") +
                             Lot(47, "CSH", "500000") + Lot(36, "PU", "5000") +
                             Cash("$1,000", "$0") + FireOn37();
  EXPECT_EQ(Play("click GST.CMDSTART\n" + script).back()["cues"].dump(),
            R"([{"file":"EXPLODE.WAV","waits":false},{"file":"CLICK.WAV","waits":true},)"
            R"({"file":"CLICK.WAV","waits":true}])");
  EXPECT_EQ(Told(script + Cashes() +
                 Gets({"LotValue(36)", "LotValue(38)", "LotValue(27)", "LotValue(47)",
                       "GFM.PNW.Caption"})),
            "$1,000 | $0 | 10000 | 10000 | 100000 | 100000 | $160,000");
}

TEST(Strike, TakesAMallOffTheCountWhoeverOwnedIt) {
  struct Row {
    const char* tag;
    const char* before;
    const char* after;
  };
  for (const auto& [tag, before, after] :
       {Row{"MAP", "2", "1"}, Row{"MAC", "2", "1"}, Row{"MAC", "0", "0"}}) {
    EXPECT_EQ(Told(Lot(37, tag, "600000") + Cash("$0", "$0") + Set("PlayerMalls", before) +
                   FireOn37() + "get RB.Label2.Caption\nclose RB\nget PlayerMalls\n"),
              std::string("The zoing board has met and decided you must pay 50% cleanup costs on "
                          "the destroyed mall. | ") +
                  after);
  }
  // In the computer's half the board stays silent.
  const auto lines = Play("click GST.CMDSTART\n" + Lot(37, "MAP", "600000") + Cash("$0", "$0") +
                          Draws({{33, 37}}) + endTurn);
  EXPECT_EQ(lines.back()["waiting"], "GFM");
}

/// A mall zoned on lot 37, worth 100,000, in the player's half of the turn: in the computer's half
/// the draw falls on a taken lot, and what is due stays due.
std::string MallOn37(const char* tag = "U") {
  return Lot(37, tag, "100000") + Set("MallNext", "1") + Set("StrikeMeter", "7") +
         Draws({{33, 99}, {33, 37, 1}}) + endTurn;
}

TEST(Mall, IsOfferedToThePlayerFirstAndThenToTheComputerByLevel) {
  struct Row {
    const char* level;
    const char* player;
    const char* computer;
    const char* answers;
    const char* expected;  // cashes, tag, value, bank, open lots, player's malls
  };
  const char* yes = "click ML.CMD1(0)\n";
  const char* no = "click ML.CMD1(1)\n";
  const char* tooLittle = "click ML.CMD1(0)\nanswer ok\n";
  const char* noAndSeen = "click ML.CMD1(1)\nanswer ok\n";
  for (const auto& [level, player, computer, answers, expected] : {
           Row{"0", "$1,000,000", "$0", yes, "$800,000 | $0 | MAP | 1000000 | 1220000 | -1 | 1"},
           Row{"3", "$200,000", "$0", yes, "$0 | $0 | MAP | 1000000 | 1220000 | -1 | 1"},
           Row{"0", "$199,999", "$9", tooLittle, "$199,999 | $9 | U | 200000 | 1044000 | 0 | 0"},
           Row{"0", "$900,000", "$9", no, "$900,000 | $9 | U | 200000 | 1044000 | 0 | 0"},
           Row{"1", "$0", "$200,001", noAndSeen, "$0 | $1 | MAC | 1000000 | 1220000 | -1 | 0"},
           Row{"2", "$0", "$200,000", no, "$0 | $200,000 | U | 200000 | 1044000 | 0 | 0"},
           Row{"1", "$0", "$199,999", no, "$0 | $199,999 | MAX | 1000000 | 1220000 | -1 | 0"},
           Row{"3", "$0", "-$5,000", no, "$0 | -$5,000 | MAC | 1000000 | 1220000 | -1 | 0"},
           Row{"3", "$0", "$0", tooLittle, "$0 | $0 | MAC | 1000000 | 1220000 | -1 | 0"},
       }) {
    EXPECT_EQ(Told(Set("SkillLevel", level) + Cash(player, computer) + MallOn37() + answers +
                   Cashes() + Lot37() + Gets({"BankCash", "OpenLots", "PlayerMalls"})),
              expected)
        << "level " << level << " " << player << " " << computer << " " << answers;
  }
}

TEST(Mall, TellsThePriceAndWhatBecameOfTheOffer) {
  const auto lines = Play("click GST.CMDSTART\nset SkillLevel 1\n" + Cash("$199,999", "$300,000") +
                          MallOn37() + "get ML.Label2.Caption\nclick ML.CMD1(0)\nanswer ok\n");
  const std::size_t last = lines.size() - 1;
  EXPECT_EQ(lines[last - 2]["value"],
            "This property has been zone for a Mall. You have first dibs on investing. The "
            "investment is $200,000, you will have a 50% share in the Mall and it's profit and "
            "loss. Do you wish to invest ?");
  EXPECT_EQ(lines[last - 1]["message"].dump(),
            R"({"style":48,"text":"You Don't have enough Money !","title":"Get lost"})");
  EXPECT_EQ(lines[last]["message"].dump(),
            R"({"style":48,"text":"Computer invested in mall","title":"Zelvo"})");
  // The computer's cash stays for the next spread to find; a new mall moves no neighbour.
  EXPECT_EQ(Told(Set("SkillLevel", "1") + Cash("$0", "$300,000") + MallOn37() +
                 "click ML.CMD1(1)\nanswer ok\n" +
                 Gets({"Delta", "MallNext", "LotValue(38)", "GFM.Image1(37).Picture"})),
            "100000 | 0 | 75000 | ICF.MALL");
}

TEST(Mall, WaitsForALotThatNobodyHas) {
  for (const char* tag : {"PU", "CHH", "MAX", "XC"}) {
    EXPECT_EQ(Told(MallOn37(tag) + Lot37() + Gets({"MallNext", "BankCash"})),
              std::string(tag) + " | 100000 | 1 | 1000000");
  }
  for (const char* tag : {"U", "O", "D", "K", "G"}) {
    EXPECT_EQ(Play("click GST.CMDSTART\n" + MallOn37(tag)).back()["waiting"], "ML") << tag;
  }
}

/// A casino comes to lot 37 in the player's half of the turn.
std::string CasinoOn37() {
  return Calm() + Set("CasinoMeter", "18") + Draws({{42, 90}, {42, 37}}) + endTurn;
}

TEST(Casino, BuysFromTheWillingPlayerAndFromTheComputerUnasked) {
  struct Row {
    const char* tag;
    const char* answer;
    const char* expected;  // cashes, tag, value, a neighbour's value, bank
    const char* news;
  };
  const char* richer = "You're Richer !  Player Gets $$200,000";
  const char* tooBad = "Too bad You didn't own the lot !";
  for (const auto& [tag, answer, expected, news] : {
           Row{"PHH", "answer yes\n", "$1,200,000 | $0 | XC | 1000000 | 275000 | 1036000", richer},
           Row{"PU", "answer yes\n", "$1,200,000 | $0 | XC | 1000000 | 275000 | 1036000", richer},
           Row{"PHH", "answer no\n", "$1,000,000 | $0 | PHH | 100000 | 75000 | 1000000",
               "Player\n\rChoose Purchased or open lot to build or buy"},
           Row{"CHH", "", "$1,000,000 | $200,000 | XC | 1000000 | 275000 | 1036000",
               "Computer gets Richer. Too bad You didn't own the lot !"},
           // No price is set for a lot of nobody: the neighbours get what was last reckoned.
           Row{"O", "", "$1,000,000 | $0 | XC | 1000000 | 82000 | 1000000", tooBad},
           Row{"MAP", "", "$1,000,000 | $0 | XC | 1000000 | 82000 | 1000000", tooBad},
       }) {
    EXPECT_EQ(Told(Lot(37, tag, "100000") + Cash("$1,000,000", "$0") + Set("Delta", "7000") +
                   CasinoOn37() + answer + Cashes() + Lot37() +
                   Gets({"LotValue(38)", "BankCash", "CasinoMeter", "GFM.PSHOW.Caption"})),
              std::string(expected) + " | 0 | " + news)
        << tag << " " << answer;
  }
}

TEST(Casino, AsksThePlayerAndPaysTheNeighboursOwners) {
  const std::string script =
      Lot(37, "PHH", "100000") + Lot(47, "PU", "100000") + Cash("$0", "$0") + CasinoOn37();
  EXPECT_EQ(Play("click GST.CMDSTART\n" + script).back()["message"].dump(),
            R"({"style":36,"text":"Current lot value is $100,000\n\rCasino wants to buy your )"
            R"(property #  37 Do you wish to sell it for $200,000","title":"Buy out"})");
  EXPECT_EQ(Told(script + "answer yes\n" + Cashes() + "get GFM.LSHOW.Caption\n"),
            "$215,000 | $0 | Casino Buys Lot 37");
}

TEST(PlaneCrash, FlattensTheLotAndItsUninsuredNeighbours) {
  const std::string crash = Calm() + Set("PlaneMeter", "36") + Draws({{40, 95}}) + endTurn;
  const std::string lots = Lot(95, "PHH", "200000", true) + Lot(94, "PHH", "100000") +
                           Lot(96, "XC", "100000") + Cash("$1,000", "$0");
  const std::string values =
      Gets({"LotValue(95)", "LotValue(94)", "LotValue(96)", "LotValue(85)", "LotValue(93)",
            "GFM.Image1(95).Tag", "GFM.Image1(94).Tag", "GFM.Image1(96).Tag", "GFM.Image1(85).Tag",
            "LotInsured(95)", "LotInsured(85)", "CondemnedLots", "PlaneMeter",
            "GFM.PCredit.Caption", "GFM.LSHOW.Caption"});
  const std::string all = lots + Lot(85, "U", "100000") + crash;
  EXPECT_EQ(Told(all + values),
            "50000 | 25000 | 25000 | 25000 | 50000 | D | D | D | D | 0 | 0 | 5 | 0 | $1,000 | "
            "Plane Crash !!  95");
  EXPECT_EQ(NewsDuring(all)[0], "Properties were distroyed. Total Loss $500,000");
  const std::string spared = lots + Lot(85, "CHH", "100000", true) + crash;
  EXPECT_EQ(Told(spared + values),
            "50000 | 25000 | 25000 | 100000 | 50000 | D | D | D | CHH | 0 | -1 | 5 | 0 | $1,000 | "
            "Plane Crash !!  95");
  EXPECT_EQ(NewsDuring(spared)[0], "Properties were distroyed. Total Loss $400,000");
}

/// Repairs fall due on lot 37 in the computer's half of the turn.
std::string RepairsOn37() { return Calm() + Draws({{44, 37}}) + endTurn; }

TEST(Repairs, PlayerPaysAFifthIfADollarIsLeft) {
  const char* bill = "click SV.CMDOK\n";
  const char* billAndRuin = "click SV.CMDOK\nclick SV.CMDOK\n";
  struct Row {
    const char* tag;
    const char* value;
    const char* cash;
    const char* clicks;
    const char* expected;  // cash, tag, value, bank
  };
  for (const auto& [tag, value, cash, clicks, expected] : {
           Row{"PHH", "100000", "$20,001", bill, "$1 | $0 | PHH | 100000 | 1000000"},
           Row{"PDH", "100000", "$20,001", bill, "$1 | $0 | PDH | 100000 | 1000000"},
           Row{"PHH", "100000", "$20,000", billAndRuin, "$20,000 | $0 | PU | 30000 | 1070000"},
           Row{"PSH", "100002.5", "$20,001", billAndRuin,
               "$20,001 | $0 | PU | 30000.75 | 1070001.75"},
           Row{"PU", "100000", "$20,000", "", "$20,000 | $0 | PU | 100000 | 1000000"},
       }) {
    EXPECT_EQ(Told(Lot(37, tag, value, true) + Cash(cash, "$0") + RepairsOn37() + clicks +
                   Cashes() + Lot37() + Gets({"BankCash", "LotInsured(37)"})),
              std::string(expected) + " | -1")  // the insurance stands
        << tag << " " << cash;
  }
}

TEST(Repairs, PlayerReadsTheBillAndThenTheRuin) {
  EXPECT_EQ(Told(Lot(37, "PHH", "100000") + Cash("$20,000", "$0") + RepairsOn37() +
                 "get SV.Label1.Caption\nclick SV.CMDOK\nget SV.Label1.Caption\n"),
            "Property Repairs on Lot #  37\n\rRepairs to your property are needed. This will cost "
            "you $20,000 | You don't have enough money ! The building is comdemed !");
}

TEST(Repairs, OkCutsTheBlinkShort) {
  class Impatient : public ScriptedGame {
   public:
    using ScriptedGame::ScriptedGame;
    void YieldUntilEvent() override {
      ScriptedGame::YieldUntilEvent();
      ++waits;
      game().Click(game().SV->CMDOK);
    }
    int waits = 0;
  };
  std::istringstream commands("click GST.CMDSTART\n" + Lot(37, "PHH", "100000") +
                              Cash("$900,000", "$0") + RepairsOn37());
  std::ostringstream lines;
  Impatient player(commands, lines);
  player.Run();
  EXPECT_EQ(player.waits, 1);
  EXPECT_EQ(player.game().GFM->PCredit.Caption, "$880,000");
  EXPECT_TRUE(player.game().GFM->Image1[37].Visible);
}

TEST(Repairs, ComputerPaysSilentlyOrLosesItsBuilding) {
  struct Row {
    const char* tag;
    const char* cash;
    const char* answer;
    const char* expected;  // cashes, tag, value, bank
  };
  for (const auto& [tag, cash, answer, expected] : {
           Row{"CHH", "$20,001", "", "$0 | $1 | CHH | 100000 | 1000000"},
           Row{"CHH", "$20,000", "answer ok\n", "$0 | $20,000 | CU | 30000 | 1070000"},
           Row{"CDR", "$10,000", "", "$0 | $10,000 | CDR | 100000 | 1000000"},
       }) {
    EXPECT_EQ(Told(Set("SkillLevel", "1") + Lot(37, tag, "100000") + Cash("$0", cash) +
                   RepairsOn37() + answer + Cashes() + Lot37() + "get BankCash\n"),
              expected)
        << tag << " " << cash;
  }
  const auto lines =
      Play("click GST.CMDSTART\n" + Lot(37, "CHH", "100000") + Cash("$0", "$0") + RepairsOn37());
  EXPECT_EQ(lines.back()["message"].dump(),
            R"({"style":0,"text":"Computer building #  37 was condemed","title":"Zelvo"})");
}

}  // namespace
}  // namespace zelvo::test
