#include "infrared/ObexBluetoothPush.h"

#include <QDBusObjectPath>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QUuid>

#include <optional>
#include <utility>

#include "exchange/ObexObject.h"
#include "infrared/ObexBus.h"

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logBluetooth, "quill.infrared")

std::optional<ObexObject> ReadObject(const QString& file, const QString& name, int mostCards) {
  const QFileInfo info(file);
  QFile device(file);
  if (info.isSymLink() || !info.isFile() || info.size() > kObexLargestObject) return {};
  if (!device.open(QIODevice::ReadOnly)) return {};
  return CardObject(name, device.read(kObexLargestObject), mostCards);
}

}  // namespace

ObexBluetoothPush::ObexBluetoothPush(const QDBusConnection& bus, ObexHost& host,
                                     ObexTransferWatch& watch, const QDBusMessage& request)
    : ObexIncoming(host), m_bus(bus), m_watch(watch), m_request(request) {}

ObexBluetoothPush::~ObexBluetoothPush() { Close(); }

void ObexBluetoothPush::Close() {
  Ended = nullptr;
  if (m_step == Step::Looking || m_step == Step::Asking) Reject();
  LetGo();
}

void ObexBluetoothPush::Begin(const QString& transfer) {
  m_transfer = transfer;
  obexbus::CallLater(m_bus, obexbus::GetAll(transfer, obexbus::kTransfer), *this,
                     [this](const QDBusMessage& reply) { TransferKnown(reply); });
}

void ObexBluetoothPush::TransferKnown(const QDBusMessage& reply) {
  if (m_step != Step::Looking) return;
  const QVariantMap transfer = obexbus::MapOf(reply.arguments().value(0));
  m_name = transfer.value(QStringLiteral("Name")).toString();
  m_offer.Label = ObexLabel(m_name);
  const QString session = transfer.value(QStringLiteral("Session")).value<QDBusObjectPath>().path();
  const bool isTooLarge = transfer.value(QStringLiteral("Size")).toLongLong() > kObexLargestObject;
  if (session.isEmpty() || isTooLarge || m_host.Room() <= 0) return RejectAndEnd();
  obexbus::CallLater(m_bus, obexbus::GetAll(session, obexbus::kSession), *this,
                     [this](const QDBusMessage& answer) { SessionKnown(answer); });
}

void ObexBluetoothPush::SessionKnown(const QDBusMessage& reply) {
  if (m_step != Step::Looking) return;
  const QVariantMap session = obexbus::MapOf(reply.arguments().value(0));
  m_offer.Peer = session.value(QStringLiteral("Destination")).toString();
  m_folder = session.value(QStringLiteral("Root")).toString();
  if (!QDir::isAbsolutePath(m_folder)) return RejectAndEnd();
  m_step = Step::Asking;
  m_host.Ask(*this);
}

void ObexBluetoothPush::Want() {
  m_step = Step::Coming;
  const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
  m_file = QDir(m_folder).filePath(QStringLiteral("quill-%1.vcf").arg(name));
  m_watch.WaitFor(m_transfer, [this](bool isComplete) { Came(isComplete); });
  m_bus.send(m_request.createReply(m_file));
}

void ObexBluetoothPush::Refuse() {
  m_step = Step::Over;  // the host has taken it back itself
  RejectAndEnd();
}

void ObexBluetoothPush::Came(bool isComplete) {
  m_step = Step::Over;
  const auto object = isComplete ? ReadObject(m_file, m_name, m_host.Room()) : std::nullopt;
  const bool isStored = object && m_host.Store(*object);
  if (!isStored)
    qCWarning(logBluetooth) << "nothing was stored of what" << m_offer.Peer << "pushed";
  End();
}

void ObexBluetoothPush::Reject() {
  m_bus.send(m_request.createErrorReply(QString::fromLatin1(obexbus::kRejected),
                                        QStringLiteral("Not wanted")));
}

void ObexBluetoothPush::RejectAndEnd() {
  Reject();
  End();
}

void ObexBluetoothPush::LetGo() {
  if (std::exchange(m_step, Step::Over) == Step::Asking) m_host.TakeBack(*this);
  m_watch.Forget(m_transfer);
  const QString file = std::exchange(m_file, QString());
  if (!file.isEmpty()) QFile::remove(file);  // it may not have come
}

void ObexBluetoothPush::End() {
  LetGo();
  if (const auto ended = std::exchange(Ended, nullptr)) ended();
}

}  // namespace quill
