// OBEX over Bluetooth, by the desktop's own OBEX service. Where there is no bus, or no such
// service, it is absent.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <memory>

#include "infrared/ObexBluetoothAgent.h"
#include "infrared/ObexBluetoothSender.h"
#include "infrared/ObexTransport.h"

namespace quill {

class ObexBluetoothTransport : public ObexTransport {
 public:
  // The service is on the session's bus, the devices on the system's. The timers outlive this.
  ObexBluetoothTransport(const QDBusConnection& session, const QDBusConnection& system,
                         Timers& timers);
  ~ObexBluetoothTransport() override;

  // Known a moment after the beginning: the bus is not waited for.
  bool IsPresent() const override { return m_isRunning || m_isActivatable; }
  ObexCarrier Carrier() const override { return ObexCarrier::Bluetooth; }
  // The devices that this one knows and that take pushed objects.
  void Find(const ObexFound& found) override;
  void StopFinding() override;
  void Send(const ObexReceiver& receiver, std::vector<ObexSending> cards,
            const ObexSent& sent) override;
  bool Listen(ObexHost& host) override { return m_agent.Listen(host); }
  void StopLettingIn() override { m_agent.StopLettingIn(); }
  void StopListening() override { m_agent.Stop(); }
  bool IsBusy() const override { return m_agent.IsBusy(); }

 private:
  void LookForService();

  QDBusConnection m_session;
  QDBusConnection m_system;
  QDBusServiceWatcher m_watcher;
  ObexBluetoothSender m_sender;
  ObexBluetoothAgent m_agent;
  QObject* m_search = nullptr;  // while one goes on, the context of its calls; the watcher's child
  bool m_isRunning = false;
  bool m_isActivatable = false;
};

// On the buses of this desktop; opening them takes a moment, so it is meant for after the window's
// first paint. Null without a session bus.
std::unique_ptr<ObexTransport> JoinBluetooth(Timers& timers);

}  // namespace quill
