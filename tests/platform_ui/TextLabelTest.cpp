#include "platform/ui/TextLabel.h"

#include <QImage>

#include <gtest/gtest.h>

#include "platform/ScreenLayout.h"

namespace quill {
namespace {

constexpr int kWidth = 100;

TEST(TextLabel, ALineIsAsHighAsAnyOnTheScreen) {
  EXPECT_EQ(TextHeight(QStringLiteral("One"), kWidth), kCellHeight);
  EXPECT_EQ(TextHeight(QStringLiteral("One\nTwo\n\nFour"), kWidth), 4 * kCellHeight);
  EXPECT_EQ(TextHeight({}, kWidth), kCellHeight);
}

TEST(TextLabel, ALongTextIsWrappedBetweenWords) {
  EXPECT_GT(TextHeight(QStringLiteral("word ").repeated(20), kWidth), 3 * kCellHeight);
}

TEST(TextLabel, AWordTooLongForALineIsBroken) {
  EXPECT_GT(TextHeight(QString(100, u'x'), kWidth), 3 * kCellHeight);
  EXPECT_GT(TextHeight(QString(40, QChar(0xAC00)), kWidth), 3 * kCellHeight);
}

TEST(TextLabel, LinesDoNotTouch) {
  CTextLabel label(QStringLiteral("gjpqy\nABC"), nullptr);
  label.resize(kWidth, 2 * kCellHeight);
  QImage picture(label.size(), QImage::Format_RGB32);
  label.render(&picture);
  const QRgb ground = picture.pixel(kWidth - 1, 0);
  int blankRows = 0;
  for (int y = kCellHeight - 2; y <= kCellHeight + 2; ++y) {
    bool isBlank = true;
    for (int x = 0; x < kWidth; ++x) isBlank = isBlank && picture.pixel(x, y) == ground;
    blankRows += isBlank ? 1 : 0;
  }
  EXPECT_GE(blankRows, 1);
}

}  // namespace
}  // namespace quill
