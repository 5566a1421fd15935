// Shows windows on the real screen, with the longest texts that they come to hold: zelvo-exhibit
// Reads the name of a window a line, or the text of a message for a message box after "message ",
// and answers with the number of the native window and the controls whose texts do not fit.

#include <QApplication>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QTimer>
#include <iostream>
#include <string>

#include "tools/gallery/desktop_game.h"

namespace zelvo {
namespace {

class Exhibition {
 public:
  Exhibition() {
    open_.setSingleShot(true);
    tell_.setSingleShot(true);
    QObject::connect(&open_, &QTimer::timeout, [this] { ShowMessage(); });
    QObject::connect(&tell_, &QTimer::timeout, TellOfBox);
  }

  void Read() {
    std::string line;
    if (!std::getline(std::cin, line)) return QCoreApplication::exit();
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->close();
    constexpr std::string_view message = "message ";
    if (line.starts_with(message)) {
      message_ = line.substr(message.size());
      open_.start(0);
      tell_.start(0);
    } else if (Window* window = desktop_.game.FindWindow(line)) {
      ShowWindow(*window);
    }
  }

 private:
  void ShowWindow(Window& window) {
    for (Window* other : desktop_.game.Windows()) {
      if (other->design().titleBar != TitleBar::Sizable) desktop_.game.Hide(*other);
    }
    desktop_.Exhibit(window);
    WindowView& view = desktop_.View(window);
    std::cout << view.winId();
    for (ControlWidget* widget : view.widgets()) {
      if (!TextFits(*widget)) std::cout << ' ' << widget->control().FullName();
    }
    std::cout << '\n' << std::flush;
  }

  void ShowMessage() { desktop_.game.MessageBox(message_, MessageStyle::OkExclamation); }

  static void TellOfBox() {
    std::cout << QApplication::activeModalWidget()->winId() << '\n' << std::flush;
  }

  std::string message_;
  QTimer open_;  // opens the message box, in whose loop the next line is read
  QTimer tell_;
  DesktopGame desktop_;
};

}  // namespace
}  // namespace zelvo

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  zelvo::Exhibition exhibition;
  QSocketNotifier input(0, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, [&exhibition] { exhibition.Read(); });
  return QCoreApplication::exec();
}
