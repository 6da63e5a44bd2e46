#include "list/ui/LinkedItemCommands.h"

#include "ViewFixture.h"
#include "ink/ui/InkX.h"
#include "list/ContactPopup.h"
#include "list/Selection.h"
#include "memo/MemoFolder.h"
#include "memo/MemoListing.h"
#include "support/FixedClock.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class LinkedItemCommandsTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    g_services.Prompt = &m_prompt;
    g_services.Clock = &m_clock;
    Open({QStringLiteral("Kim"), QStringLiteral("Lee")});
    FixMemoFolder(g_memo);
    g_linkedItems = {};
  }
  void TearDown() override { g_linkedItems = {}; }

  QString Path(const QString& name) const { return MemoPath(g_memo, name); }
  // Puts ink into the memo editor on top and presses OK.
  test::Step Write(const QByteArray& ink) {
    return [this, ink] {
      auto* const control = m_screen->Topmost()->findChild<InkX*>();
      ASSERT_NE(control, nullptr);
      control->SetData(ink);
      m_screen->Topmost()->OnOK();
    };
  }
  test::Step OK() {
    return [this] { m_screen->Topmost()->OnOK(); };
  }
  void Run(int id, std::vector<test::Step> steps) {
    const test::Steps running(*m_screen, std::move(steps));
    m_frame->RunCommand(id);
  }

  test::ScriptedPrompt m_prompt;
  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
};

TEST_F(LinkedItemCommandsTest, AMemoIsAddedUnderTheNameOfTheCurrentRowsContact) {
  SelectRow(g_list, 1);
  Run(ID_ADD_MEMO, {Write("ink"), OK()});
  EXPECT_EQ(AllMemos(g_memo), QStringList{QStringLiteral("Lee_20040915_093005.pwi")});
}

TEST_F(LinkedItemCommandsTest, ASecondMemoOfTheSameSecondTakesThePlaceOfTheFirstAsIntended) {
  SelectRow(g_list, 0);
  Run(ID_ADD_MEMO, {Write("first"), OK()});
  Run(ID_ADD_MEMO, {Write("second"), OK()});
  EXPECT_EQ(AllMemos(g_memo).size(), 1);
  EXPECT_EQ(m_deviceHome.Files.ReadWhole(Path(QStringLiteral("Kim_20040915_093005.pwi"))),
            "second");
}

TEST_F(LinkedItemCommandsTest, TheTimeIsThatOfTheCommand) {
  SelectRow(g_list, 0);
  Run(ID_ADD_MEMO, {[this] { m_clock.Set(m_clock.Now().addSecs(60)); }, Write("ink"), OK()});
  EXPECT_EQ(AllMemos(g_memo), QStringList{QStringLiteral("Kim_20040915_093005.pwi")});
}

TEST_F(LinkedItemCommandsTest, AMemoOfThePopupIsOpenedByItsNumber) {
  for (const char* name : {"Kim_2.pwi", "Kim_1.pwi"})
    ASSERT_TRUE(m_deviceHome.Files.WriteWhole(Path(QLatin1String(name)), name));
  g_linkedItems = FindLinkedItems(QStringLiteral("Kim"));
  Run(33202, {Write("other")});
  EXPECT_EQ(m_deviceHome.Files.ReadWhole(Path(QStringLiteral("Kim_2.pwi"))), "other");
  EXPECT_EQ(m_deviceHome.Files.ReadWhole(Path(QStringLiteral("Kim_1.pwi"))), "Kim_1.pwi");
}

TEST_F(LinkedItemCommandsTest, AMemoThatIsGoneIsNotOpened) {
  g_linkedItems.Memos = {QStringLiteral("Kim_1.pwi")};
  m_prompt.Expect(PromptAnswer::OK);
  m_frame->RunCommand(33201);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("The memo could not be read."));
}

TEST_F(LinkedItemCommandsTest, WithoutARowOrALinkedMemoNothingHappens) {
  for (const int id : {32820, 33201, 33400}) m_frame->RunCommand(id, CommandCheck::Anyway);
  EXPECT_TRUE(AllMemos(g_memo).isEmpty());
}

TEST_F(LinkedItemCommandsTest, OverMemosNoneIsAddedToAContact) {
  ASSERT_TRUE(m_deviceHome.Files.WriteWhole(Path(QStringLiteral("a.pwi")), "a"));
  View().ShowMode(ViewMode::ByMemo);
  SelectRow(g_list, 0);
  m_frame->RunCommand(ID_ADD_MEMO, CommandCheck::Anyway);
  EXPECT_EQ(AllMemos(g_memo).size(), 1);
}

TEST_F(LinkedItemCommandsTest, AppointmentsCannotBeMadeYet) {
  for (const int id : {32819, 33001, 33200})
    EXPECT_EQ(m_frame->RunCommand(id), CommandResult::Disabled) << id;
}

}  // namespace
}  // namespace quill
