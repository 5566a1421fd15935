#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <set>

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

  /// Walks with the arrow keys to a lot.
  void WalkTo(int lot) {
    const Box to = game.GFM->Image1[lot].Place();
    const auto from = [] {
      return dynamic_cast<ControlWidget*>(QApplication::focusWidget())->control().Place();
    };
    for (int press = 0; press < 10 && from().left < to.left; ++press) Type(Qt::Key_Right);
    for (int press = 0; press < 10 && from().left > to.left; ++press) Type(Qt::Key_Left);
    for (int press = 0; press < 10 && from().top < to.top; ++press) Type(Qt::Key_Down);
    for (int press = 0; press < 10 && from().top > to.top; ++press) Type(Qt::Key_Up);
    ASSERT_TRUE(Widget(game.GFM->Image1[lot]).hasFocus()) << lot;
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

  int OpenLot() {
    for (int lot = 0; lot < lotCount; ++lot) {
      if (game.GFM->Image1[lot].Picture == PictureId::ICF_LOPEN) return lot;
    }
    return -1;
  }
};

TEST_F(Input, AFirstTurnWithTheMouse) {
  Press(game.GST->CMDSTART);
  const int lot = OpenLot();
  ASSERT_GE(lot, 0);
  Press(game.GFM->Image1[lot]);
  EXPECT_EQ(game.CurLot, lot);
  Press(game.GFM->CMDBUY);
  EXPECT_EQ(game.GFM->Image1[lot].Tag, "PU");
  Press(game.GFM->CMDGO);
  EXPECT_EQ(game.TurnNo, 1);
  EXPECT_EQ(game.Turn, "P");
  EXPECT_EQ(Widget(game.GFM->PCredit).Text().text.toStdString(), game.GFM->PCredit.Caption);
}

TEST_F(Input, AFirstTurnWithTheKeyboardAlone) {
  TabTo(game.GST->CMDSTART);
  Type(Qt::Key_Return);
  const int lot = OpenLot();
  ASSERT_GE(lot, 0);
  WalkTo(lot);
  EXPECT_EQ(View(game.GFM).windowTitle(), "Zoned undeveloped lot");
  Type(Qt::Key_Space);
  TabTo(game.GFM->CMDBUY);
  Type(Qt::Key_Return);
  TabTo(game.GFM->CMDBUILD);
  Type(Qt::Key_Return);
  EXPECT_TRUE(Widget(game.GFM->BUILDIT).hasFocus());
  TabTo(game.GFM->QUALITY);
  EXPECT_EQ(View(game.GFM).windowTitle(), "Quality Inn");
  Type(Qt::Key_Return);
  TabTo(game.GFM->BUILDIT);
  OnceShown(game.HS, [this] {
    TabTo(game.HS->CMDAN1[1]);
    Type(Qt::Key_Return);
  });
  Type(Qt::Key_Return);
  EXPECT_EQ(game.GFM->Image1[lot].Tag, "PQH");
  TabTo(game.GFM->CMDGO);
  Type(Qt::Key_Return);
  EXPECT_EQ(game.TurnNo, 1);
  EXPECT_EQ(game.Turn, "P");
}

TEST_F(Input, TheKeyboardReachesWhateverCanBeClicked) {
  StartGame();
  for (Window* window : game.Windows()) {
    Exhibit(*window);
    View(*window).activateWindow();
    std::set<QWidget*> reached;
    std::vector<QWidget*> toWalkFrom;
    const auto reach = [&] {
      QWidget* widget = QApplication::focusWidget();
      if (widget == nullptr) return;
      if (reached.insert(widget).second) toWalkFrom.push_back(widget);
    };
    for (int press = 0; press < 40; ++press) {
      Type(Qt::Key_Tab);
      reach();
    }
    while (!toWalkFrom.empty()) {
      QWidget* from = toWalkFrom.back();
      toWalkFrom.pop_back();
      for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        from->setFocus();
        Type(key);
        reach();
      }
    }
    for (ControlWidget* widget : View(*window).widgets()) {
      const Control& control = widget->control();
      if (control.handlers.click == nullptr) continue;
      EXPECT_TRUE(reached.count(widget)) << window->name() << '.' << control.FullName();
    }
    game.Hide(*window);
    platform.Sync();
  }
}

TEST_F(Input, WalkingStopsAtTheEdgesOfTheBoard) {
  StartGame();
  const struct {
    int from;
    Qt::Key key;
    int to;
  } steps[] = {{0, Qt::Key_Left, 0},   {0, Qt::Key_Up, 0},     {0, Qt::Key_Right, 1},
               {9, Qt::Key_Right, 9},  {9, Qt::Key_Down, 19},  {44, Qt::Key_Right, 45},
               {90, Qt::Key_Down, 90}, {99, Qt::Key_Left, 98}, {55, Qt::Key_Up, 45}};
  for (const auto& step : steps) {
    Widget(game.GFM->Image1[step.from]).setFocus();
    Type(step.key);
    EXPECT_TRUE(Widget(game.GFM->Image1[step.to]).hasFocus()) << step.from << " to " << step.to;
  }
}

TEST_F(Input, TheMouseOverAControlBringsItsLine) {
  StartGame();
  const std::pair<Control*, const char*> lines[] = {
      {&game.GFM->HILTON, "Hilton"},
      {&game.GFM->PSHOW, "Play Instructions"},
      {&game.GFM->Panel3D4, "Zelvo Help"},
      {&game.GFM->Image1[99], "Computer owned lot"},
      {&game.GFM->PCredit, "Computer owned lot"},  // has no line of its own
  };
  for (const auto& [control, line] : lines) {
    MoveOver(Widget(*control));
    EXPECT_EQ(View(game.GFM).windowTitle().toStdString(), line) << control->FullName();
  }
  OnceShown(game.ICF, [this] {
    MoveOver(Widget(game.ICF->GOLF));
    EXPECT_EQ(game.ICF->Label1.Caption, "Golf Course - raises property value");
    MoveOver(View(game.ICF));
    EXPECT_EQ(game.ICF->Label1.Caption, "Move mouse over Icons for descriptions");
    game.Hide(game.ICF);
  });
  Press(game.GFM->CMDHELP);
}

TEST_F(Input, AClickThatCannotBeTakenIsDropped) {
  StartGame();
  Exhibit(game.GFM);
  const int worth = game.TurnNo;
  game.GFM->CMDGO.Visible = false;
  QTest::mouseClick(&Widget(game.GFM->CMDGO), Qt::LeftButton);
  EXPECT_EQ(game.TurnNo, worth);
  // A press that leaves the control before the release is no click.
  const int lot = game.CurLot;
  ControlWidget& other = Widget(game.GFM->Image1[(lot + 5) % lotCount]);
  QTest::mousePress(&other, Qt::LeftButton);
  QTest::mouseRelease(&other, Qt::LeftButton, {}, {-5, -5});
  EXPECT_EQ(game.CurLot, lot);
  QTest::mouseClick(&other, Qt::RightButton);
  EXPECT_EQ(game.CurLot, lot);
}

TEST_F(Input, OptionsFormAGroupAndBoxesAreTicked) {
  OnceShown(game.ICF, [this] {
    Press(game.ICF->OPT1[2]);
    EXPECT_TRUE(game.ICF->OPT1[2].Value());
    EXPECT_FALSE(game.ICF->OPT1[0].Value());
    Press(game.ICF->CKBANK);
    EXPECT_FALSE(game.ICF->CKBANK.Value());
    // The board below takes no input while the setup is up.
    Press(game.GST->CMDSTART);
    EXPECT_FALSE(game.GFM.Untouched().IsShown());
    Press(game.ICF->cmdexit);
  });
  Press(game.GST->CMDSET);
  EXPECT_EQ(game.SkillLevel, 2);
  EXPECT_FALSE(game.ICF.Untouched().IsShown());
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
  OnceShown(game.RB, [this] { QTest::keyClick(&View(game.RB), Qt::Key_Escape); });
  game.ShowModal(game.RB);
  EXPECT_FALSE(game.RB.Untouched().IsLoaded());

  Type(Qt::Key_Escape);
  EXPECT_TRUE(game.GFM.Untouched().IsShown());
  View(game.GFM).close();
  EXPECT_FALSE(game.GFM.Untouched().IsLoaded());
  EXPECT_FALSE(View(game.GFM).isVisible());
  View(game.GST).close();
  EXPECT_TRUE(game.HasEnded());
  EXPECT_FALSE(View(game.GST).isVisible());
}

TEST_F(Input, TheBoardCanBeClosedInTheMiddleOfATurn) {
  StartGame();
  Once([this] { return game.GFM.Untouched().LITE[2].Visible; }, [this] { View(game.GFM).close(); });
  for (int turn = 0; turn < 12 && game.GFM.Untouched().IsShown(); ++turn) {
    game.GFM->CMDGO.Visible = true;
    platform.Sync();
    Press(game.GFM->CMDGO);
  }
  EXPECT_FALSE(View(game.GFM).isVisible());
  EXPECT_FALSE(game.HasEnded());
}

TEST_F(Input, MessageBoxesAnswer) {
  constexpr auto escape = QMessageBox::NoButton;
  const struct {
    MessageStyle style;
    QMessageBox::StandardButton button;
    Answer answer;
  } cases[] = {{MessageStyle::YesNoQuestion, QMessageBox::Yes, Answer::Yes},
               {MessageStyle::YesNoQuestion, QMessageBox::No, Answer::No},
               {MessageStyle::YesNoQuestion, escape, Answer::No},
               {MessageStyle::Ok, QMessageBox::Ok, Answer::Ok},
               {MessageStyle::OkExclamation, escape, Answer::Ok}};
  for (const auto& one : cases) {
    const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    Once([box] { return box() != nullptr; },
         [box, &one] {
           EXPECT_EQ(box()->text(), "One\nTwo");
           EXPECT_EQ(box()->windowTitle(), "Zelvo");
           if (one.button == escape) {
             QTest::keyClick(box(), Qt::Key_Escape);
           } else {
             QTest::mouseClick(box()->button(one.button), Qt::LeftButton);
           }
         });
    EXPECT_EQ(game.MessageBox("One\n\rTwo", one.style), one.answer);
  }
}

TEST_F(Input, TheLotThatTwitchesKeepsTheFocus) {
  StartGame();
  Control& lot = game.GFM->Image1[game.CurLot];
  Widget(lot).setFocus();
  lot.Visible = false;
  platform.Sync();
  lot.Visible = true;
  platform.Sync();
  EXPECT_TRUE(Widget(lot).hasFocus());
}

}  // namespace
}  // namespace zelvo
