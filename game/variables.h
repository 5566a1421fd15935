#pragma once

#include <array>
#include <string>

#include "game/currency.h"
#include "surface/windows/windows.h"

namespace zelvo {

/// The shared variables that outlive a game.
struct ProgramVariables {
  int SkillLevel = 0;      ///< 0 Easy, 1 Normal, 2 Hard, 3 Genius
  bool SoundOn = false;    ///< cues play only while it is set
  bool BankPlays = false;  ///< the bank can win
  std::string AppPath;     ///< the folder of the wave files, with a trailing backslash
  std::string CrLf;        ///< the line break of all messages
  bool SpreadDue = false;  ///< `SpreadValue` does nothing without it
  std::string Turn;        ///< "P" the player's, "C" the computer's
  Currency LoanAmount;     ///< the amount chosen in the bank
  Currency CardAmount;     ///< the amount of the chance card or suit in hand
};

/// The shared variables of one game, with their values at the start of a game.
struct GameVariables {
  int TurnNo = 0;      ///< full turns played
  int YearTurn = 0;    ///< full turns of the 24-turn year
  int ChanceWait = 0;  ///< the player's turns since the last chance card
  bool UseChance = true;

  int CurLot = 0;      ///< the lot in hand, 0 to 99
  std::string CurTag;  ///< the tag of the lot last looked at
  int PlayerHotels = 1;
  int CompHotels = 1;
  int CompBareLots = 0;

  // Running counts; nothing recounts them.
  int OpenLots = 0;
  int ParkCount = 0;
  int GolfCount = 0;
  int CondemnedLots = 0;
  int RestCount = 0;
  int PlayerMalls = 0;

  // What the last board event of each family did, and what is due to happen.
  bool LastCondemned = false;
  bool LastGolf = false;
  bool LastPark = false;
  // The meters count the draws at a second that ends in 6, 2 or 9; what they bring sets them back.
  int StrikeMeter = 0;     ///< above 10, the next draw is a strike
  int CasinoMeter = 0;     ///< above 18, the next draw is a casino
  int PlaneMeter = 0;      ///< above 35, the next draw is a plane crash
  int MallNext = 0;        ///< 1: the next strike zones a mall instead
  bool FireFlag = false;   ///< the next strike is a fire, not lightning
  bool RepairDue = false;  ///< the event in progress is a repair

  bool FastBlink = false;   ///< the next blink is a fast one
  int CancelledBuilds = 0;  ///< since the builder last sued
  int Ruling = 0;           ///< the zoning board's code
  bool Refused = false;     ///< the answer of a dialog or a ruling
  std::string ValueSign;    ///< "+", "-" or empty: the way of the next spread
  int AssessCount = 0;      ///< assessments since the last tax time
  Currency AssessRate = Currency::FromCounts(400);  ///< a share of a lot's value

  Currency BankCash = Dollars(1'000'000);
  Currency BankDeposit;  ///< what `BankAdd` is to pay in; 0 between its calls
  Currency PlayerLoan;   ///< still to be paid back
  Currency PlayerWorth;  ///< as `CheckWealth` last summed it
  Currency CompWorth;    ///< as `CheckWealth` last summed it
  Currency BuildCost;    ///< of the building under consideration
  Currency WorkWorth;    ///< the player's net worth with the last building
  Currency Tally;        ///< a side's revenue, or what a crash took from the last lot

  // Working variables with several uses. Some rules come from what one use leaves for another.
  std::string Word;   ///< a choice, a tag, a text on its way, or what state the program is in
  int Work = 0;       ///< ticks and pictures of the waits, a class, a draw; 0 after `ReadMoney`
  int Idx = 0;        ///< of the loops over the lots; behind the text after `ReadMoney`
  Currency Money;     ///< the amount in hand; what `ReadMoney` last read
  Currency Delta;     ///< what the next spread moves
  int FreshLot = 10;  ///< a term of the draw, and the lot that the player bought last

  std::array<Currency, lotCount> LotValue{};
  std::array<bool, lotCount> LotInsured{};
  std::array<int, 8> BrandSold{};          ///< 1 to 6: buildings that the player sold back
  std::array<std::string, 8> OwnerTags{};  ///< 1 to 7: the tags that earn revenue
};

}  // namespace zelvo
