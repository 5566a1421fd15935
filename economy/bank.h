#pragma once

#include "game/game.h"

namespace zelvo::BK {

/// A visit to the bank: a show of five pictures, then the offer of a loan or the refusal. Uses
/// `Word` and `Work` for the show and leaves them empty and at 5.
void Form_Activate(Game& g);
/// 0 to 4: 100,000 to 500,000 dollars, into `LoanAmount`.
void OPT1_Click(Game& g, int index);
void CMDOK_Click(Game& g);
void CMDCANCEL_Click(Game& g);
void Timer1_Timer(Game& g);

}  // namespace zelvo::BK
