#include "store/AppointmentStore.h"

#include <gtest/gtest.h>

#include "store/AutomationDate.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

constexpr int kInkLimit = 100;

AppointmentItem Meeting(const QString& subject) {
  AppointmentItem item = CreateAppointment();
  item.Subject = subject;
  item.Start = MakeCalendarDate(QDate(2004, 2, 1), QTime(10, 0, 5));
  item.End = MakeCalendarDate(QDate(2004, 2, 1), QTime(11, 0, 7));
  return item;
}

class AppointmentStore : public test::FreshState {
 protected:
  ~AppointmentStore() override { CloseSession(); }

  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }

  static Oid Add(const QString& subject) {
    AppointmentItem item = Meeting(subject);
    EXPECT_TRUE(SaveAppointment(item));
    return item.Id;
  }

  PimStore m_pimStore{QStringLiteral(":memory:"), {.AppointmentInkLimit = kInkLimit}};
  test::FaultyStore m_store{m_pimStore};
};

TEST_F(AppointmentStore, ANewAppointmentIsNotStored) {
  EXPECT_EQ(CreateAppointment(), AppointmentItem());
  EXPECT_EQ(Count(AllAppointments()), 0);
}

TEST_F(AppointmentStore, ASavedOneGetsItsOidAndIsOpenedAgain) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim) tea"));
  ASSERT_TRUE(SaveAppointment(item));
  EXPECT_EQ(item.Id, 1);
  EXPECT_EQ(OpenAppointment(1), item);
  EXPECT_EQ(AppointmentSubject(1), QStringLiteral("(Kim) tea"));
}

TEST_F(AppointmentStore, SavingAgainChangesTheSameOne) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim) tea"));
  ASSERT_TRUE(SaveAppointment(item));
  item.Subject = QStringLiteral("(Kim) coffee");
  ASSERT_TRUE(SaveAppointment(item));
  EXPECT_EQ(item.Id, 1);
  EXPECT_EQ(Count(AllAppointments()), 1);
  EXPECT_EQ(OpenAppointment(1)->Subject, QStringLiteral("(Kim) coffee"));
}

TEST_F(AppointmentStore, SavingSettlesThePattern) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim)"));
  item.Recurrence = PatternOf(item);
  item.Recurrence->Type = RecurrenceType::Yearly;
  item.Recurrence->Interval = 500;
  item.Recurrence->NoEndDate = false;
  item.Recurrence->Occurrences = 3;
  ASSERT_TRUE(SaveAppointment(item));
  EXPECT_EQ(item.Recurrence->Interval, 1);
  EXPECT_EQ(item.Recurrence->PatternEndDate, QDate(2006, 2, 1));
  EXPECT_EQ(OpenAppointment(item.Id), item);
}

TEST_F(AppointmentStore, ARefusedOneIsNotWrittenAndStaysAsItWas) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim)"));
  item.End.Hour = 9;
  item.Recurrence = RecurrencePattern{.Type = RecurrenceType::Yearly, .Interval = 5};
  const AppointmentItem before = item;
  EXPECT_FALSE(SaveAppointment(item));
  EXPECT_EQ(item, before);
  EXPECT_EQ(Count(AllAppointments()), 0);
}

TEST_F(AppointmentStore, ARefusedChangeLeavesWhatWasSaved) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim)"));
  ASSERT_TRUE(SaveAppointment(item));
  item.Recurrence = RecurrencePattern{.Type = static_cast<RecurrenceType>(4)};
  EXPECT_FALSE(SaveAppointment(item));
  EXPECT_EQ(item.Id, 1);
  EXPECT_FALSE(OpenAppointment(1)->Recurrence);
}

TEST_F(AppointmentStore, OneThatTheStoreDoesNotWriteStaysAsItWas) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim)"));
  ASSERT_TRUE(SaveAppointment(item));
  item.Recurrence = PatternOf(item);
  item.Recurrence->Type = RecurrenceType::Yearly;
  item.Recurrence->Interval = 5;
  const AppointmentItem before = item;
  m_store.OfCalendar().Save = true;
  EXPECT_FALSE(SaveAppointment(item));
  EXPECT_EQ(item, before);
  m_store.OfCalendar().Save = false;
  EXPECT_TRUE(SaveAppointment(item));
}

TEST_F(AppointmentStore, OneThatIsGoneIsNeitherOpenedNorSavedNorDeleted) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim)"));
  ASSERT_TRUE(SaveAppointment(item));
  EXPECT_TRUE(DeleteAppointment(item.Id));
  EXPECT_FALSE(OpenAppointment(item.Id));
  EXPECT_FALSE(AppointmentSubject(item.Id));
  EXPECT_FALSE(SaveAppointment(item));
  EXPECT_FALSE(DeleteAppointment(item.Id));
}

TEST_F(AppointmentStore, InkIsPutOnTheItemUpToTheLimit) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim)"));
  EXPECT_TRUE(PutAppointmentInk(item, QByteArray(kInkLimit, 'i')));
  EXPECT_EQ(item.BodyInk, QByteArray(kInkLimit, 'i'));
  EXPECT_FALSE(PutAppointmentInk(item, QByteArray(kInkLimit + 1, 'x')));
  EXPECT_EQ(item.BodyInk, QByteArray(kInkLimit, 'i'));
  EXPECT_EQ(Count(AllAppointments()), 0);
}

TEST_F(AppointmentStore, ARestrictionFindsSomeInOidOrder) {
  const Oid kim = Add(QStringLiteral("(Kim) b"));
  Add(QStringLiteral("(Lee)"));
  const Oid kimToo = Add(QStringLiteral("(Kim) a"));
  const auto found = RestrictAppointments(
      AllAppointments(), QStringLiteral("[Subject] >= \"(Kim)\" AND [Subject] < \"(Kin)\""));
  EXPECT_EQ(Count(found), 2);
  EXPECT_EQ(AppointmentAt(found, 1), kim);
  EXPECT_EQ(AppointmentAt(found, 2), kimToo);
  EXPECT_EQ(AppointmentAt(found, 3), 0);
}

TEST_F(AppointmentStore, ARestrictionThatFailsFindsNone) {
  Add(QStringLiteral("(Kim)"));
  const QString wanted = QStringLiteral("[Subject] >= \"(\"");
  EXPECT_EQ(Count(RestrictAppointments(AllAppointments(), QStringLiteral("[Subject]"))), 0);
  m_store.OfCalendar().Restrict = true;
  EXPECT_EQ(Count(RestrictAppointments(AllAppointments(), wanted)), 0);
  m_store.OfCalendar().Restrict = false;
  EXPECT_EQ(Count(RestrictAppointments(AllAppointments(), wanted)), 1);
}

TEST_F(AppointmentStore, WithoutASessionNothingIsThereAndNothingHappens) {
  AppointmentItem item = Meeting(QStringLiteral("(Kim)"));
  ASSERT_TRUE(SaveAppointment(item));
  const AppointmentCollection collection = AllAppointments();
  CloseSession();
  const AppointmentItem before = item;
  EXPECT_FALSE(OpenAppointment(1));
  EXPECT_FALSE(AppointmentSubject(1));
  EXPECT_FALSE(SaveAppointment(item));
  EXPECT_FALSE(DeleteAppointment(1));
  EXPECT_FALSE(PutAppointmentInk(item, "ink"));
  EXPECT_EQ(item, before);
  EXPECT_EQ(Count(collection), 0);
  EXPECT_EQ(AppointmentAt(collection, 1), 0);

  ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
  Add(QStringLiteral("(Kim)"));
  const AppointmentCollection all = AllAppointments();
  EXPECT_EQ(Count(all), 1);
  CloseSession();
  const AppointmentCollection none = AllAppointments();
  const auto noneToo = RestrictAppointments(all, QStringLiteral("[Subject] >= \"\""));
  ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
  Add(QStringLiteral("(Kim)"));
  EXPECT_EQ(Count(none), 0);
  EXPECT_EQ(Count(noneToo), 0);
}

}  // namespace
}  // namespace quill
