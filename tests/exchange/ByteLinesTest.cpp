#include "exchange/ByteLines.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include "exchange/PatternDevice.h"

namespace quill::test {
namespace {

QByteArrayList LinesOf(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  ByteLines lines(buffer);
  QByteArrayList found;
  ByteLine line;
  while (lines.Next(line)) found.append(QByteArray::number(line.Number) + ' ' + line.Bytes);
  return found;
}

TEST(ByteLines, EndAtEveryKindOfLineEnd) {
  EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (QByteArrayList{"1 a", "2 b", "3 c", "4 d"}));
}

TEST(ByteLines, CountBlankLines) {
  EXPECT_EQ(LinesOf("\n\r\na\n"), (QByteArrayList{"1 ", "2 ", "3 a"}));
}

TEST(ByteLines, AreNoneInAnEmptyFile) { EXPECT_EQ(LinesOf(""), QByteArrayList()); }

TEST(ByteLines, GoOnAcrossBlocksAlsoInsideALineEnd) {
  const QByteArray full(64 * 1024 - 1, 'x');
  EXPECT_EQ(LinesOf(full + "\r\nb"), (QByteArrayList{"1 " + full, "2 b"}));
  EXPECT_EQ(LinesOf(full + "yy\nb"), (QByteArrayList{"1 " + full + "yy", "2 b"}));
}

TEST(ByteLines, ReadUtf16FromADeviceThatGivesSingleBytes) {
  const QString text = u"가\n\U0001F600b"_qs;
  for (const bool isBig : {false, true}) {
    QStringEncoder encode(isBig ? QStringEncoder::Utf16BE : QStringEncoder::Utf16LE,
                          QStringEncoder::Flag::WriteBom);
    PatternDevice device(encode(text), 1, 1);
    ByteLines lines(device);
    ByteLine line;
    ASSERT_TRUE(lines.Next(line));
    EXPECT_TRUE(lines.IsUnicode());
    EXPECT_EQ(QString::fromUtf8(line.Bytes), u"가"_qs);
    ASSERT_TRUE(lines.Next(line));
    EXPECT_EQ(QString::fromUtf8(line.Bytes), u"\U0001F600b"_qs);
    EXPECT_FALSE(lines.Next(line));
  }
}

TEST(ByteLines, AreNotTakenForUtf16ByTwoPlainCharacters) {
  QBuffer buffer;
  buffer.setData("ab\nc");
  buffer.open(QIODevice::ReadOnly);
  ByteLines lines(buffer);
  ByteLine line;
  ASSERT_TRUE(lines.Next(line));
  EXPECT_FALSE(lines.IsUnicode());
}

TEST(ByteLines, AreCutAtTheLimitAndTheNextLineIsWhole) {
  const qint64 count = 3 * ByteLines::kMaxLine;
  PatternDevice device("x", count, 64 * 1024, "\nnext\n");
  ByteLines lines(device);
  ByteLine line;
  ASSERT_TRUE(lines.Next(line));
  EXPECT_TRUE(line.IsCut);
  EXPECT_EQ(line.Bytes.size(), ByteLines::kMaxLine);
  EXPECT_LE(line.Bytes.capacity(), 2 * ByteLines::kMaxLine);
  ASSERT_TRUE(lines.Next(line));
  EXPECT_FALSE(line.IsCut);
  EXPECT_EQ(line.Bytes, "next");
  EXPECT_EQ(lines.BytesRead(), count + 6);
}

QByteArrayList RawLinesOf(QIODevice& device) {
  ByteLines lines(device, RawBytes::Kept);
  QByteArrayList found;
  ByteLine line;
  while (lines.Next(line)) found.append(line.Raw);
  return found;
}

TEST(ByteLines, KeepTheBytesAsTheyCameWhenTheyShall) {
  const QByteArray bytes("\xEF\xBB\xBFn\0l\r\n\rb\n", 11);
  PatternDevice device(bytes, 1, 1);
  EXPECT_EQ(RawLinesOf(device), (QByteArrayList{bytes.first(8), "\r", "b\n"}));
}

TEST(ByteLines, KeepNoMoreThanTheLimitOfALine) {
  PatternDevice device("x", 2 * ByteLines::kMaxLine, 64 * 1024, "\nnext");
  const QByteArrayList raw = RawLinesOf(device);
  ASSERT_EQ(raw.size(), 2);
  EXPECT_EQ(raw.first().size(), ByteLines::kMaxLine + 1);
  EXPECT_TRUE(raw.first().endsWith('\n'));
  EXPECT_EQ(raw.last(), "next");
}

TEST(ByteLines, KeepNoBytesUnlessTheyShall) {
  PatternDevice device("a\n", 1, 2);
  ByteLines lines(device);
  ByteLine line;
  ASSERT_TRUE(lines.Next(line));
  EXPECT_EQ(line.Raw, "");
}

TEST(ByteLines, TellThatTheDeviceFailed) {
  PatternDevice device("x\n", 1, 2);
  device.FailAtEnd();
  ByteLines lines(device);
  ByteLine line;
  ASSERT_TRUE(lines.Next(line));
  EXPECT_FALSE(lines.Next(line));
  EXPECT_TRUE(lines.HasFailed());
}

}  // namespace
}  // namespace quill::test
