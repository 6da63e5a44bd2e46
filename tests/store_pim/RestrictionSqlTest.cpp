#include "store/pim/RestrictionSql.h"

#include <gtest/gtest.h>

#include "store_pim/TemporaryStore.h"

namespace quill {
namespace {

std::optional<RestrictionSql> ConditionOf(QStringView text) {
  const auto node = ParseRestriction(text);
  return node ? MakeContactCondition(*node) : std::nullopt;
}

TEST(RestrictionSql, ValuesAreParametersAndNeverPartOfTheText) {
  const auto sql = ConditionOf(u"[FileAs] >= \"Kim'; DROP\" AND [Categories] = \"?1\"");
  ASSERT_TRUE(sql);
  EXPECT_EQ(sql->Values, QStringList({QStringLiteral("Kim'; DROP"), QStringLiteral("?1")}));
  EXPECT_EQ(sql->Condition,
            "(fold_key(FileAs) >= fold_key(?1) AND categories_match(?2, Categories))");
}

TEST(RestrictionSql, AnAppointmentsPropertyIsRefused) {
  EXPECT_FALSE(ConditionOf(u"[Subject] = \"(Kim)\""));
  EXPECT_FALSE(ConditionOf(u"[FileAs] = \"a\" OR ([FileAs] = \"b\" AND [Subject] = \"c\")"));
}

std::optional<RestrictionSql> AppointmentConditionOf(QStringView text) {
  const auto node = ParseRestriction(text);
  return node ? MakeAppointmentCondition(*node) : std::nullopt;
}

TEST(RestrictionSql, AnAppointmentsValuesAreParametersToo) {
  const auto sql = AppointmentConditionOf(u"[Subject] >= \"?1\" AND [Categories] = \"b\"");
  ASSERT_TRUE(sql);
  EXPECT_EQ(sql->Values, QStringList({QStringLiteral("?1"), QStringLiteral("b")}));
  EXPECT_EQ(sql->Condition,
            "(unit_key(Subject) >= unit_key(?1) AND categories_match(?2, Categories))");
}

TEST(RestrictionSql, AContactsPropertyIsRefusedForAppointments) {
  EXPECT_FALSE(AppointmentConditionOf(u"[FileAs] = \"Kim\""));
  EXPECT_FALSE(AppointmentConditionOf(u"[CompanyName] = \"Kim\""));
  EXPECT_FALSE(AppointmentConditionOf(u"[Subject] = \"a\" OR [FileAs] = \"b\""));
}

TEST(RestrictionSql, EmptySequencesHoldForEverythingAndNothing) {
  EXPECT_EQ(MakeContactCondition({.Kind = RestrictionKind::And})->Condition, "1");
  EXPECT_EQ(MakeContactCondition({.Kind = RestrictionKind::Or})->Condition, "0");
}

struct SelectionCase {
  const char16_t* Restriction;
  QStringList Names;
};

// A store of people who each show one rule of the comparisons.
class Selection : public test::TemporaryStore, public testing::WithParamInterface<SelectionCase> {
 protected:
  void SetUp() override {
    TemporaryStore::SetUp();
    AddPerson("Yoon", "Zebra", "Work, Friends");
    AddPerson("1st Bank", "1st Bank", "Work");
    AddPerson("Zed", "", "");
    AddPerson("adams", "Acme", "Friends");
    AddPerson("Fox", "Ab", "Family,Club");
    AddPerson("Gray", "abc", "Work Friends");
    AddPerson("Kim", "Kim \"Q\" Ltd", "");
    AddPerson("Kim Lee", "50% off", "friends");
    AddPerson("김철수", "서울", "동창회, Work");
  }

  void AddPerson(const char* name, const char* company, const char* categories) {
    ContactRecord record;
    record[ContactField::FileAs] = QString::fromUtf8(name);
    record[ContactField::CompanyName] = QString::fromUtf8(company);
    record[ContactField::Categories] = QString::fromUtf8(categories);
    ASSERT_NE(Contacts().Save(0, record, {}), 0);
  }
};

TEST_P(Selection, HoldsThePeopleWhoSatisfyIt) {
  const QString text = QString::fromUtf16(GetParam().Restriction);
  const auto restricted = Contacts().Restrict(Contacts().Items(), text);
  ASSERT_TRUE(restricted) << text.toStdString();
  EXPECT_EQ(test::Names(Contacts(), *restricted), GetParam().Names) << text.toStdString();
  EXPECT_EQ(Contacts().Count(*restricted), GetParam().Names.size());
}

QStringList List(const char* names) {
  return QString::fromUtf8(names).split(u'|', Qt::SkipEmptyParts);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Selection,
    testing::Values(
        SelectionCase{u"[FileAs] >= \"Y\" OR [FileAs] < \"A\"", List("1st Bank|Yoon|Zed|김철수")},
        SelectionCase{u"[FileAs] >= \"A\" AND [FileAs] < \"G\"", List("adams|Fox")},
        SelectionCase{u"[FileAs] >= \"G\" AND [FileAs] < \"M\"", List("Gray|Kim|Kim Lee")},
        SelectionCase{u"[FileAs] >= \"a\" AND [FileAs] < \"b\"", List("adams")},
        SelectionCase{u"[FileAs] >= \"Kim\" AND [FileAs] < \"Kin\"", List("Kim|Kim Lee")},
        SelectionCase{u"[FileAs] >= \"김\" AND [FileAs] < \"깁\"", List("김철수")},
        SelectionCase{u"[FileAs] >= \"\"",
                      List("1st Bank|adams|Fox|Gray|Kim|Kim Lee|Yoon|Zed|김철수")},
        SelectionCase{u"[FileAs] < \"\"", {}}, SelectionCase{u"[FileAs] = \"Kim\"", List("Kim")},
        SelectionCase{u"[FileAs] = \"KIM lee\"", List("Kim Lee")},
        SelectionCase{u"[FileAs] = \"Nobody\"", {}}, SelectionCase{u"[FileAs] = \"\"", {}},
        SelectionCase{u"[CompanyName] >= \"Ab\" AND [CompanyName] < \"Ac\"", List("Fox|Gray")},
        SelectionCase{u"[CompanyName] = \"\"", List("Zed")},
        SelectionCase{u"[CompanyName] = \"kim \"\"q\"\" ltd\"", List("Kim")},
        SelectionCase{u"[CompanyName] >= \"50%\" AND [CompanyName] < \"50&\"", List("Kim Lee")},
        SelectionCase{u"[Categories] = \"Friends\"", List("adams|Yoon")},
        SelectionCase{u"[Categories] = \"Work\"", List("1st Bank|Yoon|김철수")},
        SelectionCase{u"[Categories] = \"Friends, Club\"", List("adams|Fox|Yoon")},
        SelectionCase{u"[Categories] = \"동창회\"", List("김철수")},
        SelectionCase{u"[Categories] = \"\"", List("Kim|Zed")},
        SelectionCase{u"[Categories] = \"%\"", {}},
        SelectionCase{u"[Categories] >= \"Work\" AND [Categories] < \"Work,\"",
                      List("1st Bank|Gray")},
        SelectionCase{u"[FileAs] >= \"G\" AND [FileAs] < \"M\" AND [Categories] = \"\"",
                      List("Kim")},
        SelectionCase{u"([FileAs] >= \"Y\" OR [FileAs] < \"A\") AND [Categories] = \"Work\"",
                      List("1st Bank|Yoon|김철수")},
        SelectionCase{u"[FileAs] = \"Zed\" OR [FileAs] = \"Kim\" AND [Categories] = \"Work\"",
                      List("Zed")},
        SelectionCase{u"([FileAs] = \"Zed\" OR [FileAs] = \"Kim\") AND [Categories] = \"\"",
                      List("Kim|Zed")}));

TEST_F(Selection, ARestrictedCollectionIsRestrictedFurtherInItsOrder) {
  ContactCollection all = Contacts().Items();
  Contacts().Sort(all, ContactOrder::ByCompany);
  const auto work = Contacts().Restrict(all, QStringLiteral("[Categories] = \"Work\""));
  ASSERT_TRUE(work);
  EXPECT_EQ(test::Names(Contacts(), *work), List("1st Bank|Yoon|김철수"));
  const auto some = Contacts().Restrict(*work, QStringLiteral("[CompanyName] >= \"Z\""));
  ASSERT_TRUE(some);
  EXPECT_EQ(test::Names(Contacts(), *some), List("Yoon|김철수"));
}

TEST_F(Selection, ATextThatCannotBeParsedFails) {
  EXPECT_FALSE(Contacts().Restrict(Contacts().Items(), QStringLiteral("[FileAs] =")));
  EXPECT_FALSE(m_store.LastError().isEmpty());
}

TEST_F(Selection, TheLargestRestrictionIsAnswered) {
  QStringList parts;
  for (int i = 1; i < kRestrictionComparisonLimit; ++i) {
    parts.append(QStringLiteral("[FileAs] = \"%1\"").arg(i));
  }
  parts.append(QStringLiteral("[FileAs] = \"Fox\""));
  const auto found = Contacts().Restrict(Contacts().Items(), parts.join(QStringLiteral(" OR ")));
  ASSERT_TRUE(found);
  EXPECT_EQ(test::Names(Contacts(), *found), List("Fox"));
}

}  // namespace
}  // namespace quill
