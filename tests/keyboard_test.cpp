#include "surface/keyboard.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/play.h"

namespace zelvo::test {
namespace {

using Names = std::vector<std::string>;

std::string NameOf(const Control* control) { return control == nullptr ? "" : control->FullName(); }

/// The windows as they are designed, and the keyboard in one of them.
class KeyboardOrder : public testing::Test {
 protected:
  KeyboardOrder() {
    for (Window* window : game.Windows()) game.Load(*window);
  }
  Control& Find(Window& window, std::string_view name) { return *window.Find(name); }
  void Enter(Control& control) { last[WalkedGroup(control)] = &control; }

  /// Where Tab stops, once round from nowhere.
  Names Round(Window& window, bool forward = true) {
    const auto stops = StopsOf(window);
    Names names;
    const Control* at = nullptr;
    for (at = NextEntry(stops, last, at, forward); at != nullptr;
         at = NextEntry(stops, last, at, forward)) {
      if (!names.empty() && names.front() == NameOf(at)) break;
      names.push_back(NameOf(at));
    }
    return names;
  }
  std::string Letter(const Control& from, char initial) {
    return NameOf(NextWithInitial(StopsOf(from.window()), last, from, initial));
  }

  Scripted scripted;
  Game& game = scripted.game();
  Window& board = game.GFM;
  Window& setup = game.ICF;
  LastPlaces last;
};

TEST_F(KeyboardOrder, EachWindowIsReadAsTabGoesThroughIt) {
  for (Window* window : game.Windows()) {
    SCOPED_TRACE(window->name());
    const auto order = ReadingOrder(*window);
    std::vector<Control*> reached;
    for (const Stop& stop : StopsOf(*window)) {
      reached.insert(reached.end(), stop.begin(), stop.end());
      EXPECT_TRUE(stop.size() == 1 || WalkedGroup(*stop.back()) == WalkedGroup(*stop.front()));
    }
    std::vector<Control*> expected;
    std::copy_if(order.begin(), order.end(), std::back_inserter(expected),
                 [](const Control* control) { return IsForKeyboard(*control); });
    EXPECT_EQ(reached, expected);
    for (Control* control : window->controls()) {
      EXPECT_EQ(std::count(order.begin(), order.end(), control), control->IsDrawn() ? 1 : 0)
          << NameOf(control);
    }
    // A group of one level is read in one piece.
    std::map<std::pair<const Group*, int>, int> pieces;
    for (std::size_t i = 0; i < order.size(); ++i) {
      const auto pieceOf = [&](std::size_t at) {
        return std::pair(order[at]->design().group, order[at]->design().tabLevel);
      };
      if (pieceOf(i).first == nullptr || (i > 0 && pieceOf(i - 1) == pieceOf(i))) continue;
      EXPECT_EQ(++pieces[pieceOf(i)], 1) << NameOf(order[i]);
    }
  }
}

TEST_F(KeyboardOrder, TabGoesFromALotToWhatCanBeDoneAndRoundTheWindow) {
  for (const char* button : {"CMDBUILD", "BUILDIT"}) Find(board, button).Visible = true;
  Names stops = {"Image1(0)", "CMDBUILD", "SUPER",     "BUILDIT", "CMDGO",
                 "Label1",    "Label8",   "BANKLABEL", "CMDHELP", "CMDEXIT"};
  EXPECT_EQ(Round(board), stops);
  std::reverse(stops.begin(), stops.end());
  EXPECT_EQ(Round(board, false), stops);
  // What has just gone still has its place.
  const auto from = [&](bool forward) {
    return NameOf(NextEntry(StopsOf(board), last, &Find(board, "CMDBUY"), forward));
  };
  EXPECT_EQ(from(true), "CMDBUILD");
  EXPECT_EQ(from(false), "Image1(0)");
}

TEST_F(KeyboardOrder, AGroupIsEnteredWhereTheKeyboardWasElseAtWhatIsSelected) {
  EXPECT_EQ(Round(setup).front(), "OPT1(0)");
  Find(setup, "OPT1(2)").SetValue(true);
  EXPECT_EQ(Round(setup).front(), "OPT1(2)");
  Enter(Find(setup, "OPT1(3)"));
  EXPECT_EQ(Round(setup).front(), "OPT1(3)");
  Find(setup, "OPT1(3)").SetEnabled(false);
  EXPECT_EQ(Round(setup).front(), "OPT1(2)");
  for (Control* control : setup.controls()) control->Visible = false;
  EXPECT_EQ(Round(setup), Names());
}

TEST_F(KeyboardOrder, AStepGoesToTheNearestThatWayAndPassesOverWhatIsGone) {
  struct Way {
    Window& window;
    const char* from;
    Names to;  // left, right, up, down
  };
  for (const Way& way :
       {Way{board, "Image1(0)", {"", "Image1(1)", "", "Image1(10)"}},
        {board, "Image1(54)", {"Image1(53)", "Image1(55)", "Image1(44)", "Image1(64)"}},
        {board, "Image1(99)", {"Image1(98)", "", "Image1(89)", ""}},
        {board, "HILTON", {"RAMADA", "", "", "Rest"}},
        {board, "Rest", {"", "QUALITY", "SUPER", ""}},
        {setup, "OPT1(1)", {"", "", "OPT1(0)", "OPT1(2)"}},
        {setup, "BEST", {"QUALITY", "RAMADA", "GOLF", "MAN1"}},
        {board, "CMDGO", {"", "", "", ""}}}) {
    const WindowDesign& design = way.window.design();
    for (const Arrangement& arrangement : {Arrangement{}, design.tall, design.low}) {
      Names to;
      for (const Step step : steps)
        to.push_back(NameOf(Neighbour(Find(way.window, way.from), step, arrangement)));
      EXPECT_EQ(to, way.to) << way.from << ", width " << arrangement.width;
    }
  }
  const Control& lot = Find(board, "Image1(96)");
  for (const int gone : {97, 98}) game.GFM->Image1[gone].Visible = false;
  EXPECT_EQ(NameOf(Walk(lot, Step::Right)), "Image1(99)");
  game.GFM->Image1[99].Visible = false;
  EXPECT_EQ(Walk(lot, Step::Right), nullptr);
}

TEST_F(KeyboardOrder, ALetterGoesRoundItsGroupAndElseOnToTheBoard) {
  for (const int lot : {7, 42}) game.GFM->Image1[lot].Picture = PictureId::ICF_MALL;
  const auto& lots = game.GFM->Image1;
  EXPECT_EQ(InitialOf(lots[7]), 'm');
  EXPECT_EQ(InitialOf(game.GFM->PSHOW), 0);
  Enter(game.GFM->Image1[7]);
  EXPECT_EQ(Letter(lots[7], 'm'), "Image1(42)");
  Enter(game.GFM->Image1[42]);
  EXPECT_EQ(Letter(lots[42], 'm'), "Image1(7)");
  EXPECT_EQ(Letter(lots[42], 'z'), "");
  EXPECT_EQ(Letter(game.GFM->CMDGO, 'm'), "Image1(7)");
  EXPECT_EQ(Letter(game.GFM->SUPER, 'r'), "RAMADA");
  EXPECT_EQ(Letter(game.GFM->SUPER, 'm'), "Image1(7)");
  game.GFM->Image1[7].Visible = false;
  EXPECT_EQ(Letter(game.GFM->SUPER, 'm'), "Image1(42)");
  EXPECT_EQ(Letter(Find(game.HH, "CMDEXIT"), 'm'), "");
}

}  // namespace
}  // namespace zelvo::test
