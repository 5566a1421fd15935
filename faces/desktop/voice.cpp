#include "faces/desktop/voice.h"

#include <QAccessible>
#include <utility>

#include "faces/desktop/control_widget.h"

namespace zelvo {
namespace {

/// What is to be heard of a control that bears news, now.
QString NewsOf(const ControlWidget& widget) {
  return widget.control().VisibleInWindow() ? widget.SpokenName() : QString();
}

bool BearsNews(const ControlWidget& widget) {
  return widget.control().design().speech == Speech::News;
}

}  // namespace

void Voice::Say(const QString& text) {
  if (!text.isEmpty()) speaker_(text);
}

void Voice::TellNews(const std::vector<ControlWidget*>& widgets) {
  for (const ControlWidget* widget : widgets) {
    if (!BearsNews(*widget)) continue;
    const QString news = NewsOf(*widget);
    if (std::exchange(told_[widget], news) != news) Say(news);
  }
}

void Voice::NoteAsTold(const std::vector<ControlWidget*>& widgets) {
  for (const ControlWidget* widget : widgets) {
    if (BearsNews(*widget)) told_[widget] = NewsOf(*widget);
  }
}

void Announcer::Say(const QString& text) {
  constexpr std::size_t kept = 8;
  if (utterances_.size() == kept) utterances_.pop_front();
  utterances_.push_back(std::make_unique<Utterance>(text));
  QAccessibleEvent shown(utterances_.back().get(), QAccessible::ObjectShow);
  tellHelpers_(shown);
}

}  // namespace zelvo
