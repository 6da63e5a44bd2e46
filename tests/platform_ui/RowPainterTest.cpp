#include "platform/ui/RowPainter.h"

#include <QImage>
#include <QPainter>

#include "platform/ScreenLayout.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

constexpr QSize kPaper{100, 40};

QImage Draw(const PaintedItem& item, double scale = 1) {
  QImage image(kPaper * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintedRow row;
  row.Items.push_back(item);
  DrawRow(painter, row);
  return image;
}

// The smallest rectangle around all that was drawn.
QRect Ink(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qGray(image.pixel(x, y)) < 200) ink |= QRect(x, y, 1, 1);
  return ink;
}

class RowPainterTest : public test::ScreenFixture {};

TEST_F(RowPainterTest, AFillIsItsRectangle) {
  EXPECT_EQ(Ink(Draw({.Rectangle = {10, 5, 30, 20}, .Fill = 0x204060})), QRect(10, 5, 30, 20));
}

TEST_F(RowPainterTest, DotsAreEveryOtherPixelOfTheFirstLine) {
  const QImage image =
      Draw({.Rectangle = {10, 5, 6, 3}, .Fill = 0x204060, .Pattern = FillPattern::Dots});
  EXPECT_EQ(Ink(image), QRect(10, 5, 5, 1));
  for (int x = 10; x < 16; ++x)
    EXPECT_EQ(image.pixel(x, 5), x % 2 == 0 ? qRgb(0x20, 0x40, 0x60) : qRgb(255, 255, 255)) << x;
}

TEST_F(RowPainterTest, TextStandsInTheMiddleOfItsRectangleByTheCellsOwnMeasures) {
  const int baseLine = 5 + (30 - kCellHeight) / 2 + kCellAscent;
  const QRect ink = Ink(Draw({.Rectangle = {10, 5, 80, 30}, .Text = QStringLiteral("HH")}));
  EXPECT_EQ(ink.bottom() + 1, baseLine);
  EXPECT_GE(ink.left(), 10);
}

TEST_F(RowPainterTest, TextIsAlignedInItsRectangle) {
  PaintedItem item{.Rectangle = {10, 5, 80, 30}, .Text = QStringLiteral("HH")};
  const QRect left = Ink(Draw(item));
  item.Alignment = TextAlign::Right;
  const QRect right = Ink(Draw(item));
  item.Alignment = TextAlign::Centre;
  const QRect centre = Ink(Draw(item));
  EXPECT_LE(left.left(), 12);
  EXPECT_GE(right.right(), 87);
  EXPECT_NEAR(centre.center().x(), 49.5, 1.5);
}

TEST_F(RowPainterTest, TextIsClippedToItsRectangle) {
  const QRect area(10, 5, 30, 14);
  const QRect ink = Ink(Draw({.Rectangle = area, .Text = QString(40, u'W')}));
  EXPECT_TRUE(area.contains(ink));
  EXPECT_EQ(ink.right(), area.right());
}

class BoldTextTest : public RowPainterTest, public testing::WithParamInterface<double> {};

INSTANTIATE_TEST_SUITE_P(Scales, BoldTextTest, testing::Values(1, 1.25, 1.5, 2, 3, 4));

TEST_P(BoldTextTest, HasAtLeastAQuarterMoreInk) {
  const auto inkOf = [](const QImage& image) {
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) ink += 255 - qGray(image.pixel(x, y));
    return ink;
  };
  PaintedItem item{.Rectangle = {10, 5, 80, 30}, .Text = QStringLiteral("Basic 김")};
  const int normal = inkOf(Draw(item, GetParam()));
  item.Weight = TextWeight::Bold;
  EXPECT_GT(inkOf(Draw(item, GetParam())), normal * 1.25);
}

TEST_F(RowPainterTest, APictureStaysInItsRectangleAndHasItsColour) {
  const QRect area(20, 10, 14, 14);
  const QImage image =
      Draw({.Rectangle = area, .Color = 0x800000, .Picture = &resources::kClosePicture});
  const QRect ink = Ink(image);
  EXPECT_FALSE(ink.isNull());
  EXPECT_TRUE(area.contains(ink));
  EXPECT_GT(qRed(image.pixel(ink.center())), qBlue(image.pixel(ink.center())));
}

}  // namespace
}  // namespace quill
