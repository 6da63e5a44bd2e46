// Answers the desktop's OBEX service when a device pushes over Bluetooth. Only one program at a
// time may do so; where another one does, it gets the cards and opens them by their kind.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>

#include <memory>
#include <vector>

#include "infrared/ObexBluetoothPush.h"
#include "infrared/ObexTransferWatch.h"
#include "infrared/ObexTransport.h"

namespace quill {

class ObexBluetoothAgent : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.bluez.obex.Agent1")

 public:
  explicit ObexBluetoothAgent(const QDBusConnection& bus);
  ~ObexBluetoothAgent() override;

  // The host outlives the listening. False when the bus does not take the agent; whether the
  // service does, comes later and goes to the log.
  bool Listen(ObexHost& host);
  // Pushes that are asked about, or are coming, stay.
  void StopLettingIn();
  void Stop();
  // Whether something that was wanted is coming.
  bool IsBusy() const;

 public Q_SLOTS:
  QString AuthorizePush(const QDBusObjectPath& transfer);
  void Cancel();
  void Release();

 private:
  void Retire(const ObexBluetoothPush& push);

  QDBusConnection m_bus;
  ObexTransferWatch m_watch;
  ObexHost* m_host = nullptr;  // null while it does not listen
  std::vector<std::unique_ptr<ObexBluetoothPush>> m_pushes;
  std::vector<std::unique_ptr<ObexBluetoothPush>> m_retired;  // until no call of theirs is going on
};

}  // namespace quill
