#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "tools/gallery/desktop_game.h"

namespace zelvo {

/// Someone who plays at the windows, also at those that a deed of theirs opens.
class Player : public DesktopGame {
 protected:
  void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QCoreApplication::processEvents();  // the window that came up last becomes the active one
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr) focus = QApplication::activeWindow();
    ASSERT_NE(focus, nullptr);
    QTest::keyClick(focus, key, modifiers);
  }

  /// Does something once a condition holds, from the event loop that then runs.
  template <class Condition, class Action>
  void Once(Condition condition, Action action) {
    auto* look = new QTimer(&session);
    look->setObjectName("look");
    QObject::connect(look, &QTimer::timeout, &session, [look, condition, action] {
      if (!condition()) return;
      look->stop();
      action();
    });
    look->start(0);
  }

  template <class Action>
  void OnceShown(Window& window, Action action) {
    Once(
        [this, &window] { return game.InputWindow() == &window && platform.screen.ViewOf(window); },
        action);
  }
};

}  // namespace zelvo
