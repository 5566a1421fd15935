#pragma once

#include <array>
#include <string>

#include "game/currency.h"
#include "surface/windows.h"

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
  int StrikeMeter = 0;
  int CasinoMeter = 0;
  int PlaneMeter = 0;
  int MallNext = 0;
  bool FireFlag = false;
  bool RepairDue = false;

  bool FastBlink = false;
  int CancelledBuilds = 0;
  int Ruling = 0;        ///< the zoning board's code
  bool Refused = false;  ///< the answer of a dialog or a ruling
  std::string ValueSign;
  int AssessCount = 0;
  Currency AssessRate = Currency::FromCounts(400);

  Currency BankCash = Dollars(1'000'000);
  Currency BankDeposit;
  Currency PlayerLoan;
  Currency PlayerWorth;
  Currency CompWorth;
  Currency BuildCost;
  Currency WorkWorth;
  Currency Tally;

  // Working variables with several uses. Some rules come from what one use leaves for another.
  std::string Word;
  int Work = 0;
  int Idx = 0;
  Currency Money;
  Currency Delta;     ///< what the next spread moves
  int FreshLot = 10;  ///< a term of the draw, and the lot that the player bought last

  std::array<Currency, lotCount> LotValue{};
  std::array<bool, lotCount> LotInsured{};
  std::array<int, 8> BrandSold{};          ///< 1 to 6: buildings that the player sold back
  std::array<std::string, 8> OwnerTags{};  ///< 1 to 7: the tags that earn revenue
};

}  // namespace zelvo
