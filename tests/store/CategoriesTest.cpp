#include "store/Categories.h"

#include "store/pim/PimStore.h"
#include "support/FreshState.h"

namespace quill {
namespace {

class Categories : public test::FreshState {
 protected:
  ~Categories() override { CloseSession(); }

  PimStore m_store{QStringLiteral(":memory:")};
};

TEST_F(Categories, TheListAsTextHasCommasAndNoBlanksAndEndsWithNoCategories) {
  ASSERT_EQ(OpenSession(m_store), StartupCode::Opened);
  ASSERT_TRUE(SetUserCategories({QStringLiteral("Old Friends"), QStringLiteral("회사")}));
  EXPECT_EQ(Cate_GetCategoryList(1), QStringLiteral("Old Friends,회사,No Categories"));
}

TEST_F(Categories, WithoutASessionTheListIsNoCategoriesAlone) {
  EXPECT_EQ(Cate_GetCategoryList(1), QStringLiteral("No Categories"));
}

}  // namespace
}  // namespace quill
