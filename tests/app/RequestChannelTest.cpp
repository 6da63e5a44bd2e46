#include "app/RequestChannel.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

#include "app/InstanceLock.h"

namespace quill {
namespace {

using std::chrono::milliseconds;
constexpr milliseconds kShortPatience(100);

Places PlacesIn(const QString& state, const QString& runtime = {}) {
  Places places;
  places.StateFolder = state;
  places.RuntimeFolder = runtime;
  return places;
}

// Does the work in another thread while this one's event loop runs.
template <typename Work>
void RunBeside(Work work) {
  const std::unique_ptr<QThread> thread(QThread::create(work));
  QEventLoop loop;
  QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  thread->start();
  loop.exec();
  thread->wait();
}

RequestOutcome SendBeside(const QString& socket, const Request& request,
                          milliseconds patience = std::chrono::seconds(10)) {
  RequestOutcome outcome = RequestOutcome::Unreached;
  RunBeside([&] { outcome = SendRequest(socket, request, patience); });
  return outcome;
}

// What comes back for bytes that no sender of ours would write.
QByteArray AnswerTo(const QString& socket, const QByteArray& bytes) {
  QByteArray answer;
  RunBeside([&] {
    QLocalSocket connection;
    connection.connectToServer(socket);
    connection.write(bytes);
    while (connection.waitForReadyRead(5000)) {
    }
    answer = connection.readAll();
  });
  return answer;
}

class RequestChannelOn : public testing::Test {
 protected:
  RequestHandler Handler() {
    return [this](const Request& request) {
      m_seen.append(request);
      return m_answer;
    };
  }

  QTemporaryDir m_folder;
  QString m_socket = RequestSocket(PlacesIn(m_folder.path()));
  QList<Request> m_seen;
  bool m_answer = true;
};

TEST_F(RequestChannelOn, ASocketCarriesRequestsOneAfterTheOther) {
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  const Request show{RequestKind::Show, u"김서연"_qs, {}};
  const Request open{RequestKind::Open, {}, {u"/tmp/a.vcf"_qs}};
  EXPECT_EQ(SendBeside(m_socket, show), RequestOutcome::Done);
  EXPECT_EQ(SendBeside(m_socket, open), RequestOutcome::Done);
  EXPECT_EQ(m_seen, QList<Request>({show, open}));
}

TEST_F(RequestChannelOn, ASocketTellsOfARefusalOnce) {
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  m_answer = false;
  EXPECT_EQ(SendBeside(m_socket, {RequestKind::New, u"Ann"_qs, {}}), RequestOutcome::Refused);
  EXPECT_EQ(m_seen.size(), 1);
}

TEST_F(RequestChannelOn, ASocketServesTwoLifetimesUnderOneLock) {
  InstanceLock lock(m_folder.path());
  ASSERT_EQ(lock.Take(), LockOutcome::Taken);
  for (int life = 1; life <= 2; ++life) {
    RequestChannel channel(m_socket, Handler());
    ASSERT_TRUE(channel.Listen());
    EXPECT_EQ(SendBeside(m_socket, {}), RequestOutcome::Done) << life;
    EXPECT_EQ(InstanceLock(m_folder.path()).Take(), LockOutcome::HeldByOther) << life;
  }
  EXPECT_EQ(m_seen.size(), 2);
  EXPECT_FALSE(QFileInfo::exists(m_socket));
}

TEST_F(RequestChannelOn, ASocketThatComesLaterIsWaitedFor) {
  std::atomic<bool> isTrying = false;
  RequestOutcome outcome = RequestOutcome::Unreached;
  const std::unique_ptr<QThread> sender(QThread::create([&] {
    EXPECT_EQ(SendRequest(m_socket, {}, milliseconds(1)), RequestOutcome::Unreached);
    isTrying = true;
    outcome = SendRequest(m_socket, {}, std::chrono::seconds(10));
  }));
  QEventLoop loop;
  QObject::connect(sender.get(), &QThread::finished, &loop, &QEventLoop::quit);
  sender->start();
  while (!isTrying) QThread::yieldCurrentThread();
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  loop.exec();
  sender->wait();
  EXPECT_EQ(outcome, RequestOutcome::Done);
}

TEST_F(RequestChannelOn, ASocketOfNobodyIsGivenUp) {
  EXPECT_EQ(SendRequest(m_socket, {}, kShortPatience), RequestOutcome::Unreached);
}

TEST_F(RequestChannelOn, ASocketWhoseOwnerHangsIsGivenUp) {
  QLocalServer silent;
  ASSERT_TRUE(silent.listen(m_socket));
  EXPECT_EQ(SendRequest(m_socket, {}, kShortPatience), RequestOutcome::Unreached);
}

TEST_F(RequestChannelOn, ARequestBeyondTheLimitIsNotSent) {
  const Request request{RequestKind::New, QString(kRequestLineLimit, u'a'), {}};
  EXPECT_EQ(SendRequest(m_socket, request, kShortPatience), RequestOutcome::Refused);
}

TEST_F(RequestChannelOn, AMalformedLineGetsAnErrorAndTheNextIsServed) {
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  EXPECT_EQ(ReadAnswer(AnswerTo(m_socket, "hello\n")), false);
  EXPECT_TRUE(AnswerTo(m_socket, "{\"request\":\"quit\"}\n").contains("unknown request"));
  EXPECT_TRUE(m_seen.isEmpty());
  EXPECT_EQ(SendBeside(m_socket, {}), RequestOutcome::Done);
}

TEST_F(RequestChannelOn, ALineWithoutEndIsCutOffAtTheLimit) {
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  const QByteArray answer = AnswerTo(m_socket, QByteArray(kRequestLineLimit + 1, 'a'));
  EXPECT_TRUE(answer.contains("request too long")) << answer.toStdString();
}

TEST_F(RequestChannelOn, WhoeverSaysNothingOrHalfALineIsCutOff) {
  RequestChannel channel(m_socket, Handler(), kShortPatience);
  ASSERT_TRUE(channel.Listen());
  EXPECT_EQ(AnswerTo(m_socket, ""), "");
  EXPECT_EQ(AnswerTo(m_socket, "{\"request\":"), "");
  EXPECT_EQ(SendBeside(m_socket, {}), RequestOutcome::Done);
}

// Connects as often until the channel turns one away, and gives the others.
std::vector<std::unique_ptr<QLocalSocket>> HeldConnections(const QString& socket) {
  std::vector<std::unique_ptr<QLocalSocket>> held;
  for (bool isTurnedAway = false; !isTurnedAway && held.size() < 1000;) {
    held.push_back(std::make_unique<QLocalSocket>());
    held.back()->connectToServer(socket);
    EXPECT_TRUE(held.back()->waitForConnected());
    isTurnedAway = held.back()->waitForDisconnected(100);
  }
  held.pop_back();
  return held;
}

TEST_F(RequestChannelOn, AFewConnectionsAreServedAtOnceAndMoreAreTurnedAway) {
  RequestChannel channel(m_socket, Handler(), std::chrono::minutes(5));
  ASSERT_TRUE(channel.Listen());
  std::size_t held = 0;
  std::size_t heldAgain = 0;
  RequestOutcome meanwhile = RequestOutcome::Done;
  RunBeside([&] {
    const auto connections = HeldConnections(m_socket);
    held = connections.size();
    meanwhile = SendRequest(m_socket, {}, kShortPatience);
  });
  RunBeside([&] { heldAgain = HeldConnections(m_socket).size(); });
  EXPECT_EQ(held, 32U);
  EXPECT_EQ(meanwhile, RequestOutcome::Unreached);
  EXPECT_EQ(heldAgain, held) << "those that went left their places";
  EXPECT_EQ(SendBeside(m_socket, {}), RequestOutcome::Done);
}

TEST_F(RequestChannelOn, OneConnectionCarriesOneRequest) {
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  const QByteArray line = WriteRequest({});
  EXPECT_EQ(AnswerTo(m_socket, line + line), WriteAnswer({}));
  EXPECT_EQ(m_seen.size(), 1);
}

TEST_F(RequestChannelOn, ALeftoverSocketIsReplaced) {
  QFile leftover(m_socket);
  ASSERT_TRUE(leftover.open(QIODevice::WriteOnly));
  leftover.close();
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  EXPECT_EQ(SendBeside(m_socket, {}), RequestOutcome::Done);
}

TEST_F(RequestChannelOn, OthersMayNotUseTheSocket) {
  RequestChannel channel(m_socket, Handler());
  ASSERT_TRUE(channel.Listen());
  const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                      QFile::WriteOther | QFile::ExeOther;
  EXPECT_EQ(QFileInfo(m_socket).permissions() & others, 0);
}

TEST(RequestSocket, IsOneForEachHome) {
  const QTemporaryDir one;
  const QTemporaryDir other;
  const QString socket = RequestSocket(PlacesIn(one.path()));
  EXPECT_EQ(socket, RequestSocket(PlacesIn(one.path())));
  EXPECT_EQ(QFileInfo(socket).path(), one.path());
  EXPECT_NE(QFileInfo(socket).fileName(),
            QFileInfo(RequestSocket(PlacesIn(other.path()))).fileName());
}

TEST(RequestSocket, LiesInTheRuntimeFolderWhenThereIsOne) {
  const QTemporaryDir home;
  const QTemporaryDir runtime;
  const QString socket = RequestSocket(PlacesIn(home.path(), runtime.path()));
  EXPECT_EQ(QFileInfo(socket).path(), runtime.path());
}

TEST(RequestSocket, IsTheSameByALinkToTheHome) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"home"_qs));
  const QString home = folder.filePath(u"home"_qs);
  const QString link = folder.filePath(u"link"_qs);
  ASSERT_TRUE(QFile::link(home, link));
  EXPECT_EQ(RequestSocket(PlacesIn(home, folder.path())),
            RequestSocket(PlacesIn(link, folder.path())));
}

TEST(RequestSocket, OfADeepHomeStillFitsASocketAddress) {
  const QTemporaryDir folder;
  QString deep = folder.path();
  while (deep.size() < 200) deep += u"/이름이 긴 폴더"_qs;
  ASSERT_TRUE(QDir().mkpath(deep));
  const QString socket = RequestSocket(PlacesIn(deep));
  EXPECT_LE(QFile::encodeName(socket).size(), 107);
  RequestChannel channel(socket, [](const Request&) { return true; });
  ASSERT_TRUE(channel.Listen());
  EXPECT_EQ(SendBeside(socket, {}), RequestOutcome::Done);
}

}  // namespace
}  // namespace quill
