#include <gtest/gtest.h>

#include <QAccessible>
#include <algorithm>
#include <tuple>

#include "tests/desktop/player.h"

namespace zelvo {
namespace {

class Keyboard : public testing::Test, public Player {
 protected:
  /// Presses Tab until a control has the focus.
  void TabTo(Control& control) {
    for (int press = 0; press < 40 && !Widget(control).hasFocus(); ++press) Type(Qt::Key_Tab);
    ASSERT_TRUE(Widget(control).hasFocus()) << control.FullName();
  }
  void Choose(Control& control) {
    TabTo(control);
    Type(Qt::Key_Return);
  }

  void EndTurnByKey() { Type(Qt::Key_Return, Qt::ControlModifier); }

  /// Walks with the arrow keys to a lot.
  void WalkTo(Control& lot) {
    const Box to = lot.Place();
    for (int press = 0; press < 20 && !Widget(lot).hasFocus(); ++press) {
      const Box from = dynamic_cast<ControlWidget*>(QApplication::focusWidget())->control().Place();
      if (from.left != to.left) {
        Type(from.left < to.left ? Qt::Key_Right : Qt::Key_Left);
      } else {
        Type(from.top < to.top ? Qt::Key_Down : Qt::Key_Up);
      }
    }
    ASSERT_TRUE(Widget(lot).hasFocus()) << lot.FullName();
  }
};

TEST_F(Keyboard, AFirstTurnWithTheKeyboardAlone) {
  Choose(game.GST->CMDSTART);
  auto& lots = game.GFM->Image1;
  const auto lot = std::ranges::find(lots, PictureId::ICF_LOPEN, &Control::Picture);
  ASSERT_NE(lot, std::end(lots));
  WalkTo(*lot);
  EXPECT_EQ(View(game.GFM).windowTitle(), "Zoned undeveloped lot");
  Type(Qt::Key_Space);
  Type(Qt::Key_Tab);
  EXPECT_TRUE(Widget(game.GFM->CMDBUY).hasFocus());
  Type(Qt::Key_Return);
  EXPECT_EQ(lot->Tag, "PU");
  // The button goes, and the keyboard is back on the lot, one Tab away from building.
  ASSERT_TRUE(QTest::qWaitFor([&] { return Widget(*lot).hasFocus(); }));
  Type(Qt::Key_Tab);
  Type(Qt::Key_Return);
  EXPECT_TRUE(Widget(game.GFM->BUILDIT).hasFocus());
  Type(Qt::Key_Backtab);
  Type(Qt::Key_Right);
  Type(Qt::Key_Right);
  EXPECT_EQ(View(game.GFM).windowTitle(), "Quality Inn");
  Type(Qt::Key_Return);
  OnceShown(game.HS, [this] { Choose(game.HS->CMDAN1[1]); });
  Type(Qt::Key_Tab);
  Type(Qt::Key_Return);
  EXPECT_EQ(lot->Tag, "PQH");
  EndTurnByKey();
  EXPECT_EQ(game.TurnNo, 1);
  EXPECT_EQ(Widget(game.GFM->PCredit).Text().text.toStdString(), game.GFM->PCredit.Caption);
}

TEST_F(Keyboard, TheFocusNeverVanishesInATurn) {
  StartGame();
  tickLength = 20;
  TabTo(game.GFM->CMDGO);
  int looks = 0;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    const QWidget* focus = View(game.GFM).focusWidget();
    ASSERT_TRUE(focus != nullptr && focus->isVisible());
    if (game.GFM->CMDGO.Visible) return;
    ++looks;
    QTest::keyClick(&View(game.GFM), Qt::Key_Return, Qt::ControlModifier);  // not now
  });
  look.start(0);
  QTest::keyClick(&Widget(game.GFM->CMDGO), Qt::Key_Return);
  look.stop();
  EXPECT_GT(looks, 0);
  EXPECT_EQ(game.TurnNo, 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Widget(game.GFM->CMDGO).hasFocus(); }));
}

TEST_F(Keyboard, AKeyIsTakenOnceAndOnlyWithItsOwnModifiers) {
  StartGame();
  using Press = std::tuple<Qt::Key, Qt::KeyboardModifiers, bool>;
  for (const auto& [key, modifiers, held] :
       {Press{Qt::Key_Return, Qt::ControlModifier, true},
        Press{Qt::Key_Enter, Qt::ControlModifier | Qt::ShiftModifier, false},
        Press{Qt::Key_Return, Qt::AltModifier, false}, Press{Qt::Key_F1, Qt::ShiftModifier, false},
        Press{Qt::Key_Escape, Qt::NoModifier, false}, Press{Qt::Key_F1, Qt::NoModifier, true}}) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers, "", held);
    QApplication::sendEvent(&View(game.GFM), &press);
    EXPECT_TRUE(game.TurnNo == 0 && !game.ICF->IsShown() && game.GFM->IsShown()) << key;
  }
  QKeyEvent keypad(QEvent::KeyPress, Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
  QApplication::sendEvent(&View(game.GFM), &keypad);
  EXPECT_EQ(game.TurnNo, 1);
}

TEST_F(Keyboard, EscapeIsTheWayOutWhereTheGameWantsNoAnswer) {
  StartGame();
  for (Window* window : game.Windows()) {
    if (window->name() == "GST" || window->name() == "GFM") continue;
    const bool stays = window->name() == "CHN" || window->name() == "TT";
    window->handlers.activate = nullptr;
    OnceShown(*window, [this, window, stays] {
      Type(Qt::Key_Escape);
      EXPECT_EQ(window->IsShown(), stays) << window->name();
      game.Hide(*window);
    });
    game.ShowModal(*window);
  }
  EXPECT_EQ(game.CancelledBuilds, 1);
  platform.screen.Sync();
  Type(Qt::Key_Escape);
  EXPECT_TRUE(game.GFM.Untouched().IsShown());
}

TEST_F(Keyboard, TheSetupIsAKeyAwayAndArrowsSelectItsOptions) {
  for (const bool onBoard : {false, true}) {
    if (onBoard) StartGame();
    OnceShown(game.ICF, [&] {
      // The line of the legend follows the keyboard.
      Type(onBoard ? Qt::Key_Up : Qt::Key_Down);
      EXPECT_EQ(game.SkillLevel, onBoard ? 0 : 1);
      EXPECT_EQ(game.ICF->Label1.Caption, onBoard ? "Easy to win" : "Normal Chances");
      Type(Qt::Key_Backtab);
      Type(Qt::Key_Right);
      EXPECT_EQ(game.ICF->Label1.Caption, "Open zoned lot");
      Type(Qt::Key_Escape);
    });
    Type(Qt::Key_F1);
    EXPECT_FALSE(game.ICF->IsShown());
  }
}

TEST_F(Keyboard, AButtonThatGoesAndComesBackGetsTheKeyboardBack) {
  StartGame();
  Control& go = game.GFM->CMDGO;
  TabTo(go);
  const auto show = [&](bool visible) {
    go.Visible = visible;
    platform.screen.Sync();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Widget(go).isVisible() == visible; }));
  };
  show(false);
  EXPECT_TRUE(Widget(game.GFM->Image1[0]).hasFocus());
  show(true);
  EXPECT_TRUE(Widget(go).hasFocus());
  show(false);
  TabTo(game.GFM->Label1);
  show(true);
  EXPECT_TRUE(Widget(game.GFM->Label1).hasFocus());
}

TEST_F(Keyboard, TheKeyboardReachesWhateverCanBeClickedAndAVoiceNamesIt) {
  StartGame();
  for (Window* window : game.Windows()) {
    Exhibit(*window);
    View(*window).activateWindow();
    std::vector<QWidget*> reached;
    const auto reach = [&](Qt::Key key) {
      Type(key);
      QWidget* widget = QApplication::focusWidget();
      if (widget != nullptr && std::ranges::count(reached, widget) == 0) {
        reached.push_back(widget);
      }
    };
    for (int press = 0; press < 40; ++press) reach(Qt::Key_Tab);
    // Shift and Tab go the same way back.
    for (std::size_t stop = reached.size(); stop > 0; --stop) {
      reached[stop % reached.size()]->setFocus();
      Type(Qt::Key_Backtab);
      EXPECT_EQ(QApplication::focusWidget(), reached[stop - 1]) << stop;
    }
    for (std::size_t walked = 0; walked < reached.size();) {
      QWidget* from = reached[walked++];
      for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        from->setFocus();
        reach(key);
      }
    }
    for (ControlWidget* widget : View(*window).widgets()) {
      const bool clickable = widget->control().handlers.click != nullptr;
      SCOPED_TRACE(View(*window).windowTitle().toStdString() + ", " + widget->control().FullName());
      EXPECT_TRUE(!clickable || std::ranges::count(reached, widget) == 1);
      if (!clickable && !TakesFocus(widget->control())) continue;
      QWidget* named = widget->focusProxy() != nullptr ? widget->focusProxy() : widget;
      EXPECT_NE(QAccessible::queryAccessibleInterface(named)->text(QAccessible::Name), "");
    }
    game.Hide(*window);
    platform.screen.Sync();
  }
}

TEST_F(Keyboard, AnInitialGoesToTheNextThatShowsIt) {
  StartGame();
  for (const int lot : {7, 42, 95}) game.GFM->Image1[lot].Picture = PictureId::ICF_MALL;
  for (const int lot : {7, 42, 95, 7}) {
    Type(Qt::Key_M);
    EXPECT_TRUE(Widget(game.GFM->Image1[lot]).hasFocus()) << lot;
  }
  Type(Qt::Key_Z);
  EXPECT_TRUE(Widget(game.GFM->Image1[7]).hasFocus());
}

TEST_F(Keyboard, WalkingStopsAtTheEdgesOfTheBoard) {
  StartGame();
  using Step = std::tuple<int, Qt::Key, int>;
  for (const auto& [from, key, to] :
       {Step{0, Qt::Key_Left, 0}, Step{0, Qt::Key_Up, 0}, Step{9, Qt::Key_Right, 9},
        Step{9, Qt::Key_Down, 19}, Step{44, Qt::Key_Right, 45}, Step{90, Qt::Key_Down, 90},
        Step{99, Qt::Key_Left, 98}, Step{55, Qt::Key_Up, 45}}) {
    Widget(game.GFM->Image1[from]).setFocus();
    Type(key);
    EXPECT_TRUE(Widget(game.GFM->Image1[to]).hasFocus()) << from << " to " << to;
  }
  Widget(game.GFM->HILTON).setFocus();
  Type(Qt::Key_Down);
  EXPECT_TRUE(Widget(game.GFM->Rest).hasFocus());
  Widget(game.GFM->Image1[45]).setFocus();
  // A lot that twitches keeps the focus.
  for (const bool visible : {false, true}) {
    game.GFM->Image1[45].Visible = visible;
    platform.screen.Sync();
  }
  EXPECT_TRUE(Widget(game.GFM->Image1[45]).hasFocus());
}

}  // namespace
}  // namespace zelvo
