#include <gtest/gtest.h>
#include <xcb/xproto.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <tuple>

#include "faces/desktop/placing.h"
#include "tools/gallery/desktop_game.h"

namespace zelvo {
namespace {

class OnScreen : public testing::Test, public DesktopGame {};

TEST_F(OnScreen, NoTextIsClippedAtAnyScale) {
  StartGame();
  for (Window* window : game.Windows()) {
    Exhibit(*window);
    for (const double scale : {0.5, 0.72, 1.0, 2.0, 3.0, 4.0}) {
      View(*window).SetScale(scale);
      ASSERT_NEAR(View(*window).Scale(), scale, 0.01);
      for (ControlWidget* widget : View(*window).widgets()) {
        if (widget->control().Caption.empty()) continue;
        SCOPED_TRACE(View(*window).windowTitle().toStdString() + ", " +
                     widget->control().FullName());
        EXPECT_TRUE(TextFits(*widget)) << scale;
        // Smaller letters than these make it fit, but not read.
        const int letters = widget->control().design().look.letterHeight;
        EXPECT_GE(widget->Text().font.pixelSize(), std::floor(0.55 * letters * scale / 15))
            << scale;
      }
    }
  }
}

TEST_F(OnScreen, WindowsComeUpWhereTheyBelong) {
  WindowView& start = View(game.GST);
  const QSize screen = start.screen()->availableSize();
  EXPECT_GT(start.width(), screen.width() * 0.75);
  EXPECT_LT(start.height(), screen.height());
  start.setGeometry(20, 30, 700, 560);
  StartGame();
  EXPECT_EQ(View(game.GFM).geometry(), start.geometry());
  for (Window* window : game.Windows()) {
    if (window->name() == "GST" || window->name() == "GFM") continue;
    Exhibit(*window);
    WindowView& dialog = View(*window);
    EXPECT_TRUE(dialog.isModal());
    EXPECT_NEAR(dialog.Scale(), View(game.GFM).Scale(), 0.02) << window->name();
    const QPoint off = dialog.geometry().center() - start.geometry().center();
    EXPECT_LE(off.manhattanLength(), 2) << window->name();
    game.Hide(*window);
    platform.screen.Sync();
    EXPECT_FALSE(dialog.isVisible());
  }
  View(game.GFM).move(-500, -400);
  Exhibit(game.ICF);
  EXPECT_TRUE(start.screen()->availableGeometry().contains(View(game.ICF).geometry()));
}

struct PaintCount : QObject {
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
  int paints = 0;
};

TEST_F(OnScreen, ADrawThatWaitsForTheClockKeepsTheWindowsPainted) {
  StartGame();
  Exhibit(game.CHN);
  platform.Yield();
  PaintCount board;
  View(game.GFM).installEventFilter(&board);
  const int lot = game.CurLot;
  now.second = 59;  // the third card waits for the next second
  int reads = 0;
  whenClockIsRead = [&] {
    View(game.GFM).update();
    QTimer::singleShot(0, [&] {
      platform.gate.Deliver(
          [&](Surface& surface) { surface.Click(game.GFM->Image1[(lot + 1) % 100]); });
    });
    if (++reads == 5) now.second = 7;
    EXPECT_EQ(game.CurLot, lot);
  };
  platform.gate.Deliver([this](Surface& surface) { surface.Click(game.CHN->Image1[2]); });
  EXPECT_EQ(reads, 5);
  EXPECT_GE(board.paints, 3);
}

TEST_F(OnScreen, ARefreshPaintsAtOnceWhatTheDataHolds) {
  StartGame();
  PaintCount board;
  View(game.GFM).installEventFilter(&board);
  game.GFM->PSHOW.Caption = "Now";
  game.Refresh(game.GFM);
  EXPECT_EQ(board.paints, 1);
  EXPECT_EQ(Widget(game.GFM->PSHOW).Text().text, "Now");
}

TEST_F(OnScreen, WhatLooksOtherwiseIsPaintedAnew) {
  StartGame();
  Control& lot = game.GFM->Image1[5];
  ControlWidget& widget = Widget(lot);
  PaintCount paint;
  widget.installEventFilter(&paint);
  const auto paints = [&](const std::function<void()>& deed) {
    QCoreApplication::processEvents();
    paint.paints = 0;
    deed();
    QCoreApplication::processEvents();
    return paint.paints > 0;
  };
  EXPECT_FALSE(paints([&] { platform.screen.Sync(); }));
  EXPECT_TRUE(paints([&] { QTest::mousePress(&widget, Qt::LeftButton); }));
  EXPECT_TRUE(paints([&] { QTest::mouseRelease(&widget, Qt::LeftButton, {}, {-5, -5}); }));
  EXPECT_TRUE(paints([&] {
    lot.Picture = PictureId::ICF_MALL;
    platform.screen.Sync();
  }));
  EXPECT_TRUE(paints([&] {
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_Shift);
  }));
}

TEST_F(OnScreen, AChangeOfPaceIsAtOnceThatOfTheTimersThatRun) {
  StartGame();
  tickLength = 3'600'000;
  Control& timer = game.GFM->Timer1;
  timer.SetInterval(10);
  timer.SetEnabled(true);
  game.Work = 0;
  QCoreApplication::processEvents();
  EXPECT_EQ(game.Work, 0) << "an hour is not over";
  platform.gate.SetPace(tickLength);
  EXPECT_TRUE(QTest::qWaitFor([this] { return game.Work > 0; }));
  tickLength = 0;
  timer.SetEnabled(false);
  game.Work = 0;
  platform.gate.SetPace(1);
  QCoreApplication::processEvents();
  EXPECT_EQ(game.Work, 0);
}

/// What the X server tells when somebody else has destroyed a window.
void Destroy(WId window) {
  xcb_destroy_notify_event_t event = {};
  event.response_type = XCB_DESTROY_NOTIFY;
  event.window = static_cast<xcb_window_t>(window);
  qintptr result = 0;
  QAbstractEventDispatcher::instance()->filterNativeEvent("xcb_generic_event_t", &event, &result);
  QCoreApplication::processEvents();
}

TEST_F(OnScreen, AWindowThatIsDestroyedFromOutsideComesAnewAndTheLastOneEndsTheProgram) {
  StartGame();
  const int fronts = platform.screen.fronts;
  Destroy(View(game.GFM).winId());
  EXPECT_TRUE(View(game.GFM).windowHandle()->isVisible());
  EXPECT_EQ(platform.screen.fronts, fronts + 1);
  Destroy(0);
  EXPECT_EQ(platform.screen.fronts, fronts + 1) << "none of ours";
  game.Hide(game.GFM);
  platform.screen.Sync();
  Destroy(View(game.GST).winId());
  EXPECT_TRUE(game.HasEnded());
}

TEST_F(OnScreen, WhatSpeaksOfALotStandsBesideIt) {
  StartGame();
  std::map<const Window*, std::set<int>> seen;
  QTimer player;
  QObject::connect(&player, &QTimer::timeout, [&] {
    Window* window = game.InputWindow();
    if (window == nullptr || window->keepsClearOf == nullptr) return;
    const ControlWidget& lot = *View(game.GFM).Find(game.GFM->Image1[game.CurLot]);
    const QRect place(lot.mapToGlobal(QPoint()), lot.size());
    const QRect dialog = View(*window).frameGeometry();
    EXPECT_FALSE(dialog.intersects(place)) << window->name() << ' ' << game.CurLot;
    EXPECT_TRUE(View(*window).screen()->geometry().contains(dialog));
    seen[window].insert(game.CurLot);
    platform.gate.Deliver([&](Surface& surface) {
      surface.Click(window == &game.SV.Untouched() ? game.SV->CMDOK : game.ML->CMD1[1]);
    });
  });
  player.start(0);
  const auto turns = [this](const char* tag, int second) {
    for (int turn = 0; turn < 5; ++turn) {
      for (Control& lot : game.GFM->Image1) lot.Tag = tag;
      now.second = second;
      game.MallNext = 1;
      platform.gate.Deliver([this](Surface& surface) { surface.Click(game.GFM->CMDGO); });
    }
  };
  turns("PSH", 22);  // repairs are due
  turns("U", 33);    // a mall is zoned
  EXPECT_GE(seen[&game.SV.Untouched()].size(), 5U);
  EXPECT_GE(seen[&game.ML.Untouched()].size(), 5U);
}

TEST(Placing, IsInTheRoomAndBesideWhatIsToBeSeenByTheShortestWay) {
  const QRect room(0, 0, 1000, 600);
  const QRect spot(400, 200, 100, 100);
  for (const auto& [place, corner] :
       std::initializer_list<std::pair<QRect, QPoint>>{{{10, 10, 200, 100}, {10, 10}},
                                                       {{-50, -20, 200, 100}, {0, 0}},
                                                       {{900, 550, 200, 100}, {800, 500}},
                                                       {{480, 150, 200, 300}, {500, 150}},
                                                       {{220, 150, 200, 300}, {200, 150}},
                                                       {{350, 280, 200, 100}, {350, 300}},
                                                       {{350, 120, 200, 100}, {350, 100}},
                                                       {{480, 150, 510, 300}, {480, 300}},
                                                       {{0, 0, 1000, 600}, {0, 0}}}) {
    EXPECT_EQ(MovedBeside(spot, room, place).topLeft(), corner)
        << place.left() << ' ' << place.top();
  }
}

TEST_F(OnScreen, NoLineOfAMessageHoldsALonelyMark) {
  const QFont font = ScreenFont(13, false);
  for (const char* message :
       {"You Don't have enough Money !",
        "You don't have enough money ! Do you wish to borrow the money from the bank ?"}) {
    const QString text(message);
    for (int width = 120; width < 600; width += 7) {
      const QString lines = InEvenLines(text, font, width);
      EXPECT_EQ(lines.simplified(), text);
      for (const QString& line : lines.split('\n')) {
        EXPECT_GT(line.trimmed().size(), 3) << lines.toStdString() << ' ' << width;
        EXPECT_LE(QFontMetricsF(font).horizontalAdvance(line.trimmed()), width);
      }
    }
  }
}

TEST_F(OnScreen, TheStartWindowFollowsTheBoard) {
  StartGame();
  game.GFM->Caption = "News";
  View(game.GFM).resize(700, 500);
  EXPECT_EQ(game.GFM->Caption, "Board Game") << "the game hears of each new size";
  const auto put = [this](Qt::WindowState state) {
    View(game.GFM).setWindowState(state);
    QCoreApplication::processEvents();  // the desktop confirms it
  };
  const auto startWindow = [this] { return View(game.GST).windowState() & ~Qt::WindowActive; };
  for (const auto& [state, extent] : {std::pair{Qt::WindowMaximized, Extent::Maximised},
                                      std::pair{Qt::WindowNoState, Extent::Normal},
                                      std::pair{Qt::WindowMinimized, Extent::Minimised}}) {
    put(state);
    EXPECT_EQ(game.GFM->extent, extent);
    EXPECT_EQ(startWindow(), state);
  }
  StartGame();
  EXPECT_FALSE(View(game.GFM).isMinimized());
  // It comes back once nothing is in front of it.
  EXPECT_EQ(startWindow(), Qt::WindowMinimized);
  platform.gate.Deliver([this](Surface& surface) { surface.Click(game.GFM->CMDEXIT); });
  EXPECT_EQ(startWindow(), Qt::WindowNoState);
  StartGame();
  // Also when it comes while the game holds still for a sound, or after the board was closed so.
  sound->isThere = true;
  sound->whileItPlays = [this](const WaveFile&) {
    View(game.GFM).setWindowState(Qt::WindowMaximized);
  };
  platform.PlaySound(game.AppPath + "CLICK.WAV", true);
  platform.screen.Sync();
  EXPECT_TRUE(View(game.GFM).isMaximized() && View(game.GST).isMaximized());
  View(game.GFM).close();
  sound->whileItPlays = nullptr;
  StartGame();
  EXPECT_TRUE(View(game.GFM).isMaximized() && View(game.GST).isMaximized());
}

TEST_F(OnScreen, WidgetsShowWhatTheDataHolds) {
  StartGame();
  EXPECT_EQ(View(game.GFM).windowTitle(), "Board Game");
  game.GFM->PSHOW.Caption = "One\n\rTwo";
  game.GFM->CMDBUY.Visible = true;
  game.GFM->CMDGO.SetEnabled(false);
  game.GFM->Caption = "News";
  platform.screen.Sync();
  EXPECT_EQ(Widget(game.GFM->PSHOW).Text().text, "One\nTwo");
  EXPECT_TRUE(Widget(game.GFM->CMDBUY).isVisible() && !Widget(game.GFM->CMDGO).isEnabled());
  EXPECT_EQ(View(game.GFM).windowTitle(), "News");
  // What was hidden while the window was away is not there when it comes back.
  game.Hide(game.GFM);
  platform.screen.Sync();
  game.GFM->CMDBUY.Visible = false;
  game.Show(game.GFM);
  platform.screen.Sync();
  EXPECT_FALSE(Widget(game.GFM->CMDBUY).isVisible());

  Exhibit(game.HH);
  const auto* text = Widget(game.HH->Text1).findChild<QPlainTextEdit*>();
  EXPECT_TRUE(text->toPlainText().startsWith("The game\n\n The object"));
  EXPECT_TRUE(text->isReadOnly());
}

TEST_F(OnScreen, WhatHappensWhileTheWindowsAreSyncedOrInAPauseComesAfterIt) {
  StartGame();
  Exhibit(game.RB);
  const QString before = Widget(game.GFM->PSHOW).Text().text;
  int delivered = 0;
  QObject::connect(&View(game.RB), &QWidget::windowTitleChanged, [&] {
    game.GFM->PSHOW.Caption = "Late news";
    platform.screen.Sync();
    platform.gate.Deliver([&](Surface&) { ++delivered; });
    EXPECT_EQ(Widget(game.GFM->PSHOW).Text().text, before);
    EXPECT_EQ(delivered, 0);
  });
  game.RB->Caption = "News";
  platform.screen.Sync();
  EXPECT_EQ(Widget(game.GFM->PSHOW).Text().text, "Late news");
  platform.gate.Deliver([](Surface&) {});
  QCoreApplication::processEvents();
  EXPECT_EQ(delivered, 1);
  // And what happens in a pause comes after that.
  auto pause = std::make_optional<Gate::Pause>(platform.gate);
  platform.gate.Deliver([&](Surface&) { ++delivered; });
  EXPECT_EQ(delivered, 1);
  pause.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(delivered, 2);
}

TEST_F(OnScreen, EveryPictureIsDrawnSharp) {
  int clear = 0;
  for (int id = 1; id < static_cast<int>(PictureId::Count); ++id) {
    const auto picture = static_cast<PictureId>(id);
    QImage(96, 96, QImage::Format_ARGB32_Premultiplied).fill(Qt::red);  // leaves its colour behind
    const QPixmap pixmap = platform.screen.pictures.Get(picture, {96, 96});
    const int corner = pixmap.toImage().pixelColor(0, 0).alpha();
    clear += corner == 0 ? 1 : 0;
    EXPECT_TRUE(corner == 0 || corner == 255) << PictureOwner(picture);
    EXPECT_EQ(pixmap.size(), QSize(96, 96)) << PictureOwner(picture);
    EXPECT_GT(platform.screen.pictures.Proportion(picture), 0) << PictureOwner(picture);
  }
  EXPECT_GT(clear, 10) << "pictures without a ground";
  EXPECT_TRUE(platform.screen.pictures.Get("no-such.svg", {96, 96}).isNull());
}

TEST_F(OnScreen, APictureThatIsMissingOrBrokenIsToldOfOnceAndPutInWords) {
  const QTemporaryDir folder;
  QFile broken(folder.filePath("icf-golf.svg"));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("<svg><path") > 0);
  broken.close();
  const Pictures pictures(folder.path());
  testing::internal::CaptureStderr();
  for (const QSize size : {QSize(40, 40), QSize(96, 30), QSize(40, 40)}) {
    const QImage golf = pictures.Get(PictureId::ICF_GOLF, size).toImage();
    const QImage park = pictures.Get(PictureId::ICF_PARK, size).toImage();
    EXPECT_EQ(golf.size(), size);
    EXPECT_EQ(park.size(), size);
    EXPECT_NE(golf, park) << "the words differ";
    EXPECT_TRUE(pictures.Get("zelvo.svg", size).isNull());
  }
  EXPECT_EQ(pictures.Proportion(PictureId::ICF_PARK), 0);
  const std::string start = "zelvo: " + folder.path().toStdString();
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            start + "/icf-golf.svg cannot be shown: it is no SVG picture\n" + start +
                "/icf-park.svg cannot be shown: No such file or directory\n" + start +
                "/zelvo.svg cannot be shown: No such file or directory\n");
}

}  // namespace
}  // namespace zelvo
