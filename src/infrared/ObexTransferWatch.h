// How the transfers of the desktop's OBEX service end, told by their status alone: what they say of
// their bytes stays at nought even when they are complete.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace quill {

class ObexTransferWatch : public QObject {
  Q_OBJECT
 public:
  explicit ObexTransferWatch(const QDBusConnection& bus);
  ~ObexTransferWatch() override;

  // Calls once, with whether the transfer was complete, or never when it does not end. Until then
  // and from now on the status of every transfer is heard, so that none ends unheard between the
  // reply that names it and this.
  void WaitFor(const QString& transfer, const std::function<void(bool isComplete)>& ended);
  void Forget(const QString& transfer);

 private Q_SLOTS:
  void OnPropertiesChanged(const QString& interface, const QVariantMap& changed,
                           const QStringList& invalidated, const QDBusMessage& message);

 private:
  QDBusConnection m_bus;
  QMap<QString, std::function<void(bool isComplete)>> m_waiting;  // by the transfers' paths
  QMap<QString, bool> m_ended;                                    // that nobody has waited for yet
};

}  // namespace quill
