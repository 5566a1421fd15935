#include "game/money.h"

#include "game/text.h"

namespace zelvo {

void ReadMoney(Game& g, const std::string& text) {
  // Dollar signs, commas and all else that is no digit drop out. An amount beyond the type's
  // range saturates: a text holds up to fifteen digits that matter.
  Currency amount;
  for (const char c : text) {
    if (c < '0' || c > '9') continue;
    amount = amount * 10 + Dollars(c - '0');
  }
  g.Idx = static_cast<int>(text.size()) + 1;
  g.Work = 0;
  g.Money = !text.empty() && text.front() == '-' ? -amount : amount;
}

void AddTo(Game& g, Control& amount, Currency gain) {
  ReadMoney(g, amount.Caption);
  g.Money += gain;
  amount.Caption = MoneyText(g.Money);
}

void TakeFrom(Game& g, Control& amount, Currency loss) {
  ReadMoney(g, amount.Caption);
  g.Money -= loss;
  amount.Caption = MoneyText(g.Money);
}

void BankAdd(Game& g) {
  // Events can run between the caller's last step and the deposit.
  g.Yield();
  g.BankCash += g.BankDeposit;
  g.GFM->BANKLABEL.Caption = MoneyText(g.BankCash);
  g.BankDeposit = Currency();
}

void PayIntoBank(Game& g, Currency amount) {
  g.BankDeposit = amount;
  BankAdd(g);
}

}  // namespace zelvo
