#include "editor/ui/EditRecordSheet.h"

#include <QLabel>
#include <QPushButton>

#include "SheetFixture.h"
#include "editor/Draft.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

using enum ContactField;

class EditRecordSheetTest : public test::SheetFixture {
 protected:
  Oid AddKim() {
    ContactRecord record;
    record[FileAs] = QStringLiteral("Kim");
    return Add(record, "ink");
  }
  void TypeInRow(int row, const QString& text) {
    TapRow(row);
    m_input.Type(text);
  }
  QPushButton* Button(int id) const { return qobject_cast<QPushButton*>(m_sheet->Control(id)); }
};

TEST_F(EditRecordSheetTest, HasThreePagesWithTheirMenuBars) {
  InSheet(AddKim(), [&] {
    QStringList titles;
    for (const CSheetPage* page : m_sheet->Pages()) titles.append(page->Title());
    EXPECT_EQ(titles, QStringList({QStringLiteral("Basic"), QStringLiteral("Detail"),
                                   QStringLiteral("Memo")}));
    EXPECT_EQ(m_sheet->MenuBar().Menus.size(), 1U);
    m_sheet->ShowPage(2);
    EXPECT_EQ(m_sheet->MenuBar().Menus.size(), 2U);
  });
}

TEST_F(EditRecordSheetTest, AnEditLeavesTheInkAsItIs) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_sheet->ShowPage(2);
    PressOK();
  });
  EXPECT_EQ(Stored(kim).BodyInk, "ink");
  EXPECT_EQ(Stored(kim).Record[JobTitle], QStringLiteral("Pilot"));
  EXPECT_EQ(g_contactInk.Count(), 0);
}

TEST_F(EditRecordSheetTest, CancelWritesNothingAndKeepsNoDraft) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_timers.Advance(2000);
  });
  EXPECT_EQ(Stored(kim).Record[JobTitle], QString());
  EXPECT_EQ(LoadDraft(kim), std::nullopt);
}

struct EscapeCase {
  const char* Name;
  int Page;
  int Row;
  std::optional<QPoint> Part;  // where it is tapped
};

class EscapeOfEdits : public EditRecordSheetTest, public testing::WithParamInterface<EscapeCase> {};

TEST_P(EscapeOfEdits, LeavesTheSheetOpenAndTheNextOneCancelsIt) {
  InSheet(AddKim(), [&] {
    m_sheet->ShowPage(GetParam().Page);
    TapRow(GetParam().Row);
    if (GetParam().Part) TapPart(*GetParam().Part);
    m_input.Key(Qt::Key_Escape);
    EXPECT_EQ(g_contactInk.Count(), 3) << "still open";
    EXPECT_EQ(Rows().EditedRow(), -1);
    EXPECT_EQ(Parts(), nullptr);
    EXPECT_TRUE(Rows().hasFocus());
    m_input.Key(Qt::Key_Escape);
    EXPECT_EQ(g_contactInk.Count(), 0);
  });
}

INSTANTIATE_TEST_SUITE_P(Rows, EscapeOfEdits,
                         testing::Values(EscapeCase{"Text", 0, 1, {}},
                                         EscapeCase{"Parts", 0, 0, {}},
                                         EscapeCase{"Part", 0, 0, QPoint(100, 25)},
                                         EscapeCase{"Street", 0, 8, QPoint(100, 25)},
                                         EscapeCase{"Date", 1, 7, {}}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(EditRecordSheetTest, WhatEscapeEndsKeepsItsText) {
  InSheet(AddKim(), [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_input.Key(Qt::Key_Escape);
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Pilot"));
    TapRow(0);
    TapPart({100, 25});
    m_input.Type(QStringLiteral("Min"));
    m_input.Key(Qt::Key_Escape);
    EXPECT_EQ(Value(RowSet::Basic, 0), QStringLiteral("Min "));
  });
}

TEST_F(EditRecordSheetTest, AHeldEscapeEndsOneEditOnly) {
  InSheet(AddKim(), [&] {
    TapRow(1);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&RowEdit(), &held);
    EXPECT_EQ(Rows().EditedRow(), 1);
  });
}

TEST_F(EditRecordSheetTest, WhatIsTypedIsKeptAgainstACrashTwoSecondsLater) {
  InSheet(0, [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_timers.Advance(1999);
    EXPECT_EQ(LoadDraft(0), std::nullopt);
    m_timers.Advance(1);
    EXPECT_EQ(LoadDraft(0)->Record[JobTitle], QStringLiteral("Pilot"));
  });
}

TEST_F(EditRecordSheetTest, WhatTheProgramsEndClosesIsKept) {
  InSheet(0, [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_isEnded = true;
    m_sheet->EndDialog(kResultCancel);
  });
  EXPECT_EQ(LoadDraft(0)->Record[JobTitle], QStringLiteral("Pilot"));
}

TEST_F(EditRecordSheetTest, OKLeavesNoDraftOfWhatWasWritten) {
  InSheet(0, [&] {
    TypeInRow(3, QStringLiteral("Quill"));
    m_timers.Advance(2000);
    PressOK();
  });
  EXPECT_EQ(LoadDraft(0), std::nullopt);
  EXPECT_EQ(Count(AllContacts()), 1);
}

TEST_F(EditRecordSheetTest, WhatCanNeitherBeStoredNorBecomeADraftStaysInTheSheetUntilItCan) {
  test::ScriptedPrompt prompt({PromptAnswer::OK});
  g_services.Prompt = &prompt;
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_store.Faults().Save = true;
    g_services.Recovery = nullptr;
    PressOK();
    EXPECT_EQ(m_screen->Topmost(), m_sheet);
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Pilot"));
    m_store.Faults().Save = false;
    PressOK();
  });
  g_services.Prompt = nullptr;
  EXPECT_EQ(Stored(kim).Record[JobTitle], QStringLiteral("Pilot"));
  EXPECT_EQ(Stored(kim).BodyInk, "ink");
}

TEST_F(EditRecordSheetTest, OfAContactDeletedMeanwhileTheUserIsToldWhereWhatWasEnteredIs) {
  test::ScriptedPrompt prompt({PromptAnswer::OK});
  g_services.Prompt = &prompt;
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_store.Contacts()->Remove(kim);
    PressOK();
  });
  ASSERT_EQ(prompt.Shown().size(), 1U);
  EXPECT_EQ(prompt.Shown()[0].Text,
            QStringLiteral("The contact was deleted meanwhile. "
                           "What was entered is offered to the next new contact."));
  InSheet(0, [&] {
    Button(RecordSheetIds::kRestoreDraft)->click();
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Pilot"));
    EXPECT_EQ(Value(RowSet::Basic, 0), QStringLiteral("Kim"));
  });
  g_services.Prompt = nullptr;
}

TEST_F(EditRecordSheetTest, OfAContactDeletedMeanwhileThatIsGivenUpNothingIsSaid) {
  test::ScriptedPrompt prompt;
  g_services.Prompt = &prompt;
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    TypeInRow(1, QStringLiteral("Pilot"));
    m_store.Contacts()->Remove(kim);
  });
  g_services.Prompt = nullptr;
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

class DraftBarTest : public EditRecordSheetTest {
 protected:
  void SetUp() override {
    Draft draft;
    draft.Record[JobTitle] = QStringLiteral("Pilot");
    ASSERT_NE(SaveDraft(draft), 0);
  }
};

TEST_F(DraftBarTest, OffersTheDraftToANewContactAndMovesNothing) {
  InSheet(0, [&] {
    ASSERT_NE(Button(RecordSheetIds::kRestoreDraft), nullptr);
    EXPECT_EQ(Rows().geometry(), QRect(0, 10, 225, 248));
    Button(RecordSheetIds::kRestoreDraft)->click();
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Pilot"));
    EXPECT_EQ(Button(RecordSheetIds::kRestoreDraft), nullptr);
  });
  EXPECT_NE(LoadDraft(0), std::nullopt) << "until it is saved";
}

TEST_F(DraftBarTest, ADraftThatWasTakenBackAndCancelledIsOfferedAsItWas) {
  InSheet(0, [&] {
    Button(RecordSheetIds::kRestoreDraft)->click();
    TypeInRow(1, QStringLiteral("Painter"));
    m_timers.Advance(2000);
    EXPECT_EQ(LoadDraft(0)->Record[JobTitle], QStringLiteral("Painter"));
  });
  EXPECT_EQ(LoadDraft(0)->Record[JobTitle], QStringLiteral("Pilot"));
}

TEST_F(DraftBarTest, IsNotThereForAContactThatTheDraftDoesNotBelongTo) {
  InSheet(AddKim(), [&] { EXPECT_EQ(Button(RecordSheetIds::kRestoreDraft), nullptr); });
}

TEST_F(DraftBarTest, OffersAContactItsOwnDraftAndANewOneTheOther) {
  const Oid kim = AddKim();
  Draft own{.Oid = kim, .FileAs = QStringLiteral("Kim")};
  own.Record[JobTitle] = QStringLiteral("Painter");
  ASSERT_NE(SaveDraft(own), 0);
  InSheet(0, [&] {
    Button(RecordSheetIds::kRestoreDraft)->click();
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Pilot"));
  });
  InSheet(kim, [&] {
    ASSERT_NE(Button(RecordSheetIds::kRestoreDraft), nullptr);
    Button(RecordSheetIds::kRestoreDraft)->click();
    PressOK();
  });
  EXPECT_EQ(Stored(kim).Record[JobTitle], QStringLiteral("Painter"));
  EXPECT_EQ(Stored(kim).BodyInk, "ink");
  EXPECT_EQ(LoadDraft(kim), std::nullopt);
  EXPECT_NE(LoadDraft(0), std::nullopt);
}

TEST_F(DraftBarTest, OnceItIsAnsweredTheNextDraftIsOfferedAtTheNextOpening) {
  Draft later;
  later.Record[JobTitle] = QStringLiteral("Painter");
  ASSERT_NE(SaveDraft(later), 0);
  for (const QString& title : {QStringLiteral("Painter"), QStringLiteral("Pilot")})
    InSheet(0, [&] {
      const QLabel& text = *m_sheet->findChild<COfferBar*>()->findChild<QLabel*>();
      EXPECT_EQ(text.accessibleName(), QStringLiteral("Not saved: ") + title);
      Button(RecordSheetIds::kDiscardDraft)->click();
      EXPECT_EQ(Button(RecordSheetIds::kDiscardDraft), nullptr);
    });
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(DraftBarTest, DiscardThrowsTheDraftAway) {
  InSheet(0, [&] {
    Button(RecordSheetIds::kDiscardDraft)->click();
    EXPECT_EQ(Button(RecordSheetIds::kDiscardDraft), nullptr);
  });
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(DraftBarTest, GivesWayToThePanel) {
  InSheet(0, [&] {
    m_panel.Raise();
    EXPECT_EQ(Button(RecordSheetIds::kRestoreDraft), nullptr);
    m_panel.Lower();
    EXPECT_NE(Button(RecordSheetIds::kRestoreDraft), nullptr);
  });
}

TEST_F(DraftBarTest, UnderThePanelAKeyInAFieldShowsItAndTheNextOneRestores) {
  InSheet(0, [&] {
    TapRow(2);
    ASSERT_TRUE(m_panel.IsUp());
    m_input.Key(Qt::Key_R, Qt::ControlModifier);
    ASSERT_NE(Button(RecordSheetIds::kRestoreDraft), nullptr);
    EXPECT_TRUE(Button(RecordSheetIds::kRestoreDraft)->hasFocus());
    EXPECT_EQ(Value(RowSet::Basic, 1), QString());
    m_input.Key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Pilot"));
  });
}

TEST_F(DraftBarTest, UnderThePanelAKeyInAPartShowsItAndTheNextOneDiscards) {
  InSheet(0, [&] {
    TapRow(8);
    TapPart({100, 25});
    m_input.Key(Qt::Key_D, Qt::ControlModifier);
    ASSERT_NE(Button(RecordSheetIds::kDiscardDraft), nullptr);
    EXPECT_TRUE(Button(RecordSheetIds::kDiscardDraft)->hasFocus());
    EXPECT_NE(LoadDraft(0), std::nullopt);
    m_input.Key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(LoadDraft(0), std::nullopt);
  });
}

TEST_F(DraftBarTest, UnderThePanelTabLeadsToItToo) {
  InSheet(0, [&] {
    m_sheet->ShowPage(1);
    TapRow(kRecordRowCount - 1);
    ASSERT_TRUE(m_panel.IsUp());
    m_input.Key(Qt::Key_Tab);
    ASSERT_NE(Button(RecordSheetIds::kRestoreDraft), nullptr);
    EXPECT_TRUE(Button(RecordSheetIds::kRestoreDraft)->hasFocus());
    m_input.Key(Qt::Key_Tab);
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(Rows().EditedRow(), 0);
    EXPECT_EQ(Button(RecordSheetIds::kRestoreDraft), nullptr);
  });
}

TEST_F(DraftBarTest, IsReachedByTabFromBothEndsOfTheRows) {
  InSheet(0, [&] {
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(Button(RecordSheetIds::kDiscardDraft)->hasFocus());
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(Button(RecordSheetIds::kRestoreDraft)->hasFocus());
    m_input.Key(Qt::Key_Tab);
    EXPECT_TRUE(Button(RecordSheetIds::kDiscardDraft)->hasFocus());
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(Rows().EditedRow(), 0);
    m_sheet->ShowPage(1);
    Rows().StartEdit(kRecordRowCount - 1);
    m_panel.Lower();
    m_input.Key(Qt::Key_Tab);
    EXPECT_TRUE(Button(RecordSheetIds::kRestoreDraft)->hasFocus());
    EXPECT_EQ(Rows().EditedRow(), -1);
  });
}

TEST_F(DraftBarTest, BackwardsTabLeadsFromItToTheLastRow) {
  InSheet(0, [&] {
    m_sheet->ShowPage(1);
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Rows().EditedRow(), kRecordRowCount - 1);
    EXPECT_TRUE(RowEdit().hasFocus());
  });
}

TEST_F(DraftBarTest, AKeyRestoresAndTheFocusGoesToTheRowsUnedited) {
  InSheet(0, [&] {
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    m_input.Key(Qt::Key_Return);
    EXPECT_EQ(Value(RowSet::Basic, 1), QStringLiteral("Pilot"));
    EXPECT_EQ(Button(RecordSheetIds::kRestoreDraft), nullptr);
    EXPECT_TRUE(Rows().hasFocus());
    EXPECT_EQ(Rows().EditedRow(), -1);
  });
}

TEST_F(DraftBarTest, WithoutItTabGoesRoundTheRows) {
  InSheet(0, [&] {
    Button(RecordSheetIds::kDiscardDraft)->click();
    m_sheet->ShowPage(1);
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Rows().EditedRow(), kRecordRowCount - 1);
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(Rows().EditedRow(), 0);
  });
}

TEST_F(DraftBarTest, StaysWhileItHasTheFocus) {
  InSheet(0, [&] {
    m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    m_panel.Raise();
    ASSERT_NE(Button(RecordSheetIds::kDiscardDraft), nullptr);
    EXPECT_TRUE(Button(RecordSheetIds::kDiscardDraft)->hasFocus());
    m_input.Key(Qt::Key_Tab);
    EXPECT_EQ(Button(RecordSheetIds::kDiscardDraft), nullptr);
  });
}

TEST_F(DraftBarTest, RestoringKeepsWhatWasBeingTypedAsADraftOfItsOwn) {
  InSheet(0, [&] {
    TypeInRow(2, QStringLiteral("typed"));
    m_panel.Lower();
    Button(RecordSheetIds::kRestoreDraft)->click();
    EXPECT_FALSE(RowEdit().isVisible());
    EXPECT_EQ(Value(RowSet::Basic, 2), QString());
    EXPECT_EQ(LoadDraft(0)->Record[Department], QStringLiteral("typed"));
  });
}

}  // namespace
}  // namespace quill
