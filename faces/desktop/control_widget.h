#pragma once

#include <QBasicTimer>
#include <QString>
#include <QWidget>
#include <optional>

#include "faces/desktop/drawing.h"
#include "faces/shown.h"

class QPlainTextEdit;

namespace zelvo {

class WindowView;

/// The picture of one control on the screen, of any kind but a timer: it shows what the control
/// holds, in its look, and hands clicks and moves over it to the game.
class ControlWidget : public QWidget {
 public:
  ControlWidget(Control& control, WindowView& view);

  Control& control() const { return control_; }
  WindowView& view() const { return view_; }
  /// Shows what the control holds now, if that is not what the widget shows already.
  void Sync();
  /// The same when the window comes up: what is hidden is hidden at once.
  void SyncOnOpening();
  /// Takes its place on the window.
  void Layout(const Mapping& mapping);

  /// True if the control has the keyboard whenever its window is active.
  bool IsFocusOfItsWindow() const;
  bool IsInHand() const { return shown_.inHand; }
  /// True if the control was hidden at some time since that press of the mouse (see Desk).
  bool CameUpSince(int press) const { return cameUpAt_ >= press; }
  /// The same as a click of the mouse.
  void Press();

  /// What a screen reader says.
  QString SpokenName() const;

  /// The caption as it is drawn, and the room it has, for a look at whether it fits.
  const FittedText& Text();
  QRectF TextArea() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void TakeOver();
  void TellHelpers(bool newName, bool newValue);
  void BecomeVisible(bool visible);
  void ShowOrHide();
  void DrawBody(QPainter& painter);
  void DrawCaption(QPainter& painter);
  void DrawPicture(QPainter& painter, const QRectF& area) const;
  QRectF MarkArea() const;
  Standing CurrentStanding() const;
  const Look& look() const { return control_.design().look; }

  Control& control_;
  WindowView& view_;
  Shown shown_;  // as last taken over
  double unit_ = 0;
  bool pressed_ = false;
  int firstPress_ = 0;  // of a double click whose second press was the last one here; else 0
  int cameUpAt_ = 0;    // the press after which the control was last shown anew
  QBasicTimer gone_;
  std::optional<FittedText> text_;
  QPlainTextEdit* editor_ = nullptr;  // of a text box, a child
};

}  // namespace zelvo
