#pragma once

#include <array>
#include <deque>
#include <map>
#include <set>
#include <streambuf>
#include <string>

#include "faces/headless/stream_game.h"
#include "game/currency.h"
#include "tests/play.h"

namespace zelvo::test {

/// A player with a simple fixed policy at the other end of the scripted face. Each turn it takes
/// the first bare lot of its own, or else buys the first open or condemned lot within its cash, and
/// builds the dearest hotel there that it can pay for with insurance. It invests and sells when
/// asked, never borrows, draws the second chance card, and thinks a while before it ends its turn.
class PolicyPlayer : public std::streambuf {
 public:
  static constexpr int lastTurn = 400;

  PolicyPlayer(int level, const std::string& clock)
      : plan_{"set SkillLevel " + std::to_string(level), "clock " + clock, "click GST.CMDSTART"} {}

  /// Plays a game until somebody wins or the last turn is over.
  void Play() { scripted_.Run(); }

  Game& game() { return scripted_.game(); }
  /// "Player", "Computer", "The Bank" or, after the last turn, nobody.
  const std::string& winner() const { return winner_; }
  /// All lines of the game, to the letter.
  const std::string& transcript() const { return transcript_; }

 protected:
  int_type overflow(int_type c) override {
    transcript_ += static_cast<char>(c);
    return c;
  }
  int_type underflow() override {
    command_ = NextCommand() + "\n";
    setg(command_.data(), command_.data(), command_.data() + command_.size());
    return traits_type::to_int_type(command_.front());
  }

 private:
  std::string NextCommand() {
    const std::size_t start = transcript_.rfind('\n', transcript_.size() - 2) + 1;
    const Json line = Json::parse(transcript_.substr(start));
    const std::string waiting = line["waiting"].text();
    if (line.contains("message")) {
      if (line["message"]["style"] != 36) return "answer ok";
      return line["message"]["title"] == "Buy out" ? "answer yes" : "answer no";
    }
    if (waiting == "HS")
      return game().HS->CMDAN1[0].Visible ? "click HS.CMDAN1(0)" : "click HS.CMDAN1(1)";
    if (waiting == "CHN")
      return game().CHN->CMDOK.Visible ? "click CHN.CMDOK" : "click CHN.Image1(1)";
    if (waiting == "WINX") winner_ = game().WINX->Label2.Caption;
    static const std::map<std::string, std::string> ways = {{"RB", "close RB"},
                                                            {"SV", "click SV.CMDOK"},
                                                            {"ML", "click ML.CMD1(0)"},
                                                            {"WINX", "click WINX.CMDEXIT"}};
    if (const auto way = ways.find(waiting); way != ways.end()) return way->second;
    if ((waiting == "GST" && plan_.empty()) || game().TurnNo >= lastTurn) return "quit";
    if (plan_.empty()) PlanTurn();
    std::string command = plan_.front();
    plan_.pop_front();
    return command;
  }

  Currency PlayersCash() {
    std::string digits = game().GFM->PCredit.Caption;
    std::erase_if(digits, [](char c) { return c == '$' || c == ','; });
    return Dollars(std::stoll(digits));
  }

  void PlanTurn() {
    const ICFWindow& icons = *game().ICF.operator->();
    if (!PlanBuilding({icons.PLAYER.Picture}, false)) {
      PlanBuilding({icons.LOPEN.Picture, icons.LDIRT.Picture}, true);
    }
    plan_.insert(plan_.end(), {"wait 5300", "click GFM.CMDGO"});
  }

  /// On the first lot that shows one of the pictures and can be paid for. A lot that is bought may
  /// stay bare.
  bool PlanBuilding(const std::set<PictureId>& wanted, bool buy) {
    const Currency cash = PlayersCash();
    for (int lot = 0; lot < lotCount; ++lot) {
      const Currency left = buy ? cash - game().LotValue[lot] : cash;
      if (!wanted.contains(game().GFM->Image1[lot].Picture) || left < Currency()) continue;
      const std::string icon = DearestClass(lot, left);
      if (icon.empty() && !buy) continue;
      plan_.push_back("click GFM.Image1(" + std::to_string(lot) + ")");
      if (buy) plan_.emplace_back("click GFM.CMDBUY");
      if (!icon.empty()) {
        plan_.insert(plan_.end(), {"click GFM.CMDBUILD", "click GFM." + icon, "click GFM.BUILDIT"});
      }
      return true;
    }
    return false;
  }

  /// The icon of the dearest hotel that the cash pays for with insurance; the zoning board wants no
  /// cheap ones on the edges.
  std::string DearestClass(int lot, Currency cash) {
    static constexpr std::array<int, 4> premiumPercent = {10, 20, 25, 30};
    static constexpr std::array<const char*, 6> icons = {"HILTON",  "RAMADA",  "BEST",
                                                         "QUALITY", "THRIFTY", "SUPER"};
    const bool edge = lot % boardWidth == 0 || lot % boardWidth == boardWidth - 1;
    for (int multiple = 7; multiple >= (edge ? 4 : 2); --multiple) {
      const Currency cost = game().LotValue[lot] * multiple;
      if (cost * (100 + premiumPercent[game().SkillLevel]) <= cash * 100)
        return icons[7 - multiple];
    }
    return "";
  }

  std::deque<std::string> plan_;
  std::string command_;
  std::string winner_;
  std::string transcript_;
  std::istream commands_{this};
  std::ostream lines_{this};
  StreamGame scripted_{commands_, lines_};
};

}  // namespace zelvo::test
