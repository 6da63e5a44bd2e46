// What other programs ask of the list.
#include <QCoreApplication>

#include "ViewFixture.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class RequestTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    g_services.Prompt = &m_prompt;
    Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  }
  QStringList ShownTexts() const {
    QStringList texts;
    for (const PromptMessage& message : m_prompt.Shown())
      texts.append(message.Text.section(u'\n', 0, 0));
    return texts;
  }

  test::ScriptedPrompt m_prompt;
};

TEST_F(RequestTest, AContactIsShownATenthOfASecondLater) {
  EXPECT_TRUE(View().OnCopyData(1, QStringLiteral("Lee")));
  m_timers.Advance(99);
  EXPECT_EQ(ShownTexts(), QStringList());
  m_prompt.Expect(PromptAnswer::OK);
  m_timers.Advance(1);
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Lee")));
  m_timers.Advance(1000);
  EXPECT_EQ(m_prompt.Shown().size(), 1U);
}

TEST_F(RequestTest, OnlyTheLatestIsShown) {
  View().OnCopyData(1, QStringLiteral("Lee"));
  View().OnCopyData(4, QStringLiteral("Kim"));
  m_prompt.Expect(PromptAnswer::OK);
  m_timers.Advance(1000);
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Kim")));
}

TEST_F(RequestTest, AContactThatMovedMeanwhileIsStillTheOneAskedFor) {
  View().OnCopyData(1, QStringLiteral("Lee"));
  Add(QStringLiteral("Adams"));
  m_prompt.Expect(PromptAnswer::OK);
  m_timers.Advance(100);
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Lee")));
}

TEST_F(RequestTest, AWindowThatIsOpenIsWaitedFor) {
  m_prompt.Expect(PromptAnswer::OK);
  {
    const test::ViewFrame other(*m_screen);  // any window above the frame
    View().OnCopyData(1, QStringLiteral("Lee"));
    m_timers.Advance(1000);
    EXPECT_EQ(ShownTexts(), QStringList());
  }
  m_timers.Advance(100);
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Lee")));
}

TEST_F(RequestTest, ANameThatNobodyHasIsSaidOnceTheAnswerIsGiven) {
  EXPECT_FALSE(View().OnCopyData(1, QStringLiteral("Nobody")));
  EXPECT_EQ(ShownTexts(), QStringList());
  m_prompt.Expect(PromptAnswer::OK);
  QCoreApplication::processEvents();
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Related name not found.")));
}

TEST_F(RequestTest, OtherKindsAreIgnored) {
  EXPECT_FALSE(View().OnCopyData(3, QStringLiteral("Kim")));
  QCoreApplication::processEvents();
  m_timers.Advance(1000);
  EXPECT_EQ(ShownTexts(), QStringList());
}

}  // namespace
}  // namespace quill
