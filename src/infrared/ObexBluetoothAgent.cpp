#include "infrared/ObexBluetoothAgent.h"

#include <QLoggingCategory>

#include <algorithm>
#include <utility>

#include "infrared/ObexBus.h"

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logBluetooth, "quill.infrared")

QString AgentPath() { return QStringLiteral("/org/fennick/Quill/ObexAgent"); }

obexbus::Call AgentCall(const char* member) {
  return {QString::fromLatin1(obexbus::kRoot),
          QString::fromLatin1(obexbus::kAgents),
          QString::fromLatin1(member),
          {QVariant::fromValue(QDBusObjectPath(AgentPath()))}};
}

}  // namespace

ObexBluetoothAgent::ObexBluetoothAgent(const QDBusConnection& bus) : m_bus(bus), m_watch(bus) {}

ObexBluetoothAgent::~ObexBluetoothAgent() { Stop(); }

bool ObexBluetoothAgent::Listen(ObexHost& host) {
  Stop();
  if (!m_bus.registerObject(AgentPath(), this, QDBusConnection::ExportAllSlots)) return false;
  m_host = &host;
  obexbus::CallLater(m_bus, AgentCall("RegisterAgent"), *this, [](const QDBusMessage& reply) {
    if (obexbus::IsError(reply)) {
      qCInfo(logBluetooth) << "Bluetooth pushes go to another program:" << reply.errorName();
    }
  });
  return true;
}

void ObexBluetoothAgent::StopLettingIn() {
  if (!std::exchange(m_host, nullptr)) return;
  obexbus::CallLater(m_bus, AgentCall("UnregisterAgent"), *this, [](const QDBusMessage&) {
    // When the service is gone, so is the agent.
  });
}

void ObexBluetoothAgent::Stop() {
  StopLettingIn();
  m_bus.unregisterObject(AgentPath());
  while (!m_pushes.empty()) {
    m_pushes.back()->Close();
    Retire(*m_pushes.back());
  }
}

bool ObexBluetoothAgent::IsBusy() const {
  return std::any_of(m_pushes.begin(), m_pushes.end(),
                     [](const auto& push) { return push->IsComing(); });
}

QString ObexBluetoothAgent::AuthorizePush(const QDBusObjectPath& transfer) {
  if (!m_host) {
    sendErrorReply(QString::fromLatin1(obexbus::kRejected), QStringLiteral("Not listening"));
    return {};
  }
  setDelayedReply(true);
  m_pushes.push_back(std::make_unique<ObexBluetoothPush>(m_bus, *m_host, m_watch, message()));
  ObexBluetoothPush& push = *m_pushes.back();
  push.Ended = [this, &push] { Retire(push); };
  push.Begin(transfer.path());
  return {};
}

// The device does not wait for an answer any more. What is coming already is told of by its status.
void ObexBluetoothAgent::Cancel() {
  std::vector<ObexBluetoothPush*> waiting;
  for (const auto& push : m_pushes) {
    if (!push->IsComing()) waiting.push_back(push.get());
  }
  for (ObexBluetoothPush* push : waiting) {
    push->Close();
    Retire(*push);
  }
}

void ObexBluetoothAgent::Release() { m_host = nullptr; }

void ObexBluetoothAgent::Retire(const ObexBluetoothPush& push) {
  const auto found = std::find_if(m_pushes.begin(), m_pushes.end(),
                                  [&push](const auto& each) { return each.get() == &push; });
  if (found == m_pushes.end()) return;
  m_retired.push_back(std::move(*found));
  m_pushes.erase(found);
  QMetaObject::invokeMethod(
      this, [this] { m_retired.clear(); }, Qt::QueuedConnection);
}

}  // namespace quill
