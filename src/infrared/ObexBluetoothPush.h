// One push over Bluetooth that the desktop's OBEX service asks about. The user is asked before its
// bytes come; they come into a file of a name of our own in the service's folder, and are a card or
// are thrown away.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include "infrared/ObexIncoming.h"
#include "infrared/ObexTransferWatch.h"

namespace quill {

class ObexBluetoothPush : public QObject, public ObexIncoming {
 public:
  // The request is answered later, exactly once. Host and watch outlive this.
  ObexBluetoothPush(const QDBusConnection& bus, ObexHost& host, ObexTransferWatch& watch,
                    const QDBusMessage& request);
  ~ObexBluetoothPush() override;

  // Finds out what is pushed by whom, then asks the host.
  void Begin(const QString& transfer);
  // Hangs up: what waits is refused, what has come is thrown away. Nothing is called from then on.
  void Close();
  // Whether its bytes are coming.
  bool IsComing() const { return m_step == Step::Coming; }

  void Want() override;
  void Refuse() override;

 private:
  enum class Step { Looking, Asking, Coming, Over };

  void TransferKnown(const QDBusMessage& reply);
  void SessionKnown(const QDBusMessage& reply);
  void Came(bool isComplete);
  void Reject();
  void RejectAndEnd();
  void LetGo();
  void End();

  QDBusConnection m_bus;
  ObexTransferWatch& m_watch;
  QDBusMessage m_request;
  QString m_transfer;
  QString m_folder;  // the service's, which alone it writes into
  QString m_file;    // in it, once it was named to the service
  QString m_name;    // as the peer gave it
  Step m_step = Step::Looking;
};

}  // namespace quill
