#include "list/ContactChanges.h"

#include "ListTest.h"
#include "list/CategoryFilter.h"
#include "list/IndexRanges.h"
#include "list/PageBuilding.h"
#include "list/Search.h"
#include "list/Selection.h"

namespace quill {
namespace {

using test::NameList;

class ContactChanges : public test::ListTest {
 protected:
  void Build() { BuildPage(m_list); }
  QStringList AllNames() {
    ListState all;
    all.RowsPerPage = kRowsWithoutIndex;
    BuildPage(all);
    QStringList names;
    for (int row = 0; row < all.RowsShown; ++row) names.append(all.Rows[row].Name);
    return names;
  }
};

TEST_F(ContactChanges, ACurrentRowIsInTheListFromItsFirstItemToItsLast) {
  AddNumbered(3);
  Build();
  EXPECT_FALSE(IsCurrentRowInList(m_list));
  m_list.CurrentRow = 0;
  EXPECT_TRUE(IsCurrentRowInList(m_list));
  m_list.CurrentRow = 2;
  EXPECT_TRUE(IsCurrentRowInList(m_list));
  m_list.CurrentRow = 3;
  EXPECT_FALSE(IsCurrentRowInList(m_list));
  m_list.Top = 10;
  m_list.CurrentRow = -1;
  EXPECT_FALSE(IsCurrentRowInList(m_list));
}

TEST_F(ContactChanges, TheSelectedContactsAreDeleted) {
  AddNumbered(5);
  Build();
  SelectRun(m_list, 1, 3);
  DeleteSelectedContacts(m_list.SelectedKeys);
  EXPECT_EQ(AllNames(), NameList({u"001", u"005"}));
}

TEST_F(ContactChanges, ASelectedContactThatIsGoneDoesNotKeepTheOthers) {
  AddNumbered(3);
  Build();
  SelectRun(m_list, 0, 1);
  ASSERT_TRUE(DeleteContact(m_list.SelectedKeys[0]));
  DeleteSelectedContacts(m_list.SelectedKeys);
  EXPECT_EQ(AllNames(), NameList({u"003"}));
}

TEST_F(ContactChanges, ACopyIsAnEqualContactOfItsOwn) {
  const Oid kim = Add(u"Kim"_qs, {{ContactField::HomeTelephoneNumber, u"1"_qs}});
  g_contactInk.Bytes = "ink";
  ContactRecord before;
  ReadContact(ContactSelector(kim), before);
  g_contactInk.Bytes = "ink";
  WriteContact(kim, before);
  Build();
  SelectRow(m_list, 0);
  CopySelectedContacts(m_list);
  Build();
  ASSERT_EQ(ShownNames(), NameList({u"Kim", u"Kim"}));
  for (int row = 0; row < 2; ++row) {
    ContactRecord record;
    ASSERT_NE(ReadContact(ContactSelector(m_list.Rows[row].Oid), record), 0);
    EXPECT_EQ(record, before);
    EXPECT_EQ(g_contactInk.Bytes, "ink");
  }
  EXPECT_NE(m_list.Rows[0].Oid, m_list.Rows[1].Oid);
}

TEST_F(ContactChanges, ACopyHasAlsoWhatAnEditDoesNotWriteButIsAnotherPersonToCards) {
  const Oid kim = Add(u"Kim"_qs);
  ContactItem item;
  ASSERT_TRUE(m_store.Contacts()->Read(kim, item));
  item.Record[ContactField::CarTelephoneNumber] = u"0105"_qs;
  item.Record[ContactField::Email3Address] = u"kim@example.org"_qs;
  item.Record[ContactField::OtherAddressCity] = u"Seoul"_qs;
  item.CarriedLines = u"X-SHOE-SIZE:42"_qs;
  item.Uid = u"uid-1"_qs;
  ASSERT_NE(m_store.Contacts()->SaveWhole(kim, item), 0);
  Build();
  SelectRow(m_list, 0);
  CopySelectedContacts(m_list);
  Build();
  item.Uid.clear();
  ContactItem copy;
  ASSERT_TRUE(m_store.Contacts()->Read(std::max(m_list.Rows[0].Oid, m_list.Rows[1].Oid), copy));
  EXPECT_EQ(copy, item);
  EXPECT_EQ(m_store.Contacts()->FindByUid(u"uid-1"_qs).size(), 1U);
}

TEST_F(ContactChanges, DeletingAllUnderAnIndexButtonKeepsTheOtherRanges) {
  for (const QString& name : {u"Adams"_qs, u"Gray"_qs, u"Zed"_qs}) Add(name);
  ChooseIndexButton(m_list, 2);
  Build();
  DeleteListedContacts(m_list);
  EXPECT_EQ(AllNames(), NameList({u"Adams", u"Zed"}));
}

TEST_F(ContactChanges, DeletingAllUnderAnIndexButtonAndACategoryKeepsTheOtherCategories) {
  Add(u"Gray"_qs, {{ContactField::Categories, u"Work"_qs}});
  Add(u"Green"_qs);
  ChooseIndexButton(m_list, 2);
  m_list.CategoryName = u"Work"_qs;
  Build();
  DeleteListedContacts(m_list);
  EXPECT_EQ(AllNames(), NameList({u"Green"}));
}

TEST_F(ContactChanges, DeletingAllUnderASearchKeepsTheOtherNames) {
  for (const QString& name : {u"Kim"_qs, u"Lee"_qs}) Add(name);
  SearchList(m_list, u"K"_qs);
  Build();
  DeleteListedContacts(m_list);
  EXPECT_EQ(AllNames(), NameList({u"Lee"}));
}

TEST_F(ContactChanges, DeletingAllUnderACategoryKeepsTheOtherContacts) {
  Add(u"Kim"_qs, {{ContactField::Categories, u"Work, Friends"_qs}});
  Add(u"Lee"_qs);
  FilterByCategory(m_list, u"Friends"_qs, 1);
  Build();
  DeleteListedContacts(m_list);
  EXPECT_EQ(AllNames(), NameList({u"Lee"}));
}

TEST_F(ContactChanges, DeletingAllUnderSeveralCategoriesKeepsWhatTheListDoesNotShow) {
  const QString many = u"Work, "_qs + QString(kSeveralCategoriesLimit, u'x');
  Add(u"Kim"_qs, {{ContactField::Categories, many}});
  Add(u"Lee"_qs, {{ContactField::Categories, u"Golf"_qs}});
  Add(u"Park"_qs);
  FilterByCategory(m_list, u"Work,Golf"_qs, 2);
  Build();
  ASSERT_EQ(ShownNames(), NameList({u"Lee"}));
  DeleteListedContacts(m_list);
  EXPECT_EQ(AllNames(), NameList({u"Kim", u"Park"}));
}

TEST_F(ContactChanges, DeletingAllUnderShowAllEmptiesTheStore) {
  AddNumbered(20);
  FilterByCategory(m_list, u"Show All"_qs, 1);
  Build();
  m_list.Top = 4;
  DeleteListedContacts(m_list);
  EXPECT_EQ(AllNames(), QStringList());
  EXPECT_EQ(m_list.Top, 0);
}

TEST_F(ContactChanges, ARestrictionThatFailsDeletesNothing) {
  for (const QString& name : {u"Kim"_qs, u"Lee"_qs}) Add(name);
  SearchList(m_list, u"K"_qs);
  Build();
  m_store.Faults().Restrict = true;
  DeleteListedContacts(m_list);
  m_store.Faults().Restrict = false;
  EXPECT_EQ(AllNames(), NameList({u"Kim", u"Lee"}));
}

TEST_F(ContactChanges, DeletingEveryContactKnowsNoFilter) {
  for (const QString& name : {u"Kim"_qs, u"Lee"_qs}) Add(name);
  SearchList(m_list, u"K"_qs);
  Build();
  DeleteEveryContact();
  EXPECT_EQ(AllNames(), QStringList());
}

TEST_F(ContactChanges, WithoutAnOpenSessionNothingHappens) {
  Add(u"Kim"_qs);
  Build();
  SelectRow(m_list, 0);
  CloseSession();
  DeleteSelectedContacts(m_list.SelectedKeys);
  CopySelectedContacts(m_list);
  DeleteListedContacts(m_list);
  ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
}

}  // namespace
}  // namespace quill
