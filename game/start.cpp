#include "game/start.h"

#include <array>
#include <string>
#include <string_view>

#include "events/board_event.h"
#include "game/lots.h"
#include "game/money.h"
#include "game/text.h"
#include "game/turn.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

/// The folder of the wave files with a backslash at its end.
std::string AppFolder(Game& g) {
  std::string folder = g.platform().AppFolder();
  if (!EndsWith(folder, '\\')) folder += '\\';
  return folder;
}

struct ColumnValue {
  int column;
  int dollars;
};

// Columns 2, 3, 6 and 7 stay at the value of a plain lot.
constexpr std::array<ColumnValue, 6> columnValues = {
    {{0, 125'000}, {9, 125'000}, {1, 100'000}, {4, 75'000}, {5, 75'000}, {8, 75'000}}};
constexpr int plainLotDollars = 50'000;
constexpr int playerStart = 0;
constexpr int computerStart = lotCount - 1;

void LayBoard(Game& g) {
  for (int lot = 0; lot < lotCount; ++lot) {
    SetLot(g, lot, g.ICF->LUND, "U");
    g.LotValue[lot] = Dollars(plainLotDollars);
  }
  for (const auto& [column, dollars] : columnValues) {
    for (int lot = column; lot < lotCount; lot += boardWidth) g.LotValue[lot] = Dollars(dollars);
  }
  for (const int lot : {playerStart, computerStart}) g.LotValue[lot] = Dollars(plainLotDollars);
  SetLot(g, playerStart, g.ICF->PLAYER, "PU");
  SetLot(g, computerStart, g.ICF->COMP, "CU");
}

void FillLedgers(Game& g) {
  ReadMoney(g, "1,000,000");
  g.GFM->PCredit.Caption = MoneyText(g.Money);
  g.GFM->CCredit.Caption = MoneyText(g.Money);
  g.GFM->PNW.Caption = MoneyText(Currency());
  g.GFM->CNW.Caption = MoneyText(Currency());
  g.GFM->BANKLABEL.Caption = MoneyText(g.BankCash);
}

void EndGame(Game& g) {
  g.Word = "OVER";
  g.Unload(g.WINX);
  g.Unload(g.GFM);
}

}  // namespace

void NewGame(Game& g) {
  g.GFM->PNOH.Caption = "1";
  g.GFM->CNOH.Caption = "1";
  static_cast<GameVariables&>(g) = GameVariables{};
  LayBoard(g);
  FillLedgers(g);
  PlayCue(g, Cue::NewGame);
  // Four events open the board; the fifth comes with the player's turn.
  for (int opening = 0; opening < 4; ++opening) {
    BoardEvent(g);
    g.Yield();
  }
  ShowLevel(g);
  StartPlayerTurn(g);
}

void OpeningSound(Game& g) {
  if (g.HasEnded()) return;  // closed while it came up
  g.Word = "NO";
  // A missing file is no failure; only a machine without a sound player turns the sound off.
  g.SoundOn = g.platform().PlaySound(g.AppPath + CueFile(Cue::Opening), true);
  g.Word.clear();
}

void ShowLevel(Game& g) {
  static constexpr std::array<std::string_view, 4> titles = {
      "Zelvo 3.2 - Easy Level", "Zelvo 3.2 - Normal Level", "Zelvo 3.2 - Hard Level",
      "Zelvo 3.2 - Genius Level"};
  g.GFM->Label1.Caption = titles[g.SkillLevel];
  g.GFM->Label10.Caption = "Level " + NumberText(g.SkillLevel);
}

void GST::Form_Load(Game& g) {
  g.CrLf = "\n\r";
  g.AppPath = AppFolder(g);
  g.Word.clear();
  g.GST->Label2.Caption = "Version 3.2.4  Enjoy !";
  g.Show(g.GST);
  g.Yield();  // the window is on the screen before the sound starts
  OpeningSound(g);
}

void GST::Form_QueryUnload(Game& g) { g.End(); }
void GST::Form_Unload(Game& g) { g.End(); }

void GST::CMDSTART_Click(Game& g) {
  if (g.Word == "NO") return;
  g.Word = "START";
  g.Turn = "P";
  g.GST->Caption = "Start Screen";
  g.Show(g.GFM);
}

void GST::CMDSET_Click(Game& g) {
  g.Load(g.ICF);
  g.ShowModal(g.ICF);
  g.Unload(g.ICF);
}

void GST::CMDEXIT_Click(Game& g) {
  PlayCue(g, Cue::Exit);
  g.End();
}

void GFM::Form_Resize(Game& g) {
  g.GFM->Caption = "Board Game";
  // The start window behind the board follows it when it is minimised or maximised.
  g.GST->extent = g.GFM->extent;
}

void GFM::Form_Activate(Game& g) {
  if (g.Word == "START") NewGame(g);
}

void GFM::Form_QueryUnload(Game& g) { EndGame(g); }
void GFM::Form_Unload(Game& g) { EndGame(g); }

}  // namespace zelvo
