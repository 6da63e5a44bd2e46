#include "ink/InkSelection.h"

#include <gtest/gtest.h>

#include "ink/InkFormat.h"
#include "ink/InkPageFixture.h"
#include "ink/InkSelect.h"

namespace quill {
namespace {

class InkSelectionTest : public test::InkPageFixture {
 protected:
  InkSelectionTest() {
    Type(QStringLiteral("one two\nthree"));
    m_first = Draw({5, 100});
    m_second = Draw({5, 200});
  }

  InkStrokePtr m_first;
  InkStrokePtr m_second;
  InkSelection m_selection{m_document};
};

TEST_F(InkSelectionTest, NothingIsSelectedAtFirst) {
  EXPECT_TRUE(m_selection.IsEmpty());
  EXPECT_TRUE(m_selection.Bounds().isEmpty());
  EXPECT_TRUE(m_selection.Fragment().IsEmpty());
}

TEST_F(InkSelectionTest, AllIsStrokesAndText) {
  m_selection.SelectAll();
  EXPECT_EQ(m_selection.Strokes(), Strokes());
  EXPECT_EQ(m_selection.TextFrom(), 0);
  EXPECT_EQ(m_selection.TextTo(), 13);
  EXPECT_EQ(m_selection.Caret(), 13);
  EXPECT_FALSE(m_selection.IsAll());
  EXPECT_FALSE(m_selection.IsEmpty());
}

TEST_F(InkSelectionTest, TextMayBeSelectedBackwards) {
  m_selection.SelectText(7, 4);
  EXPECT_EQ(m_selection.TextFrom(), 4);
  EXPECT_EQ(m_selection.TextTo(), 7);
  EXPECT_EQ(m_selection.Caret(), 4);
  EXPECT_FALSE(m_selection.IsEmpty());
}

TEST_F(InkSelectionTest, NothingSelectedLeavesTheCaret) {
  m_selection.SelectText(7, 4);
  m_selection.SelectStrokes({m_first});
  m_selection.SelectNothing();
  EXPECT_TRUE(m_selection.IsEmpty());
  EXPECT_EQ(m_selection.Caret(), 4);
}

TEST_F(InkSelectionTest, ACaretSelectsNothingOrFromWhereItBegan) {
  m_selection.SelectText(2, 4);
  m_selection.SelectStrokes({m_first});
  m_selection.SetCaret(6, InkSelection::Extend::Yes);
  EXPECT_TRUE(m_selection.Strokes().empty());
  EXPECT_EQ(m_selection.TextFrom(), 2);
  EXPECT_EQ(m_selection.TextTo(), 6);
  m_selection.SetCaret(5);
  EXPECT_TRUE(m_selection.IsEmpty());
  EXPECT_EQ(m_selection.Caret(), 5);
}

TEST_F(InkSelectionTest, WhatIsNoLongerThereIsNotSelected) {
  m_selection.SelectAll();
  m_document.Erase({m_first}, 1);
  m_document.Type(0, 10, {});
  m_selection.FollowPage();
  EXPECT_EQ(m_selection.TextTo(), 3);
  EXPECT_EQ(m_selection.Strokes().size(), 0U);  // the text's line went, and the ink moved
}

TEST_F(InkSelectionTest, WhatIsStillThereStaysSelected) {
  m_selection.SelectStrokes({m_first, m_second});
  m_document.Erase({m_first}, 1);
  m_selection.FollowPage();
  EXPECT_EQ(m_selection.Strokes(), std::vector<InkStrokePtr>{m_second});
  m_selection.SelectText(1, 3);
  m_selection.FollowPage();
  EXPECT_EQ(m_selection.TextFrom(), 1);
  EXPECT_EQ(m_selection.TextTo(), 3);
}

TEST_F(InkSelectionTest, TheBoundsTakeInThePensWidth) {
  m_selection.SelectStrokes({m_first, m_second});
  EXPECT_EQ(m_selection.Bounds(),
            PaintedBounds(Note(), *m_first).united(PaintedBounds(Note(), *m_second)));
}

TEST_F(InkSelectionTest, AFragmentIsWhatIsSelectedWhereItStands) {
  m_selection.SelectText(8, 11);
  m_selection.SelectStrokes({m_second});
  const InkNote fragment = m_selection.Fragment();
  EXPECT_EQ(fragment.Strokes, std::vector<InkStrokePtr>{m_second});
  EXPECT_EQ(fragment.Pens, Note().Pens);
  EXPECT_EQ(fragment.Page, Note().Page);
  EXPECT_EQ(fragment.Text.Text, QStringLiteral("thr"));
  EXPECT_EQ(fragment.Text.Y, 24 * 32);
  EXPECT_EQ(fragment.Text.X, Note().Text.X);
}

TEST_F(InkSelectionTest, ANoteThatCannotBeReadIsSelectedAsAWhole) {
  m_document.SetData("something else");
  m_selection.SelectAll();
  EXPECT_TRUE(m_selection.IsAll());
  EXPECT_FALSE(m_selection.IsEmpty());
  m_selection.FollowPage();
  EXPECT_TRUE(m_selection.IsAll());
  m_document.ClearAll();
  m_selection.FollowPage();
  EXPECT_FALSE(m_selection.IsAll());
}

TEST_F(InkSelectionTest, AnotherSelectionIsNoLongerAll) {
  m_document.SetData("something else");
  m_selection.SelectAll();
  m_selection.SelectStrokes({});
  EXPECT_FALSE(m_selection.IsAll());
  m_selection.SelectAll();
  m_selection.SelectText(0, 0);
  EXPECT_FALSE(m_selection.IsAll());
  m_selection.SelectAll();
  m_selection.SetCaret(0);
  EXPECT_FALSE(m_selection.IsAll());
  m_selection.SelectAll();
  m_selection.SelectNothing();
  EXPECT_FALSE(m_selection.IsAll());
}

}  // namespace
}  // namespace quill
