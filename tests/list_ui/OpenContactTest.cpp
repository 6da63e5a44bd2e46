// What a tap on a contact opens.
#include "SheetSteps.h"
#include "ViewFixture.h"
#include "editor/SummaryState.h"
#include "list/Selection.h"

namespace quill {
namespace {

class OpenContactTest : public test::ViewFixture {
 protected:
  void SetUp() override { Open({QStringLiteral("김철수"), QStringLiteral("Adams")}); }
  Oid OidAt(int row) const { return g_list.Rows[static_cast<std::size_t>(row)].Oid; }
};

TEST_F(OpenContactTest, ATapOpensTheContactsSheet) {
  test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
    EXPECT_EQ(open.Caption(), QStringLiteral("Edit"));
    EXPECT_EQ(open.Record().Oid, OidAt(1));
    m_input.Key(Qt::Key_Escape);
  });
  m_input.Tap(OnRow(1));
}

TEST_F(OpenContactTest, WhatOKWritesIsInTheList) {
  test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
    open.ActivePage()->findChild<CRecordRowList*>()->StartEdit(4);
    m_input.Type(QStringLiteral("010-1"));
    open.OnOK();
  });
  m_input.Tap(OnRow(0));
  EXPECT_EQ(g_list.Rows[0].Text, QStringLiteral("010-1"));
}

TEST_F(OpenContactTest, CancelWritesNothing) {
  test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
    open.ActivePage()->findChild<CRecordRowList*>()->StartEdit(4);
    m_input.Type(QStringLiteral("010-1"));
    m_input.Key(Qt::Key_Escape);  // ends the row
    m_input.Key(Qt::Key_Escape);
  });
  m_input.Tap(OnRow(0));
  EXPECT_EQ(g_list.Rows[0].Text, QString());
}

TEST_F(OpenContactTest, AContactThatIsGoneOpensNothingAndLeavesTheList) {
  const int before = g_list.RowsShown;
  ASSERT_TRUE(m_store.Contacts()->Remove(OidAt(0)));
  m_input.Tap(OnRow(0));
  EXPECT_TRUE(m_screen->IsIdle());
  EXPECT_EQ(g_list.RowsShown, before - 1);
}

TEST_F(OpenContactTest, AMemosPositionIsNotReadAsAContact) {
  View().ShowMode(ViewMode::ByMemo);  // without memos
  View().FocusList();
  g_list.CurrentRow = 1;
  g_list.SelectedKeys = {1};
  m_input.Key(Qt::Key_Return);
  EXPECT_TRUE(m_screen->IsIdle());
}

TEST_F(OpenContactTest, AssistiveTechnologyOpensARowByPressingIt) {
  {
    test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
      EXPECT_EQ(open.Record().FileAs, QStringLiteral("Adams"));
      m_input.Key(Qt::Key_Escape);
    });
    List().ActivateRow(0);
  }
  EXPECT_EQ(g_list.CurrentRow, 0);
  List().ActivateRow(2);  // the line below the last contact
}

TEST_F(OpenContactTest, NewOpensAnEmptySheetThatMakesAContact) {
  test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
    EXPECT_EQ(open.Caption(), QStringLiteral("New"));
    EXPECT_EQ(open.Record().Oid, 0);
    open.ActivePage()->findChild<CRecordRowList*>()->StartEdit(3);
    m_input.Type(QStringLiteral("Zoo"));
    open.OnOK();
  });
  EXPECT_EQ(m_frame->RunCommand(ID_FILE_NEW), CommandResult::Done);
  EXPECT_TRUE(ShownNames().contains(QStringLiteral("Zoo")));
}

class SummaryCardTest : public OpenContactTest {
 protected:
  void ShowCard(int row) {
    m_input.Tap(OnRow(row, 200));
    ASSERT_EQ(g_card.Contact, OidAt(row));
  }
};

TEST_F(SummaryCardTest, ATapOnTheIconStripShowsTheCardOfTheContact) {
  ShowCard(1);
  EXPECT_EQ(m_screen->Windows().back()->Kind(), WindowKind::Card);
  EXPECT_EQ(m_screen->Windows().back()->geometry(), g_card.Place);
  EXPECT_TRUE(m_screen->IsIdle()) << "a card keeps nobody waiting";
}

TEST_F(SummaryCardTest, TheRightArrowKeyShowsItForTheSelectedRow) {
  SelectRow(g_list, 1);
  View().FocusList();
  m_input.Key(Qt::Key_Right);
  EXPECT_EQ(g_card.Contact, OidAt(1));
}

TEST_F(SummaryCardTest, TheNextPressTakesItAwayAndGoesOn) {
  ShowCard(1);
  m_input.Press(OnRow(0));
  EXPECT_EQ(g_card.Contact, 0);
  EXPECT_EQ(g_list.SelectedKeys, std::vector<int>{OidAt(0)});
  m_input.Release(OnRow(0, 200));
}

TEST_F(SummaryCardTest, AKeyTakesItAway) {
  ShowCard(1);
  m_input.Key(Qt::Key_Shift);
  EXPECT_EQ(g_card.Contact, 0);
}

TEST_F(SummaryCardTest, ARebuildTakesItAway) {
  ShowCard(1);
  View().Rebuild();
  EXPECT_EQ(g_card.Contact, 0);
  EXPECT_EQ(m_screen->Windows().size(), 1U);
}

TEST_F(SummaryCardTest, AnotherModeTakesItAway) {
  ShowCard(1);
  View().ShowMode(ViewMode::ByCompany);
  EXPECT_EQ(g_card.Contact, 0);
}

TEST_F(SummaryCardTest, ADoubleTapOverItOpensNothing) {
  ShowCard(1);
  m_input.Press(OnRow(1, 200));  // the window system sends both
  m_input.PressAgain(OnRow(1, 200));
  m_input.Release(OnRow(1, 200));
  EXPECT_EQ(g_card.Contact, OidAt(1)) << "the second tap shows it again";
}

TEST_F(SummaryCardTest, IsNotShownForAContactThatIsGone) {
  ASSERT_TRUE(m_store.Contacts()->Remove(OidAt(0)));
  m_input.Tap(OnRow(0, 200));
  EXPECT_EQ(g_card.Contact, 0);
  EXPECT_EQ(m_screen->Windows().size(), 1U);
}

}  // namespace
}  // namespace quill
