// What other programs ask of the list.
#include <QCoreApplication>

#include "SheetSteps.h"
#include "ViewFixture.h"
#include "memo/MemoFolder.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class RequestTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    g_services.Prompt = &m_prompt;
    Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
  }
  // Only now a sheet comes, and it is this contact's.
  void AdvanceToSheetOf(const QString& name, int milliseconds) {
    test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
      EXPECT_EQ(open.Record().FileAs, name);
      m_input.Key(Qt::Key_Escape);
    });
    m_timers.Advance(milliseconds);
  }

  QStringList ShownTexts() const {
    QStringList texts;
    for (const PromptMessage& message : m_prompt.Shown()) texts.append(message.Text);
    return texts;
  }

  test::ScriptedPrompt m_prompt;
};

TEST_F(RequestTest, AContactIsShownATenthOfASecondLater) {
  EXPECT_TRUE(View().OnCopyData(1, QStringLiteral("Lee")));
  m_timers.Advance(99);
  AdvanceToSheetOf(QStringLiteral("Lee"), 1);
  m_timers.Advance(1000);
}

TEST_F(RequestTest, OnlyTheLatestIsShown) {
  View().OnCopyData(1, QStringLiteral("Lee"));
  View().OnCopyData(4, QStringLiteral("Kim"));
  AdvanceToSheetOf(QStringLiteral("Kim"), 100);
  m_timers.Advance(1000);
}

TEST_F(RequestTest, AContactThatMovedMeanwhileIsStillTheOneAskedFor) {
  View().OnCopyData(1, QStringLiteral("Lee"));
  Add(QStringLiteral("Adams"));
  AdvanceToSheetOf(QStringLiteral("Lee"), 100);
}

TEST_F(RequestTest, AWindowThatIsOpenIsWaitedFor) {
  {
    const test::ViewFrame other(*m_screen);  // any window above the frame
    View().OnCopyData(1, QStringLiteral("Lee"));
    m_timers.Advance(1000);
  }
  AdvanceToSheetOf(QStringLiteral("Lee"), 100);
}

TEST_F(RequestTest, ANewContactHoldsTheText) {
  EXPECT_TRUE(View().OnCopyData(2, QStringLiteral("010-1234")));
  test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
    EXPECT_EQ(open.Caption(), QStringLiteral("New"));
    EXPECT_EQ(RowsOf(open.Record(), RowSet::Basic)[1].Value, QStringLiteral("010-1234"));
    m_input.Key(Qt::Key_Escape);
  });
  m_timers.Advance(100);
}

TEST_F(RequestTest, TheNextNewContactIsEmptyAgain) {
  View().OnCopyData(2, QStringLiteral("010-1234"));
  {
    test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet&) { m_input.Key(Qt::Key_Escape); });
    m_timers.Advance(100);
  }
  test::SheetSteps sheet(*m_screen, [&](CEditRecordSheet& open) {
    EXPECT_EQ(RowsOf(open.Record(), RowSet::Basic)[1].Value, QString());
    m_input.Key(Qt::Key_Escape);
  });
  m_frame->RunCommand(ID_FILE_NEW);
}

TEST_F(RequestTest, MemosAreOpenedOneAfterTheOther) {
  FixMemoFolder(g_memo);
  for (const char* name : {"a.pwi", "b.pwi"})
    ASSERT_TRUE(m_deviceHome.Files.WriteWhole(MemoPath(g_memo, QLatin1String(name)), name));
  View().ShowMode(ViewMode::ByMemo);
  ASSERT_TRUE(m_deviceHome.Files.WriteWhole(MemoPath(g_memo, QStringLiteral("c.pwi")), "c"));
  View().OpenMemoFile(MemoPath(g_memo, QStringLiteral("a.pwi")));
  View().OpenMemoFile(MemoPath(g_memo, QStringLiteral("b.pwi")));
  const auto cancel = [this](const QByteArray& content) {
    return [this, content] {
      EXPECT_EQ(g_memo.Buffer, content);
      EXPECT_EQ(m_screen->Topmost()->Caption(), QStringLiteral("Memo"));
      m_screen->Topmost()->OnCancel();
    };
  };
  const test::Steps steps(*m_screen, {cancel("a.pwi"), cancel("b.pwi")});
  m_timers.Advance(100);
  EXPECT_EQ(g_memo.NameList.size(), 3);
}

TEST_F(RequestTest, ANameThatNobodyHasIsSaidOnceTheAnswerIsGiven) {
  EXPECT_FALSE(View().OnCopyData(1, QStringLiteral("Nobody")));
  EXPECT_TRUE(m_prompt.Shown().empty());
  m_prompt.Expect(PromptAnswer::OK);
  QCoreApplication::processEvents();
  ASSERT_EQ(m_prompt.Shown().size(), 1U);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("Related name not found."));
}

TEST_F(RequestTest, ANameThatNobodyHasIsSaidOnceAfterTheOpenWindowHasClosed) {
  {
    const test::ViewFrame other(*m_screen);
    EXPECT_FALSE(View().OnCopyData(1, QStringLiteral("Nobody")));
    EXPECT_FALSE(View().OnCopyData(4, QStringLiteral("No one")));
    QCoreApplication::processEvents();
    m_timers.Advance(1000);
    EXPECT_EQ(ShownTexts(), QStringList());
  }
  m_prompt.Expect(PromptAnswer::OK);
  m_timers.Advance(1000);
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Related name not found.")));
}

TEST_F(RequestTest, AContactThatWaitsIsShownAlthoughALaterRequestNamesNobody) {
  View().OnCopyData(1, QStringLiteral("Lee"));
  View().OnCopyData(1, QStringLiteral("Nobody"));
  m_prompt.Expect(PromptAnswer::OK);
  QCoreApplication::processEvents();
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Related name not found.")));
  AdvanceToSheetOf(QStringLiteral("Lee"), 1000);
  EXPECT_EQ(ShownTexts().size(), 1);
}

TEST_F(RequestTest, BehindAnOpenWindowBothWaitAndNobodyIsSaidFirst) {
  {
    const test::ViewFrame other(*m_screen);
    View().OnCopyData(1, QStringLiteral("Nobody"));
    View().OnCopyData(1, QStringLiteral("Lee"));
    QCoreApplication::processEvents();
    m_timers.Advance(1000);
    EXPECT_EQ(ShownTexts(), QStringList());
  }
  m_prompt.Expect(PromptAnswer::OK);
  AdvanceToSheetOf(QStringLiteral("Lee"), 100);
  EXPECT_EQ(ShownTexts().size(), 1);
}

TEST_F(RequestTest, ThatAContactWentWhileItWaitedIsSaid) {
  View().OnCopyData(1, QStringLiteral("Lee"));
  ASSERT_TRUE(DeleteContact(g_list.Rows[1].Oid));
  m_prompt.Expect(PromptAnswer::OK);
  m_timers.Advance(1000);
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("Related name not found.")));
}

TEST_F(RequestTest, NoSheetOpensUntilThePenIsUp) {
  const QPoint margin = View().mapTo(m_screen, QPoint(0, 0));
  m_input.Press(margin);
  View().OnCopyData(1, QStringLiteral("Lee"));
  m_timers.Advance(1000);
  m_input.Release(margin);
  AdvanceToSheetOf(QStringLiteral("Lee"), 100);
}

TEST_F(RequestTest, NothingIsSaidUntilThePenIsUp) {
  const QPoint margin = View().mapTo(m_screen, QPoint(0, 0));
  m_input.Press(margin);
  View().OnCopyData(1, QStringLiteral("Nobody"));
  QCoreApplication::processEvents();
  m_timers.Advance(1000);
  EXPECT_EQ(ShownTexts(), QStringList());
  m_input.Release(margin);
  m_prompt.Expect(PromptAnswer::OK);
  m_timers.Advance(100);
  EXPECT_EQ(ShownTexts().size(), 1);
}

TEST_F(RequestTest, ANewShellShowsWhatTheEarlierOneWasAskedFor) {
  View().OnCopyData(1, QStringLiteral("Lee"));
  m_frame.reset();
  m_frame = std::make_unique<test::ViewFrame>(*m_screen);
  View().ShowState();
  AdvanceToSheetOf(QStringLiteral("Lee"), 1000);
}

TEST_F(RequestTest, OtherKindsAreIgnored) {
  EXPECT_FALSE(View().OnCopyData(3, QStringLiteral("Kim")));
  QCoreApplication::processEvents();
  m_timers.Advance(1000);
  EXPECT_TRUE(m_prompt.Shown().empty());
}

}  // namespace
}  // namespace quill
