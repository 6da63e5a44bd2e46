#include "store/pim/ListIndex.h"

#include <gtest/gtest.h>

#include <random>

#include "store/Restriction.h"
#include "store/pim/CollectionReader.h"
#include "store/pim/PlainOids.h"
#include "store/pim/SqlFunctions.h"
#include "store/pim/StoreCheck.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

class ListIndexOf : public test::TemporaryStore {
 protected:
  void SetUp() override {
    TemporaryStore::SetUp();
    ASSERT_EQ(m_raw.Open(Path()), 0);
    ASSERT_EQ(RegisterFunctions(m_raw), 0);
  }

  // Names N00000 and so on, in another order.
  void AddMany(int count) {
    const auto transaction = m_store.Begin();
    for (int i = 0; i < count; ++i) {
      Add(QStringLiteral("N%1").arg(i * 7919 % count, 5, 10, QLatin1Char('0')));
    }
    ASSERT_TRUE(transaction->Commit());
  }

  Database m_raw;
};

TEST_F(ListIndexOf, AStoreBeginsWithOneEmptyBucket) {
  EXPECT_EQ(m_raw.Number("SELECT count(*) FROM bucket"), 1);
  EXPECT_EQ(m_raw.Number("SELECT n FROM bucket"), 0);
}

TEST_F(ListIndexOf, BucketsSplitBeforeTheyHoldMoreThan1023) {
  AddMany(5000);
  EXPECT_GT(m_raw.Number("SELECT count(*) FROM bucket"), 19);
  EXPECT_LT(m_raw.Number("SELECT max(n) FROM bucket"), 1024);
  EXPECT_EQ(ListIndexFaults(m_raw), QStringList());
}

TEST_F(ListIndexOf, BucketsGoWhenTheyAreEmptyAndTheFirstStays) {
  AddMany(3000);
  ASSERT_EQ(m_raw.Execute("DELETE FROM contact"), 0);
  EXPECT_EQ(m_raw.Number("SELECT count(*) FROM bucket"), 1);
  EXPECT_EQ(m_raw.Number("SELECT length(key) + n FROM bucket"), 0);
  EXPECT_EQ(m_raw.Number("SELECT count(*) FROM entry"), 0);
}

TEST_F(ListIndexOf, ARangeIsCountedWhereverItsEndsFall) {
  AddMany(5000);
  ListIndex index(m_raw);
  for (const int from : {0, 1, 511, 512, 513, 1023, 1024, 2500, 4999}) {
    for (const int to : {0, 1, 513, 1024, 2500, 4999, 5000}) {
      if (to < from) continue;
      const auto key = [](int name) {
        return "0N" + QByteArray::number(name).rightJustified(5, '0');
      };
      EXPECT_EQ(index.Count({.From = key(from), .To = key(to)}), to - from) << from << ' ' << to;
    }
  }
}

TEST_F(ListIndexOf, ASliceBeginsAtItsOffset) {
  AddMany(5000);
  ListIndex index(m_raw);
  const KeyRange range{.From = "0N00100", .To = "0N04900"};
  const std::vector<Oid> all = index.Slice(range, 0, 5000).Oids;
  ASSERT_EQ(all.size(), 4800U);
  for (const int offset :
       {0, 1, 255, 256, 257, 258, 1000, 2047, 4735, 4736, 4737, 4799, 4800, 6000}) {
    const EntrySlice slice = index.Slice(range, offset, 64);
    const auto begin = all.begin() + std::min(offset, 4800);
    const auto end = all.begin() + std::min(offset + 64, 4800);
    EXPECT_EQ(slice.Oids, std::vector<Oid>(begin, end)) << offset;
    EXPECT_EQ(slice.Last.has_value(), offset + 64 <= 4800) << offset;
  }
}

TEST_F(ListIndexOf, ASliceGoesOnAfterThePlaceOfTheLast) {
  AddMany(200);
  ListIndex index(m_raw);
  const KeyRange range = WholeOrder(EntryOrder::FileAs);
  const EntrySlice all = index.Slice(range, 0, 200);
  const EntrySlice first = index.Slice(range, 0, 150);
  ASSERT_TRUE(first.Last);
  EXPECT_EQ(first.Last->Key, "0N00149");
  EXPECT_EQ(first.Last->Id, first.Oids.back());
  const EntrySlice rest = index.SliceAfter(*first.Last, range, 150);
  EXPECT_EQ(rest.Oids, std::vector<Oid>(all.Oids.begin() + 150, all.Oids.end()));
  EXPECT_FALSE(rest.Last);
}

TEST_F(ListIndexOf, TwoThousandOfOneNameAreCountedAndReadInTheOrderOfTheirOids) {
  const auto transaction = m_store.Begin();
  for (int i = 0; i < 2000; ++i) Add(QStringLiteral("Kim"));
  ASSERT_TRUE(transaction->Commit());
  ListIndex index(m_raw);
  const KeyRange kims{.From = "0KIM", .To = "0KIM\1"};
  EXPECT_EQ(index.Count(kims), 2000);
  const EntrySlice slice = index.Slice(kims, 1500, 500);
  ASSERT_EQ(slice.Oids.size(), 500U);
  EXPECT_EQ(slice.Oids.front(), 1501);
  EXPECT_EQ(slice.Oids.back(), 2000);
}

TEST_F(ListIndexOf, ARebuiltIndexIsTheSame) {
  AddMany(3000);
  m_raw.Execute("DELETE FROM entry WHERE oid % 3 = 0");
  ASSERT_NE(ListIndexFaults(m_raw), QStringList());
  ASSERT_TRUE(m_raw.Begin());
  ASSERT_EQ(RebuildListIndex(m_raw), 0);
  ASSERT_TRUE(m_raw.Commit());
  EXPECT_EQ(ListIndexFaults(m_raw), QStringList());
  Add(QStringLiteral("New"));
  EXPECT_EQ(ListIndexFaults(m_raw), QStringList());
}

// Random contacts of few names, so that many compare equal, edited and deleted at random: every
// collection has the items that plain SQL finds.
class RandomStore : public ListIndexOf {
 protected:
  int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

  QString Pick(const QStringList& texts) { return texts[Below(static_cast<int>(texts.size()))]; }

  QString Name() {
    static const QStringList kParts{
        QString(),           QStringLiteral("a"),      QStringLiteral("A"),
        QStringLiteral("b"), QStringLiteral("Kim"),    QStringLiteral("김"),
        QStringLiteral("y"), QStringLiteral("\uFFFF"), QString(QChar(u'\0')),
        QString(QChar(1)),   QString(QChar(0xD83D)),   QStringLiteral("ß")};
    return Pick(kParts) + Pick(kParts);
  }

  QString CategoryList() {
    static const QStringList kTexts{QString(),
                                    QString(),
                                    QStringLiteral("Work"),
                                    QStringLiteral("Work, Play"),
                                    QStringLiteral("Play,Work,Play"),
                                    QStringLiteral(" ,"),
                                    QStringLiteral("work"),
                                    QStringLiteral("Workshop,  가족")};
    return Pick(kTexts);
  }

  ContactRecord RandomRecord() {
    ContactRecord record;
    record[ContactField::FileAs] = Name();
    record[ContactField::CompanyName] = Name();
    record[ContactField::Categories] = CategoryList();
    return record;
  }

  QString Comparison(const QString& property) {
    return QStringLiteral("[%1] %2 %3")
        .arg(property, Pick({QStringLiteral("="), QStringLiteral(">="), QStringLiteral("<")}),
             QuoteRestrictionValue(Name()));
  }

  QString Restriction(const QString& property) {
    const QString category =
        QStringLiteral("[Categories] = ") +
        QuoteRestrictionValue(Pick({QString(), QStringLiteral("Work"), QStringLiteral(" Play"),
                                    QStringLiteral("Work,Play"), QStringLiteral(",")}));
    switch (Below(5)) {
      case 0:
        return Comparison(property);
      case 1:
        return Comparison(property) + QStringLiteral(" AND ") + Comparison(property);
      case 2:
        return Comparison(property) + QStringLiteral(" OR ") + Comparison(property);
      case 3:
        return category;
      default:
        return QStringLiteral("(%1 OR %2) AND %3")
            .arg(Comparison(property), Comparison(property), category);
    }
  }

  void EditSomething() {
    const auto oid = static_cast<Oid>(1 + Below(1500));
    if (Below(3) == 0) {
      Contacts().Remove(oid);
    } else {
      Contacts().Save(Below(2) == 0 ? 0 : oid, RandomRecord(), {});
    }
  }

  void ExpectSameItems(const ContactCollection& collection, const QString& text) {
    const std::vector<Oid> expected = PlainContactOids(m_raw, collection);
    ASSERT_EQ(Contacts().Count(collection), static_cast<int>(expected.size()))
        << text.toStdString();
    for (int i = 0; i < 20 && !expected.empty(); ++i) {
      const auto position = static_cast<std::size_t>(Below(static_cast<int>(expected.size())));
      ASSERT_EQ(Contacts().OidAt(collection, static_cast<int>(position) + 1), expected[position])
          << text.toStdString();
    }
    EXPECT_EQ(Contacts().OidAt(collection, static_cast<int>(expected.size()) + 1), 0);
  }

  void ExpectWalkGivesAll(const ContactCollection& collection) {
    EXPECT_EQ(test::Oids(Contacts(), collection), PlainContactOids(m_raw, collection));
  }

  std::mt19937 m_random{20040915};
};

TEST_F(RandomStore, EveryCollectionHasTheItemsThatPlainSqlFinds) {
  for (int round = 0; round < 12; ++round) {
    const auto transaction = m_store.Begin();
    for (int i = 0; i < 200; ++i) EditSomething();
    ASSERT_TRUE(transaction->Commit());
    for (int i = 0; i < 40; ++i) {
      ContactCollection collection = Contacts().Items();
      const bool byCompany = Below(2) == 1;
      if (byCompany) Contacts().Sort(collection, ContactOrder::ByCompany);
      const QString text =
          Restriction(byCompany ? QStringLiteral("CompanyName") : QStringLiteral("FileAs"));
      const auto restricted = Contacts().Restrict(collection, text);
      ASSERT_TRUE(restricted) << text.toStdString();
      ExpectSameItems(*restricted, text);
      if (i % 8 == 0) ExpectWalkGivesAll(*restricted);
    }
    ASSERT_EQ(ListIndexFaults(m_raw), QStringList());
  }
  EXPECT_GT(m_raw.Number("SELECT count(*) FROM bucket"), 3);
}

}  // namespace
}  // namespace quill
