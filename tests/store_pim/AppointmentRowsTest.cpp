#include "store/pim/AppointmentRows.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QSet>

#include "store/AutomationDate.h"
#include "store/pim/Database.h"
#include "store/pim/Journal.h"
#include "store/pim/SqlFunctions.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

// A value that no other member has, so that a member in another's column shows.
struct Distinct {
  int Number = 100;

  int Next() { return ++Number; }
  void Fill(QString& text) { text = QStringLiteral("text %1").arg(Next()); }
  void Fill(std::optional<QString>& text) { Fill(text.emplace()); }
  void Fill(CalendarDate& date) {
    date = MakeCalendarDate(QDate(2004, 2, 1).addDays(Next()), QTime(10, 30, 5, 125));
  }
  void Fill(int& number) { number = Next(); }
  void Fill(bool& truth) { truth = true; }
  void Fill(QByteArray& bytes) { bytes = QByteArray("ink\0", 4) + QByteArray::number(Next()); }
  void Fill(RecurrenceType& type) { type = static_cast<RecurrenceType>(Next()); }
  void Fill(QTime& time) { time = QTime(9, 59, 58, 1).addSecs(Next()); }
  void Fill(QDate& date) { date = QDate(1704, 2, 1).addDays(Next()); }
};

AppointmentItem FullItem() {
  AppointmentItem item;
  Distinct distinct;
  const auto fill = [&](const auto& rows, auto& owner) {
    for (const auto& row : rows) {
      std::visit([&](auto member) { distinct.Fill(owner.*member); }, row.Member);
    }
  };
  fill(kAppointmentFields, item);
  fill(kAppointmentImportFields, item);
  fill(kPatternFields, item.Recurrence.emplace());
  return item;
}

class AppointmentRows : public test::TemporaryStore {
 protected:
  AppointmentItem ReadBack(Oid oid) {
    AppointmentItem item;
    EXPECT_TRUE(m_store.Calendar()->Read(oid, item));
    return item;
  }
  Oid Save(const AppointmentItem& item) { return m_store.Calendar()->Save(item); }
  // The item as it comes back, its new Oid taken away.
  AppointmentItem RoundTrip(const AppointmentItem& item) {
    AppointmentItem back = ReadBack(Save(item));
    back.Id = 0;
    return back;
  }

  // The first column of the only row, as text; "null" for NULL.
  QString Raw(const QByteArray& sql) {
    Database database;
    EXPECT_EQ(database.Open(Path()), 0);
    Query query = database.Prepare(sql);
    EXPECT_TRUE(query.Next()) << sql.constData();
    const QString text = query.IsNull(0) ? QStringLiteral("null") : query.Text(0);
    EXPECT_FALSE(query.Next());
    return text;
  }
};

class EveryItemRow : public AppointmentRows,
                     public testing::WithParamInterface<AppointmentFieldRow> {};
class EveryPatternRow : public AppointmentRows,
                        public testing::WithParamInterface<PatternFieldRow> {};

TEST_P(EveryItemRow, ComesBackFromItsOwnColumn) {
  const AppointmentItem full = FullItem();
  const AppointmentItem back = RoundTrip(full);
  std::visit([&](auto member) { EXPECT_EQ(back.*member, full.*member); }, GetParam().Member);
  const QByteArray column = GetParam().Property.toUtf8();
  EXPECT_NE(Raw("SELECT " + column + " FROM appointment"), QStringLiteral("null"));
}

TEST_P(EveryItemRow, OfANewItemComesBackAsItIs) {
  const AppointmentItem back = RoundTrip({});
  std::visit([&](auto member) { EXPECT_EQ(back.*member, AppointmentItem().*member); },
             GetParam().Member);
}

TEST_P(EveryItemRow, IsReplacedBySavingAgain) {
  AppointmentItem empty;
  empty.Id = Save(FullItem());
  EXPECT_EQ(Save(empty), empty.Id);
  const AppointmentItem back = ReadBack(empty.Id);
  std::visit([&](auto member) { EXPECT_EQ(back.*member, empty.*member); }, GetParam().Member);
}

TEST_P(EveryPatternRow, ComesBackFromItsOwnColumn) {
  const AppointmentItem full = FullItem();
  const AppointmentItem back = RoundTrip(full);
  ASSERT_TRUE(back.Recurrence);
  std::visit([&](auto member) { EXPECT_EQ(*back.Recurrence.*member, *full.Recurrence.*member); },
             GetParam().Member);
}

TEST_P(EveryPatternRow, OfAFreshPatternComesBackAsItIs) {
  AppointmentItem item;
  item.Recurrence.emplace();
  const AppointmentItem back = RoundTrip(item);
  ASSERT_TRUE(back.Recurrence);
  std::visit([&](auto member) { EXPECT_EQ(*back.Recurrence.*member, *item.Recurrence.*member); },
             GetParam().Member);
}

INSTANTIATE_TEST_SUITE_P(Properties, EveryItemRow, testing::ValuesIn(kAppointmentFields));
INSTANTIATE_TEST_SUITE_P(Imports, EveryItemRow, testing::ValuesIn(kAppointmentImportFields));
INSTANTIATE_TEST_SUITE_P(Properties, EveryPatternRow, testing::ValuesIn(kPatternFields));

TEST_F(AppointmentRows, AWholeItemComesBack) { EXPECT_EQ(RoundTrip(FullItem()), FullItem()); }

TEST_F(AppointmentRows, ColumnsHaveNamesOfTheirOwn) {
  const QByteArrayList names = AppointmentColumnNames();
  EXPECT_EQ(names.size(), kAppointmentColumnCount);
  EXPECT_EQ(QSet<QByteArray>(names.begin(), names.end()).size(), kAppointmentColumnCount);
  EXPECT_EQ(names[kPatternColumn], "RecurrenceType");
  EXPECT_TRUE(names.contains("Duration"));
  EXPECT_TRUE(names.contains("RecurrenceDuration"));
}

TEST_F(AppointmentRows, ASoundFileMayBeNoneOrTheEmptyText) {
  AppointmentItem item;
  EXPECT_EQ(RoundTrip(item).ReminderSoundFile, std::nullopt);
  EXPECT_EQ(Raw("SELECT ReminderSoundFile FROM appointment"), QStringLiteral("null"));
  item.ReminderSoundFile = QString();
  EXPECT_EQ(RoundTrip(item).ReminderSoundFile, QString());
  item.ReminderSoundFile = QStringLiteral("alarm1.wav");
  EXPECT_EQ(RoundTrip(item).ReminderSoundFile, QStringLiteral("alarm1.wav"));
}

TEST_F(AppointmentRows, AnItemThatDoesNotRecurHasNoTypeStored) {
  AppointmentItem item = FullItem();
  item.Recurrence.reset();
  EXPECT_EQ(RoundTrip(item), item);
  EXPECT_EQ(Raw("SELECT RecurrenceType FROM appointment"), QStringLiteral("null"));
  EXPECT_EQ(Raw("SELECT RecurrencePatternStartDate FROM appointment"), QStringLiteral("null"));
}

TEST_F(AppointmentRows, ClearingTheRecurrenceClearsItsColumns) {
  AppointmentItem item = FullItem();
  item.Id = Save(item);
  item.Recurrence.reset();
  Save(item);
  EXPECT_EQ(ReadBack(item.Id), item);
  EXPECT_EQ(Raw("SELECT RecurrenceMonthOfYear FROM appointment"), QStringLiteral("null"));
}

TEST_F(AppointmentRows, AReadItemLosesARecurrenceItHadBefore) {
  const Oid oid = Save({});
  AppointmentItem item = FullItem();
  ASSERT_TRUE(m_store.Calendar()->Read(oid, item));
  EXPECT_EQ(item, (AppointmentItem{.Id = oid}));
}

class EveryMoment : public AppointmentRows, public testing::WithParamInterface<CalendarDate> {};

TEST_P(EveryMoment, ComesBackToTheMillisecond) {
  AppointmentItem item;
  item.Start = GetParam();
  EXPECT_EQ(RoundTrip(item).Start, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Moments, EveryMoment,
    testing::Values(CalendarDate{}, MakeCalendarDate(QDate(2004, 2, 29), QTime(23, 59, 59, 999)),
                    MakeCalendarDate(QDate(1899, 12, 30), QTime(0, 0, 1)),
                    MakeCalendarDate(QDate(1899, 12, 29), QTime(6, 0, 1)),
                    MakeCalendarDate(QDate(1752, 9, 14), QTime(12, 34, 56)),
                    MakeCalendarDate(QDate(100, 1, 1), QTime(0, 0)),
                    MakeCalendarDate(QDate(4501, 1, 1), QTime(0, 0, 1)),
                    MakeCalendarDate(QDate(9999, 12, 31), QTime(23, 59, 59))));

TEST_F(AppointmentRows, DatesAndTimesAreStoredAsTheFileNeedsThem) {
  AppointmentItem item;
  item.Start = MakeCalendarDate(QDate(1900, 1, 1), QTime(6, 0));
  item.End = {.Year = 2004, .Month = 13, .Day = 1};
  item.Recurrence = RecurrencePattern{.StartTime = QTime(18, 0)};
  Save(item);
  EXPECT_EQ(Raw("SELECT Start FROM appointment"), QStringLiteral("2.25"));
  EXPECT_EQ(Raw("SELECT \"End\" FROM appointment"), QStringLiteral("949998.0"));
  EXPECT_EQ(Raw("SELECT RecurrenceStartTime FROM appointment"), QStringLiteral("0.75"));
  EXPECT_EQ(Raw("SELECT RecurrencePatternEndDate FROM appointment"), QStringLiteral("949998.0"));
}

struct TimeCase {
  const char* Stored;
  QTime Time;
};

class StoredTime : public AppointmentRows, public testing::WithParamInterface<TimeCase> {};

TEST_P(StoredTime, IsATimeOfDayWhateverTheFileHolds) {
  AppointmentItem item;
  item.Recurrence.emplace();
  item.Id = Save(item);
  Database database;
  ASSERT_EQ(database.Open(Path()), 0);
  ASSERT_EQ(database.Execute("UPDATE appointment SET RecurrenceEndTime = " +
                             QByteArray(GetParam().Stored)),
            0);
  EXPECT_EQ(ReadBack(item.Id).Recurrence->EndTime, GetParam().Time);
}

INSTANTIATE_TEST_SUITE_P(Numbers, StoredTime,
                         testing::Values(TimeCase{"0.5", QTime(12, 0)},
                                         TimeCase{"-0.5", QTime(0, 0)},
                                         TimeCase{"1", QTime(23, 59, 59, 999)},
                                         TimeCase{"1e300", QTime(23, 59, 59, 999)},
                                         TimeCase{"NULL", QTime(0, 0)}));

class EverySubject : public AppointmentRows, public testing::WithParamInterface<QString> {};

TEST_P(EverySubject, ComesBackUnitByUnit) {
  AppointmentItem item;
  item.Subject = GetParam();
  EXPECT_EQ(RoundTrip(item).Subject, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Texts, EverySubject,
                         testing::Values(QString(), QStringLiteral("(Kim)"),
                                         QStringLiteral("(김철수) 차"),
                                         QStringLiteral("half ") + QChar(0xD83D),
                                         QString(QChar(0xDE00)) + QStringLiteral(" half"),
                                         QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"),
                                         QStringLiteral("'); DROP TABLE appointment; --"),
                                         QString(100'000, u'가')));

class JournalOfAppointments : public AppointmentRows {
 protected:
  void SetUp() override {
    AppointmentRows::SetUp();
    m_oid = Save(FullItem());
    for (const QByteArray& column : AppointmentColumnNames()) {
      m_had.append(Raw("SELECT quote(\"" + column + "\") FROM appointment"));
    }
  }

  Oid m_oid = 0;
  QStringList m_had;
};

TEST_F(JournalOfAppointments, HasEverythingOfADeletedOne) {
  const qint64 before = QDateTime::currentSecsSinceEpoch();
  ASSERT_TRUE(m_store.Calendar()->Remove(m_oid));
  QStringList journal;
  for (const QByteArray& column : AppointmentColumnNames()) {
    journal.append(Raw("SELECT quote(\"" + column + "\") FROM appointment_journal"));
  }
  EXPECT_EQ(journal, m_had);
  EXPECT_EQ(Raw("SELECT Oid FROM appointment_journal"), QString::number(m_oid));
  const qint64 deletedAt = Raw("SELECT DeletedAt FROM appointment_journal").toLongLong();
  EXPECT_GE(deletedAt, before);
  EXPECT_LE(deletedAt, QDateTime::currentSecsSinceEpoch());
}

TEST_F(JournalOfAppointments, MissesNoDeletion) {
  Save({});
  Database database;
  ASSERT_EQ(database.Open(Path()), 0);
  ASSERT_EQ(RegisterFunctions(database), 0);
  ASSERT_EQ(database.Execute("DELETE FROM appointment"), 0);
  EXPECT_EQ(Raw("SELECT count(*) FROM appointment_journal"), QStringLiteral("2"));
}

TEST_F(JournalOfAppointments, IsForgottenAfterThirtyDays) {
  ASSERT_TRUE(m_store.Calendar()->Remove(m_oid));
  Database database;
  ASSERT_EQ(database.Open(Path()), 0);
  ASSERT_EQ(database.Execute("UPDATE appointment_journal SET DeletedAt = DeletedAt - " +
                             QByteArray::number(kJournalDays * 24 * 60 * 60 + 1)),
            0);
  m_store.Calendar()->Remove(Save({}));
  m_store.Close();
  ASSERT_EQ(test::OpenAll(m_store), 0);
  EXPECT_EQ(Raw("SELECT Oid FROM appointment_journal"), QString::number(m_oid + 1));
}

}  // namespace
}  // namespace quill
