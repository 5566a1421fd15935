#pragma once

#include <cmath>
#include <initializer_list>
#include <map>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "game/random.h"
#include "headless/scripted_game.h"
#include "tests/play.h"

namespace zelvo::test {

/// Commands that put a lot's tag with its picture, its value and its insurance.
inline std::string Lot(int lot, const std::string& tag, const std::string& value,
                       bool insured = false) {
  static const std::map<std::string, std::string> pictures = {
      {"U", "ICF.LUND"},      {"O", "ICF.LOPEN"},   {"D", "ICF.LDIRT"},
      {"G", "ICF.GOLF"},      {"K", "ICF.PARK"},    {"PU", "ICF.PLAYER"},
      {"CU", "ICF.COMP"},     {"PSH", "GFM.SUPER"}, {"PTH", "GFM.THRIFTY"},
      {"PQH", "GFM.QUALITY"}, {"PBH", "GFM.BEST"},  {"PRH", "GFM.RAMADA"},
      {"PHH", "GFM.HILTON"},  {"CSH", "ICF.SUPER"}, {"CTH", "ICF.THRIFTY"},
      {"CQH", "ICF.QUALITY"}, {"CBH", "ICF.BEST"},  {"CRH", "ICF.RAMADA"},
      {"CHH", "ICF.HILTON"},  {"PDH", "GFM.Rest"},  {"CDR", "ICF.CREST"},
      {"MAP", "ICF.MALL"},    {"MAC", "ICF.MALL"},  {"MAX", "ICF.MALL"},
      {"XC", "ICF.CITY"}};
  const std::string index = "(" + std::to_string(lot) + ")";
  return "set GFM.Image1" + index + ".Tag \"" + tag + "\"\nset GFM.Image1" + index + ".Picture " +
         pictures.at(tag) + "\nset LotValue" + index + " " + value + "\nset LotInsured" + index +
         (insured ? " -1\n" : " 0\n");
}

inline std::string Cash(const std::string& player, const std::string& computer) {
  return "set GFM.PCredit.Caption \"" + player + "\"\nset GFM.CCredit.Caption \"" + computer +
         "\"\n";
}

inline std::string Set(const std::string& name, const std::string& value) {
  return "set " + name + " " + value + "\n";
}

inline std::string Gets(std::initializer_list<std::string> names) {
  std::string script;
  for (const std::string& name : names) script += "get " + name + "\n";
  return script;
}

/// The values of a script's `get` commands in one line, as in "$1,000 | CU | -1".
inline std::string Told(const std::string& script) {
  std::string line;
  for (const std::string& text : Texts(script)) line += (line.empty() ? "" : " | ") + text;
  return line;
}

/// A board on which an ordinary event changes nothing: every request ends in a rezoning, and finds
/// no condemned lot above the drawn one. Meters, fires and repairs do their work all the same.
inline std::string Calm() {
  return "set OpenLots 50\nset LastPark -1\nset LastGolf -1\nset LastCondemned -1\n";
}

/// A draw of the board at a second of the clock, above 0. `attempts` counts those since the last
/// event that came to a full end; fires, strikes and repairs do not end it.
struct Draw {
  int second = 1;
  int lot = 1;
  int attempts = 0;
};

/// Commands that set the clock to the first draw's second and the generator so that the next draws
/// fall on the wanted lots, each at its first attempt.
inline std::string Draws(std::initializer_list<Draw> draws) {
  const auto falls = [](std::uint32_t state, const Draw& draw) {
    const double width = 4 * draw.second + 300 + draw.attempts;
    const int digit = draw.second % 10 == 0 ? 1 : draw.second % 10;
    // No tie comes up here that matters: a neighbouring state serves as well.
    return std::lround(state * width / RandomGenerator::modulus) / digit == draw.lot;
  };
  for (std::uint32_t state = 0; state < RandomGenerator::modulus; ++state) {
    RandomGenerator generator{state};
    bool all = true;
    for (const Draw& draw : draws) all = all && falls(generator.Next(1), draw);
    if (!all) continue;
    const int second = draws.begin()->second;
    return "set Generator " + std::to_string(state) +
           "\nset FreshLot 0\nclock 12:00:" + (second < 10 ? "0" : "") + std::to_string(second) +
           "\n";
  }
  throw std::logic_error("no state of the generator draws these lots");
}

/// What the message panel shows at each wait of the game, without repetitions; a script's lines
/// come too late for news that the next rule overwrites.
inline std::vector<std::string> NewsDuring(const std::string& script) {
  class Watcher : public ScriptedGame {
   public:
    using ScriptedGame::ScriptedGame;
    void YieldUntilEvent() override {
      const std::string& shown = game().GFM->PSHOW.Caption;
      if (news.empty() || news.back() != shown) news.push_back(shown);
      ScriptedGame::YieldUntilEvent();
    }
    std::vector<std::string> news;
  };
  std::istringstream commands("click GST.CMDSTART\n" + script);
  std::ostringstream lines;
  Watcher watcher(commands, lines);
  watcher.Run();
  return watcher.news;
}

}  // namespace zelvo::test
