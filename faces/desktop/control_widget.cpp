#include "faces/desktop/control_widget.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <cmath>
#include <string_view>

#include "faces/desktop/window_view.h"
#include "surface/speech.h"

namespace zelvo {
namespace {

constexpr int markSize = 200;  // twips
constexpr int markGap = 90;    // twips

bool HasMark(const Control& control) {
  return control.kind() == Kind::Option || control.kind() == Kind::CheckBox;
}

/// The letter at a place of Latin keyboards, for those with another script; 0 at other places.
char LetterAtPlace(quint32 scanCode) {
  struct Row {
    quint32 first = 0;
    std::string_view letters;
  };
  static constexpr Row rows[] = {{24, "qwertyuiop"}, {38, "asdfghjkl"}, {52, "zxcvbnm"}};
  for (const Row& row : rows) {
    const quint32 place = scanCode - row.first;
    if (scanCode >= row.first && place < row.letters.size()) return row.letters[place];
  }
  return 0;
}

}  // namespace

ControlWidget::ControlWidget(Control& control, WindowView& view)
    : QWidget(&view), control_(control), view_(view) {
  setMouseTracking(true);
  setAttribute(Qt::WA_NoMousePropagation);
  const bool hasText = control.kind() == Kind::TextBox;  // which takes the focus itself
  if (IsForKeyboard(control) && !hasText) setFocusPolicy(Qt::StrongFocus);
  if (control.IsClickable()) {
    setAttribute(Qt::WA_Hover);
    if (control.kind() != Kind::Button) setCursor(Qt::PointingHandCursor);
  }
  if (hasText) {
    editor_ = new QPlainTextEdit(this);
    editor_->setReadOnly(true);
    editor_->setTabChangesFocus(true);
    editor_->setFrameStyle(QFrame::NoFrame);
    editor_->setAccessibleName(SpokenName());
    QPalette colours = editor_->palette();
    colours.setColor(QPalette::Base, ToColor(look().ground));
    colours.setColor(QPalette::Text, ToColor(look().ink));
    editor_->setPalette(colours);
    setFocusProxy(editor_);
  }
}

bool ControlWidget::IsFocusOfItsWindow() const {
  const QWidget* focused = view_.focusWidget();
  return focused != nullptr && (focused == this || isAncestorOf(focused));
}

// What the widget shows.

void ControlWidget::TakeOver() {
  if (shown_.caption != control_.Caption) text_.reset();
  const bool newText = shown_.text != control_.Text;
  const bool newName = shown_.caption != control_.Caption || shown_.picture != control_.Picture;
  const bool newValue = shown_.value != control_.Value();
  shown_ = Shown::Of(control_);
  if (editor_ != nullptr && newText) editor_->setPlainText(ScreenText(control_.Text));
  if (!shown_.enabled) view_.focusPath().Leave(*this);
  setEnabled(shown_.enabled);
  update();
  TellHelpers(newName, newValue);
}

void ControlWidget::TellHelpers(bool newName, bool newValue) {
  if (newName) {
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    view_.desk().tellHelpers(renamed);
  }
  if (newValue) {
    QAccessible::State checked;
    checked.checked = true;
    QAccessibleStateChangeEvent ticked(this, checked);
    view_.desk().tellHelpers(ticked);
  }
}

void ControlWidget::Sync() {
  if (shown_.Shows(control_)) return;
  const bool wasVisible = shown_.visible;
  TakeOver();
  if (shown_.visible != wasVisible) BecomeVisible(shown_.visible);
}

void ControlWidget::SyncOnOpening() {
  TakeOver();
  gone_.stop();
  pressed_ = false;
  cameUpAt_ = view_.desk().presses;
  setVisible(shown_.visible);
}

void ControlWidget::BecomeVisible(bool visible) {
  cameUpAt_ = view_.desk().presses;
  if (!visible) {
    gone_.start(goneForMilliseconds, this);
  } else if (!gone_.isActive()) {
    ShowOrHide();
  }
}

void ControlWidget::ShowOrHide() {
  if (!shown_.visible) view_.focusPath().Leave(*this);
  setVisible(shown_.visible);
  if (shown_.visible) view_.focusPath().ComeBack(control_);
}

void ControlWidget::timerEvent(QTimerEvent* event) {
  if (event->timerId() != gone_.timerId()) return;
  gone_.stop();
  ShowOrHide();
  update();
}

void ControlWidget::Layout(const Mapping& mapping) {
  unit_ = mapping.unit;
  text_.reset();
  setGeometry(mapping.Pixels(control_.Place()));
  if (editor_ == nullptr) return;
  const int border = static_cast<int>(std::ceil(40 * unit_));
  editor_->setFont(ScreenFont(static_cast<int>(std::lround(look().letterHeight * unit_)), false));
  editor_->document()->setDocumentMargin(120 * unit_);
  editor_->setGeometry(rect().adjusted(border, border, -border, -border));
}

void ControlWidget::resizeEvent(QResizeEvent* /*event*/) { text_.reset(); }

Standing ControlWidget::CurrentStanding() const {
  return {isEnabled(), control_.IsClickable() && underMouse(), pressed_ && underMouse()};
}

QRectF ControlWidget::MarkArea() const {
  const double size = std::round(markSize * unit_);
  return {std::round(20 * unit_), std::round((height() - size) / 2), size, size};
}

QRectF ControlWidget::TextArea() const {
  QRectF area = rect();
  if (HasMark(control_)) return area.adjusted(MarkArea().right() + markGap * unit_, 0, 0, 0);
  area.setWidth(area.width() * look().textShare);
  const bool framed = look().ground != transparent || look().border != Border::None ||
                      control_.kind() == Kind::Button;
  const double side = framed ? 60 * unit_ : 0;
  const double foot = framed && look().border != Border::Road ? 15 * unit_ : 0;
  return look().vertical ? area.adjusted(foot, side, -foot, -side)
                         : area.adjusted(side, foot, -side, -foot);
}

const FittedText& ControlWidget::Text() {
  if (!text_) text_ = Fit(ScreenText(shown_.caption), look(), TextArea().size(), unit_);
  return *text_;
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/) {
  if (gone_.isActive()) return;
  QPainter painter(this);
  if (!isEnabled()) painter.setOpacity(0.45);
  DrawBody(painter);
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (shown_.inHand) DrawInHand(painter, rect(), unit_);
  if (hasFocus() && view_.desk().usesKeys) DrawFocus(painter, rect(), unit_);
}

void ControlWidget::DrawBody(QPainter& painter) {
  const QRectF area = rect();
  switch (control_.kind()) {
    case Kind::Button: {
      DrawButton(painter, area, CurrentStanding(), unit_);
      const double inset = 70 * unit_;
      DrawPicture(painter, area.adjusted(inset, inset, -inset, -inset));
      DrawCaption(painter);
      break;
    }
    case Kind::CheckBox:
    case Kind::Option:
      DrawMark(painter, MarkArea(), control_.kind() == Kind::Option, shown_.value,
               CurrentStanding(), unit_);
      DrawCaption(painter);
      break;
    case Kind::Image:
      painter.drawPixmap(
          area, view_.desk().pictures.Get(shown_.picture, size() * devicePixelRatioF()), {});
      DrawGround(painter, area, look(), unit_);
      DrawHover(painter, area, CurrentStanding(), unit_);
      break;
    default:
      DrawGround(painter, area, look(), unit_);
      if (look().border == Border::Road) DrawLanes(painter, area, look().vertical, unit_);
      DrawCaption(painter);
      DrawHover(painter, area, CurrentStanding(), unit_);
      break;
  }
}

void ControlWidget::DrawCaption(QPainter& painter) {
  if (!shown_.caption.empty()) DrawText(painter, TextArea(), Text(), look());
}

void ControlWidget::DrawPicture(QPainter& painter, const QRectF& area) const {
  const Pictures& pictures = view_.desk().pictures;
  const double proportion = pictures.Proportion(shown_.picture);
  QRectF place = area;
  if (proportion > 0) {
    const double width = std::min(area.width(), area.height() * proportion);
    place.setSize({width, width / proportion});
    place.moveCenter(area.center());
  }
  const QSize pixels = (place.size() * devicePixelRatioF()).toSize();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(place, pictures.Get(shown_.picture, pixels), {});
}

// What the player does.

void ControlWidget::mousePressEvent(QMouseEvent* event) {
  ++view_.desk().presses;
  if (event->button() != Qt::LeftButton) return;
  pressed_ = true;
  firstPress_ = 0;
  update();
}

void ControlWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
  firstPress_ = view_.desk().presses - 1;
}

void ControlWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) return;
  pressed_ = false;
  update();
  if (rect().contains(event->position().toPoint())) view_.Click(*this, firstPress_);
}

void ControlWidget::Press() { view_.Click(*this); }

void ControlWidget::mouseMoveEvent(QMouseEvent* /*event*/) { view_.Hover(*this); }

void ControlWidget::enterEvent(QEnterEvent* event) {
  // A window that came up in between may have taken the release.
  if (!event->buttons().testFlag(Qt::LeftButton)) pressed_ = false;
  view_.Hover(*this);
}

void ControlWidget::keyPressEvent(QKeyEvent* event) {
  struct Arrow {
    int key = 0;
    Step step = Step::Left;
  };
  static constexpr Arrow arrows[] = {{Qt::Key_Left, Step::Left},
                                     {Qt::Key_Right, Step::Right},
                                     {Qt::Key_Up, Step::Up},
                                     {Qt::Key_Down, Step::Down}};
  for (const Arrow& arrow : arrows) {
    if (event->key() == arrow.key) return view_.focusPath().Walk(control_, arrow.step);
  }
  const bool modified = (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != 0;
  if (modified) return QWidget::keyPressEvent(event);
  const bool click = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                     event->key() == Qt::Key_Space;
  if (click) {
    if (!event->isAutoRepeat()) Press();
    return;
  }
  const bool letter = !event->text().isEmpty() && event->text().front().isLetter();
  if (!letter) return QWidget::keyPressEvent(event);
  const char latin = event->text().front().toLower().toLatin1();
  const bool printed = latin >= 'a' && latin <= 'z';
  const char initial = printed ? latin : LetterAtPlace(event->nativeScanCode());
  view_.focusPath().WalkToInitial(control_, initial);
}

void ControlWidget::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  view_.FocusCame(*this, event->reason());
}

// What is said about it.

QString ControlWidget::SpokenName() const {
  return QString::fromStdString(zelvo::SpokenName(control_));
}

}  // namespace zelvo
