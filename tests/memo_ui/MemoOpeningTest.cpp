#include "memo/ui/MemoOpening.h"

#include "memo_ui/MemoFixture.h"

namespace quill {
namespace {

class MemoOpening : public test::MemoFixture {};

TEST_F(MemoOpening, AFileIsShownAsItIs) {
  Put(Path(u"a.pwi"), test::kNote);
  const test::Steps steps(*m_screen, {[&] {
    EXPECT_EQ(Ink().Data(), test::kNote);
    Editor().OnCancel();
  }});
  EXPECT_EQ(EditMemoFile(*m_screen, Path(u"a.pwi")), kResultCancel);
  EXPECT_EQ(g_memo.Buffer, test::kNote);
}

TEST_F(MemoOpening, ANewMemoBeginsEmptyWhateverWasOpenBefore) {
  g_memo.Buffer = test::kNote;
  const test::Steps steps(*m_screen, {[&] {
    EXPECT_EQ(g_memo.Buffer, QByteArray());
    EXPECT_EQ(Ink().DataLength(), 0);
    Editor().OnCancel();
  }});
  EXPECT_EQ(WriteNewMemo(*m_screen, Path(u"a.pwi")), kResultCancel);
}

TEST_F(MemoOpening, AFileThatCannotBeReadIsNotOpened) {
  g_memo.Buffer = test::kNote;
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(EditMemoFile(*m_screen, Path(u"missing.pwi")), kResultCancel);
  ASSERT_EQ(m_prompt.Shown().size(), 1U);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("The memo could not be read."));
  EXPECT_EQ(g_memo.Buffer, QByteArray());
}

}  // namespace
}  // namespace quill
