// The request channel's second mouth: the same requests by the desktop's message bus, as service
// org.fennick.Quill, object /org/fennick/Quill, interface org.fennick.Quill. Each method answers
// whether it was done.
//
// Lives with the shell, like the channel. Without a session bus it is silent.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include "app/Request.h"

class QDBusConnection;

namespace quill {

class RequestBus : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.fennick.Quill")

 public:
  explicit RequestBus(RequestHandler handler);
  ~RequestBus() override;

  // Offers the service on the session bus, if there is one. Does not wait for the bus to grant the
  // name; meant for after the window's first paint, since it opens a connection.
  void JoinSession();

  // Offers the object on a connection, without a name.
  bool OfferOn(QDBusConnection connection);

 public Q_SLOTS:
  bool Show(const QString& text);
  bool New(const QString& text);
  bool Open(const QStringList& files);
  bool Activate();

 private:
  bool Handle(const Request& request) const;

  RequestHandler m_handler;
};

}  // namespace quill
