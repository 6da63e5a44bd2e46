#include "editor/ui/RecordPage.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QScrollBar>

#include "SheetFixture.h"
#include "platform/ui/DatePicker.h"

namespace quill {
namespace {

using enum ContactField;

class RecordPageTest : public test::SheetFixture {
 protected:
  Oid AddKim() {
    ContactRecord record;
    record[FileAs] = QStringLiteral("Kim");
    record[FirstName] = QStringLiteral("Kim");
    record[JobTitle] = QStringLiteral("Engineer");
    return Add(record);
  }
  QScrollBar& Bar() const {
    return *qobject_cast<QScrollBar*>(m_sheet->Control(RecordSheetIds::kBasicScrollBar));
  }
  bool IsEnabled(int id) const { return m_sheet->Route().State(id).Enabled; }
};

TEST_F(RecordPageTest, WithThePanelDownNothingScrolls) {
  InSheet(AddKim(), [&] {
    EXPECT_EQ(Rows().geometry(), QRect(0, 10, 225, 248));
    EXPECT_EQ(Bar().geometry(), QRect(227, 0, 13, 248));
    EXPECT_EQ(Bar().maximum(), 0);
    Bar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(Rows().Top(), 0);
  });
}

TEST_F(RecordPageTest, ThePanelAllowsThreeLinesAndTakesThemBack) {
  InSheet(AddKim(), [&] {
    m_panel.Raise();
    EXPECT_EQ(Bar().geometry(), QRect(227, 0, 13, 168));
    EXPECT_EQ(Bar().maximum(), 3);
    Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(Rows().Top(), 3);
    Bar().triggerAction(QAbstractSlider::SliderSingleStepSub);
    EXPECT_EQ(Rows().Top(), 2);
    Bar().setSliderPosition(1);
    EXPECT_EQ(Rows().Top(), 1);
    m_panel.Lower();
    EXPECT_EQ(Rows().Top(), 0);
  });
}

TEST_F(RecordPageTest, TheEditedFieldFollowsTheScrolledRow) {
  InSheet(AddKim(), [&] {
    TapRow(4);
    EXPECT_EQ(RowEdit().y(), 4 * 19);
    Bar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(RowEdit().y(), 3 * 19);
    EXPECT_TRUE(RowEdit().hasFocus());
  });
}

TEST_F(RecordPageTest, TheEditedRowStaysVisibleAboveThePanel) {
  InSheet(AddKim(), [&] {
    TapRow(9);
    EXPECT_GE(Rows().Top(), 2);
    EXPECT_LE(Rows().geometry().y() + RowEdit().geometry().bottom(), 168);
  });
}

TEST_F(RecordPageTest, WhatIsEnteredBringsItsRowBackIntoSight) {
  InSheet(AddKim(), [&] {
    TapRow(1);
    const auto scrollAway = [&] {
      Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
      ASSERT_EQ(Rows().Top(), 3);
    };
    scrollAway();
    m_input.Key(Qt::Key_Home);
    EXPECT_EQ(Rows().Top(), 3) << "nothing is entered";
    m_input.Type(QStringLiteral("x"));
    EXPECT_EQ(Rows().Top(), 1);
    EXPECT_EQ(Bar().value(), 1);
    EXPECT_EQ(RowEdit().y(), 0);
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("xEngineer"));
    scrollAway();
    QInputMethodEvent composing(QStringLiteral("\uAE40"), {});
    QApplication::sendEvent(&RowEdit(), &composing);
    EXPECT_EQ(Rows().Top(), 1);
  });
}

TEST_F(RecordPageTest, ADateThatIsEnteredBringsItsRowBackIntoSight) {
  InSheet(AddKim(), [&] {
    m_sheet->ShowPage(1);
    TapRow(7);
    m_panel.Raise();
    auto& picker = *qobject_cast<CDatePicker*>(m_sheet->Control(RecordSheetIds::kRowDate));
    Rows().SetTop(0);
    m_input.Key(Qt::Key_Up);
    EXPECT_EQ(Rows().Top(), 0) << "row 7 is the last one shown";
    Rows().SetTop(3);
    TapRow(8);
    Rows().SetTop(0);
    picker.ChooseDate(QDate(2001, 12, 31));
    EXPECT_EQ(Rows().Top(), 1);
  });
}

TEST_F(RecordPageTest, EditCommandsAreEnabledByTheActiveField) {
  InSheet(AddKim(), [&] {
    for (const int id : {ID_EDIT_UNDO, ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_CLEAR})
      EXPECT_FALSE(IsEnabled(id)) << id;
    EXPECT_TRUE(IsEnabled(ID_EDIT_PASTE));
    TapRow(1);
    EXPECT_TRUE(IsEnabled(ID_EDIT_CUT));
    RowEdit().deselect();
    EXPECT_FALSE(IsEnabled(ID_EDIT_CUT));
    m_input.Type(QStringLiteral("x"));
    EXPECT_TRUE(IsEnabled(ID_EDIT_UNDO));
  });
}

TEST_F(RecordPageTest, AFieldWhoseEditHasEndedEnablesNothing) {
  InSheet(AddKim(), [&] {
    TapRow(1);
    m_input.Type(QStringLiteral("xy"));
    RowEdit().selectAll();
    m_panel.Lower();
    TapRow(11, 10);
    for (const int id : {ID_EDIT_UNDO, ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_CLEAR})
      EXPECT_FALSE(IsEnabled(id)) << id;
    m_sheet->RunCommand(ID_EDIT_PASTE);
    EXPECT_EQ(RowEdit().text(), QStringLiteral("xy"));
  });
}

TEST_F(RecordPageTest, APartWhoseEditHasEndedEnablesNothing) {
  InSheet(AddKim(), [&] {
    TapRow(0);
    TapPart({100, 25});
    EXPECT_TRUE(IsEnabled(ID_EDIT_CUT));
    TapPart({20, 25});
    EXPECT_FALSE(IsEnabled(ID_EDIT_CUT));
  });
}

TEST_F(RecordPageTest, TheDetailPageOffersAllFiveAtAnyTime) {
  InSheet(AddKim(), [&] {
    m_sheet->ShowPage(1);
    for (const int id : {ID_EDIT_UNDO, ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_PASTE, ID_EDIT_CLEAR})
      EXPECT_TRUE(IsEnabled(id)) << id;
    m_sheet->RunCommand(ID_EDIT_CUT);
  });
}

TEST_F(RecordPageTest, WithPartsOpenClearActsOnThePart) {
  InSheet(AddKim(), [&] {
    TapRow(0);
    TapPart({100, 25});
    m_sheet->RunCommand(ID_EDIT_CLEAR);
    EXPECT_EQ(Value(RowSet::NameParts, 1), QString());
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Engineer"));
  });
}

TEST_F(RecordPageTest, TimerOneEditsTheFirstRowOnce) {
  InSheet(AddKim(), [&] {
    auto& page = dynamic_cast<CRecordPage&>(*m_sheet->ActivePage());
    m_timers.Set(page, 1, 10);
    m_timers.Advance(10);
    EXPECT_NE(Parts(), nullptr);
    EXPECT_FALSE(m_timers.IsRunning(page, 1));
  });
}

TEST_F(RecordPageTest, WhatIsTypedBeforeARowIsChosenIsTheName) {
  InSheet(0, [&] {
    m_input.Type(QStringLiteral("Minsu"));
    EXPECT_EQ(Value(RowSet::NameParts, 1), QStringLiteral("Minsu"));
    EXPECT_TRUE(m_sheet->Control(RecordSheetIds::kNamePartEdit)->hasFocus());
    m_sheet->ShowPage(1);
    m_input.Type(QStringLiteral("01\uAE40"));
    EXPECT_EQ(Value(RowSet::Detail, 0), QStringLiteral("01\uAE40"));
    EXPECT_TRUE(RowEdit().hasFocus());
  });
}

TEST_F(RecordPageTest, BlanksAndCommandsBeginNoRow) {
  InSheet(0, [&] {
    m_input.Type(QStringLiteral(" "));
    m_input.Key(Qt::Key_A, Qt::ControlModifier);
    m_input.Key(Qt::Key_Backspace);
    EXPECT_EQ(Rows().EditedRow(), -1);
    m_input.Key(Qt::Key_A, Qt::ShiftModifier);
    EXPECT_EQ(Rows().EditedRow(), 0);
  });
}

TEST_F(RecordPageTest, ANameRowShowsTheFileAsUntilTheFirstTap) {
  InSheet(AddKim(), [&] {
    EXPECT_EQ(Value(RowSet::Basic, 0), QStringLiteral("Kim"));
    TapRow(11, 10);
    EXPECT_EQ(Value(RowSet::Basic, 0), QStringLiteral("Kim "));
  });
}

}  // namespace
}  // namespace quill
