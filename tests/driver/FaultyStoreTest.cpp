#include "driver/FaultyStore.h"

#include <gtest/gtest.h>

#include "store/pim/PimStore.h"

using namespace quill;
using namespace quill::driver;

namespace {

class FaultyStoreTest : public testing::Test {
 protected:
  void Open() {
    ASSERT_EQ(store.Create(), 0);
    ASSERT_EQ(store.Logon(), 0);
    ASSERT_EQ(store.OpenFolder(FolderKind::Contacts), 0);
    ASSERT_EQ(store.OpenFolder(FolderKind::Calendar), 0);
  }
  Oid Add(const QString& fileAs) {
    ContactRecord record;
    record[ContactField::FileAs] = fileAs;
    return store.Contacts()->Save(0, record, {});
  }

  FaultTable faults;
  PimStore inner{QStringLiteral(":memory:")};
  FaultyStore store{inner, faults};
};

}  // namespace

TEST_F(FaultyStoreTest, WithoutFaultsEverythingGoesThrough) {
  EXPECT_EQ(store.Contacts(), nullptr);
  Open();
  const Oid oid = Add(QStringLiteral("Adams"));
  ASSERT_NE(oid, 0);
  ContactItem item;
  EXPECT_TRUE(store.Contacts()->Read(oid, item));
  EXPECT_EQ(item.Record[ContactField::FileAs], QStringLiteral("Adams"));
  EXPECT_TRUE(store.Contacts()->Remove(oid));
}

struct StepCase {
  const char* Name;
  int FailingStep;
};

class FailingStep : public testing::TestWithParam<StepCase> {};

TEST_P(FailingStep, GivesItsCodeAndTheStepsBeforeItGoThrough) {
  FaultTable faults;
  PimStore inner(QStringLiteral(":memory:"));
  FaultyStore store(inner, faults);
  faults.Switch(QString::fromLatin1(GetParam().Name), Fault{.Code = 17});
  const std::vector<std::function<int()>> steps = {
      [&] { return store.Create(); }, [&] { return store.Logon(); },
      [&] { return store.OpenFolder(FolderKind::Contacts); },
      [&] { return store.OpenFolder(FolderKind::Calendar); }};
  for (int step = 0; step < GetParam().FailingStep; ++step)
    EXPECT_EQ(steps[static_cast<std::size_t>(step)](), 0) << step;
  EXPECT_EQ(steps[static_cast<std::size_t>(GetParam().FailingStep)](), 17);
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingStep,
                         testing::Values(StepCase{"store-create", 0}, StepCase{"store-logon", 1},
                                         StepCase{"contacts-folder", 2},
                                         StepCase{"calendar-folder", 3}));

TEST_F(FaultyStoreTest, ReadFailsForOneItemOnly) {
  Open();
  const Oid first = Add(QStringLiteral("Adams"));
  const Oid second = Add(QStringLiteral("Baker"));
  faults.Switch(QStringLiteral("read"), Fault{.OnlyItem = first});
  ContactItem item;
  ContactRecord row;
  EXPECT_FALSE(store.Contacts()->Read(first, item));
  EXPECT_FALSE(store.Contacts()->ReadListRow(first, row));
  EXPECT_TRUE(store.Contacts()->Read(second, item));
  EXPECT_TRUE(store.Contacts()->ReadListRow(second, row));
}

TEST_F(FaultyStoreTest, WriteDeleteAndRestrictFailUntilSwitchedOff) {
  Open();
  const Oid oid = Add(QStringLiteral("Adams"));
  for (const char* const name : {"write", "delete", "restrict"})
    faults.Switch(QString::fromLatin1(name), Fault{});
  const auto restrict = [this] {
    return store.Contacts()->Restrict(store.Contacts()->Items(),
                                      QStringLiteral("[FileAs] >= \"A\""));
  };
  EXPECT_EQ(Add(QStringLiteral("Baker")), 0);
  EXPECT_EQ(store.Contacts()->SaveWhole(oid, ContactItem{}), 0);
  EXPECT_FALSE(store.Contacts()->Remove(oid));
  EXPECT_FALSE(restrict().has_value());
  EXPECT_EQ(store.Contacts()->Count(store.Contacts()->Items()), 1);
  for (const char* const name : {"write", "delete", "restrict"})
    faults.Switch(QString::fromLatin1(name), std::nullopt);
  EXPECT_TRUE(restrict().has_value());
  EXPECT_NE(Add(QStringLiteral("Baker")), 0);
  EXPECT_TRUE(store.Contacts()->Remove(oid));
}

TEST_F(FaultyStoreTest, WithoutFaultsTheCalendarGoesThrough) {
  EXPECT_EQ(store.Calendar(), nullptr);
  Open();
  CalendarFolder& calendar = *store.Calendar();
  AppointmentItem item{.Subject = QStringLiteral("(Kim)"), .Uid = QStringLiteral("uid")};
  EXPECT_TRUE(calendar.PutInk(item, "ink"));
  EXPECT_EQ(calendar.Save(item), 1);
  const auto found = calendar.Restrict(calendar.Items(), QStringLiteral("[Subject] = \"(Kim)\""));
  ASSERT_TRUE(found.has_value());
  EXPECT_EQ(calendar.Count(*found), 1);
  EXPECT_EQ(calendar.OidAt(*found, 1), 1);
  EXPECT_EQ(calendar.FindByUid(QStringLiteral("uid")), std::vector<Oid>({1}));
  AppointmentItem read;
  EXPECT_TRUE(calendar.Read(1, read));
  EXPECT_EQ(read.BodyInk, "ink");
  QString subject;
  EXPECT_TRUE(calendar.ReadSubject(1, subject));
  EXPECT_EQ(subject, QStringLiteral("(Kim)"));
  EXPECT_TRUE(calendar.Remove(1));
  EXPECT_FALSE(calendar.Remove(1));
}

TEST_F(FaultyStoreTest, AnAppointmentsSubjectIsReadAsTheAppointmentIs) {
  Open();
  const Oid first = store.Calendar()->Save({.Subject = QStringLiteral("(Kim)")});
  const Oid second = store.Calendar()->Save({.Subject = QStringLiteral("(Lee)")});
  faults.Switch(QStringLiteral("read"), Fault{.OnlyItem = first});
  QString subject;
  EXPECT_FALSE(store.Calendar()->ReadSubject(first, subject));
  EXPECT_TRUE(store.Calendar()->ReadSubject(second, subject));
  EXPECT_EQ(subject, QStringLiteral("(Lee)"));
}

TEST_F(FaultyStoreTest, SavingAnAppointmentFailsUntilSwitchedOff) {
  Open();
  faults.Switch(QStringLiteral("save-appointment"), Fault{});
  EXPECT_EQ(store.Calendar()->Save({}), 0);
  EXPECT_NE(Add(QStringLiteral("Adams")), 0);
  faults.Switch(QStringLiteral("save-appointment"), std::nullopt);
  EXPECT_EQ(store.Calendar()->Save({}), 1);
}

TEST_F(FaultyStoreTest, AppointmentInkFailsForOneItemOnly) {
  Open();
  faults.Switch(QStringLiteral("appointment-ink"), Fault{.OnlyItem = 2});
  AppointmentItem first{.Id = 1};
  AppointmentItem second{.Id = 2};
  EXPECT_TRUE(store.Calendar()->PutInk(first, "ink"));
  EXPECT_FALSE(store.Calendar()->PutInk(second, "ink"));
  EXPECT_TRUE(second.BodyInk.isEmpty());
}

TEST_F(FaultyStoreTest, ReadDeleteAndRestrictFailInTheCalendarToo) {
  Open();
  CalendarFolder& calendar = *store.Calendar();
  const Oid oid = calendar.Save({});
  for (const char* const name : {"read", "delete", "restrict", "write"})
    faults.Switch(QString::fromLatin1(name), Fault{});
  AppointmentItem item;
  EXPECT_FALSE(calendar.Read(oid, item));
  EXPECT_FALSE(calendar.Remove(oid));
  EXPECT_FALSE(calendar.Restrict(calendar.Items(), QStringLiteral("[Subject] >= \"\"")));
  EXPECT_EQ(calendar.Count(calendar.Items()), 1);
  EXPECT_EQ(calendar.Save({.Id = oid}), oid);
}
