#include "store/NameSearch.h"

#include <gtest/gtest.h>

#include "store/Restriction.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

class NameSearch : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(m_store.Create(), 0);
    ASSERT_EQ(m_store.Logon(), 0);
    ASSERT_EQ(m_store.OpenFolder(FolderKind::Contacts), 0);
    for (const char16_t* name : {u"Ann", u"Ann Lee", u"anna", u"An\"n", u"Ann\uFFFE", u"Ao"}) {
      ContactRecord record;
      record[ContactField::FileAs] = QString::fromUtf16(name);
      ASSERT_NE(m_store.Contacts()->Save(0, record, {}), 0);
    }
  }

  std::string Names(const QString& name, const ContactCollection& among = {}) {
    ContactsFolder& contacts = *m_store.Contacts();
    const auto found = FindByName(contacts, among, name);
    EXPECT_TRUE(found);
    QStringList names;
    for (int position = 1; found && position <= contacts.Count(*found); ++position) {
      ContactRecord record;
      EXPECT_TRUE(contacts.ReadListRow(contacts.OidAt(*found, position), record));
      names += record[ContactField::FileAs];
    }
    return names.join(u'|').toStdString();
  }

  PimStore m_store{QStringLiteral(":memory:")};
};

TEST_F(NameSearch, FindsTheWholeNameWithoutCase) {
  EXPECT_EQ(Names(QStringLiteral("ANN")), "Ann");
  EXPECT_EQ(Names(QStringLiteral("An\"n")), "An\"n");
}

TEST_F(NameSearch, FindsBeginningsWhenNoNameIsTheSame) {
  EXPECT_EQ(Names(QStringLiteral("ann ")), "Ann Lee");
  EXPECT_EQ(Names(QStringLiteral("an")), "An\"n|Ann|Ann Lee|anna|Ann\uFFFE");
  EXPECT_EQ(Names(QStringLiteral("nn")), "");
}

TEST_F(NameSearch, StaysWithinTheCollection) {
  const auto some = m_store.Contacts()->Restrict({}, QStringLiteral("[FileAs] >= \"Ann L\""));
  ASSERT_TRUE(some);
  EXPECT_EQ(Names(QStringLiteral("Ann"), *some), "Ann Lee|anna|Ann\uFFFE");
}

}  // namespace
}  // namespace quill
