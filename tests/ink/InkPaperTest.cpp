#include "ink/InkPaper.h"

#include <gtest/gtest.h>

#include <map>

namespace quill {
namespace {

constexpr InkPage kPage{};  // 240 pixels wide
constexpr double kScale = 1.0 / kInkUnitsPerPixel;
const InkPaper kRuled{};
const InkPaper kDotted{.Style = kDottedPaper};

QImage Painted(const InkPaper& paper, double times = 1, const InkPage& page = kPage,
               const QRect& area = QRect(0, 0, 290, 120)) {
  QImage image(area.size(), QImage::Format_RGB32);
  image.fill(Qt::black);
  PaintPaper({image, area.topLeft(), area, kScale * times}, page, paper);
  return image;
}

std::map<QRgb, int> Colors(const QImage& image, const QRect& area) {
  std::map<QRgb, int> colors;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x) ++colors[image.pixel(x, y)];
  return colors;
}

std::vector<int> RowsUnlike(const QImage& image, int x, QRgb color) {
  std::vector<int> rows;
  for (int y = 0; y < image.height(); ++y)
    if (image.pixel(x, y) != color) rows.push_back(y);
  return rows;
}

TEST(InkPaper, RulesLieAPitchApart) {
  const QImage image = Painted(kRuled);
  EXPECT_EQ(RowsUnlike(image, 50, 0xFFFFFFFF), (std::vector<int>{24, 48, 72, 96}));
  EXPECT_NE(image.pixel(239, 24), 0xFFFFFFFF);
}

TEST(InkPaper, RulesAreThickerWhereThePageIsLarger) {
  EXPECT_EQ(RowsUnlike(Painted(kRuled, 4), 50, 0xFFFFFFFF), (std::vector<int>{96, 97}));
}

TEST(InkPaper, ARuledPageHasAMargin) {
  const QImage image = Painted(kRuled);
  EXPECT_NE(image.pixel(6, 10), 0xFFFFFFFF);
  EXPECT_NE(image.pixel(6, 10), image.pixel(50, 24));
  EXPECT_EQ(image.pixel(5, 10), 0xFFFFFFFF);
  EXPECT_EQ(image.pixel(7, 10), 0xFFFFFFFF);
}

TEST(InkPaper, TheCloseUpHasDotsAtHalfAPitch) {
  const QImage image = Painted(kDotted);
  for (int y = 0; y < 120; ++y)
    for (int x = 0; x < 100; ++x) {
      const bool isDot = x > 0 && y > 0 && x % 12 == 0 && y % 12 == 0;
      ASSERT_EQ(image.pixel(x, y) != 0xFFFFFFFF, isDot) << x << ',' << y;
    }
}

TEST(InkPaper, BesideThePageItIsGrey) {
  for (const InkPaper& paper : {kRuled, kDotted}) {
    const auto colors = Colors(Painted(paper), QRect(240, 0, 50, 120));
    ASSERT_EQ(colors.size(), 1U);
    EXPECT_NE(colors.begin()->first, 0xFFFFFFFF);
  }
}

TEST(InkPaper, AnEndlessPageGoesOn) {
  const QImage image = Painted({.IsEndless = true});
  EXPECT_EQ(image.pixel(280, 10), 0xFFFFFFFF);
  EXPECT_EQ(image.pixel(280, 24), image.pixel(50, 24));
}

TEST(InkPaper, OtherStylesAreRuled) { EXPECT_EQ(Painted({.Style = 7}), Painted(kRuled)); }

TEST(InkPaper, WithoutAPitchOrFarAwayThereAreNoRules) {
  InkPage page = kPage;
  page.RulePitch = 0;
  for (const InkPaper& paper : {kRuled, kDotted}) {
    EXPECT_EQ(Colors(Painted(paper, 1, page), QRect(8, 0, 92, 120)).size(), 1U);
    EXPECT_EQ(Colors(Painted(paper, 0.1), QRect(2, 0, 8, 120)).size(), 1U);
  }
}

class InkPaperPieces : public testing::TestWithParam<double> {};

TEST_P(InkPaperPieces, AreTheWholeHoweverItIsCut) {
  for (const InkPaper& paper : {kRuled, kDotted, InkPaper{.IsEndless = true}}) {
    const QRect all(0, 0, 400, 300);
    const QImage whole = Painted(paper, GetParam(), kPage, all);
    for (const QRect& part : {QRect(0, 0, 7, 300), QRect(90, 20, 70, 61), QRect(3, 47, 390, 2),
                              QRect(220, 100, 90, 90), QRect(350, 10, 9, 9)})
      EXPECT_EQ(Painted(paper, GetParam(), kPage, part), whole.copy(part));
  }
}

INSTANTIATE_TEST_SUITE_P(Scales, InkPaperPieces,
                         testing::Values(0.75, 1.0, 1.5, 2.0, 2.25, 3.0, 4.5, 6.0));

TEST(InkPaper, PaintsItsAreaAndNoMore) {
  QImage image(50, 50, QImage::Format_RGB32);
  image.fill(Qt::black);
  PaintPaper({image, QPoint(10, 20), QRect(15, 25, 5, 6), kScale}, kPage, kRuled);
  EXPECT_EQ(Colors(image, image.rect())[0xFF000000], 50 * 50 - 30);
  EXPECT_NE(image.pixel(5, 5), 0xFF000000);
  EXPECT_NE(image.pixel(9, 10), 0xFF000000);
}

}  // namespace
}  // namespace quill
