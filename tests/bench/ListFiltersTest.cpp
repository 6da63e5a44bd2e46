#include "bench/ListFilters.h"

#include <QSet>

#include "bench/StoreGenerator.h"
#include "store_pim/TemporaryStore.h"

namespace quill::bench {
namespace {

class ListFilters : public test::TemporaryStore {
 protected:
  void SetUp() override {
    TemporaryStore::SetUp();
    ASSERT_EQ(StoreGenerator(m_store, 1).Fill(2000), QString());
  }
  int CountOf(const ListFilter& filter) {
    const auto collection = Ask(Contacts(), filter);
    return collection ? Contacts().Count(*collection) : -1;
  }
};

TEST_F(ListFilters, AskForDifferentListsOfContactsThatThereAre) {
  QSet<QString> asked;
  for (const ListFilter& filter : bench::ListFilters()) {
    const bool isSearch = filter.Name.startsWith(u"search");
    EXPECT_GT(CountOf(filter), isSearch ? -1 : 14) << filter.Name.toStdString();
    asked.insert(filter.Restriction + (filter.Order == ContactOrder::ByCompany ? u'c' : u'n'));
  }
  EXPECT_EQ(asked.size(), qsizetype(bench::ListFilters().size()));
}

TEST_F(ListFilters, IndexButtonsShareAllContactsAmongThem) {
  int total = 0;
  for (int button = 1; button <= 5; ++button) total += CountOf(IndexButtonFilter(button));
  EXPECT_EQ(total, 2000);
}

TEST_F(ListFilters, TwoCategoriesInEitherOrderAreTheSameContacts) {
  const auto filters = TwoCategoryFilters();
  ASSERT_EQ(filters.size(), 2U);
  EXPECT_NE(filters[0].Restriction, filters[1].Restriction);
  EXPECT_GT(CountOf(filters[0]), 100);
  EXPECT_EQ(CountOf(filters[0]), CountOf(filters[1]));
}

TEST_F(ListFilters, APageThatIsThereCanBeRead) {
  const ContactCollection all = Contacts().Items();
  EXPECT_TRUE(ReadPage(Contacts(), all, 2000, 1));
  EXPECT_TRUE(ReadPage(Contacts(), all, 2000, 1995)) << "shorter at the end";
  EXPECT_FALSE(ReadPage(Contacts(), all, 2001, 1995)) << "one contact is missing";
  EXPECT_TRUE(BuildList(Contacts(), bench::ListFilters().front()));
}

TEST_F(ListFilters, ARestrictionThatFailsBuildsNothing) {
  EXPECT_FALSE(BuildList(Contacts(), {.Name = {}, .Restriction = QStringLiteral("[Nothing] = 1")}));
}

}  // namespace
}  // namespace quill::bench
