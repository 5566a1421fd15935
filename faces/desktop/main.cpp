#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QIcon>
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

// The toolkit has options of its own and takes them out of the command line only while it opens the
// display. To answer without one, and to name an option that nobody knows, we know their names too.
constexpr const char* toolkitOptions[] = {"display",
                                          "geometry",
                                          "icon",
                                          "platform",
                                          "platformpluginpath",
                                          "platformtheme",
                                          "plugin",
                                          "qwindowgeometry",
                                          "qwindowicon",
                                          "qwindowtitle",
                                          "session",
                                          "style",
                                          "stylesheet",
                                          "title"};

/// What the environment or the command line says about where to draw.
struct Call {
  std::string platform;  // as somebody asked for it; else the toolkit chooses
  bool namesDisplay = false;
  std::string file;  // a kept game to go on with
};

/// Reads the command line. Returns an exit status if it leaves nothing to play.
std::optional<int> ReadCall(int argc, char** argv, Call& call) {
  QCommandLineParser parser;
  parser.setApplicationDescription("A board game of lots and hotels for one player.");
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  parser.addPositionalArgument("file", "A kept game to go on with.", "[file]");
  const QCommandLineOption help({"h", "help"}, "Displays this help.");
  parser.addOption(help);
  const QCommandLineOption version = parser.addVersionOption();
  const auto addHidden = [&parser](QCommandLineOption option) {
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  };
  for (const char* name : toolkitOptions) addHidden({name, "", name});
  addHidden({"reverse", ""});

  QStringList words;
  for (char* word : std::span(argv, static_cast<std::size_t>(argc))) {
    words += QString::fromLocal8Bit(word);
  }
  const bool understood = parser.parse(words);
  if (understood && parser.isSet(help)) {
    const QCoreApplication named(argc, argv);  // in the help
    return PrintAnswer(program, parser.helpText().toStdString());
  }
  if (understood && parser.isSet(version)) return PrintAnswer(program, "zelvo " ZELVO_VERSION "\n");
  if (!understood) return Complain(program, parser.errorText().toStdString(), zelvo::wrongCall);
  const QStringList files = parser.positionalArguments();
  if (files.size() > 1) {
    return Complain(program, "one kept game only, not also " + files[1].toStdString(),
                    zelvo::wrongCall);
  }
  if (!files.isEmpty()) call.file = QFile::encodeName(files[0]).toStdString();

  const auto isSet = [](const char* variable) { return !qEnvironmentVariableIsEmpty(variable); };
  call.platform = parser.isSet("platform") ? parser.value("platform").toStdString()
                                           : qEnvironmentVariable("QT_QPA_PLATFORM").toStdString();
  call.namesDisplay = parser.isSet("display") || isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
  return std::nullopt;
}

/// Says why no window can be opened. Returns the exit status.
int SayThatThereIsNoDisplay(const Call& call, const std::string& reason) {
  const std::string why = reason.empty() ? "" : " (" + reason + ")";
  return Complain(
      program,
      call.platform.empty()
          ? "there is no display to open a window on" + why + "; zelvo-headless plays without one"
          : "no window can be opened on the platform \"" + call.platform +
                "\" that QT_QPA_PLATFORM or -platform names" + why,
      zelvo::failure);
}

/// Until the display is open, the toolkit's own way of saying that it cannot be opened is to abort.
/// What it warned of first is the reason.
class OpeningOfDisplay {
 public:
  explicit OpeningOfDisplay(const Call& call) : usual_(qInstallMessageHandler(Hear)) {
    call_ = &call;
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
    std::_Exit(SayThatThereIsNoDisplay(*call_, reason_));
  }

  QtMessageHandler usual_;
  static inline const Call* call_ = nullptr;
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
  Call call;
  if (const auto status = ReadCall(argc, argv, call)) return *status;
  if (!call.namesDisplay && call.platform.empty()) return SayThatThereIsNoDisplay(call, "");
  std::optional<OpeningOfDisplay> opening(call);
  const QApplication app(argc, argv);
  opening.reset();
  QGuiApplication::setDesktopFileName("org.zelvo.Zelvo");
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QPixmapCache::setCacheLimit(32 * 1024);

  zelvo::DesktopPlatform platform(zelvo::ThisMachine(DataFolder()));
  zelvo::DesktopSession session(platform);
  QTimer::singleShot(0, &session, [&session, &call] { session.Start(call.file); });
  // The first window does not wait for it.
  QTimer::singleShot(0, &session, [&platform] {
    QGuiApplication::setWindowIcon(ProgramIcon(platform.screen.pictures));
  });
  return QCoreApplication::exec();
}
