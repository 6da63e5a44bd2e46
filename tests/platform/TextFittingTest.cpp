#include "platform/TextFitting.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

// Every UTF-16 unit is ten pixels wide, half a pair five.
double TenEach(QStringView text) {
  double width = 0;
  for (const QChar unit : text) width += unit.isSurrogate() ? 5 : 10;
  return width;
}

struct ShorteningCase {
  const char16_t* Text;
  double Limit;
  const char16_t* Shortened;
};

class ShortenTextTest : public testing::TestWithParam<ShorteningCase> {};

TEST_P(ShortenTextTest, FollowsTheRule) {
  const ShorteningCase& rule = GetParam();
  EXPECT_EQ(ShortenText(QString::fromUtf16(rule.Text), rule.Limit, TenEach),
            QString::fromUtf16(rule.Shortened));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ShortenTextTest,
    testing::Values(ShorteningCase{u"", 60, u""},        //
                    ShorteningCase{u"Kim", 60, u"Kim"},  //
                    ShorteningCase{u"Kim", 30, u"Kim"},  // as wide as the limit
                    ShorteningCase{u"Kimberly", 30, u"Kim..."},
                    ShorteningCase{u"Kimberly", 0, u"..."},
                    ShorteningCase{u"Kim\nLee", 100, u"Kim\nLee"},  // fits: breaks stay
                    ShorteningCase{u"Kim\r\nLee", 60, u"Kim"},      // ends there, no dots
                    ShorteningCase{u"\nKimberly", 60, u""},
                    ShorteningCase{u"Kimberly\nLee", 30, u"Kim..."}));  // the limit comes first

TEST(ShortenText, TheKeptBeginningIsTheFirstThatReachesTheLimitSoItIsWiderWithItsDots) {
  const QString kept = ShortenText(QStringLiteral("abcdefgh"), 25, TenEach);
  EXPECT_EQ(kept, QStringLiteral("abc..."));
  EXPECT_GT(TenEach(kept), 25);
}

TEST(ShortenText, ATextWhoseLastCharacterAloneCrossesTheLimitStaysWhole) {
  EXPECT_EQ(ShortenText(QStringLiteral("abc"), 25, TenEach), QStringLiteral("abc"));
}

TEST(ShortenText, NeverCutsASurrogatePairInTwo) {
  const QString text = QStringLiteral("ab\U0001F600cdef");
  // The limit is reached in the middle of the pair: the whole pair is kept.
  EXPECT_EQ(ShortenText(text, 25, TenEach), QStringLiteral("ab\U0001F600..."));
}

TEST(ShortenText, LoneHalvesOfPairsAreCharactersOfTheirOwn) {
  const QString text = QString(4, QChar(0xDC00));
  EXPECT_EQ(ShortenText(text, 5, TenEach), QString(1, QChar(0xDC00)) + QStringLiteral("..."));
}

}  // namespace
}  // namespace quill
