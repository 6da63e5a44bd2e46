#include "infrared/ObexBus.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>

namespace quill::obexbus {

void CallLater(const QDBusConnection& bus, const Call& call, QObject& context, const Reply& reply) {
  QDBusMessage message = QDBusMessage::createMethodCall(QString::fromLatin1(kService), call.Path,
                                                        call.Interface, call.Member);
  message.setArguments(call.Arguments);
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, kPatience), &context);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context, [watcher, reply] {
    watcher->deleteLater();
    reply(watcher->reply());
  });
}

bool IsError(const QDBusMessage& reply) { return reply.type() == QDBusMessage::ErrorMessage; }

QString PathOf(const QDBusMessage& reply) {
  return reply.arguments().value(0).value<QDBusObjectPath>().path();
}

QVariantMap MapOf(const QVariant& argument) { return qdbus_cast<QVariantMap>(argument); }

Call GetAll(const QString& path, const char* interface) {
  return {path,
          QString::fromLatin1(kProperties),
          QStringLiteral("GetAll"),
          {QString::fromLatin1(interface)}};
}

}  // namespace quill::obexbus
