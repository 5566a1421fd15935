#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "game/start.h"
#include "presentation/cues.h"
#include "tools/gallery/desktop_game.h"

namespace zelvo {
namespace {

class Sound : public testing::Test, public DesktopGame {
 protected:
  Sound() { sound->isThere = true; }
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

TEST_F(Sound, NothingHappensWhileTheGameWaitsForASound) {
  StartGame();
  platform.Yield();
  game.Work = 0;
  game.GFM->Timer1.SetInterval(10);
  game.GFM->Timer1.SetEnabled(true);
  const int lot = game.CurLot;
  bool painted = false;
  sound->looksWhilePlaying = 3;
  QTimer later;  // fires in the wait, after the game's timer
  later.setSingleShot(true);
  QObject::connect(&later, &QTimer::timeout, [&] {
    QTest::mouseClick(&Widget(game.GFM->Image1[(lot + 1) % lotCount]), Qt::LeftButton);
    QTest::keyClick(&View(game.GFM), Qt::Key_Return);
    View(game.GFM).close();
    painted = Widget(game.GFM->PSHOW).Text().text == "Wait";
    // The time of the game's timer has come once; it will not come again.
    tickLength = 1'000'000;
    game.GFM->Timer1.SetInterval(10);
  });
  sound->whileItPlays = [&later](const WaveFile& /*wave*/) { later.start(0); };
  game.GFM->PSHOW.Caption = "Wait";
  EXPECT_TRUE(platform.PlaySound(game.AppPath + "CLICK.WAV", true));
  EXPECT_EQ(game.CurLot, lot);
  EXPECT_EQ(game.Work, 0);
  EXPECT_TRUE(painted && game.GFM.Untouched().IsShown());
  // The tick that fell into the wait comes after it, once.
  platform.Yield();
  platform.Yield();
  EXPECT_EQ(game.Work, 1);
}

TEST(WaveFiles, SayHowLongTheyAre) {
  QTemporaryDir folder;
  const auto length = [&folder](const QByteArray& bytes) -> long {
    QFile file(folder.filePath("a.wav"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    const auto wave = ReadWaveFile(file.fileName());
    return wave ? static_cast<long>(wave->Length().count()) : -1;
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
  // A header that promises more than there is does not make the sound longer.
  EXPECT_EQ(length(good.left(44 + 4'000)), 500);
  EXPECT_EQ(length(with(40, "\xff\xff\xff\xff")), 1'000);
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
