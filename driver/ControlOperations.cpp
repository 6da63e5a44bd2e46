// controls, get, set, click, drop, focus.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QPointer>

#include "driver/Arguments.h"
#include "driver/ControlChange.h"
#include "driver/ControlState.h"
#include "driver/Operations.h"
#include "driver/Pen.h"
#include "driver/PopupSteps.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/ui/Screen.h"

namespace quill::driver {

namespace {

// Where the controls of a window lie: in the view when only the frame is open.
QPoint ClientOrigin(CWindow& window) {
  QWidget* view = FindView();
  if (window.Kind() == WindowKind::Frame && view != nullptr)
    return OnScreen({view, view->rect()}, QPoint(0, 0));
  return OnScreen(ClientOf(window), QPoint(0, 0));
}

QJsonObject DescribeControl(CWindow& window, int id, QWidget& control) {
  const QPoint at = OnScreen({&control, control.rect()}, QPoint(0, 0)) - ClientOrigin(window);
  return ControlJson(id, control, QRect(at, control.size()));
}

Answer Controls(const QJsonObject&, OperationContext&) {
  QJsonArray array;
  if (CWindow* window = FindTopmost())
    for (const auto& [id, control] : window->Controls())
      array.append(DescribeControl(*window, id, *control));
  return Result(u"controls", array);
}

Answer Get(const QJsonObject& arguments, OperationContext&) {
  const std::optional<int> id = WholeNumber(arguments, u"id");
  if (!id) return Refusal(kMalformed);
  CWindow* window = FindTopmost();
  QWidget* control = window ? window->Control(*id) : nullptr;
  if (control == nullptr) return Refusal(kUnknown);
  return Result(u"control", DescribeControl(*window, *id, *control));
}

using ControlAction =
    std::function<Answer(QWidget& control, const QJsonObject& arguments, Steps& steps)>;

// An operation on a control that a user could reach just now.
Handler OnControl(const ControlAction& action) {
  return [action](const QJsonObject& arguments, OperationContext& context) {
    const std::optional<int> id = WholeNumber(arguments, u"id");
    if (!id) return Refusal(kMalformed);
    const CWindow* window = FindTopmost();
    QWidget* control = window ? window->Control(*id) : nullptr;
    if (control == nullptr) return Refusal(kUnknown);
    if (!control->isVisible()) return Refusal(kHidden);
    if (!control->isEnabled()) return Refusal(kDisabled);
    return action(*control, arguments, context.Steps);
  };
}

// One that a pen that is down or a menu that is open would keep its user from.
Handler WhenIdle(const Handler& handler) {
  return [handler](const QJsonObject& arguments, OperationContext& context) {
    if (context.Pen.IsDown() || FindPopup() != nullptr) return Refusal(kBusy);
    return handler(arguments, context);
  };
}

Answer Set(QWidget& control, const QJsonObject& arguments, Steps& steps) {
  const auto change = PrepareChange(control, arguments);
  if (!change) return Refusal(kMalformed);
  steps.Add([guard = QPointer(&control), change = *change] {
    if (guard) change();
  });
  return Done();
}

Answer Click(QWidget& control, const QJsonObject&, Steps& steps) {
  auto* button = qobject_cast<QAbstractButton*>(&control);
  if (button == nullptr) return Refusal(kUnknown);
  steps.Add([target = QPointer(button)] {
    if (!target) return;
    if (target->focusPolicy() & Qt::ClickFocus) target->setFocus(Qt::MouseFocusReason);
    target->click();
  });
  return Done();
}

Answer Drop(QWidget& control, const QJsonObject&, Steps& steps) {
  auto* list = qobject_cast<QComboBox*>(&control);
  if (list == nullptr) return Refusal(kUnknown);
  AddDismissal(steps);
  steps.Add([target = QPointer(list)] {
    if (target) target->showPopup();
  });
  return Done();
}

Answer Focus(const QJsonObject&, OperationContext&) {
  const CWindow* window = FindTopmost();
  const QWidget* focused = QApplication::focusWidget();
  QJsonValue found;
  if (window && focused) {
    for (const auto& [id, control] : window->Controls())
      if (control == focused || control->isAncestorOf(focused))
        found = QJsonObject{{QStringLiteral("id"), id},
                            {QStringLiteral("selected"), SelectedText(*control)}};
  }
  return Result(u"focus", found);
}

}  // namespace

OperationTable ControlOperations() {
  return {
      {u"controls", Controls},
      {u"get", Get},
      {u"set", WhenIdle(OnControl(Set))},
      {u"click", WhenIdle(OnControl(Click))},
      {u"drop", OnControl(Drop)},
      {u"focus", Focus},
  };
}

}  // namespace quill::driver
