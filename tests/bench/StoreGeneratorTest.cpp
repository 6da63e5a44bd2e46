#include "bench/StoreGenerator.h"

#include <algorithm>
#include <set>

#include "appointments/ContactLink.h"
#include "bench/AppointmentGenerator.h"
#include "store/AppointmentValidity.h"
#include "store/CategoryText.h"
#include "store_pim/TemporaryStore.h"

namespace quill::bench {
namespace {

constexpr int kCount = 2000;

bool BeginsWith(const QString& text, QChar::Script script) {
  return !text.isEmpty() && text.front().script() == script;
}

bool IsAscii(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
}

// How many contacts have each trait.
struct Shares {
  int Latin = 0;
  int Accented = 0;  // of the Latin ones
  int Hangul = 0;
  int Companies = 0;  // filed under their company's name
  int Digits = 0;
  int Employed = 0;  // persons with a company
  int WithoutCategory = 0;
  int WithTwoCategories = 0;
  std::set<QString> Categories;

  void Count(const ContactRecord& record) {
    const QString& fileAs = record[ContactField::FileAs];
    const bool isPerson = !record[ContactField::LastName].isEmpty();
    const bool isHangul = isPerson && BeginsWith(fileAs, QChar::Script_Hangul);
    const bool isLatin = isPerson && BeginsWith(fileAs, QChar::Script_Latin);
    Latin += isLatin;
    Accented += isLatin && !IsAscii(fileAs);
    Hangul += isHangul;
    Companies += !isPerson && fileAs == record[ContactField::CompanyName];
    Digits += fileAs.front().isDigit();
    Employed += isPerson && !record[ContactField::CompanyName].isEmpty();
    const QStringList names = SplitCategories(record[ContactField::Categories]);
    WithoutCategory += names.isEmpty();
    WithTwoCategories += names.size() == 2;
    Categories.insert(names.begin(), names.end());
  }
};

class StoreGenerator : public test::TemporaryStore {
 protected:
  QString Fill(int count, unsigned seed = 1) {
    return bench::StoreGenerator(m_store, seed).Fill(count);
  }
  // Every contact, in Oid order.
  std::vector<ContactItem> ReadAll() { return ReadAll(Contacts()); }
  static std::vector<ContactItem> ReadAll(ContactsFolder& folder) {
    std::vector<ContactItem> items(std::size_t(folder.Count(folder.Items())));
    for (std::size_t i = 0; i < items.size(); ++i)
      EXPECT_TRUE(folder.Read(static_cast<Oid>(i + 1), items[i]));
    return items;
  }
  // The contacts of a store of its own.
  static std::vector<ContactItem> Generate(int count, unsigned seed) {
    PimStore store(QStringLiteral(":memory:"));
    EXPECT_EQ(test::OpenAll(store), 0);
    EXPECT_EQ(bench::StoreGenerator(store, seed).Fill(count), QString());
    return ReadAll(*store.Contacts());
  }
};

bool Same(const ContactItem& a, const ContactItem& b) {
  return a.Record == b.Record && a.Uid == b.Uid && a.BodyInk == b.BodyInk &&
         a.CarriedLines == b.CarriedLines;
}

TEST_F(StoreGenerator, HasTheSharesOfAGrownAddressBook) {
  ASSERT_EQ(Fill(kCount), QString());
  Shares shares;
  for (const ContactItem& item : ReadAll()) shares.Count(item.Record);
  const double few = 0.03 * kCount;
  EXPECT_NEAR(shares.Latin, kCount / 2, few);
  EXPECT_GT(shares.Accented, kCount / 20);
  EXPECT_NEAR(shares.Hangul, kCount / 3, few);
  EXPECT_NEAR(shares.Companies, kCount / 9, few);
  EXPECT_NEAR(shares.Digits, kCount / 18, few);
  EXPECT_EQ(shares.Latin + shares.Hangul + shares.Companies + shares.Digits, kCount);
  EXPECT_NEAR(shares.Employed, kCount * 5 / 9, 2 * few);
  EXPECT_NEAR(shares.WithoutCategory, kCount / 3, few);
  EXPECT_NEAR(shares.WithTwoCategories, kCount / 10, few);
  EXPECT_EQ(shares.Categories.size(), 12U);
}

TEST_F(StoreGenerator, FilesEveryContactUnderAName) {
  ASSERT_EQ(Fill(kCount), QString());
  std::set<QString> uids;
  for (const ContactItem& item : ReadAll()) {
    EXPECT_FALSE(item.Record[ContactField::FileAs].isEmpty());
    uids.insert(item.Uid);
  }
  EXPECT_EQ(uids.size(), std::size_t(kCount));
}

TEST_F(StoreGenerator, TwoCategoriesAreDifferentOnesWithABlankBetween) {
  ASSERT_EQ(Fill(kCount), QString());
  int seen = 0;
  for (const ContactItem& item : ReadAll()) {
    const QString& text = item.Record[ContactField::Categories];
    const QStringList names = SplitCategories(text);
    if (names.size() < 2) continue;
    ++seen;
    EXPECT_EQ(text, names[0] + QStringLiteral(", ") + names[1]);
    EXPECT_NE(names[0], names[1]);
  }
  EXPECT_GT(seen, 0);
}

TEST_F(StoreGenerator, MakesOneAppointmentForTwentyContacts) {
  ASSERT_EQ(Fill(kCount), QString());
  CalendarFolder& calendar = *m_store.Calendar();
  const int count = calendar.Count(calendar.Items());
  EXPECT_NEAR(count, kCount / 20, 0.01 * kCount);
  int recurring = 0;
  for (int position = 1; position <= count; ++position) {
    AppointmentItem item;
    ASSERT_TRUE(calendar.Read(calendar.OidAt(calendar.Items(), position), item));
    EXPECT_EQ(WhyNotSavable(item), std::nullopt);
    recurring += item.Recurrence.has_value();
    const QString fileAs = item.Subject.mid(1, item.Subject.lastIndexOf(u')') - 1);
    EXPECT_TRUE(item.Subject.startsWith(ContactLinkPrefix(fileAs) + u' '));
    EXPECT_FALSE(Contacts().FindByFileAs(fileAs).empty()) << fileAs.toStdString();
  }
  EXPECT_NEAR(recurring, count / 8, count / 16);
}

TEST_F(StoreGenerator, TheSameSeedGivesTheSameAppointments) {
  AppointmentGenerator first(7);
  AppointmentGenerator second(7);
  std::size_t made = 0;
  for (int i = 0; i < 300; ++i) {
    const auto appointments = first.Next(QStringLiteral("Kim"));
    EXPECT_EQ(appointments, second.Next(QStringLiteral("Kim")));
    made += appointments.size();
  }
  EXPECT_GT(made, 0U);
}

TEST_F(StoreGenerator, TheSameSeedGivesTheSameStore) {
  const auto first = Generate(300, 7);
  const auto second = Generate(300, 7);
  ASSERT_EQ(first.size(), 300U);
  EXPECT_TRUE(std::equal(first.begin(), first.end(), second.begin(), second.end(), Same));
}

TEST_F(StoreGenerator, AnotherSeedGivesAnotherStore) {
  const auto first = Generate(10, 1);
  const auto second = Generate(10, 2);
  EXPECT_FALSE(std::equal(first.begin(), first.end(), second.begin(), second.end(), Same));
}

TEST_F(StoreGenerator, TellsOfContactsThatAreDurable) {
  std::vector<int> told;
  bench::StoreGenerator generator(m_store, 1, [&](int made) {
    told.push_back(made);
    EXPECT_EQ(Contacts().Count(Contacts().Items()), made);
  });
  EXPECT_EQ(generator.Fill(5003), QString());
  EXPECT_EQ(told, (std::vector{5000, 5003}));
}

TEST_F(StoreGenerator, LeavesAUsedStoreAsItIs) {
  const Oid oid = Add(QStringLiteral("Kim"));
  EXPECT_EQ(Fill(5), QStringLiteral("the store holds contacts already"));
  EXPECT_EQ(Contacts().Count(Contacts().Items()), 1);
  EXPECT_EQ(Contacts().OidAt(Contacts().Items(), 1), oid);
}

TEST_F(StoreGenerator, SaysWhyAStoreCannotBeFilled) {
  const auto other = m_store.Begin();  // a second transaction is refused
  EXPECT_NE(Fill(5), QString());
  EXPECT_EQ(Contacts().Count(Contacts().Items()), 0);
}

}  // namespace
}  // namespace quill::bench
