// Saves every window at scales 1 to 4 into a folder: zelvo-gallery FOLDER

#include <QApplication>
#include <cstdio>

#include "tools/gallery/desktop_game.h"

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  if (argc != 2) {
    std::fputs("usage: zelvo-gallery FOLDER\n", stderr);
    return 2;
  }
  zelvo::DesktopGame desktop;
  desktop.StartGame();
  for (zelvo::Window* window : desktop.game.Windows()) {
    desktop.Exhibit(*window);
    zelvo::WindowView& view = desktop.View(*window);
    for (const int scale : {1, 2, 3, 4}) {
      view.SetScale(scale);
      const auto name = QString::fromUtf8(window->name().data()).toLower();
      view.grab().save(QStringLiteral("%1/%2-%3.png").arg(argv[1], name).arg(scale));
    }
  }
}
