#include "ink/ui/InkX.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

#include "ink/InkFormat.h"
#include "ink_ui/InkFixture.h"

namespace quill {
namespace {

using InkXTest = test::InkFixture;

class ReadOnlyInkTest : public test::InkFixture {
 protected:
  ReadOnlyInkTest() : InkFixture(InkAccess::ReadOnly) { Ink().SetData(OneStroke()); }

  static QByteArray OneStroke() {
    InkNote note;
    note.Pens = {InkPen{}};
    note.Strokes = {SealInkStroke({.Points = {{.X = 320, .Y = 320}, {.X = 3200, .Y = 32000}}})};
    return WriteInk(note);
  }
};

TEST_F(InkXTest, BeginsAsARuledPageAtFullSizeThatEndsAtItsWidth) {
  EXPECT_EQ(Ink().PageStyle(), 16);
  EXPECT_EQ(Ink().Zoom(), 100);
  EXPECT_EQ(Ink().Wrap(), 1);
  EXPECT_EQ(Ink().View(), 0);
  EXPECT_EQ(Ink().Toggle(), 0);
  EXPECT_EQ(Ink().DataLength(), 0);
  EXPECT_FALSE(Ink().readOnly());
}

TEST_F(InkXTest, WhatIsWrittenIsWhatItsDataHold) {
  int changes = 0;
  QObject::connect(m_ink, &InkX::changed, [&changes] { ++changes; });
  Line({20, 30}, {120, 40});
  EXPECT_EQ(changes, 1);
  const InkContent content = ReadInk(Ink().Data());
  EXPECT_EQ(content.Reading, InkReading::Whole);
  ASSERT_EQ(content.Note.Strokes.size(), 1u);
  EXPECT_EQ(content.Note.Strokes.front()->Points.front().X, 20 * 32);
  EXPECT_EQ(Ink().DataLength(), Ink().Data().size());
}

struct ZoomCase {
  int Asked;
  int Got;
};

class InkXZoom : public InkXTest, public testing::WithParamInterface<ZoomCase> {};

TEST_P(InkXZoom, IsKeptWithinItsBoundsAndTold) {
  std::vector<int> zooms;
  QObject::connect(m_ink, &InkX::zoomChanged, [&zooms](int percent) { zooms.push_back(percent); });
  Ink().SetZoom(GetParam().Asked);
  EXPECT_EQ(Ink().Zoom(), GetParam().Got);
  EXPECT_EQ(zooms, std::vector{GetParam().Got});
}

INSTANTIATE_TEST_SUITE_P(Zooms, InkXZoom,
                         testing::Values(ZoomCase{75, 75}, ZoomCase{300, 300}, ZoomCase{110, 110},
                                         ZoomCase{24, 25}, ZoomCase{801, 800}, ZoomCase{-5, 25}));

TEST_F(InkXTest, TheWheelWithControlGoesToTheNextZoomAndStopsAtTheLast) {
  const auto turn = [this](int angle) {
    QWheelEvent event({100, 100}, {100, 100}, {}, {0, angle}, Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_ink, &event);
    return Ink().Zoom();
  };
  EXPECT_EQ(turn(120), 125);
  EXPECT_EQ(turn(-120), 100);
  EXPECT_EQ(turn(-120), 75);
  Ink().SetZoom(110);
  EXPECT_EQ(turn(120), 125);
  Ink().SetZoom(800);
  EXPECT_EQ(turn(120), 800);
  Ink().SetZoom(25);
  EXPECT_EQ(turn(-120), 25);
}

TEST_F(InkXTest, AnUnknownStyleIsAnsweredAndDrawnAsThePage) {
  const QImage page = Shown();
  Ink().SetPageStyle(7);
  EXPECT_EQ(Ink().PageStyle(), 7);
  EXPECT_EQ(Shown(), page);
  Ink().SetPageStyle(kInkCloseUp);
  EXPECT_NE(Shown(), page);
}

TEST_F(InkXTest, TheQueriedModeIsTheView) {
  Ink().SetView(kInkMapView);
  EXPECT_EQ(Ink().QueryMode(), 2);
  Ink().SetView(kInkPlainView);
  EXPECT_EQ(Ink().QueryMode(), 0);
}

TEST_F(InkXTest, NeitherStyleZoomWrapNorViewChangeTheData) {
  Line({20, 30}, {120, 40});
  const QByteArray before = Ink().Data();
  Ink().SetPageStyle(kInkCloseUp);
  Ink().SetZoom(200);
  Ink().SetWrap(0);
  Ink().SetView(kInkMapView);
  EXPECT_EQ(Ink().Data(), before);
}

TEST_F(InkXTest, SettingDataTouchesNeitherStyleZoomWrapViewNorToggle) {
  Line({20, 30}, {120, 40});
  const QByteArray data = Ink().Data();
  Ink().SetPageStyle(kInkCloseUp);
  Ink().SetZoom(200);
  Ink().SetWrap(0);
  Ink().SetView(kInkMapView);
  Ink().SetToggle(kInkPenSelects);
  Ink().SetData(data);
  EXPECT_EQ(Ink().PageStyle(), kInkCloseUp);
  EXPECT_EQ(Ink().Zoom(), 200);
  EXPECT_EQ(Ink().Wrap(), 0);
  EXPECT_EQ(Ink().View(), kInkMapView);
  EXPECT_EQ(Ink().Toggle(), kInkPenSelects);
  EXPECT_FALSE(Ink().CanUndo());
}

struct BytesCase {
  const char* Name;
  QByteArray (*From)(const QByteArray& whole);
};

class InkXBytes : public InkXTest, public testing::WithParamInterface<BytesCase> {};

TEST_P(InkXBytes, ComeBackAsTheyWereUnlessEdited) {
  Line({20, 30}, {120, 40});
  Type(QStringLiteral("Kim"));
  const QByteArray bytes = GetParam().From(Ink().Data());
  Ink().SetData(bytes);
  Ink().SelectAll();
  EXPECT_EQ(Ink().Data(), bytes);
  EXPECT_EQ(Ink().DataLength(), bytes.size());
}

TEST_P(InkXBytes, AreEmptiedBySelectingAllAndClearing) {
  Line({20, 30}, {120, 40});
  const QByteArray bytes = GetParam().From(Ink().Data());
  Ink().SetData(bytes);
  Ink().SelectAll();
  Ink().Clear();
  EXPECT_EQ(Ink().DataLength(), 0);
  Ink().Undo();
  EXPECT_EQ(Ink().Data(), bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Bytes, InkXBytes,
    testing::Values(
        BytesCase{"own", [](const QByteArray& whole) { return whole; }},
        BytesCase{"foreign", [](const QByteArray&) { return QByteArray("{\\rtf1 x}"); }},
        BytesCase{"cut", [](const QByteArray& whole) { return whole.chopped(9); }},
        BytesCase{"nothing_left", [](const QByteArray& whole) { return whole.left(9); }},
        BytesCase{"changed",
                  [](const QByteArray& whole) {
                    QByteArray changed = whole;
                    changed[whole.size() - 20] = char(changed[whole.size() - 20] ^ 4);
                    return changed;
                  }}),
    [](const auto& row) { return row.param.Name; });

TEST_F(InkXTest, AForeignNoteTakesNoInkNoTextAndNoPaste) {
  const QByteArray foreign("no ink at all");
  Ink().SetData(foreign);
  Line({20, 30}, {120, 40});
  Type(QStringLiteral("Kim"));
  EXPECT_FALSE(Ink().CanPaste());
  Ink().Paste();
  EXPECT_EQ(Ink().Data(), foreign);
}

class UnreadableInk : public InkXTest, public testing::WithParamInterface<QByteArray> {};

TEST_P(UnreadableInk, IsAGreyPageWithItsNoticeInTheMiddle) {
  Ink().SetData(GetParam());
  const QImage shown = Shown();
  const QColor ground(0xD8, 0xD8, 0xD8);
  EXPECT_EQ(shown.pixelColor(100, 150), ground);
  EXPECT_EQ(shown.pixelColor(2, 245), ground);
  EXPECT_NE(shown.pixelColor(2, 124), ground);
}

INSTANTIATE_TEST_SUITE_P(Bytes, UnreadableInk,
                         testing::Values(QByteArray("no ink at all"),
                                         QByteArray("\x89INKX\r\n\x1A")));

TEST_F(InkXTest, ADamagedNoteSaysSoBelowWhatWasSaved) {
  Line({20, 130}, {120, 140});
  const QImage before = Shown();
  Ink().SetData(Ink().Data().chopped(1));
  const QImage shown = Shown();
  EXPECT_NE(shown.copy(0, 230, 200, 18), before.copy(0, 230, 200, 18));
  EXPECT_EQ(shown.copy(0, 0, 200, 230), before.copy(0, 0, 200, 230));
}

TEST_F(InkXTest, UndoAndRedoAreThereWhenThereIsSomethingToUndoAndRedo) {
  EXPECT_FALSE(Ink().CanUndo());
  Line({20, 30}, {120, 40});
  EXPECT_TRUE(Ink().CanUndo());
  EXPECT_FALSE(Ink().CanRedo());
  Ink().Undo();
  EXPECT_TRUE(Note().Strokes.empty());
  EXPECT_TRUE(Ink().CanRedo());
  Ink().Redo();
  EXPECT_EQ(Note().Strokes.size(), 1u);
}

TEST_F(InkXTest, WhatIsShownAfterUndoIsWhatWasShownBefore) {
  Line({20, 30}, {120, 40});
  const QImage before = Shown();
  Line({20, 60}, {120, 20});
  EXPECT_NE(Shown(), before);
  Ink().Undo();
  EXPECT_EQ(Shown(), before);
}

TEST_F(InkXTest, OnlyAPageWiderThanTheControlHasAHorizontalBar) {
  EXPECT_TRUE(Bar(Qt::Horizontal).isHidden());
  Ink().SetZoom(200);
  EXPECT_FALSE(Bar(Qt::Horizontal).isHidden());
  EXPECT_EQ(Bar(Qt::Horizontal).maximum(), 240 + 8);
  Ink().SetZoom(75);
  EXPECT_TRUE(Bar(Qt::Horizontal).isHidden());
}

TEST_F(InkXTest, ThePageScrollsHalfAViewBelowItsInk) {
  Line({20, 30}, {120, 220});
  EXPECT_EQ(Bar(Qt::Vertical).maximum(), 124);
  Bar(Qt::Vertical).setValue(100);
  Line({20, 30}, {120, 200});
  EXPECT_NEAR(Bar(Qt::Vertical).maximum(), 300 + 124 - 248, 2);
}

TEST_F(InkXTest, ScrollingShowsWhatAPageThatWasPaintedThereShows) {
  for (int y = 20; y < 240; y += 30) Line({20.0, double(y)}, {200, y + 10.0});
  Ink().SetZoom(200);
  Bar(Qt::Vertical).setValue(0);
  Bar(Qt::Horizontal).setValue(0);
  Shown();
  Bar(Qt::Vertical).setValue(111);
  Bar(Qt::Horizontal).setValue(55);
  const QImage scrolled = Shown();
  Ink().SetData(Ink().Data());
  Bar(Qt::Vertical).setValue(111);
  Bar(Qt::Horizontal).setValue(55);
  EXPECT_EQ(Shown(), scrolled);
}

TEST_F(InkXTest, ContentRightOfThePageStaysInReachWhenThePageEndsAgain) {
  Ink().SetWrap(0);
  Ink().SetZoom(75);
  Line({200, 30}, {235, 40});  // beyond the page's 180 pixels at this zoom
  Ink().SetWrap(1);
  Ink().SetZoom(100);
  EXPECT_FALSE(Bar(Qt::Horizontal).isHidden());
}

TEST_F(InkXTest, APressRightOfAPageThatEndsThereIsNothing) {
  Ink().SetZoom(75);
  Line({200, 30}, {220, 40});
  EXPECT_TRUE(Note().Strokes.empty());
}

TEST_F(InkXTest, AfterAStrokeAtTheRightTheCloseUpMovesOnAndAtThePagesEndToTheNextLine) {
  Ink().SetZoom(200);
  Ink().SetWrap(0);
  Ink().SetView(kInkMapView);
  Bar(Qt::Horizontal).setValue(0);
  Bar(Qt::Vertical).setValue(0);
  const int window = 240 - 30;
  Line({100, 50}, {120, 60});
  EXPECT_EQ(Bar(Qt::Horizontal).value(), 0);
  Line({180, 50}, {205, 60});
  EXPECT_EQ(Bar(Qt::Horizontal).value(), qRound(window * 0.6));
  Line({180, 50}, {205, 60});
  EXPECT_EQ(Bar(Qt::Horizontal).value(), qRound(window * 0.6) * 2);
  Line({180, 50}, {205, 60});
  EXPECT_EQ(Bar(Qt::Horizontal).value(), 480 - window);
  EXPECT_EQ(Bar(Qt::Vertical).value(), 0);
  Line({180, 50}, {205, 60});
  EXPECT_EQ(Bar(Qt::Horizontal).value(), 0);
  EXPECT_EQ(Bar(Qt::Vertical).value(), 48);
}

TEST_F(ReadOnlyInkTest, ThePenScrollsAndWritesNothing) {
  const QByteArray before = Ink().Data();
  Line({100, 200}, {100, 100});
  EXPECT_EQ(Note().Strokes.size(), 1u);
  EXPECT_EQ(Bar(Qt::Vertical).value(), 100);
  EXPECT_EQ(Ink().Data(), before);
}

TEST_F(ReadOnlyInkTest, SelectsAndCopiesAndRefusesAllElse) {
  const QByteArray before = Ink().Data();
  Ink().SelectAll();
  EXPECT_TRUE(Ink().HasSelection());
  Ink().Copy();
  EXPECT_FALSE(Ink().CanPaste());
  Ink().Paste();
  Ink().Cut();
  Ink().Clear();
  Type(QStringLiteral("a"));
  Input({}, QStringLiteral("b"));
  Key(Qt::Key_Backspace);
  Ink().SetToggle(kInkPenSelects);
  TurnPen(QPointingDevice::PointerType::Eraser);
  Line({5, 5}, {105, 240});
  EXPECT_EQ(Ink().Toggle(), kInkPenWrites);
  EXPECT_FALSE(Ink().CanUndo());
  EXPECT_EQ(Ink().Data(), before);
  EXPECT_TRUE(Ink().readOnly());
  EXPECT_FALSE(Ink().inputMethodQuery(Qt::ImEnabled).toBool());
}

}  // namespace
}  // namespace quill
