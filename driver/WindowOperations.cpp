// windows, message, answer, ok, cancel, resize.
#include <QAbstractButton>
#include <QJsonArray>
#include <QLabel>
#include <QPointer>

#include <array>

#include "driver/Arguments.h"
#include "driver/ClassName.h"
#include "driver/Geometry.h"
#include "driver/Operations.h"
#include "driver/PopupSteps.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"

namespace quill::driver {

namespace {

struct ButtonName {
  int Id;
  QStringView Name;
};
constexpr std::array kMessageButtons = {
    ButtonName{kResultOK, u"OK"},
    ButtonName{kResultYes, u"Yes"},
    ButtonName{kResultNo, u"No"},
    ButtonName{kResultCancel, u"Cancel"},
};

QString KindName(WindowKind kind) {
  switch (kind) {
    case WindowKind::Frame:
      return QStringLiteral("frame");
    case WindowKind::Sheet:
      return QStringLiteral("sheet");
    case WindowKind::Dialog:
      return QStringLiteral("dialog");
    case WindowKind::Message:
      return QStringLiteral("message");
    case WindowKind::Card:
      return QStringLiteral("card");
  }
  Q_UNREACHABLE();
}

QJsonObject WindowJson(CWindow& window) {
  QJsonObject object = RectangleJson(OnScreen({&window, window.rect()}));
  object.insert(u"class", ClassName(window));
  object.insert(u"title", window.Caption());
  object.insert(u"kind", KindName(window.Kind()));
  return object;
}

Answer Windows(const QJsonObject&, OperationContext&) {
  QJsonArray array;
  if (const CScreen* screen = FindScreen())
    for (CWindow* window : screen->Windows()) array.append(WindowJson(*window));
  return Result(u"windows", array);
}

const CWindow* FindMessage() {
  const CWindow* top = FindTopmost();
  return top && top->Kind() == WindowKind::Message ? top : nullptr;
}

QAbstractButton* FindButton(const CWindow& message, QStringView name) {
  for (const ButtonName& button : kMessageButtons)
    if (button.Name == name) return qobject_cast<QAbstractButton*>(message.Control(button.Id));
  return nullptr;
}

QJsonObject MessageJson(const CWindow& message) {
  QJsonArray buttons;
  for (const ButtonName& button : kMessageButtons)
    if (FindButton(message, button.Name)) buttons.append(button.Name.toString());
  const auto* text = qobject_cast<QLabel*>(message.Control(MessageBoxIds::kText));
  const QWidget* icon = message.Control(MessageBoxIds::kIcon);
  return {
      {QStringLiteral("caption"), message.Caption()},
      {QStringLiteral("text"), text ? text->text() : QString()},
      {QStringLiteral("buttons"), buttons},
      {QStringLiteral("icon"), icon ? icon->accessibleName().toLower() : QStringLiteral("none")},
  };
}

Answer Message(const QJsonObject&, OperationContext&) {
  const CWindow* message = FindMessage();
  return Result(u"message", message ? QJsonValue(MessageJson(*message)) : QJsonValue());
}

Answer AnswerMessage(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<QString> name = Text(arguments, u"button");
  if (!name) return Refusal(kMalformed);
  const CWindow* message = FindMessage();
  QAbstractButton* button = message ? FindButton(*message, *name) : nullptr;
  if (button == nullptr) return Refusal(kUnknown);
  AddDismissal(context.Steps);
  context.Steps.Add([target = QPointer(button)] {
    if (target) target->click();
  });
  return Done();
}

Answer Ok(const QJsonObject&, OperationContext& context) {
  CWindow* window = FindTopmost();
  if (window == nullptr || !window->HasOK()) return Refusal(kUnknown);
  AddDismissal(context.Steps);
  context.Steps.Add([target = QPointer(window)] {
    if (target) target->OnOK();
  });
  return Done();
}

Answer Cancel(const QJsonObject&, OperationContext& context) {
  CWindow* window = FindTopmost();
  if (window == nullptr) return Refusal(kUnknown);
  AddDismissal(context.Steps);
  context.Steps.Add([target = QPointer(window)] {
    if (target) target->OnCancel();
  });
  return Done();
}

Answer Resize(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<int> width = WholeNumber(arguments, u"w");
  const std::optional<int> height = WholeNumber(arguments, u"h");
  if (!width || !height || *width < 1 || *height < 1) return Refusal(kMalformed);
  CWindow* window = FindTopmost();
  const bool sizable =
      window && (window->Kind() == WindowKind::Dialog || window->Kind() == WindowKind::Sheet);
  if (!sizable) return Refusal(kUnknown);
  const QSize around = window->size() - ClientOf(*window).Client.size();
  context.Steps.Add([target = QPointer(window), size = QSize(*width, *height) + around] {
    if (target) target->resize(size);
  });
  return Done();
}

}  // namespace

OperationTable WindowOperations() {
  return {
      {u"windows", Windows}, {u"message", Message}, {u"answer", AnswerMessage},
      {u"ok", Ok},           {u"cancel", Cancel},   {u"resize", Resize},
  };
}

}  // namespace quill::driver
