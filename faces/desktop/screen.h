#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "faces/desktop/desk.h"
#include "faces/desktop/lost_window.h"
#include "faces/desktop/window_view.h"

class QScreen;

namespace zelvo {

/// The game's windows on the screen, as its data has them.
class Screen final : public QObject, public Desk {
 public:
  Screen(Gate& gate, const QString& pictureFolder, Voice::Speaker speaker, Helpers helpers);
  ~Screen() override;

  /// Another game comes in the place of the one whose windows are shown. They stay until it has
  /// shown which it has; then it hears of the size that each has on the screen.
  void FollowAnew();
  /// Opens and closes windows and shows in them what the game's data holds.
  void Sync();
  /// Called whenever they show that.
  std::function<void()> whenSynced;
  void CloseAll();

  /// The window's picture on the screen; null while it has never been shown.
  WindowView* ViewOf(const Window& window) const;
  WindowView* Front() const override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void TellExtents(Surface& surface);
  void Draw(Surface& surface);
  void OpenAndCloseWindows(Surface& surface);
  bool IsOpen(const WindowView* view) const;
  void Watch(const QScreen* screen);
  void FollowScreens();
  void LoseWindow(WId id);

  std::map<const Window*, std::unique_ptr<WindowView>> views_;
  std::vector<WindowView*> open_;  // on the screen
  int followed_ = 0;               // of the times that the game brought a window to the front
  bool extentsTold_ = false;
  bool syncing_ = false;
  bool syncAgain_ = false;
  LostWindowWatch lostWindows_{[this](WId id) {
    const auto lose = [this, id] { LoseWindow(id); };
    QMetaObject::invokeMethod(this, lose, Qt::QueuedConnection);
  }};
};

}  // namespace zelvo
