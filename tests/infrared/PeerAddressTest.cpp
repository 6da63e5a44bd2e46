#include "infrared/PeerAddress.h"

#include <QHostAddress>

#include <gtest/gtest.h>

namespace quill {
namespace {

struct AddressCase {
  const char* Typed;
  const char* Address;
};

class TypedPeer : public testing::TestWithParam<AddressCase> {};

TEST_P(TypedPeer, IsSpelledAsInAnOffer) {
  EXPECT_EQ(PeerAddress(QString::fromLatin1(GetParam().Typed)).toStdString(), GetParam().Address);
}

INSTANTIATE_TEST_SUITE_P(PeerAddress, TypedPeer,
                         testing::Values(AddressCase{"127.0.0.1", "127.0.0.1"},
                                         AddressCase{" 10.0.0.7 ", "10.0.0.7"},
                                         AddressCase{"::FFFF:10.0.0.7", "10.0.0.7"},
                                         AddressCase{"FE80::1", "fe80::1"},
                                         AddressCase{"fe80::1%eth0", "fe80::1%eth0"},
                                         AddressCase{"00:11:22:aa:bb:cc", "00:11:22:AA:BB:CC"},
                                         AddressCase{"not an address", ""}, AddressCase{"host", ""},
                                         AddressCase{"10.0.0.7:26500", ""},
                                         AddressCase{"10.0.0.256", ""}, AddressCase{"", ""}));

TEST(PeerAddress, OfTheOlderKindIsSpelledAsSuch) {
  EXPECT_EQ(PeerAddress(QHostAddress(QStringLiteral("::ffff:192.168.1.2"))),
            QStringLiteral("192.168.1.2"));
  EXPECT_EQ(PeerAddress(QHostAddress(QHostAddress::LocalHostIPv6)), QStringLiteral("::1"));
}

}  // namespace
}  // namespace quill
