#include "app/RequestChannel.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QThread>
#include <QTimer>

#include <utility>

#include <unistd.h>

namespace quill {
namespace {

Q_LOGGING_CATEGORY(logRequests, "quill.requests")

// A socket address holds 107 bytes. QLocalServer first binds ".XXXXXX/s" beside the wanted name.
constexpr qsizetype kPathLimit = 107 - 9;
constexpr qint64 kReadAtOnce =
    kRequestLineLimit + 2;            // bytes; enough to see that a line is too long
constexpr int kMostConnections = 32;  // at once; a sender that is turned away tries again
constexpr auto kRetryPause = std::chrono::milliseconds(25);

// A folder that only this user can have made what it is: others' folders are not to be trusted with
// the requests.
QString ShortFolder() {
  const QString folder = QDir::temp().filePath(QStringLiteral("quill-%1").arg(::getuid()));
  const auto onlyOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
  QDir().mkdir(folder, onlyOwner);  // it may exist; what it is then, is asked next
  const QFileInfo info(folder);
  const auto others = QFile::WriteGroup | QFile::WriteOther;
  const bool mine = info.isDir() && !info.isSymLink() && info.ownerId() == ::getuid();
  return mine && !(info.permissions() & others) ? folder : QString();
}

// One try: connect, send, wait for the answer's line.
RequestOutcome TryOnce(const QString& socket, const QByteArray& line, QDeadlineTimer deadline) {
  const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
  QLocalSocket connection;
  connection.connectToServer(socket);
  if (!connection.waitForConnected(left())) return RequestOutcome::Unreached;
  connection.write(line);
  while (!connection.canReadLine() && connection.waitForReadyRead(left())) {
  }
  const auto done = ReadAnswer(connection.readLine());
  if (!done) return RequestOutcome::Unreached;
  return *done ? RequestOutcome::Done : RequestOutcome::Refused;
}

}  // namespace

QString RequestSocketName(const Places& places) {
  // A home that is reached by two paths is one home.
  const QString canonical = QFileInfo(places.StateFolder).canonicalFilePath();
  const QString& folder = canonical.isEmpty() ? places.StateFolder : canonical;
  const QByteArray hash =
      QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha256).first(8).toHex();
  return QStringLiteral("quill-%1.sock").arg(QString::fromLatin1(hash));
}

QString RequestSocket(const Places& places) {
  const QString name = RequestSocketName(places);
  const QString folder = places.RuntimeFolder.isEmpty() ? places.StateFolder : places.RuntimeFolder;
  const QString path = folder + u'/' + name;
  if (QFile::encodeName(path).size() <= kPathLimit) return path;
  const QString shorter = ShortFolder();
  return shorter.isEmpty() ? path : shorter + u'/' + name;
}

RequestChannel::RequestChannel(const QString& socket, RequestHandler handler,
                               std::chrono::milliseconds patience)
    : m_socket(socket), m_handler(std::move(handler)), m_patience(patience) {
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] { Accept(); });
}

bool RequestChannel::Listen() {
  QLocalServer::removeServer(m_socket);
  if (m_server.listen(m_socket)) return true;
  qCWarning(logRequests) << "no requests on" << m_socket << m_server.errorString();
  return false;
}

void RequestChannel::Accept() {
  while (QLocalSocket* connection = m_server.nextPendingConnection()) {
    QObject::connect(connection, &QLocalSocket::disconnected, connection, &QObject::deleteLater);
    m_connections < kMostConnections ? Serve(*connection) : connection->abort();
  }
}

void RequestChannel::Serve(QLocalSocket& connection) {
  ++m_connections;
  QObject::connect(&connection, &QLocalSocket::disconnected, &connection,
                   [this] { --m_connections; });
  QObject::connect(&connection, &QLocalSocket::readyRead, &connection,
                   [this, &connection] { ReadFrom(connection); });
  // Whoever sends nothing, only half a line, or does not take the answer.
  QTimer::singleShot(m_patience, &connection, [&connection] { connection.abort(); });
  connection.setReadBufferSize(kReadAtOnce);
  ReadFrom(connection);  // the line may have come before the connection was taken
}

void RequestChannel::ReadFrom(QLocalSocket& connection) {
  const bool tooLong = connection.bytesAvailable() > kRequestLineLimit;
  if (!connection.canReadLine() && !tooLong) return;
  // One line for each connection: what follows is not read.
  QObject::disconnect(&connection, &QLocalSocket::readyRead, nullptr, nullptr);
  connection.write(WriteAnswer(Answer(connection.readLine(kReadAtOnce))));
  connection.flush();
  connection.disconnectFromServer();
}

QString RequestChannel::Answer(const QByteArray& line) const {
  QString problem;
  const auto request = ReadRequest(line, problem);
  if (!request) {
    qCWarning(logRequests) << "request not understood:" << problem;
    return problem;
  }
  return m_handler(*request) ? QString() : QStringLiteral("not done");
}

RequestOutcome SendRequest(const QString& socket, const Request& request,
                           std::chrono::milliseconds patience) {
  const QByteArray line = WriteRequest(request);
  if (line.size() > kRequestLineLimit) return RequestOutcome::Refused;
  const QDeadlineTimer deadline(patience);
  do {
    const RequestOutcome outcome = TryOnce(socket, line, deadline);
    if (outcome != RequestOutcome::Unreached) return outcome;
    QThread::msleep(static_cast<unsigned long>(kRetryPause.count()));
  } while (!deadline.hasExpired());
  return RequestOutcome::Unreached;
}

}  // namespace quill
