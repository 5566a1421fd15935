#pragma once

#include <string>

#include "game/game.h"

namespace zelvo {

/// Reads an amount from a caption into `Money`: its digits, negative if the text begins with a
/// minus sign. Leaves `Idx` at the length plus 1 and `Work` at 0.
void ReadMoney(Game& g, const std::string& text);

/// Adds an amount to what a caption shows, to the dollar. Leaves the sum in `Money`, cents
/// included.
void AddTo(Game& g, Control& amount, Currency gain);
/// Takes an amount off what a caption shows, which may fall below zero; leaves the rest in `Money`.
void TakeFrom(Game& g, Control& amount, Currency loss);

/// Yields, then pays `BankDeposit` into the bank and shows its cash; `BankDeposit` is 0 after it.
void BankAdd(Game& g);

/// Pays an amount into the bank through `BankDeposit`.
void PayIntoBank(Game& g, Currency amount);

}  // namespace zelvo
