#include <gtest/gtest.h>

#include "tests/position.h"

namespace zelvo::test {
namespace {

std::string Lot37(const std::string& tag, const std::string& value = "100000",
                  bool insured = false) {
  return Lot(37, tag, value, insured);
}

/// A fire on lot 37 in the player's half of the turn; the computer's half has one on bare ground.
std::string FireOn37() { return Draws({{33, 2}, {33, 37, 1}}) + endTurn; }

TEST(Strike, PaysTheInsuredAndTellsTheOthersTheirLoss) {
  const std::string insured = Lot37("PHH", "400000", true);
  const std::string fire = FireOn37();
  const std::string mallFire = FireOn37() + "close RB\n";
  // The meter passes its mark in the computer's half.
  const std::string lightning =
      Calm() + Set("StrikeMeter", "10") + Draws({{46, 60}, {46, 37}}) + endTurn;
  const std::string paid = "Insurance pays up | 80000 | 3 | ";
  const std::string burnt = "Fire burns building 37 | 120000 | 3 | $1,000,000 | $0";
  const std::string struck = "Lighting Struck Lot  37 | 20000 | 0 | $1,000,000 | $0";
  const Rows rows = {
      {insured + fire, " Player Loses $0 | " + paid + "$1,400,000 | $0"},
      {Lot37("PHH", "400000") + fire,
       " Player Loses $400,000 | Fire burns building 37 | 80000 | 3 | $1,000,000 | $0"},
      {Lot37("CSH", "400000", true) + fire,
       " Computer Loses $0 | " + paid + "$1,000,000 | $400,000"},
      {Lot37("CDR", "600000") + fire, " Computer Loses $600,000 | " + burnt},
      {Lot37("MAP", "600000") + mallFire, " Player Loses $300,000 | " + burnt},
      {Level(1) + Lot37("MAC", "600000") + mallFire, " Computer Loses $300,000 | " + burnt},
      // On the higher levels nobody owns the computer's mall.
      {Level(2) + Lot37("MAC", "600000", true) + mallFire, " | " + burnt},
      {Lot37("MAX", "600000") + fire, " | " + burnt},
      {insured + lightning, " Player Loses $0 | Insurance pays up | 80000 | 0 | $1,400,000 | $0"},
      {Lot37("PU") + lightning, " Player Loses $100,000 | " + struck},
      {Lot37("XC") + lightning, " | " + struck},
      {Lot37("K") + lightning, " | " + struck}};
  for (const auto& [script, told] : rows) {
    EXPECT_EQ(Told(Cash("$1,000,000", "$0") + Set("StrikeMeter", "3") + script +
                   Get("GFM.PSHOW.Caption GFM.LSHOW.Caption LotValue(37) StrikeMeter") + Cashes() +
                   TagOf(37) + Get("LotInsured(37) MallNext CondemnedLots BankCash")),
              "Property was distroyed. All is lost " + told + " | D | 0 | 1 | 1 | 1000000")
        << script;
  }
}

TEST(Strike, FireFindsNothingToBurnOnBareGround) {
  for (const char* tag : {"U", "D", "PU", "CU", "XC"}) {
    EXPECT_EQ(Told(Lot37(tag) + Cash("$0", "$0") + FireOn37() + TagAndValue(37) +
                   Get("MallNext FireFlag LotValue(38)")),
              std::string(tag) + " | 100000 | 0 | 0 | 75000");
  }
}

TEST(Strike, CountsBuildingsOutButForTheComputersRestaurant) {
  ExpectTold(Cash("$0", "$0"),
             {{Lot37("PSH"), " 1 |  1"},
              {Lot37("PDH"), " 1 |  1"},
              {Lot37("CHH"), " 1 |  1"},
              {Lot37("CDR"), " 1 |  2"}},
             FireOn37() + Get("GFM.PNOH.Caption GFM.CNOH.Caption"));
}

TEST(Strike, DragsTheNeighboursDownToTheirFloorWithoutMovingCash) {
  const std::string script = Lot37("PHH", "400000") + Lot(27, "PSH", "500000") +
                             Lot(47, "CSH", "500000") + Lot(36, "PU", "5000") +
                             Cash("$1,000", "$0") + FireOn37();
  EXPECT_EQ(Last(script)["cues"].dump(),
            R"([{"file":"EXPLODE.WAV","waits":false},{"file":"CLICK.WAV","waits":true},)"
            R"({"file":"CLICK.WAV","waits":true}])");
  EXPECT_EQ(Told(script + Cashes() +
                 Get("LotValue(36) LotValue(38) LotValue(27) LotValue(47) GFM.PNW.Caption")),
            "$1,000 | $0 | 10000 | 10000 | 100000 | 100000 | $160,000");
}

TEST(Strike, TakesAMallOffTheCountWhoeverOwnedIt) {
  const std::string cleanup =
      "The zoing board has met and decided you must pay 50% cleanup costs on the destroyed mall. ";
  ExpectTold(Cash("$0", "$0"),
             {{Lot37("MAP") + Set("PlayerMalls", "2"), cleanup + "| 1"},
              {Lot37("MAC") + Set("PlayerMalls", "2"), cleanup + "| 1"},
              {Lot37("MAC") + Set("PlayerMalls", "0"), cleanup + "| 0"}},
             FireOn37() + "get RB.Label2.Caption\nclose RB\nget PlayerMalls\n");
  // In the computer's half the board stays silent.
  EXPECT_EQ(Last(Lot37("MAP") + Cash("$0", "$0") + Draws({{33, 37}}) + endTurn)["waiting"], "GFM");
}

/// A mall zoned on lot 37, worth 100,000, in the player's half of the turn: in the computer's half
/// the draw falls on a taken lot, and what is due stays due.
std::string MallOn37(const char* tag = "U") {
  return Lot37(tag) + Set("MallNext", "1") + Set("StrikeMeter", "7") +
         Draws({{33, 99}, {33, 37, 1}}) + endTurn;
}

TEST(Mall, IsOfferedToThePlayerFirstAndThenToTheComputerByLevel) {
  const std::string mall = MallOn37();
  const std::string yes = mall + "click ML.CMD1(0)\n";
  const std::string no = mall + "click ML.CMD1(1)\n";
  const std::string seen = "answer ok\n";
  ExpectTold(
      "",
      {{Cash("$1,000,000", "$0") + yes, "$800,000 | $0 | MAP | 1000000 | 1220000 | -1 | 1"},
       {Level(3) + Cash("$200,000", "$0") + yes, "$0 | $0 | MAP | 1000000 | 1220000 | -1 | 1"},
       {Cash("$199,999", "$9") + yes + seen, "$199,999 | $9 | U | 200000 | 1044000 | 0 | 0"},
       {Cash("$900,000", "$9") + no, "$900,000 | $9 | U | 200000 | 1044000 | 0 | 0"},
       {Level(1) + Cash("$0", "$200,001") + no + seen,
        "$0 | $1 | MAC | 1000000 | 1220000 | -1 | 0"},
       {Level(2) + Cash("$0", "$200,000") + no, "$0 | $200,000 | U | 200000 | 1044000 | 0 | 0"},
       {Level(1) + Cash("$0", "$199,999") + no, "$0 | $199,999 | MAX | 1000000 | 1220000 | -1 | 0"},
       {Level(3) + Cash("$0", "-$5,000") + no, "$0 | -$5,000 | MAC | 1000000 | 1220000 | -1 | 0"},
       {Level(3) + Cash("$0", "$0") + yes + seen, "$0 | $0 | MAC | 1000000 | 1220000 | -1 | 0"}},
      Cashes() + TagAndValue(37) + Get("BankCash OpenLots PlayerMalls"));
}

TEST(Mall, TellsThePriceAndWhatBecameOfTheOffer) {
  const std::string offer = Level(1) + Cash("$199,999", "$300,000") + MallOn37();
  const std::string dear = offer + "click ML.CMD1(0)\n";
  EXPECT_EQ(Last(dear)["message"].dump(),
            R"({"style":48,"text":"You Don't have enough Money !","title":"Get lost"})");
  EXPECT_EQ(Last(dear + "answer ok\n")["message"].dump(),
            R"({"style":48,"text":"Computer invested in mall","title":"Zelvo"})");
  // The computer's cash stays for the next spread to find; a new mall moves no neighbour.
  EXPECT_EQ(Told(offer + "get ML.Label2.Caption\nclick ML.CMD1(1)\nanswer ok\n" +
                 Get("Delta MallNext LotValue(38) GFM.Image1(37).Picture")),
            "This property has been zone for a Mall. You have first dibs on investing. The "
            "investment is $200,000, you will have a 50% share in the Mall and it's profit and "
            "loss. Do you wish to invest ? | 100000 | 0 | 75000 | ICF.MALL");
}

TEST(Mall, WaitsForALotThatNobodyHas) {
  for (const char* tag : {"PU", "CHH", "MAX", "XC"}) {
    EXPECT_EQ(Told(MallOn37(tag) + TagAndValue(37) + Get("MallNext BankCash")),
              std::string(tag) + " | 100000 | 1 | 1000000");
  }
  for (const char* tag : {"O", "D", "K"}) EXPECT_EQ(Last(MallOn37(tag))["waiting"], "ML") << tag;
}

/// A casino comes to lot 37 in the player's half of the turn.
std::string CasinoOn37() {
  return Calm() + Set("CasinoMeter", "18") + Draws({{42, 90}, {42, 37}}) + endTurn;
}

TEST(Casino, BuysFromTheWillingPlayerAndFromTheComputerUnasked) {
  const std::string casino = Cash("$1,000,000", "$0") + Set("Delta", "7000") + CasinoOn37();
  const std::string sold = " | XC | 1000000 | 275000 | 1036000 | 0";
  // No price is set for a lot of nobody: the neighbours get what was last reckoned.
  const std::string tooBad =
      "Too bad You didn't own the lot ! | $1,000,000 | $0 | XC | 1000000 | 82000 | 1000000 | 0";
  ExpectTold(
      "",
      {{Lot37("PHH") + casino + "answer yes\n",
        "You're Richer !  Player Gets $$200,000 | $1,200,000 | $0" + sold},
       {Lot37("PHH") + casino + "answer no\n",
        "Player\n\rChoose Purchased or open lot to build or buy | $1,000,000 | $0 | PHH | "
        "100000 | 75000 | 1000000 | 0"},
       {Lot37("CHH") + casino,
        "Computer gets Richer. Too bad You didn't own the lot ! | $1,000,000 | $200,000" + sold},
       {Lot37("O") + casino, tooBad},
       {Lot37("MAP") + casino, tooBad}},
      "get GFM.PSHOW.Caption\n" + Cashes() + TagAndValue(37) +
          Get("LotValue(38) BankCash CasinoMeter"));
}

TEST(Casino, AsksThePlayerAndPaysTheNeighboursOwners) {
  const std::string script =
      Lot37("PHH") + Lot(47, "PU", "100000") + Cash("$0", "$0") + CasinoOn37();
  EXPECT_EQ(Last(script)["message"].dump(),
            R"({"style":36,"text":"Current lot value is $100,000\n\rCasino wants to buy your )"
            R"(property #  37 Do you wish to sell it for $200,000","title":"Buy out"})");
  EXPECT_EQ(Told(script + "answer yes\n" + Cashes() + "get GFM.LSHOW.Caption\n"),
            "$215,000 | $0 | Casino Buys Lot 37");
}

TEST(PlaneCrash, FlattensTheLotAndItsUninsuredNeighbours) {
  const std::string crash = Lot(95, "PHH", "200000", true) + Lot(94, "PHH", "100000") +
                            Lot(96, "XC", "100000") + Cash("$1,000", "$0") + Calm() +
                            Set("PlaneMeter", "36") + Draws({{40, 95}}) + endTurn;
  const std::string bare = Lot(85, "U", "100000") + crash;
  const std::string insured = Lot(85, "CHH", "100000", true) + crash;
  ExpectTold(
      "",
      {{bare, "D | 25000 | 0 | D | 50000 | 0 | D | 25000 | D | 25000 | 50000 | 5 | 0"},
       {insured, "CHH | 100000 | -1 | D | 50000 | 0 | D | 25000 | D | 25000 | 50000 | 5 | 0"}},
      TagAndValue(85) + Get("LotInsured(85)") + TagAndValue(95) + Get("LotInsured(95)") +
          TagAndValue(94) + TagAndValue(96) + Get("LotValue(93) CondemnedLots PlaneMeter"));
  EXPECT_TRUE(NewsDuring(bare).contains("Properties were distroyed. Total Loss $500,000"));
  EXPECT_TRUE(NewsDuring(insured).contains("Properties were distroyed. Total Loss $400,000"));
  EXPECT_EQ(Told(bare + Cashes()), "$1,000 | $0");
}

/// Repairs fall due on lot 37 in the computer's half of the turn.
std::string RepairsOn37() { return Calm() + Draws({{44, 37}}) + endTurn; }

TEST(Repairs, OwnerPaysAFifthIfADollarIsLeft) {
  const auto mine = [](const char* cash) { return Cash(cash, "$0") + RepairsOn37(); };
  const auto its = [](const char* cash) { return Level(1) + Cash("$0", cash) + RepairsOn37(); };
  const std::string bill = "click SV.CMDOK\n";
  const std::string ruin = bill + bill;
  const std::string seen = "answer ok\n";
  ExpectTold("",
             {{Lot37("PHH") + mine("$20,001") + bill, "$1 | $0 | PHH | 100000 | 1000000 | 0"},
              {Lot37("PDH") + mine("$20,001") + bill, "$1 | $0 | PDH | 100000 | 1000000 | 0"},
              // The insurance stands.
              {Lot37("PHH", "100000", true) + mine("$20,000") + ruin,
               "$20,000 | $0 | PU | 30000 | 1070000 | -1"},
              {Lot37("PSH", "100002.5") + mine("$20,001") + ruin,
               "$20,001 | $0 | PU | 30000.75 | 1070001.75 | 0"},
              {Lot37("PU") + mine("$20,000"), "$20,000 | $0 | PU | 100000 | 1000000 | 0"},
              {Lot37("CHH") + its("$20,001"), "$0 | $1 | CHH | 100000 | 1000000 | 0"},
              {Lot37("CHH") + its("$20,000") + seen, "$0 | $20,000 | CU | 30000 | 1070000 | 0"},
              {Lot37("CDR") + its("$10,000"), "$0 | $10,000 | CDR | 100000 | 1000000 | 0"}},
             Cashes() + TagAndValue(37) + Get("BankCash LotInsured(37)"));
}

TEST(Repairs, TellTheBillAndTheRuin) {
  EXPECT_EQ(Told(Lot37("PHH") + Cash("$20,000", "$0") + RepairsOn37() +
                 "get SV.Label1.Caption\nclick SV.CMDOK\nget SV.Label1.Caption\n"),
            "Property Repairs on Lot #  37\n\rRepairs to your property are needed. This will cost "
            "you $20,000 | You don't have enough money ! The building is comdemed !");
  EXPECT_EQ(Last(Lot37("CHH") + Cash("$0", "$0") + RepairsOn37())["message"].dump(),
            R"({"style":0,"text":"Computer building #  37 was condemed","title":"Zelvo"})");
}

TEST(Repairs, OkCutsTheBlinkShort) {
  struct Impatient : Scripted {
    using Scripted::Scripted;
    void YieldUntilEvent() override {
      Scripted::YieldUntilEvent();
      ++waits;
      game().Click(game().SV->CMDOK);
    }
    int waits = 0;
  };
  Impatient player("click GST.CMDSTART\n" + Lot37("PHH") + Cash("$900,000", "$0") + RepairsOn37());
  player.Run();
  EXPECT_EQ(player.waits, 1);
  EXPECT_EQ(player.game().GFM->PCredit.Caption, "$880,000");
}

}  // namespace
}  // namespace zelvo::test
