#include "app/SamplePeople.h"

#include <QDate>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "app/Places.h"
#include "app/SamplePerson.h"
#include "app/StoreOpening.h"
#include "store/CategoryText.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

std::vector<ContactItem> ItemsIn(StoreProvider& store) {
  const StoreOpening opening(store);
  EXPECT_TRUE(opening.Succeeded()) << opening.Problem().toStdString();
  ContactsFolder& contacts = *store.Contacts();
  const ContactCollection all = contacts.Items();
  std::vector<ContactItem> items(static_cast<std::size_t>(contacts.Count(all)));
  for (std::size_t i = 0; i < items.size(); ++i)
    EXPECT_TRUE(contacts.Read(contacts.OidAt(all, static_cast<int>(i) + 1), items[i]));
  return items;
}

const ContactRecord* FindRecord(const std::vector<ContactItem>& items, const QString& fileAs) {
  const auto found = std::find_if(items.begin(), items.end(), [&](const ContactItem& item) {
    return item.Record[ContactField::FileAs] == fileAs;
  });
  return found == items.end() ? nullptr : &found->Record;
}

class SamplePeople : public testing::Test {
 protected:
  QStringList Memos() const { return m_files.Find(u"\\My Documents\\Fennick\\*.pwi"_qs); }

  QTemporaryDir m_folder;
  PimStore m_store{m_folder.filePath(u"store.db"_qs)};
  DesktopDeviceFiles m_files{DeviceRootsOf(HomePlaces(m_folder.path(), {}))};
};

TEST_F(SamplePeople, AreAllThereWithANameToFileUnder) {
  ASSERT_EQ(FillWithSamplePeople(m_store, m_files), QString());
  const auto items = ItemsIn(m_store);
  EXPECT_EQ(items.size(), SamplePersons().size());
  EXPECT_GE(items.size(), 60U);
  for (const ContactItem& item : items) EXPECT_FALSE(item.Record[ContactField::FileAs].isEmpty());
}

TEST_F(SamplePeople, HaveCategoriesThatCanBeChosen) {
  ASSERT_EQ(FillWithSamplePeople(m_store, m_files), QString());
  const auto items = ItemsIn(m_store);
  const StoreOpening opening(m_store);
  ASSERT_TRUE(opening.Succeeded());
  const QStringList library = m_store.Categories()->Names();
  EXPECT_TRUE(library.contains(u"Tennis"_qs));
  for (const ContactItem& item : items)
    for (const QString& name : SplitCategories(item.Record[ContactField::Categories]))
      EXPECT_TRUE(library.contains(name)) << name.toStdString();
}

TEST_F(SamplePeople, HaveTheirFields) {
  ASSERT_EQ(FillWithSamplePeople(m_store, m_files), QString());
  const auto items = ItemsIn(m_store);
  const ContactRecord* english = FindRecord(items, u"Ahlberg, Ingrid"_qs);
  ASSERT_TRUE(english);
  EXPECT_EQ((*english)[ContactField::HomeAddressPostalCode], u"05099"_qs);
  EXPECT_EQ((*english)[ContactField::Children], u"Maja, Elias"_qs);
  EXPECT_EQ(english->Birthday.Year, 1968);
  EXPECT_EQ(english->Birthday.Month, 11);
  EXPECT_EQ(english->Birthday.Day, 2);
  EXPECT_EQ(english->Birthday.DayOfWeek, 6);
  EXPECT_EQ(english->Anniversary.Year, 1994);
  const ContactRecord* korean = FindRecord(items, u"김서연"_qs);
  ASSERT_TRUE(korean);
  EXPECT_EQ((*korean)[ContactField::LastName], u"김"_qs);
  EXPECT_EQ((*korean)[ContactField::FirstName], u"서연"_qs);
  EXPECT_TRUE(FindRecord(items, u"솔바람서점"_qs)) << "a company alone";
}

TEST_F(SamplePeople, HaveMemosOfSomeOfThem) {
  ASSERT_EQ(FillWithSamplePeople(m_store, m_files), QString());
  const auto items = ItemsIn(m_store);
  EXPECT_GE(Memos().size(), 6);
  for (const QString& name : Memos()) {
    const QString owner = name.section(u'_', 0, 0);
    EXPECT_TRUE(owner == u"Memo"_qs || FindRecord(items, owner)) << name.toStdString();
  }
}

TEST_F(SamplePeople, AreNotThereWithoutTheirMemos) {
  QFile inTheWay(m_folder.filePath(u"My Documents"_qs));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  EXPECT_NE(FillWithSamplePeople(m_store, m_files), QString());
  EXPECT_EQ(ItemsIn(m_store).size(), 0U);
}

TEST_F(SamplePeople, ComeOnceOnly) {
  ASSERT_EQ(FillWithSamplePeople(m_store, m_files), QString());
  ASSERT_EQ(FillWithSamplePeople(m_store, m_files), QString());
  EXPECT_EQ(ItemsIn(m_store).size(), SamplePersons().size());
}

TEST_F(SamplePeople, DoNotJoinOthers) {
  {
    const StoreOpening opening(m_store);
    ASSERT_TRUE(opening.Succeeded());
    ContactItem item;
    item.Record[ContactField::FileAs] = u"Somebody"_qs;
    ASSERT_NE(m_store.Contacts()->SaveWhole(0, item), 0);
  }
  ASSERT_EQ(FillWithSamplePeople(m_store, m_files), QString());
  EXPECT_EQ(ItemsIn(m_store).size(), 1U);
  EXPECT_EQ(Memos(), QStringList());
}

std::vector<std::string> TextsOf(std::initializer_list<QStringView SamplePerson::*> members) {
  std::vector<std::string> texts;
  for (const SamplePerson& person : SamplePersons()) {
    for (const auto member : members) {
      if (!(person.*member).isEmpty()) texts.push_back((person.*member).toString().toStdString());
    }
  }
  return texts;
}

TEST(SamplePersons, HaveInventedNumbers) {
  const auto numbers =
      TextsOf({&SamplePerson::Business, &SamplePerson::Business2, &SamplePerson::BusinessFax,
               &SamplePerson::Home, &SamplePerson::Home2, &SamplePerson::HomeFax,
               &SamplePerson::Mobile, &SamplePerson::Pager});
  EXPECT_GT(numbers.size(), 50U);
  EXPECT_THAT(
      numbers,
      testing::Each(testing::ContainsRegex("^(202-555-01[0-9][0-9]|0(2|10)-0000-[0-9]{4})$")));
}

TEST(SamplePersons, HaveAddressesOfReservedDomains) {
  const auto mails = TextsOf({&SamplePerson::Email, &SamplePerson::Email2});
  EXPECT_GT(mails.size(), 20U);
  EXPECT_THAT(mails, testing::Each(testing::ContainsRegex("@example\\.(org|net)$")));
}

TEST(SamplePersons, HaveDatesThatAreDates) {
  const auto dates = TextsOf({&SamplePerson::Birthday, &SamplePerson::Anniversary});
  EXPECT_GT(dates.size(), 10U);
  for (const std::string& date : dates)
    EXPECT_TRUE(QDate::fromString(QString::fromStdString(date), Qt::ISODate).isValid()) << date;
}

TEST(SamplePeopleOnABrokenStore, AreRefusedWithAReason) {
  const QTemporaryDir folder;
  PimStore store(folder.path());  // a folder is no store
  DesktopDeviceFiles files(DeviceRootsOf(HomePlaces(folder.path(), {})));
  EXPECT_NE(FillWithSamplePeople(store, files), QString());
}

}  // namespace
}  // namespace quill
