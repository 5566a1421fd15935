#include "faces/desktop/desktop_session.h"

#include <QActionGroup>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>
#include <algorithm>
#include <cerrno>
#include <climits>
#include <memory>
#include <system_error>
#include <utility>

#include "faces/desktop/word.h"

namespace zelvo {
namespace {

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Reason(int error) {
  if (error == EWOULDBLOCK) return "another program keeps its game there";
  if (error == ESTALE) return "another program has changed it";
  return std::generic_category().message(error);
}

std::string CannotBe(const std::string& path, const std::string& done, const std::string& reason) {
  return path + " cannot be " + done + ": " + reason + ".";
}

QString NameOf(const std::string& path) {
  return QFileInfo(QFile::decodeName(QByteArray::fromStdString(path))).fileName();
}

/// What was asked for as a name, with the end that kept games have, if there is room for it.
QString WithSuffix(const QString& path) {
  const QString suffix = "." + ToQString(keptGameSuffix);
  if (path.endsWith(suffix, Qt::CaseInsensitive)) return path;
  const auto length = QFile::encodeName(QFileInfo(path).fileName() + suffix).size();
  return length > NAME_MAX ? path : path + suffix;
}

/// The path that was chosen. The toolkit's dialog takes marks of quotation for the ends of names.
QString ChosenPath(const QFileDialog& dialog, const QString& chosen) {
  const auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
  if (field == nullptr || !field->text().contains('"')) return chosen;
  return dialog.directory().filePath(field->text());
}

}  // namespace

DesktopSession::DesktopSession(DesktopPlatform& platform)
    : Session(static_cast<Platform&>(platform)), platform_(platform) {
  platform_.Attach(&game());
  platform_.screen.whenSynced = [this] { Follow(); };
  qApp->installEventFilter(this);
}

DesktopSession::~DesktopSession() {
  platform_.screen.whenSynced = nullptr;
  platform_.Attach(nullptr);
}

// --- The game

void DesktopSession::Start(const std::string& file) {
  const std::string error = file.empty() ? "" : GoOn(file);
  if (!IsReplacing()) Begin();
  if (!error.empty()) Say(error);
}

void DesktopSession::Begin() {
  platform_.gate.Deliver([this](Surface& /*surface*/) { Session::Start(); });
}

/// The windows stay as they are until the other game has shown which it has.
void DesktopSession::GameLetGo() {
  platform_.CloseMessageBoxes();
  platform_.gate.WhenIdle([this] {
    MakeNext();
    platform_.Attach(&game());
    Begin();
  });
}

// --- The file

void DesktopSession::Write(const std::string& lines, bool anew, bool lasting) {
  const KeptFile::State state = file_.Look();
  int error = state == KeptFile::State::Lost ? ENOENT : ESTALE;
  if (state == KeptFile::State::Gone || (anew && state == KeptFile::State::AsLeft)) {
    error = file_.Replace(file_.path(), Text());
  } else if (state == KeptFile::State::AsLeft) {
    error = file_.Append(lines, lasting);
  }
  if (error == 0) return;
  LetFileGo();
  Say(CannotBe(file_.path(), "written, so the game is no longer kept there", Reason(error)),
      [this] { ChooseFile(Command::Keep); });
}

void DesktopSession::LetFileGo() {
  file_.Close();
  EndWriting();
}

std::string DesktopSession::Keep(const std::string& path) {
  if (const int error = file_.Replace(path, Text()))
    return CannotBe(path, "written", Reason(error));
  GoOnWriting();
  SayWord("Kept in " + NameOf(path) + ".");
  return "";
}

std::string DesktopSession::GoOn(const std::string& path) {
  KeptFile::Found found = KeptFile::Find(path, file_);
  if (found.error != 0) {
    const char* done = found.error == EWOULDBLOCK ? "gone on with" : "read";
    return CannotBe(path, done, Reason(found.error));
  }
  KeptGame kept = Read(path, found.text);
  if (!kept.error.empty()) return kept.error;
  int notWritten = found.notWritable;
  if (notWritten == 0) {
    file_ = std::move(found.file);
    notWritten = file_.CutTo(kept.wholeBytes);
  }
  EndWriting();
  Session::GoOn(std::move(kept), true);
  if (notWritten == 0) {
    BeginWriting();
    return "";
  }
  LetFileGo();
  return CannotBe(path, "written, so the game is not kept there", Reason(notWritten));
}

// --- The player

void DesktopSession::Do(const CommandDesign& design) {
  if (platform_.gate.IsPaused() || !CanDo(design.command)) return;
  switch (design.command) {
    case Command::TakeBack:
      SayWord(ToQString(takenBack));
      return TakeBack();
    case Command::DoAgain:
      SayWord(ToQString(doneAgain));
      return DoAgain();
    case Command::SetPace:
      SayWord(ToQString(design.name) + ".");
      return platform_.gate.SetPace(design.pace);
    case Command::Keep:
    case Command::GoOn:
      return ChooseFile(design.command);
  }
}

/// The game stands still until a dialog or menu of the program's own has closed, or longer, for
/// somebody who shares the reason.
template <class Dialog, class Signal>
std::weak_ptr<Gate::Pause> DesktopSession::PauseUntil(Dialog* dialog, Signal closed) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  auto pause = std::make_shared<Gate::Pause>(platform_.gate);
  connect(dialog, closed, this, [pause]() mutable { pause.reset(); });
  return pause;
}

void DesktopSession::ChooseFile(Command command) {
  const bool keep = command == Command::Keep;
  auto* dialog = new QFileDialog(Front(), keep ? "Keep this game" : "Go on with a kept game");
  dialog->setAcceptMode(keep ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(keep ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The name that is written may be another one than what was typed, so it is asked about here.
  dialog->setOption(QFileDialog::DontConfirmOverwrite);
  dialog->setNameFilters({"Kept games (*." + ToQString(keptGameSuffix) + ")", "All files (*)"});
  if (keep && file_.IsOpen()) {
    dialog->selectFile(QFile::decodeName(QByteArray::fromStdString(file_.path())));
  }
  const auto pause = PauseUntil(dialog, &QDialog::finished);
  connect(dialog, &QFileDialog::fileSelected, this, [=, this](const QString& chosen) {
    const QString path = keep ? WithSuffix(ChosenPath(*dialog, chosen)) : chosen;
    // What comes of it is asked and said when the dialog has gone.
    const auto stillPaused = pause.lock();
    QMetaObject::invokeMethod(
        this,
        [=, this] {
          keep ? KeepAt(path) : GoOnWith(path);
          (void)stillPaused;
        },
        Qt::QueuedConnection);
  });
  dialog->open();
}

/// Keeps the game there, if the player agrees that another file goes for it.
void DesktopSession::KeepAt(const QString& path) {
  const std::string file = QFile::encodeName(path).toStdString();
  const auto keep = [this, file] {
    const std::string error = Keep(file);
    if (!error.empty()) Say(error);
  };
  const bool isOurs = file_.IsOpen() && file == file_.path();
  if (isOurs || !QFileInfo(path).exists()) return keep();
  auto* box = new QMessageBox(QMessageBox::Question, "Zelvo",
                              QFileInfo(path).fileName() + " is there already. Replace it?",
                              QMessageBox::Yes | QMessageBox::No, Front());
  box->setTextFormat(Qt::PlainText);
  box->setDefaultButton(QMessageBox::No);
  const auto pause = PauseUntil(box, &QDialog::finished);
  connect(box, &QDialog::finished, this, [=, this](int button) {
    const auto stillPaused = pause.lock();
    if (button != QMessageBox::Yes) return;
    QMetaObject::invokeMethod(
        this,
        [keep, stillPaused] {
          keep();
          (void)stillPaused;
        },
        Qt::QueuedConnection);
  });
  box->open();
}

void DesktopSession::GoOnWith(const QString& path) {
  const std::string error = GoOn(QFile::encodeName(path).toStdString());
  if (!error.empty()) Say(error);
}

QMenu* DesktopSession::OpenMenu(QPoint place) {
  auto* menu = new QMenu(Front());
  auto* paces = new QActionGroup(menu);
  menu->addAction(file_.IsOpen() ? "Kept in " + NameOf(file_.path()) : "Not kept in a file")
      ->setEnabled(false);
  menu->addSeparator();
  for (const CommandDesign& design : commandDesigns) {
    if (design.pace == 1) menu->addSeparator();
    QAction* action = menu->addAction(ToQString(design.name) + "\t" + ToQString(design.key));
    action->setEnabled(CanDo(design.command));
    if (design.pace != 0) {
      paces->addAction(action)->setCheckable(true);
      action->setChecked(design.pace == platform_.gate.pace());
    }
    connect(action, &QAction::triggered, this, [this, &design] { Do(design); });
  }
  PauseUntil(menu, &QMenu::aboutToHide);
  menu->popup(place);
  return menu;
}

void DesktopSession::Say(const std::string& text, const std::function<void()>& afterwards) {
  auto* box = new QMessageBox(Front());
  box->setWindowTitle("Zelvo");
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQString(text));
  box->setIcon(QMessageBox::Warning);
  PauseUntil(box, &QDialog::finished);
  if (afterwards) connect(box, &QDialog::finished, this, afterwards, Qt::QueuedConnection);
  box->open();
}

void DesktopSession::SayWord(const QString& text) {
  WindowView* front = Front();
  if (front == nullptr) return;
  delete front->findChild<QLabel*>(Word::name);
  new Word(text, front);  // which goes by itself
  platform_.screen.voice.Say(text);
}

/// A file that is dropped on a window is gone on with.
bool DesktopSession::TakeDrop(QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return false;
  event.acceptProposedAction();
  if (event.type() != QEvent::Drop) return true;
  const QString path = urls.front().toLocalFile();
  QMetaObject::invokeMethod(
      this, [this, path] { GoOnWith(path); }, Qt::QueuedConnection);
  return true;
}

bool DesktopSession::eventFilter(QObject* object, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || platform_.gate.IsPaused()) return false;
  if (event->type() == QEvent::ContextMenu) {
    if (dynamic_cast<WindowView*>(widget->window()) == nullptr) return false;
    OpenMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
  }
  const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
  if (isDrag || event->type() == QEvent::Drop) return TakeDrop(*static_cast<QDropEvent*>(event));
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
