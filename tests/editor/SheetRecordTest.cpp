#include "editor/SheetRecord.h"

#include <gtest/gtest.h>

#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

using enum ContactField;

class SheetRecordTest : public test::FreshState {
 protected:
  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }
  void TearDown() override { CloseSession(); }

  Oid Save(const ContactRecord& record, const QByteArray& ink = {}) {
    return m_store.Contacts()->Save(0, record, ink);
  }
  Oid SaveWhole(const ContactRecord& record) {
    return m_store.Contacts()->SaveWhole(0, {.Record = record});
  }

  PimStore m_pimStore{QStringLiteral(":memory:")};
  test::FaultyStore m_store{m_pimStore};
  SheetState m_state;
};

QString& ValueAt(SheetRecord& sheet, RowSet set, int row) {
  return RowsOf(sheet, set)[static_cast<std::size_t>(row)].Value;
}

// Every field holds its own name.
ContactRecord FullRecord() {
  ContactRecord record;
  for (const ContactFieldRow& row : kContactFields) record[row.Field] = row.Property.toString();
  record.Birthday = {.Year = 1987, .Month = 3, .DayOfWeek = 4, .Day = 5};
  record.Anniversary = {.Year = 2015, .Month = 10, .DayOfWeek = 6, .Day = 31};
  return record;
}

void ChangeEveryRow(SheetRecord& sheet) {
  for (const RowSet set :
       {RowSet::Basic, RowSet::Detail, RowSet::NameParts, RowSet::WorkAddress, RowSet::HomeAddress})
    for (RecordRow& row : RowsOf(sheet, set))
      if (row.Kind == RowKind::Text || row.Kind == RowKind::Categories)
        row.Value += QStringLiteral(" 2");
  SetDateAt(sheet, RowSet::Detail, 7, {.Year = 1988, .Month = 4, .DayOfWeek = 3, .Day = 6});
  SetDateAt(sheet, RowSet::Detail, 8, {.Year = 2016, .Month = 9, .DayOfWeek = 5, .Day = 30});
}

TEST_F(SheetRecordTest, AllFieldsThatHaveARowComeBackAsTheyWere) {
  const ContactRecord full = FullRecord();
  const ContactRecord record = RecordOf(LoadSheet(SaveWhole(full), m_state), {});
  for (const ContactFieldRow& row : kContactFields)
    EXPECT_EQ(record[row.Field], row.WrittenBack() ? full[row.Field] : QString());
  EXPECT_EQ(record.Birthday, full.Birthday);
  EXPECT_EQ(record.Anniversary, full.Anniversary);
}

TEST_F(SheetRecordTest, AllEditsReachTheStoreAndAllElseStaysThere) {
  const ContactRecord full = FullRecord();
  const Oid oid = SaveWhole(full);
  SheetRecord sheet = LoadSheet(oid, m_state);
  ChangeEveryRow(sheet);
  WriteContact(oid, RecordOf(sheet, {}));
  ContactRecord stored;
  ASSERT_EQ(ReadContact(ContactSelector(oid), stored), oid);
  for (const ContactFieldRow& row : kContactFields) {
    const bool isEdited = row.WrittenBack() && row.Field != FileAs;
    EXPECT_EQ(stored[row.Field], full[row.Field] + (isEdited ? u" 2"_qs : QString()))
        << row.Property.toString().toStdString();
  }
  EXPECT_EQ(stored.Birthday, (CalendarDate{1988, 4, 3, 6}));
  EXPECT_EQ(stored.Anniversary, (CalendarDate{2016, 9, 5, 30}));
}

TEST_F(SheetRecordTest, ANewContactsSheetIsEmptyAndInheritsNoInk) {
  g_contactInk.Bytes = "of somebody else";
  m_state.PhoneFlags.fill(true);
  const SheetRecord sheet = LoadSheet(0, m_state);
  EXPECT_EQ(sheet.Oid, 0);
  EXPECT_EQ(sheet.FileAs, QString());
  EXPECT_EQ(RecordOf(sheet, {}), ContactRecord{});
  EXPECT_EQ(g_contactInk.Count(), 0);
  EXPECT_EQ(m_state.PhoneFlags, PhoneFlags{});
}

TEST_F(SheetRecordTest, AContactDeletedMeanwhileOpensEmptyAndInheritsNoInk) {
  const Oid oid = Save(FullRecord(), "ink");
  m_store.Contacts()->Remove(oid);
  g_contactInk.Bytes = "of somebody else";
  const SheetRecord sheet = LoadSheet(oid, m_state);
  EXPECT_EQ(sheet.Oid, 0);
  EXPECT_FALSE(HasAnythingToSave(sheet));
  EXPECT_EQ(RecordOf(sheet, {}), ContactRecord{});
  EXPECT_EQ(g_contactInk.Count(), 0);
}

TEST_F(SheetRecordTest, AContactThatCannotBeReadInheritsNoInkAndIsNotWrittenOver) {
  const Oid oid = Save(FullRecord(), "ink");
  m_store.Faults().Read = oid;
  g_contactInk.Bytes = "of somebody else";
  const SheetRecord sheet = LoadSheet(oid, m_state);
  EXPECT_EQ(RecordOf(sheet, {}), ContactRecord{});
  EXPECT_EQ(sheet.Oid, 0);
  EXPECT_EQ(g_contactInk.Count(), 0);
}

TEST_F(SheetRecordTest, AContactsInkIsThereAndSurvivesAnEdit) {
  const Oid oid = Save(FullRecord(), QByteArray("\0ink\xFF", 5));
  SheetRecord sheet = LoadSheet(oid, m_state);
  EXPECT_EQ(sheet.OpenedInk, QByteArray("\0ink\xFF", 5));
  ValueAt(sheet, RowSet::Basic, 1) = QStringLiteral("Painter");
  WriteContact(oid, RecordOf(sheet, {}));
  ContactRecord stored;
  ReadContact(ContactSelector(oid), stored);
  EXPECT_EQ(g_contactInk.Bytes, QByteArray("\0ink\xFF", 5));
}

TEST_F(SheetRecordTest, OpeningSetsTheFlagsOfTheNumbersThatThereAre) {
  ContactRecord record;
  record[FileAs] = QStringLiteral("Kim");
  record[BusinessTelephoneNumber] = QStringLiteral("1");
  record[Home2TelephoneNumber] = QStringLiteral("2");
  record[BusinessFaxNumber] = QStringLiteral("3");
  m_state.PhoneFlags.fill(true);
  LoadSheet(Save(record), m_state);
  PhoneFlags expected{};
  expected[IndexOf(PhoneFlag::Work)] = true;
  expected[IndexOf(PhoneFlag::Home2)] = true;
  EXPECT_EQ(m_state.PhoneFlags, expected);
}

struct SeedCase {
  const char16_t* Seed;
  int Row;  // of the Basic page
  PhoneFlag Flag;
};

class SheetSeed : public SheetRecordTest, public testing::WithParamInterface<SeedCase> {};

TEST_P(SheetSeed, LandsInItsRowSetsItsFlagAndIsUsedUp) {
  const SeedCase& rule = GetParam();
  m_state.SeedText = QString::fromUtf16(rule.Seed);
  const SheetRecord sheet = LoadSheet(0, m_state);
  std::vector<RecordRow> expected = RowsFrom({}, RowSet::Basic);
  expected[rule.Row].Value = QString::fromUtf16(rule.Seed);
  EXPECT_EQ(RowsOf(sheet, RowSet::Basic), expected);
  PhoneFlags flags{};
  flags[IndexOf(rule.Flag)] = true;
  EXPECT_EQ(m_state.PhoneFlags, flags);
  EXPECT_EQ(m_state.SeedText, QString());
  EXPECT_EQ(RecordOf(LoadSheet(0, m_state), {}), ContactRecord{});
}

INSTANTIATE_TEST_SUITE_P(Texts, SheetSeed,
                         testing::Values(SeedCase{u"010-1234", 1, PhoneFlag::Mobile},
                                         SeedCase{u"01", 1, PhoneFlag::Mobile},
                                         SeedCase{u"02-1234", 2, PhoneFlag::Work},
                                         SeedCase{u"1", 2, PhoneFlag::Work},
                                         SeedCase{u"0", 2, PhoneFlag::Work},
                                         SeedCase{u"Kim", 2, PhoneFlag::Work}));

TEST_F(SheetRecordTest, AnExistingContactTakesNoSeed) {
  ContactRecord record;
  record[FileAs] = QStringLiteral("Kim");
  m_state.SeedText = QStringLiteral("010-1");
  const SheetRecord sheet = LoadSheet(Save(record), m_state);
  EXPECT_EQ(RecordOf(sheet, {}), record);
  EXPECT_EQ(m_state.SeedText, QStringLiteral("010-1"));
}

class SavingField : public testing::TestWithParam<ContactField> {};

TEST_P(SavingField, AloneIsWorthSaving) {
  ContactRecord record;
  record[GetParam()] = QStringLiteral("x");
  EXPECT_TRUE(HasAnythingToSave(SheetOf(0, record[FileAs], record)));
}

INSTANTIATE_TEST_SUITE_P(Naming, SavingField,
                         testing::Values(FileAs, Title, FirstName, MiddleName, LastName, Suffix,
                                         CompanyName));

TEST(SheetRecord, EverythingElseAloneIsNotWorthSaving) {
  ContactRecord record = FullRecord();
  for (const ContactField field :
       {FileAs, Title, FirstName, MiddleName, LastName, Suffix, CompanyName})
    record[field].clear();
  EXPECT_FALSE(HasAnythingToSave(SheetOf(0, {}, record)));
}

TEST(SheetRecord, AnExistingContactKeepsItsFilingNameWhateverItsNameIsNow) {
  ContactRecord record;
  record[FileAs] = QStringLiteral("Kim, Minsu");
  record[LastName] = QStringLiteral("Kim");
  SheetRecord sheet = SheetOf(7, record[FileAs], record);
  ValueAt(sheet, RowSet::NameParts, 3) = QStringLiteral("Lee");
  SumUpParts(sheet, RowSet::Basic);
  const ContactRecord saved = RecordOf(sheet, {});
  EXPECT_EQ(saved[FileAs], QStringLiteral("Kim, Minsu"));
  EXPECT_EQ(saved[LastName], QStringLiteral("Lee"));
}

TEST(SheetRecord, ANewContactIsWrittenWithoutAFilingName) {
  SheetRecord sheet = SheetOf(0, {}, {});
  ValueAt(sheet, RowSet::NameParts, 3) = QStringLiteral("Lee");
  SumUpParts(sheet, RowSet::Basic);
  EXPECT_EQ(ValueAt(sheet, RowSet::Basic, 0), QStringLiteral("Lee "));
  EXPECT_EQ(RecordOf(sheet, {})[FileAs], QString());
}

TEST(SheetRecord, NumbersThatAreOnlyThePrefixAreSavedEmpty) {
  SheetRecord sheet = SheetOf(0, {}, {});
  for (int row = 4; row <= 7; ++row) ValueAt(sheet, RowSet::Basic, row) = QStringLiteral("02-");
  for (int row = 0; row <= 3; ++row) ValueAt(sheet, RowSet::Detail, row) = QStringLiteral("02-");
  EXPECT_EQ(RecordOf(sheet, QStringLiteral("02-")), ContactRecord{});
}

TEST(SheetRecord, SummingUpShowsTheNamePartsAndTheFirstPartsOfTheAddresses) {
  ContactRecord record;
  record[FileAs] = QStringLiteral("Kim, Minsu");
  SheetRecord sheet = SheetOf(7, record[FileAs], record);
  ValueAt(sheet, RowSet::NameParts, 3) = QStringLiteral("Kim");
  ValueAt(sheet, RowSet::WorkAddress, 1) = QStringLiteral("Seoul");
  ValueAt(sheet, RowSet::HomeAddress, 4) = QStringLiteral("Korea");
  SumUpParts(sheet, RowSet::Basic);
  EXPECT_EQ(ValueAt(sheet, RowSet::Basic, 0), QStringLiteral("Kim "));
  EXPECT_EQ(ValueAt(sheet, RowSet::Basic, 8), QStringLiteral("Seoul"));
  EXPECT_EQ(ValueAt(sheet, RowSet::Detail, 4), QString());
  SumUpParts(sheet, RowSet::Detail);
  EXPECT_EQ(ValueAt(sheet, RowSet::Detail, 4), QStringLiteral("Korea"));
}

TEST(SheetRecord, SummingUpLeavesAllOtherRowsBe) {
  const ContactRecord record = FullRecord();
  SheetRecord sheet = SheetOf(7, record[FileAs], record);
  const SheetRecord before = sheet;
  SumUpParts(sheet, RowSet::Basic);
  SumUpParts(sheet, RowSet::Detail);
  EXPECT_EQ(ValueAt(sheet, RowSet::Basic, 0),
            QStringLiteral("Title FirstName MiddleName LastName Suffix "));
  ValueAt(sheet, RowSet::Basic, 0) = record[FileAs];
  EXPECT_EQ(sheet.Rows, before.Rows);
}

struct CategoryCase {
  const char16_t* Row;
  const char16_t* To;  // of "Work"; empty: it is removed
  const char16_t* RowAfter;
  const char16_t* OpenedAfter;  // of "Family, Work"
};

class SheetCategories : public testing::TestWithParam<CategoryCase> {};

TEST_P(SheetCategories, FollowInTheirRowAndInWhatItSaidAtOpening) {
  ContactRecord record;
  record[Categories] = QStringLiteral("Family, Work");
  SheetRecord sheet = SheetOf(7, {}, record);
  sheet.Opened = RecordOf(sheet, {});
  ValueAt(sheet, RowSet::Basic, 10) = QString::fromUtf16(GetParam().Row);
  ValueAt(sheet, RowSet::Basic, 1) = QStringLiteral("Work");
  FollowCategory(sheet, QStringLiteral("Work"), QString::fromUtf16(GetParam().To));
  EXPECT_EQ(ValueAt(sheet, RowSet::Basic, 10).toStdU16String(), GetParam().RowAfter);
  EXPECT_EQ(sheet.Opened[Categories].toStdU16String(), GetParam().OpenedAfter);
  EXPECT_EQ(ValueAt(sheet, RowSet::Basic, 1), QStringLiteral("Work"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SheetCategories,
    testing::Values(CategoryCase{u"Work,Golf", u"Job", u"Job,Golf", u"Family, Job"},
                    CategoryCase{u"Golf,Work", u"", u"Golf", u"Family"},
                    CategoryCase{u"Work", u"", u"No Categories", u"Family"},
                    CategoryCase{u"Work, Family", u"Family", u"Family", u"Family"},
                    CategoryCase{u"No Categories", u"Job", u"No Categories", u"Family, Job"}));

TEST(SheetRecord, ADateChangesWithItsText) {
  SheetRecord sheet = SheetOf(0, {}, {});
  const CalendarDate date{.Year = 1987, .Month = 3, .Day = 5};
  SetDateAt(sheet, RowSet::Detail, 8, date);
  EXPECT_EQ(ValueAt(sheet, RowSet::Detail, 8), QStringLiteral("03/05/1987"));
  EXPECT_EQ(DateAt(sheet, RowSet::Detail, 8), date);
  EXPECT_EQ(DateAt(sheet, RowSet::Detail, 7), CalendarDate{});
  EXPECT_EQ(RecordOf(sheet, {}).Anniversary, date);

  SetDateAt(sheet, RowSet::Detail, 8, {});
  EXPECT_EQ(ValueAt(sheet, RowSet::Detail, 8), QStringLiteral("None"));
  EXPECT_EQ(RecordOf(sheet, {}), ContactRecord{});
}

TEST(SheetRecord, AClearedDateLeavesNothingBehind) {
  SheetRecord sheet = SheetOf(0, {}, {});
  SetDateAt(sheet, RowSet::Detail, 7, {.Year = 0, .Month = 3, .Day = 5});
  EXPECT_EQ(RecordOf(sheet, {}).Birthday, CalendarDate{});
}

TEST(SheetRecord, RowsWithoutADateTakeNone) {
  SheetRecord sheet = SheetOf(0, {}, {});
  const SheetRecord before = sheet;
  SetDateAt(sheet, RowSet::Basic, 7, {.Year = 1987, .Month = 3, .Day = 5});
  SetDateAt(sheet, RowSet::Detail, 12, {.Year = 1987, .Month = 3, .Day = 5});
  EXPECT_EQ(sheet.Rows, before.Rows);
  EXPECT_EQ(sheet.Dates, before.Dates);
  EXPECT_EQ(DateAt(sheet, RowSet::Basic, 7), CalendarDate{});
  EXPECT_EQ(DateAt(sheet, RowSet::Detail, -1), CalendarDate{});
}

}  // namespace
}  // namespace quill
