#include "infrared/OfferText.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct OfferCase {
  const char* Name;
  ObexOffer Offer;
  OfferText Text;
};

class OfferTextTest : public testing::TestWithParam<OfferCase> {};

TEST_P(OfferTextTest, SaysWhoSendsWhat) {
  const OfferText text = DescribeOffer(GetParam().Offer);
  EXPECT_EQ(text.Peer, GetParam().Text.Peer);
  EXPECT_EQ(text.Address, GetParam().Text.Address);
  EXPECT_EQ(text.Card, GetParam().Text.Card);
}

INSTANTIATE_TEST_SUITE_P(
    Offers, OfferTextTest,
    testing::Values(OfferCase{"Whole",
                              {u"00:11:22:33:44:55"_qs, u"Kim's phone"_qs, u"lee.vcf"_qs,
                               u"이몽룡"_qs, 1},
                              {u"Kim's phone"_qs, u"00:11:22:33:44:55"_qs, u"이몽룡"_qs}},
                    OfferCase{"WithoutANameOfThePeer",
                              {u"127.0.0.1"_qs, {}, {}, u"Lee"_qs, 1},
                              {u"127.0.0.1"_qs, {}, u"Lee"_qs}},
                    OfferCase{"WithoutAPerson",
                              {u"127.0.0.1"_qs, {}, u"lee.vcf"_qs, {}, 0},
                              {u"127.0.0.1"_qs, {}, u"lee.vcf"_qs}},
                    OfferCase{"SeveralCards",
                              {u"127.0.0.1"_qs, {}, {}, u"Lee"_qs, 4},
                              {u"127.0.0.1"_qs, {}, u"Lee and 3 more"_qs}},
                    OfferCase{"Nothing", {}, {u"an unknown device"_qs, {}, u"without a name"_qs}},
                    OfferCase{"NamesThatMoveTheTextAround",
                              {u"127.0.0.1"_qs, u"a\u202eb\nc"_qs, {}, u"\u2067x\x1b[2J\ty"_qs, 1},
                              {u"ab c"_qs, u"127.0.0.1"_qs, u"x[2J y"_qs}}),
    [](const auto& parameter) { return std::string(parameter.param.Name); });

TEST(LongOffers, AreCut) {
  const ObexOffer offer{{}, QString(1'000, u'a'), {}, QString(1'000, u'b'), 1};
  EXPECT_LT(DescribeOffer(offer).Peer.size(), 100);
  EXPECT_LT(DescribeOffer(offer).Card.size(), 100);
}

}  // namespace
}  // namespace quill
