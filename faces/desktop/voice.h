#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class QAccessibleEvent;

namespace zelvo {

/// Passes on what screen readers and other helpers are to know.
using Helpers = std::function<void(QAccessibleEvent&)>;

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
  explicit Utterance(QString theText) : text(std::move(theText)) {}
  const QString text;
};

/// Hands what is to be said to the screen readers that listen.
class Announcer {
 public:
  explicit Announcer(Helpers helpers) : tellHelpers_(std::move(helpers)) {}
  void Say(const QString& text);

 private:
  Helpers tellHelpers_;
  // A reader takes its time to ask for a text, so they stay for a while. It may remember what it
  // was told, so each text is a thing of its own.
  std::deque<std::unique_ptr<Utterance>> utterances_;
};

}  // namespace zelvo
