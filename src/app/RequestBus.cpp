#include "app/RequestBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QLoggingCategory>

#include <utility>

#include "platform/SessionBus.h"

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logBus, "quill.bus")

const char* const kConnectionName = "quill-requests";
const char* const kServiceName = "org.fennick.Quill";
const char* const kObjectPath = "/org/fennick/Quill";
constexpr uint kDoNotQueue = 4;  // the bus' flag: refuse rather than wait for the name

QString Latin(const char* text) { return QString::fromLatin1(text); }

QDBusMessage NameRequest() {
  QDBusMessage message = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
  message << Latin(kServiceName) << kDoNotQueue;
  return message;
}

}  // namespace

RequestBus::RequestBus(RequestHandler handler) : m_handler(std::move(handler)) {}

RequestBus::~RequestBus() { QDBusConnection::disconnectFromBus(Latin(kConnectionName)); }

void RequestBus::JoinSession() {
  if (!SessionBusExists()) return;
  QDBusConnection bus =
      QDBusConnection::connectToBus(QDBusConnection::SessionBus, Latin(kConnectionName));
  // The object stands before the name does: who finds the name finds the object too. The bus'
  // answer is not waited for; when another process has the name, the socket still serves this one.
  if (!OfferOn(bus) || !bus.send(NameRequest())) qCInfo(logBus) << "no requests by the session bus";
}

bool RequestBus::OfferOn(QDBusConnection connection) {
  return connection.isConnected() &&
         connection.registerObject(Latin(kObjectPath), this, QDBusConnection::ExportAllSlots);
}

bool RequestBus::Show(const QString& text) { return Handle({RequestKind::Show, text, {}}); }

bool RequestBus::New(const QString& text) { return Handle({RequestKind::New, text, {}}); }

bool RequestBus::Open(const QStringList& files) { return Handle({RequestKind::Open, {}, files}); }

bool RequestBus::Activate() { return Handle({RequestKind::Activate, {}, {}}); }

bool RequestBus::Handle(const Request& request) const {
  const QString problem = RequestProblem(request);
  if (problem.isEmpty()) return m_handler(request);
  qCWarning(logBus) << "request not understood:" << problem;
  return false;
}

}  // namespace quill
