#include "exchange/QuotedPrintable.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

TEST(QuotedPrintable, DecodesBothCasesOfDigits) {
  EXPECT_EQ(DecodeQuotedPrintable("=E4=c3=BC="), QByteArray("\xE4\xC3\xBC="));
}

TEST(QuotedPrintable, LeavesAnEqualSignThatEncodesNothing) {
  EXPECT_EQ(DecodeQuotedPrintable("a=b =4 =G0 =4G"), "a=b =4 =G0 =4G");
}

TEST(QuotedPrintable, BecomesAsciiWhereBytesWereLeft) {
  EXPECT_EQ(AsciiQuotedPrintable("a\xE9=E4"), "a=E9=E4");
}

TEST(QuotedPrintable, KnowsAQuotedByteOnlyWhole) {
  EXPECT_TRUE(IsQuotedByte("x=0A", 1));
  EXPECT_FALSE(IsQuotedByte("x=0A", 0));
  EXPECT_FALSE(IsQuotedByte("x=0", 1));
}

TEST(QuotedPrintable, BreaksLinesBetweenCharacters) {
  EXPECT_EQ(EncodeQuotedPrintable("ab\xC3\xA9"
                                  "c",
                                  0, 8),
            "ab=\r\n=C3=A9c");
  EXPECT_EQ(EncodeQuotedPrintable("abc\xC3\xA9", 0, 9), "abc=C3=A9");
  EXPECT_EQ(EncodeQuotedPrintable("abc\xC3\xA9", 1, 9), "abc=\r\n=C3=A9");
  EXPECT_EQ(EncodeQuotedPrintable("ab", 20, 9), "=\r\nab");
}

TEST(QuotedPrintable, EncodesBlanksWhereALineMayBeginOrEnd) {
  EXPECT_EQ(EncodeQuotedPrintable(" a b ", 0, 75), "=20a b=20");
  EXPECT_EQ(EncodeQuotedPrintable("a b c", 60, 75), "a b=20c");
}

TEST(QuotedPrintable, EncodesWhatCouldBeMisread) {
  EXPECT_EQ(EncodeQuotedPrintable("=:\\\t\n~\x7F", 0, 75), "=3D=3A=5C=09=0A~=7F");
}

}  // namespace
}  // namespace quill::test
