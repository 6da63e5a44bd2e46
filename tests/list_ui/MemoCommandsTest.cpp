#include "list/ui/MemoCommands.h"

#include <QLineEdit>

#include "ViewFixture.h"
#include "ink/ui/InkX.h"
#include "list/Selection.h"
#include "memo/MemoFolder.h"
#include "memo/MemoListing.h"
#include "support/FixedClock.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

class MemoCommandsTest : public test::ViewFixture {
 protected:
  void SetUp() override {
    g_services.Prompt = &m_prompt;
    g_services.Clock = &m_clock;
    Open({QStringLiteral("Kim")});
    FixMemoFolder(g_memo);
    for (const char* name : {"a.pwi", "b.pwi", "c.pwi", "d.pwi", "e.pwi"})
      ASSERT_TRUE(m_deviceHome.Files.WriteWhole(MemoPath(g_memo, QLatin1String(name)), {}));
    View().ShowMode(ViewMode::ByMemo);
  }

  // What is in the folder, by the first letters.
  QString Memos() const {
    QString letters;
    for (const QString& name : AllMemos(g_memo)) letters += name.section(u'.', 0, 0);
    return letters;
  }
  void RunWithYes(int id, const char* question) {
    m_prompt.Expect(PromptAnswer::Yes);
    m_frame->RunCommand(id);
    ASSERT_FALSE(m_prompt.Shown().empty());
    EXPECT_EQ(m_prompt.Shown().back().Text, QLatin1String(question));
    EXPECT_EQ(m_prompt.Shown().back().Buttons, PromptButtons::YesNo);
  }
  // Runs the command, types the name at the end of its dialog's path and presses OK.
  void RunAndType(int id, const QString& caption, const QString& text) {
    test::Steps steps(*m_screen, {[&] {
      EXPECT_EQ(m_screen->Topmost()->Caption(), caption);
      auto* const edit =
          qobject_cast<QLineEdit*>(m_screen->Topmost()->Control(NameEntryIds::kEdit));
      m_preset = edit->text();
      if (!text.isEmpty()) edit->setText(MemoPath(g_memo, text));
      m_input.Key(Qt::Key_Return);
    }});
    m_frame->RunCommand(id);
  }

  QByteArray Content(const char16_t* name) const {
    return m_deviceHome.Files.ReadWhole(MemoPath(g_memo, QString::fromUtf16(name))).value_or("");
  }
  // Puts ink into the memo editor on top and presses OK.
  test::Step WriteAndOK(const QByteArray& ink) {
    return [this, ink] {
      auto* const control = m_screen->Topmost()->findChild<InkX*>();
      ASSERT_NE(control, nullptr);
      control->SetData(ink);
      m_screen->Topmost()->OnOK();
    };
  }
  // OK, or with Escape the cancel, of the dialog for the file's name.
  test::Step Key(int key) {
    return [this, key] { m_input.Key(key); };
  }
  // Makes the file behind the list's back, so that a list that is built anew shows it.
  void AddUnlisted() {
    ASSERT_TRUE(m_deviceHome.Files.WriteWhole(MemoPath(g_memo, QStringLiteral("f.pwi")), "f"));
  }

  test::ScriptedPrompt m_prompt;
  test::FixedClock m_clock{QDateTime(QDate(2004, 9, 15), QTime(9, 30, 5))};
  QString m_preset;
};

constexpr char kOneQuestion[] = "This memo will be deleted. Continue?";
constexpr char kAllQuestion[] = "All memos in the list will be deleted. Continue?";

TEST_F(MemoCommandsTest, ALongerPageShowsMoreOfTheMemosAtOnce) {
  for (int i = 0; i < 20; ++i)
    ASSERT_TRUE(
        m_deviceHome.Files.WriteWhole(MemoPath(g_memo, QStringLiteral("%1.pwi").arg(i)), {}));
  View().Rebuild();
  EXPECT_EQ(g_list.RowsShown, kRowsWithIndex);
  g_settings.Abc = 0;
  View().Relayout();
  EXPECT_EQ(g_list.RowsShown, kRowsWithoutIndex);
}

TEST_F(MemoCommandsTest, TheMemoUnderTheCurrentRowIsDeleted) {
  SelectRow(g_list, 1);
  RunWithYes(ID_DELETE_MEMO, kOneQuestion);
  EXPECT_EQ(Memos(), QStringLiteral("acde"));
  EXPECT_EQ(g_memo.NameList.size(), 4);
  EXPECT_EQ(g_list.SelectedKeys, std::vector<int>{1}) << "c, in its place";
  EXPECT_TRUE(List().Rows()[1].State.testFlag(PaintedStateFlag::Selected));
}

TEST_F(MemoCommandsTest, ANoDeletesNothing) {
  SelectRow(g_list, 1);
  for (const int id : {ID_DELETE_MEMO, ID_DELETE_ITEMS, ID_DELETE_ALL}) {
    m_prompt.Expect(PromptAnswer::No);
    m_frame->RunCommand(id);
  }
  EXPECT_EQ(Memos(), QStringLiteral("abcde"));
}

TEST_F(MemoCommandsTest, OfThreeSelectedRowsTheCurrentOneAndTheTwoAfterItAreDeletedAsIntended) {
  SelectRun(g_list, 3, 1);  // upwards: the current row is the first of them
  RunWithYes(ID_DELETE_ITEMS, kOneQuestion);
  EXPECT_EQ(Memos(), QStringLiteral("ae"));
  EXPECT_EQ(g_list.SelectedKeys, std::vector<int>{1}) << "e, in their place";
}

TEST_F(MemoCommandsTest, RowsPastTheEndOfTheListAreNotMissed) {
  SelectRun(g_list, 2, 4);  // downwards: the current row is the last
  RunWithYes(ID_DELETE_ITEMS, kOneQuestion);
  EXPECT_EQ(Memos(), QStringLiteral("abcd"));
}

TEST_F(MemoCommandsTest, AllListedMemosAreDeletedAndNoOthers) {
  SearchEdit().setText(QStringLiteral("b"));
  View().Search();
  RunWithYes(ID_DELETE_ALL, kAllQuestion);
  EXPECT_EQ(Memos(), QStringLiteral("acde"));
}

TEST_F(MemoCommandsTest, ARenamedMemoIsOfferedItsWholePath) {
  SelectRow(g_list, 0);
  RunAndType(ID_RENAME_MEMO, QStringLiteral("Rename As"), QStringLiteral("z.pwi"));
  EXPECT_EQ(m_preset, QStringLiteral("\\My Documents\\Fennick\\a.pwi"));
  EXPECT_EQ(Memos(), QStringLiteral("bcdez"));
  EXPECT_EQ(g_memo.NameList.last(), QStringLiteral("z.pwi"));
}

TEST_F(MemoCommandsTest, ARenamedMemoStaysSelected) {
  SelectRow(g_list, 0);
  RunAndType(ID_RENAME_MEMO, QStringLiteral("Rename As"), QStringLiteral("z.pwi"));
  EXPECT_EQ(g_list.SelectedKeys, std::vector<int>{4});
  EXPECT_EQ(g_list.CurrentRow, 4);
}

TEST_F(MemoCommandsTest, AMemoThatIsNotMarkedIsNotDeleted) {
  SelectRow(g_list, 0);
  ClearSelectedKeys(g_list);
  m_frame->RunCommand(ID_DELETE_MEMO, CommandCheck::Anyway);
  EXPECT_EQ(Memos(), QStringLiteral("abcde"));
}

TEST_F(MemoCommandsTest, ACopiedMemoIsOfferedANameOfItsOwn) {
  SelectRow(g_list, 0);
  RunAndType(ID_COPY_MEMO, QStringLiteral("Copy As"), {});
  EXPECT_EQ(m_preset, QStringLiteral("\\My Documents\\Fennick\\a_Copy.pwi"));
  EXPECT_EQ(Memos(), QStringLiteral("aa_Copybcde"));
}

TEST_F(MemoCommandsTest, WithoutACurrentRowNothingHappens) {
  for (const int id : {ID_DELETE_MEMO, ID_RENAME_MEMO, ID_COPY_MEMO, ID_DELETE_ITEMS})
    m_frame->RunCommand(id, CommandCheck::Anyway);
  EXPECT_EQ(Memos(), QStringLiteral("abcde"));
}

TEST_F(MemoCommandsTest, OverContactsTheMemoCommandsAreIgnored) {
  View().ShowMode(ViewMode::ByName);
  SelectRow(g_list, 0);
  for (const int id : {ID_DELETE_MEMO, ID_RENAME_MEMO, ID_COPY_MEMO})
    m_frame->RunCommand(id, CommandCheck::Anyway);
  EXPECT_EQ(Memos(), QStringLiteral("abcde"));
}

TEST_F(MemoCommandsTest, OverMemosContactsAreNotCopied) {
  SelectRow(g_list, 0);
  m_frame->RunCommand(ID_COPY_CONTACT, CommandCheck::Anyway);
  View().ShowMode(ViewMode::ByName);
  EXPECT_EQ(g_list.Total, 1);
}

TEST_F(MemoCommandsTest, NewWritesAMemoOfNobodyAndListsIt) {
  const test::Steps steps(*m_screen, {WriteAndOK("ink"), Key(Qt::Key_Return)});
  m_frame->RunCommand(ID_FILE_NEW);
  EXPECT_EQ(Content(u"Memo_20040915_093005.pwi"), "ink");
  EXPECT_EQ(g_memo.NameList.size(), 6);
}

TEST_F(MemoCommandsTest, ANewMemoThatIsGivenNoNameLeavesTheListAlone) {
  AddUnlisted();
  const test::Steps steps(*m_screen, {WriteAndOK("ink"), Key(Qt::Key_Escape)});
  m_frame->RunCommand(ID_FILE_NEW);
  EXPECT_EQ(g_memo.NameList.size(), 5);
}

TEST_F(MemoCommandsTest, ANewMemoThatIsDeletedEndsWithOKButLeavesTheListAlone) {
  AddUnlisted();
  m_prompt.Expect(PromptAnswer::Yes);
  const test::Steps steps(*m_screen,
                          {[&] { m_screen->Topmost()->RunCommand(ID_INK_DELETE_NOTE); }});
  m_frame->RunCommand(ID_FILE_NEW);
  EXPECT_EQ(g_memo.NameList.size(), 5);
}

TEST_F(MemoCommandsTest, TheMemoUnderTheCurrentRowIsOpened) {
  SelectRow(g_list, 1);
  const test::Steps steps(*m_screen, {WriteAndOK("other")});
  List().OpenAsked(1);
  EXPECT_EQ(Content(u"b.pwi"), "other");
}

TEST_F(MemoCommandsTest, AfterAMemoWasOpenTheListIsBuiltAnewInAnyCase) {
  AddUnlisted();
  SelectRow(g_list, 1);
  const test::Steps steps(*m_screen, {[&] { m_screen->Topmost()->OnCancel(); }});
  List().OpenAsked(1);
  EXPECT_EQ(g_memo.NameList.size(), 6);
}

TEST_F(MemoCommandsTest, AMemoThatIsGoneIsNotOpenedAndLeavesTheList) {
  ASSERT_TRUE(m_deviceHome.Files.Remove(MemoPath(g_memo, QStringLiteral("b.pwi"))));
  SelectRow(g_list, 1);
  m_prompt.Expect(PromptAnswer::OK);
  List().OpenAsked(1);
  EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("The memo could not be read."));
  EXPECT_EQ(g_memo.NameList.size(), 4);
}

}  // namespace
}  // namespace quill
