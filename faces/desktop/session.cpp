#include "faces/desktop/session.h"

#include <QActionGroup>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "faces/kept_game.h"

namespace zelvo {
namespace {

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Reason(int error) {
  if (error == EWOULDBLOCK) return "another program keeps its game there";
  return std::generic_category().message(error);
}

std::string CannotBe(const std::string& path, const std::string& done, const std::string& reason) {
  return path + " cannot be " + done + ": " + reason + ".";
}

/// True if something came that is more than moves of the mouse and the passing of time.
bool IsWorthWaitingFor(const GameList& list, const Written& written) {
  return std::any_of(list.begin() + static_cast<std::ptrdiff_t>(written.entries), list.end(),
                     [](const Entry& entry) {
                       return entry.kind != Entry::Kind::Hover && entry.kind != Entry::Kind::Back;
                     });
}

}  // namespace

Session::Session(DesktopPlatform& platform) : platform_(platform) {
  journal_.emplace(platform_);
  game_.emplace(*journal_);
  journal_->Attach(*game_);
  platform_.Attach(*game_);
  platform_.whenSynced = [this] { Follow(); };
  qApp->installEventFilter(this);
}

Session::~Session() {
  platform_.whenSynced = nullptr;
  platform_.Detach();
}

// --- The game

void Session::Start(const std::string& file) {
  const std::string error = file.empty() ? "" : GoOn(file);
  if (!replacing_) Begin({});
  if (!error.empty()) Say(error);
}

/// Plays a list into the game that stands ready and lets it run. Returns when the waits in which
/// the list ends are over.
void Session::Begin(GameList list) {
  journal_->whenPlayed = [this] {
    history_.Settle(*journal_);
    platform_.TellExtents();
  };
  platform_.Deliver(
      [this, list = std::move(list)](Surface& /*surface*/) { journal_->Start(list); });
}

/// Puts a game in the place of the one that runs. Its file, if it has one, is to hold the new list,
/// unless that is where the list comes from. The old game's handlers may stand in waits, which have
/// to end first; the windows stay as they are meanwhile.
void Session::Replace(GameList list, bool isInFile) {
  replacing_ = true;
  journal_->Abandon();
  platform_.CloseMessageBoxes();
  platform_.WhenIdle([this, list = std::move(list), isInFile]() mutable {
    platform_.Detach();
    // The new game stands where the old one stood, so the windows on the screen are its own.
    game_.reset();
    journal_.emplace(platform_);
    game_.emplace(*journal_);
    journal_->Attach(*game_);
    platform_.Attach(*game_);
    replacing_ = false;
    if (file_.IsOpen() && !isInFile) {
      if (const int error = file_.Replace(file_.path(), TextOf(*game_, list))) LoseFile(error);
    }
    written_ = Written::AllOf(list);
    Begin(std::move(list));
  });
}

void Session::TakeBack() {
  if (CanDo(Command::TakeBack)) Replace(history_.TakeBack(*journal_), false);
}

void Session::DoAgain() {
  if (CanDo(Command::DoAgain)) Replace(history_.DoAgain(*journal_), false);
}

bool Session::CanDo(Command command) const {
  if (replacing_ || game_->HasEnded()) return false;
  if (command == Command::TakeBack) return History::CanTakeBack(*journal_);
  if (command == Command::DoAgain) return history_.CanDoAgain(*journal_);
  return true;
}

// --- The file

/// Brings the file up to date wherever the game waits or rests. So what ends the program is not
/// written: who comes back finds the game as it was before.
void Session::Follow() {
  if (replacing_ || game_->HasEnded() || !game_->IsOpen()) return;
  history_.Follow(*journal_);
  if (!file_.IsOpen()) return;
  const GameList& list = journal_->list();
  const std::string lines = LinesSince(*game_, list, written_);
  if (lines.empty()) return;
  const int error = file_.IsInPlace() ? file_.Append(lines, IsWorthWaitingFor(list, written_))
                                      : file_.Replace(file_.path(), TextOf(*game_, list));
  written_ = Written::AllOf(list);
  if (error != 0) LoseFile(error);
}

void Session::LoseFile(int error) {
  file_.Close();
  Say(CannotBe(file_.path(), "written, so the game is no longer kept there", Reason(error)));
}

std::string Session::Keep(const std::string& path) {
  const int error = file_.Replace(path, TextOf(*game_, journal_->list()));
  if (error != 0) return CannotBe(path, "written", Reason(error));
  written_ = Written::AllOf(journal_->list());
  return "";
}

std::string Session::GoOn(const std::string& path) {
  const auto [text, error] = ReadFile(path);
  if (error != 0) return CannotBe(path, "read", Reason(error));
  KeptGame kept = ReadKeptGame(text);
  if (!kept.error.empty()) return CannotBe(path, "gone on with", kept.error);
  const int notWritten = file_.Open(path, kept.wholeBytes);
  if (notWritten == EWOULDBLOCK) return CannotBe(path, "gone on with", Reason(notWritten));
  if (notWritten != 0) file_.Close();
  if (kept.ends) kept.list = WithoutTheEnd(std::move(kept.list));
  history_.Forget();
  Replace(std::move(kept.list), !kept.ends);
  if (notWritten == 0) return "";
  return CannotBe(path, "written, so the game is not kept there", Reason(notWritten));
}

// --- The player

void Session::Do(const CommandDesign& design) {
  if (platform_.IsPaused() || !CanDo(design.command)) return;
  switch (design.command) {
    case Command::TakeBack:
      return TakeBack();
    case Command::DoAgain:
      return DoAgain();
    case Command::SetPace:
      return platform_.SetPace(design.pace);
    case Command::Keep:
    case Command::GoOn:
      return ChooseFile(design.command);
  }
}

/// The game stands still until a dialog or menu of the program's own has closed.
template <class Dialog, class Signal>
void Session::PauseUntil(Dialog* dialog, Signal closed) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  platform_.Pause(true);
  connect(dialog, closed, this, [this] { platform_.Pause(false); });
}

void Session::ChooseFile(Command command) {
  const bool keep = command == Command::Keep;
  auto* dialog = new QFileDialog(Front(), keep ? "Keep this game" : "Go on with a kept game");
  const QString suffix = ToQString(keptGameSuffix);
  dialog->setAcceptMode(keep ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(keep ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog->setDefaultSuffix(suffix);
  dialog->setNameFilters({"Kept games (*." + suffix + ")", "All files (*)"});
  PauseUntil(dialog, &QDialog::finished);
  connect(dialog, &QFileDialog::fileSelected, this, [this, keep](const QString& chosen) {
    const std::string path = QFile::encodeName(chosen).toStdString();
    // What goes wrong is said when the dialog has gone.
    QMetaObject::invokeMethod(
        this,
        [this, keep, path] {
          const std::string error = keep ? Keep(path) : GoOn(path);
          if (!error.empty()) Say(error);
        },
        Qt::QueuedConnection);
  });
  dialog->open();
}

QMenu* Session::OpenMenu(QPoint place) {
  auto* menu = new QMenu(Front());
  auto* paces = new QActionGroup(menu);
  for (const CommandDesign& design : commandDesigns) {
    if (design.pace == 1) menu->addSeparator();
    QAction* action = menu->addAction(ToQString(design.name) + "\t" + ToQString(design.key));
    action->setEnabled(CanDo(design.command));
    if (design.pace != 0) {
      paces->addAction(action)->setCheckable(true);
      action->setChecked(design.pace == platform_.pace());
    }
    // After the menu has gone, and with it the pause.
    connect(
        action, &QAction::triggered, this, [this, &design] { Do(design); }, Qt::QueuedConnection);
  }
  PauseUntil(menu, &QMenu::aboutToHide);
  menu->popup(place);
  return menu;
}

void Session::Say(const std::string& text) {
  auto* box = new QMessageBox(Front());
  box->setWindowTitle("Zelvo");
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQString(text));
  box->setIcon(QMessageBox::Warning);
  PauseUntil(box, &QDialog::finished);
  box->open();
}

bool Session::eventFilter(QObject* object, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || platform_.IsPaused()) return false;
  if (event->type() == QEvent::ContextMenu) {
    if (dynamic_cast<WindowView*>(widget->window()) == nullptr) return false;
    OpenMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const QKeySequence pressed(static_cast<QKeyEvent*>(event)->keyCombination());
  const auto command = std::find_if(
      commandDesigns.begin(), commandDesigns.end(),
      [&](const CommandDesign& design) { return pressed == QKeySequence(ToQString(design.key)); });
  if (command == commandDesigns.end()) return false;
  Do(*command);
  return true;
}

}  // namespace zelvo
