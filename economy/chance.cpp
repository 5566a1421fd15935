#include "economy/chance.h"

#include <array>
#include <string>
#include <string_view>

#include "game/money.h"
#include "game/text.h"
#include "presentation/cues.h"

namespace zelvo {
namespace {

struct Card {
  bool good;
  std::string_view text;  // a '\n' stands for the line break of messages
};

// Each card owns three consecutive draws, from 1 on.
constexpr std::array<Card, 20> cards = {{
    {false, "City adds .2% luxury tax on hotels. You pay \n"},
    {true, "City over billed luxury tax. Money returned.\nYou receive \n"},
    {false,
     "City garbage collectors go on strike. You must pay for private collection.\n You pay \n"},
    {true, "Telephone company over billed. Money returned. You receive \n"},
    {true, "You win lawsuit against Hilton Inns. You collect.\n"},
    {false, "You must retain lawyer to sue builder. You pay.\n"},
    {true, "You win builder lawsuit. You collect.\n"},
    {false, "Customer wins lawsuit. You pay\n"},
    {false, "Your employees go on strike for back pay and better wages.\n You pay.\n"},
    {true, "Your stock investments have gone up. You collect.\n"},
    {false, "Your stock investments have gone down. You lose.\n"},
    {true, "Your Hotel chain is voted #1. The advertising increased business by \n"},
    {false, "You must apply for a liquer license, pay up.\n"},
    {true, "A convention has booked all your rooms. You gross\n"},
    {false, "The convention people tore up the place. You need repairs of \n"},
    {true, "The Bad news, your alcoholic brother just died. the Good news is he left you \n"},
    {false, "The good news, your spouse has divorced you, the bad news is it cost you\n"},
    {true, "You paid too much in taxes ! The IRS has sent a refund of\n"},
    {false,
     "The IRS didn't have a sense of humor when you told them your dog ate your return. Pay\n"},
    {true, "You win big in the casino! Collect\n"},
}};

std::string TextOf(const Game& g, const Card& card) {
  std::string text;
  for (const char c : card.text) {
    if (c == '\n') {
      text += g.CrLf;
    } else {
      text += c;
    }
  }
  return text;
}

/// A number from 1 to 60. The third card at the last second would draw 61: it waits for the clock
/// to turn.
int Draw(Game& g, int index) {
  do {
    g.Work = index + g.platform().WallClock().second;
    if (g.Work < 1) g.Work = 1;
  } while (g.Work > 60);
  return g.Work;
}

void ShowAmount(Game& g) {
  g.CHN->Label2.Caption += "    " + MoneyText(g.CardAmount);
  g.CHN->CMDOK.Visible = true;
  g.CHN->Label2.Visible = true;
}

/// A fifth of the player's cash, taken off in `Money` alone.
void TakeFifth(Game& g) {
  ReadMoney(g, g.GFM->PCredit.Caption);
  g.CardAmount = g.Money.Share(0.2);
  g.Money -= g.CardAmount;
}

void DrawBad(Game& g) {
  PlayCue(g, Cue::BadCard);
  g.Word = "BAD";
  TakeFifth(g);
  ShowAmount(g);
  PayIntoBank(g, g.CardAmount);
}

void DrawGood(Game& g) {
  PlayCue(g, Cue::GoodCard);
  ReadMoney(g, g.GFM->PCredit.Caption);
  g.CardAmount = g.Money.Share(0.3);
  g.Money += g.CardAmount;
  ShowAmount(g);
  PayIntoBank(g, g.CardAmount.Share(0.22));
}

void ServeSuit(Game& g) {
  TakeFifth(g);
  g.CancelledBuilds = 0;
  g.CHN->Label1.Caption = "Contract disagreement - You are served notice";
  g.CHN->Label2.Visible = true;
  g.CHN->CMDOK.Visible = true;
  g.CHN->Label2.Caption = "You have been sued by the builder for backing " + g.CrLf +
                          "out of the contract. You need a lawyer. Your cost " + g.CrLf + "    " +
                          MoneyText(g.CardAmount);
  g.Word.clear();
}

}  // namespace

void CHN::Form_Activate(Game& g) {
  g.CardAmount = Currency();
  if (g.Word == "OVER" || !g.UseChance) return;
  g.CHN->Label1.Caption = g.CHN->Label1.design().caption;
  g.CHN->Label2.Visible = false;
  g.CHN->CMDOK.Visible = false;
  if (g.CancelledBuilds >= 4) ServeSuit(g);
}

void CHN::Image1_Click(Game& g, int index) {
  g.ChanceWait = 0;
  const Card& card = cards.at((Draw(g, index) - 1) / 3);
  g.CHN->Label2.Caption = TextOf(g, card);
  if (card.good) {
    DrawGood(g);
  } else {
    DrawBad(g);
  }
}

void CHN::CMDOK_Click(Game& g) {
  // Without a card or a suit there is nothing to post: `Money` may hold any figure.
  if (g.CardAmount != Currency()) {
    g.GFM->PCredit.Caption = MoneyText(g.Money);
    if (g.Word == "BAD") {
      AddTo(g, g.GFM->CCredit, g.CardAmount);
      PayIntoBank(g, g.CardAmount.Share(0.22));
    }
  }
  g.Hide(g.CHN);
}

}  // namespace zelvo
