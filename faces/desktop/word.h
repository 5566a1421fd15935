#pragma once

#include <QLabel>
#include <QTimer>

namespace zelvo {

/// A word on what a command has done where nothing else shows it: it is seen at the foot of a
/// window for as long as it takes to read it, and takes no click.
class Word : public QLabel {
 public:
  /// The name of the one that a window shows.
  static constexpr const char* name = "word";

  Word(const QString& text, QWidget* window);

 private:
  void Stand();
  bool eventFilter(QObject* object, QEvent* event) override;

  QTimer gone_;
};

}  // namespace zelvo
