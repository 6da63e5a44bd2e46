#include "store/pim/EntryKeys.h"

#include <gtest/gtest.h>

#include <QSet>

namespace quill {
namespace {

QByteArrayList Keys(const ContactKeyTexts& texts) {
  QByteArrayList keys;
  for (int i = 0; i < ContactEntryCount(texts.Categories); ++i) {
    keys.append(ContactEntryKey(texts, i));
  }
  return keys;
}

QByteArray Key(const char* text, qsizetype size) { return {text, size}; }

TEST(EntryKeys, AContactIsFoundByNameByCompanyAndByBothInEachCategory) {
  EXPECT_EQ(Keys({u"Kim", u"Acme", u"Work, Play"}),
            QByteArrayList({"0KIM", Key("1ACME\0KIM", 9), Key("2Work\0KIM", 9),
                            Key("3Work\0ACME\0KIM", 14), Key("2Play\0KIM", 9),
                            Key("3Play\0ACME\0KIM", 14)}));
}

TEST(EntryKeys, AContactWithoutCategoriesIsInTheEmptyOne) {
  EXPECT_EQ(Keys({u"Kim", u"", u""}),
            QByteArrayList({"0KIM", Key("1\0KIM", 5), Key("2\0KIM", 5), Key("3\0\0KIM", 6)}));
}

TEST(EntryKeys, CategoriesThatNameNoneGiveNoEntry) { EXPECT_EQ(ContactEntryCount(u" , ,"), 2); }

TEST(EntryKeys, ACategoryNamedTwiceGivesOneEntry) {
  const QByteArrayList keys = Keys({u"Kim", u"", u"Work,Work, Work,work"});
  EXPECT_EQ(keys.size(), 6);
  EXPECT_EQ(QSet<QByteArray>(keys.begin(), keys.end()).size(), keys.size());
}

TEST(EntryKeys, ASubjectKeepsItsCase) { EXPECT_EQ(SubjectEntryKey(u"(Kim) a"), "4(Kim) a"); }

TEST(EntryKeys, AnOrderHoldsItsKeysAndNoOthers) {
  const KeyRange companies = WholeOrder(EntryOrder::Company);
  const QByteArrayList keys = Keys({u"", u"", u""});
  EXPECT_LT(keys[0], companies.From);
  EXPECT_GE(keys[1], companies.From);
  EXPECT_LT(keys[1], companies.To);
  EXPECT_GE(keys[2], companies.To);
}

TEST(EntryKeys, ACategoryHoldsItsKeysAndNotThoseOfALongerName) {
  const KeyRange work = WholeCategory(EntryOrder::CategoryFileAs, u"Work");
  const auto isIn = [&work](const QByteArray& key) { return key >= work.From && key < work.To; };
  EXPECT_TRUE(isIn(ContactEntryKey({u"", u"", u"Work"}, 2)));
  EXPECT_TRUE(isIn(ContactEntryKey({u"\uFFFF\uFFFF", u"", u"Work"}, 2)));
  EXPECT_FALSE(isIn(ContactEntryKey({u"Kim", u"", u"Workshop"}, 2)));
  EXPECT_FALSE(isIn(ContactEntryKey({u"Kim", u"", u"Wor"}, 2)));
  EXPECT_FALSE(isIn(ContactEntryKey({u"Kim", u"", u"work"}, 2)));
}

}  // namespace
}  // namespace quill
