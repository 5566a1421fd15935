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

}  // namespace
}  // namespace zelvo::test
