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

TEST_F(Sound, AMachineWithoutAPlayerSaysSo) {
  sound->isThere = false;
  EXPECT_FALSE(platform.PlaySound(platform.AppFolder() + "\\CLICK.WAV", true));
  OpeningSound(game);
  EXPECT_FALSE(game.SoundOn);
}

TEST_F(Sound, AMissingFileIsNoFailure) {
  EXPECT_TRUE(platform.PlaySound(platform.AppFolder() + "\\NOSUCH.WAV", true));
  EXPECT_EQ(sound->started, 0);
}

TEST_F(Sound, EveryCueStartsItsFile) {
  for (int cue = 0; cue < static_cast<int>(Cue::Count); ++cue) {
    EXPECT_TRUE(platform.PlaySound(game.AppPath + CueFile(static_cast<Cue>(cue)), false));
    EXPECT_EQ(sound->started, cue + 1) << CueFile(static_cast<Cue>(cue));
  }
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
  EXPECT_TRUE(painted);
  EXPECT_TRUE(game.GFM.Untouched().IsShown());
  // The tick that fell into the wait comes after it, once.
  platform.Yield();
  platform.Yield();
  EXPECT_EQ(game.Work, 1);
}

TEST_F(Sound, ARunningSoundIsNotWaitedFor) {
  sound->looksWhilePlaying = 1;
  platform.PlaySound(game.AppPath + "SIREN.WAV", false);
  EXPECT_EQ(sound->looksWhilePlaying, 1);
}

/// A wave file with a second of silence, 8,000 samples of one byte.
QByteArray OneSecond() {
  const auto number = [](quint32 value, int bytes) {
    QByteArray little;
    for (int i = 0; i < bytes; ++i) little.append(static_cast<char>(value >> (8 * i)));
    return little;
  };
  return "RIFF" + number(36 + 8'000, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
         number(8'000, 4) + number(8'000, 4) + number(1, 2) + number(8, 2) + "data" +
         number(8'000, 4) + QByteArray(8'000, '\x80');
}

TEST(WaveFiles, SayHowLongTheyAre) {
  QTemporaryDir folder;
  const auto read = [&folder](const QByteArray& bytes) {
    QFile file(folder.filePath("a.wav"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    return ReadWaveFile(file.fileName());
  };
  const QByteArray good = OneSecond();
  ASSERT_TRUE(read(good));
  EXPECT_EQ(read(good)->Length(), std::chrono::milliseconds(1'000));
  // A header that promises more than there is does not make the sound longer.
  EXPECT_EQ(read(good.left(44 + 4'000))->Length(), std::chrono::milliseconds(500));
  EXPECT_EQ(read(QByteArray(good).replace(40, 4, "\xff\xff\xff\xff"))->Length(),
            std::chrono::milliseconds(1'000));

  const std::pair<const char*, QByteArray> broken[] = {
      {"empty", ""},
      {"no samples", good.left(44)},
      {"cut in the header", good.left(30)},
      {"not a wave file", QByteArray(good).replace(8, 4, "AVI ")},
      {"compressed", QByteArray(good).replace(20, 1, "\x55")},
      {"no channels", QByteArray(good).replace(22, 1, QByteArray(1, '\0'))},
      {"no rate", QByteArray(good).replace(24, 4, QByteArray(4, '\0'))},
      {"odd depth", QByteArray(good).replace(34, 1, "\x07")},
  };
  for (const auto& [what, bytes] : broken) EXPECT_FALSE(read(bytes)) << what;
}

}  // namespace
}  // namespace zelvo
