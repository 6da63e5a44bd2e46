#include "infrared/ObexTransferWatch.h"

#include "infrared/ObexBus.h"

namespace quill {
namespace {

// Others use the service as well; their transfers are not waited for, and are forgotten.
constexpr qsizetype kMostEnded = 64;

}  // namespace

ObexTransferWatch::ObexTransferWatch(const QDBusConnection& bus) : m_bus(bus) {
  m_bus.connect(QString::fromLatin1(obexbus::kService), QString(),
                QString::fromLatin1(obexbus::kProperties), QStringLiteral("PropertiesChanged"),
                this, SLOT(OnPropertiesChanged(QString, QVariantMap, QStringList, QDBusMessage)));
}

ObexTransferWatch::~ObexTransferWatch() {
  m_bus.disconnect(QString::fromLatin1(obexbus::kService), QString(),
                   QString::fromLatin1(obexbus::kProperties), QStringLiteral("PropertiesChanged"),
                   this,
                   SLOT(OnPropertiesChanged(QString, QVariantMap, QStringList, QDBusMessage)));
}

void ObexTransferWatch::WaitFor(const QString& transfer,
                                const std::function<void(bool isComplete)>& ended) {
  const auto known = m_ended.constFind(transfer);
  if (known == m_ended.constEnd()) {
    m_waiting.insert(transfer, ended);
    return;
  }
  const bool isComplete = *known;
  m_ended.erase(known);
  ended(isComplete);
}

void ObexTransferWatch::Forget(const QString& transfer) { m_waiting.remove(transfer); }

void ObexTransferWatch::OnPropertiesChanged(const QString& interface, const QVariantMap& changed,
                                            const QStringList&, const QDBusMessage& message) {
  if (interface != QLatin1String(obexbus::kTransfer)) return;
  const QString status = changed.value(QStringLiteral("Status")).toString();
  const bool isComplete = status == u"complete";
  if (!isComplete && status != u"error") return;
  const auto ended = m_waiting.take(message.path());
  if (ended) return ended(isComplete);
  if (m_ended.size() >= kMostEnded) m_ended.clear();
  m_ended.insert(message.path(), isComplete);
}

}  // namespace quill
