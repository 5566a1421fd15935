// Plays a game in the real windows and saves what the player sees: zelvo-screenshots FOLDER

#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>

#include "game/lots.h"
#include "tools/gallery/desktop_game.h"

namespace zelvo {
namespace {

constexpr double scale = 1.6;

/// A player who buys what is for sale, builds what cash allows, and gets rid of every dialog.
class Photographer {
 public:
  explicit Photographer(QString folder) : folder_(std::move(folder)) {
    QObject::connect(&dialogs_, &QTimer::timeout, [this] { AnswerDialog(); });
    dialogs_.start(0);
  }

  void Run() {
    Save(g_.GST, "start");
    desktop_.StartGame();
    PlayUntil(7);
    Save(g_.GFM, "early-board");
    atBank_ = true;
    Click(g_.GFM->Label8);
    atBank_ = false;
    atSetup_ = true;
    Click(g_.GFM->CMDHELP);
    atSetup_ = false;
    PlayUntil(60);
    TakeLotInHand();
    Save(g_.GFM, "late-board");
    dialogs_.stop();
  }

 private:
  void Click(Control& control) {
    desktop_.platform.gate.Deliver([&control](Surface& surface) { surface.Click(control); });
  }

  void Save(Window& window, const char* name) {
    WindowView& view = desktop_.View(window);
    view.SetScale(scale);
    desktop_.platform.screen.Sync();
    // A control that twitched is drawn as gone for a moment yet.
    const QDeadlineTimer settled(300);
    while (!settled.hasExpired()) {
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
    }
    view.grab().save(QStringLiteral("%1/%2.png").arg(folder_, name));
  }

  void PlayUntil(int turn) {
    while (g_.TurnNo < turn && g_.GFM.Untouched().IsShown()) {
      BuyAndBuild();
      // The seconds steer the board's events. The clock stands during a turn, and at second 0 the
      // draw would wait for it to move.
      desktop_.now.second = 1 + (desktop_.now.second + 13) % 58;
      Click(g_.GFM->CMDGO);
    }
  }

  void BuyAndBuild() {
    for (int lot = 0; lot < lotCount; ++lot) {
      const auto tag = LotTag(g_, lot);
      if (tag != "O" && tag != "D" && tag != "PU") continue;
      Click(g_.GFM->Image1[lot]);
      Click(g_.GFM->CMDBUY);
      Click(g_.GFM->CMDBUILD);
      for (Control* icon : {&g_.GFM->HILTON, &g_.GFM->BEST, &g_.GFM->QUALITY, &g_.GFM->THRIFTY}) {
        Click(*icon);
        Click(g_.GFM->BUILDIT);
        if (LotTag(g_, lot).size() == 3) return;
      }
    }
  }

  void TakeLotInHand() {
    for (int lot = 0; lot < lotCount; ++lot) {
      if (LotTag(g_, lot) == "PHH") Click(g_.GFM->Image1[lot]);
    }
  }

  /// Called by the event loop, also by the ones inside modal windows and message boxes.
  void AnswerDialog() {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      box->done(QMessageBox::No);
      return;
    }
    Window* window = g_.InputWindow();
    if (window == nullptr) return;
    if (atBank_ && window->name() == "BK" && g_.BK->CMDOK.Enabled()) Save(g_.BK, "bank");
    if (atSetup_ && window->name() == "ICF") Save(g_.ICF, "setup");
    for (const char* name :
         {"cmdexit", "CMDAN1(0)", "CMDAN1(1)", "CMD1(0)", "CMDOK", "CMDCANCEL", "Image1(0)"}) {
      Control* control = window->Find(name);
      if (&g_.GFM.Untouched() == window || &g_.GST.Untouched() == window) return;
      if (control == nullptr || !g_.WhyNoInput(*control).empty()) continue;
      Click(*control);
      if (!window->IsShown()) return;
    }
    if (window->HasCloseBox() && window->name() == "RB") {
      desktop_.platform.gate.Deliver([window](Surface& surface) { surface.Close(*window); });
    }
  }

  QString folder_;
  DesktopGame desktop_;
  Game& g_ = desktop_.game;
  QTimer dialogs_;
  bool atBank_ = false;
  bool atSetup_ = false;
};

}  // namespace
}  // namespace zelvo

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  if (argc != 2) {
    std::fputs("usage: zelvo-screenshots FOLDER\n", stderr);
    return 2;
  }
  zelvo::Photographer(argv[1]).Run();
  return 0;
}
