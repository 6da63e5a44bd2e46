#include "ink/InkCompose.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quill {
namespace {

constexpr QRect kArea(0, 0, 60, 20);

// A mask with every coverage from nothing to full in it, and long stretches of nothing.
InkMask SoftMask() {
  InkMask mask(kArea);
  mask.Add({10, 10, 0.2, 50, 9, 9});
  mask.Add({5, 3, 0.1, 30, 1, 0.9});
  return mask;
}

QImage RandomPicture(QImage::Format format, unsigned seed) {
  std::mt19937 random(seed);
  QImage image(kArea.size(), format);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      image.setPixel(x, y, qPremultiply(static_cast<QRgb>(random()) | qRgba(0, 0, 0, 7)));
    }
  }
  if (format == QImage::Format_RGB32) image.fill(static_cast<QRgb>(random()) | 0xFF000000);
  return image;
}

int Round(double value) { return static_cast<int>(std::floor(value + 0.5)); }

// Both rules in whole steps of 1/255, colours premultiplied with their alpha.
int Laid(int color, int alpha, int below) {
  return Round((color * alpha + below * (255 - alpha)) / 255.0);
}

int Multiplied(int color, int alpha, int below, int belowAlpha) {
  const double source = color * alpha / 255.0;
  return Round((source * below + source * (255 - belowAlpha) + below * (255 - alpha)) / 255.0);
}

QRgb Expected(const InkPen& pen, int cover, QRgb below) {
  const int alpha = Round(cover * qAlpha(pen.Color) / 255.0);
  const auto channel = [&](int color, int value) {
    return pen.Tip == InkTip::Round ? Laid(color, alpha, value)
                                    : Multiplied(color, alpha, value, qAlpha(below));
  };
  return qRgba(channel(qRed(pen.Color), qRed(below)), channel(qGreen(pen.Color), qGreen(below)),
               channel(qBlue(pen.Color), qBlue(below)), channel(255, qAlpha(below)));
}

QRgb PixelOf(const QImage& image, int x, int y) {
  return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

struct Composition {
  QImage::Format Format;
  InkTip Tip;
  QRgb Color;
};

class InkComposition : public testing::TestWithParam<Composition> {};

TEST_P(InkComposition, IsTheRuleInEveryChannel) {
  const Composition& given = GetParam();
  const InkPen pen{.Color = given.Color, .Tip = given.Tip};
  const InkMask mask = SoftMask();
  const QImage before = RandomPicture(given.Format, 3);
  QImage after = before;
  ComposeInk(after, {}, mask, kArea, pen);
  for (int y = 0; y < kArea.height(); ++y) {
    for (int x = 0; x < kArea.width(); ++x) {
      ASSERT_EQ(PixelOf(after, x, y), Expected(pen, mask.At({x, y}), PixelOf(before, x, y)))
          << "at " << x << ", " << y;
    }
  }
}

constexpr auto kOpaque = QImage::Format_RGB32;
constexpr auto kClear = QImage::Format_ARGB32_Premultiplied;

INSTANTIATE_TEST_SUITE_P(Pens, InkComposition,
                         testing::Values(Composition{kOpaque, InkTip::Round, 0xFF102040},
                                         Composition{kOpaque, InkTip::Round, 0x80F02040},
                                         Composition{kOpaque, InkTip::Round, 0x00FFFFFF},
                                         Composition{kOpaque, InkTip::Highlighter, 0xFFFFE000},
                                         Composition{kOpaque, InkTip::Highlighter, 0x90FFE010},
                                         Composition{kClear, InkTip::Round, 0xFF102040},
                                         Composition{kClear, InkTip::Round, 0x80F02040},
                                         Composition{kClear, InkTip::Highlighter, 0xFFFFE000},
                                         Composition{kClear, InkTip::Highlighter, 0x90FFE010}));

TEST(InkCompose, InkOnNothingIsItsOwnColour) {
  for (const InkTip tip : {InkTip::Round, InkTip::Highlighter}) {
    QImage image(kArea.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    InkMask mask(kArea);
    mask.Add({10, 10, 5, 10, 10, 5});
    ComposeInk(image, {}, mask, kArea, {.Color = 0x80FF4000, .Tip = tip});
    EXPECT_EQ(PixelOf(image, 10, 10), qPremultiply(0x80FF4000));
    EXPECT_EQ(PixelOf(image, 30, 10), 0U);
  }
}

TEST(InkCompose, TouchesNothingOutsideOfTheArea) {
  const QImage before = RandomPicture(QImage::Format_RGB32, 5);
  QImage after = before;
  InkMask mask(kArea);
  mask.Add({30, 10, 90, 30, 10, 90});
  const QRect area(7, 4, 21, 9);
  ComposeInk(after, {}, mask, area, InkPen{});
  for (int y = 0; y < kArea.height(); ++y) {
    for (int x = 0; x < kArea.width(); ++x) {
      ASSERT_EQ(PixelOf(after, x, y), area.contains(x, y) ? InkPen{}.Color : PixelOf(before, x, y));
    }
  }
}

TEST(InkCompose, PlacesThePictureAtItsOrigin) {
  const InkMask mask = SoftMask();
  QImage whole(kArea.size(), QImage::Format_RGB32);
  whole.fill(Qt::white);
  QImage part(20, 10, QImage::Format_RGB32);
  part.fill(Qt::white);
  ComposeInk(whole, {}, mask, kArea, InkPen{});
  ComposeInk(part, {30, 6}, mask, kArea, InkPen{});
  EXPECT_EQ(part, whole.copy(30, 6, 20, 10));
}

TEST(InkCompose, LeavesOutWhatThePictureOrTheMaskDoNotHave) {
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::white);
  InkMask mask(QRect(10, 10, 20, 20));
  mask.Add({15, 15, 90, 15, 15, 90});
  ComposeInk(image, {-5, -5}, mask, QRect(-100, -100, 300, 300), InkPen{});
  EXPECT_EQ(image.pixel(14, 15), 0xFFFFFFFF);
  EXPECT_EQ(image.pixel(15, 15), InkPen{}.Color);
  EXPECT_EQ(image.pixel(19, 19), InkPen{}.Color);
}

TEST(InkCompose, KeepsCopiesOfThePictureAsTheyWere) {
  QImage image(kArea.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  const QImage copy = image;
  ComposeInk(image, {}, SoftMask(), kArea, InkPen{});
  EXPECT_NE(image, copy);
  EXPECT_EQ(copy.pixel(45, 10), 0xFFFFFFFF);
}

class InkComposeFormat : public testing::TestWithParam<QImage::Format> {};

TEST_P(InkComposeFormat, IsLeftAsItIs) {
  QImage image(kArea.size(), GetParam());
  image.fill(Qt::white);
  const QImage before = image;
  ComposeInk(image, {}, SoftMask(), kArea, InkPen{});
  EXPECT_EQ(image, before);
}

INSTANTIATE_TEST_SUITE_P(Others, InkComposeFormat,
                         testing::Values(QImage::Format_ARGB32, QImage::Format_RGB888,
                                         QImage::Format_RGB16, QImage::Format_Grayscale8));

TEST(InkCompose, APictureOfNothingIsLeftAlone) {
  QImage image;
  ComposeInk(image, {}, SoftMask(), kArea, InkPen{});
  EXPECT_TRUE(image.isNull());
}

}  // namespace
}  // namespace quill
