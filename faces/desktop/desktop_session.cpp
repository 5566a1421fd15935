#include "faces/desktop/desktop_session.h"

#include <QActionGroup>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>

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
  const int error = anew || !file_.IsInPlace() ? file_.Replace(file_.path(), Text())
                                               : file_.Append(lines, lasting);
  if (error == 0) return;
  file_.Close();
  EndWriting();
  Say(CannotBe(file_.path(), "written, so the game is no longer kept there", Reason(error)));
}

std::string DesktopSession::Keep(const std::string& path) {
  if (const int error = file_.Replace(path, Text()))
    return CannotBe(path, "written", Reason(error));
  GoOnWriting();
  return "";
}

std::string DesktopSession::GoOn(const std::string& path) {
  const auto [text, error] = ReadFile(path);
  if (error != 0) return CannotBe(path, "read", Reason(error));
  KeptGame kept = Read(path, text);
  if (!kept.error.empty()) return kept.error;
  const int notWritten = file_.Open(path, kept.wholeBytes);
  if (notWritten == EWOULDBLOCK) return CannotBe(path, "gone on with", Reason(notWritten));
  Session::GoOn(std::move(kept), true);
  if (notWritten == 0) {
    BeginWriting();
    return "";
  }
  file_.Close();
  EndWriting();
  return CannotBe(path, "written, so the game is not kept there", Reason(notWritten));
}

// --- The player

void DesktopSession::Do(const CommandDesign& design) {
  if (platform_.gate.IsPaused() || !CanDo(design.command)) return;
  switch (design.command) {
    case Command::TakeBack:
      return TakeBack();
    case Command::DoAgain:
      return DoAgain();
    case Command::SetPace:
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
  const QString suffix = ToQString(keptGameSuffix);
  dialog->setAcceptMode(keep ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(keep ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog->setDefaultSuffix(suffix);
  dialog->setNameFilters({"Kept games (*." + suffix + ")", "All files (*)"});
  const auto pause = PauseUntil(dialog, &QDialog::finished);
  connect(dialog, &QFileDialog::fileSelected, this, [this, keep, pause](const QString& chosen) {
    const std::string path = QFile::encodeName(chosen).toStdString();
    // What goes wrong is said when the dialog has gone.
    const auto stillPaused = pause.lock();
    QMetaObject::invokeMethod(
        this,
        [this, keep, path, stillPaused] {
          const std::string error = keep ? Keep(path) : GoOn(path);
          if (!error.empty()) Say(error);
        },
        Qt::QueuedConnection);
  });
  dialog->open();
}

QMenu* DesktopSession::OpenMenu(QPoint place) {
  auto* menu = new QMenu(Front());
  auto* paces = new QActionGroup(menu);
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

void DesktopSession::Say(const std::string& text) {
  auto* box = new QMessageBox(Front());
  box->setWindowTitle("Zelvo");
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQString(text));
  box->setIcon(QMessageBox::Warning);
  PauseUntil(box, &QDialog::finished);
  box->open();
}

bool DesktopSession::eventFilter(QObject* object, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || platform_.gate.IsPaused()) return false;
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
