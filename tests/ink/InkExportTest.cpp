#include "ink/InkExport.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <cmath>

#include "ink/InkPictures.h"
#include "ink/InkSelect.h"
#include "ink/InkStrokePainter.h"

namespace quill {
namespace {

constexpr int kUnit = kInkUnitsPerPixel;

InkStroke StrokeOf(const std::vector<QPoint>& pixels, quint16 pressure = kFullPressure) {
  InkStroke stroke{.Parts = kInkHasPressure};
  for (const QPoint at : pixels)
    stroke.Points.push_back({.X = at.x() * kUnit, .Y = at.y() * kUnit, .Pressure = pressure});
  return stroke;
}

InkNote NoteOf(InkStroke stroke, const InkPen& pen = {}) {
  InkNote note{.Pens = {pen}};
  note.Strokes.push_back(SealInkStroke(std::move(stroke)));
  return note;
}

InkNote NoteOf(const QString& text) {
  InkNote note;
  note.Text.Text = text;
  note.Text.Runs = {{.Length = static_cast<int>(text.size())}};
  return note;
}

struct Element {
  QString Name;
  QXmlStreamAttributes Attributes;
  QString Text;

  QString Value(const char* name) const {
    return Attributes.value(QString::fromLatin1(name)).toString();
  }
};

// All elements in their order; it has to be well-formed.
std::vector<Element> ElementsOf(const InkNote& note) {
  QXmlStreamReader reader(InkSvg(note));
  std::vector<Element> elements;
  while (!reader.atEnd()) {
    reader.readNext();
    if (reader.isStartElement())
      elements.push_back({reader.name().toString(), reader.attributes(), {}});
    if (reader.isCharacters() && !elements.empty()) elements.back().Text += reader.text();
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return elements;
}

std::vector<Element> ElementsOf(const InkNote& note, const char* name) {
  std::vector<Element> named;
  for (Element& element : ElementsOf(note))
    if (element.Name == QLatin1String(name)) named.push_back(std::move(element));
  return named;
}

TEST(InkContentArea, IsThatOfStrokesAndText) {
  EXPECT_TRUE(InkContentArea({}).isEmpty());
  const InkNote stroke = NoteOf(StrokeOf({{100, 200}, {150, 200}}));
  EXPECT_EQ(InkContentArea(stroke), PaintedBounds(stroke, *stroke.Strokes[0]));
  InkNote both = NoteOf(QStringLiteral("a"));
  const QRect text = InkContentArea(both);
  EXPECT_TRUE(text.contains(QRect(8 * kUnit, 0, kUnit, 24 * kUnit)));
  both.Strokes = stroke.Strokes;
  both.Pens = stroke.Pens;
  EXPECT_EQ(InkContentArea(both), text.united(InkContentArea(stroke)));
}

struct PathRow {
  const char* Name;
  std::vector<QPoint> Points;
  const char16_t* Path;
};

class InkSvgPaths : public testing::TestWithParam<PathRow> {};

TEST_P(InkSvgPaths, GoThroughTheMiddlesOfTheirPoints) {
  const auto paths = ElementsOf(NoteOf(StrokeOf(GetParam().Points)), "path");
  ASSERT_EQ(paths.size(), 1U);
  EXPECT_EQ(paths[0].Value("d"), QString::fromUtf16(GetParam().Path));
}

INSTANTIATE_TEST_SUITE_P(
    Strokes, InkSvgPaths,
    testing::Values(PathRow{"ADot", {{5, 6}}, u"M5.00 6.00l0 0"},
                    PathRow{"ALine", {{0, 0}, {10, 20}}, u"M0.00 0.00L5.00 10.00L10.00 20.00"},
                    PathRow{"ABend",
                            {{0, 0}, {10, 0}, {10, 10}},
                            u"M0.00 0.00L5.00 0.00Q10.00 0.00 10.00 5.00L10.00 10.00"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(InkSvg, IsAsLargeAsItsContent) {
  const InkNote note = NoteOf(StrokeOf({{100, 200}, {150, 230}}));
  const QRect area = InkContentArea(note);
  const Element svg = ElementsOf(note).at(0);
  EXPECT_EQ(svg.Name, QStringLiteral("svg"));
  EXPECT_EQ(svg.Value("width").toDouble(), std::round(area.width() * 100.0 / kUnit) / 100);
  const QStringList box = svg.Value("viewBox").split(u' ');
  ASSERT_EQ(box.size(), 4);
  EXPECT_NEAR(box[0].toDouble(), area.left() / 32.0, 0.01);
  EXPECT_NEAR(box[1].toDouble(), area.top() / 32.0, 0.01);
  EXPECT_EQ(box[2], svg.Value("width"));
  EXPECT_EQ(box[3], svg.Value("height"));
  EXPECT_NEAR(box[3].toDouble(), area.height() / 32.0, 0.01);
}

TEST(InkSvg, AStrokeHasItsPensColourAndMeanWidth) {
  const InkPen pen{.Color = 0x80FF8000, .Diameter = 4 * kUnit, .MinimumWidth = 50};
  InkStroke stroke = StrokeOf({{0, 0}, {9, 9}});
  stroke.Points[0].Pressure = 0;
  const Element path = ElementsOf(NoteOf(stroke, pen), "path").at(0);
  EXPECT_EQ(path.Value("stroke"), QStringLiteral("#ff8000"));
  EXPECT_EQ(path.Value("stroke-opacity"), QStringLiteral("0.50"));
  EXPECT_EQ(path.Value("stroke-width"), QStringLiteral("3.00"));
}

TEST(InkSvg, HighlightersLieUnderRoundInkAndMultiply) {
  InkNote note = NoteOf(StrokeOf({{0, 0}}));
  note.Pens.push_back({.Color = 0xFFFFFF00, .Tip = InkTip::Highlighter});
  InkStroke marked = StrokeOf({{5, 5}});
  marked.Pen = 1;
  note.Strokes.push_back(SealInkStroke(std::move(marked)));
  const auto paths = ElementsOf(note, "path");
  ASSERT_EQ(paths.size(), 2U);
  EXPECT_EQ(paths[0].Value("stroke"), QStringLiteral("#ffff00"));
  EXPECT_EQ(paths[0].Value("style"), QStringLiteral("mix-blend-mode:multiply"));
  EXPECT_EQ(paths[1].Value("style"), QString());
}

TEST(InkSvg, TextStandsLineByLine) {
  InkNote note = NoteOf(QStringLiteral("one two\nthree"));
  note.Text.SoftBreaks = {4};
  note.Text.Runs[0].Size = 20 * kUnit;
  const auto texts = ElementsOf(note, "text");
  ASSERT_EQ(texts.size(), 3U);
  EXPECT_EQ(texts[0].Text.trimmed(), QStringLiteral("one"));
  EXPECT_EQ(texts[1].Text.trimmed(), QStringLiteral("two"));
  EXPECT_EQ(texts[2].Text.trimmed(), QStringLiteral("three"));
  EXPECT_EQ(texts[2].Value("x"), QStringLiteral("8.00"));
  EXPECT_EQ(texts[2].Value("y"), QStringLiteral("67.00"));
  EXPECT_EQ(texts[2].Value("font-size"), QStringLiteral("20.00"));
}

TEST(InkSvg, TextOfAnyCharactersIsWellFormed) {
  const QString text =
      QString::fromUtf16(u"<a href=\"x\">&amp; %1 %2\u0001\u001B\uFFFE\uFFFF\U0001F600");
  const auto texts = ElementsOf(NoteOf(text + QChar(0xD800)), "text");
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].Text.trimmed(),
            QString::fromUtf16(u"<a href=\"x\">&amp; %1 %2\U0001F600\uFFFD"));
}

TEST(InkSvg, WithoutTextThereIsNone) {
  EXPECT_TRUE(ElementsOf(NoteOf(StrokeOf({{0, 0}})), "text").empty());
}

class InkImageTimes : public testing::TestWithParam<double> {};

TEST_P(InkImageTimes, ShowsTheContentAsThePageDoes) {
  const InkNote note = ScribbledNote(12, 3);
  const QImage image = InkImage(note, GetParam());
  const double scale = GetParam() / kUnit;
  const QRect area = InkContentArea(note);
  const QRect device =
      QRectF(area.x() * scale, area.y() * scale, area.width() * scale, area.height() * scale)
          .toAlignedRect();
  QImage expected(device.size(), QImage::Format_ARGB32_Premultiplied);
  expected.fill(Qt::transparent);
  PaintStrokes(expected, device.topLeft(), device, scale, note);
  EXPECT_EQ(image, expected);
}

INSTANTIATE_TEST_SUITE_P(Times, InkImageTimes, testing::Values(1.0, 1.5, 2.0));

TEST(InkImage, HasInkWhereTheStrokeIs) {
  const InkNote note = NoteOf(StrokeOf({{100, 200}, {150, 200}}), {.Color = 0xFF123456});
  const QRect area = InkContentArea(note);
  const QImage image = InkImage(note, 2);
  const int left = static_cast<int>(std::floor(area.left() / 16.0));
  const int top = static_cast<int>(std::floor(area.top() / 16.0));
  EXPECT_EQ(image.pixel(2 * 125 - left, 2 * 200 - top), 0xFF123456);
  EXPECT_EQ(qAlpha(image.pixel(2 * 125 - left, 2 * 200 - top - 5)), 0);
}

TEST(InkImage, HasItsText) {
  const QImage text = InkImage(NoteOf(QStringLiteral("MMMM")), 1);
  QImage bare(text.size(), text.format());
  bare.fill(Qt::transparent);
  EXPECT_NE(text, bare);
}

TEST(InkImage, OfNothingIsNone) { EXPECT_TRUE(InkImage({}, 2).isNull()); }

TEST(InkImage, ThatWouldBeTooLargeIsNone) {
  EXPECT_FALSE(InkImage(NoteOf(StrokeOf({{0, 0}, {4000, 3900}})), 1).isNull());
  EXPECT_TRUE(InkImage(NoteOf(StrokeOf({{0, 0}, {4200, 4200}})), 1).isNull());
  EXPECT_TRUE(
      InkImage(NoteOf(StrokeOf({{-(1 << 25), -(1 << 25)}, {1 << 25, 1 << 25}})), 1).isNull());
  EXPECT_TRUE(InkImage(NoteOf(StrokeOf({{-(1 << 25), 0}, {1 << 25, 0}})), 1).isNull());
}

}  // namespace
}  // namespace quill
