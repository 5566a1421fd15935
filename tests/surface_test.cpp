#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "faces/headless/auto_player.h"
#include "surface/speech.h"
#include "tests/play.h"

namespace zelvo::test {
namespace {

/// A machine that leaves modal windows to the test.
struct Machine : Scripted {
  Machine() : Scripted("answer ok\n") {}
  void RunModal(Window& window) override { inModal(window); }
  std::string AppFolder() override { return "C:\\"; }
  std::function<void(Window&)> inModal = [](Window& /*window*/) {};
};

bool Inside(const Box& box, const Box& outer) {
  return box.width > 0 && box.height > 0 && box.left >= outer.left && box.top >= outer.top &&
         box.left + box.width <= outer.left + outer.width &&
         box.top + box.height <= outer.top + outer.height;
}

bool Overlap(const Box& a, const Box& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

void CheckControl(const Control& control, const std::string& family) {
  const WindowDesign& window = control.window().design();
  const ControlDesign& design = control.design();
  const Kind kind = control.kind();
  const Control* container = control.container();
  EXPECT_EQ(control.window().Find(control.FullName()), &control) << "the name is taken";
  EXPECT_TRUE(container == nullptr || container->kind() == Kind::Panel);
  const Box frame = container ? container->Place() : Box{0, 0, window.width, window.height};
  // The pictures of the bank's show lie outside the window.
  EXPECT_EQ(Inside(control.Place(), frame), kind != Kind::Timer && family != "BK.Image1");
  if (kind == Kind::Button || kind == Kind::Option || kind == Kind::CheckBox) {
    EXPECT_TRUE(control.handlers.click != nullptr);
    EXPECT_TRUE(!design.caption.empty() || design.picture != PictureId::None);
  }
  EXPECT_EQ(control.handlers.timer != nullptr, kind == Kind::Timer);
  EXPECT_EQ(control.Interval(), family == "BK.Timer1" ? 500 : 0);
  EXPECT_EQ(control.Enabled(), family != "BK.Timer1");
  if (design.picture == PictureId::None) return;
  EXPECT_TRUE(kind == Kind::Image || kind == Kind::Button);
  EXPECT_EQ(PictureOwner(design.picture), std::string(window.name) + "." + control.FullName());
}

TEST(Windows, AreWellFormedEachAndAll) {
  Machine machine;
  std::set<PictureId> owned;
  // Controls that are hidden, that take clicks though their kind need not, that drop them if busy.
  std::set<std::string> special;
  for (const auto& [name, title, width, height, titleBar, controls] :
       {std::tuple{"GST", "Zelvo 32", 9504, 6756, TitleBar::Sizable, 8U},
        {"GFM", "Game Board", 9504, 6756, TitleBar::Sizable, 167U},
        {"ICF", "Zelvo Setup options", 9348, 3360, TitleBar::NoBorder, 35U},
        {"TT", "", 4788, 2640, TitleBar::NoButtons, 4U},
        {"WINX", "The Winner is", 6600, 2376, TitleBar::NoButtons, 4U},
        {"HH", "Zelvo Help", 7500, 6720, TitleBar::Fixed, 3U},
        {"HS", "Zelvo Statistics", 3288, 4536, TitleBar::NoButtons, 10U},
        {"SV", "Property Repairs", 3396, 2844, TitleBar::NoButtons, 3U},
        {"RB", "Oh, Oh", 2928, 3516, TitleBar::CloseOnly, 3U},
        {"ML", "Mall", 3300, 3720, TitleBar::Fixed, 5U},
        {"CHN", "Take a Chance", 7092, 3036, TitleBar::Fixed, 6U},
        {"BK", "The Bank", 5328, 5040, TitleBar::NoButtons, 16U},
        {"ABT", "About Box", 5400, 4200, TitleBar::CloseOnly, 2U}}) {
    SCOPED_TRACE(name);
    Window* window = machine.game().FindWindow(name);
    ASSERT_NE(window, nullptr);
    machine.game().Load(*window);
    EXPECT_EQ(window->Caption, title);
    EXPECT_TRUE(window->design().width == width && window->design().height == height);
    EXPECT_EQ(window->design().titleBar, titleBar);
    EXPECT_EQ(window->controls().size(), controls);
    std::set<const Control*> lower = {nullptr};
    for (const Control* control : window->controls()) {
      SCOPED_TRACE(control->FullName());
      EXPECT_TRUE(lower.contains(control->container()));
      lower.insert(control);
      const std::string family = std::string(name) + "." + std::string(control->name());
      CheckControl(*control, family);
      owned.insert(control->design().picture);
      const bool unasked = control->kind() == Kind::Image || control->kind() == Kind::Label;
      const std::string traits = std::string(control->Visible ? "" : "h") +
                                 (unasked && control->handlers.click != nullptr ? "c" : "") +
                                 (control->handlers.dropsClicksWhileBusy ? "d" : "");
      if (!traits.empty()) special.insert(family + " " + traits);
    }
  }
  EXPECT_EQ(std::vector(special.begin(), special.end()), Pieces(R"(
ABT.Image1 c | ABT.Label1 c | CHN.Image1 c | CHN.Label2 h | GFM.BANKLABEL c | GFM.BEST cd |
GFM.BUILDIT hd | GFM.CMDBUILD hd | GFM.CMDBUY hd | GFM.CMDSELL hd | GFM.CMDSHOT hd | GFM.CUP h |
GFM.HILTON cd | GFM.Image1 cd | GFM.LITE h | GFM.Label1 c | GFM.Label8 c | GFM.PUP h |
GFM.QUALITY cd | GFM.RAMADA cd | GFM.Rest cd | GFM.SUPER cd | GFM.THRIFTY cd)"));
  // Every picture of the program belongs to a control; None is the first.
  EXPECT_EQ(owned.size(), static_cast<std::size_t>(PictureId::Count));
}

TEST(Windows, CanBePlayedByKeyboardAndByEar) {
  Machine machine;
  std::set<std::string> waysOut;
  for (Window* window : machine.game().Windows()) {
    machine.game().Load(*window);
    EXPECT_NE(SpokenName(*window), "") << window->name();
    std::set<Key> taken;
    for (const Control* control : window->controls()) {
      const std::string name = std::string(window->name()) + "." + control->FullName();
      const ControlDesign& design = control->design();
      const bool clickable = control->handlers.click != nullptr;
      EXPECT_TRUE(!clickable || !SpokenName(*control).empty() || name == "ABT.Label1") << name;
      const bool label = control->kind() == Kind::Label;
      EXPECT_TRUE(design.speech == Speech::WhenReached || label) << name;
      // A dialog tells all its texts when it comes up.
      const bool dialog = window->design().titleBar != TitleBar::Sizable;
      EXPECT_TRUE(!dialog || !label || design.speech == Speech::News) << name;
      if (design.key == Key::None) continue;
      EXPECT_TRUE(clickable && taken.insert(design.key).second) << name;
      if (design.key != Key::Escape) continue;
      EXPECT_TRUE(!window->HasCloseBox()) << name;
      waysOut.insert(SpokenName(*control));
    }
  }
  EXPECT_EQ(std::vector(waysOut.begin(), waysOut.end()),
            Pieces("Cancel Build | Cancel Loan | Close | Exit Setup | No | OK"));
}

TEST(Windows, AreToldInWords) {
  Machine machine;
  Game& game = machine.game();
  game.GFM->Image1[37].Picture = PictureId::ICF_HILTON;
  game.GFM->PCredit.Caption = "$1,000,000";
  game.GFM->PSHOW.Caption = "Property #  37-O\n\rTaxes are  $5 ";
  for (const auto& [control, name] : {std::pair{&game.GFM->Image1[37], "Lot 37, computer's Hilton"},
                                      {&game.GFM->Label6[0], "Madison Place"},
                                      {&game.GFM->Label7[2], "3rd Avenue"},
                                      {&game.GFM->PCredit, "Player's credit, $1,000,000"},
                                      {&game.GFM->PSHOW, "Property # 37-O, Taxes are $5"},
                                      {&game.GFM->QUALITY, "Quality Inn"},
                                      {&game.GFM->CMDGO, "End of turn"},
                                      {&game.ICF->GOLF, "golf course"},
                                      {&game.CHN->Image1[0], "Chance card 1, face down"},
                                      {&game.HS->Label1[4], ""}}) {
    EXPECT_EQ(SpokenName(*control), name);
  }
}

TEST(Windows, NoTwoThingsToClickOverlap) {
  Machine machine;
  for (const Window* window : machine.game().Windows()) {
    std::vector<const Control*> clickable;
    for (const Control* control : window->controls()) {
      if (control->handlers.click == nullptr) continue;
      for (const Control* other : clickable) {
        EXPECT_FALSE(Overlap(control->Place(), other->Place()))
            << window->name() << ": " << control->FullName() << ", " << other->FullName();
      }
      clickable.push_back(control);
    }
  }
}

TEST(Windows, CaptionsThatAreEasilyMistyped) {
  EXPECT_EQ(Told(Get("GFM.NHLabel(0).Caption GFM.NHLabel(1).Caption GFM.Label4(1).Caption "
                     "GFM.Label6(0).Caption GFM.Label6(4).Caption ICF.CMDEXP.Caption")),
            "Number of properties owned   | Number of properties owned  | Credit  $ | "
            "M A D I S  O N    P L A C E | P A R  K      P L A C E | Game Explaination");
}

TEST(Windows, LotsLieInTheirBlocksAndStreetsBetweenThem) {
  constexpr int left[] = {0, 960, 1440, 1920, 2400, 3120, 3600, 4080, 4560, 5280};
  constexpr int top[] = {0, 720, 1200, 1920, 2400, 3120, 3600, 4200, 4680, 5280};
  Machine machine;
  GFMWindow& board = machine.game().GFM.Untouched();
  for (int i = 0; i < lotCount; ++i) {
    const Box lot = board.Image1[i].Place();
    EXPECT_TRUE(lot.left == 50 + left[i % 10] && lot.width == 480) << i;
    EXPECT_TRUE(lot.top == 30 + top[i / 10] && lot.height == 480) << i;
    for (const Control* strip : board.controls()) {
      if (strip->name() != "Label6" && strip->name() != "Label7") continue;
      EXPECT_FALSE(Overlap(lot, strip->Place())) << i << " under " << strip->FullName();
    }
  }
  for (int street = 0; street < 5; ++street) {
    const Control& strip = board.Label7[street];
    const double middle =
        strip.Place().left + strip.design().look.textShare * strip.Place().width / 2;
    EXPECT_NEAR(middle, 2030, 1) << "the name on " << strip.FullName();
  }
  for (int light = 2; light <= 6; ++light) {
    const Box before = board.LITE[light - 1].Place();
    EXPECT_FALSE(Overlap(before, board.LITE[light].Place())) << light;
    EXPECT_GT(board.LITE[light].Place().width, before.width) << light;
  }
  int bottom = 0;
  for (const std::string& name : Pieces("Label2|PCredit|PNW|PNOH|Label3|CCredit|CNW|CNOH|LSHOW|"
                                        "LITE(1)|PSHOW|SUPER|Rest|CMDBUY|CMDSELL|CMDGO")) {
    const Box box = board.Find(name)->Place();
    EXPECT_LE(bottom, box.top) << name;
    bottom = box.top + box.height;
  }
}

/// What the windows raised, in order.
std::string raised;

template <char window, char event>
void Note(Game& /*game*/) {
  raised += {window, event, ' '};
}

template <char window>
constexpr WindowHandlers notes = {.load = Note<window, 'l'>,
                                  .activate = Note<window, 'a'>,
                                  .resize = Note<window, 'r'>,
                                  .queryUnload = Note<window, 'q'>,
                                  .unload = Note<window, 'u'>};

TEST(WindowLife, EventsComeInOrder) {
  Machine machine;
  Game& game = machine.game();
  game.GFM.Untouched().handlers = notes<'B'>;
  game.BK.Untouched().handlers = notes<'K'>;
  const auto after = [](auto&& deed) {
    raised.clear();
    deed();
    return raised;
  };
  EXPECT_EQ(after([&] { game.GFM->PCredit.Caption = "$5"; }), "Bl ");
  EXPECT_EQ(after([&] { game.Show(game.GFM); }), "Br Ba ");
  EXPECT_EQ(after([&] { game.Show(game.GFM); }), "Ba ");
  EXPECT_EQ(after([&] { game.Hide(game.GFM); }), "");
  EXPECT_EQ(game.GFM->PCredit.Caption, "$5");
  EXPECT_EQ(after([&] { game.Show(game.GFM); }), "Br Ba ");
  EXPECT_EQ(after([&] { game.Resize(game.GFM, Extent::Maximised); }), "Br ");
  EXPECT_EQ(after([&] { game.MessageBox("?", MessageStyle::Ok); }), "");
  machine.inModal = [&](Window& window) {
    raised += "... ";
    EXPECT_EQ(game.InputWindow(), &window);
    game.Hide(window);
  };
  EXPECT_EQ(after([&] { game.ShowModal(game.BK); }), "Kl Kr Ka ... Ba ");
  EXPECT_EQ(after([&] { game.Close(game.BK); }), "") << "it has no close box and is hidden";
  EXPECT_EQ(after([&] { game.Close(game.GFM); }), "Bq Bu ");
  EXPECT_EQ(after([&] { EXPECT_EQ(game.GFM->PCredit.Caption, ""); }), "Bl ");
  game.End();
  EXPECT_EQ(after([&] { game.ShowModal(game.BK); }), "") << "nothing is raised after the end";
}

TEST(WindowLife, ControlsKeepWhatTheyHoldAndOptionsClearTheirGroup) {
  EXPECT_EQ(Told("click GFM.CMDHELP\nclick ICF.OPT1(3)\nclick ICF.OPT1(1)\nclick ICF.CKBANK\n"
                 "click ICF.cmdexit\nclick GFM.CMDHELP\n" +
                 Get("ICF.OPT1(0).Value ICF.OPT1(1).Value ICF.OPT1(3).Value SkillLevel "
                     "ICF.CKBANK.Value ICF.CKCHANCE.Value")),
            "0 | -1 | 0 | 1 | 0 | -1");
}

TEST(WindowLife, TheStartWindowFollowsTheBoardsExtent) {
  Machine machine;
  Game& game = machine.game();
  game.Start();
  game.Click(game.GST->CMDSTART);
  game.GFM->Caption = "Hilton";
  game.Resize(game.GFM, Extent::Minimised);
  EXPECT_EQ(game.GFM->Caption, "Board Game");
  EXPECT_EQ(game.GST->extent, Extent::Minimised);
  EXPECT_EQ(game.AppPath, "C:\\") << "no second backslash";
}

TEST(WindowLife, TheFrontIsWhereTheGamePutsIt) {
  Machine machine;
  Game& game = machine.game();
  const auto stack = [&game] {
    std::string names;
    for (const Window* window : game.Stack()) names += std::string(window->name()) + " ";
    return names;
  };
  game.Start();
  game.Click(game.GST->CMDSTART);
  EXPECT_EQ(stack(), "GST GFM ");
  machine.inModal = [&](Window& window) {
    if (&window == &game.ICF.Untouched()) {
      EXPECT_EQ(stack(), "GST GFM ICF ");
      game.Click(game.ICF->CMDEXP);
      EXPECT_EQ(stack(), "GST GFM ICF ") << "the explanation gave the front back";
    } else {
      EXPECT_EQ(window.opener(), &game.ICF.Untouched());
    }
    game.Hide(window);
  };
  game.Click(game.GFM->CMDHELP);
  EXPECT_EQ(stack(), "GST GFM ");
  // The setup that the start window opens behind a board gives the front back to it.
  game.Click(game.GST->CMDSET);
  EXPECT_EQ(stack(), "GFM GST ");
  int times = game.broughtToFront();
  game.Click(game.GST->CMDSTART);
  EXPECT_EQ(stack(), "GST GFM ");
  EXPECT_EQ(game.broughtToFront(), ++times);
  game.Click(game.GST->CMDSTART);
  EXPECT_EQ(game.broughtToFront(), ++times) << "in front already, but perhaps minimised";
  game.Click(game.GFM->CMDEXIT);
  EXPECT_EQ(stack(), "GST ");
}

TEST(Surface, InATallArrangementEverythingLiesInTheWindowAndNothingOnAnotherThing) {
  AutoPlayer player;
  int tallWindows = 0;
  for (const Window* window : player.game().Windows()) {
    const TallDesign& tall = window->design().tall;
    if (tall.width == 0) continue;
    ++tallWindows;
    const Box all = {0, 0, tall.width, tall.height};
    const auto overlap = [](const Box& one, const Box& other) {
      return one.left < other.left + other.width && other.left < one.left + one.width &&
             one.top < other.top + other.height && other.top < one.top + one.height;
    };
    for (const Control* one : window->controls()) {
      if (one->kind() == Kind::Timer) continue;
      EXPECT_TRUE(all.Holds(one->TallPlace())) << window->name() << "." << one->FullName();
      for (const Control* other : window->controls()) {
        if (other == one || other->kind() == Kind::Timer) continue;
        EXPECT_EQ(overlap(one->TallPlace(), other->TallPlace()),
                  overlap(one->Place(), other->Place()))
            << window->name() << ": " << one->FullName() << " and " << other->FullName();
      }
    }
  }
  EXPECT_EQ(tallWindows, 3);
}

}  // namespace
}  // namespace zelvo::test
