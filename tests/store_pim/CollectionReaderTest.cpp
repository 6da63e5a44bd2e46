#include "store/pim/CollectionReader.h"

#include <gtest/gtest.h>

#include "store/Restriction.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

class Collections : public test::TemporaryStore {
 protected:
  Oid AddAt(const QString& company, const QString& name) {
    ContactRecord record;
    record[ContactField::FileAs] = name;
    record[ContactField::CompanyName] = company;
    return Contacts().Save(0, record, {});
  }

  std::vector<Oid> Oids(const ContactCollection& collection) {
    return test::Oids(Contacts(), collection);
  }

  void AddMany(int count) {
    const auto transaction = m_store.Begin();
    for (int i = 0; i < count; ++i) {
      // 7919 is prime, so every number comes once, in another order.
      Add(QStringLiteral("N%1").arg(i * 7919 % count, 5, 10, QLatin1Char('0')));
    }
    ASSERT_TRUE(transaction->Commit());
  }
};

TEST_F(Collections, SortByNameWithoutCaseThenByOid) {
  const Oid kim = Add(QStringLiteral("kim"));
  const Oid hangul = Add(QStringLiteral("가나"));
  const Oid kim2 = Add(QStringLiteral("KIM"));
  const Oid zed = Add(QStringLiteral("Zed"));
  const Oid digit = Add(QStringLiteral("1st"));
  const Oid umlaut = Add(QStringLiteral("äpfel"));
  const Oid hangul2 = Add(QStringLiteral("홍길동"));
  const Oid none = Add(QString());
  const Oid kim3 = Add(QStringLiteral("Kim"));
  EXPECT_EQ(Oids(Contacts().Items()),
            std::vector<Oid>({none, digit, kim, kim2, kim3, zed, umlaut, hangul, hangul2}));
}

TEST_F(Collections, SortByCompanyThenByNameThenByOid) {
  const Oid b = AddAt(QStringLiteral("Acme"), QStringLiteral("b"));
  const Oid zebra = AddAt(QStringLiteral("Zebra"), QStringLiteral("a"));
  const Oid none = AddAt(QString(), QStringLiteral("z"));
  const Oid a = AddAt(QStringLiteral("ACME"), QStringLiteral("A"));
  const Oid a2 = AddAt(QStringLiteral("acme"), QStringLiteral("a"));
  ContactCollection collection = Contacts().Items();
  EXPECT_EQ(collection.Order, ContactOrder::ByFileAs);
  Contacts().Sort(collection, ContactOrder::ByCompany);
  EXPECT_EQ(Oids(collection), std::vector<Oid>({none, a, a2, b, zebra}));
}

TEST_F(Collections, ACompanyThatBeginsAnotherComesFirstWhateverTheNames) {
  const Oid longer = AddAt(QStringLiteral("Acme Ltd"), QStringLiteral("a"));
  const Oid shorter = AddAt(QStringLiteral("Acme"), QStringLiteral("z"));
  ContactCollection collection = Contacts().Items();
  Contacts().Sort(collection, ContactOrder::ByCompany);
  EXPECT_EQ(Oids(collection), std::vector<Oid>({shorter, longer}));
}

TEST_F(Collections, PositionsOutsideHaveNoItem) {
  const Oid kim = Add(QStringLiteral("Kim"));
  const ContactCollection all = Contacts().Items();
  EXPECT_EQ(Contacts().OidAt(all, 1), kim);
  for (const int position :
       {0, -1, 2, 3, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    EXPECT_EQ(Contacts().OidAt(all, position), 0) << position;
  }
}

TEST_F(Collections, ACollectionFollowsEveryWrite) {
  const ContactCollection all = Contacts().Items();
  EXPECT_EQ(Contacts().Count(all), 0);
  EXPECT_EQ(Contacts().OidAt(all, 1), 0);
  const Oid kim = Add(QStringLiteral("Kim"));
  EXPECT_EQ(Oids(all), std::vector<Oid>({kim}));
  const Oid adams = Add(QStringLiteral("Adams"));
  EXPECT_EQ(Oids(all), std::vector<Oid>({adams, kim}));
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Zed");
  Contacts().Save(adams, record, {});
  EXPECT_EQ(Oids(all), std::vector<Oid>({kim, adams}));
  Contacts().Remove(kim);
  EXPECT_EQ(Oids(all), std::vector<Oid>({adams}));
}

TEST_F(Collections, ARollbackIsNotSeenAsWritten) {
  Add(QStringLiteral("Kim"));
  const ContactCollection all = Contacts().Items();
  {
    const auto transaction = m_store.Begin();
    Add(QStringLiteral("Adams"));
    EXPECT_EQ(Oids(all).size(), 2U);
  }
  EXPECT_EQ(Oids(all).size(), 1U);
  EXPECT_EQ(Contacts().OidAt(all, 2), 0);
}

TEST_F(Collections, AnotherProgramsWritesAreSeen) {
  PimStore other(Path());
  ASSERT_EQ(test::OpenAll(other), 0);
  Add(QStringLiteral("Kim"));
  const ContactCollection all = Contacts().Items();
  EXPECT_EQ(Oids(all).size(), 1U);
  ContactRecord record;
  record[ContactField::FileAs] = QStringLiteral("Adams");
  const Oid adams = other.Contacts()->Save(0, record, {});
  EXPECT_EQ(Oids(all).size(), 2U);
  EXPECT_EQ(Contacts().OidAt(all, 1), adams);
}

TEST_F(Collections, TwoCollectionsInTurnDoNotMix) {
  Add(QStringLiteral("Adams"));
  Add(QStringLiteral("Kim"));
  const ContactCollection all = Contacts().Items();
  const auto kims = Contacts().Restrict(all, QStringLiteral("[FileAs] = \"Kim\""));
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Contacts().Count(all), 2);
    EXPECT_EQ(Contacts().Count(*kims), 1);
    EXPECT_EQ(test::Names(Contacts(), all).first(), QStringLiteral("Adams"));
    EXPECT_EQ(test::Names(Contacts(), *kims).first(), QStringLiteral("Kim"));
  }
}

TEST_F(Collections, TenThousandContactsAreReadInOrder) {
  AddMany(10'000);
  const ContactCollection all = Contacts().Items();
  EXPECT_EQ(Contacts().Count(all), 10'000);
  const QStringList names = test::Names(Contacts(), all);
  ASSERT_EQ(names.size(), 10'000);
  for (int i = 0; i < 10'000; ++i) {
    ASSERT_EQ(names[i], QStringLiteral("N%1").arg(i, 5, 10, QLatin1Char('0')));
  }
}

TEST_F(Collections, APageAnywhereInTenThousandIsRight) {
  AddMany(10'000);
  const auto some = Contacts().Restrict(
      Contacts().Items(), QStringLiteral("[FileAs] >= \"N02\" AND [FileAs] < \"N07\""));
  ASSERT_TRUE(some);
  EXPECT_EQ(Contacts().Count(*some), 5'000);
  for (const int top : {1, 14, 63, 64, 65, 2500, 4986, 4987, 1, 2500}) {
    for (int position = top; position < top + 14; ++position) {
      ContactRecord record;
      ASSERT_TRUE(Contacts().ReadListRow(Contacts().OidAt(*some, position), record));
      EXPECT_EQ(record[ContactField::FileAs],
                QStringLiteral("N%1").arg(1999 + position, 5, 10, QLatin1Char('0')));
    }
  }
  EXPECT_EQ(Contacts().OidAt(*some, 5'001), 0);
}

TEST_F(Collections, WalkingUpwardsIsRightToo) {
  AddMany(200);
  const ContactCollection all = Contacts().Items();
  for (int position = 200; position >= 1; --position) {
    ContactRecord record;
    ASSERT_TRUE(Contacts().ReadListRow(Contacts().OidAt(all, position), record));
    EXPECT_EQ(record[ContactField::FileAs],
              QStringLiteral("N%1").arg(position - 1, 5, 10, QLatin1Char('0')));
  }
}

}  // namespace
}  // namespace quill
