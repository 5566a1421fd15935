#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <set>
#include <tuple>

#include "tests/desktop/player.h"

namespace zelvo {
namespace {

class Input : public testing::Test, public Player {
 protected:
  void Press(Control& control) { QTest::mouseClick(&Widget(control), Qt::LeftButton); }

  static void MoveOver(QWidget& widget) {
    QMouseEvent move(QEvent::MouseMove, QPointF(2, 2), widget.mapToGlobal(QPointF(2, 2)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
  }
};

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

TEST_F(Input, AClickOnTheGroundOfAWindowIsTheWindows) {
  StartGame();
  Exhibit(game.ABT);
  WindowView& about = View(game.ABT);
  const QPoint ground(3, 3);
  QTest::mouseClick(&about, Qt::RightButton, {}, ground);
  QTest::mouseRelease(&about, Qt::LeftButton, {}, ground);
  QTest::mousePress(&about, Qt::LeftButton, {}, ground);
  QTest::mouseRelease(&about, Qt::LeftButton, {}, {-5, -5});
  EXPECT_TRUE(game.ABT->IsShown());
  QTest::mouseClick(&about, Qt::LeftButton, {}, ground);
  EXPECT_FALSE(game.ABT->IsShown());
}

TEST_F(Input, TheSecondClickOfADoubleClickDoesNotReachWhatWasHiddenSinceTheFirst) {
  StartGame();
  const auto doubleClick = [this](Control& control) {
    WindowView& window = View(control.window());
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {},
                       Widget(control).geometry().center());
  };
  doubleClick(game.GFM->Label1);
  EXPECT_EQ(game.SkillLevel, 2);
  for (int turn = 1; turn <= 3; ++turn) {
    doubleClick(game.GFM->CMDGO);
    EXPECT_EQ(game.TurnNo, turn);
  }
  Press(game.GFM->CMDGO);
  EXPECT_EQ(game.TurnNo, 4) << "a click of its own counts again";
  // Also where both clicks had to wait for a sound.
  sound->isThere = true;
  sound->looksWhilePlaying = 1;
  QTimer later;
  later.setSingleShot(true);
  QObject::connect(&later, &QTimer::timeout, [&] { doubleClick(game.GFM->CMDGO); });
  later.start(0);
  platform.PlaySound(game.AppPath + "CLICK.WAV", true);
  EXPECT_EQ(game.TurnNo, 4);
  for (int look = 0; look < 3; ++look) game.Yield();
  EXPECT_EQ(game.TurnNo, 5);
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
      game.Hide(*window);
    });
    game.ShowModal(*window);
  }
  View(game.GFM).close();
  EXPECT_FALSE(game.GFM.Untouched().IsLoaded());
  View(game.GST).close();
  EXPECT_TRUE(game.HasEnded());
  EXPECT_EQ(timesLeft, 1);
  EXPECT_FALSE(View(game.GFM).isVisible() || View(game.GST).isVisible());
}

TEST_F(Input, TheBoardCanBeClosedInTheMiddleOfATurn) {
  StartGame();
  Once([this] { return game.GFM.Untouched().LITE[2].Visible; }, [this] { View(game.GFM).close(); });
  for (int turn = 0; turn < 12 && game.GFM.Untouched().IsShown(); ++turn) Press(game.GFM->CMDGO);
  EXPECT_FALSE(View(game.GFM).isVisible());
  EXPECT_FALSE(game.HasEnded());
}

TEST_F(Input, ThePointerIsAnHourglassWhileTheComputerIsAtWork) {
  StartGame();
  std::set<bool> seen;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    EXPECT_TRUE(cursor == nullptr || cursor->shape() == Qt::WaitCursor);
    EXPECT_EQ(cursor != nullptr, game.pointer() == MousePointer::Hourglass);
    seen.insert(cursor != nullptr);
  });
  look.start(0);
  for (int turn = 0; turn < 5; ++turn) Press(game.GFM->CMDGO);
  EXPECT_EQ(seen.size(), 2U);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
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
         [this, box, pressed = button, wanted = style] {
           EXPECT_EQ(box()->windowTitle() + ": " + box()->text(), "Zelvo: One\nTwo");
           const bool question = wanted == MessageStyle::YesNoQuestion;
           EXPECT_EQ(box()->buttons().size(), question ? 2 : 1);
           EXPECT_EQ(box()->icon(), question                     ? QMessageBox::Question
                                    : wanted == MessageStyle::Ok ? QMessageBox::NoIcon
                                                                 : QMessageBox::Warning);
           EXPECT_EQ(box()->parentWidget(), &View(game.GST));
           EXPECT_EQ(box()->font().pixelSize(), static_cast<int>(13 * View(game.GST).Scale()));
           QAbstractButton* at = box()->button(pressed);
           at != nullptr ? at->click() : QTest::keyClick(box(), Qt::Key_Escape);
         });
    EXPECT_EQ(game.MessageBox("One\n\rTwo", style), answer);
  }
}

}  // namespace
}  // namespace zelvo
