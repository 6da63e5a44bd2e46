#include "store/CategoryEdits.h"

#include <memory>
#include <ostream>

#include "store/Categories.h"
#include "store/CategoryText.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

const QString kWork = QStringLiteral("Work");
const QString kClub = QStringLiteral("Club");
const QString kJob = QStringLiteral("Job");

class UncommittedTransaction : public StoreTransaction {
 public:
  explicit UncommittedTransaction(std::unique_ptr<StoreTransaction> inner)
      : m_inner(std::move(inner)) {}
  bool Commit() override { return false; }

 private:
  std::unique_ptr<StoreTransaction> m_inner;  // rolls back when it goes
};

// Its transactions can be made to fail in the end.
class CommittingStore : public test::FaultyStore {
 public:
  using FaultyStore::FaultyStore;
  std::unique_ptr<StoreTransaction> Begin() override {
    if (!RefusesCommit) return FaultyStore::Begin();
    return std::make_unique<UncommittedTransaction>(FaultyStore::Begin());
  }

  bool RefusesCommit = false;
};

class CategoryEdits : public test::FreshState {
 protected:
  CategoryEdits() {
    EXPECT_EQ(OpenSession(m_store), StartupCode::Opened);
    EXPECT_TRUE(SetUserCategories({kWork, kClub}));
    m_colleague = Add(u"Work,  Club,Other"_qs);
    m_member = Add(u"Other, Club"_qs);
    m_boss = Add(u"Work"_qs);
  }
  ~CategoryEdits() override { CloseSession(); }

  Oid Add(const QString& categories) {
    ContactItem item{
        .Record = {}, .BodyInk = "ink", .Uid = u"uid"_qs, .CarriedLines = u"X-A:1\n"_qs};
    item.Record[ContactField::FileAs] = u"Name of "_qs + categories;
    item.Record[ContactField::Categories] = categories;
    return m_store.Contacts()->SaveWhole(0, item);
  }
  ContactItem Item(Oid oid) {
    ContactItem item;
    EXPECT_TRUE(m_store.Contacts()->Read(oid, item));
    return item;
  }
  // What the three contacts have.
  QStringList Texts() {
    QStringList texts;
    for (const Oid oid : {m_colleague, m_member, m_boss})
      texts.append(Item(oid).Record[ContactField::Categories]);
    return texts;
  }
  void ExpectUntouched() {
    EXPECT_EQ(UserCategories(), QStringList({kWork, kClub}));
    EXPECT_EQ(Texts(), QStringList({u"Work,  Club,Other"_qs, u"Other, Club"_qs, u"Work"_qs}));
  }

  PimStore m_pimStore{QStringLiteral(":memory:")};
  CommittingStore m_store{m_pimStore};
  Oid m_colleague = 0;
  Oid m_member = 0;
  Oid m_boss = 0;
};

TEST_F(CategoryEdits, AnAddedOneStandsBehindTheOthers) {
  EXPECT_EQ(AddCategory(kJob), CategoryEdit::Done);
  EXPECT_EQ(UserCategories(), QStringList({kWork, kClub, kJob}));
}

TEST_F(CategoryEdits, ARenamedOneKeepsItsPlaceAndItsContacts) {
  EXPECT_EQ(RenameCategory(kWork, kJob), CategoryEdit::Done);
  EXPECT_EQ(UserCategories(), QStringList({kJob, kClub}));
  EXPECT_EQ(Texts(), QStringList({u"Job,  Club,Other"_qs, u"Other, Club"_qs, u"Job"_qs}));
}

TEST_F(CategoryEdits, ARemovedOneGoesFromTheLibraryAndFromTheContacts) {
  EXPECT_EQ(RemoveCategory(kClub), CategoryEdit::Done);
  EXPECT_EQ(UserCategories(), QStringList(kWork));
  EXPECT_EQ(Texts(), QStringList({u"Work,Other"_qs, u"Other"_qs, u"Work"_qs}));
}

TEST_F(CategoryEdits, AllElseOfAContactStays) {
  ContactItem expected = Item(m_boss);
  ASSERT_EQ(RenameCategory(kWork, kJob), CategoryEdit::Done);
  const ContactItem boss = Item(m_boss);
  expected.Record[ContactField::Categories] = kJob;
  EXPECT_EQ(boss.Record, expected.Record);
  EXPECT_EQ(boss.BodyInk, "ink");
  EXPECT_EQ(boss.Uid, u"uid"_qs);
  EXPECT_EQ(boss.CarriedLines, u"X-A:1\n"_qs);
}

TEST_F(CategoryEdits, ANameThatOnlyContactsHaveCanBeRenamedAndRemoved) {
  EXPECT_EQ(RenameCategory(u"Other"_qs, kJob), CategoryEdit::Done);
  EXPECT_EQ(Texts(), QStringList({u"Work,  Club,Job"_qs, u"Job, Club"_qs, u"Work"_qs}));
  EXPECT_EQ(RemoveCategory(kJob), CategoryEdit::Done);
  EXPECT_EQ(Texts(), QStringList({u"Work,  Club"_qs, u"Club"_qs, u"Work"_qs}));
  EXPECT_EQ(UserCategories(), QStringList({kWork, kClub}));
}

TEST_F(CategoryEdits, MoreContactsThanOneWindowOfTheStoreAllFollow) {
  for (int i = 0; i < 150; ++i) ASSERT_NE(Add(kClub), 0);
  EXPECT_EQ(RenameCategory(kClub, kJob), CategoryEdit::Done);
  EXPECT_EQ(CountContactsOf(kClub), 0);
  EXPECT_EQ(CountContactsOf(kJob), 152);
}

TEST_F(CategoryEdits, TheContactsOfOneAreCounted) {
  EXPECT_EQ(CountContactsOf(kClub), 2);
  EXPECT_EQ(CountContactsOf(u"Other"_qs), 2);
  EXPECT_EQ(CountContactsOf(kJob), 0);
}

TEST_F(CategoryEdits, AQuoteInANameIsNothingSpecial) {
  const QString name = u"7\" discs"_qs;
  ASSERT_EQ(RenameCategory(kClub, name), CategoryEdit::Done);
  EXPECT_EQ(CountContactsOf(name), 2);
  EXPECT_EQ(RenameCategory(name, kClub), CategoryEdit::Done);
  EXPECT_EQ(CountContactsOf(kClub), 2);
}

TEST_F(CategoryEdits, WhatTheLibraryHasIsNotAddedNorTakenAsANewName) {
  EXPECT_EQ(AddCategory(kClub), CategoryEdit::ExistsAlready);
  EXPECT_EQ(RenameCategory(kWork, kClub), CategoryEdit::ExistsAlready);
  EXPECT_EQ(RenameCategory(kWork, kWork), CategoryEdit::ExistsAlready);
  ExpectUntouched();
}

class NoCategoryName : public CategoryEdits, public testing::WithParamInterface<const char16_t*> {};

TEST_P(NoCategoryName, IsRefusedWhateverIsToBeDone) {
  const QString name = QString::fromUtf16(GetParam());
  Add({});
  EXPECT_EQ(AddCategory(name), CategoryEdit::NotAName);
  EXPECT_EQ(RenameCategory(kWork, name), CategoryEdit::NotAName);
  EXPECT_EQ(RenameCategory(name, kJob), CategoryEdit::NotAName);
  EXPECT_EQ(RemoveCategory(name), CategoryEdit::NotAName);
  ExpectUntouched();
}

INSTANTIATE_TEST_SUITE_P(Names, NoCategoryName,
                         testing::Values(u"", u" ", u" Job", u"Job,Club", u",", u"No Categories"));

class NoNewCategoryName : public CategoryEdits, public testing::WithParamInterface<QString> {};

TEST_P(NoNewCategoryName, IsNotGivenButCanBeGotRidOf) {
  const QString name = GetParam();
  Add(name);
  EXPECT_EQ(AddCategory(name), CategoryEdit::NotAName);
  EXPECT_EQ(RenameCategory(kWork, name), CategoryEdit::NotAName);
  EXPECT_EQ(RenameCategory(name, kJob), CategoryEdit::Done);
}

INSTANTIATE_TEST_SUITE_P(Names, NoNewCategoryName,
                         testing::Values(kMoreCategories.toString(),
                                         QString(kCategoryNameLimit + 1, u'x')));

TEST_F(CategoryEdits, TheLongestNameThatAMenuHoldsCanBeGiven) {
  EXPECT_EQ(AddCategory(QString(kCategoryNameLimit, u'x')), CategoryEdit::Done);
}

using Edit = CategoryEdit (*)();
struct EditCase {
  const char* Name;
  Edit Run;
};

void PrintTo(const EditCase& each, std::ostream* out) { *out << each.Name; }

class FailingEdit : public CategoryEdits, public testing::WithParamInterface<EditCase> {
 protected:
  void ExpectNotWritten() {
    EXPECT_EQ(GetParam().Run(), CategoryEdit::NotWritten);
    m_store.Faults() = {};
    m_store.RefusesCommit = false;
    ExpectUntouched();
  }
};

class FailingContactEdit : public FailingEdit {};

TEST_P(FailingEdit, LeavesEverythingWhenTheCommitFails) {
  m_store.RefusesCommit = true;
  ExpectNotWritten();
}

TEST_P(FailingEdit, LeavesEverythingWhileAnotherTransactionIsOpen) {
  const auto transaction = m_store.Begin();
  ExpectNotWritten();
}

TEST_P(FailingContactEdit, LeavesEverythingWhenAContactCannotBeWritten) {
  m_store.Faults().SaveWhole = m_boss;
  ExpectNotWritten();
}

TEST_P(FailingContactEdit, LeavesEverythingWhenAContactCannotBeRead) {
  m_store.Faults().Read = m_boss;
  ExpectNotWritten();
}

TEST_P(FailingContactEdit, LeavesEverythingWhenTheContactsAreNotFound) {
  m_store.Faults().Restrict = true;
  ExpectNotWritten();
}

TEST_P(FailingEdit, IsNotWrittenWithoutASession) {
  CloseSession();
  EXPECT_EQ(GetParam().Run(), CategoryEdit::NotWritten);
}

constexpr EditCase kAdd{"Add", [] { return AddCategory(kJob); }};
constexpr EditCase kRename{"Rename", [] { return RenameCategory(kWork, kJob); }};
constexpr EditCase kRemove{"Remove", [] { return RemoveCategory(kWork); }};

std::string EditName(const testing::TestParamInfo<EditCase>& info) { return info.param.Name; }

INSTANTIATE_TEST_SUITE_P(Edits, FailingEdit, testing::Values(kAdd, kRename, kRemove), EditName);
INSTANTIATE_TEST_SUITE_P(Edits, FailingContactEdit, testing::Values(kRename, kRemove), EditName);

}  // namespace
}  // namespace quill
