#include "appointments/ContactLink.h"

#include <gtest/gtest.h>

#include "store/AppointmentStore.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/FaultyStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

QString Text(const char16_t* text) { return QString::fromUtf16(text); }

struct RangeCase {
  const char16_t* FileAs;
  const char16_t* Lower;
  const char16_t* Upper;
};

class LinkRange : public testing::TestWithParam<RangeCase> {};

TEST_P(LinkRange, RaisesTheUnitBeforeTheLast) {
  const SubjectRange range = ContactLinkRange(Text(GetParam().FileAs));
  EXPECT_EQ(range.Lower, Text(GetParam().Lower));
  EXPECT_EQ(range.Upper, Text(GetParam().Upper));
  EXPECT_EQ(ContactLinkPrefix(Text(GetParam().FileAs)), range.Lower);
}

// A last unit that has no next one begins again at 0, so that the range is empty.
INSTANTIATE_TEST_SUITE_P(Names, LinkRange,
                         testing::Values(RangeCase{u"Kim", u"(Kim)", u"(Kin)"},
                                         RangeCase{u"", u"()", u"))"},
                                         RangeCase{u"Lee, Ann", u"(Lee, Ann)", u"(Lee, Ano)"},
                                         RangeCase{u"Z", u"(Z)", u"([)"},
                                         RangeCase{u"김철수", u"(김철수)", u"(김철숙)"},
                                         RangeCase{u"\U0001F600", u"(\U0001F600)", u"(\U0001F601)"},
                                         RangeCase{u"%s%1", u"(%s%1)", u"(%s%2)"}));

TEST(ContactLink, TheLastUnitOfAllIsFollowedByTheFirst) {
  EXPECT_EQ(ContactLinkRange(QString(QChar(0xFFFF))).Upper,
            QStringLiteral("(") + QChar(u'\0') + QStringLiteral(")"));
}

TEST(ContactLink, TheRestrictionDoublesQuotes) {
  EXPECT_EQ(ContactLinkRestriction(QStringLiteral("Kim")),
            QStringLiteral("[Subject] >= \"(Kim)\" AND [Subject] < \"(Kin)\""));
  EXPECT_EQ(ContactLinkRestriction(QStringLiteral("a\"b")),
            QStringLiteral("[Subject] >= \"(a\"\"b)\" AND [Subject] < \"(a\"\"c)\""));
  EXPECT_EQ(ContactLinkRestriction(QStringLiteral("a\"")),
            QStringLiteral("[Subject] >= \"(a\"\")\" AND [Subject] < \"(a#)\""));
}

class ContactAppointments : public test::FreshState {
 protected:
  ~ContactAppointments() override { CloseSession(); }

  void SetUp() override { ASSERT_EQ(OpenSession(m_store), StartupCode::Opened); }

  Oid Add(const QString& subject) { return m_store.Calendar()->Save({.Subject = subject}); }

  PimStore m_pimStore{QStringLiteral(":memory:")};
  test::FaultyStore m_store{m_pimStore};
};

struct SubjectCase {
  const char16_t* FileAs;
  const char16_t* Subject;
  bool Inside;
};

class SubjectInRange : public ContactAppointments,
                       public testing::WithParamInterface<SubjectCase> {};

TEST_P(SubjectInRange, BelongsToTheContactOrNot) {
  const Oid oid = Add(Text(GetParam().Subject));
  const std::vector<Oid> expected =
      GetParam().Inside ? std::vector<Oid>({oid}) : std::vector<Oid>();
  EXPECT_EQ(FindContactAppointments(Text(GetParam().FileAs)), expected);
}

INSTANTIATE_TEST_SUITE_P(
    OfKim, SubjectInRange,
    testing::Values(SubjectCase{u"Kim", u"(Kim)", true}, SubjectCase{u"Kim", u"(Kim) tea", true},
                    SubjectCase{u"Kim", u"(Kim)tea", true}, SubjectCase{u"Kim", u"(Kim2)", true},
                    SubjectCase{u"Kim", u"(Kima) tea", true},
                    SubjectCase{u"Kim", u"(Kim,Su)", true}, SubjectCase{u"Kim", u"(Kim", false},
                    SubjectCase{u"Kim", u"(Kin Lee)", true}, SubjectCase{u"Kim", u"(Kim가)", true},
                    SubjectCase{u"Kim", u"(Kim Lee)", false}, SubjectCase{u"Kim", u"(Kim!)", false},
                    SubjectCase{u"Kim", u"(Kin)", false}, SubjectCase{u"Kim", u"(Kin) tea", false},
                    SubjectCase{u"Kim", u"(Kio)", false}, SubjectCase{u"Kim", u"(kim)", false},
                    SubjectCase{u"Kim", u"(KIM)", false}, SubjectCase{u"Kim", u"Kim", false},
                    SubjectCase{u"Kim", u"", false}, SubjectCase{u"Kim", u" (Kim)", false}));
INSTANTIATE_TEST_SUITE_P(
    OfNobody, SubjectInRange,
    testing::Values(SubjectCase{u"", u"()", true}, SubjectCase{u"", u"(Kim)", true},
                    SubjectCase{u"", u"(", false}, SubjectCase{u"", u"(%)", false},
                    SubjectCase{u"", u"))", false}, SubjectCase{u"", u")", true},
                    SubjectCase{u"", u"*", false}, SubjectCase{u"", u"", false}));
INSTANTIATE_TEST_SUITE_P(OfOthers, SubjectInRange,
                         testing::Values(SubjectCase{u"김철수", u"(김철수) 차", true},
                                         SubjectCase{u"김철수", u"(김철숙)", false},
                                         SubjectCase{u"a\"b", u"(a\"b) tea", true},
                                         SubjectCase{u"a\" OR [Subject] >= \"", u"(b)", false},
                                         SubjectCase{u"\U0001F600", u"(\U0001F600)", true},
                                         SubjectCase{u"\U0001F600", u"(\U0001F601)", false}));

TEST_F(ContactAppointments, AreFoundInOidOrder) {
  const Oid first = Add(QStringLiteral("(Kim) z"));
  Add(QStringLiteral("(Lee)"));
  const Oid second = Add(QStringLiteral("(Kim) a"));
  EXPECT_EQ(FindContactAppointments(QStringLiteral("Kim")), std::vector<Oid>({first, second}));
}

TEST_F(ContactAppointments, AreNoneWhenTheStoreFails) {
  Add(QStringLiteral("(Kim)"));
  m_store.OfCalendar().Restrict = true;
  EXPECT_TRUE(FindContactAppointments(QStringLiteral("Kim")).empty());
}

TEST_F(ContactAppointments, AreNoneWithoutASession) {
  Add(QStringLiteral("(Kim)"));
  CloseSession();
  EXPECT_TRUE(FindContactAppointments(QStringLiteral("Kim")).empty());
}

}  // namespace
}  // namespace quill
