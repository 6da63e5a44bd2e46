// accessible: what assistive technology is told of a window.
#include <QAccessible>
#include <QJsonArray>
#include <QMetaEnum>

#include <array>
#include <utility>

#include "driver/Geometry.h"
#include "driver/Operations.h"
#include "driver/Targets.h"
#include "platform/ui/Screen.h"

namespace quill::driver {

namespace {

QJsonArray StateNames(const QAccessible::State& state) {
  using Name = std::pair<bool, QStringView>;
  const std::array names = {
      Name{bool(state.disabled), u"disabled"}, Name{bool(state.focusable), u"focusable"},
      Name{bool(state.focused), u"focused"},   Name{bool(state.selectable), u"selectable"},
      Name{bool(state.selected), u"selected"}, Name{bool(state.checkable), u"checkable"},
      Name{bool(state.checked), u"checked"},   Name{bool(state.pressed), u"pressed"},
      Name{bool(state.editable), u"editable"}, Name{bool(state.readOnly), u"readonly"},
      Name{bool(state.hasPopup), u"haspopup"}, Name{bool(state.expanded), u"expanded"},
      Name{bool(state.modal), u"modal"},       Name{bool(state.offscreen), u"offscreen"},
  };
  QJsonArray array;
  for (const auto& [isSet, name] : names)
    if (isSet) array.append(name.toString());
  return array;
}

QJsonArray ActionNames(QAccessibleInterface& interface) {
  QAccessibleActionInterface* const actions = interface.actionInterface();
  return actions ? QJsonArray::fromStringList(actions->actionNames()) : QJsonArray();
}

QString RoleName(QAccessible::Role role) {
  const char* const name = QMetaEnum::fromType<QAccessible::Role>().valueToKey(role);
  return QString::fromLatin1(name);
}

// Windows that are not shown are left out, and so is all below them.
QJsonObject TreeOf(QAccessibleInterface& interface, QPoint origin) {
  QJsonObject object = RectangleJson(interface.rect().translated(-origin));
  object.insert(u"role", RoleName(interface.role()));
  object.insert(u"name", interface.text(QAccessible::Name));
  object.insert(u"value", interface.text(QAccessible::Value));
  object.insert(u"state", StateNames(interface.state()));
  object.insert(u"actions", ActionNames(interface));
  QJsonArray children;
  for (int i = 0; i < interface.childCount(); ++i) {
    QAccessibleInterface* const child = interface.child(i);
    if (child && child->isValid() && !child->state().invisible)
      children.append(TreeOf(*child, origin));
  }
  object.insert(u"children", children);
  return object;
}

Answer Accessible(const QJsonObject& arguments, OperationContext&) {
  const std::optional<Target> target = FindTarget(arguments.value(u"on"));
  if (!target) return RefuseTarget(arguments.value(u"on"));
  QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(target->Window);
  if (interface == nullptr) return Refusal(kUnknown);
  return Result(u"accessible", TreeOf(*interface, FindScreen()->mapToGlobal(QPoint(0, 0))));
}

}  // namespace

OperationTable AccessibleOperations() { return {{u"accessible", Accessible}}; }

}  // namespace quill::driver
