#include "exchange/CardLines.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include <algorithm>

#include "exchange/PatternDevice.h"

namespace quill::test {
namespace {

QByteArrayList LinesOf(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  CardLines lines(buffer);
  QByteArrayList found;
  ByteLine line;
  while (lines.Next(line)) found.append(QByteArray::number(line.Number) + ' ' + line.Bytes);
  return found;
}

TEST(CardLines, DropOneBlankOfAFold) {
  EXPECT_EQ(LinesOf("A:1\n  2\n\t3\nB:4"), (QByteArrayList{"1 A:1 23", "4 B:4"}));
}

TEST(CardLines, FoldOnAcrossBlankLines) {
  EXPECT_EQ(LinesOf("A:1\n\n 2\n\n\nB:3\n\n"), (QByteArrayList{"1 A:12", "6 B:3"}));
}

TEST(CardLines, JoinSoftBreaksAndKeepTheirBlanks) {
  EXPECT_EQ(LinesOf("A;QUOTED-PRINTABLE:1=\n 2= \n3\nB:4"),
            (QByteArrayList{"1 A;QUOTED-PRINTABLE:1 23", "4 B:4"}));
}

TEST(CardLines, JoinSoftBreaksAcrossBlankLines) {
  EXPECT_EQ(LinesOf("A;ENCODING=quoted-printable:=C3=\n\n=A4"),
            (QByteArrayList{"1 A;ENCODING=quoted-printable:=C3=A4"}));
}

struct SoftBreakCase {
  const char* Next;
  bool IsProperty;
};

class CardSoftBreaks : public testing::TestWithParam<SoftBreakCase> {};

TEST_P(CardSoftBreaks, StopBeforeWhatLooksLikeAProperty) {
  const QByteArray next = GetParam().Next;
  const QByteArrayList expected =
      GetParam().IsProperty ? QByteArrayList{"1 A;ENCODING=QUOTED-PRINTABLE:1", "2 " + next}
                            : QByteArrayList{"1 A;ENCODING=QUOTED-PRINTABLE:1" + next};
  EXPECT_EQ(LinesOf("A;ENCODING=QUOTED-PRINTABLE:1=\n" + next), expected);
}

INSTANTIATE_TEST_SUITE_P(
    NextLines, CardSoftBreaks,
    testing::Values(SoftBreakCase{"END:VCARD", true}, SoftBreakCase{"TEL:1", true},
                    SoftBreakCase{"TEL;WORK:1", true}, SoftBreakCase{"TEL;TYPE=CELL:1", true},
                    SoftBreakCase{"TEL;type=fax;PREF:1", true},
                    SoftBreakCase{"KEY;ENCODING=BASE64:1", true},
                    SoftBreakCase{"Hans;K=C3=B6ln:1", false}, SoftBreakCase{"a;=41:1", false},
                    SoftBreakCase{"item1.X-A_B:1", true}, SoftBreakCase{"N;CHARSET=UTF-8:1", true},
                    SoftBreakCase{"at ten: lunch", false}, SoftBreakCase{"=41:1", false},
                    SoftBreakCase{"x=3Ay:1", false}, SoftBreakCase{"http://a", false},
                    SoftBreakCase{"no colon", false}, SoftBreakCase{":1", false},
                    SoftBreakCase{"a/b:1", false}));

TEST(CardLines, GoOnUnindentedInBase64UntilABlankLineOrAProperty) {
  EXPECT_EQ(LinesOf("A;BASE64:\nQUJD\n REVG\n\nR0hJ\n"),
            (QByteArrayList{"1 A;BASE64:QUJDREVG", "5 R0hJ"}));
  EXPECT_EQ(LinesOf("A;ENCODING=b:QUJD\nB:1"), (QByteArrayList{"1 A;ENCODING=b:QUJD", "2 B:1"}));
}

TEST(CardLines, GoOnAfterAnOpenBackslashInVersion21Only) {
  EXPECT_EQ(LinesOf("VERSION:2.1\nA:1\\\n2\nB:3\\\\\n4"),
            (QByteArrayList{"1 VERSION:2.1", "2 A:1\\n2", "4 B:3\\\\", "5 4"}));
  EXPECT_EQ(LinesOf("VERSION:2.1\nA:1\\\nB:2"),
            (QByteArrayList{"1 VERSION:2.1", "2 A:1\\", "3 B:2"}));
  EXPECT_EQ(LinesOf("VERSION:3.0\nA:1\\\n2"), (QByteArrayList{"1 VERSION:3.0", "2 A:1\\", "3 2"}));
}

TEST(CardLines, FindTheEncodingInAFoldedHeader) {
  EXPECT_EQ(LinesOf("A;ENCODING=\n QUOTED-PRINTABLE:1=\n2"),
            (QByteArrayList{"1 A;ENCODING=QUOTED-PRINTABLE:12"}));
}

TEST(CardLines, AreCutAtTheLimitHoweverManyFolds) {
  PatternDevice device("\n yyyyyyyyyyyyyyyyyyy", CardLines::kMaxLine / 10, 64 * 1024, "\nB:1\n");
  CardLines lines(device);
  ByteLine line;
  ASSERT_TRUE(lines.Next(line));
  EXPECT_TRUE(line.IsCut);
  EXPECT_EQ(line.Bytes.size(), CardLines::kMaxLine);
  ASSERT_TRUE(lines.Next(line));
  EXPECT_EQ(line.Bytes, "B:1");
  EXPECT_FALSE(line.IsCut);
}

TEST(CardLines, KeepFoldsAndTheBlankLinesBeforeThem) {
  PatternDevice device("\r\n\nA:1\r\n 2\r\n\n 3\nB;BASE64:\nQ\n\nC", 1, 3);
  CardLines lines(device, RawBytes::Kept);
  QByteArrayList raw;
  ByteLine line;
  while (lines.Next(line)) raw.append(line.Raw);
  EXPECT_EQ(raw, (QByteArrayList{"\r\n\nA:1\r\n 2\r\n\n 3\n", "B;BASE64:\nQ\n", "\nC"}));
}

TEST(CardLines, KeepNoMoreThanTheLimitHoweverManyFoldsOrBlankLines) {
  for (const char* piece : {"\n y", "\n"}) {
    PatternDevice device(piece, CardLines::kMaxLine, 64 * 1024, "\nB:1\n");
    CardLines lines(device, RawBytes::Kept);
    ByteLine line;
    qsizetype longest = 0;
    QByteArray last;
    while (lines.Next(line)) {
      longest = std::max(longest, line.Raw.size());
      last = line.Raw;
    }
    EXPECT_GE(longest, CardLines::kMaxLine);
    EXPECT_LE(longest, CardLines::kMaxLine + 4);
    EXPECT_TRUE(last.endsWith("B:1\n"));
  }
}

}  // namespace
}  // namespace quill::test
