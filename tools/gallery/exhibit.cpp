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
  void Read() {
    std::string line;
    if (!std::getline(std::cin, line)) return QCoreApplication::quit();
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->close();
    constexpr std::string_view message = "message ";
    if (line.starts_with(message)) {
      ShowMessage(line.substr(message.size()));
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
    std::cout << std::endl;
  }

  void ShowMessage(const std::string& text) {
    QTimer::singleShot(
        0, [this, text] { desktop_.game.MessageBox(text, MessageStyle::OkExclamation); });
    QTimer::singleShot(
        0, [] { std::cout << QApplication::activeModalWidget()->winId() << std::endl; });
  }

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
