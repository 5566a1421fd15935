#include "faces/desktop/control_access.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <algorithm>

#include "faces/desktop/window_view.h"
#include "surface/speech.h"

// Qt's registry owns the interfaces that are made here. They are asked only when a helper is there,
// so that a game without one pays nothing.

namespace zelvo {
namespace {

/// The parts of something that helpers see as one thing.
class Parts {
 public:
  virtual ~Parts() = default;
  virtual std::vector<QObject*> All() const = 0;

  QAccessibleInterface* At(int index) const {
    const auto all = All();
    const bool there = index >= 0 && index < static_cast<int>(all.size());
    return there ? QAccessible::queryAccessibleInterface(all[index]) : nullptr;
  }
  int IndexOf(const QAccessibleInterface* part) const {
    const auto all = All();
    const auto found = std::find(all.begin(), all.end(), part->object());
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
  }
};

/// A bare frame or ground says nothing.
bool IsDecoration(const ControlWidget& widget) {
  const Kind kind = widget.control().kind();
  return kind == Kind::Panel && widget.control().Caption.empty();
}

class WindowParts : public Parts {
 public:
  explicit WindowParts(const WindowView& view) : view_(view) {}

  /// Controls and groups as they were placed.
  std::vector<QObject*> All() const override {
    std::vector<QObject*> all;
    for (ControlWidget* widget : view_.widgets()) {
      if (IsDecoration(*widget)) continue;
      QObject* part = view_.GroupOf(*widget);
      if (part == nullptr) part = widget;
      if (std::find(all.begin(), all.end(), part) == all.end()) all.push_back(part);
    }
    return all;
  }

 private:
  const WindowView& view_;
};

class WindowAccess : public QAccessibleWidget {
 public:
  explicit WindowAccess(WindowView& view)
      : QAccessibleWidget(&view, view.IsDialog() ? QAccessible::Dialog : QAccessible::Window),
        view_(view),
        parts_(view) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return QString::fromStdString(SpokenName(view_.window()));
    // Readers tell it when a dialog comes up.
    const bool told = kind == QAccessible::Description && view_.IsDialog();
    if (told) return QString::fromStdString(SpokenNews(view_.window()));
    return QAccessibleWidget::text(kind);
  }
  int childCount() const override { return static_cast<int>(parts_.All().size()); }
  QAccessibleInterface* child(int index) const override { return parts_.At(index); }
  int indexOfChild(const QAccessibleInterface* part) const override { return parts_.IndexOf(part); }

 private:
  WindowView& view_;
  WindowParts parts_;
};

class GroupParts : public Parts {
 public:
  explicit GroupParts(const ControlGroup& group) : group_(group) {}
  std::vector<QObject*> All() const override {
    return {group_.members.begin(), group_.members.end()};
  }

 private:
  const ControlGroup& group_;
};

class GroupAccess : public QAccessibleObject {
 public:
  explicit GroupAccess(ControlGroup& group)
      : QAccessibleObject(&group), group_(group), parts_(group) {}

  QAccessible::Role role() const override { return QAccessible::Grouping; }
  QAccessible::State state() const override { return {}; }
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return {};
    const std::string_view name = group_.group.name;
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
  }
  QRect rect() const override {
    QRect all;
    for (const ControlWidget* member : group_.members) {
      all |= QRect(member->mapToGlobal(QPoint()), member->size());
    }
    return all;
  }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(group_.parent());
  }
  int childCount() const override { return static_cast<int>(group_.members.size()); }
  QAccessibleInterface* child(int index) const override { return parts_.At(index); }
  int indexOfChild(const QAccessibleInterface* part) const override { return parts_.IndexOf(part); }

 private:
  ControlGroup& group_;
  GroupParts parts_;
};

class UtteranceAccess : public QAccessibleObject {
 public:
  explicit UtteranceAccess(Utterance& utterance)
      : QAccessibleObject(&utterance), utterance_(utterance) {}

  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? utterance_.text : QString();
  }
  // Of no window: with a dialog's own, readers would tell the dialog again.
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(qApp);
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface* /*part*/) const override { return -1; }

 private:
  Utterance& utterance_;
};

QAccessible::Role RoleOf(const ControlWidget& widget) {
  switch (widget.control().kind()) {
    case Kind::CheckBox:
      return QAccessible::CheckBox;
    case Kind::Option:
      return QAccessible::RadioButton;
    case Kind::Button:
      return QAccessible::Button;
    case Kind::TextBox:
      return QAccessible::Grouping;
    case Kind::Image:
      if (WalkedGroup(widget.control()) != nullptr) return QAccessible::ListItem;
      return widget.control().IsClickable() ? QAccessible::Button : QAccessible::Graphic;
    default:
      if (widget.control().IsClickable()) return QAccessible::Button;
      // Readers gather the labels of a dialog on their own, but only some of them.
      return widget.control().design().speech == Speech::News ? QAccessible::Paragraph
                                                              : QAccessible::StaticText;
  }
}

class ControlAccess : public QAccessibleWidget {
 public:
  explicit ControlAccess(ControlWidget& widget)
      : QAccessibleWidget(&widget, RoleOf(widget)), widget_(widget) {}

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    // The text within has the name.
    return widget_.control().kind() == Kind::TextBox ? QString() : widget_.SpokenName();
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const Kind kind = widget_.control().kind();
    state.checkable = kind == Kind::CheckBox || kind == Kind::Option;
    state.checked = widget_.control().Value();
    return state;
  }

  QAccessibleInterface* parent() const override {
    ControlGroup* group = widget_.view().GroupOf(widget_);
    return group != nullptr ? QAccessible::queryAccessibleInterface(group)
                            : QAccessibleWidget::parent();
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget_.control().IsClickable()) names.prepend(pressAction());
    return names;
  }

  /// The press may run a whole dialog. The helper is not to wait for its end.
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    QMetaObject::invokeMethod(
        &widget_, [&widget = widget_] { widget.Press(); }, Qt::QueuedConnection);
  }

 private:
  ControlWidget& widget_;
};

QAccessibleInterface* AccessTo(const QString& /*className*/, QObject* object) {
  if (auto* widget = dynamic_cast<ControlWidget*>(object)) return new ControlAccess(*widget);
  if (auto* view = dynamic_cast<WindowView*>(object)) return new WindowAccess(*view);
  if (auto* group = dynamic_cast<ControlGroup*>(object)) return new GroupAccess(*group);
  if (auto* utterance = dynamic_cast<Utterance*>(object)) return new UtteranceAccess(*utterance);
  return nullptr;
}

}  // namespace

void DescribeControlsToHelpers() { QAccessible::installFactory(AccessTo); }

}  // namespace zelvo
