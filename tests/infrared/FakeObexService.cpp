#include "infrared/FakeObexService.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace quill::test {
namespace {

using Interfaces = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, Interfaces>;

QVariant PathVariant(const QString& path) { return QVariant::fromValue(QDBusObjectPath(path)); }

QString Described(const QVariant& argument) {
  const QString path = argument.value<QDBusObjectPath>().path();
  return path.isEmpty() ? argument.toString() : path;
}

QString FileText(const QString& name) {
  QFile file(name);
  const bool isOpen = file.open(QIODevice::ReadOnly);
  return QFileInfo(name).fileName() + u": "_qs +
         (isOpen ? QString::fromUtf8(file.readAll()) : u"-"_qs);
}

}  // namespace

FakeObexService::FakeObexService(const QDBusConnection& bus) : m_bus(bus) {
  EXPECT_TRUE(m_bus.registerVirtualObject(u"/org/bluez/obex"_qs, this, QDBusConnection::SubPath));
  EXPECT_TRUE(m_bus.registerService(u"org.bluez.obex"_qs));
}

bool FakeObexService::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
  if (message.member() != u"GetAll") {
    const QVariant first = message.arguments().value(0);
    const bool isFile = message.member() == u"SendFile";
    Calls += message.member() + u' ' + (isFile ? FileText(first.toString()) : Described(first));
  }
  if (message.member() == Keeps) return true;
  if (message.member() == Refuses)
    return m_bus.send(message.createErrorReply(u"org.bluez.obex.Error.Failed"_qs, u"no"_qs));
  Reply(message);
  return true;
}

void FakeObexService::Reply(const QDBusMessage& message) {
  const QVariantList answer = Answer(message);
  m_bus.send(message.createReply(answer));
  if (message.member() == u"SendFile" && Sent) Sent(Described(answer.first()));
}

QVariantList FakeObexService::Answer(const QDBusMessage& message) {
  const QString& member = message.member();
  if (member == u"CreateSession") return {PathVariant(u"/org/bluez/obex/client/session0"_qs)};
  if (member == u"SendFile") {
    const QString path = message.path() + u"/transfer%1"_qs.arg(m_transfers++);
    return {PathVariant(path), QVariantMap{{u"Status"_qs, u"queued"_qs}}};
  }
  if (member == u"GetAll") return {Objects.value(message.path())};
  if (member == u"RegisterAgent") {
    Agent = Described(message.arguments().value(0));
    m_program = message.service();
  }
  if (member == u"UnregisterAgent") Agent.clear();
  return {};
}

void FakeObexService::SetStatus(const QString& transfer, const QString& status) {
  QDBusMessage signal = QDBusMessage::createSignal(transfer, u"org.freedesktop.DBus.Properties"_qs,
                                                   u"PropertiesChanged"_qs);
  signal << u"org.bluez.obex.Transfer1"_qs << QVariantMap{{u"Status"_qs, status}} << QStringList();
  m_bus.send(signal);
}

void FakeObexService::Push(const QString& transfer, const QVariantMap& properties) {
  Objects.insert(transfer, properties);
  QDBusMessage call = QDBusMessage::createMethodCall(m_program, Agent, u"org.bluez.obex.Agent1"_qs,
                                                     u"AuthorizePush"_qs);
  call << PathVariant(transfer);
  auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    const QDBusMessage reply = watcher->reply();
    const bool isError = reply.type() == QDBusMessage::ErrorMessage;
    Answers += isError ? reply.errorName() : reply.arguments().value(0).toString();
    watcher->deleteLater();
  });
}

void FakeObexService::CallAgent(const QString& member) {
  m_bus.asyncCall(
      QDBusMessage::createMethodCall(m_program, Agent, u"org.bluez.obex.Agent1"_qs, member));
}

FakeBluetooth::FakeBluetooth(const QDBusConnection& bus) {
  qDBusRegisterMetaType<Interfaces>();
  qDBusRegisterMetaType<ManagedObjects>();
  QDBusConnection connection = bus;
  EXPECT_TRUE(connection.registerVirtualObject(u"/"_qs, this));
  EXPECT_TRUE(connection.registerService(u"org.bluez"_qs));
}

bool FakeBluetooth::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
  if (message.member() != u"GetManagedObjects") return false;
  return connection.send(message.createReply(QVariant::fromValue(Devices)));
}

void FakeBluetooth::Add(const QString& address, const QString& alias, const QStringList& services) {
  const QDBusObjectPath path(u"/org/bluez/hci0/dev%1"_qs.arg(Devices.size()));
  Devices[path] = {{u"org.bluez.Device1"_qs,
                    {{u"Address"_qs, address}, {u"Alias"_qs, alias}, {u"UUIDs"_qs, services}}}};
}

}  // namespace quill::test
