#include "infrared/ObexBluetoothTransport.h"

#include <gtest/gtest.h>

#include "infrared/FakeObexService.h"
#include "infrared/ObexPeers.h"
#include "support/PrivateBus.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

const QString kPushService = u"00001105-0000-1000-8000-00805F9B34FB"_qs;
const QString kHeadsetService = u"00001108-0000-1000-8000-00805f9b34fb"_qs;

class BluetoothTransport : public testing::Test {
 protected:
  void MakeTransport() {
    m_transport = std::make_unique<ObexBluetoothTransport>(m_bus.Connect(u"session"_qs),
                                                           m_bus.Connect(u"system"_qs), m_timers);
  }
  void MakeService() {
    m_connection.emplace(m_bus.Connect(u"service"_qs));
    m_service = std::make_unique<FakeObexService>(*m_connection);
  }
  bool BecomesPresent() {
    return Until([this] { return m_transport->IsPresent(); });
  }

  PrivateBus m_bus;
  SteppedTimers m_timers;
  RecordingHost m_host;
  std::optional<QDBusConnection> m_connection;
  std::unique_ptr<FakeObexService> m_service;
  std::unique_ptr<ObexBluetoothTransport> m_transport;
};

TEST_F(BluetoothTransport, IsPresentWhereTheServiceIs) {
  MakeService();
  MakeTransport();
  EXPECT_EQ(m_transport->Carrier(), ObexCarrier::Bluetooth);
  EXPECT_TRUE(BecomesPresent());
}

TEST_F(BluetoothTransport, ComesAndGoesWithTheService) {
  MakeTransport();
  QCoreApplication::processEvents();
  EXPECT_FALSE(m_transport->IsPresent());
  MakeService();
  EXPECT_TRUE(BecomesPresent());
  m_connection->unregisterService(u"org.bluez.obex"_qs);
  EXPECT_TRUE(Until([this] { return !m_transport->IsPresent(); }));
}

TEST_F(BluetoothTransport, IsAbsentWithoutABus) {
  const QDBusConnection none(u"no such connection"_qs);
  ObexBluetoothTransport transport(none, none, m_timers);
  EXPECT_FALSE(transport.IsPresent());
  transport.Find([](const ObexReceiver&) { FAIL(); });
  EXPECT_FALSE(transport.Listen(m_host));
}

TEST_F(BluetoothTransport, FindsTheDevicesThatTakePushedObjects) {
  FakeBluetooth bluetooth(m_bus.Connect(u"bluetooth"_qs));
  bluetooth.Add(u"00:11:22:33:44:55"_qs, u"Ann's\u202E phone"_qs, {kHeadsetService, kPushService});
  bluetooth.Add(u"00:11:22:33:44:66"_qs, u"Headset"_qs, {kHeadsetService});
  bluetooth.Add(u"../nowhere"_qs, u"Strange"_qs, {kPushService});
  MakeTransport();
  std::vector<ObexReceiver> found;
  m_transport->Find([&found](const ObexReceiver& receiver) { found.push_back(receiver); });
  ASSERT_TRUE(Until([&found] { return !found.empty(); }));
  QCoreApplication::processEvents();
  EXPECT_EQ(found, (std::vector{ObexReceiver{ObexCarrier::Bluetooth, u"00:11:22:33:44:55"_qs, 0,
                                             u"Ann's phone"_qs}}));
}

TEST_F(BluetoothTransport, FindsNothingWhereThereIsNoBluetooth) {
  MakeTransport();
  bool isFound = false;
  m_transport->Find([&isFound](const ObexReceiver&) { isFound = true; });
  MakeService();
  ASSERT_TRUE(BecomesPresent()) << "the answer has come by now";
  EXPECT_FALSE(isFound);
}

TEST_F(BluetoothTransport, TellsOfNothingOnceTheSearchIsOver) {
  FakeBluetooth bluetooth(m_bus.Connect(u"bluetooth"_qs));
  bluetooth.Add(u"00:11:22:33:44:55"_qs, u"Phone"_qs, {kPushService});
  MakeTransport();
  bool isOldCalled = false;
  bool isNewCalled = false;
  m_transport->Find([&isOldCalled](const ObexReceiver&) { isOldCalled = true; });
  m_transport->StopFinding();
  m_transport->Find([&isNewCalled](const ObexReceiver&) { isNewCalled = true; });
  EXPECT_TRUE(Until([&isNewCalled] { return isNewCalled; }));
  EXPECT_FALSE(isOldCalled);
}

TEST_F(BluetoothTransport, SendsAndListensByTheService) {
  MakeService();
  MakeTransport();
  ASSERT_TRUE(m_transport->Listen(m_host));
  ASSERT_TRUE(Until([this] { return !m_service->Agent.isEmpty(); }));
  m_transport->StopLettingIn();
  ASSERT_TRUE(Until([this] { return m_service->Agent.isEmpty(); }));
  m_transport->StopListening();
  EXPECT_FALSE(m_transport->IsBusy());
  m_service->Sent = [this](const QString& path) { m_service->SetStatus(path, u"complete"_qs); };
  std::vector<ObexOutcome> outcomes;
  m_transport->Send({ObexCarrier::Bluetooth, u"00:11:22:33:44:55"_qs}, {{{}, "card"}},
                    [&outcomes](const std::vector<ObexOutcome>& all) { outcomes = all; });
  ASSERT_TRUE(Until([&outcomes] { return !outcomes.empty(); }));
  EXPECT_EQ(outcomes, std::vector{ObexOutcome::Done});
  EXPECT_TRUE(m_service->Calls.contains(u"CreateSession 00:11:22:33:44:55"_qs));
}

// The desktop's buses are where the environment says.
class DesktopBluetooth : public BluetoothTransport {
 protected:
  DesktopBluetooth() {
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.Address().toLatin1());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.Address().toLatin1());
  }
  ~DesktopBluetooth() override {
    m_session ? qputenv("DBUS_SESSION_BUS_ADDRESS", *m_session)
              : qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
  }
  const std::optional<QByteArray> m_session =
      qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
          ? std::optional(qgetenv("DBUS_SESSION_BUS_ADDRESS"))
          : std::nullopt;
};

TEST_F(DesktopBluetooth, IsJoinedOnItsBuses) {
  MakeService();
  FakeBluetooth bluetooth(m_bus.Connect(u"bluetooth"_qs));
  bluetooth.Add(u"00:11:22:33:44:55"_qs, u"Phone"_qs, {kPushService});
  const auto transport = JoinBluetooth(m_timers);
  ASSERT_TRUE(transport);
  EXPECT_TRUE(Until([&transport] { return transport->IsPresent(); }));
  std::vector<ObexReceiver> found;
  transport->Find([&found](const ObexReceiver& receiver) { found.push_back(receiver); });
  EXPECT_TRUE(Until([&found] { return !found.empty(); }));
}

TEST_F(DesktopBluetooth, IsNotJoinedWithoutASession) {
  qputenv("DBUS_SESSION_BUS_ADDRESS", "");
  EXPECT_FALSE(JoinBluetooth(m_timers));
}

}  // namespace
}  // namespace quill::test
