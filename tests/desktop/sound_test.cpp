#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <csignal>
#include <tuple>

#include "faces/desktop/sound_player.h"
#include "game/start.h"
#include "presentation/cues.h"
#include "tools/gallery/desktop_game.h"

namespace zelvo {
namespace {

class Sound : public testing::Test, public DesktopGame {
 protected:
  Sound() {
    sound->isThere = true;
    sound->started = 0;
    game.SoundOn = true;
  }
};

TEST_F(Sound, EveryCueStartsItsFileAndARunningOneIsNotWaitedFor) {
  sound->looksWhilePlaying = 1;
  for (int cue = 0; cue < static_cast<int>(Cue::Count); ++cue) {
    EXPECT_TRUE(platform.PlaySound(game.AppPath + CueFile(static_cast<Cue>(cue)), false));
    EXPECT_EQ(sound->started, cue + 1) << CueFile(static_cast<Cue>(cue));
  }
  EXPECT_EQ(sound->looksWhilePlaying, 1);
}

TEST_F(Sound, AMissingFileIsNoFailureButAMissingPlayerIs) {
  EXPECT_TRUE(platform.PlaySound(platform.AppFolder() + "\\NOSUCH.WAV", true));
  EXPECT_EQ(sound->started, 0);
  sound->isThere = false;
  EXPECT_FALSE(platform.PlaySound(platform.AppFolder() + "\\CLICK.WAV", true));
  OpeningSound(game);
  EXPECT_FALSE(game.SoundOn);
}

TEST_F(Sound, OneThatNeverEndsIsWaitedForNoLongerThanItsFileIsLong) {
  platform.gate.SetPace(5);
  constexpr int always = 1'000'000'000;
  sound->looksWhilePlaying = always;
  EXPECT_TRUE(platform.PlaySound(game.AppPath + "CLICK.WAV", true));
  EXPECT_LT(sound->looksWhilePlaying, always);
  EXPECT_GT(sound->looksWhilePlaying, 0);
}

TEST_F(Sound, WhatHappensWhileTheGameWaitsForItComesAfterIt) {
  StartGame();
  Exhibit(game.RB);
  game.Show(game.GFM);  // in front of it again
  game.Yield();
  game.Work = 0;
  game.GFM->Timer1.SetInterval(10);
  game.GFM->Timer1.SetEnabled(true);
  const int lot = game.CurLot;
  const int other = (lot + 1) % lotCount;
  bool painted = false;
  sound->looksWhilePlaying = 3;
  QTimer later;  // fires in the wait, after the game's timer
  later.setSingleShot(true);
  QObject::connect(&later, &QTimer::timeout, [&] {
    QTest::mouseClick(&Widget(game.GFM->Image1[other]), Qt::LeftButton);
    QTest::keyClick(&Widget(game.GFM->Label1), Qt::Key_Return);
    View(game.GFM).setWindowState(Qt::WindowMaximized);
    View(game.RB).close();
    painted = Widget(game.GFM->PSHOW).Text().text == "Wait";
    // The time of the game's timer has come once; it will not come again.
    tickLength = 1'000'000;
  });
  sound->whileItPlays = [&later](const WaveFile& /*wave*/) { later.start(0); };
  game.GFM->PSHOW.Caption = "Wait";
  EXPECT_TRUE(platform.PlaySound(game.AppPath + "CLICK.WAV", true));
  EXPECT_TRUE(painted);
  EXPECT_TRUE(game.RB.Untouched().IsShown());
  EXPECT_EQ(std::tuple(game.CurLot, game.SkillLevel, game.Work), std::tuple(lot, 0, 0));
  EXPECT_EQ(game.GST->extent, Extent::Normal);
  for (int look = 0; look < 3; ++look) game.Yield();
  EXPECT_FALSE(game.RB.Untouched().IsShown());
  EXPECT_EQ(std::tuple(game.CurLot, game.SkillLevel, game.Work), std::tuple(other, 1, 1));
  EXPECT_EQ(game.GST->extent, Extent::Maximised);
}

/// Does something as the board is about to be painted for the first time.
struct ComingBoard : QObject {
  explicit ComingBoard(std::function<void()> theDeed) : deed(std::move(theDeed)) {}
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* view = dynamic_cast<WindowView*>(object);
    const bool isBoard = view != nullptr && view->window().name() == "GFM";
    if (isBoard && event->type() == QEvent::Paint && !std::exchange(isThere, true)) deed();
    return false;
  }
  std::function<void()> deed;
  bool isThere = false;
};

TEST_F(Sound, ImpatientClicksWhileItSoundsStartOneGame) {
  sound->looksWhilePlaying = 1;
  QTimer later;
  later.setSingleShot(true);
  QObject::connect(&later, &QTimer::timeout, [this] {
    for (int click = 0; click < 3; ++click) {
      QTest::mouseClick(&Widget(game.GST->CMDSTART), Qt::LeftButton);
    }
  });
  sound->whileItPlays = [&later](const WaveFile& /*wave*/) { later.start(0); };
  platform.PlaySound(game.AppPath + "ZELVO.WAV", true);
  sound->started = 0;
  sound->whileItPlays = nullptr;
  // And one more while the board is on its way to the screen.
  ComingBoard coming([this] { QTest::mouseClick(&Widget(game.GST->CMDSTART), Qt::LeftButton); });
  qApp->installEventFilter(&coming);
  for (int look = 0; look < 5; ++look) game.Yield();
  EXPECT_TRUE(coming.isThere);
  EXPECT_EQ(sound->started, 1);
}

TEST(SoundPlayers, FindOutThatThereIsNoServerAndTellThatTheSoundIsOver) {
  qputenv("PULSE_SERVER", "unix:/no/such");
  std::atomic<int> over = 0;
  const auto player = MakeSoundPlayer([&over] { ++over; });
  EXPECT_TRUE(player->IsThere() && !player->IsPlaying()) << "nobody knows yet";
  for (int sound = 0; sound < 2; ++sound) {
    over = 0;
    player->Start({1, 8'000, 8, QByteArray(8'000, '\x80')});
    ASSERT_TRUE(QTest::qWaitFor([&] { return over > 0; }));
    EXPECT_FALSE(player->IsThere() || player->IsPlaying());
  }
}

TEST(SoundPlayers, AServerHearsEverySampleOnceAndTheSoundThatReplacesAnother) {
  const QString program = QStandardPaths::findExecutable("pulseaudio");
  if (program.isEmpty()) GTEST_SKIP() << "there is no pulseaudio on this machine";
  const QTemporaryDir folder;
  const QString pipe = folder.filePath("pipe");
  const QString socket = folder.filePath("socket");
  qputenv("PULSE_SERVER", "unix:" + socket.toLocal8Bit());
  // It plays into a pipe, as fast as that is read: frames of two channels of 16 bits, or silence.
  QProcess server;
  auto environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
    environment.insert(name, folder.path());
  }
  server.setProcessEnvironment(environment);
  server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
  server.start(program, {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                         "--load=module-pipe-sink format=s16le rate=8000 channels=2 file=" + pipe,
                         "--load=module-native-protocol-unix auth-anonymous=1 socket=" + socket});
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(socket); }, 20'000));
  const int listener = open(pipe.toLocal8Bit(), O_RDONLY | O_NONBLOCK);
  QByteArray heard;
  // Bounded, as there is always more silence to come.
  const auto listen = [&] {
    QByteArray piece(1 << 16, 0);
    const auto length = static_cast<int>(read(listener, piece.data(), piece.size()));
    for (int at = 0; at < length; at += 4) {
      if (piece.mid(at, 4) != QByteArray(4, 0)) heard += piece.mid(at, 4);
    }
  };
  std::atomic<int> over = 0;
  auto player = MakeSoundPlayer([&over] { ++over; });
  const auto play = [&](const WaveFile& wave) {
    heard.clear();
    over = 0;
    player->Start(wave);
    EXPECT_TRUE(player->IsPlaying());
    EXPECT_TRUE(QTest::qWaitFor([&] { return listen(), over > 0; }, 20'000));
    EXPECT_TRUE(player->IsThere() && !player->IsPlaying());
    listen();
    return heard;
  };
  QByteArray stereo;
  for (int i = 0; i < 16'000; ++i) stereo += QByteArray::number(i, 16).rightJustified(4, '.');
  EXPECT_EQ(play({2, 8'000, 16, stereo}), stereo);
  EXPECT_EQ(play({1, 8'000, 8, QByteArray(1'000, '\xc0')}),
            QByteArray("\0\x40\0\x40", 4).repeated(1'000));
  player->Start({2, 8'000, 16, stereo});
  EXPECT_TRUE(play({2, 8'000, 16, "last"}).endsWith("last"));
  // A server that dies was there; for the next sound there is none.
  for (const bool there : {true, false}) {
    heard.clear();
    over = 0;
    player->Start({2, 8'000, 16, QByteArray(10'000'000, 1)});
    EXPECT_TRUE(!there || QTest::qWaitFor([&] { return listen(), !heard.isEmpty(); }, 20'000));
    server.kill();
    EXPECT_TRUE(QTest::qWaitFor([&] { return over > 0; }, 20'000));
    EXPECT_EQ(player->IsThere(), there);
    EXPECT_FALSE(player->IsPlaying());
  }
  server.waitForFinished();
  close(listener);
}

TEST(WaveFiles, SayHowLongTheGameWaitsForThem) {
  QTemporaryDir folder;
  const QString pipe = folder.filePath("pipe");
  ASSERT_EQ(mkfifo(pipe.toLocal8Bit(), 0600), 0);
  for (const QString& other : {pipe, folder.path(), QString("/dev/zero"), QString("/dev/full")}) {
    EXPECT_FALSE(ReadWaveFile(other)) << other.toStdString();
  }
  const auto length = [&folder](const QByteArray& bytes) -> long {
    QFile file(folder.filePath("a.wav"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    const auto wave = ReadWaveFile(file.fileName());
    return wave ? static_cast<long>(wave->LongestWait().count()) : -1;
  };
  // A second of silence: one channel, 8,000 samples of one byte.
  const QByteArray header(
      "RIFF\x64\x1f\0\0WAVEfmt "
      "\x10\0\0\0\1\0\1\0\x40\x1f\0\0\x40\x1f\0\0\1\0\x08\0data\x40\x1f\0\0",
      44);
  const QByteArray good = header + QByteArray(8'000, '\x80');
  const auto with = [&good](int at, const QByteArray& bytes) {
    return QByteArray(good).replace(at, bytes.size(), bytes);
  };
  EXPECT_EQ(length(good), 1'000);
  EXPECT_EQ(length(with(40, "\xff\xff\xff\x7f") + QByteArray(92'000, '\x80')), 10'000);
  // Other parts may come before, with a byte to fill up an odd one.
  const QByteArray remark("LIST\3\0\0\0abc\0", 12);
  EXPECT_EQ(length(good.left(12) + remark + good.mid(12)), 1'000);
  EXPECT_EQ(length(good.left(36) + remark + good.mid(36)), 1'000);
  // A header that promises more than there is does not make the sound longer.
  EXPECT_EQ(length(good.left(44 + 4'000)), 500);
  EXPECT_EQ(length(with(40, "\xff\xff\xff\xff")), 1'000);
  // Two bytes a frame, so that the last sample is alone.
  const QByteArray wide = with(34, QByteArray("\x10"));
  EXPECT_EQ(length(wide + '\1'), 500);
  EXPECT_EQ(length(wide.left(45)), -1);
  // Nothing, no samples, a cut in the header, another format, compressed, no channels, no rate,
  // an odd depth
  for (const QByteArray& broken :
       {QByteArray(), header, good.left(30), with(8, "AVI "), with(20, "\x55"),
        with(22, QByteArray(1, '\0')), with(24, QByteArray(4, '\0')), with(34, "\x07")}) {
    EXPECT_EQ(length(broken), -1) << broken.left(44).toHex().toStdString();
  }
}

}  // namespace
}  // namespace zelvo
