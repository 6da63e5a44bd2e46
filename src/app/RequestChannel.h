// The way by which other processes reach the open window of a home: a local socket, for this user
// only. One request line comes in on a connection, one answer line goes back, and it is closed.
//
// The listening side lives with the shell and goes with it; a sender tries again meanwhile.
#pragma once

#include <QLocalServer>
#include <QString>

#include <chrono>

#include "app/Places.h"
#include "app/Request.h"

namespace quill {

// The socket's absolute path, the same for every process of this home: in the runtime folder, or in
// the state folder when there is none. When that is too long for a socket address it lies in a
// folder of this user's below the temporary one.
QString RequestSocket(const Places& places);
// Its name without the folder.
QString RequestSocketName(const Places& places);

// Needs an event loop. Only the process that holds the instance lock may listen.
class RequestChannel {
 public:
  // patience: how long a connection may take for its line and for its answer.
  RequestChannel(const QString& socket, RequestHandler handler,
                 std::chrono::milliseconds patience = std::chrono::seconds(5));
  RequestChannel(const RequestChannel&) = delete;
  RequestChannel& operator=(const RequestChannel&) = delete;

  // Takes the place of a socket that an earlier process left. On failure the log says why.
  bool Listen();

 private:
  void Accept();
  void Serve(QLocalSocket& connection);
  void ReadFrom(QLocalSocket& connection);
  QString Answer(const QByteArray& line) const;

  QString m_socket;
  RequestHandler m_handler;
  std::chrono::milliseconds m_patience;
  int m_connections = 0;  // being served
  QLocalServer m_server;
};

enum class RequestOutcome {
  Done,
  Refused,    // the window could not do it
  Unreached,  // nobody answered in time
};

// Sends from this process, which needs an application object but no running loop. Tries again until
// the time is over, since the window may be starting or changing its scale.
RequestOutcome SendRequest(const QString& socket, const Request& request,
                           std::chrono::milliseconds patience = std::chrono::seconds(2));

}  // namespace quill
