#pragma once

#include <QObject>
#include <QString>
#include <array>
#include <functional>
#include <map>
#include <vector>

namespace zelvo {

class ControlWidget;

/// What is said to those who do not see the windows, without their going anywhere.
class Voice {
 public:
  using Speaker = std::function<void(const QString&)>;

  explicit Voice(Speaker speaker) : speaker_(std::move(speaker)) {}

  void Say(const QString& text);
  /// Says what is news on the controls: once, when it changes or comes into sight.
  void TellNews(const std::vector<ControlWidget*>& widgets);
  /// Takes what the controls show for told.
  void NoteAsTold(const std::vector<ControlWidget*>& widgets);

 private:
  Speaker speaker_;
  std::map<const ControlWidget*, QString> told_;
};

/// Something that is said: a screen reader speaks it as it comes up, wherever the focus is.
class Utterance : public QObject {
 public:
  QString text;
};

/// Hands what is to be said to the screen readers that listen.
class Announcer {
 public:
  void Say(const QString& text);

 private:
  // A reader takes its time to ask for a text, so that none is replaced at once.
  std::array<Utterance, 8> utterances_;
  std::size_t next_ = 0;
};

}  // namespace zelvo
