#include <gtest/gtest.h>

#include <QAccessible>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <tuple>

#include "tools/gallery/desktop_game.h"

namespace zelvo {
namespace {

class Input : public testing::Test, public DesktopGame {
 protected:
  void Press(Control& control) { QTest::mouseClick(&Widget(control), Qt::LeftButton); }

  static void MoveOver(QWidget& widget) {
    QMouseEvent move(QEvent::MouseMove, QPointF(2, 2), widget.mapToGlobal(QPointF(2, 2)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
  }

  void Type(Qt::Key key) {
    QCoreApplication::processEvents();  // the window that came up last becomes the active one
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr) focus = QApplication::activeWindow();
    ASSERT_NE(focus, nullptr);
    QTest::keyClick(focus, key);
  }

  /// Presses Tab until a control has the focus.
  void TabTo(Control& control) {
    for (int press = 0; press < 40 && !Widget(control).hasFocus(); ++press) Type(Qt::Key_Tab);
    ASSERT_TRUE(Widget(control).hasFocus()) << control.FullName();
  }
  void Choose(Control& control) {
    TabTo(control);
    Type(Qt::Key_Return);
  }

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

  /// Does something once a condition holds, from the event loop that then runs.
  template <class Condition, class Action>
  void Once(Condition condition, Action action) {
    auto* look = new QTimer(&platform);
    QObject::connect(look, &QTimer::timeout, &platform, [look, condition, action] {
      if (!condition()) return;
      look->stop();
      action();
    });
    look->start(0);
  }

  template <class Action>
  void OnceShown(Window& window, Action action) {
    Once([this, &window] { return game.InputWindow() == &window && platform.ViewOf(window); },
         action);
  }
};

TEST_F(Input, AFirstTurnWithTheKeyboardAlone) {
  Choose(game.GST->CMDSTART);
  auto& lots = game.GFM->Image1;
  const auto lot = std::ranges::find(lots, PictureId::ICF_LOPEN, &Control::Picture);
  ASSERT_NE(lot, std::end(lots));
  WalkTo(*lot);
  EXPECT_EQ(View(game.GFM).windowTitle(), "Zoned undeveloped lot");
  Type(Qt::Key_Space);
  Choose(game.GFM->CMDBUY);
  EXPECT_EQ(lot->Tag, "PU");
  Choose(game.GFM->CMDBUILD);
  EXPECT_TRUE(Widget(game.GFM->BUILDIT).hasFocus());
  TabTo(game.GFM->QUALITY);
  EXPECT_EQ(View(game.GFM).windowTitle(), "Quality Inn");
  Type(Qt::Key_Return);
  OnceShown(game.HS, [this] { Choose(game.HS->CMDAN1[1]); });
  Choose(game.GFM->BUILDIT);
  EXPECT_EQ(lot->Tag, "PQH");
  Choose(game.GFM->CMDGO);
  EXPECT_EQ(game.TurnNo, 1);
  EXPECT_EQ(Widget(game.GFM->PCredit).Text().text.toStdString(), game.GFM->PCredit.Caption);
}

TEST_F(Input, AButtonThatGoesAndComesBackGetsTheKeyboardBack) {
  StartGame();
  Control& go = game.GFM->CMDGO;
  TabTo(go);
  const auto show = [&](bool visible) {
    go.Visible = visible;
    platform.Sync();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Widget(go).isVisible() == visible; }));
  };
  show(false);
  EXPECT_EQ(View(game.GFM).focusWidget(), nullptr);
  show(true);
  EXPECT_TRUE(Widget(go).hasFocus());
  show(false);
  TabTo(game.GFM->Label1);
  show(true);
  EXPECT_TRUE(Widget(game.GFM->Label1).hasFocus());
}

TEST_F(Input, TheKeyboardReachesWhateverCanBeClickedAndAVoiceNamesIt) {
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
      if (!clickable && !widget->TakesFocus()) continue;
      EXPECT_NE(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name), "");
    }
    game.Hide(*window);
    platform.Sync();
  }
}

TEST_F(Input, WalkingStopsAtTheEdgesOfTheBoard) {
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
  // A lot that twitches keeps the focus.
  for (const bool visible : {false, true}) {
    game.GFM->Image1[45].Visible = visible;
    platform.Sync();
  }
  EXPECT_TRUE(Widget(game.GFM->Image1[45]).hasFocus());
}

TEST_F(Input, TheMouseOverAControlBringsItsLine) {
  StartGame();
  for (Control* control : {&game.GFM->Image1[99], &game.GFM->PCredit}) {  // that has no line
    MoveOver(Widget(*control));
    EXPECT_EQ(View(game.GFM).windowTitle(), "Computer owned lot") << control->FullName();
  }
  Exhibit(game.ICF);
  MoveOver(Widget(game.ICF->GOLF));
  EXPECT_EQ(game.ICF->Label1.Caption, "Golf Course - raises property value");
  MoveOver(View(game.ICF));
  EXPECT_EQ(game.ICF->Label1.Caption, "Move mouse over Icons for descriptions");
}

TEST_F(Input, AClickThatCannotBeTakenIsDropped) {
  StartGame();
  game.GFM->CMDGO.Visible = false;
  Press(game.GFM->CMDGO);
  EXPECT_EQ(game.TurnNo, 0);
  // A press that leaves the control before the release is no click.
  const int lot = game.CurLot;
  const int other = (lot + 5) % lotCount;
  ControlWidget& widget = Widget(game.GFM->Image1[other]);
  QTest::mousePress(&widget, Qt::LeftButton);
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, {-5, -5});
  QTest::mouseClick(&widget, Qt::RightButton);
  EXPECT_EQ(game.CurLot, lot);
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_EQ(game.CurLot, other);
}

TEST_F(Input, OptionsFormAGroupAndBoxesAreTicked) {
  OnceShown(game.ICF, [this] {
    Press(game.ICF->OPT1[2]);
    EXPECT_TRUE(game.ICF->OPT1[2].Value() && !game.ICF->OPT1[0].Value());
    Press(game.ICF->CKBANK);
    EXPECT_FALSE(game.ICF->CKBANK.Value());
    // The window below takes no input while the setup is up.
    Press(game.GST->CMDSTART);
    EXPECT_FALSE(game.GFM.Untouched().IsShown());
    Press(game.ICF->cmdexit);
  });
  Press(game.GST->CMDSET);
  EXPECT_EQ(game.SkillLevel, 2);
}

TEST_F(Input, OnlyACloseBoxCloses) {
  StartGame();
  for (Window* window : game.Windows()) {
    if (window->name() == "GST" || window->name() == "GFM") continue;
    window->handlers.activate = nullptr;
    OnceShown(*window, [this, window] {
      View(*window).close();
      EXPECT_EQ(window->IsShown(), !window->HasCloseBox()) << window->name();
      if (window->IsShown()) Type(Qt::Key_Escape);
      EXPECT_EQ(window->IsShown(), !window->HasCloseBox()) << window->name();
      game.Hide(*window);
    });
    game.ShowModal(*window);
  }
  Exhibit(game.RB);
  QTest::keyClick(&View(game.RB), Qt::Key_Escape);
  EXPECT_FALSE(game.RB.Untouched().IsLoaded());
  Type(Qt::Key_Escape);
  EXPECT_TRUE(game.GFM.Untouched().IsShown());
  View(game.GFM).close();
  EXPECT_FALSE(game.GFM.Untouched().IsLoaded());
  View(game.GST).close();
  EXPECT_TRUE(game.HasEnded());
  EXPECT_FALSE(View(game.GFM).isVisible() || View(game.GST).isVisible());
}

TEST_F(Input, TheBoardCanBeClosedInTheMiddleOfATurn) {
  StartGame();
  Once([this] { return game.GFM.Untouched().LITE[2].Visible; }, [this] { View(game.GFM).close(); });
  for (int turn = 0; turn < 12 && game.GFM.Untouched().IsShown(); ++turn) Press(game.GFM->CMDGO);
  EXPECT_FALSE(View(game.GFM).isVisible());
  EXPECT_FALSE(game.HasEnded());
}

TEST_F(Input, MessageBoxesAnswer) {
  using Case = std::tuple<MessageStyle, QMessageBox::StandardButton, Answer>;
  for (const auto& [style, button, answer] :
       {Case{MessageStyle::YesNoQuestion, QMessageBox::Yes, Answer::Yes},
        Case{MessageStyle::YesNoQuestion, QMessageBox::No, Answer::No},
        Case{MessageStyle::YesNoQuestion, QMessageBox::NoButton, Answer::No},  // Escape
        Case{MessageStyle::Ok, QMessageBox::Ok, Answer::Ok},
        Case{MessageStyle::OkExclamation, QMessageBox::NoButton, Answer::Ok}}) {
    const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    Once([box] { return box() != nullptr; },
         [box, pressed = button] {
           EXPECT_EQ(box()->windowTitle() + ": " + box()->text(), "Zelvo: One\nTwo");
           QAbstractButton* at = box()->button(pressed);
           at != nullptr ? at->click() : QTest::keyClick(box(), Qt::Key_Escape);
         });
    EXPECT_EQ(game.MessageBox("One\n\rTwo", style), answer);
  }
}

}  // namespace
}  // namespace zelvo
