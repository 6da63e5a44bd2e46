// Pages that are full, and text that looks for room on pages with ink.
#include <gtest/gtest.h>

#include "ink/InkDocument.h"
#include "ink/InkFormat.h"
#include "platform/Services.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

class InkDocumentRoomTest : public testing::Test {
 protected:
  InkDocumentRoomTest() { g_services = {.Clock = &m_clock}; }
  ~InkDocumentRoomTest() override { g_services = {}; }

  static InkStroke Points(std::size_t count) {
    return {.Points = std::vector<InkPoint>(count, InkPoint{.X = 320, .Y = 320})};
  }
  static InkStroke Line(int top, int bottom) {
    return {.Points = {{.X = 320, .Y = top * 32}, {.X = 640, .Y = bottom * 32}}};
  }
  int TextTop() const { return m_document.Note().Text.Y / 32; }

  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  InkDocument m_document;
};

TEST_F(InkDocumentRoomTest, AFullPageSaysSoTakesNoMoreInkAndIsReadWhole) {
  std::size_t strokes = 0;
  do {
    strokes = m_document.Note().Strokes.size();
    m_document.AddStroke(Points(400'000), {});
  } while (m_document.Note().Strokes.size() > strokes);
  EXPECT_GT(strokes, 5u);
  EXPECT_EQ(m_document.Notice(), InkNotice::None);  // shorter strokes still fit
  while (m_document.Notice() == InkNotice::None) m_document.AddStroke(Points(1900), {});
  EXPECT_EQ(m_document.Notice(), InkNotice::Full);
  EXPECT_TRUE(m_document.Paste({.Strokes = {SealInkStroke(Points(3000))}}, {}, 0, 0).empty());
  EXPECT_EQ(ReadInk(m_document.Data()).Reading, InkReading::Whole);
  m_document.Steps().undo();
  EXPECT_EQ(m_document.Notice(), InkNotice::None);
}

TEST_F(InkDocumentRoomTest, TextThatWouldBeginOnInkBeginsOnTheFirstLineBelowAllOfIt) {
  m_document.AddStroke(Line(10, 20), {});
  m_document.AddStroke(Line(70, 100), {});
  m_document.Type(0, 0, QStringLiteral("a"));
  EXPECT_EQ(TextTop(), 120);
}

TEST_F(InkDocumentRoomTest, TextBeginsAtTheTopWhenThatIsFree) {
  m_document.AddStroke(Line(24, 100), {});
  m_document.Type(0, 0, QStringLiteral("a"));
  EXPECT_EQ(TextTop(), 0);
}

TEST_F(InkDocumentRoomTest, ComposingBeginsWhereTheTextWill) {
  m_document.AddStroke(Line(10, 20), {});
  m_document.SetPreedit({.Position = 0, .Text = QStringLiteral("ㄱ"), .Cursor = 1});
  EXPECT_EQ(TextTop(), 24);
}

TEST_F(InkDocumentRoomTest, TextBeginsAtTheLineThatItWasGiven) {
  m_document.AddStroke(Line(10, 20), {});
  m_document.PlaceText(60 * 32);
  m_document.Type(0, 0, QStringLiteral("a"));
  EXPECT_EQ(TextTop(), 48);
}

TEST_F(InkDocumentRoomTest, TextThatIsThereStaysWhereItIs) {
  m_document.Type(0, 0, QStringLiteral("a"));
  m_document.PlaceText(60 * 32);
  m_document.AddStroke(Line(10, 20), {});
  m_document.Type(1, 1, QStringLiteral("b"));
  EXPECT_EQ(TextTop(), 0);
}

}  // namespace
}  // namespace quill
