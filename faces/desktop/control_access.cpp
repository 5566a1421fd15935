#include "faces/desktop/control_access.h"

#include <QAccessibleWidget>

#include "faces/desktop/control_widget.h"

namespace zelvo {
namespace {

QAccessible::Role RoleOf(const ControlWidget& widget) {
  switch (widget.control().kind()) {
    case Kind::CheckBox:
      return QAccessible::CheckBox;
    case Kind::Option:
      return QAccessible::RadioButton;
    case Kind::Button:
      return QAccessible::Button;
    case Kind::Panel:
      return QAccessible::Grouping;
    default:
      break;
  }
  if (widget.IsClickable()) return QAccessible::Button;
  return widget.control().kind() == Kind::Image ? QAccessible::Graphic : QAccessible::StaticText;
}

/// Asked only when a helper is there, so that a game without one pays nothing.
class ControlAccess : public QAccessibleWidget {
 public:
  explicit ControlAccess(ControlWidget& widget)
      : QAccessibleWidget(&widget, RoleOf(widget)), widget_(widget) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return widget_.SpokenName();
    return QAccessibleWidget::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const Kind kind = widget_.control().kind();
    state.checkable = kind == Kind::CheckBox || kind == Kind::Option;
    state.checked = widget_.control().Value();
    return state;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget_.IsClickable()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    if (widget_.TakesFocus()) widget_.Press();
  }

 private:
  ControlWidget& widget_;
};

QAccessibleInterface* AccessTo(const QString& /*className*/, QObject* object) {
  auto* widget = dynamic_cast<ControlWidget*>(object);
  return widget == nullptr ? nullptr : new ControlAccess(*widget);  // Qt's registry owns it
}

}  // namespace

void DescribeControlsToHelpers() { QAccessible::installFactory(AccessTo); }

}  // namespace zelvo
