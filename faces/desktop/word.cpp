#include "faces/desktop/word.h"

#include <QEvent>
#include <algorithm>

#include "faces/desktop/drawing.h"
#include "surface/colors.h"

namespace zelvo {

Word::Word(const QString& text, QWidget* window) : QLabel(text, window) {
  constexpr int shortest = 3000;  // milliseconds
  constexpr int perLetter = 60;   // milliseconds, at an easy pace of reading
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignCenter);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setMargin(fontMetrics().height() / 2);
  setAutoFillBackground(true);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, ToColor(colors::night));
  colours.setColor(QPalette::WindowText, Qt::white);
  setPalette(colours);
  window->installEventFilter(this);
  Stand();
  show();
  connect(&gone_, &QTimer::timeout, this, &QObject::deleteLater);
  gone_.setSingleShot(true);
  gone_.start(std::max(shortest, perLetter * static_cast<int>(text.size())));
}

/// In the middle above the foot of the window, no wider than that.
void Word::Stand() {
  const QRect room = parentWidget()->rect();
  const int width = std::min(fontMetrics().horizontalAdvance(text()) + 3 * margin(), room.width());
  resize(width, heightForWidth(width));
  move((room.width() - width) / 2, room.height() - height() - margin());
  raise();
}

bool Word::eventFilter(QObject* /*object*/, QEvent* event) {
  if (event->type() == QEvent::Resize) Stand();
  return false;
}

}  // namespace zelvo
