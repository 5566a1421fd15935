#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "surface/speech.h"
#include "tests/auto_player.h"
#include "tests/play.h"
#include "tests/recorded.h"

namespace zelvo::test {
namespace {

/// A machine that leaves modal windows to the test.
struct Machine : Scripted {
  Machine() : Scripted("answer ok\n") {}
  void RunModal(Window& window) override { inModal(window); }
  std::string AppFolder() override { return "C:\\"; }
  std::function<void(Window&)> inModal = [](Window& /*window*/) {};
};

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
  EXPECT_EQ(control.Place().width > 0 && frame.Holds(control.Place()),
            kind != Kind::Timer && family != "BK.Image1");
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
  for (Window* window : machine.game().Windows()) {
    machine.game().Load(*window);
    std::set<const Control*> lower = {nullptr};
    for (const Control* control : window->controls()) {
      const std::string name = std::string(window->name()) + "." + std::string(control->name());
      SCOPED_TRACE(name);
      EXPECT_TRUE(lower.contains(control->container()));
      EXPECT_TRUE(lower.insert(control).second) << "placed twice";
      CheckControl(*control, name);
      owned.insert(control->design().picture);
    }
  }
  // Every picture of the program belongs to a control; None is the first.
  EXPECT_EQ(owned.size(), static_cast<std::size_t>(PictureId::Count));
}

std::ostream& operator<<(std::ostream& out, const Box& box) {
  return out << ' ' << box.left << ' ' << box.top << ' ' << box.width << ' ' << box.height;
}

/// All that a face finds out about a window.
void Describe(std::ostream& out, const Window& window) {
  const WindowDesign& design = window.design();
  out << design.name << " \"" << window.Caption << "\" " << design.width << ' ' << design.height
      << ", tall " << design.tall.width << ' ' << design.tall.height;
  if (design.low.width != 0) out << ", low " << design.low.width << ' ' << design.low.height;
  out << ", title bar " << static_cast<int>(design.titleBar) << ", ground " << std::hex
      << design.ground << std::dec << ", spoken " << SpokenName(window) << '\n';
}

/// All that a face finds out about a control.
void Describe(std::ostream& out, const Control& control) {
  const ControlDesign& design = control.design();
  const Look& look = design.look;
  const Handlers& handlers = control.handlers;
  const WindowDesign& window = control.window().design();
  out << control.window().name() << '.' << control.FullName() << ", kind "
      << static_cast<int>(control.kind()) << ", at" << control.Place() << ", tall"
      << control.Place(window.tall);
  if (window.low.width != 0) out << ", low" << control.Place(window.low);
  out << ", ink " << std::hex << look.ink << " on " << look.ground << std::dec << ", letters "
      << look.letterHeight << (look.bold ? " bold" : "") << (look.vertical ? " vertical" : "")
      << ", text " << static_cast<int>(look.align) << " in " << look.textShare << ", border "
      << static_cast<int>(look.border) << (design.visible ? "" : ", hidden")
      << (handlers.click != nullptr ? ", click" : "")
      << (handlers.mouseMove != nullptr ? ", move" : "")
      << (handlers.timer != nullptr ? ", timer" : "")
      << (handlers.dropsClicksWhileBusy ? ", drops clicks" : "") << ", speech "
      << static_cast<int>(design.speech) << ", key " << static_cast<int>(design.key) << ", tab "
      << design.tabLevel;
  if (design.group != nullptr) {
    out << ", group " << design.group->name << (design.group->walked ? " walked" : "");
  }
  out << ", spoken " << SpokenName(control) << '\n';
}

TEST(Windows, LookAsTheyWereRecorded) {
  Machine machine;
  std::ostringstream all;
  for (Window* window : machine.game().Windows()) {
    machine.game().Load(*window);
    Describe(all, *window);
    for (const Control* control : window->controls()) Describe(all, *control);
  }
  Control& lot = machine.game().GFM->Image1[0];
  for (int row = 0; row < static_cast<int>(PictureId::Count); ++row) {
    lot.Picture = static_cast<PictureId>(row);
    all << PictureOwner(lot.Picture) << ", spoken " << SpokenName(lot) << '\n';
  }
  ExpectAsRecorded("windows.txt", all.str(), [](const std::string&) { return true; });
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

// What is told of a control as it was placed is recorded above.
TEST(Windows, AreToldWithWhatTheyHold) {
  Machine machine;
  Game& game = machine.game();
  game.GFM->PCredit.Caption = "$1,000,000";
  EXPECT_EQ(SpokenName(game.GFM->PCredit), "Player's credit, $1,000,000");
  game.GFM->PSHOW.Caption = "Property #  37-O\n\rTaxes are  $5 ";
  EXPECT_EQ(SpokenName(game.GFM->PSHOW), "Property # 37-O, Taxes are $5");
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

TEST(AutoPlayer, DoesNoHarmUnlessItIsTold) {
  AutoPlayer player;
  EXPECT_EQ(player.MessageBox("?", MessageStyle::YesNoQuestion, ""), Answer::No);
  EXPECT_EQ(player.MessageBox("!", MessageStyle::OkExclamation, ""), Answer::Ok);
  player.onMessage = [](const std::string& text, MessageStyle) {
    return text == "?" ? Answer::Yes : Answer::No;
  };
  EXPECT_EQ(player.MessageBox("?", MessageStyle::YesNoQuestion, ""), Answer::Yes);
  std::string heard;
  player.onSound = [&](const std::string& path, bool waits) {
    heard += path + (waits ? "! " : " ");
  };
  Game& game = player.game();
  game.Start();
  game.Click(game.GST->CMDSTART);
  EXPECT_EQ(heard, ".\\ZELVO.WAV! .\\STARTP.WAV! ");
  player.inModal = Dismiss;
  for (Window* window : game.Windows()) {
    // Two windows are no dialogs, and tax time closes itself.
    if (window->design().titleBar == TitleBar::Sizable || window->name() == "TT") continue;
    window->handlers.activate = nullptr;
    game.ShowModal(*window);
    EXPECT_FALSE(window->IsShown()) << window->name();
  }
  EXPECT_EQ(game.PlayerLoan, Currency());
}

void ExpectOrderly(const Window& window, const Arrangement& arrangement) {
  const Box all = {0, 0, arrangement.width, arrangement.height};
  for (const Control* one : window.controls()) {
    if (one->kind() == Kind::Timer) continue;
    const Box place = one->Place(arrangement);
    EXPECT_TRUE(all.Holds(place)) << window.name() << "." << one->FullName();
    for (const Control* other : window.controls()) {
      if (other == one || other->kind() == Kind::Timer) continue;
      EXPECT_EQ(Overlap(place, other->Place(arrangement)), Overlap(one->Place(), other->Place()))
          << window.name() << ": " << one->FullName() << " and " << other->FullName();
    }
  }
}

TEST(Surface, InEachArrangementEverythingLiesInTheWindowAndNothingOnAnotherThing) {
  AutoPlayer player;
  int arrangements = 0;
  for (const Window* window : player.game().Windows()) {
    const WindowDesign& design = window->design();
    for (const Arrangement& arrangement : {design.tall, design.low}) {
      if (arrangement.width == 0) continue;
      SCOPED_TRACE(arrangement.width);
      ++arrangements;
      ExpectOrderly(*window, arrangement);
    }
  }
  EXPECT_EQ(arrangements, 5);
}

}  // namespace
}  // namespace zelvo::test
