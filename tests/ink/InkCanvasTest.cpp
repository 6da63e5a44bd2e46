#include "ink/InkCanvas.h"

#include <QPainter>

#include <random>

#include "ink/InkPageFixture.h"
#include "ink/InkPictures.h"
#include "ink/InkScreens.h"
#include "ink/InkSelect.h"

namespace quill {
namespace {

constexpr QSize kWindow(150, 110);
const InkPen kYellow{.Color = 0xC0FFE000, .Diameter = 400, .Tip = InkTip::Highlighter};

using Screen = test::InkScreen;

// A window that shows a page as a program's does: only what it was told is painted again.
class InkCanvasTest : public test::InkPageFixture {
 protected:
  InkCanvasTest() {
    QObject::connect(&m_document, &InkDocument::StrokeAdded,
                     [this](const InkStrokePtr& stroke) { Show(m_canvas.TakeStroke(*stroke)); });
    QObject::connect(&m_document, &InkDocument::Changed,
                     [this](const QRect& area) { Show(m_canvas.Repaint(area)); });
    QObject::connect(&m_document, &InkDocument::Edited, [this] {
      const QPoint before = m_canvas.View().Scroll();
      m_canvas.FollowExtent();
      if (before != m_canvas.View().Scroll()) ShowAll();
    });
  }

  void Open(const Screen& screen) {
    m_canvas.SetWindow(kWindow, {8, 0}, screen.Ratio);
    m_canvas.SetZoom(screen.Zoom, {0, 0});
    m_canvas.FollowExtent();
    m_shown = QImage(m_canvas.View().WindowSize(), QImage::Format_RGB32);
    m_shown.setDevicePixelRatio(screen.Ratio);
    m_shown.fill(Qt::magenta);
    ShowAll();
  }
  void ShowAll() { ShowWindow(QRect(QPoint(), kWindow)); }
  void Show(const QRect& device) { ShowWindow(m_canvas.View().WindowFromDevice(device)); }
  void ShowWindow(const QRect& window) {
    if (m_shown.isNull() || window.isEmpty()) return;
    QPainter painter(&m_shown);
    painter.setClipRect(window);
    m_canvas.Paint(painter, window);
  }

  // The page as it looks when it is painted from nothing, with a stroke that is in the air.
  QImage Fresh(const InkStroke& air = {}, const InkPen& pen = {}) const {
    const InkView& view = m_canvas.View();
    QImage image(view.WindowSize(), QImage::Format_RGB32);
    InkDocument page;
    page.SetNewPageWidth(Note().Page.Width);
    page.Replace(Note());
    if (!air.Points.empty()) page.AddStroke(air, pen);
    page.SetPreedit(m_document.TextLayout().Preedit());
    PaintInkPage({image, view.Scroll(), view.Shown(), view.Scale()}, page, m_canvas.Paper());
    return image;
  }
  QImage Shown() const {
    QImage image = m_shown;
    image.setDevicePixelRatio(1);
    return image;
  }

  void Begin(const InkPen& pen = {}) {
    m_pen = pen;
    m_air = {.Parts = kInkHasPressure};
    m_canvas.BeginStroke(pen, m_air.Parts);
  }
  void Extend(QPoint pixels, int pressure = 500) {
    m_air.Points.push_back({.X = pixels.x() * kInkUnitsPerPixel + 3,
                            .Y = pixels.y() * kInkUnitsPerPixel + 7,
                            .Pressure = static_cast<quint16>(pressure)});
    Show(m_canvas.ExtendStroke(m_air.Points.back()));
  }
  void Lift() {
    m_canvas.LiftStroke();
    m_document.AddStroke(std::exchange(m_air, {}), m_pen);
  }

  InkCanvas m_canvas{m_document};
  QImage m_shown;
  InkStroke m_air;
  InkPen m_pen;
};

// Does anything that a person can do, in any order, but always in the same one.
class InkCanvasWalk : public InkCanvasTest, public testing::WithParamInterface<Screen> {
 protected:
  int Any(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_random); }
  QPoint AnyPlace() {
    const QPointF corner = m_canvas.View().PageFromWindow({0, 0});
    const QPointF end = m_canvas.View().PageFromWindow({kWindow.width(), kWindow.height()});
    return {Any(0, static_cast<int>(end.x())),
            Any(static_cast<int>(corner.y()), static_cast<int>(end.y()))};
  }
  std::vector<InkStrokePtr> AnyStrokes() {
    std::vector<InkStrokePtr> some;
    for (const InkStrokePtr& stroke : Strokes())
      if (Any(0, 3) == 0) some.push_back(stroke);
    return some;
  }
  void DoAnything();
  void Draw();
  void TypeAnywhere();
  void Compose();
  void Scroll();
  void Zoom();
  void ChangePaper();
  void PasteAnything();

  std::mt19937 m_random{static_cast<unsigned>(GetParam().Zoom + 1000 * GetParam().Ratio)};
  std::size_t m_mostStrokes = 0;
};

void InkCanvasWalk::Draw() {
  Begin(Any(0, 4) == 0 ? kYellow : InkPen{.Color = Any(0, 1) == 0 ? 0xFF102040 : 0x80B01020});
  for (int i = Any(1, 12); i > 0; --i) Extend(AnyPlace(), Any(0, kFullPressure));
  if (Any(0, 3) == 0) Scroll();
  if (Any(0, 9) == 0) Zoom();
  if (Any(0, 5) == 0) PasteAnything();
  EXPECT_EQ(Shown(), Fresh(m_air, m_pen));
  if (Any(0, 5) == 0) return Show(m_canvas.CancelStroke());
  Lift();
}

void InkCanvasWalk::TypeAnywhere() {
  const auto length = static_cast<int>(Text().size());
  const int from = Any(0, length);
  const int to = std::min(length, from + Any(0, 3));
  const QString words[] = {{},
                           QStringLiteral("\n"),
                           QStringLiteral("word "),
                           QString::fromUtf16(u"\uD55C\uAE00 "),
                           QStringLiteral("a longer piece of text ")};
  m_document.Type(from, to, words[Any(0, 4)]);
}

// Where there is text: otherwise it looks for room among the ink of that moment.
void InkCanvasWalk::Compose() {
  if (Text().isEmpty()) return;
  m_document.SetPreedit({.Position = Any(0, static_cast<int>(Text().size())),
                         .Text = QStringLiteral("abc").left(Any(0, 3))});
}

void InkCanvasWalk::Scroll() {
  m_canvas.ScrollTo(m_canvas.View().Scroll() + QPoint(Any(-90, 90), Any(-60, 90)));
  ShowAll();
}

void InkCanvasWalk::Zoom() {
  const int zooms[] = {GetParam().Zoom, 50, GetParam().Zoom, 125};
  m_canvas.SetZoom(zooms[Any(0, 3)], {Any(0, 149) + 0.5, Any(0, 109) + 0.5});
  m_canvas.FollowExtent();
  ShowAll();
}

void InkCanvasWalk::ChangePaper() {
  m_canvas.SetPaper(
      {.Style = Any(0, 1) == 0 ? kRuledPaper : kDottedPaper, .IsEndless = Any(0, 2) == 0});
  ShowAll();
}

void InkCanvasWalk::PasteAnything() {
  InkNote fragment{.Pens = {kYellow, {}}};
  for (int i = Any(1, 2); i > 0; --i) {
    InkStroke stroke = Scribble(Any(1, 20), static_cast<unsigned>(Any(0, 999)));
    stroke.Pen = static_cast<quint32>(Any(0, 1));
    fragment.Strokes.push_back(SealInkStroke(std::move(stroke)));
  }
  m_document.Paste(fragment, {Any(0, 2000), Any(-500, 2000)}, 0, 0);
}

void InkCanvasWalk::DoAnything() {
  switch (Any(0, 17)) {
    case 0:
      return m_document.Erase(AnyStrokes(), Any(1, 999));
    case 1:
      m_document.Move(AnyStrokes(), {Any(-900, 900), Any(-900, 900)});
      return;
    case 2:
      return PasteAnything();
    case 3:
    case 4:
      return TypeAnywhere();
    case 5:
      return Undo();
    case 6:
      return Redo();
    case 7:
    case 8:
      return Scroll();
    case 9:
      return Zoom();
    case 10:
      return ChangePaper();
    case 11:
      return Compose();
    default:
      return Draw();
  }
}

TEST_P(InkCanvasWalk, ShowsWhatPaintingFromNothingShows) {
  Open(GetParam());
  for (int step = 0; step < 120; ++step) {
    DoAnything();
    m_mostStrokes = std::max(m_mostStrokes, Strokes().size());
    ASSERT_EQ(Shown(), Fresh()) << "step " << step;
  }
  EXPECT_GT(m_mostStrokes, 9U);
}

TEST_P(InkCanvasWalk, ShowsTheSameOnceSavedAndLoaded) {
  Open(GetParam());
  for (int step = 0; step < 60; ++step) DoAnything();
  m_document.SetPreedit({});
  const QImage before = Shown();
  const QPoint scroll = m_canvas.View().Scroll();
  m_document.SetData(m_document.Data());
  m_canvas.FollowExtent();
  m_canvas.ScrollTo(scroll);
  ShowAll();
  EXPECT_EQ(Shown(), before);
  EXPECT_FALSE(Strokes().empty());
  EXPECT_FALSE(Text().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Screens, InkCanvasWalk, testing::ValuesIn(test::kInkScreens),
                         test::NameOfInkScreen);

TEST_F(InkCanvasTest, APastedStrokeLeavesTheOneInTheAir) {
  Open({});
  Begin();
  Extend({10, 10});
  Extend({50, 50});
  Draw({20, 60});
  EXPECT_TRUE(m_canvas.HasStroke());
  EXPECT_EQ(Shown(), Fresh(m_air, m_pen));
  Extend({60, 40});
  Lift();
  EXPECT_FALSE(m_canvas.HasStroke());
  EXPECT_EQ(Shown(), Fresh());
}

TEST_F(InkCanvasTest, AHighlighterLiesUnderRoundInkWhileItIsDrawnAndAfter) {
  Open({});
  Draw({20, 20});
  const QRgb ink = Shown().pixel(25, 20);
  Begin(kYellow);
  Extend({10, 20});
  Extend({60, 20});
  EXPECT_EQ(Shown().pixel(25, 20), ink);
  EXPECT_EQ(Shown(), Fresh(m_air, m_pen));
  Lift();
  EXPECT_EQ(Shown().pixel(25, 20), ink);
  EXPECT_EQ(Shown(), Fresh());
}

TEST_F(InkCanvasTest, AStrokeTakenBackIsGone) {
  Open({});
  Begin();
  Extend({10, 10});
  Extend({50, 50});
  EXPECT_NE(Shown(), Fresh());
  Show(m_canvas.CancelStroke());
  EXPECT_EQ(Shown(), Fresh());
  EXPECT_FALSE(m_canvas.HasStroke());
}

TEST_F(InkCanvasTest, AStrokeThatEndsWhileAllIsToBePaintedAnewIsPainted) {
  Open({});
  Begin();
  Extend({10, 10});
  Extend({50, 50});
  m_canvas.SetWindow({300, 200}, {0, 0}, 1);
  Lift();
  m_shown = QImage(300, 200, QImage::Format_RGB32);
  ShowWindow(QRect(0, 0, 300, 200));
  EXPECT_EQ(Shown(), Fresh());
}

TEST_F(InkCanvasTest, AnEmptyPageThatBecomesWiderIsPaintedWhole) {
  Open({50, 1});
  m_document.SetNewPageWidth(290 * kInkUnitsPerPixel);
  EXPECT_EQ(Shown(), Fresh());
  EXPECT_EQ(Shown().pixel(140, 3), 0xFFFFFFFF);
}

TEST_F(InkCanvasTest, ScrollingGoesAsFarAsTheContent) {
  Open({});
  EXPECT_EQ(m_canvas.View().FarthestScroll(), QPoint(98, 55));
  Draw({10, 1000});
  EXPECT_EQ(m_canvas.View().FarthestScroll(), QPoint(98, 1001 - 110 + 55));
  Type(QString(QStringLiteral("a\n")).repeated(99));
  EXPECT_EQ(m_canvas.View().FarthestScroll(), QPoint(98, 2400 - 110 + 55));
  m_canvas.SetPaper({.IsEndless = true});
  EXPECT_EQ(m_canvas.View().FarthestScroll().x(), 98);
}

TEST_F(InkCanvasTest, ShowingAPlaceScrollsThere) {
  Open({});
  Draw({10, 1000});
  m_canvas.Show({10, 500, 5, 5});
  ShowAll();
  EXPECT_EQ(m_canvas.View().Scroll().y(), 505 - 110);
  EXPECT_EQ(Shown(), Fresh());
}

TEST_F(InkCanvasTest, RepaintingTellsWhatOfItIsSeen) {
  Open({});
  EXPECT_EQ(m_canvas.Repaint(QRect(0, 0, 320, 640)), QRect(0, 0, 10, 20));
  EXPECT_TRUE(m_canvas.Repaint(QRect(0, 9999, 320, 640)).isEmpty());
}

TEST_F(InkCanvasTest, AMoveOfThePenPaintsNoMoreThanIsNew) {
  Open({});
  Draw({10, 50});
  Begin();
  Extend({10, 10});
  for (int x = 20; x < 140; x += 10) {
    m_air.Points.push_back({.X = x * kInkUnitsPerPixel, .Y = 10 * kInkUnitsPerPixel});
    const QRect area = m_canvas.ExtendStroke(m_air.Points.back());
    EXPECT_LT(area.width(), 40);
    EXPECT_LT(area.height(), 10);
  }
}

}  // namespace
}  // namespace quill
