#include "memo/MemoDeletion.h"

#include "platform/Services.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class MemoDeletion : public testing::TestWithParam<PromptAnswer> {
 protected:
  MemoDeletion() { g_services.Prompt = &m_prompt; }
  ~MemoDeletion() override { g_services = {}; }

  test::ScriptedPrompt m_prompt{GetParam()};
};

TEST_P(MemoDeletion, IsConfirmedByAYesOnly) {
  EXPECT_EQ(ConfirmMemoDeletion(), GetParam() == PromptAnswer::Yes);
  ASSERT_EQ(m_prompt.Shown().size(), 1U);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("This memo will be deleted. Continue?"));
  EXPECT_EQ(m_prompt.Shown()[0].Icon, PromptIcon::Question);
  EXPECT_EQ(m_prompt.Shown()[0].Buttons, PromptButtons::YesNo);
}

INSTANTIATE_TEST_SUITE_P(Answers, MemoDeletion,
                         testing::Values(PromptAnswer::Yes, PromptAnswer::No,
                                         PromptAnswer::Cancel));

}  // namespace
}  // namespace quill
