#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "faces/desktop/control_widget.h"
#include "faces/desktop/desk.h"
#include "faces/desktop/focus_path.h"
#include "surface/window.h"

namespace zelvo {

/// Controls of a window that helpers see as one thing.
class ControlGroup : public QObject {
 public:
  ControlGroup(const Group& theGroup, QObject* window) : QObject(window), group(theGroup) {}
  const Group& group;
  std::vector<ControlWidget*> members;
};

/// Any window of the game on the screen. It walks the window's controls and makes a widget for
/// each; the contents scale with the window and keep their proportions.
class WindowView : public QWidget {
 public:
  WindowView(Window& window, Desk& desk);

  Window& window() const { return window_; }
  Desk& desk() const { return desk_; }
  /// Those that the client area shows, in the order of the window's controls.
  const std::vector<ControlWidget*>& widgets() const { return widgets_; }
  ControlWidget* Find(const Control& control) const;
  /// The group that a control belongs to; null if it stands alone.
  ControlGroup* GroupOf(const ControlWidget& widget) const;

  /// Puts the window on the screen, whole with its frame: a dialog centred over its opener and at
  /// its scale, but beside what it is to keep clear of; another one in the opener's place. Without
  /// an opener at a size that suits the screen.
  void Open(const WindowView* opener);
  /// Makes it the window that the player sees and types into, minimised or covered as it may be.
  void BringToFront();
  /// Comes back to the screen after its native window was destroyed from outside.
  void ComeAnew();
  /// The screen has changed or is gone: lies wholly on what there is.
  void FollowScreen(const WindowView* opener);
  /// Carries over what the window's data holds.
  void Sync();
  /// 1 is the design size at 96 dpi.
  double Scale() const;
  void SetScale(double scale);
  /// How the window stands on the screen.
  Extent extent() const { return extent_; }
  /// True if the window stands above the others until it is left.
  bool IsDialog() const { return window_.design().titleBar != TitleBar::Sizable; }

  // What the widgets report.

  /// `first` is the press of the mouse that this click makes a double click with, 0 if it does not.
  void Click(ControlWidget& widget, int first = 0);
  void Hover(ControlWidget& widget);
  void FocusCame(ControlWidget& widget, Qt::FocusReason reason);
  FocusPath& focusPath() { return focusPath_; }
  /// Takes the mark off what the player clicked last.
  void FocusOn(const Control& control);
  /// The player has turned from the mouse to the keyboard or back.
  void ShowFocus();

 protected:
  bool eventFilter(QObject* native, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  std::vector<ControlWidget*> MakeWidgets();
  void MakeGroups();
  QSize DesignPixels(double scale) const;
  void Settle();
  void TakePlaceOf(const WindowView& opener);
  void PlaceOnScreen();
  void PlaceOver(const WindowView& opener);
  void StayAbove(const WindowView& opener);
  QRect SpotOf(const Control* control) const;
  void PutWholeOnScreen();
  QMargins Frame() const;
  void LayOut();
  void ApplyExtent();
  static bool IsOnWayland();
  void NoteMinimising();
  bool MustStayMinimised() const;
  void TellSize();
  void DeliverClick(const std::function<void(Surface&)>& click);
  bool IsQuestion(int key);
  void PressByKey(Key key);

  Window& window_;
  Desk& desk_;
  std::vector<ControlWidget*> widgets_;
  std::vector<ControlGroup*> groups_;
  FocusPath focusPath_;
  Extent extent_ = Extent::Normal;  // as the widget shows it
  bool opening_ = false;
  bool frameIsNew_ = false;  // just opened: its frame is not known yet
  bool pressed_ = false;
};

}  // namespace zelvo
