#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // The tests look at the game's windows, not at the machine's screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
