#include "list/PendingRequest.h"

#include "ListTest.h"

namespace quill {
namespace {

class PendingRequestTest : public test::ListTest {
 protected:
  PendingRequest m_request;
};

TEST_F(PendingRequestTest, KeepsTheContactThatIsFiledUnderTheText) {
  Add(u"Adams"_qs);
  const Oid kim = Add(u"Kim"_qs);
  EXPECT_EQ(TakeRequest(m_request, 1, u"Kim"_qs), RequestAnswer::Kept);
  EXPECT_EQ(m_request.Kind, PendingKind::Show);
  EXPECT_EQ(m_request.Contact, kim);
}

TEST_F(PendingRequestTest, KindFourIsTheSameByAnotherEntry) {
  const Oid kim = Add(u"Kim"_qs);
  EXPECT_EQ(TakeRequest(m_request, 4, u"Kim"_qs), RequestAnswer::Kept);
  EXPECT_EQ(m_request.Kind, PendingKind::ShowAgain);
  EXPECT_EQ(m_request.Contact, kim);
}

TEST_F(PendingRequestTest, OfTwoOfOneNameTheFirstInTheStoresOrderIsMeant) {
  const Oid first = Add(u"Kim"_qs);
  Add(u"Kim"_qs);
  TakeRequest(m_request, 1, u"Kim"_qs);
  EXPECT_EQ(m_request.Contact, first);
}

TEST_F(PendingRequestTest, ABeginningOfANameIsNotFound) {
  Add(u"Kimberly"_qs);
  EXPECT_EQ(TakeRequest(m_request, 1, u"Kim"_qs), RequestAnswer::NotFound);
  EXPECT_TRUE(m_request.NobodyFound);
  EXPECT_EQ(m_request.Kind, PendingKind::None);
}

TEST_F(PendingRequestTest, QuotesInANameAreFound) {
  const Oid oid = Add(u"Kim \"the\" one"_qs);
  EXPECT_EQ(TakeRequest(m_request, 1, u"Kim \"the\" one"_qs), RequestAnswer::Kept);
  EXPECT_EQ(m_request.Contact, oid);
}

TEST_F(PendingRequestTest, MemosWaitForOneAnother) {
  TakeRequest(m_request, 2, u"010"_qs);
  TakeMemo(m_request, u"\\a.pwi"_qs);
  TakeMemo(m_request, u"\\b.pwi"_qs);
  EXPECT_EQ(m_request.Kind, PendingKind::Memos);
  EXPECT_EQ(m_request.Memos, QStringList({u"\\a.pwi"_qs, u"\\b.pwi"_qs}));
  EXPECT_EQ(m_request.Text, QString());
  TakeRequest(m_request, 2, u"010"_qs);
  EXPECT_TRUE(m_request.Memos.isEmpty());
}

TEST_F(PendingRequestTest, MemosDoNotComeByAMessage) {
  EXPECT_EQ(TakeRequest(m_request, -1, u"\\a.pwi"_qs), RequestAnswer::Ignored);
}

TEST_F(PendingRequestTest, TheLatestTakesTheEarliersPlace) {
  const Oid kim = Add(u"Kim"_qs);
  const Oid lee = Add(u"Lee"_qs);
  TakeRequest(m_request, 1, u"Kim"_qs);
  EXPECT_EQ(m_request.Contact, kim);
  TakeRequest(m_request, 1, u"Lee"_qs);
  EXPECT_EQ(m_request.Contact, lee);
}

TEST_F(PendingRequestTest, OneThatNamesNobodyTakesNoPlaceAndIsRemembered) {
  const Oid kim = Add(u"Kim"_qs);
  const Oid lee = Add(u"Lee"_qs);
  TakeRequest(m_request, 1, u"Kim"_qs);
  EXPECT_FALSE(m_request.NobodyFound);
  EXPECT_EQ(TakeRequest(m_request, 4, u"Nobody"_qs), RequestAnswer::NotFound);
  EXPECT_EQ(m_request.Contact, kim);
  TakeRequest(m_request, 1, u"Lee"_qs);
  EXPECT_EQ(m_request.Contact, lee);
  EXPECT_TRUE(m_request.NobodyFound);
}

TEST_F(PendingRequestTest, OneWhoseContactIsThereOrThatShowsNoneStays) {
  const Oid kim = Add(u"Kim"_qs);
  for (PendingRequest request : {PendingRequest{}, PendingRequest{.Kind = PendingKind::New},
                                 PendingRequest{.Kind = PendingKind::Show, .Contact = kim}}) {
    const PendingKind kind = request.Kind;
    DropIfGone(request);
    EXPECT_EQ(request.Kind, kind);
    EXPECT_FALSE(request.NobodyFound);
  }
}

TEST_F(PendingRequestTest, OneWhoseContactHasGoneWhileItWaitedFindsNobody) {
  const Oid kim = Add(u"Kim"_qs);
  ASSERT_EQ(TakeRequest(m_request, 1, u"Kim"_qs), RequestAnswer::Kept);
  ASSERT_TRUE(m_store.Contacts()->Remove(kim));
  DropIfGone(m_request);
  EXPECT_EQ(m_request.Kind, PendingKind::None);
  EXPECT_TRUE(m_request.NobodyFound);
}

TEST_F(PendingRequestTest, ANewContactKeepsItsTextAndNeedsNobodyOfThatName) {
  EXPECT_EQ(TakeRequest(m_request, 2, u"010-1234-5678"_qs), RequestAnswer::Kept);
  EXPECT_EQ(m_request.Kind, PendingKind::New);
  EXPECT_EQ(m_request.Contact, 0);
  EXPECT_EQ(m_request.Text, u"010-1234-5678"_qs);
}

TEST_F(PendingRequestTest, ALongTextOfANewContactIsCutAtItsLimit) {
  TakeRequest(m_request, 2, QString(kRequestTextLimit, u'1') + u'2');
  EXPECT_EQ(m_request.Text, QString(kRequestTextLimit, u'1'));
}

TEST_F(PendingRequestTest, ACharacterIsNotCutInHalves) {
  const QString before(kRequestTextLimit - 1, u'1');
  TakeRequest(m_request, 2, before + u"\U0001F600"_qs);
  EXPECT_EQ(m_request.Text, before);
}

TEST_F(PendingRequestTest, ALaterNewContactTakesThePlaceOfOneToBeShown) {
  Add(u"Kim"_qs);
  TakeRequest(m_request, 1, u"Kim"_qs);
  TakeRequest(m_request, 2, QString());
  EXPECT_EQ(m_request.Kind, PendingKind::New);
  EXPECT_EQ(m_request.Contact, 0);
}

TEST_F(PendingRequestTest, OneThatGivesWayIsLogged) {
  Add(u"Kim"_qs);
  const auto logged = [this](int kind) {
    testing::internal::CaptureStderr();
    TakeRequest(m_request, kind, u"Kim"_qs);
    return testing::internal::GetCapturedStderr().find("gives way") != std::string::npos;
  };
  EXPECT_FALSE(logged(2)) << "nothing waited";
  EXPECT_TRUE(logged(2));
  EXPECT_TRUE(logged(1));
  EXPECT_FALSE(logged(3)) << "unknown, and ignored";
}

class UnknownRequest : public PendingRequestTest, public testing::WithParamInterface<int> {};

TEST_P(UnknownRequest, IsIgnored) {
  Add(u"Kim"_qs);
  EXPECT_EQ(TakeRequest(m_request, GetParam(), u"Kim"_qs), RequestAnswer::Ignored);
  EXPECT_EQ(m_request.Kind, PendingKind::None);
}

INSTANTIATE_TEST_SUITE_P(Kinds, UnknownRequest, testing::Values(-1, 0, 3, 5, 1000));

}  // namespace
}  // namespace quill
