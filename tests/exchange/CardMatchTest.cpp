#include "exchange/CardMatch.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"
#include "store/pim/PimStore.h"

namespace quill::test {
namespace {

struct KeyCase {
  const char16_t* Number;
  const char16_t* Key;
};

class NumberKeysOf : public testing::TestWithParam<KeyCase> {};

TEST_P(NumberKeysOf, LeaveOutHowANumberIsWritten) {
  EXPECT_EQ(NumberKey(QString::fromUtf16(GetParam().Number)).toStdU16String(), GetParam().Key);
}

INSTANTIATE_TEST_SUITE_P(Numbers, NumberKeysOf,
                         testing::Values(KeyCase{u"+82 (0)2-12.34/5", u"820212345"},
                                         KeyCase{u"1-800-flowers", u"1800FLOWERS"},
                                         KeyCase{u"*31#02", u"*31#02"}, KeyCase{u" - ", u"-"},
                                         KeyCase{u" ", u""}, KeyCase{u"", u""}));

class ContactMatches : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_store.Create(), 0);
    ASSERT_EQ(m_store.Logon(), 0);
    ASSERT_EQ(m_store.OpenFolder(FolderKind::Contacts), 0);
    m_match.emplace(*m_store.Contacts());
  }

  Oid Add(const QByteArray& properties) {
    return m_store.Contacts()->SaveWhole(0, ContactOf(properties));
  }
  std::vector<Oid> Find(const QByteArray& properties) {
    std::vector<Oid> found;
    for (const KnownContact& known : m_match->Find(ContactOf(properties))) {
      ContactItem item;
      EXPECT_TRUE(m_store.Contacts()->Read(known.Id, item));
      EXPECT_EQ(known.Item, item);
      found.push_back(known.Id);
    }
    return found;
  }
  // As many of one name that their numbers are held.
  void AddMany() {
    for (int i = 0; i < 20; ++i) Add("FN:Kim\nTEL:9" + QByteArray::number(i) + '\n');
  }

  using Oids = std::vector<Oid>;
  PimStore m_store{u":memory:"_qs};
  std::optional<ContactMatch> m_match;
};

TEST_F(ContactMatches, GoByTheUidFirst) {
  Add("FN:Kim\nTEL:1\n");
  const Oid marked = Add("FN:Lee\nUID:u\n");
  EXPECT_EQ(Find("FN:Kim\nTEL:1\nUID:u\n"), Oids{marked});
}

TEST_F(ContactMatches, AreAllOfOneNameThatShareANumberOrAnAddress) {
  const Oid first = Add("FN:Kim\nTEL:1\n");
  Add("FN:Kim\nTEL:2\n");
  const Oid third = Add("FN:Kim\nEMAIL:K@example.org\nTEL:3\n");
  EXPECT_EQ(Find("FN:Kim\nTEL;TYPE=CELL:1\nEMAIL:k@example.org\n"), (Oids{first, third}));
}

TEST_F(ContactMatches, AreTheSameAmongManyOfOneName) {
  AddMany();
  const Oid first = Add("FN:Kim\nTEL:1\n");
  const Oid second = Add("FN:Kim\nEMAIL:K@example.org\nTEL:1\n");
  const Oid bare = Add("FN:Kim\nTITLE:Cook\n");
  EXPECT_EQ(Find("FN:Kim\nEMAIL:k@example.org\nTEL;TYPE=CELL:1\n"), (Oids{first, second}));
  EXPECT_EQ(Find("FN:Kim\nTITLE:Cook\n"), Oids{bare});
  EXPECT_EQ(Find("FN:Kim\nTITLE:Baker\n"), Oids());
  EXPECT_EQ(Find("FN:Kim\nTEL:77\n"), Oids());
}

TEST_F(ContactMatches, KnowWhatWasWrittenMeanwhile) {
  AddMany();
  EXPECT_EQ(Find("FN:Kim\nTEL:1\n"), Oids());
  const Oid added = Add("FN:Kim\nTEL:1\n");
  m_match->Note(added, ContactOf("FN:Kim\nTEL:1\n").Record);
  m_match->Note(added, ContactOf("FN:Lee\nTEL:1\n").Record);
  EXPECT_EQ(Find("FN:Kim\nTEL:1\n"), Oids{added});
}

TEST_F(ContactMatches, LookAgainAfterForgetting) {
  AddMany();
  EXPECT_EQ(Find("FN:Kim\nTEL:1\n"), Oids());
  const Oid added = Add("FN:Kim\nTEL:1\n");
  EXPECT_EQ(Find("FN:Kim\nTEL:1\n"), Oids());
  m_match->Forget();
  EXPECT_EQ(Find("FN:Kim\nTEL:1\n"), Oids{added});
}

TEST_F(ContactMatches, DoNotIncludeContactsThatChangedAfterTheyWereNoted) {
  AddMany();
  const Oid added = Add("FN:Kim\nTEL:1\n");
  EXPECT_EQ(Find("FN:Kim\nTEL:1\n"), Oids{added});
  m_store.Contacts()->SaveWhole(added, ContactOf("FN:Kim\nTEL:2\n"));
  EXPECT_EQ(Find("FN:Kim\nTEL:1\n"), Oids());
}

TEST_F(ContactMatches, AreNoMoreThanTheLimit) {
  for (int i = 0; i < 40; ++i) Add("FN:Kim\nTEL:1\nUID:u\n");
  EXPECT_EQ(std::ssize(Find("FN:Kim\nUID:u\n")), ContactMatch::kMaxFound);
  EXPECT_EQ(std::ssize(Find("FN:Kim\nTEL:1\n")), ContactMatch::kMaxFound);
}

}  // namespace
}  // namespace quill::test
