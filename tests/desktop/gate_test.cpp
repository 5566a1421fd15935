#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <algorithm>

#include "tests/desktop/player.h"

namespace zelvo {
namespace {

/// Counts how often timers without an interval wake the program, save for the test's own.
struct SpinCount : QObject {
  SpinCount() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* timer = qobject_cast<QTimer*>(object);
    const bool isOurs = timer != nullptr && timer->objectName().isEmpty();
    if (event->type() == QEvent::Timer && isOurs && timer->interval() == 0) ++spins;
    return false;
  }
  int spins = 0;
};

class AtTheGate : public testing::Test, public Player {
 protected:
  /// Lets the event loop that runs go round that often, then does something.
  template <class Action>
  void After(int rounds, Action action) {
    auto* look = new QTimer(qApp);
    look->setObjectName("look");
    QObject::connect(look, &QTimer::timeout, look, [look, rounds, action]() mutable {
      if (--rounds > 0) return;
      look->deleteLater();
      look->stop();
      action();
    });
    look->start(0);
  }
  /// Does something in the middle of a blink of the computer's turn.
  template <class Action>
  void InABlink(Action action) {
    Once([this] { return game.GFM.Untouched().LITE[2].Visible; }, action);
    for (int turn = 0; turn < 12 && !HasBlinked(); ++turn) {
      QTest::mouseClick(&Widget(game.GFM->CMDGO), Qt::LeftButton);
    }
  }
  bool HasBlinked() const { return Ticks() > 0; }
  std::ptrdiff_t Ticks() const {
    const GameList& list = session.journal().list();
    return std::count_if(list.begin(), list.end(),
                         [](const Entry& entry) { return entry.kind == Entry::Kind::Tick; });
  }
  template <class Dialog>
  static Dialog* Open() {
    return qobject_cast<Dialog*>(QApplication::activeModalWidget());
  }
};

TEST_F(AtTheGate, OneOfTwoDialogsThatCloseDoesNotLetTheGameGoOnUnderTheOther) {
  StartGame();
  const int other = (game.CurLot + 5) % lotCount;
  session.Do(commandDesigns[0]);
  auto* file = Open<QFileDialog>();
  ASSERT_NE(file, nullptr);
  session.Say("It cannot be written.");
  QTest::mouseClick(&Widget(game.GFM->Image1[other]), Qt::LeftButton);
  auto* box = Open<QMessageBox>();
  ASSERT_NE(box, nullptr);
  box->accept();
  QCoreApplication::processEvents();
  EXPECT_NE(game.CurLot, other);
  file->reject();
  QCoreApplication::processEvents();
  EXPECT_EQ(game.CurLot, other);
}

TEST_F(AtTheGate, AMenuThatIsOpenedInACueHoldsTheGameBehindIt) {
  sound->isThere = true;
  game.SoundOn = true;
  sound->looksWhilePlaying = 3;
  std::size_t before = 0;
  std::size_t after = 0;
  int menus = 0;
  sound->whileItPlays = [&](const WaveFile& /*wave*/) {
    if (menus++ > 0) return;
    After(1, [&] {
      QMenu* menu = session.OpenMenu({});
      before = session.journal().list().size();
      After(50, [&, menu] {
        after = session.journal().list().size();
        menu->close();
      });
    });
  };
  StartGame();
  EXPECT_GT(before, 0U);
  EXPECT_EQ(after, before);
  EXPECT_GT(session.journal().list().size(), after) << "and then goes on";
}

TEST_F(AtTheGate, NothingTicksOrSpinsUnderADialogThatIsOpenedFromTheMenuInABlink) {
  StartGame();
  SpinCount count;
  int spins = -1;
  std::ptrdiff_t ticks = -1;
  InABlink([&] {
    QMenu* menu = session.OpenMenu({});
    After(5, [&, menu] {
      ticks = Ticks();
      menu->setActiveAction(menu->actions()[2]);  // "Keep this game..."
      QTest::keyClick(menu, Qt::Key_Return);
      Once([] { return Open<QFileDialog>() != nullptr; },
           [&] {
             count.spins = 0;
             After(50, [&] {
               spins = count.spins;
               EXPECT_EQ(Ticks(), ticks);
               Open<QFileDialog>()->reject();
             });
           });
    });
  });
  EXPECT_EQ(spins, 0);
  EXPECT_GT(Ticks(), ticks);
  EXPECT_GE(ticks, 0);
}

TEST_F(AtTheGate, NoTickOfAGameReachesTheOneThatComesInItsPlace) {
  StartGame();
  const QTemporaryDir folder;
  const std::string file = folder.filePath("a.zelvo").toStdString();
  ASSERT_EQ(session.Keep(file), "");
  std::ptrdiff_t ticks = -1;
  // The game comes to stand in the same blink, with the next tick of its own far off.
  Once([&] { return ticks >= 0 && !session.IsReplacing(); },
       [&] {
         After(50, [&] {
           EXPECT_EQ(Ticks(), ticks);
           EXPECT_TRUE(game.GFM.Untouched().Timer1.Ticks());
           // And before the turn there is no tick to come at all, though one is due just now.
           tickLength = 0;
           platform.gate.SetPace(1);
           session.TakeBack();
         });
       });
  InABlink([&] {
    QMenu* menu = session.OpenMenu({});
    After(5, [&, menu] {
      tickLength = 1'000'000;
      ticks = Ticks();
      EXPECT_EQ(session.GoOn(file), "");
      menu->close();
    });
  });
  ASSERT_TRUE(QTest::qWaitFor([&] { return tickLength == 0 && !session.IsReplacing(); }));
  SpinCount count;
  bool over = false;
  After(50, [&] { over = true; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return over; }));
  EXPECT_FALSE(game.GFM.Untouched().Timer1.Ticks());
  EXPECT_EQ(count.spins, 0);
}

}  // namespace
}  // namespace zelvo
