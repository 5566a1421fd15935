#include <gtest/gtest.h>

#include <cmath>

#include "game/random.h"
#include "tests/play.h"

namespace zelvo::test {
namespace {

/// Commands that set the clock to a second above 0, and the generator so that the first draw then
/// falls on the lot.
std::string Draw(int second, int lot) {
  const int digit = second % 10 == 0 ? 1 : second % 10;
  std::uint32_t state = 0;
  const auto drawn = [&] {
    const std::uint32_t number = RandomGenerator{state}.Next(1);
    return std::lround(number * (4.0 * second + 300) / RandomGenerator::modulus) / digit;
  };
  // No tie comes up here that matters: a neighbouring state serves as well.
  while (drawn() != lot) ++state;
  return Set("Generator", std::to_string(state)) +
         "set FreshLot 0\nclock 12:00:" + std::to_string(100 + second).substr(1) + "\n";
}

/// A game whose clock shows 22 once a script has seen it for one event: the opening ends at the
/// fifth reading. At 22 repairs end an event, and do nothing to a lot without a building.
struct OneEvent : Scripted {
  using Scripted::Scripted;
  TimeOfDay WallClock() override {
    return ++readings <= 6 ? Scripted::WallClock() : TimeOfDay{12, 0, 22};
  }
  int readings = 0;
};

/// What the `get` commands tell after a turn of a poor computer, whose first event comes at the
/// second that the script set, and what was heard.
std::string Turn(const std::string& script, const std::string& gets) {
  std::string told, heard;
  const auto lines = OneEvent("click GST.CMDSTART\n" + Cash("$1,000,000", "$0") +
                              Set("OpenLots", "5") + script + "click GFM.CMDGO\n" + gets)
                         .Lines();
  for (std::size_t i = 2; i < lines.size(); ++i) {  // behind the start and its sounds
    EXPECT_FALSE(lines[i].contains("error")) << lines[i];
    if (lines[i].contains("value")) told += lines[i]["value"].dump() + " ";
    for (const Json& cue : lines[i]["cues"].items()) {
      heard += cue["file"].text() + " ";
    }
  }
  std::erase(told, '"');
  return told + heard;
}

TEST(BoardEvent, TheSecondsAndTheStateOfTheBoardDecide) {
  // The second, what the lot was, what else is given; then its tag, the open lots, parks, golf
  // courses and condemned lots, which of these three was the last, the meters, and what is heard.
  for (const std::string& row : Pieces(R"(
3 U -> K 4 1 0 0 -1 0 0 0 0 0 PARK.WAV | 13 O LastPark -1 -> G 4 0 1 0 0 -1 0 0 0 0 Golf.WAV |
23 U ParkCount 15 -> D 5 15 0 1 0 0 -1 0 0 0 PLOPFUND.WAV |
17 O LastGolf -1 LastPark -1 -> D 4 0 0 1 0 0 -1 0 0 0 PLOPFUND.WAV |
7 G GolfCount 13 LastPark -1 -> D 5 0 12 1 0 0 -1 0 0 0 PLOPFUND.WAV |
7 U GolfCount 12 -> G 4 0 13 0 0 -1 0 0 0 0 Golf.WAV |
4 K ParkCount 2 CondemnedLots 9 -> D 5 1 0 10 0 0 -1 0 0 0 PLOPFUND.WAV |
14 U LastCondemned -1 -> O 6 0 0 0 0 0 0 0 0 0 | 4 U CondemnedLots 10 -> U 5 0 0 10 0 0 0 0 0 0 |
5 D CondemnedLots 1 LastPark -1 OpenLots 15 -> O 16 0 0 0 0 0 0 0 0 0 |
15 K ParkCount 1 -> O 6 1 0 0 0 0 0 0 0 0 | 5 U OpenLots 16 -> U 16 0 0 0 0 0 0 0 0 0 |
6 U OpenLots 4 -> O 5 0 0 0 0 0 0 0 0 0 | 6 U -> K 4 1 0 0 -1 0 0 1 0 0 PARK.WAV |
2 U TurnNo 1 GolfCount 1 -> O 6 0 1 0 0 0 0 0 1 0 |
9 U TurnNo 1 LastGolf -1 -> O 6 0 0 0 0 0 0 0 0 1 |
1 U TurnNo 0 ParkCount 14 -> K 4 15 0 0 -1 0 0 0 0 0 PARK.WAV |
8 D OpenLots 15 CondemnedLots 1 -> O 16 0 0 0 0 0 0 0 0 0 |
8 O OpenLots 21 -> D 20 0 0 1 0 0 -1 0 0 0 PLOPFUND.WAV |
8 O OpenLots 20 -> K 19 1 0 0 -1 0 0 0 0 0 PARK.WAV | 8 K ParkCount 15 -> K 5 14 0 0 0 0 0 0 0 0 |
8 G GolfCount 13 -> D 5 0 11 1 0 0 -1 0 0 0 PLOPFUND.WAV |
3 U StrikeMeter 10 CasinoMeter 18 PlaneMeter 35 -> K 4 1 0 0 -1 0 0 10 18 35 PARK.WAV |
3 U StrikeMeter 11 CasinoMeter 19 -> D 5 0 0 1 0 0 0 0 19 0 EXPLODE.WAV |
3 U CasinoMeter 19 PlaneMeter 36 -> XC 5 0 0 0 0 0 0 0 0 36 FANFARE.WAV |
8 XC CasinoMeter 19 -> XC 5 0 0 0 0 0 0 0 19 0 | 22 U StrikeMeter 11 -> U 5 0 0 0 0 0 0 11 0 0 |
3 U PlaneMeter 36 -> D 5 0 0 5 0 0 0 0 0 0 EXPLODE.WAV SIREN.WAV | 7 CU -> CU 5 0 0 0 0 0 0 0 0 0 |
33 PU CasinoMeter 19 -> PU 5 0 0 0 0 0 0 0 19 0 | 3 PU -> PU 5 0 0 0 0 0 0 0 0 0 |
4 XC -> XC 5 0 0 0 0 0 0 0 0 0 | 5 PU -> PU 5 0 0 0 0 0 0 0 0 0 | 6 CU -> CU 5 0 0 0 0 0 0 1 0 0 |
2 XC -> XC 5 0 0 0 0 0 0 0 1 0 | 9 PU -> PU 5 0 0 0 0 0 0 0 0 1)")) {
    std::istringstream words(row);
    int second = 0;
    std::string from, name, value, outcome, given;
    words >> second >> from;
    while (words >> name && name != "->" && words >> value) given += Set(name, value);
    std::getline(words >> std::ws, outcome);
    EXPECT_EQ(Turn(Lot(30, from, "50000") + given + Draw(second, 30),
                   Get("GFM.Image1(30).Tag OpenLots ParkCount GolfCount CondemnedLots LastPark "
                       "LastGolf LastCondemned StrikeMeter CasinoMeter PlaneMeter")),
              outcome + " ")
        << row;
  }
}

/// Sets the clock, and the generator so that its next number is `number` / 2^24.
std::string Number(int second, std::uint32_t number) {
  std::uint32_t inverse = 1'140'671'485;
  for (int i = 0; i < 5; ++i) inverse *= 2 - 1'140'671'485 * inverse;
  const std::uint32_t state = (number - 12'820'163) * inverse % RandomGenerator::modulus;
  return "clock 12:00:" + std::to_string(100 + second).substr(1) + "\n" +
         Set("Generator", std::to_string(state));
}

TEST(BoardEvent, TheDrawIsRoundedToTheNearestEvenAndDivided) {
  constexpr std::uint32_t half = RandomGenerator::modulus / 2;
  for (const auto& [second, freshLot, number, news] :
       {std::tuple{1, "0", half / 16,
                   "Park Built in Section  10 PARK.WAV CLICK.WAV "},     // 9.5, to even
        {1, "0", half / 16 * 3, "Park Built in Section  28 PARK.WAV "},  // 28.5, to even
        {1, "0", half / 16 * 3 + 1, "Park Built in Section  29 PARK.WAV "},
        {37, "0", half, "Golf Course Built in Section  32 Golf.WAV "},   // 448 / 2 / 7
        {40, "0", half / 4, "Park Built in Section  58 PARK.WAV "},      // a digit of 0 counts as 1
        {37, "99", half, "Golf Course Built in Section  39 Golf.WAV "},  // 273.5, to 274
        {1, "0", 0U, " "},
        {1, "0", half, " "}}) {  // outside the board, and drawn again
    EXPECT_EQ(Turn(Set("FreshLot", freshLot) + Number(second, number), "get GFM.LSHOW.Caption\n"),
              news)
        << second << " " << number;
  }
}

TEST(BoardEvent, FireGoesBeforeRepairs) {
  std::string hotels;
  for (int lot = 0; lot < 100; ++lot) hotels += Lot(lot, "PBH", "1");
  // At the first attempt, on lot 0, the fire falls due; at the second repairs do.
  EXPECT_EQ(Turn(hotels + Number(33, 0), "get GFM.LSHOW.Caption\n").substr(0, 19),
            "Fire burns building");
}

TEST(BoardEvent, RezoningTakesTheFirstCondemnedLotUpward) {
  for (const auto& [second, from, condemnedLots, told] :
       {std::tuple{5, "U", "2", "D U U D 1 125000 "},  // lots 20, 30, 40, 50
        {5, "D", "2", "D U D D 1 125000 "},            // the lot itself comes first
        {8, "K", "12", "D K D D 12 125000 "},
        {8, "K", "13", "D K U D 12 125000 "}}) {  // a park too many with many condemned lots
    EXPECT_EQ(Turn(Lot(20, "D", "1") + Lot(30, from, "1") + Lot(40, "D", "125000") +
                       Lot(50, "D", "1") + Set("OpenLots", "16") + Set("ParkCount", "15") +
                       Set("CondemnedLots", condemnedLots) + Draw(second, 30),
                   Get("GFM.Image1(20).Tag GFM.Image1(30).Tag GFM.Image1(40).Tag "
                       "GFM.Image1(50).Tag CondemnedLots LotValue(40)")),
              told)
        << second;
  }
}

TEST(BoardEvent, ACondemnedLotLosesValueAndLowersItsNeighbours) {
  EXPECT_EQ(Turn(Lot(30, "U", "100.0003") + Set("Delta", "30000") + Draw(4, 30),
                 Get("LotValue(30) LotValue(29) Delta")),
            "25.0001 95000 30000 PLOPFUND.WAV ");
}

TEST(Spread, GoesToTheNeighboursByIndex) {
  for (const auto& [lot, neighbours] :
       {std::pair{9, "8 10 19 "}, {30, "20 29 31 40 "}, {90, "80 89 91 "}, {99, "89 98 "}}) {
    const auto values = Last(Lot(lot, "U", "50000") + Set("Delta", "7") + Set("OpenLots", "9") +
                             // Nothing but an opening is left for the second event.
                             Set("LastGolf", "-1") + Set("LastCondemned", "-1") + Draw(3, lot) +
                             "click GFM.CMDGO\nstate\n")["state"]["variables"]["LotValue"]
                            .items();
    std::string raised;
    for (int i = 0; i < 100; ++i) {
      if (values[i].text().ends_with("7.0000")) raised += std::to_string(i) + " ";
    }
    EXPECT_EQ(raised, neighbours) << lot;
  }
}

TEST(Worth, TheThresholdIsTestedSideBySide) {
  for (const auto& [given, told] :
       {std::pair{"set LotValue(0) 99999999\n", ""},
        {"set LotValue(0) 99999999.0001\n", "Player | With $99,999,999"},
        {"set LotValue(99) 100000000\n", "Computer | With $100,000,000"},
        {"set LotValue(99) 200000000\nset LotValue(0) 100000000\n", "Player | With $100,000,000"},
        {"set BankCash 123456789.5\n", ""},
        {"set BankCash 123456789.5\nset BankPlays -1\n", "The Bank | With $123,456,790"},
        {"set GFM.PCredit.Caption \"$500,000,000\"\n", ""},
        {"set LotValue(50) 500000000\nset GFM.Image1(50).Tag \"MAP\"\n", ""}}) {
    // A park at second 3 sums the worths; the computer is too poor to act.
    const std::string script = given + Set("GFM.CCredit.Caption", "\"$0\"") + Set("OpenLots", "9") +
                               "clock 12:00:03\nclick GFM.CMDGO\n";
    EXPECT_EQ(Last(script)["waiting"], *told == '\0' ? "GFM" : "WINX") << given;
    if (*told == '\0') continue;
    // The event of the player's turn is to open a lot, which tests no worth; the turn runs to its
    // end over a hidden board.
    const std::string close = "clock 12:00:05\nclick WINX.CMDEXIT\n";
    EXPECT_EQ(Told(script + Get("WINX.Label1.Caption WINX.Label2.Caption WINX.Label3.Caption") +
                   close + "get TurnNo\nclick GST.CMDSTART\nget TurnNo\n"),
              std::string("Billionaire !!! | ") + told + " | 1 | 0");
  }
}

}  // namespace
}  // namespace zelvo::test
