#include "infrared/ObexBluetoothSender.h"

#include <gtest/gtest.h>

#include "infrared/FakeObexService.h"
#include "infrared/ObexPeers.h"
#include "support/PrivateBus.h"
#include "support/SteppedTimers.h"

namespace quill::test {
namespace {

using Outcomes = std::vector<ObexOutcome>;
using enum ObexOutcome;

const QString kPhone = u"00:11:22:33:44:55"_qs;

class BluetoothSender : public testing::Test {
 protected:
  void Send(std::vector<ObexSending> cards) {
    m_sender->Send(kPhone, std::move(cards), [this](const Outcomes& outcomes) {
      ++m_calls;
      m_outcomes = outcomes;
    });
  }
  bool IsSent() {
    return Until([this] { return m_calls > 0; });
  }
  bool IsCalled(const QString& call) {
    return Until([&] { return m_service.Calls.contains(call); });
  }
  // Every transfer ends like this.
  void EndAll(const QString& status) {
    m_service.Sent = [this, status](const QString& path) { m_service.SetStatus(path, status); };
  }

  PrivateBus m_bus;
  FakeObexService m_service{m_bus.Connect(u"service"_qs)};
  SteppedTimers m_timers;
  std::unique_ptr<ObexBluetoothSender> m_sender =
      std::make_unique<ObexBluetoothSender>(m_bus.Connect(u"program"_qs), m_timers);
  Outcomes m_outcomes;
  int m_calls = 0;
};

TEST_F(BluetoothSender, SendsAllCardsInOneSession) {
  EndAll(u"complete"_qs);
  Send({{u"../Ann.vcf"_qs, "card of Ann"}, {u"Bob.vcf"_qs, "card of Bob"}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, (Outcomes{Done, Done}));
  ASSERT_TRUE(IsCalled(u"RemoveSession /org/bluez/obex/client/session0"_qs));
  EXPECT_EQ(m_service.Calls, (QStringList{u"CreateSession 00:11:22:33:44:55"_qs,
                                          u"SendFile contact-1.vcf: card of Ann"_qs,
                                          u"SendFile contact-2.vcf: card of Bob"_qs,
                                          u"RemoveSession /org/bluez/obex/client/session0"_qs}));
}

TEST_F(BluetoothSender, SendsNothing) {
  Send({});
  ASSERT_TRUE(IsSent());
  EXPECT_TRUE(m_outcomes.empty());
}

TEST_F(BluetoothSender, WaitsForTheStatusAlone) {
  m_service.Sent = [this](const QString& path) { m_service.SetStatus(path, u"active"_qs); };
  Send({{{}, "card"}});
  ASSERT_TRUE(IsCalled(u"SendFile contact-1.vcf: card"_qs));
  QCoreApplication::processEvents();
  EXPECT_EQ(m_calls, 0);
  m_service.SetStatus(u"/org/bluez/obex/client/session0/transfer0"_qs, u"complete"_qs);
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, Outcomes{Done});
}

TEST_F(BluetoothSender, GoesOnAfterACardThatFails) {
  m_service.Sent = [this](const QString& path) {
    m_service.SetStatus(path, path.endsWith(u'0') ? u"error"_qs : u"complete"_qs);
  };
  Send({{{}, "a"}, {{}, "b"}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, (Outcomes{Broken, Done}));
}

TEST_F(BluetoothSender, SaysThatTheDeviceRefuses) {
  m_service.Refuses = u"SendFile"_qs;
  Send({{{}, "a"}, {{}, "b"}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, (Outcomes{Refused, Refused}));
}

TEST_F(BluetoothSender, SaysThatTheDeviceIsNotThere) {
  m_service.Refuses = u"CreateSession"_qs;
  Send({{{}, "a"}, {{}, "b"}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, (Outcomes{Broken, Broken}));
  EXPECT_EQ(m_service.Calls, QStringList{u"CreateSession 00:11:22:33:44:55"_qs});
}

TEST_F(BluetoothSender, GivesADeviceTimeToAskItsUser) {
  Send({{{}, "card"}});
  ASSERT_TRUE(IsCalled(u"SendFile contact-1.vcf: card"_qs));
  m_timers.Advance(ObexBluetoothSender::kCardPatience - 1);
  EXPECT_EQ(m_calls, 0);
  m_timers.Advance(1);
  EXPECT_EQ(m_calls, 1);
  EXPECT_EQ(m_outcomes, Outcomes{Broken});
  EXPECT_TRUE(IsCalled(u"RemoveSession /org/bluez/obex/client/session0"_qs));
}

TEST_F(BluetoothSender, ForgetsWhatItWasSendingWhenItSendsAnew) {
  bool isOldCalled = false;
  m_sender->Send(kPhone, {{{}, "old"}}, [&isOldCalled](const Outcomes&) { isOldCalled = true; });
  EndAll(u"complete"_qs);
  Send({{{}, "new"}});
  ASSERT_TRUE(IsSent());
  EXPECT_EQ(m_outcomes, Outcomes{Done});
  EXPECT_FALSE(isOldCalled);
  EXPECT_FALSE(m_service.Calls.contains(u"SendFile contact-1.vcf: old"_qs));
}

TEST_F(BluetoothSender, MayGoInTheMiddle) {
  Send({{{}, "card"}});
  ASSERT_TRUE(IsCalled(u"SendFile contact-1.vcf: card"_qs));
  m_sender.reset();
  EXPECT_TRUE(IsCalled(u"RemoveSession /org/bluez/obex/client/session0"_qs));
  EXPECT_EQ(m_calls, 0);
}

}  // namespace
}  // namespace quill::test
