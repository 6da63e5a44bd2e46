// Pushes cards to one device over Bluetooth, in one session, by the desktop's OBEX service.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTemporaryDir>

#include <memory>
#include <vector>

#include "infrared/ObexBus.h"
#include "infrared/ObexTransferWatch.h"
#include "infrared/ObexTransport.h"
#include "platform/Timers.h"

namespace quill {

class ObexBluetoothSender : public QObject, private TimerTarget {
 public:
  // For one card: the device's user may be asked first.
  static constexpr int kCardPatience = 150'000;  // ms

  // The timers outlive this.
  ObexBluetoothSender(const QDBusConnection& bus, Timers& timers);
  ~ObexBluetoothSender() override;

  // What was being sent before ends without a call.
  void Send(const QString& address, std::vector<ObexSending> cards, const ObexSent& sent);

 private:
  struct Job;

  void OnTimer(int id) override;
  void Ask(const obexbus::Call& call, void (ObexBluetoothSender::*reply)(const QDBusMessage&));
  void SessionMade(const QDBusMessage& reply);
  void Next();
  void Push(const QString& file);
  void Pushed(const QDBusMessage& reply);
  void CardEnded(ObexOutcome outcome);
  void Finish();
  void Leave();
  void Drop();

  QDBusConnection m_bus;
  Timers& m_timers;
  ObexTransferWatch m_watch;
  std::unique_ptr<Job> m_job;  // also the context of its calls: they end with it
};

}  // namespace quill
