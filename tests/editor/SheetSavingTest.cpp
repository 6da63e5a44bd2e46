#include "editor/SheetSaving.h"

#include <gtest/gtest.h>

#include "editor/Draft.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/DeviceHome.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

using enum ContactField;

class SheetSavingTest : public test::FreshState {
 protected:
  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }
  void TearDown() override { CloseSession(); }

  Oid Add(const QString& fileAs, const QByteArray& ink = {}) {
    ContactRecord record;
    record[FileAs] = fileAs;
    return m_store.Contacts()->Save(0, record, ink);
  }
  ContactItem Stored(Oid oid) {
    ContactItem item;
    m_store.Contacts()->Read(oid, item);
    return item;
  }
  ContactItem StoredFirst() { return Stored(m_store.Contacts()->OidAt(AllContacts(), 1)); }

  test::DeviceHome m_home;
  PimStore m_pimStore{QStringLiteral(":memory:")};
  test::FaultyStore m_store{m_pimStore};
  SheetState m_state;
  Settings m_settings;
};

void Type(SheetRecord& sheet, RowSet set, int row, const QString& text) {
  RowsOf(sheet, set)[static_cast<std::size_t>(row)].Value = text;
}

TEST_F(SheetSavingTest, ANewContactIsWrittenAndTheStoreFilesIt) {
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::NameParts, 1, QStringLiteral("Minsu"));
  Type(sheet, RowSet::NameParts, 3, QStringLiteral("Kim"));
  g_contactInk.Bytes = "ink";
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(StoredFirst().Record[FileAs], QStringLiteral("Kim, Minsu"));
  EXPECT_EQ(StoredFirst().BodyInk, "ink");
  EXPECT_EQ(g_contactInk.Count(), 0);
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(SheetSavingTest, AnExistingContactIsWrittenUnderItsOldName) {
  const Oid kim = Add(QStringLiteral("Kim"), "ink");
  SheetRecord sheet = LoadSheet(kim, m_state);
  Type(sheet, RowSet::NameParts, 3, QStringLiteral("Lee"));
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(Stored(kim).Record[FileAs], QStringLiteral("Kim"));
  EXPECT_EQ(Stored(kim).Record[LastName], QStringLiteral("Lee"));
  EXPECT_EQ(Stored(kim).BodyInk, "ink");
}

// What someone else changed while its sheet was open.
class ChangedElsewhereTest : public SheetSavingTest {
 protected:
  void SetUp() override {
    SheetSavingTest::SetUp();
    ContactRecord record;
    record[FileAs] = record[LastName] = QStringLiteral("Kim");
    record[BusinessTelephoneNumber] = QStringLiteral("1");
    record.Birthday = {.Year = 1970, .Month = 2, .DayOfWeek = 6, .Day = 28};
    m_kim = m_store.Contacts()->Save(0, record, "ink");
    m_sheet = LoadSheet(m_kim, m_state);
    record[FileAs] = QStringLiteral("Kim, elsewhere");
    record[BusinessTelephoneNumber] = QStringLiteral("2");
    record.Birthday = {.Year = 1971, .Month = 3, .DayOfWeek = 1, .Day = 1};
    m_elsewhere = record;
    ASSERT_NE(m_store.Contacts()->Save(m_kim, record, "ink elsewhere"), 0);
  }

  Oid m_kim = 0;
  SheetRecord m_sheet;
  ContactRecord m_elsewhere;
};

TEST_F(ChangedElsewhereTest, OnlyWhatWasEnteredIsWrittenOverIt) {
  Type(m_sheet, RowSet::Basic, 1, QStringLiteral("Painter"));
  EXPECT_EQ(SaveSheet(m_sheet, m_settings), SheetOutcome::Written);
  m_elsewhere[JobTitle] = QStringLiteral("Painter");
  EXPECT_EQ(Stored(m_kim).Record, m_elsewhere);
  EXPECT_EQ(Stored(m_kim).BodyInk, "ink elsewhere");
}

TEST_F(ChangedElsewhereTest, WhatWasEnteredWins) {
  Type(m_sheet, RowSet::Basic, 5, QStringLiteral("3"));
  SetDateAt(m_sheet, RowSet::Detail, 7, {});
  g_contactInk.Bytes = "ink entered";
  EXPECT_EQ(SaveSheet(m_sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(Stored(m_kim).Record[BusinessTelephoneNumber], QStringLiteral("3"));
  EXPECT_EQ(Stored(m_kim).Record.Birthday.Year, 0);
  EXPECT_EQ(Stored(m_kim).BodyInk, "ink entered");
}

TEST_F(ChangedElsewhereTest, ASheetWithNothingEnteredWritesWhatTheStoreHasNow) {
  EXPECT_EQ(SaveSheet(m_sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(Stored(m_kim).Record, m_elsewhere);
  EXPECT_EQ(Stored(m_kim).BodyInk, "ink elsewhere");
}

TEST_F(ChangedElsewhereTest, WhatCannotBeReadIsNotWrittenOver) {
  Type(m_sheet, RowSet::Basic, 1, QStringLiteral("Painter"));
  m_store.Faults().Read = m_kim;
  EXPECT_EQ(SaveSheet(m_sheet, m_settings), SheetOutcome::KeptAsDraft);
  m_store.Faults().Read = 0;
  EXPECT_EQ(Stored(m_kim).Record, m_elsewhere);
  EXPECT_EQ(LoadDraft(m_kim)->Record[JobTitle], QStringLiteral("Painter"));
}

TEST_F(ChangedElsewhereTest, WithoutASessionWhatWasEnteredBecomesADraft) {
  Type(m_sheet, RowSet::Basic, 1, QStringLiteral("Painter"));
  CloseSession();
  EXPECT_EQ(SaveSheet(m_sheet, m_settings), SheetOutcome::KeptAsDraft);
}

TEST_F(SheetSavingTest, ACategoryThatIsRenamedElsewhereMeanwhileKeepsItsNewName) {
  ContactRecord record;
  record[FileAs] = QStringLiteral("Kim");
  record[Categories] = QStringLiteral("Family, Work");
  const Oid kim = m_store.Contacts()->Save(0, record, {});
  SheetRecord sheet = LoadSheet(kim, m_state);
  record[Categories] = QStringLiteral("Family, Job");
  ASSERT_NE(m_store.Contacts()->Save(kim, record, {}), 0);
  Type(sheet, RowSet::Basic, 1, QStringLiteral("Painter"));
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(Stored(kim).Record[JobTitle], QStringLiteral("Painter"));
  EXPECT_EQ(Stored(kim).Record[Categories], QStringLiteral("Family, Job"));
}

TEST_F(SheetSavingTest, AStoredNumberThatIsTheAreaCodeIsWrittenEmpty) {
  ContactRecord record;
  record[FileAs] = QStringLiteral("Kim");
  record[MobileTelephoneNumber] = QStringLiteral("02-");
  const Oid kim = m_store.Contacts()->Save(0, record, {});
  const SheetRecord sheet = LoadSheet(kim, m_state);
  m_settings.AreaCodePrefix = QStringLiteral("02-");
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(Stored(kim).Record[MobileTelephoneNumber], QString());
}

TEST_F(SheetSavingTest, AnAreaCodeAloneIsNoNumber) {
  m_settings.AreaCodePrefix = QStringLiteral("02-");
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 3, QStringLiteral("Rosewood"));
  Type(sheet, RowSet::Basic, 4, QStringLiteral("02-"));
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(StoredFirst().Record[MobileTelephoneNumber], QString());
}

TEST_F(SheetSavingTest, AnEmptySheetWritesNothingAndLeavesNoDraft) {
  EXPECT_EQ(SaveSheet(LoadSheet(0, m_state), m_settings), SheetOutcome::NothingToSave);
  EXPECT_EQ(Count(AllContacts()), 0);
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(SheetSavingTest, ASheetWithOnlyTheAreaCodeLeavesNoDraft) {
  m_settings.AreaCodePrefix = QStringLiteral("02-");
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 4, QStringLiteral("02-"));
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::NothingToSave);
}

TEST_F(SheetSavingTest, WhatIsNotWorthWritingBecomesADraft) {
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 9, QStringLiteral("kim@example.com"));
  g_contactInk.Bytes = "ink";
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::KeptAsDraft);
  EXPECT_EQ(Count(AllContacts()), 0);
  EXPECT_EQ(g_contactInk.Count(), 0);
  Draft expected{.Number = 1, .Ink = "ink"};
  expected.Record[Email1Address] = QStringLiteral("kim@example.com");
  EXPECT_EQ(LoadDraft(0), expected);
}

TEST_F(SheetSavingTest, InkAloneBecomesADraft) {
  const SheetRecord sheet = LoadSheet(0, m_state);
  g_contactInk.Bytes = "ink";
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::KeptAsDraft);
  EXPECT_EQ(LoadDraft(0)->Ink, "ink");
}

TEST_F(SheetSavingTest, AContactWithoutAnyNameThatWasNotChangedLeavesNoDraft) {
  ContactRecord record;
  record[Email1Address] = QStringLiteral("kim@example.com");
  const Oid oid = m_store.Contacts()->SaveWhole(0, {.Record = record, .BodyInk = "ink"});
  ASSERT_EQ(Stored(oid).Record[FileAs], QString());
  SheetRecord sheet = LoadSheet(oid, m_state);
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::NothingToSave);
  sheet = LoadSheet(oid, m_state);
  Type(sheet, RowSet::Basic, 1, QStringLiteral("Painter"));
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::KeptAsDraft);
  EXPECT_EQ(LoadDraft(oid)->Oid, oid);
  EXPECT_EQ(LoadDraft(oid)->Ink, "ink");
}

TEST_F(SheetSavingTest, WhatTheStoreCannotWriteBecomesADraftWithItsInk) {
  const Oid kim = Add(QStringLiteral("Kim"), "ink");
  SheetRecord sheet = LoadSheet(kim, m_state);
  Type(sheet, RowSet::Basic, 1, QStringLiteral("Painter"));
  m_store.Faults().Save = true;
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::KeptAsDraft);
  EXPECT_EQ(Stored(kim).Record[JobTitle], QString());
  Draft expected{.Number = 1, .Oid = kim, .FileAs = QStringLiteral("Kim")};
  expected.Ink = expected.OpenedInk = "ink";
  expected.Record[FileAs] = expected.Opened[FileAs] = QStringLiteral("Kim");
  expected.Record[JobTitle] = QStringLiteral("Painter");
  EXPECT_EQ(LoadDraft(kim), expected);
}

TEST_F(SheetSavingTest, WhatOneContactDeletedMeanwhileWasToHoldBecomesADraft) {
  const Oid kim = Add(QStringLiteral("Kim"));
  SheetRecord sheet = LoadSheet(kim, m_state);
  Type(sheet, RowSet::Basic, 1, QStringLiteral("Painter"));
  m_store.Contacts()->Remove(kim);
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::KeptOfDeleted);
  EXPECT_EQ(LoadDraft(0)->Record[JobTitle], QStringLiteral("Painter"));
}

TEST_F(SheetSavingTest, OfAContactDeletedMeanwhileInWhichNothingWasEnteredNothingIsKept) {
  const Oid kim = Add(QStringLiteral("Kim"), "ink");
  const SheetRecord sheet = LoadSheet(kim, m_state);
  m_store.Contacts()->Remove(kim);
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::NothingToSave);
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(SheetSavingTest, WhatTheStoreCannotWriteAndNobodyEnteredIsNotKept) {
  const Oid kim = Add(QStringLiteral("Kim"));
  const SheetRecord sheet = LoadSheet(kim, m_state);
  m_store.Faults().Save = true;
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::NothingToSave);
  EXPECT_EQ(LoadDraft(kim), std::nullopt);
}

TEST_F(SheetSavingTest, ARestoredDraftThatIsWrittenIsADraftNoLonger) {
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 9, QStringLiteral("kim@example.com"));
  g_contactInk.Bytes = "ink";
  SaveSheet(sheet, m_settings);
  SheetRecord restored = SheetOfDraft(*LoadDraft(0), m_state);
  Type(restored, RowSet::NameParts, 3, QStringLiteral("Kim"));
  EXPECT_EQ(SaveSheet(restored, m_settings), SheetOutcome::Written);
  EXPECT_EQ(StoredFirst().Record[Email1Address], QStringLiteral("kim@example.com"));
  EXPECT_EQ(StoredFirst().BodyInk, "ink");
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(SheetSavingTest, ARestoredDraftThatIsStillNotWorthWritingTakesItsOwnPlace) {
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 9, QStringLiteral("kim@example.com"));
  SaveSheet(sheet, m_settings);
  SheetRecord restored = SheetOfDraft(*LoadDraft(0), m_state);
  EXPECT_EQ(SaveSheet(restored, m_settings), SheetOutcome::KeptAsDraft);
  EXPECT_EQ(LoadDraft(0)->Number, 1);
  DiscardDraft(1);
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(SheetSavingTest, ARestoredDraftThatIsEmptiedIsGone) {
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 9, QStringLiteral("kim@example.com"));
  SaveSheet(sheet, m_settings);
  SheetRecord restored = SheetOfDraft(*LoadDraft(0), m_state);
  Type(restored, RowSet::Basic, 9, {});
  EXPECT_EQ(SaveSheet(restored, m_settings), SheetOutcome::NothingToSave);
  EXPECT_EQ(LoadDraft(0), std::nullopt);
}

TEST_F(SheetSavingTest, OtherDraftsStayWhenASheetIsWritten) {
  SaveDraft({.FileAs = QStringLiteral("other")});
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 3, QStringLiteral("Rosewood"));
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::Written);
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("other"));
}

TEST_F(SheetSavingTest, WhereNoDraftCanBeKeptTheInkStays) {
  g_services.Recovery = nullptr;
  SheetRecord sheet = LoadSheet(0, m_state);
  Type(sheet, RowSet::Basic, 9, QStringLiteral("kim@example.com"));
  g_contactInk.Bytes = "ink";
  EXPECT_EQ(SaveSheet(sheet, m_settings), SheetOutcome::NotKept);
  EXPECT_EQ(g_contactInk.Bytes, "ink");
}

}  // namespace
}  // namespace quill
