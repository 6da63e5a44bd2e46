#include "memo/ui/InkMemoDialog.h"

#include <QAbstractButton>
#include <QApplication>

#include "ink/InkRecovery.h"
#include "memo_ui/InkMemoFixture.h"

namespace quill {
namespace {

using test::kNote;
using test::kOther;

using InkMemoDialogTest = test::InkMemoFixture;

const QString kQuestion = QStringLiteral("This memo will be deleted. Continue?");
const QString kBadName = QStringLiteral("Please check the file name is valid.");

TEST_F(InkMemoDialogTest, IsAFullScreenDialogWithTheMenusAndButtonsOfInk) {
  Edit({[&] {
          EXPECT_EQ(Editor().Caption(), QStringLiteral("Memo"));
          EXPECT_EQ(Editor().Kind(), WindowKind::Dialog);
          EXPECT_EQ(Editor().geometry(), kClientArea);
          const MenuBarModel bar = Editor().MenuBar();
          ASSERT_EQ(bar.Menus.size(), 2U);
          EXPECT_EQ(bar.Buttons[0].Id, ID_INK_TOGGLE);
          EXPECT_EQ(bar.Buttons[1].Id, ID_INK_MODE);
          Editor().RunCommand(ID_INK_ZOOM_75);
          EXPECT_EQ(Ink().Zoom(), 75);
        },
        Cancel()});
}

TEST_F(InkMemoDialogTest, BeginsAsAPageOfTheBuffersInkInFocus) {
  Edit({[&] {
          EXPECT_EQ(Ink().Data(), kNote);
          EXPECT_EQ(Ink().PageStyle(), kInkPage);
          EXPECT_EQ(Ink().Zoom(), 100);
          EXPECT_EQ(Ink().Wrap(), 1);
          EXPECT_EQ(Ink().View(), kInkPlainView);
          EXPECT_TRUE(Ink().isVisible());
          EXPECT_EQ(QApplication::focusWidget(), &Ink());
        },
        Cancel()});
}

TEST_F(InkMemoDialogTest, TheControlLeavesTwentyFivePixelsUntilTheWindowIsResized) {
  Edit({[&] {
          EXPECT_EQ(Ink().geometry(), Editor().rect().adjusted(0, 0, 0, -25));
          m_panel.Raise();
          EXPECT_EQ(Editor().geometry(), m_panel.VisibleArea());
          EXPECT_EQ(Ink().geometry(), Editor().rect());
          m_panel.Lower();
          EXPECT_EQ(Ink().geometry(), Editor().rect());
        },
        Cancel()});
}

TEST_F(InkMemoDialogTest, OpenedWithThePanelUpItEndsWhereThePanelBegins) {
  m_panel.Raise();
  Edit({[&] {
          EXPECT_EQ(Editor().geometry(), m_panel.VisibleArea());
          EXPECT_EQ(Ink().geometry(), Editor().rect().adjusted(0, 0, 0, -25));
        },
        Cancel()});
}

TEST_F(InkMemoDialogTest, OKWritesAnExistingMemo) {
  EXPECT_EQ(Edit({Write(kOther), OK()}), kResultOK);
  EXPECT_EQ(Content(Path(u"a.pwi")), kOther);
  EXPECT_EQ(g_memo.Buffer, kOther);
}

TEST_F(InkMemoDialogTest, OKAfterMereLookingWritesTheSameBytes) {
  EXPECT_EQ(Edit({[&] { Editor().RunCommand(ID_INK_MODE); }, OK()}), kResultOK);
  EXPECT_EQ(Content(Path(u"a.pwi")), kNote);
}

TEST_F(InkMemoDialogTest, AnExistingMemoMayBecomeEmpty) {
  EXPECT_EQ(Edit({Write({}), OK()}), kResultOK);
  EXPECT_EQ(Content(Path(u"a.pwi")), QByteArray());
}

TEST_F(InkMemoDialogTest, CancelLeavesTheFileAsItWas) {
  EXPECT_EQ(Edit({Write(kOther), Cancel()}), kResultCancel);
  EXPECT_EQ(Content(Path(u"a.pwi")), kNote);
}

TEST_F(InkMemoDialogTest, InkThatIsNoFilesIsLeftInTheBuffer) {
  g_memo.Buffer = kNote;
  EXPECT_EQ(RunOnInk({Write(kOther), OK()}), kResultOK);
  EXPECT_EQ(g_memo.Buffer, kOther);
}

// Files that can be read only.
class FullFiles : public DesktopDeviceFiles {
 public:
  using DesktopDeviceFiles::DesktopDeviceFiles;
  bool WriteWhole(const QString&, const QByteArray&) override { return false; }
};

TEST_F(InkMemoDialogTest, AnExistingMemoThatCannotBeWrittenStaysOpenWithItsInk) {
  m_prompt.Expect(PromptAnswer::OK);
  FullFiles full({.Device = m_home.Folder.path(),
                  .MyDocuments = m_home.Folder.filePath(QStringLiteral("My Documents"))});
  EXPECT_EQ(Edit({Write(kOther), [&] { g_services.Files = &full; }, OK(),
                  [&] {
                    ASSERT_EQ(m_prompt.Shown().size(), 1U);
                    EXPECT_EQ(
                        m_prompt.Shown()[0].Text,
                        QStringLiteral("Cannot save. The storage is full or cannot be written."));
                    EXPECT_EQ(Ink().Data(), kOther);
                  },
                  Cancel()}),
            kResultCancel);
}

TEST_F(InkMemoDialogTest, ANewMemoIsWrittenUnderTheNameThatIsEntered) {
  EXPECT_EQ(WriteNew({Write(kNote), OK(),
                      [&] {
                        EXPECT_EQ(m_screen->Topmost()->Caption(), QStringLiteral("Save As"));
                        EnterName(Path(u"given.pwi"));
                      }}),
            kResultOK);
  EXPECT_EQ(m_proposed, Path(u"new.pwi"));
  EXPECT_EQ(Content(Path(u"given.pwi")), kNote);
  EXPECT_EQ(Content(Path(u"new.pwi")), std::nullopt);
  EXPECT_EQ(g_memo.Buffer, kNote);
}

TEST_F(InkMemoDialogTest, ANewMemoTakesThePlaceOfAFileOfItsName) {
  Put(Path(u"new.pwi"), kOther);
  EXPECT_EQ(WriteNew({Write(kNote), OK(), Name(Path(u"new.pwi"))}), kResultOK);
  EXPECT_EQ(Content(Path(u"new.pwi")), kNote);
}

TEST_F(InkMemoDialogTest, ANewMemoWithNothingOnItEndsWithCancelAndMakesNoFile) {
  EXPECT_EQ(WriteNew({OK()}), kResultCancel);
  EXPECT_EQ(Content(Path(u"new.pwi")), std::nullopt);
}

TEST_F(InkMemoDialogTest, ANewMemoThatIsGivenNoNameEndsWithCancel) {
  EXPECT_EQ(WriteNew({Write(kNote), OK(), Cancel()}), kResultCancel);
  EXPECT_EQ(Content(Path(u"new.pwi")), std::nullopt);
}

class InkMemoName : public InkMemoDialogTest,
                    public testing::WithParamInterface<const char16_t*> {};

TEST_P(InkMemoName, ThatCannotBeMadeKeepsTheEditorOpenWithItsInk) {
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(WriteNew({Write(kNote), OK(), Name(QString::fromUtf16(GetParam())),
                      [&] {
                        ASSERT_EQ(m_prompt.Shown().size(), 1U);
                        EXPECT_EQ(m_prompt.Shown()[0].Text, kBadName);
                        EXPECT_EQ(Ink().Data(), kNote);
                      },
                      OK(), Name(Path(u"better.pwi"))}),
            kResultOK);
  EXPECT_EQ(Content(Path(u"better.pwi")), kNote);
}

INSTANTIATE_TEST_SUITE_P(Names, InkMemoName,
                         testing::Values(u"", u"\\My Documents\\Fennick\\A/B.pwi",
                                         u"\\No such folder\\a.pwi", u"\\My Documents\\Fennick",
                                         u"\\My Documents\\Fennick\\a?.pwi"));

TEST_F(InkMemoDialogTest, DeleteNoteAsksAndANoChangesNothing) {
  m_prompt.Expect(PromptAnswer::No);
  EXPECT_EQ(Edit({Delete(),
                  [&] {
                    EXPECT_EQ(m_prompt.Shown()[0].Text, kQuestion);
                    EXPECT_EQ(Ink().Data(), kNote);
                    EXPECT_EQ(g_memo.Buffer, kNote);
                  },
                  OK()}),
            kResultOK);
  EXPECT_EQ(Content(Path(u"a.pwi")), kNote);
}

TEST_F(InkMemoDialogTest, DeleteNoteRemovesAnExistingMemosFileAndEndsWithCancel) {
  m_prompt.Expect(PromptAnswer::Yes);
  EXPECT_EQ(Edit({Delete()}), kResultCancel);
  EXPECT_EQ(Content(Path(u"a.pwi")), std::nullopt);
  EXPECT_EQ(g_memo.Buffer, QByteArray());
}

TEST_F(InkMemoDialogTest, DeleteNoteOfANewMemoEndsWithOKAndAnEmptyBuffer) {
  Put(Path(u"new.pwi"), kOther);
  m_prompt.Expect(PromptAnswer::Yes);
  EXPECT_EQ(WriteNew({Write(kNote), Delete()}), kResultOK);
  EXPECT_EQ(g_memo.Buffer, QByteArray());
  EXPECT_EQ(Content(Path(u"new.pwi")), kOther);
}

TEST_F(InkMemoDialogTest, DeleteNoteOfInkThatIsNoFilesEndsWithOKAndAnEmptyBuffer) {
  g_memo.Buffer = kNote;
  m_prompt.Expect(PromptAnswer::Yes);
  EXPECT_EQ(RunOnInk({Delete()}), kResultOK);
  EXPECT_EQ(g_memo.Buffer, QByteArray());
}

// What a crash would leave of a memo.
class InkMemoRecovery : public InkMemoDialogTest {
 protected:
  test::Step Draw() {
    return [this] {
      InkStroke dot;
      dot.Points = {{.X = 320, .Y = 320}};
      Ink().Document().AddStroke(dot, {});
      EXPECT_TRUE(IsKept());
    };
  }
  test::Step Type() {
    return [this] { Ink().Document().Type(0, 0, QStringLiteral("tea")); };
  }
  test::Step End() {
    return [this] { m_screen->CloseAll(); };
  }
  bool IsKept() const {
    return FindUnsavedInk(InkRecoveryName(Path(u"a.pwi"))).has_value() ||
           FindUnsavedInk(kNewInkRecoveryName.toString()).has_value();
  }
  int EditEmpty(std::vector<test::Step> steps) {
    Put(Path(u"a.pwi"), {});
    return Run(InkMemoKind::Existing, Path(u"a.pwi"), std::move(steps));
  }
};

TEST_F(InkMemoRecovery, NothingIsKeptOfAMemoThatWasSaved) {
  EXPECT_EQ(EditEmpty({Draw(), OK()}), kResultOK);
  EXPECT_FALSE(IsKept());
}

TEST_F(InkMemoRecovery, NothingIsKeptOfAMemoThatWasGivenUp) {
  EXPECT_EQ(EditEmpty({Draw(), Cancel()}), kResultCancel);
  EXPECT_FALSE(IsKept());
}

TEST_F(InkMemoRecovery, NothingIsKeptOfADeletedMemo) {
  m_prompt.Expect(PromptAnswer::Yes);
  EXPECT_EQ(EditEmpty({Draw(), Delete()}), kResultCancel);
  EXPECT_FALSE(IsKept());
}

TEST_F(InkMemoRecovery, NothingIsKeptOfANewMemoWhoseInkWasErased) {
  EXPECT_EQ(WriteNew({Draw(), [&] { Ink().Document().ClearAll(); }, OK()}), kResultCancel);
  EXPECT_FALSE(IsKept());
}

TEST_F(InkMemoRecovery, WhatTheProgramsEndClosesIsKept) {
  EXPECT_EQ(EditEmpty({Draw(), Type(), End()}), kResultCancel);
  const auto kept = FindUnsavedInk(InkRecoveryName(Path(u"a.pwi")));
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->Note.Strokes.size(), 1U);
  EXPECT_EQ(kept->Note.Text.Text, QStringLiteral("tea"));
}

TEST_F(InkMemoRecovery, ANewMemoWhoseNameTheProgramsEndClosesIsKept) {
  EXPECT_EQ(WriteNew({Draw(), OK(), End()}), kResultCancel);
  EXPECT_TRUE(IsKept());
}

TEST_F(InkMemoRecovery, WhatWasTypedLastIsKeptOfANewMemoThatIsGivenNoName) {
  EXPECT_EQ(WriteNew({Type(), OK(), Cancel()}), kResultCancel);
  const auto kept = FindUnsavedInk(kNewInkRecoveryName.toString());
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->Note.Text.Text, QStringLiteral("tea"));
}

TEST_F(InkMemoRecovery, ANewMemoThatIsGivenNoNameIsOfferedToTheNext) {
  EXPECT_EQ(WriteNew({Draw(), OK(), Cancel()}), kResultCancel);
  EXPECT_TRUE(IsKept());
  g_memo.Buffer.clear();
  EXPECT_EQ(WriteNew({[&] {
                        ASSERT_NE(Editor().Control(InkIds::kRestore), nullptr);
                        qobject_cast<QAbstractButton*>(Editor().Control(InkIds::kRestore))->click();
                        EXPECT_EQ(Ink().Document().Note().Strokes.size(), 1U);
                      },
                      OK(), Name(Path(u"b.pwi"))}),
            kResultOK);
  EXPECT_FALSE(IsKept());
  EXPECT_NE(Content(Path(u"b.pwi")), std::nullopt);
}

TEST_F(InkMemoRecovery, ADeletedNewMemoLeavesWhatIsOfferedOfOthers) {
  EXPECT_EQ(WriteNew({Draw(), OK(), Cancel()}), kResultCancel);
  m_prompt.Expect(PromptAnswer::Yes);
  g_memo.Buffer.clear();
  EXPECT_EQ(WriteNew({Draw(), Delete()}), kResultOK);
  EXPECT_TRUE(IsKept());
}

TEST_F(InkMemoRecovery, TheOfferGivesWayToThePanel) {
  EXPECT_EQ(WriteNew({Draw(), OK(), Cancel()}), kResultCancel);
  g_memo.Buffer.clear();
  WriteNew({[&] {
              EXPECT_NE(Editor().Control(InkIds::kRestore), nullptr);
              m_panel.Raise();
              EXPECT_EQ(Editor().Control(InkIds::kRestore), nullptr);
            },
            Cancel()});
}

// Whoever opened the editor has it, and may lose it still.
TEST_F(InkMemoRecovery, InkThatIsNoFilesIsKeptBeyondTheEditor) {
  EXPECT_EQ(RunOnInk({Type(), OK()}), kResultOK);
  const auto kept = FindUnsavedInk(test::kInkPlace);
  ASSERT_TRUE(kept);
  EXPECT_EQ(kept->Note.Text.Text, QStringLiteral("tea"));
}

TEST_F(InkMemoDialogTest, TheProgramsEndIsACancel) {
  EXPECT_EQ(Edit({Write(kOther), [&] { m_screen->CloseAll(); }}), kResultCancel);
  EXPECT_EQ(Content(Path(u"a.pwi")), kNote);
}

}  // namespace
}  // namespace quill
