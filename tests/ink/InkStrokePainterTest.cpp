#include "ink/InkStrokePainter.h"

#include <gtest/gtest.h>

#include <random>

#include "ink/InkFormat.h"
#include "ink/InkPictures.h"

namespace quill {
namespace {

constexpr double kScale = InkScale(100, 1);
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kBlue = 0xFF0000FF;
constexpr QRgb kYellow = 0xFFFFFF00;

// Thick pens: 0 red, 1 blue, 2 a yellow highlighter, 3 half of black.
InkNote NoteWithPens() {
  InkNote note;
  note.Pens = {{.Color = kRed, .Diameter = 640},
               {.Color = kBlue, .Diameter = 640},
               {.Color = kYellow, .Diameter = 640, .Tip = InkTip::Highlighter},
               {.Color = 0x80000000, .Diameter = 640}};
  return note;
}

void AddLine(InkNote& note, quint32 pen, const QPoint& from, const QPoint& to) {
  const auto point = [](const QPoint& at) {
    return InkPoint{.X = at.x() * kInkUnitsPerPixel, .Y = at.y() * kInkUnitsPerPixel};
  };
  note.Strokes.push_back(SealInkStroke({.Pen = pen, .Points = {point(from), point(to)}}));
}

QImage WhitePage() {
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

QImage Painted(const InkNote& note) {
  QImage image = WhitePage();
  PaintStrokes(image, {}, image.rect(), kScale, note);
  return image;
}

TEST(InkStrokePainter, LaterStrokesLieOnTop) {
  InkNote note = NoteWithPens();
  AddLine(note, 0, {20, 50}, {80, 50});
  AddLine(note, 1, {50, 20}, {50, 80});
  const QImage image = Painted(note);
  EXPECT_EQ(image.pixel(50, 50), kBlue);
  EXPECT_EQ(image.pixel(25, 50), kRed);
  EXPECT_EQ(image.pixel(5, 5), kWhite);
}

TEST(InkStrokePainter, HighlightersLieUnderRoundInkWhereverTheyStandInTheFile) {
  InkNote note = NoteWithPens();
  AddLine(note, 0, {20, 50}, {80, 50});
  AddLine(note, 2, {50, 20}, {50, 80});
  const QImage image = Painted(note);
  EXPECT_EQ(image.pixel(50, 50), kRed);
  EXPECT_EQ(image.pixel(50, 25), kYellow);
}

TEST(InkStrokePainter, HighlightersLetTheTextThrough) {
  InkNote note = NoteWithPens();
  AddLine(note, 2, {20, 50}, {80, 50});
  QImage image = WhitePage();
  image.setPixel(50, 50, qRgb(0, 0, 0));
  image.setPixel(51, 50, qRgb(255, 0, 255));
  PaintStrokes(image, {}, image.rect(), kScale, note);
  EXPECT_EQ(image.pixel(50, 50), qRgb(0, 0, 0));
  EXPECT_EQ(image.pixel(51, 50), qRgb(255, 0, 0));
}

TEST(InkStrokePainter, AStrokeIsNoDarkerWhereItCrossesItself) {
  InkNote note = NoteWithPens();
  AddLine(note, 3, {20, 50}, {80, 50});
  InkStroke crossing = *note.Strokes[0];
  crossing.Points.push_back({.X = 50 * 32, .Y = 50 * 32});
  crossing.Points.push_back({.X = 50 * 32, .Y = 90 * 32});
  note.Strokes[0] = SealInkStroke(crossing);
  EXPECT_EQ(Painted(note).pixel(45, 50), Painted(note).pixel(22, 50));
  AddLine(note, 3, {20, 50}, {80, 50});
  EXPECT_LT(qRed(Painted(note).pixel(45, 50)), 100);
}

TEST(InkStrokePainter, AStrokeOfAPenThatIsNotThereHasTheDefaultOne) {
  InkNote note;
  AddLine(note, 7, {40, 50}, {60, 50});
  EXPECT_EQ(InkPenOf(note, *note.Strokes[0]), InkPen{});
  EXPECT_EQ(Painted(note).pixel(50, 49), InkPen{}.Color);
}

TEST(InkStrokePainter, BothKindsApartAreAllOfIt) {
  const InkNote note = ScribbledNote(40, 2);
  QImage apart = PageOf(InkNote{}, kScale);
  PaintHighlighters(apart, {}, apart.rect(), kScale, note);
  QImage highlighters = apart;
  PaintRoundStrokes(apart, {}, apart.rect(), kScale, note);
  EXPECT_EQ(apart, PageOf(note, kScale));
  EXPECT_NE(apart, highlighters);
  EXPECT_NE(highlighters, PageOf(InkNote{}, kScale));
}

TEST(InkStrokePainter, PaintsNothingOutsideOfTheArea) {
  InkNote note = NoteWithPens();
  AddLine(note, 0, {0, 50}, {100, 50});
  QImage image = WhitePage();
  PaintStrokes(image, {}, QRect(30, 0, 40, 50), kScale, note);
  EXPECT_EQ(image.pixel(29, 49), kWhite);
  EXPECT_EQ(image.pixel(30, 49), kRed);
  EXPECT_EQ(image.pixel(69, 49), kRed);
  EXPECT_EQ(image.pixel(70, 49), kWhite);
  EXPECT_EQ(image.pixel(50, 50), kWhite);
}

TEST(InkStrokePainter, AnEmptyAreaIsNothingToPaint) {
  InkNote note = NoteWithPens();
  AddLine(note, 0, {0, 50}, {100, 50});
  QImage image = WhitePage();
  PaintStrokes(image, {}, QRect(), kScale, note);
  PaintStrokes(image, {}, QRect(200, 0, 50, 50), kScale, note);
  EXPECT_EQ(image, WhitePage());
}

TEST(InkStrokePainter, AStrokeWithoutPointsIsPassedOver) {
  InkNote note = NoteWithPens();
  note.Strokes.push_back(std::make_shared<InkStroke>());
  EXPECT_EQ(Painted(note), WhitePage());
}

TEST(InkStrokePainter, AStrokeFromOneEndOfThePlaneToTheOtherIsPainted) {
  InkNote note = NoteWithPens();
  AddLine(note, 0, {-(1 << 25), 50}, {1 << 25, 50});
  const QImage image = Painted(note);
  EXPECT_EQ(image.pixel(0, 50), kRed);
  EXPECT_EQ(image.pixel(99, 50), kRed);
  EXPECT_EQ(image.pixel(50, 20), kWhite);
}

class InkPieces : public testing::TestWithParam<int> {};

TEST_P(InkPieces, AreThoseOfTheWholePage) {
  const InkNote note = ScribbledNote(60, 11);
  const double scale = InkScale(GetParam(), 1);
  const QImage whole = PageOf(note, scale);
  std::mt19937 random(GetParam());
  for (int round = 0; round < 30; ++round) {
    const QPoint at(static_cast<int>(random() % whole.width()),
                    static_cast<int>(random() % whole.height()));
    const QSize size(1 + static_cast<int>(random() % 100), 1 + static_cast<int>(random() % 60));
    const QRect area = QRect(at, size) & whole.rect();
    ASSERT_EQ(PieceOf(note, scale, area), whole.copy(area)) << "round " << round;
  }
}

TEST_P(InkPieces, AreTheSameOfThePageThatWasSavedAndLoaded) {
  const InkNote note = ScribbledNote(60, 11);
  const double scale = InkScale(GetParam(), 1);
  EXPECT_EQ(PageOf(ReadInk(WriteInk(note)).Note, scale), PageOf(note, scale));
}

INSTANTIATE_TEST_SUITE_P(Zooms, InkPieces, testing::Values(75, 100, 150, 200, 300));

}  // namespace
}  // namespace quill
