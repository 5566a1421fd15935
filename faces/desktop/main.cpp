#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLibraryInfo>
#include <QPixmapCache>
#include <QTimer>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "faces/desktop/desktop_session.h"
#include "faces/standard_streams.h"

namespace {

using zelvo::Complain;
using zelvo::PrintAnswer;

constexpr const char* program = "zelvo";

/// What the environment or the command line says about where to draw.
struct Wish {
  std::string platform;  // as somebody asked for it; else the toolkit chooses
  bool namesDisplay = false;
};

/// The words of the command line that the toolkit has not taken for itself.
class CommandLine {
 public:
  explicit CommandLine(const QStringList& words) {
    parser_.setApplicationDescription("A board game of lots and hotels for one player.");
    parser_.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser_.addPositionalArgument("file", "A kept game to go on with.", "[file]");
    parser_.addOption(help_);
    parser_.addOption(version_);
    understood_ = parser_.parse(words);
  }

  bool Asks() const { return understood_ && (parser_.isSet(help_) || parser_.isSet(version_)); }
  /// Answers what is asked. Returns the exit status.
  int Answer() const {
    if (parser_.isSet(help_)) return PrintAnswer(program, parser_.helpText().toStdString());
    return PrintAnswer(program, "zelvo " ZELVO_VERSION "\n");
  }
  /// Complains of what cannot be understood. Returns the exit status if there is such.
  std::optional<int> Complaint() const {
    if (!understood_) return Complain(program, parser_.errorText().toStdString(), zelvo::wrongCall);
    const QStringList files = parser_.positionalArguments();
    if (files.size() < 2) return std::nullopt;
    return Complain(program, "one kept game only, not also " + files[1].toStdString(),
                    zelvo::wrongCall);
  }
  /// The kept game to go on with; empty for none.
  std::string File() const {
    const QStringList files = parser_.positionalArguments();
    return files.isEmpty() ? "" : QFile::encodeName(files[0]).toStdString();
  }

 private:
  QCommandLineParser parser_;
  QCommandLineOption help_{{"h", "help"}, "Displays this help."};
  QCommandLineOption version_{{"v", "version"}, "Displays version information."};
  bool understood_ = false;
};

/// Answers a question on the command line, which needs no display.
std::optional<int> AnswerAhead(int argc, char** argv) {
  for (const char* word : std::span(argv, static_cast<std::size_t>(argc))) {
    const CommandLine line({program, word});
    if (!line.Asks()) continue;
    const QCoreApplication named(argc, argv);  // in the help
    return line.Answer();
  }
  return std::nullopt;
}

Wish ReadWish(int argc, char** argv) {
  const auto isSet = [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); };
  Wish wish;
  wish.platform = qEnvironmentVariable("QT_QPA_PLATFORM").toStdString();
  wish.namesDisplay = isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
  for (int i = 1; i + 1 < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "-platform" || word == "--platform") wish.platform = argv[i + 1];
    if (word == "-display" || word == "--display") wish.namesDisplay = true;
  }
  return wish;
}

/// True if the toolkit cannot open the display of a session of Wayland for want of its plugin.
bool LacksPluginForWayland() {
  if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return false;
  const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
  return plugins.entryList({"libqwayland*"}).isEmpty();
}

/// Says why no window can be opened. Returns the exit status.
int SayThatThereIsNoDisplay(const Wish& wish, const std::string& reason) {
  std::string why = reason.empty() ? "" : " (" + reason + ")";
  if (LacksPluginForWayland()) why += "; windows on Wayland need the package qt6-wayland";
  return Complain(
      program,
      wish.platform.empty()
          ? "there is no display to open a window on" + why + "; zelvo-headless plays without one"
          : "no window can be opened on the platform \"" + wish.platform +
                "\" that QT_QPA_PLATFORM or -platform names" + why,
      zelvo::failure);
}

/// Until the display is open, the toolkit's own way of saying that it cannot be opened is to abort.
/// What it warned of first is the reason.
class OpeningOfDisplay {
 public:
  explicit OpeningOfDisplay(const Wish& wish) : usual_(qInstallMessageHandler(Hear)) {
    wish_ = &wish;
    reason_.clear();
  }
  OpeningOfDisplay(const OpeningOfDisplay&) = delete;
  OpeningOfDisplay& operator=(const OpeningOfDisplay&) = delete;
  ~OpeningOfDisplay() { qInstallMessageHandler(usual_); }

 private:
  static void Hear(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const bool aboutPlatform = std::string_view(context.category).starts_with("qt.qpa");
    if (type == QtWarningMsg && aboutPlatform && reason_.empty()) reason_ = message.toStdString();
    if (type != QtFatalMsg) return;
    std::_Exit(SayThatThereIsNoDisplay(*wish_, reason_));
  }

  QtMessageHandler usual_;
  static inline const Wish* wish_ = nullptr;
  static inline std::string reason_;
};

/// The folder with the pictures and sounds, seen from the program: in a build tree, or where it is
/// installed.
QString DataFolder() {
  const QDir folder(QCoreApplication::applicationDirPath());
  const QString built = folder.filePath("share/zelvo");
  return QDir(built).exists() ? built : QDir::cleanPath(folder.filePath("../share/zelvo"));
}

QIcon ProgramIcon(const zelvo::Pictures& pictures) {
  QIcon icon;
  for (const int size : {16, 32, 48, 64, 128}) {
    icon.addPixmap(pictures.Get("zelvo.svg", {size, size}));
  }
  return icon;
}

}  // namespace

int main(int argc, char** argv) {
  zelvo::GuardStandardStreams();
  QCoreApplication::setApplicationName(program);
  QCoreApplication::setApplicationVersion(ZELVO_VERSION);
  if (const auto status = AnswerAhead(argc, argv)) return *status;
  const Wish wish = ReadWish(argc, argv);
  if (!wish.namesDisplay && wish.platform.empty()) return SayThatThereIsNoDisplay(wish, "");
  std::optional<OpeningOfDisplay> opening(wish);
  const QApplication app(argc, argv);
  opening.reset();
  const CommandLine line(QCoreApplication::arguments());
  if (const auto status = line.Complaint()) return *status;
  QGuiApplication::setDesktopFileName("org.zelvo.Zelvo");
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QPixmapCache::setCacheLimit(32 * 1024);

  zelvo::DesktopPlatform platform(zelvo::ThisMachine(DataFolder()));
  zelvo::DesktopSession session(platform);
  QTimer::singleShot(0, &session, [&session, file = line.File()] { session.Start(file); });
  // The first window does not wait for it.
  QTimer::singleShot(0, &session, [&platform] {
    QGuiApplication::setWindowIcon(ProgramIcon(platform.screen.pictures));
  });
  return QCoreApplication::exec();
}
