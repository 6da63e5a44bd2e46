#include "infrared/ObexReceiver.h"

#include <gtest/gtest.h>

#include "infrared/InfraredSettings.h"

namespace quill {
namespace {

using enum ObexCarrier;

struct ReceiverCase {
  const char* Typed;
  ObexReceiver Receiver;
  const char* Text;
};

class TypedReceiver : public testing::TestWithParam<ReceiverCase> {
 protected:
  QString Typed() const { return QString::fromUtf8(GetParam().Typed); }
};

TEST_P(TypedReceiver, IsUnderstood) { EXPECT_EQ(ParseReceiver(Typed()), GetParam().Receiver); }

TEST_P(TypedReceiver, ComesBackFromItsText) {
  const QString text = ReceiverText(GetParam().Receiver);
  EXPECT_EQ(text.toStdString(), GetParam().Text);
  EXPECT_EQ(ParseReceiver(text), GetParam().Receiver);
}

INSTANTIATE_TEST_SUITE_P(
    Obex, TypedReceiver,
    testing::Values(
        ReceiverCase{"host", {Network, u"host"_qs, 26'500}, "host:26500"},
        ReceiverCase{" host.example.org:650 ",
                     {Network, u"host.example.org"_qs, 650},
                     "host.example.org:650"},
        ReceiverCase{"192.168.0.7:1", {Network, u"192.168.0.7"_qs, 1}, "192.168.0.7:1"},
        ReceiverCase{"host:65535", {Network, u"host"_qs, 65'535}, "host:65535"},
        ReceiverCase{"김-1_a", {Network, u"김-1_a"_qs, 26'500}, "김-1_a:26500"},
        ReceiverCase{"::1", {Network, u"::1"_qs, 26'500}, "[::1]:26500"},
        ReceiverCase{"[::1]", {Network, u"::1"_qs, 26'500}, "[::1]:26500"},
        ReceiverCase{"[fe80::1%eth0]:7", {Network, u"fe80::1%eth0"_qs, 7}, "[fe80::1%eth0]:7"},
        ReceiverCase{
            "00:11:22:aa:Bb:CC", {Bluetooth, u"00:11:22:AA:BB:CC"_qs}, "00:11:22:AA:BB:CC"}));

class WrongReceiver : public testing::TestWithParam<const char*> {};

TEST_P(WrongReceiver, IsNobody) {
  EXPECT_EQ(ParseReceiver(QString::fromUtf8(GetParam())), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Obex, WrongReceiver,
                         testing::Values("", " ", ":7", "host:", "host:0", "host:65536", "host:-1",
                                         "host:x", "a b", "host/path", "user@host", "[::1",
                                         "[::1]7", "[::1]:", "[host]:7", "00:11:22:aa:bb:cg",
                                         "[]:7"));

TEST(WrongReceiver, IsOneWithAnEndlessName) {
  EXPECT_TRUE(ParseReceiver(QString(255, u'a')));
  EXPECT_FALSE(ParseReceiver(QString(256, u'a')));
}

}  // namespace
}  // namespace quill
