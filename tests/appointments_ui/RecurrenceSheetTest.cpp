#include "appointments/ui/RecurrenceSheet.h"

#include <QApplication>
#include <QPushButton>

#include "appointments_ui/WizardFixture.h"

namespace quill {
namespace {

class RecurrenceSheetTest : public test::WizardFixture {
 protected:
  // The page that is shown and what the buttons are then.
  void ExpectPage(int page) {
    EXPECT_EQ(m_sheet->ActiveIndex(), page);
    EXPECT_EQ(Get<QPushButton>(1001).isEnabled(), page == 1);
    EXPECT_EQ(Get<QPushButton>(1002).text(),
              page == 1 ? QStringLiteral("Done") : QStringLiteral("Next"));
  }
  // Edits something on each page; the shown one is then the second.
  void EditBoth() {
    TypeOver(1026, QStringLiteral("4"));
    Tap(1002);
    TypeOver(1045, QStringLiteral("6"));
  }
  void ExpectBothWritten() {
    EXPECT_EQ(m_pattern.Interval, 4);
    EXPECT_EQ(m_pattern.Occurrences, 6);
    EXPECT_FALSE(m_pattern.NoEndDate);
  }
};

TEST_F(RecurrenceSheetTest, HasItsTitleItsPagesAndItsButtonsAtTheirPlaces) {
  Look([this] {
    EXPECT_EQ(m_sheet->Caption(), QStringLiteral("Recurrence"));
    EXPECT_EQ(m_sheet->Kind(), WindowKind::Sheet);
    EXPECT_EQ(m_sheet->Pages().size(), 2U);
    EXPECT_EQ(m_sheet->Pages()[0]->Title(), QStringLiteral("Pattern"));
    EXPECT_EQ(m_sheet->Pages()[1]->Title(), QStringLiteral("Range"));
    EXPECT_EQ(m_sheet->ActivePage()->geometry(), QRect(0, 0, 240, 150));
    EXPECT_EQ(PlaceOf(2), QRect(10, 150, 70, 24));
    EXPECT_EQ(PlaceOf(1001), QRect(85, 150, 70, 24));
    EXPECT_EQ(PlaceOf(1002), QRect(160, 150, 70, 24));
    EXPECT_EQ(Get<QPushButton>(2).text(), QStringLiteral("Cancel"));
    EXPECT_EQ(Get<QPushButton>(1001).text(), QStringLiteral("Back"));
  });
}

TEST_F(RecurrenceSheetTest, BeginsOnTheFirstPageWithNoWayBack) {
  Look([this] { ExpectPage(0); });
}

TEST_F(RecurrenceSheetTest, NextLeadsToTheLastPageWhereItReadsDone) {
  Look([this] {
    Tap(1002);
    ExpectPage(1);
  });
}

TEST_F(RecurrenceSheetTest, BackLeadsToTheFirstPageAndNextReadsNextAgain) {
  Look([this] {
    Tap(1002);
    Tap(1001);
    ExpectPage(0);
    EXPECT_EQ(QApplication::focusWidget(), m_sheet->Control(1003));
  });
}

TEST_F(RecurrenceSheetTest, BackOnTheFirstPageDoesNothing) {
  Look([this] {
    Tap(1001);
    ExpectPage(0);
  });
}

TEST_F(RecurrenceSheetTest, TheButtonsFollowAPageThatIsShownOtherwise) {
  Look([this] {
    m_sheet->ShowPage(1);
    ExpectPage(1);
    m_sheet->ShowPage(0);
    ExpectPage(0);
  });
}

TEST_F(RecurrenceSheetTest, WhatWasEditedIsStillThereAfterBackAndNext) {
  Look([this] {
    EditBoth();
    Tap(1001);
    EXPECT_EQ(TextOf(1026), QStringLiteral("4"));
    Tap(1002);
    EXPECT_EQ(TextOf(1045), QStringLiteral("6"));
    EXPECT_TRUE(IsChecked(1042));
  });
}

TEST_F(RecurrenceSheetTest, DoneWritesBothPages) {
  EXPECT_EQ(Run([this] {
              EditBoth();
              Tap(1002);
            }),
            kResultOK);
  ExpectBothWritten();
}

TEST_F(RecurrenceSheetTest, OKOnTheFirstPageWritesBothPages) {
  EXPECT_EQ(Run([this] {
              EditBoth();
              Tap(1001);
              m_input.Key(Qt::Key_Return);
            }),
            kResultOK);
  ExpectBothWritten();
}

TEST_F(RecurrenceSheetTest, OKOnTheLastPageWritesBothPages) {
  EXPECT_EQ(Run([this] {
              EditBoth();
              m_input.Key(Qt::Key_Return);
            }),
            kResultOK);
  ExpectBothWritten();
}

TEST_F(RecurrenceSheetTest, OKWithoutAnEditOfTheRangeWritesTheRangeAsItWasLoaded) {
  m_pattern.NoEndDate = false;
  m_pattern.Occurrences = 5;
  Edit([this] { TypeOver(1026, QStringLiteral("2")); });
  EXPECT_EQ(m_pattern.Occurrences, 5);
  EXPECT_FALSE(m_pattern.NoEndDate);
  EXPECT_EQ(m_pattern.PatternEndDate, QDate(2004, 4, 7)) << "5 times every 2 days";
}

TEST_F(RecurrenceSheetTest, ReturnOnAButtonIsTheButton) {
  Look([this] {
    m_sheet->Control(1002)->setFocus();
    m_input.Key(Qt::Key_Return);
    ExpectPage(1);
  });
}

class NothingWritten : public RecurrenceSheetTest,
                       public testing::WithParamInterface<std::pair<int, bool>> {};

// By the button or by the key, on either page.
TEST_P(NothingWritten, AfterCancel) {
  const RecurrencePattern before = m_pattern;
  const auto& [page, byKey] = GetParam();
  EXPECT_EQ(Run([&, page = page, byKey = byKey] {
              EditBoth();
              m_sheet->ShowPage(page);
              byKey ? m_input.Key(Qt::Key_Escape) : Tap(2);
            }),
            kResultCancel);
  EXPECT_EQ(m_pattern, before);
}

INSTANTIATE_TEST_SUITE_P(PagesAndWays, NothingWritten,
                         testing::Values(std::pair(0, false), std::pair(0, true),
                                         std::pair(1, false), std::pair(1, true)));

TEST_F(RecurrenceSheetTest, NothingIsWrittenBeforeTheEnd) {
  const RecurrencePattern before = m_pattern;
  Look([&] {
    EditBoth();
    Tap(1001);
    EXPECT_EQ(m_sheet->Pattern(), before);
  });
}

TEST_F(RecurrenceSheetTest, WithThePanelUpAllIsStillThere) {
  m_panel.Raise();
  Look([this] {
    EXPECT_EQ(m_sheet->size(), QSize(240, 190));
    EXPECT_EQ(m_sheet->ActivePage()->geometry(), QRect(0, 0, 240, 150));
    for (const int id : {2, 1001, 1002}) EXPECT_TRUE(m_sheet->rect().contains(PlaceOf(id)));
    Tap(1002);
    ExpectPage(1);
    m_panel.Lower();
    EXPECT_EQ(m_sheet->size(), QSize(240, 270));
    EXPECT_EQ(m_sheet->ActivePage()->geometry(), QRect(0, 0, 240, 150));
    EXPECT_EQ(PlaceOf(1002), QRect(160, 150, 70, 24));
  });
}

TEST_F(RecurrenceSheetTest, AnIdThatBothPagesHaveIsTheShownPages) {
  Look([this] {
    const QWidget* const friday = m_sheet->Control(1045);
    Tap(1002);
    EXPECT_NE(m_sheet->Control(1045), friday);
    EXPECT_NE(dynamic_cast<QComboBox*>(m_sheet->Control(1045)), nullptr);
  });
}

TEST_F(RecurrenceSheetTest, ANumberTypedOnThePageIsTakenAtOnceByTheButtons) {
  Run([this] {
    TypeOver(1026, QStringLiteral("8"));
    Tap(1002);
    Tap(1002);
  });
  EXPECT_EQ(m_pattern.Interval, 8);
}

}  // namespace
}  // namespace quill
