#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "game/random.h"
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

inline std::string Set(const std::string& name, const std::string& value) {
  return "set " + name + " " + value + "\n";
}

inline std::string Cash(const std::string& player, const std::string& computer) {
  return Set("GFM.PCredit.Caption", '"' + player + '"') +
         Set("GFM.CCredit.Caption", '"' + computer + '"');
}

inline std::string Level(int level) { return Set("SkillLevel", std::to_string(level)); }

constexpr const char* endTurn = "click GFM.CMDGO\n";

/// `get` commands for the two sides' cash, and for a lot's tag and value.
inline std::string Cashes() { return Get("GFM.PCredit.Caption GFM.CCredit.Caption"); }
inline std::string TagOf(int lot) { return Get("GFM.Image1(" + std::to_string(lot) + ").Tag"); }
inline std::string TagAndValue(int lot) {
  return TagOf(lot) + Get("LotValue(" + std::to_string(lot) + ")");
}

/// The values of a script's `get` commands in one line, as in "$1,000 | CU | -1".
inline std::string Told(const std::string& script) {
  std::string line;
  for (const std::string& text : Texts(script)) line += (line.empty() ? "" : " | ") + text;
  return line;
}

/// Scripts and what their `get` commands tell.
using Rows = std::vector<std::pair<std::string, std::string>>;

/// Plays the script of each row between the same beginning and the same end.
inline void ExpectTold(const std::string& before, const Rows& rows, const std::string& after = "") {
  for (const auto& [script, told] : rows) EXPECT_EQ(Told(before + script + after), told) << script;
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

/// What the message panel shows at the waits of the game; a script's lines come too late for news
/// that the next rule overwrites.
inline std::set<std::string> NewsDuring(const std::string& script) {
  struct Watcher : Scripted {
    using Scripted::Scripted;
    void YieldUntilEvent() override {
      news.insert(game().GFM->PSHOW.Caption);
      Scripted::YieldUntilEvent();
    }
    std::set<std::string> news;
  };
  Watcher watcher("click GST.CMDSTART\n" + script);
  watcher.Run();
  return watcher.news;
}

}  // namespace zelvo::test
