// The desktop's OBEX service and its Bluetooth, without a radio: what they are asked is remembered,
// and a test plays the devices on the other side.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace quill::test {

class FakeObexService : public QDBusVirtualObject {
 public:
  explicit FakeObexService(const QDBusConnection& bus);

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  void SetStatus(const QString& transfer, const QString& status);
  // A device begins to push: calls the agent, which answers with a file or an error.
  void Push(const QString& transfer, const QVariantMap& properties);
  void CallAgent(const QString& member);

  QStringList Calls;  // "CreateSession 00:11:..", "SendFile contact-1.vcf: BEGIN:VCARD...", ...
  QMap<QString, QVariantMap> Objects;  // the properties of transfers and sessions, by their paths
  QString Refuses;                     // the call of this name fails
  QString Keeps;                       // the call of this name is not answered
  std::function<void(const QString& transfer)> Sent;  // after the answer to SendFile
  QString Agent;        // where the agent is; empty when there is none
  QStringList Answers;  // of the agent: a path, or the error's name

 private:
  QVariantList Answer(const QDBusMessage& message);
  void Reply(const QDBusMessage& message);

  QDBusConnection m_bus;
  QString m_program;  // the agent's name on the bus
  int m_transfers = 0;
};

// The system's side: the devices that are known.
class FakeBluetooth : public QDBusVirtualObject {
 public:
  explicit FakeBluetooth(const QDBusConnection& bus);
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  void Add(const QString& address, const QString& alias, const QStringList& services);
  QMap<QDBusObjectPath, QMap<QString, QVariantMap>> Devices;
};

}  // namespace quill::test
