#include "store/pim/PimCalendar.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "store/Restriction.h"
#include "store/pim/ListIndex.h"
#include "store/pim/PlainOids.h"
#include "store/pim/SqlFunctions.h"
#include "store/pim/StoreCheck.h"
#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

class PimCalendarFolder : public test::TemporaryStore {
 protected:
  CalendarFolder& Calendar() { return *m_store.Calendar(); }

  Oid AddSubject(const QString& subject) { return Calendar().Save({.Subject = subject}); }

  QString SubjectOf(Oid oid) {
    AppointmentItem item;
    EXPECT_TRUE(Calendar().Read(oid, item));
    return item.Subject;
  }

  std::vector<Oid> OidsOf(const AppointmentCollection& collection) {
    std::vector<Oid> oids;
    const int count = Calendar().Count(collection);
    for (int position = 1; position <= count; ++position) {
      oids.push_back(Calendar().OidAt(collection, position));
    }
    return oids;
  }

  std::vector<Oid> Found(const QString& restriction) {
    const auto collection = Calendar().Restrict(Calendar().Items(), restriction);
    EXPECT_TRUE(collection) << restriction.toStdString();
    return collection ? OidsOf(*collection) : std::vector<Oid>();
  }
};

TEST_F(PimCalendarFolder, OidsStartAtOneAndAreNeverUsedAgain) {
  EXPECT_EQ(AddSubject(QStringLiteral("a")), 1);
  EXPECT_EQ(AddSubject(QStringLiteral("b")), 2);
  EXPECT_TRUE(Calendar().Remove(2));
  EXPECT_EQ(AddSubject(QStringLiteral("c")), 3);
}

TEST_F(PimCalendarFolder, ContactsAndAppointmentsCountTheirOidsApart) {
  Add(QStringLiteral("Kim"));
  EXPECT_EQ(AddSubject(QStringLiteral("(Kim)")), 1);
  EXPECT_TRUE(Calendar().Remove(1));
  EXPECT_EQ(Contacts().Count(Contacts().Items()), 1);
}

TEST_F(PimCalendarFolder, EveryAppointmentStandsInOidOrder) {
  AddSubject(QStringLiteral("c"));
  AddSubject(QStringLiteral("a"));
  AddSubject(QStringLiteral("b"));
  EXPECT_EQ(OidsOf(Calendar().Items()), std::vector<Oid>({1, 2, 3}));
  for (const int position : {-1, 0, 4}) {
    EXPECT_EQ(Calendar().OidAt(Calendar().Items(), position), 0) << position;
  }
}

TEST_F(PimCalendarFolder, ACollectionFollowsTheData) {
  const auto collection =
      Calendar().Restrict(Calendar().Items(), QStringLiteral("[Subject] = \"a\""));
  ASSERT_TRUE(collection);
  EXPECT_EQ(Calendar().Count(*collection), 0);
  AddSubject(QStringLiteral("a"));
  EXPECT_EQ(Calendar().Count(*collection), 1);
  Calendar().Save({.Id = 1, .Subject = QStringLiteral("b")});
  EXPECT_EQ(Calendar().Count(*collection), 0);

  PimStore other(Path());
  ASSERT_EQ(test::OpenAll(other), 0);
  other.Calendar()->Save({.Subject = QStringLiteral("a")});
  EXPECT_EQ(Calendar().Count(*collection), 1);
  EXPECT_EQ(Calendar().OidAt(*collection, 1), 2);
}

TEST_F(PimCalendarFolder, CollectionsAreToldApart) {
  AddSubject(QStringLiteral("a"));
  AddSubject(QStringLiteral("b"));
  EXPECT_EQ(Found(QStringLiteral("[Subject] = \"a\"")), std::vector<Oid>({1}));
  EXPECT_EQ(Found(QStringLiteral("[Subject] = \"b\"")), std::vector<Oid>({2}));
  EXPECT_EQ(OidsOf(Calendar().Items()), std::vector<Oid>({1, 2}));
}

TEST_F(PimCalendarFolder, ARestrictedCollectionIsRestrictedFurther) {
  for (const QString& subject : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}) {
    AddSubject(subject);
  }
  const auto two = Calendar().Restrict(Calendar().Items(), QStringLiteral("[Subject] >= \"b\""));
  ASSERT_TRUE(two);
  const auto one = Calendar().Restrict(*two, QStringLiteral("[Subject] < \"c\""));
  ASSERT_TRUE(one);
  EXPECT_EQ(OidsOf(*one), std::vector<Oid>({2}));
}

TEST_F(PimCalendarFolder, WhatIsNoRestrictionOfAppointmentsFails) {
  for (const char* const text : {"[Subject] =", "[FileAs] = \"a\"", "[CompanyName] = \"a\""}) {
    EXPECT_FALSE(Calendar().Restrict(Calendar().Items(), QString::fromLatin1(text))) << text;
    EXPECT_FALSE(m_store.LastError().isEmpty());
  }
}

TEST_F(PimCalendarFolder, AnyCollectionOfContactsPropertiesHoldsNothing) {
  AddSubject(QStringLiteral("a"));
  EXPECT_EQ(Calendar().Count({.Restriction = std::make_shared<const RestrictionNode>(
                                  RestrictionNode{.Kind = RestrictionKind::Comparison})}),
            0);
}

TEST_F(PimCalendarFolder, FindsByUidButNotByNone) {
  const auto add = [this](const QString& uid) { return Calendar().Save({.Uid = uid}); };
  add(QString());
  const Oid a = add(QStringLiteral("uid 1"));
  add(QStringLiteral("uid 2"));
  const Oid b = add(QStringLiteral("uid 1"));
  EXPECT_EQ(Calendar().FindByUid(QStringLiteral("uid 1")), std::vector<Oid>({a, b}));
  EXPECT_TRUE(Calendar().FindByUid(QStringLiteral("uid")).empty());
  EXPECT_TRUE(Calendar().FindByUid(QString()).empty());
}

TEST_F(PimCalendarFolder, TheUidIsLookedUpInAnIndex) {
  Database raw;
  ASSERT_EQ(raw.Open(Path()), 0);
  Query plan = raw.Prepare(
      "EXPLAIN QUERY PLAN SELECT Oid FROM appointment WHERE Uid = ?1 AND Uid <> '' ORDER BY Oid");
  ASSERT_TRUE(plan.Next());
  EXPECT_TRUE(plan.Text(3).contains(QStringLiteral("appointment_by_uid")));
}

TEST_F(PimCalendarFolder, AnUnknownAppointmentIsNeitherReadNorWrittenNorRemoved) {
  AppointmentItem item{.Id = 9, .Uid = QStringLiteral("before")};
  EXPECT_FALSE(Calendar().Read(5, item));
  EXPECT_EQ(item, (AppointmentItem{.Id = 9, .Uid = QStringLiteral("before")}));
  QString subject = QStringLiteral("before");
  EXPECT_FALSE(Calendar().ReadSubject(5, subject));
  EXPECT_EQ(subject, QStringLiteral("before"));
  EXPECT_EQ(Calendar().Save({.Id = 5}), 0);
  EXPECT_FALSE(m_store.LastError().isEmpty());
  EXPECT_EQ(Calendar().Save({.Id = -1}), 0);
  EXPECT_FALSE(Calendar().Remove(5));
  EXPECT_FALSE(Calendar().Remove(0));
  EXPECT_EQ(Calendar().Count(Calendar().Items()), 0);
}

TEST_F(PimCalendarFolder, ASubjectIsReadAloneAsItIsInTheWholeItem) {
  const Oid oid =
      Calendar().Save({.Subject = QStringLiteral("(김) 차"), .Location = QStringLiteral("집")});
  QString subject;
  EXPECT_TRUE(Calendar().ReadSubject(oid, subject));
  EXPECT_EQ(subject, QStringLiteral("(김) 차"));
}

TEST_F(PimCalendarFolder, WhatSavingWouldRefuseIsWrittenAllTheSame) {
  AppointmentItem item;
  item.Recurrence = RecurrencePattern{
      .Type = static_cast<RecurrenceType>(9), .Interval = -1, .DayOfWeekMask = 128};
  item.Id = Calendar().Save(item);
  AppointmentItem back;
  ASSERT_TRUE(Calendar().Read(item.Id, back));
  EXPECT_EQ(back, item);
}

TEST_F(PimCalendarFolder, InkIsPutOnTheItemInHandOnly) {
  AppointmentItem item{.Id = AddSubject(QStringLiteral("a")), .Subject = QStringLiteral("a")};
  EXPECT_TRUE(Calendar().PutInk(item, QByteArray(64 * 1024, 'i')));
  EXPECT_FALSE(Calendar().PutInk(item, QByteArray(64 * 1024 + 1, 'x')));
  EXPECT_EQ(item.BodyInk, QByteArray(64 * 1024, 'i'));
  AppointmentItem stored;
  ASSERT_TRUE(Calendar().Read(item.Id, stored));
  EXPECT_TRUE(stored.BodyInk.isEmpty());
}

TEST_F(PimCalendarFolder, WritingIsPartOfATransaction) {
  {
    const auto transaction = m_store.Begin();
    AddSubject(QStringLiteral("a"));
    EXPECT_EQ(Calendar().Count(Calendar().Items()), 1);
  }
  EXPECT_EQ(Calendar().Count(Calendar().Items()), 0);
}

TEST_F(PimCalendarFolder, WhatIsWrittenIsThereAfterReopening) {
  const Oid oid = AddSubject(QStringLiteral("(Kim)"));
  m_store.Close();
  EXPECT_EQ(m_store.Calendar(), nullptr);
  ASSERT_EQ(test::OpenAll(m_store), 0);
  EXPECT_EQ(SubjectOf(oid), QStringLiteral("(Kim)"));
}

TEST_F(PimCalendarFolder, AStoreWithoutTheTableDoesNotOpenItsCalendar) {
  m_store.Close();
  Database raw;
  ASSERT_EQ(raw.Open(Path()), 0);
  ASSERT_EQ(raw.Execute("DROP TABLE appointment"), 0);
  raw.Close();
  EXPECT_EQ(test::OpenAll(m_store), SQLITE_ERROR);
  EXPECT_EQ(m_store.Calendar(), nullptr);
  EXPECT_NE(m_store.Contacts(), nullptr);
}

TEST_F(PimCalendarFolder, ACollectionIsEmptyWhenTheStoreFails) {
  AddSubject(QStringLiteral("a"));
  ASSERT_EQ(Calendar().Count(Calendar().Items()), 1);
  Database raw;
  ASSERT_EQ(raw.Open(Path()), 0);
  ASSERT_EQ(raw.Execute("DROP TABLE appointment"), 0);
  EXPECT_EQ(Calendar().Count(Calendar().Items()), 0);
  EXPECT_EQ(AddSubject(QStringLiteral("b")), 0);
  EXPECT_FALSE(Calendar().Remove(1));
}

class SubjectEntries : public PimCalendarFolder {
 protected:
  void SetUp() override {
    PimCalendarFolder::SetUp();
    ASSERT_EQ(m_raw.Open(Path()), 0);
    ASSERT_EQ(RegisterFunctions(m_raw), 0);
  }

  // The Oids that the index has under a subject.
  QString Under(const QString& subject) {
    Query query =
        m_raw.Prepare("SELECT group_concat(oid) FROM entry WHERE key = subject_entry_key(?1)");
    query.BindText(1, subject);
    EXPECT_TRUE(query.Next());
    return query.Text(0);
  }

  Database m_raw;
};

TEST_F(SubjectEntries, FollowTheAppointments) {
  const QString half = QStringLiteral("half ") + QChar(0xD83D);
  const Oid oid = AddSubject(half);
  EXPECT_EQ(Under(half), QString::number(oid));
  Calendar().Save({.Id = oid, .Subject = QStringLiteral("b")});
  EXPECT_EQ(Under(half), QString());
  EXPECT_EQ(Under(QStringLiteral("b")), QString::number(oid));
  Calendar().Save({.Id = oid, .Subject = QStringLiteral("b"), .Location = QStringLiteral("x")});
  EXPECT_EQ(Under(QStringLiteral("b")), QString::number(oid));
  EXPECT_TRUE(Calendar().Remove(oid));
  EXPECT_EQ(m_raw.Number("SELECT count(*) FROM entry"), 0);
}

TEST_F(SubjectEntries, OfAContactAndAnAppointmentWithTheSameOidAreApart) {
  Add(QStringLiteral("Kim"));
  AddSubject(QStringLiteral("(Kim)"));
  Contacts().Remove(1);
  EXPECT_EQ(Under(QStringLiteral("(Kim)")), QStringLiteral("1"));
  EXPECT_EQ(ListIndexFaults(m_raw), QStringList());
}

TEST_F(SubjectEntries, AreMadeAnewWithTheIndex) {
  Add(QStringLiteral("Kim"));
  AddSubject(QStringLiteral("b"));
  AddSubject(QStringLiteral("a"));
  ASSERT_EQ(RebuildListIndex(m_raw), 0);
  EXPECT_EQ(ListIndexFaults(m_raw), QStringList());
  AddSubject(QStringLiteral("a"));
  EXPECT_EQ(Under(QStringLiteral("a")), QStringLiteral("2,3"));
}

struct IndexFault {
  const char* Sql;
  QStringList Faults;
};

class FaultySubjectEntries : public SubjectEntries,
                             public testing::WithParamInterface<IndexFault> {};

TEST_P(FaultySubjectEntries, AreFoundAndMended) {
  AddSubject(QStringLiteral("a"));
  ASSERT_EQ(m_raw.Execute(GetParam().Sql), 0);
  EXPECT_EQ(ListIndexFaults(m_raw), GetParam().Faults);
  EXPECT_EQ(CheckStore(m_raw).Index, IndexCondition::Rebuilt);
  EXPECT_EQ(ListIndexFaults(m_raw), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    Faults, FaultySubjectEntries,
    testing::Values(IndexFault{"DELETE FROM entry",
                               {QStringLiteral("The index lacks 1 entries of appointments.")}},
                    IndexFault{"INSERT INTO entry VALUES (subject_entry_key('b'), 1)",
                               {QStringLiteral("The index has 1 entries more than it should.")}},
                    IndexFault{"DROP TRIGGER appointment_entered; DROP TRIGGER appointment_left;"
                               "DROP TRIGGER appointment_moved",
                               {QStringLiteral("The index lacks 3 of its triggers.")}}));

struct SubjectCase {
  const char16_t* Restriction;
  std::vector<Oid> Oids;
};

class SubjectSelection : public PimCalendarFolder, public testing::WithParamInterface<SubjectCase> {
 protected:
  void SetUp() override {
    PimCalendarFolder::SetUp();
    Calendar().Save({.Subject = QStringLiteral("b"), .Categories = QStringLiteral("Work, Tea")});
    AddSubject(QStringLiteral("B"));
    AddSubject(QStringLiteral("ba"));
    AddSubject(QString());
    AddSubject(QStringLiteral("say \"b\""));
    AddSubject(QString::fromUcs4(U"\U0001F600"));
    AddSubject(QStringLiteral("～"));
  }
};

TEST_P(SubjectSelection, HoldsTheAppointmentsThatSatisfyIt) {
  EXPECT_EQ(Found(QString::fromUtf16(GetParam().Restriction)), GetParam().Oids);
}

TEST_P(SubjectSelection, HoldsTheSameByPlainSql) {
  Database raw;
  ASSERT_EQ(raw.Open(Path()), 0);
  ASSERT_EQ(RegisterFunctions(raw), 0);
  const auto collection =
      Calendar().Restrict(Calendar().Items(), QString::fromUtf16(GetParam().Restriction));
  EXPECT_EQ(PlainAppointmentOids(raw, *collection), GetParam().Oids);
}

// Unit by unit, so the halves of a surrogate pair sort before U+FF5E.
INSTANTIATE_TEST_SUITE_P(
    Texts, SubjectSelection,
    testing::Values(SubjectCase{u"[Subject] = \"b\"", {1}}, SubjectCase{u"[Subject] = \"\"", {4}},
                    SubjectCase{u"[Subject] >= \"b\"", {1, 3, 5, 6, 7}},
                    SubjectCase{u"[Subject] < \"b\"", {2, 4}},
                    SubjectCase{u"[Subject] >= \"b\" AND [Subject] < \"c\"", {1, 3}},
                    SubjectCase{u"[Subject] = \"say \"\"b\"\"\"", {5}},
                    SubjectCase{u"[Subject] >= \"\uFF5E\"", {7}},
                    SubjectCase{u"[Subject] = \"B\" OR [Subject] = \"ba\"", {2, 3}},
                    SubjectCase{u"[Categories] = \"Tea\"", {1}},
                    SubjectCase{u"[Subject] >= \"B\" AND [Categories] = \"\"", {2, 3, 5, 6, 7}}));

}  // namespace
}  // namespace quill
