#include "app/RequestBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServer>
#include <QEventLoop>

#include <gtest/gtest.h>

namespace quill {
namespace {

// The bus' object on a connection between two ends, without a bus.
class RequestBusObject : public testing::Test {
 protected:
  RequestBusObject() {
    QObject::connect(&m_server, &QDBusServer::newConnection, &m_server,
                     [this](const QDBusConnection& connection) {
                       m_offered = m_bus.OfferOn(connection);
                       m_connected.quit();
                     });
    m_client = QDBusConnection::connectToPeer(m_server.address(), kClientName);
    m_connected.exec();
  }
  ~RequestBusObject() override { QDBusConnection::disconnectFromPeer(kClientName); }

  QDBusMessage Call(const QString& method, const QVariantList& arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(QString(), u"/org/fennick/Quill"_qs,
                                                          u"org.fennick.Quill"_qs, method);
    message.setArguments(arguments);
    QDBusPendingCallWatcher watcher(m_client.asyncCall(message, 10'000));
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    loop.exec();
    return watcher.reply();
  }

  static const inline QString kClientName = u"client"_qs;
  QList<Request> m_seen;
  bool m_answer = true;
  bool m_offered = false;
  QEventLoop m_connected;
  QDBusServer m_server{u"unix:tmpdir=/tmp"_qs};
  RequestBus m_bus{[this](const Request& request) {
    m_seen.append(request);
    return m_answer;
  }};
  QDBusConnection m_client{QString()};
};

TEST_F(RequestBusObject, CarriesEachKindOfRequest) {
  ASSERT_TRUE(m_offered);
  EXPECT_EQ(Call(u"Show"_qs, {u"김서연"_qs}).arguments(), QVariantList({true}));
  EXPECT_EQ(Call(u"New"_qs, {u"Ann"_qs}).arguments(), QVariantList({true}));
  EXPECT_EQ(Call(u"Open"_qs, {QStringList(u"/a.vcf"_qs)}).arguments(), QVariantList({true}));
  EXPECT_EQ(Call(u"Activate"_qs).arguments(), QVariantList({true}));
  const QList<Request> expected{{RequestKind::Show, u"김서연"_qs, {}},
                                {RequestKind::New, u"Ann"_qs, {}},
                                {RequestKind::Open, {}, {u"/a.vcf"_qs}},
                                {RequestKind::Activate, {}, {}}};
  EXPECT_EQ(m_seen, expected);
}

TEST_F(RequestBusObject, TellsOfARefusal) {
  m_answer = false;
  EXPECT_EQ(Call(u"Activate"_qs).arguments(), QVariantList({false}));
  EXPECT_EQ(m_seen.size(), 1);
}

TEST_F(RequestBusObject, RefusesWhatTheSocketWouldRefuse) {
  EXPECT_EQ(Call(u"Show"_qs, {QString()}).arguments(), QVariantList({false}));
  EXPECT_EQ(Call(u"Open"_qs, {QStringList(u"a.vcf"_qs)}).arguments(), QVariantList({false}));
  EXPECT_TRUE(m_seen.isEmpty());
}

TEST_F(RequestBusObject, OffersNothingBesideTheRequests) {
  EXPECT_EQ(Call(u"deleteLater"_qs).type(), QDBusMessage::ErrorMessage);
  EXPECT_EQ(Call(u"JoinSession"_qs).type(), QDBusMessage::ErrorMessage);
}

}  // namespace
}  // namespace quill
