// What a tap on a contact shows.
#include "ViewFixture.h"
#include "list/Selection.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class OpenContactTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    g_services.Prompt = &m_prompt;
    Open({QStringLiteral("김철수"), QStringLiteral("Adams")});
  }

  test::ScriptedPrompt m_prompt;
};

TEST_F(OpenContactTest, ATapShowsHowToReachTheContact) {
  m_prompt.Expect(PromptAnswer::OK);
  m_input.Tap(OnRow(1));
  ASSERT_EQ(m_prompt.Shown().size(), 1U);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("김철수\n(No contact information)"));
  EXPECT_EQ(m_prompt.Shown()[0].Caption, kApplicationTitle.toString());
}

TEST_F(OpenContactTest, ADoubleTapShowsItOnlyOnceAtATime) {
  m_prompt.Expect(PromptAnswer::OK);
  m_input.Tap(OnRow(0));
  m_input.PressAgain(OnRow(0));
  EXPECT_EQ(m_prompt.Shown().size(), 1U);
}

TEST_F(OpenContactTest, AContactThatIsGoneShowsNothing) {
  ASSERT_TRUE(m_store.Contacts()->Remove(g_list.Rows[0].Oid));
  m_input.Tap(OnRow(0));
  EXPECT_TRUE(m_prompt.Shown().empty());
}

TEST_F(OpenContactTest, AMemosPositionIsNotReadAsAContact) {
  View().ShowMode(ViewMode::ByMemo);  // without memos
  View().FocusList();
  g_list.CurrentRow = 1;
  g_list.SelectedKeys = {1};
  m_input.Key(Qt::Key_Return);
  EXPECT_TRUE(m_prompt.Shown().empty());
}

TEST_F(OpenContactTest, AssistiveTechnologyOpensARowByPressingIt) {
  m_prompt.Expect(PromptAnswer::OK);
  List().ActivateRow(0);
  EXPECT_EQ(m_prompt.Shown()[0].Text.section(u'\n', 0, 0), QStringLiteral("Adams"));
  EXPECT_EQ(g_list.CurrentRow, 0);
  List().ActivateRow(2);  // the line below the last contact
  EXPECT_EQ(m_prompt.Shown().size(), 1U);
}

}  // namespace
}  // namespace quill
