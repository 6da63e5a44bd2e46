// The desktop's own OBEX service on the session bus, which has the radio: its names, and calls to
// it that do not wait.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

namespace quill::obexbus {

inline constexpr char kService[] = "org.bluez.obex";
inline constexpr char kRoot[] = "/org/bluez/obex";
inline constexpr char kClient[] = "org.bluez.obex.Client1";
inline constexpr char kPush[] = "org.bluez.obex.ObjectPush1";
inline constexpr char kAgents[] = "org.bluez.obex.AgentManager1";
inline constexpr char kTransfer[] = "org.bluez.obex.Transfer1";
inline constexpr char kSession[] = "org.bluez.obex.Session1";
inline constexpr char kRejected[] = "org.bluez.obex.Error.Rejected";
inline constexpr char kProperties[] = "org.freedesktop.DBus.Properties";

inline constexpr int kPatience = 60'000;  // ms, for an answer: the radio has to find the device

struct Call {
  QString Path;
  QString Interface;
  QString Member;
  QVariantList Arguments = {};
};

using Reply = std::function<void(const QDBusMessage& reply)>;

// Calls the service; the reply or the error comes later, or never once the context is gone.
void CallLater(const QDBusConnection& bus, const Call& call, QObject& context, const Reply& reply);
bool IsError(const QDBusMessage& reply);

// The first argument of a reply that is a path, and one that is a map; empty when it is none.
QString PathOf(const QDBusMessage& reply);
QVariantMap MapOf(const QVariant& argument);

// All properties of an object, by one interface of it.
Call GetAll(const QString& path, const char* interface);

}  // namespace quill::obexbus
