#include "settings/DeleteScope.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(DeleteScope, TheQuestionSaysWhatIsDeleted) {
  EXPECT_EQ(DeleteQuestion(DeleteScope::All),
            QStringLiteral("All items in the list would be permanently Removed. Continue?"));
  EXPECT_EQ(DeleteQuestion(DeleteScope::Selected),
            QStringLiteral("Selected item(s) would be permanently removed. Continue?"));
}

TEST(DeleteScope, IsTheSelectionAtFirst) { EXPECT_EQ(g_deleteScope, DeleteScope::Selected); }

}  // namespace
}  // namespace quill
