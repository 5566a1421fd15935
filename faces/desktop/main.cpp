#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QPixmapCache>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

#include "faces/desktop/desktop_platform.h"
#include "game/game.h"

namespace {

void SayThatThereIsNoDisplay() {
  std::fputs("zelvo: there is no display to open a window on; zelvo-headless plays without one\n",
             stderr);
}

/// Until the first window is up, the toolkit's own way of saying that a display does not answer is
/// to abort.
void LeaveInsteadOfAborting(QtMsgType type, const QMessageLogContext& /*context*/,
                            const QString& /*message*/) {
  if (type != QtFatalMsg) return;
  SayThatThereIsNoDisplay();
  std::_Exit(1);
}

/// True if the environment names a screen to draw on.
bool HasDisplay(std::span<char*> arguments) {
  static constexpr const char* variables[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  const auto isSet = [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); };
  const auto namesPlatform = [](std::string_view argument) {
    return argument == "-platform" || argument == "--platform";
  };
  return std::any_of(std::begin(variables), std::end(variables), isSet) ||
         std::any_of(arguments.begin(), arguments.end(), namesPlatform);
}

/// Answers --help and --version, which end the program.
void ReadOptions(const QCoreApplication& app) {
  QCommandLineParser parser;
  parser.setApplicationDescription("A board game of lots and hotels for one player.");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.process(app);
}

/// The folder with the pictures and sounds: beside an installed program, else of the source tree.
QString DataFolder() {
  const QDir installed(QCoreApplication::applicationDirPath() + "/../share/zelvo");
  return installed.exists("pictures") ? installed.canonicalPath() : ZELVO_SOURCE_ASSETS;
}

QIcon ProgramIcon(const zelvo::Pictures& pictures) {
  QIcon icon;
  for (const int size : {16, 32, 48, 64, 128, 256}) {
    icon.addPixmap(pictures.Get("zelvo.svg", {size, size}));
  }
  return icon;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName("zelvo");
  QCoreApplication::setApplicationVersion(ZELVO_VERSION);
  if (!HasDisplay({argv, static_cast<std::size_t>(argc)})) {
    const QCoreApplication app(argc, argv);
    ReadOptions(app);
    SayThatThereIsNoDisplay();
    return 1;
  }
  const QtMessageHandler usual = qInstallMessageHandler(LeaveInsteadOfAborting);
  const QApplication app(argc, argv);
  qInstallMessageHandler(usual);
  ReadOptions(app);
  QGuiApplication::setDesktopFileName("org.zelvo.Zelvo");
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QPixmapCache::setCacheLimit(32 * 1024);

  zelvo::DesktopPlatform platform(zelvo::ThisMachine(DataFolder()));
  QGuiApplication::setWindowIcon(ProgramIcon(platform.pictures));
  zelvo::Game game(platform);
  platform.Attach(game);
  QTimer::singleShot(0, &platform, [&game, &platform] {
    game.Start();
    platform.Sync();
  });
  return QCoreApplication::exec();
}
