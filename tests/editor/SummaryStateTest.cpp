#include "editor/SummaryState.h"

#include <gtest/gtest.h>

#include "editor/SummaryLayout.h"
#include "store/ContactStore.h"
#include "store/pim/PimStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

class SummaryStateTest : public test::FreshState {
 protected:
  void SetUp() override {
    ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
    ContactRecord record;
    record[ContactField::FileAs] = u"Kim"_qs;
    record[ContactField::PagerNumber] = u"010-2"_qs;
    record[ContactField::HomeAddressCity] = u"Seoul"_qs;
    m_kim = m_store.Contacts()->Save(0, record, "ink");
  }
  void TearDown() override { CloseSession(); }

  PimStore m_store{u":memory:"_qs};
  Oid m_kim = 0;
};

TEST_F(SummaryStateTest, SaysHowToReachTheContactAndWhereItStands) {
  const SummaryState card = LoadCard(m_kim, 10, 45);
  EXPECT_EQ(card.Contact, m_kim);
  ASSERT_EQ(card.Lines.size(), 2U);
  EXPECT_EQ(card.Lines[0].Text, u"010-2"_qs);
  EXPECT_EQ(card.LineCount, 5);
  EXPECT_EQ(card.Place, PlaceCard(5, 10, 45));
}

TEST_F(SummaryStateTest, LeavesTheInkOfAnOpenSheetAlone) {
  g_contactInk.Bytes = "of another";
  LoadCard(m_kim, 10, 45);
  EXPECT_EQ(g_contactInk.Bytes, "of another");
}

TEST_F(SummaryStateTest, IsNoneOfAContactThatIsGone) {
  EXPECT_EQ(LoadCard(m_kim + 1, 10, 45).Contact, 0);
  EXPECT_EQ(LoadCard(0, 10, 45).Contact, 0);
}

}  // namespace
}  // namespace quill
