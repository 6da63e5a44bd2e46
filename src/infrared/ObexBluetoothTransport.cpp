#include "infrared/ObexBluetoothTransport.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QMap>

#include <utility>

#include "exchange/ObexObject.h"
#include "infrared/ObexBus.h"
#include "platform/SessionBus.h"

namespace quill {
namespace {

using Interfaces = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, Interfaces>;

const char* const kSessionName = "quill-obex-session";
const char* const kSystemName = "quill-obex-system";
const char* const kBus = "org.freedesktop.DBus";
// Of a device that takes pushed objects.
constexpr QStringView kPushService = u"00001105-0000-1000-8000-00805f9b34fb";

QString Latin(const char* text) { return QString::fromLatin1(text); }

using Reply = std::function<void(const QDBusMessage& reply)>;

void CallLater(const QDBusConnection& bus, const QDBusMessage& message, QObject& context,
               const Reply& reply) {
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), &context);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context, [watcher, reply] {
    watcher->deleteLater();
    reply(watcher->reply());
  });
}

QDBusMessage BusCall(const char* member) {
  return QDBusMessage::createMethodCall(Latin(kBus), QStringLiteral("/org/freedesktop/DBus"),
                                        Latin(kBus), Latin(member));
}

QDBusMessage DevicesCall() {
  return QDBusMessage::createMethodCall(QStringLiteral("org.bluez"), QStringLiteral("/"),
                                        QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                                        QStringLiteral("GetManagedObjects"));
}

void TellOfDevices(const QDBusMessage& reply, const ObexFound& found) {
  if (reply.signature() != QStringLiteral("a{oa{sa{sv}}}")) return;
  const auto objects = qdbus_cast<ManagedObjects>(reply.arguments().value(0));
  for (const Interfaces& interfaces : objects) {
    const QVariantMap device = interfaces.value(QStringLiteral("org.bluez.Device1"));
    const QStringList services = device.value(QStringLiteral("UUIDs")).toStringList();
    const auto receiver = ParseReceiver(device.value(QStringLiteral("Address")).toString());
    if (!receiver || receiver->Carrier != ObexCarrier::Bluetooth) continue;
    if (!services.contains(kPushService, Qt::CaseInsensitive)) continue;
    found({receiver->Carrier, receiver->Address, 0,
           ObexLabel(device.value(QStringLiteral("Alias")).toString())});
  }
}

// A transport on connections of its own.
struct OwnConnections {
  OwnConnections() = default;
  ~OwnConnections() {
    QDBusConnection::disconnectFromBus(Latin(kSessionName));
    QDBusConnection::disconnectFromBus(Latin(kSystemName));
  }
  Q_DISABLE_COPY_MOVE(OwnConnections)

  QDBusConnection Session =
      QDBusConnection::connectToBus(QDBusConnection::SessionBus, Latin(kSessionName));
  QDBusConnection System =
      QDBusConnection::connectToBus(QDBusConnection::SystemBus, Latin(kSystemName));
};

class DesktopBluetooth : private OwnConnections, public ObexBluetoothTransport {
 public:
  explicit DesktopBluetooth(Timers& timers) : ObexBluetoothTransport(Session, System, timers) {}
};

}  // namespace

ObexBluetoothTransport::ObexBluetoothTransport(const QDBusConnection& session,
                                               const QDBusConnection& system, Timers& timers)
    : m_session(session),
      m_system(system),
      m_watcher(Latin(obexbus::kService), session, QDBusServiceWatcher::WatchForOwnerChange),
      m_sender(session, timers),
      m_agent(session) {
  QObject::connect(
      &m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, &m_watcher,
      [this](const QString&, const QString&, const QString& now) { m_isRunning = !now.isEmpty(); });
  LookForService();
}

ObexBluetoothTransport::~ObexBluetoothTransport() = default;

void ObexBluetoothTransport::LookForService() {
  if (!m_session.isConnected()) return;
  QDBusMessage owner = BusCall("NameHasOwner");
  owner << Latin(obexbus::kService);
  CallLater(m_session, owner, m_watcher, [this](const QDBusMessage& reply) {
    m_isRunning = reply.arguments().value(0).toBool();
  });
  CallLater(m_session, BusCall("ListActivatableNames"), m_watcher,
            [this](const QDBusMessage& reply) {
              const QStringList names = reply.arguments().value(0).toStringList();
              m_isActivatable = names.contains(Latin(obexbus::kService));
            });
}

void ObexBluetoothTransport::Find(const ObexFound& found) {
  StopFinding();
  if (!m_system.isConnected()) return;
  m_search = new QObject(&m_watcher);
  CallLater(m_system, DevicesCall(), *m_search,
            [this, found, search = m_search](const QDBusMessage& reply) {
              if (m_search == search) TellOfDevices(reply, found);
            });
}

void ObexBluetoothTransport::StopFinding() {
  if (m_search) m_search->deleteLater();
  m_search = nullptr;
}

void ObexBluetoothTransport::Send(const ObexReceiver& receiver, std::vector<ObexSending> cards,
                                  const ObexSent& sent) {
  m_sender.Send(receiver.Address, std::move(cards), sent);
}

std::unique_ptr<ObexTransport> JoinBluetooth(Timers& timers) {
  if (!SessionBusExists()) return nullptr;
  return std::make_unique<DesktopBluetooth>(timers);
}

}  // namespace quill
