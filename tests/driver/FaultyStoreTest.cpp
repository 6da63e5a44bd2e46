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
