#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>
#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "faces/desktop/word.h"
#include "faces/game_file.h"
#include "faces/kept_game.h"
#include "faces/scripted/state.h"
#include "tests/desktop/player.h"

namespace zelvo {
namespace {

/// A state without the folder of the sounds, which is the machine's and not the game's.
QJsonObject Comparable(const QByteArray& json) {
  QJsonObject state = QJsonDocument::fromJson(json).object();
  QJsonObject variables = state["variables"].toObject();
  variables.remove("AppPath");
  state["variables"] = variables;
  return state;
}

/// A state without the board's title, which tells what lies under the mouse: a window that comes
/// back under it changes the title.
QJsonObject BelowTitle(QJsonObject state) {
  QJsonObject windows = state["windows"].toObject();
  QJsonObject board = windows["GFM"].toObject();
  board.remove("Caption");
  windows["GFM"] = board;
  state["windows"] = windows;
  return state;
}

/// A list with its runs written out, as a file that grew line by line may have them.
std::string WrittenOut(const std::string& text) {
  std::string out;
  for (const QString& line : QString::fromStdString(text).split('\n')) {
    const QStringList words = line.split(' ');
    const bool run = words.first() == "back" || words.first() == "clock";
    const auto place = words.first() == "back" ? 1 : 2;
    const int count = run && words.size() > place ? words[place].toInt() : 1;
    const QString one = run ? words.mid(0, place).join(' ') : line;
    for (int i = 0; i < count; ++i) out += one.toStdString() + '\n';
  }
  return out;
}

class KeptOnDesktop : public testing::Test, public Player {
 protected:
  using Steps = std::vector<std::function<void()>>;

  /// Takes each step when the game is at rest, in whatever dialog that is, and waits for the rest
  /// after the last one.
  void Run(Steps steps) {
    steps_ = std::move(steps);
    next_ = 0;
    Poll();
    ASSERT_TRUE(QTest::qWaitFor([this] { return next_ > steps_.size(); }, 60'000));
  }

  std::function<void()> Press(Control& control) {
    return [this, &control] { QTest::mouseClick(&Widget(control), Qt::LeftButton); };
  }
  std::function<void()> Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    return [this, key, modifiers] { QTest::keyClick(platform.screen.Front(), key, modifiers); };
  }

  // `Untouched`, or the look alone would load a window.
  QJsonObject State() { return Comparable(QByteArray::fromStdString(StateAsJson(game))); }
  std::string List() { return TextOf(game, session.journal().list()); }
  /// Where the scripted program finds the game that is kept in the file.
  QJsonObject StateInScriptedProgram() const {
    QProcess program;
    program.start(ZELVO_PROGRAMS "/zelvo-headless", {"--game", file});
    program.write("state\n");
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(60'000));
    const QByteArray line = program.readAllStandardOutput().split('\n').value(1);
    return Comparable(QJsonDocument(QJsonDocument::fromJson(line)["state"].toObject()).toJson());
  }
  QByteArray InFile() const {
    QFile read(file);
    return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
  }
  void PutIntoFile(const QByteArray& text) const {
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::WriteOnly));
    written.write(text);
  }

  /// A turn in which the player meets a dialog, a blink that they look around in, and a message.
  Steps Turn() {
    return {Press(game.GST.Untouched().CMDSTART),
            Press(game.GFM.Untouched().CMDHELP),
            Press(game.ICF.Untouched().OPT1[2]),
            Press(game.ICF.Untouched().CKBANK),
            Press(game.ICF.Untouched().cmdexit),
            [this] {
              now = {12, 30, 41};
              Once([this] { return game.GFM.Untouched().LITE[2].Visible; },
                   [this] {
                     View(game.GFM).showMinimized();
                     QTest::mouseClick(&Widget(game.GFM.Untouched().Label1), Qt::LeftButton);
                   });
              Press(game.GFM.Untouched().CMDGO)();
            },
            [this] { View(game.GFM).showNormal(); },
            Press(game.GFM.Untouched().Label8),
            Press(game.BK.Untouched().OPT1[4]),
            Press(game.BK.Untouched().CMDOK),
            Press(game.GFM.Untouched().Image1[0])};
  }

  QTemporaryDir folder;
  QString file = folder.filePath("a.zelvo");

 private:
  void Poll() {
    QTimer::singleShot(0, &session, [this] {
      if (session.IsReplacing() || !session.journal().IsAtRest()) return Poll();
      if (next_ > steps_.size()) return;
      const std::size_t step = next_++;
      if (step == steps_.size()) return;
      Poll();
      steps_[step]();
    });
  }

  Steps steps_;
  std::size_t next_ = 0;
};

TEST_F(KeptOnDesktop, AGameIsInItsFileAndTheScriptedProgramPlaysTheSame) {
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  Steps steps;
  for (const auto& step : Turn()) {
    steps.push_back(step);
    steps.emplace_back([this] {
      EXPECT_EQ(WrittenOut(InFile().toStdString()), WrittenOut(List()));
      EXPECT_EQ(StateInScriptedProgram(), State());
    });
  }
  Run(steps);
  EXPECT_TRUE(InFile().contains("resize GFM minimised"));
  EXPECT_TRUE(InFile().contains("click BK.CMDOK"));
  EXPECT_GT(InFile().count("tick GFM.Timer1"), 6);
}

TEST_F(KeptOnDesktop, AFileIsOneGameUpToTheLastMomentWithItsBoard) {
  Control& door = game.GFM.Untouched().CMDEXIT;
  Run({Press(game.GST.Untouched().CMDSTART)});
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  Run({Press(game.GFM.Untouched().Image1[0])});
  const QByteArray atTheDoor = InFile();
  const QJsonObject onTheBoard = BelowTitle(State());
  Run({Press(door)});
  EXPECT_FALSE(game.GFM.Untouched().IsShown());
  EXPECT_EQ(InFile(), atTheDoor);
  // Whoever takes the door back goes on with the file.
  Run({Keys(Qt::Key_Z), Press(game.GFM.Untouched().Image1[5])});
  EXPECT_EQ(InFile().toStdString(), List());
  EXPECT_GT(InFile().size(), atTheDoor.size());
  // Another game is not for it.
  const QByteArray last = InFile();
  Run({Press(door), Press(game.GST.Untouched().CMDSTART), Press(game.GFM.Untouched().Image1[7])});
  EXPECT_EQ(InFile(), last);
  // What an older version has written beyond the board stands at the board, too.
  PutIntoFile(atTheDoor + "click GFM.CMDEXIT\nhover GST\n");
  ASSERT_EQ(session.GoOn(file.toStdString()), "");
  Run({[] {}});
  EXPECT_EQ(BelowTitle(State()), onTheBoard);
  EXPECT_TRUE(InFile().startsWith(atTheDoor));
  EXPECT_FALSE(InFile().contains("CMDEXIT"));
  // A game that is taken back to ahead of its board is in the file as it was.
  const QByteArray before = InFile();
  Run({Keys(Qt::Key_Z), Keys(Qt::Key_Z)});
  EXPECT_FALSE(game.GFM.Untouched().IsShown());
  EXPECT_TRUE(InFile().contains("click GST.CMDSTART"));
  EXPECT_LE(InFile().size(), before.size());
}

TEST_F(KeptOnDesktop, ItIsToldWhatACommandDidAndWhereTheGameIsKept) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  const auto told = [this] {
    auto* word = platform.screen.Front()->findChild<QLabel*>(Word::name);
    return word == nullptr ? QString() : word->text();
  };
  EXPECT_EQ(told(), "Kept in a.zelvo.");
  EXPECT_EQ(session.OpenMenu({})->actions().front()->text(), "Kept in a.zelvo");
  qobject_cast<QMenu*>(QApplication::activePopupWidget())->close();
  Run({Keys(Qt::Key_2)});
  EXPECT_EQ(told(), "Waits twice as fast.");
  Run({Press(game.GFM.Untouched().Image1[0]), Keys(Qt::Key_Z)});
  EXPECT_EQ(told(), "Taken back.");
}

TEST_F(KeptOnDesktop, TheNameThatIsWrittenIsTheOneThatWasAskedForAndNoOtherFileGoesUnasked) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  const struct {
    const char* typed;
    std::string written;
  } names[] = {{"24.11. Abend", "24.11. Abend.zelvo"},
               {"x.txt", "x.txt.zelvo"},
               {"end.", "end..zelvo"},
               {"a.zelvo", "a.zelvo"},
               {"say \"hi\" now", "say \"hi\" now.zelvo"}};
  for (const auto& [typed, written] : names) {
    Run({Keys(Qt::Key_S)});
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr) << typed;
    dialog->setDirectory(folder.path());
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(typed);
    static_cast<QDialog*>(dialog)->accept();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !platform.gate.IsPaused(); })) << typed;
    EXPECT_TRUE(QFile::exists(folder.filePath(QString::fromStdString(written)))) << written;
  }
  // An existing one goes only for a yes.
  PutIntoFile("a letter");
  const QString other = folder.filePath("b.zelvo");
  ASSERT_EQ(session.Keep(other.toStdString()), "");
  for (const QMessageBox::StandardButton button : {QMessageBox::No, QMessageBox::Yes}) {
    Run({Keys(Qt::Key_S)});
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(other)) << "the file it is in";
    dialog->fileSelected(folder.filePath("a"));
    dialog->reject();
    QMessageBox* box = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&box] {
      box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      return box != nullptr;
    }));
    EXPECT_EQ(box->text(), "a.zelvo is there already. Replace it?");
    box->button(button)->click();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !platform.gate.IsPaused(); }));
    if (button == QMessageBox::No) {
      EXPECT_EQ(InFile(), "a letter");
    } else {
      EXPECT_TRUE(QTest::qWaitFor([this] { return InFile().toStdString() == List(); }));
    }
  }
}

TEST_F(KeptOnDesktop, AFileThatIsDroppedOnAWindowIsGoneOnWith) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  const QJsonObject before = BelowTitle(State());
  Run({Press(game.GFM.Untouched().CMDGO)});
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file)});
  PutIntoFile(InFile().left(InFile().indexOf("click GFM.CMDGO")));
  QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&View(game.GFM), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&View(game.GFM), &drop);
  EXPECT_TRUE(drop.isAccepted());
  Run({[] {}});
  EXPECT_EQ(BelowTitle(State()), before);
}

TEST_F(KeptOnDesktop, AFileThatAnotherProgramHasChangedIsLeftAloneAndItIsTold) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  PutIntoFile("a letter");
  Press(game.GFM.Untouched().Image1[0])();
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().contains("another program has changed it")) << box->text().toStdString();
  box->accept();
  ASSERT_TRUE(QTest::qWaitFor(
      [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr; }));
  qobject_cast<QFileDialog*>(QApplication::activeModalWidget())->reject();
  EXPECT_EQ(InFile(), "a letter");
}

TEST_F(KeptOnDesktop, EveryDeedCanBeTakenBackAndDoneAgain) {
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  std::vector<QJsonObject> states;
  Steps steps;
  for (const auto& step : Turn()) {
    steps.emplace_back([this, &states, step] {
      states.push_back(BelowTitle(State()));
      step();
    });
  }
  steps.emplace_back([this, &states] {
    states.push_back(BelowTitle(State()));
    Press(game.GFM.Untouched().CMDEXIT)();
  });
  Run(steps);
  states.push_back(BelowTitle(State()));
  const auto isStep = [](const QByteArray& line) { return line.startsWith("click "); };
  const QList<QByteArray> lines = QByteArray::fromStdString(List()).split('\n');
  ASSERT_GE(std::count_if(lines.begin(), lines.end(), isStep), 12);

  std::vector<QJsonObject> seen;
  Steps back;
  for (int i = 0; i < 30; ++i) {
    back.emplace_back([this, &seen] {
      seen.push_back(BelowTitle(State()));
      if (History::CanTakeBack(session.journal())) Keys(Qt::Key_Z)();
    });
  }
  Run(back);
  EXPECT_EQ(seen.back(), states.front());
  for (const QJsonObject& state : seen) {
    EXPECT_TRUE(std::count(states.begin(), states.end(), state));
  }
  EXPECT_TRUE(InFile().contains("click GST.CMDSTART")) << "a file keeps its board";
  EXPECT_TRUE(View(game.GST).isVisible());
  EXPECT_FALSE(View(game.GFM).isVisible());

  Steps again(30, Keys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier));
  Run(again);
  EXPECT_EQ(BelowTitle(State()), states.back());
  EXPECT_EQ(BelowTitle(StateInScriptedProgram()), states.end()[-2]) << "in its board's last moment";
  // Something else done leaves nothing to be done again.
  Run({Keys(Qt::Key_Z), Press(game.GST.Untouched().CMDSTART),
       Press(game.GFM.Untouched().Image1[0])});
  const QJsonObject other = BelowTitle(State());
  Run({Keys(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier)});
  EXPECT_EQ(BelowTitle(State()), other);
  // What is in hand is part of it.
  Run({Press(game.GFM.Untouched().Image1[5]), Keys(Qt::Key_Z)});
  EXPECT_TRUE(Widget(game.GFM->Image1[0]).IsInHand());
  EXPECT_FALSE(Widget(game.GFM->Image1[5]).IsInHand());
}

TEST_F(KeptOnDesktop, NothingOfAGameReachesTheOneThatComesInItsPlace) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  const auto box = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
  Once([box] { return box() != nullptr; }, [box] { box()->accept(); });
  platform.MessageBox("One", MessageStyle::Ok, "Zelvo");
  auto pause = std::make_optional<Gate::Pause>(platform.gate);
  bool reached = false;
  platform.gate.Deliver([&reached](Surface&) { reached = true; });
  session.TakeBack();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !session.IsReplacing(); }));
  pause.reset();
  Run({[] {}});
  EXPECT_FALSE(reached);
  // An open message box goes with its game.
  Run({Press(game.GST.Untouched().CMDSTART)});
  Once([box] { return box() != nullptr; }, [this] { session.TakeBack(); });
  platform.MessageBox("Two", MessageStyle::Ok, "Zelvo");
  // What comes in the place of the same game comes to the front as well.
  Run({Press(game.GST.Untouched().CMDSTART)});
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  const int fronts = platform.screen.fronts;
  ASSERT_EQ(session.GoOn(file.toStdString()), "");
  Run({[] {}});
  EXPECT_GT(platform.screen.fronts, fronts);
}

TEST_F(KeptOnDesktop, AFileIsGoneOnWithInTheMiddleOfABlinkAndItsTornLineIsDropped) {
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  Run(Turn());
  const QByteArray whole = InFile();
  const auto middle = whole.indexOf("tick GFM.Timer1\n") + 16;
  PutIntoFile(whole.left(middle) + "bac");
  ASSERT_EQ(session.GoOn(file.toStdString()), "");
  bool isHourglass = false;
  Once([this] { return game.GFM.Untouched().IsShown(); },
       [&] { isHourglass = QGuiApplication::overrideCursor() != nullptr; });
  Run({Press(game.GFM.Untouched().Image1[0])});
  EXPECT_TRUE(isHourglass);
  EXPECT_TRUE(InFile().startsWith(whole.left(middle) + "back\n"));
  EXPECT_EQ(WrittenOut(InFile().toStdString()), WrittenOut(List()));
  EXPECT_EQ(StateInScriptedProgram(), State());
}

TEST_F(KeptOnDesktop, WhatIsNoKeptGameIsRefusedAndStaysAsItIs) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  const QJsonObject before = State();
  const std::string path = file.toStdString();
  for (const auto& [text, why] : std::initializer_list<std::pair<QByteArray, std::string>>{
           {"", "it is cut off in its first line"},
           {"PNG", "it is no kept game"},
           {"zelvo-game 9\n", "it was kept by a later version of the game"},
           {"zelvo-game 1\nback\nclick GFM.CMDGO\n",
            "its line 3 does not fit the game: click GFM.CMDGO"}}) {
    PutIntoFile(text);
    EXPECT_EQ(session.GoOn(path), QString("%1 cannot be gone on with: %2.")
                                      .arg(file, QString::fromStdString(why))
                                      .toStdString());
    EXPECT_EQ(InFile(), text);
  }
  EXPECT_EQ(session.GoOn("/no/such"), "/no/such cannot be read: No such file or directory.");
  EXPECT_EQ(session.Keep("/no/such"), "/no/such cannot be written: No such file or directory.");
  KeptFile others;
  ASSERT_EQ(others.Replace(path, "zelvo-game 1\n"), 0);
  const std::string taken = ": another program keeps its game there.";
  EXPECT_EQ(session.GoOn(path), path + " cannot be gone on with" + taken);
  EXPECT_EQ(session.Keep(path), path + " cannot be written" + taken);
  Run({[] {}});
  EXPECT_EQ(State(), before);
}

TEST_F(KeptOnDesktop, AFileThatCanNoLongerBeWrittenIsToldOfAndTheGameGoesOn) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  ASSERT_EQ(session.Keep(file.toStdString()), "");
  QFile::remove(file);
  Run({Press(game.GFM.Untouched().Image1[0])});
  EXPECT_EQ(InFile().toStdString(), List()) << "written anew where it was";
  folder.remove();
  Press(game.GFM.Untouched().Image1[5])();
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), file +
                             " cannot be written, so the game is no longer kept there: No such "
                             "file or directory.");
  box->accept();
  QFileDialog* elsewhere = nullptr;  // the game can be kept in another place
  ASSERT_TRUE(QTest::qWaitFor([&] {
    elsewhere = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return elsewhere != nullptr;
  }));
  elsewhere->reject();
  Run({Press(game.GFM.Untouched().Image1[7])});
  EXPECT_EQ(game.CurLot, 7);
}

TEST_F(KeptOnDesktop, TheMenuListsAllWithItsKeysAndTheGameStandsStillMeanwhile) {
  Run({Press(game.GST.Untouched().CMDSTART)});
  QContextMenuEvent rightButton(QContextMenuEvent::Mouse, {5, 5}, {5, 5});
  QApplication::sendEvent(&Widget(game.GFM.Untouched().Image1[5]), &rightButton);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QString lines;
  for (const QAction* action : menu->actions()) {
    lines += action->isSeparator() ? "-" : action->text();
    lines += action->isChecked() ? " (chosen)\n" : action->isEnabled() ? "\n" : " (not now)\n";
  }
  EXPECT_EQ(lines.toStdString(),
            "Not kept in a file (not now)\n-\nKeep this game in a file...\tCtrl+S\nGo on with a "
            "kept game...\tCtrl+O\n"
            "Take back\tCtrl+Z\nDo again\tCtrl+Shift+Z (not now)\n-\n"
            "Waits as they are\tCtrl+1 (chosen)\nWaits twice as fast\tCtrl+2\n"
            "Waits five times as fast\tCtrl+5\n");
  game.GFM.Untouched().Timer1.SetInterval(10);
  game.GFM.Untouched().Timer1.SetEnabled(true);
  game.Work = 0;
  for (int i = 0; i < 20; ++i) QCoreApplication::processEvents();
  EXPECT_EQ(game.Work, 0);
  menu->close();
  EXPECT_TRUE(QTest::qWaitFor([this] { return game.Work > 0; }));
  Run({Keys(Qt::Key_5)});
  EXPECT_EQ(platform.gate.pace(), 5);
}

TEST_F(KeptOnDesktop, FilesAreChosenInADialogAndTheGameStandsStillMeanwhile) {
  const auto choose = [this](const QString& title, QFileDialog::AcceptMode mode,
                             const QString& path) {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), title);
    EXPECT_EQ(dialog->acceptMode(), mode);
    EXPECT_EQ(dialog->nameFilters().first(), "Kept games (*.zelvo)");
    EXPECT_TRUE(platform.gate.IsPaused());
    Keys(Qt::Key_Z)();  // which would take back
    dialog->fileSelected(path);
    dialog->reject();
  };
  Run({Press(game.GST.Untouched().CMDSTART), Press(game.GFM.Untouched().Image1[0])});
  Run({Keys(Qt::Key_S)});
  choose("Keep this game", QFileDialog::AcceptSave, file);
  Run({[] {}});
  EXPECT_EQ(InFile().toStdString(), List());
  const QByteArray kept = InFile();
  Run({Press(game.GFM.Untouched().Image1[5]), Keys(Qt::Key_O)});
  EXPECT_TRUE(InFile().startsWith(kept) && InFile().size() > kept.size());
  choose("Go on with a kept game", QFileDialog::AcceptOpen, "/no/such");
  ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), "/no/such cannot be read: No such file or directory.");
  EXPECT_EQ(box->icon(), QMessageBox::Warning);
  EXPECT_EQ(box->windowTitle(), "Zelvo");
  box->accept();
  EXPECT_FALSE(platform.gate.IsPaused());
}

}  // namespace
}  // namespace zelvo
