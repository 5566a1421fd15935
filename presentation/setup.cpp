#include "presentation/setup.h"

#include <array>
#include <string>
#include <string_view>

namespace zelvo {
namespace {

void ShowSound(Game& g) { g.ICF->CMDSOUND.Caption = g.SoundOn ? "Sound on" : "Sound off"; }

constexpr std::array<std::string_view, 8> explanation = {
    "The game",
    " The object of the game is to acquire as many properties with high priced hotels as you can. "
    "The Black squares are lots that are not zoned and therefor cannot be built on. The green "
    "squares are zoned and may be chosen to build on. The brown squares are condemned lots and "
    "cannot be built on. The squares will change periodically so keep your eyes open. The park and "
    "golf squares make the surrounding lots more valuable and when appear, will raise your lot "
    "value if you own the lot. The condemned lots will lower your lot value but make buying and "
    "building a hotel less expensive as well. If a lot should become condemned, check out the "
    "surrounding green lots for good buys.",
    "  At certain intervals, there will be a property appraisal at which time your property values "
    "will go up or down depending on the surrounding lots. You will also receive extra money if "
    "your property values go up. Once every year, you will be taxed based on your property value. "
    "It may take awhile to recover if you don't have enough credit. Hotels will make you money, "
    "empty lots may cost you money. ",
    " The hotels are in order of cost from left to right. The higher the price of the hotel, the "
    "more the property will be worth. At times natural (and not so natural) acts of God will "
    "happen. You may lose properties if you are in the path of destruction. There are also times "
    "when a random lot will be chosen for a casino whereby the owner of the property gets millions "
    "of dollars for leasing the property. ",
    " Strategies are to place hotels at strategic locations so a park or golf course can't be "
    "built next to the computers property. The game needs to be played slow and every move thought "
    "out to win. Lot and hotel prices are constantly changing so careful attention must be paid in "
    "order to find the best deals and properties. The game ends when you or the computer get 1 "
    "billion in wealth.",
    " When Malls are being built, you will have the chance to invest. You will receive your "
    "dividends which could add up to millions, each year. you also may lose millions if the Mall "
    "goes broke or is destroyed.",
    " You may start with a lower priced hotel and later sell the hotel(not the property) and build "
    "a more expensive hotel on the property. This works best when there are no good lots to buy or "
    "you have excess money to burn. Restaurants increase the value of the 4 properties around them "
    "(up 1, Down 1, Left 1 and Right 1). The same holds true for casinos, parks, golf courses and "
    "malls.",
    " Oh, by the way, in this version you must deal with the zoining board, and may borrow money "
    "from the bank and take a chance, good luck.",
};

std::string AboutText(const Game& g) {
  static constexpr std::array<std::string_view, 6> lines = {
      "Zelvo 32",
      "Version 3.2.4",
      "Designed and built by the Zelvo developers",
      "Questions are welcome in the issue tracker of the project",
      "Any problems, questions or suggestions, please let us know.",
      "         Click to close",
  };
  std::string text;
  for (const std::string_view line : lines) {
    if (!text.empty()) text += g.CrLf;
    text += line;
  }
  return text;
}

}  // namespace

void ICF::Form_Load(Game& g) { ShowSound(g); }

void ICF::Form_Activate(Game& g) {
  g.ICF->OPT1[g.SkillLevel].SetValue(true);
  for (Control& option : g.ICF->OPT1) option.SetEnabled(true);
}

void ICF::CMDSOUND_Click(Game& g) {
  g.SoundOn = !g.SoundOn;
  ShowSound(g);
}

void ICF::CMDEXP_Click(Game& g) { g.ShowModal(g.HH); }

void ICF::CMDABOUT_Click(Game& g) {
  // The text goes by way of `Word` and stays there, so a building chosen before is forgotten.
  g.Word = AboutText(g);
  g.ABT->Label1.Caption = g.Word;
  g.ShowModal(g.ABT);
}

void ICF::CMDEXIT_Click(Game& g) { g.Hide(g.ICF); }

void ICF::OPT1_Click(Game& g, int index) { g.SkillLevel = index; }

void ICF::CKCHANCE_Click(Game& g, bool value) { g.UseChance = value; }

void ICF::CKBANK_Click(Game& g, bool value) { g.BankPlays = value; }

void HH::Form_Load(Game& g) {
  std::string text;
  for (const std::string_view paragraph : explanation) {
    if (!text.empty()) text += g.CrLf + g.CrLf;
    text += paragraph;
  }
  g.HH->Text1.Text = text;
}

void HH::CMDEXIT_Click(Game& g) { g.Hide(g.HH); }

void ABT::Form_Click(Game& g) { g.Hide(g.ABT); }

}  // namespace zelvo
