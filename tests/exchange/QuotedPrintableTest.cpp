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

}  // namespace
}  // namespace quill::test
