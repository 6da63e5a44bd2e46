#include "app/SampleAppointments.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

#include "app/Places.h"
#include "app/SamplePeople.h"
#include "appointments/ContactLink.h"
#include "ink/InkFormat.h"
#include "store/AppointmentStore.h"
#include "store/AppointmentValidity.h"
#include "store/AutomationDate.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

// The calendar of a sample home, in the open session.
class SampleAppointments : public testing::Test {
 protected:
  SampleAppointments() {
    EXPECT_EQ(FillWithSamplePeople(m_store, m_files), QString());
    EXPECT_EQ(OpenSession(m_store), StartupCode::Opened);
  }
  ~SampleAppointments() override { CloseSession(); }

  static std::vector<AppointmentItem> Items(const std::vector<Oid>& oids) {
    std::vector<AppointmentItem> items;
    items.reserve(oids.size());
    for (const Oid oid : oids) items.push_back(OpenAppointment(oid).value_or(AppointmentItem()));
    return items;
  }
  static std::vector<AppointmentItem> AllItems() {
    std::vector<Oid> oids;
    const AppointmentCollection all = AllAppointments();
    for (int position = 1; position <= Count(all); ++position)
      oids.push_back(AppointmentAt(all, position));
    return Items(oids);
  }

  QTemporaryDir m_folder;
  PimStore m_store{m_folder.filePath(u"store.db"_qs)};
  DesktopDeviceFiles m_files{DeviceRootsOf(HomePlaces(m_folder.path(), {}))};
};

TEST_F(SampleAppointments, AreSuchAsTheProgramWouldSave) {
  const auto items = AllItems();
  EXPECT_EQ(items.size(), 6U);
  for (const AppointmentItem& item : items)
    EXPECT_EQ(WhyNotSavable(item), std::nullopt) << item.Subject.toStdString();
}

TEST_F(SampleAppointments, BelongToSamplePeople) {
  for (const AppointmentItem& item : AllItems()) {
    const QString person = item.Subject.section(u')', 0, 0).mid(1);
    EXPECT_EQ(m_store.Contacts()->FindByFileAs(person).size(), 1U) << person.toStdString();
  }
}

TEST_F(SampleAppointments, HaveTheirTimesAndPlaces) {
  const auto items = Items(FindContactAppointments(u"Varma, Raj"_qs));
  ASSERT_EQ(items.size(), 1U);
  EXPECT_EQ(items[0].Subject, u"(Varma, Raj) Drawings, second round"_qs);
  EXPECT_EQ(items[0].Location, u"Lantern & Loom"_qs);
  EXPECT_EQ(items[0].Start, MakeCalendarDate(QDate(2024, 6, 14), QTime(10, 0)));
  EXPECT_EQ(items[0].End, MakeCalendarDate(QDate(2024, 6, 14), QTime(11, 30)));
  EXPECT_EQ(items[0].Duration, 90);
  EXPECT_EQ(items[0].Recurrence, std::nullopt);
}

TEST_F(SampleAppointments, RecurWeeklyAndYearly) {
  const auto tennis = Items(FindContactAppointments(u"Zander, Milo"_qs));
  ASSERT_EQ(tennis.size(), 1U);
  ASSERT_TRUE(tennis[0].Recurrence);
  EXPECT_EQ(tennis[0].Recurrence->Type, RecurrenceType::Weekly);
  EXPECT_EQ(tennis[0].Recurrence->DayOfWeekMask, 16) << "Thursday";
  const auto ingrid = Items(FindContactAppointments(u"Ahlberg, Ingrid"_qs));
  EXPECT_TRUE(std::any_of(ingrid.begin(), ingrid.end(), [](const AppointmentItem& item) {
    return item.Recurrence && item.Recurrence->Type == RecurrenceType::Yearly;
  }));
}

TEST_F(SampleAppointments, SomeHaveANoteByHand) {
  const auto tennis = Items(FindContactAppointments(u"Zander, Milo"_qs));
  ASSERT_EQ(tennis.size(), 1U);
  const InkContent content = ReadInk(tennis[0].BodyInk);
  EXPECT_EQ(content.Reading, InkReading::Whole);
  EXPECT_FALSE(content.Note.Strokes.empty());
}

// A calendar that takes so many appointments and no more.
class FullCalendar : public CalendarFolder {
 public:
  explicit FullCalendar(int room) : m_room(room) {}

  AppointmentCollection Items() override { return {}; }
  std::optional<AppointmentCollection> Restrict(const AppointmentCollection&,
                                                const QString&) override {
    return std::nullopt;
  }
  int Count(const AppointmentCollection&) override { return 0; }
  Oid OidAt(const AppointmentCollection&, int) override { return 0; }
  bool Read(Oid, AppointmentItem&) override { return false; }
  bool ReadSubject(Oid, QString&) override { return false; }
  Oid Save(const AppointmentItem&) override { return m_room > 0 ? m_room-- : 0; }
  bool PutInk(AppointmentItem&, const QByteArray&) override { return false; }
  bool Remove(Oid) override { return false; }
  std::vector<Oid> FindByUid(const QString&) override { return {}; }

 private:
  int m_room;
};

TEST(SampleAppointmentsInAFullCalendar, AreRefused) {
  FullCalendar enough(6);
  EXPECT_TRUE(SaveSampleAppointments(enough));
  FullCalendar tooSmall(5);
  EXPECT_FALSE(SaveSampleAppointments(tooSmall));
}

}  // namespace
}  // namespace quill
