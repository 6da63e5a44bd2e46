#include "editor/Draft.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "editor/SampleDraft.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/DeviceHome.h"
#include "support/FreshState.h"

namespace quill {
namespace {

class DraftTest : public test::FreshState {
 protected:
  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }
  void TearDown() override { CloseSession(); }

  QString FileName() const {
    return m_home.Folder.filePath(QStringLiteral("recovery-drafts.json"));
  }
  void PutFile(const QByteArray& content) const {
    QFile file(FileName());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }
  QStringList FilesAtHome() const { return QDir(m_home.Folder.path()).entryList(QDir::Files); }

  static Draft Named(const QString& fileAs) { return {.FileAs = fileAs}; }

  test::DeviceHome m_home;
  PimStore m_store{QStringLiteral(":memory:")};
  SheetState m_state;
};

TEST_F(DraftTest, ADraftComesBackWhole) {
  EXPECT_EQ(SaveDraft(test::FullDraft(0)), 1);
  EXPECT_EQ(LoadDraft(test::FullDraft(0).Oid), test::FullDraft(1));
}

TEST_F(DraftTest, WithoutAnyThereIsNone) {
  EXPECT_EQ(LoadDraft(0), std::nullopt);
  EXPECT_TRUE(FilesAtHome().isEmpty());
}

TEST_F(DraftTest, ASecondDraftStandsBesideTheFirstAndIsOfferedBeforeIt) {
  EXPECT_EQ(SaveDraft(Named(QStringLiteral("first"))), 1);
  EXPECT_EQ(SaveDraft(Named(QStringLiteral("second"))), 2);
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("second"));
  EXPECT_TRUE(DiscardDraft(2));
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("first"));
  EXPECT_TRUE(DiscardDraft(1));
  EXPECT_EQ(LoadDraft(0), std::nullopt);
  EXPECT_TRUE(FilesAtHome().isEmpty());
}

TEST_F(DraftTest, EachIsOfferedToTheContactThatItBelongsTo) {
  const Oid kim = m_store.Contacts()->Save(0, {}, {});
  const Oid lee = m_store.Contacts()->Save(0, {}, {});
  SaveDraft({.Oid = kim, .FileAs = QStringLiteral("Kim, first")});
  SaveDraft(Named(QStringLiteral("new")));
  SaveDraft({.Oid = kim, .FileAs = QStringLiteral("Kim, again")});
  EXPECT_EQ(LoadDraft(kim)->FileAs, QStringLiteral("Kim, again"));
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("new"));
  EXPECT_EQ(LoadDraft(lee), std::nullopt);
  DiscardDraft(3);
  EXPECT_EQ(LoadDraft(kim)->FileAs, QStringLiteral("Kim, first"));
}

TEST_F(DraftTest, ThatOfAContactThatIsGoneIsOfferedToANewOne) {
  const Oid kim = m_store.Contacts()->Save(0, {}, {});
  SaveDraft(Named(QStringLiteral("new")));
  SaveDraft({.Oid = kim, .FileAs = QStringLiteral("Kim")});
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("new"));
  m_store.Contacts()->Remove(kim);
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("Kim"));
}

TEST_F(DraftTest, ADraftThatIsSavedAgainTakesItsOwnPlace) {
  SaveDraft(Named(QStringLiteral("first")));
  SaveDraft(Named(QStringLiteral("second")));
  Draft first = Named(QStringLiteral("first again"));
  first.Number = 1;
  EXPECT_EQ(SaveDraft(first), 1);
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("second"));
  DiscardDraft(2);
  EXPECT_EQ(LoadDraft(0), first);
}

TEST_F(DraftTest, ADraftWhoseNumberIsGoneIsKeptUnderANewOne) {
  Draft draft = Named(QStringLiteral("Kim"));
  draft.Number = 9;
  EXPECT_EQ(SaveDraft(draft), 1);
  EXPECT_EQ(LoadDraft(0)->Number, 1);
}

TEST_F(DraftTest, DiscardingWhatIsNotThereIsDone) {
  EXPECT_TRUE(DiscardDraft(1));
  SaveDraft(Named(QStringLiteral("Kim")));
  EXPECT_TRUE(DiscardDraft(2));
  EXPECT_TRUE(LoadDraft(0));
}

TEST_F(DraftTest, ADamagedFileIsPutAsideAndDraftsGoOn) {
  PutFile("{ damaged");
  EXPECT_EQ(LoadDraft(0), std::nullopt);
  EXPECT_EQ(FilesAtHome(), QStringList(QStringLiteral("recovery-drafts.json.bad")));
  PutFile("damaged again");
  EXPECT_EQ(SaveDraft(Named(QStringLiteral("Kim"))), 1);
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("Kim"));
  EXPECT_EQ(FilesAtHome().size(), 3);
}

TEST_F(DraftTest, WhatCannotBeWrittenIsNotKeptAndTheOldOnesStay) {
  SaveDraft(Named(QStringLiteral("first")));
  DesktopRecoveryFiles nowhere(m_home.Folder.filePath(QStringLiteral("no such folder")));
  g_services.Recovery = &nowhere;
  EXPECT_EQ(SaveDraft(Named(QStringLiteral("second"))), 0);
  g_services.Recovery = &m_home.Recovery;
  EXPECT_EQ(LoadDraft(0)->FileAs, QStringLiteral("first"));
}

TEST_F(DraftTest, WithoutRecoveryFilesThereAreNoDrafts) {
  g_services.Recovery = nullptr;
  EXPECT_EQ(SaveDraft(Named(QStringLiteral("Kim"))), 0);
  EXPECT_EQ(LoadDraft(0), std::nullopt);
  EXPECT_TRUE(DiscardDraft(1));
}

TEST_F(DraftTest, TheSheetGoesOnWithWhatTheDraftHolds) {
  Draft draft = test::FullDraft(5);
  ContactRecord stored;
  stored[ContactField::FileAs] = draft.FileAs;
  draft.Oid = m_store.Contacts()->Save(0, stored, "old ink");
  const SheetRecord sheet = SheetOfDraft(draft, m_state);
  EXPECT_EQ(sheet.Oid, draft.Oid);
  EXPECT_EQ(sheet.FileAs, draft.FileAs);
  EXPECT_EQ(sheet.Draft, 5);
  EXPECT_EQ(sheet.Opened, stored);
  EXPECT_EQ(g_contactInk.Bytes, draft.Ink);
  EXPECT_EQ(RowsOf(sheet, RowSet::Basic)[0].Value, NameText(RowsOf(sheet, RowSet::NameParts)));
  EXPECT_EQ(m_state.PhoneFlags, PhoneFlagsOf(draft.Record));
  const ContactRecord record = RecordOf(sheet, {});
  for (const ContactFieldRow& row : kContactFields) {
    if (!row.WrittenBack() || row.Field == ContactField::FileAs) continue;
    EXPECT_EQ(record[row.Field], draft.Record[row.Field]);
  }
  EXPECT_EQ(record.Birthday, draft.Record.Birthday);
  EXPECT_EQ(record.Anniversary, draft.Record.Anniversary);
}

// A contact, changed by someone else after a draft of it was entered.
class DraftOfAContactTest : public DraftTest {
 protected:
  void SetUp() override {
    DraftTest::SetUp();
    ContactRecord record;
    record[ContactField::FileAs] = QStringLiteral("Kim");
    record[ContactField::JobTitle] = QStringLiteral("before");
    record[ContactField::CompanyName] = QStringLiteral("before");
    m_draft = {.Number = 3, .FileAs = QStringLiteral("Kim"), .Ink = "ink", .OpenedInk = "ink"};
    m_draft.Oid = m_store.Contacts()->Save(0, record, "ink");
    m_draft.Opened = m_draft.Record = record;
    m_draft.Record[ContactField::JobTitle] = QStringLiteral("entered");
    m_draft.Record.Birthday = {.Year = 1970, .Month = 2, .Day = 28};
    record[ContactField::CompanyName] = QStringLiteral("elsewhere");
    ASSERT_NE(m_store.Contacts()->Save(m_draft.Oid, record, "new ink"), 0);
  }
  Draft m_draft;
};

TEST_F(DraftOfAContactTest, ReplacesOnlyWhatWasEntered) {
  const ContactRecord record = RecordOf(SheetOfDraft(m_draft, m_state), {});
  EXPECT_EQ(record[ContactField::JobTitle], QStringLiteral("entered"));
  EXPECT_EQ(record[ContactField::CompanyName], QStringLiteral("elsewhere"));
  EXPECT_EQ(record.Birthday, m_draft.Record.Birthday);
  EXPECT_EQ(g_contactInk.Bytes, "new ink");
}

TEST_F(DraftOfAContactTest, ShowsTheNameThatItIsFiledUnderWhereNoPartOfItWasEntered) {
  EXPECT_EQ(RowsOf(SheetOfDraft(m_draft, m_state), RowSet::Basic)[0].Value, QStringLiteral("Kim"));
  m_draft.Record[ContactField::Suffix] = QStringLiteral("Jr.");
  EXPECT_EQ(RowsOf(SheetOfDraft(m_draft, m_state), RowSet::Basic)[0].Value, QStringLiteral("Jr. "));
}

TEST_F(DraftOfAContactTest, BringsItsInkWhereThatWasChanged) {
  m_draft.Ink = "entered";
  const SheetRecord sheet = SheetOfDraft(m_draft, m_state);
  EXPECT_EQ(g_contactInk.Bytes, "entered");
  EXPECT_EQ(sheet.OpenedInk, "new ink");
  EXPECT_EQ(sheet.Opened[ContactField::CompanyName], QStringLiteral("elsewhere"));
}

TEST_F(DraftTest, ADraftOfAContactThatIsGoneMakesANewOneUnderItsOldName) {
  Draft draft = Named(QStringLiteral("Kim"));
  draft.Oid = m_store.Contacts()->Save(0, {}, {});
  m_store.Contacts()->Remove(draft.Oid);
  const SheetRecord sheet = SheetOfDraft(draft, m_state);
  EXPECT_EQ(sheet.Oid, 0);
  EXPECT_EQ(RecordOf(sheet, {})[ContactField::FileAs], QStringLiteral("Kim"));
}

TEST(DraftTitle, IsTheNameElseWhatWasEnteredFirst) {
  Draft draft;
  EXPECT_EQ(TitleOf(draft), QStringLiteral("a contact"));
  draft.Record[ContactField::JobTitle] = QStringLiteral("Pilot");
  EXPECT_EQ(TitleOf(draft), QStringLiteral("Pilot"));
  draft.FileAs = QStringLiteral("Kim");
  EXPECT_EQ(TitleOf(draft), QStringLiteral("Kim"));
}

}  // namespace
}  // namespace quill
