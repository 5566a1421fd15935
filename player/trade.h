#pragma once

#include "game/game.h"

namespace zelvo {

/// What the player answered to the offer of a loan.
enum class LoanOffer : unsigned char { Declined, BankVisited };

/// Too little cash: plays the cue, and unless the player owes too much already offers a visit to
/// the bank. After a visit the caller starts again from its first step. `Word` may have changed.
LoanOffer OfferLoan(Game& g);

namespace GFM {
/// Buys the lot in hand; leaves it in `FreshLot`.
void CMDBUY_Click(Game& g);
/// Sells the lot in hand with what stands on it; leaves the refund in `Delta`.
void CMDSELL_Click(Game& g);
/// Sells the building on the lot in hand.
void CMDSHOT_Click(Game& g);
}  // namespace GFM

}  // namespace zelvo
