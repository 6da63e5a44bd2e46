// key, type: to the widget with the focus.
#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWindow>

#include "driver/Arguments.h"
#include "driver/KeyNames.h"
#include "driver/Operations.h"
#include "driver/Steps.h"
#include "driver/Targets.h"
#include "platform/ui/Screen.h"

namespace quill::driver {

namespace {

// The outer window hands keys to the widget with the focus, as it does with a keyboard's.
void SendKey(QEvent::Type type, const NamedKey& key) {
  const CScreen* screen = FindScreen();
  if (screen == nullptr || screen->window()->windowHandle() == nullptr) return;
  QKeyEvent event(type, key.Key, key.Modifiers, key.Text);
  QCoreApplication::sendEvent(screen->window()->windowHandle(), &event);
}

void Commit(const QString& text) {
  const CScreen* screen = FindScreen();
  QObject* receiver = screen ? screen->window()->focusWidget() : nullptr;
  if (receiver == nullptr) return;
  QInputMethodEvent event;
  event.setCommitString(text);
  QCoreApplication::sendEvent(receiver, &event);
}

void Stroke(OperationContext& context, const NamedKey& key) {
  context.Steps.Add([key] { SendKey(QEvent::KeyPress, key); });
  context.Steps.Add([key] { SendKey(QEvent::KeyRelease, key); });
}

// Other scripts than Latin come out of an input method.
bool IsComposed(QChar character) { return character.unicode() > 0xFF; }

Answer Key(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<QString> name = Text(arguments, u"key");
  if (!name) return Refusal(kMalformed);
  const std::optional<NamedKey> key = ParseKey(*name);
  if (!key) return Refusal(kUnknown);
  Stroke(context, *key);
  return Done();
}

Answer Type(const QJsonObject& arguments, OperationContext& context) {
  const std::optional<QString> text = Text(arguments, u"text");
  if (!text) return Refusal(kMalformed);
  for (qsizetype at = 0; at < text->size();) {
    qsizetype end = at;
    while (end < text->size() && IsComposed(text->at(end))) ++end;
    if (end > at)
      context.Steps.Add([run = text->sliced(at, end - at)] { Commit(run); });
    else
      Stroke(context, KeyOf(text->at(end++)));
    at = end;
  }
  return Done();
}

}  // namespace

OperationTable KeyOperations() { return {{u"key", Key}, {u"type", Type}}; }

}  // namespace quill::driver
