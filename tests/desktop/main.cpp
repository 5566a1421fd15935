#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // The tests look at the game's windows, not at the machine's screen and fonts.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("FONTCONFIG_FILE", ZELVO_TEST_FONTS);
  const QApplication app(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
