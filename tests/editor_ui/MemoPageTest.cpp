#include "editor/ui/MemoPage.h"

#include <QAbstractButton>
#include <QApplication>

#include "SheetFixture.h"
#include "editor/Draft.h"
#include "ink/InkRecovery.h"
#include "ink/ui/InkX.h"
#include "support/ScriptedPrompt.h"

namespace quill {
namespace {

using enum ContactField;

constexpr int kMemo = 2;
const QByteArray kNote = "a note of another make";
const QByteArray kOther = "another one";

class MemoPageTest : public test::SheetFixture {
 protected:
  MemoPageTest() { g_services.Prompt = &m_prompt; }
  ~MemoPageTest() override { g_services.Prompt = nullptr; }

  Oid AddKim() {
    ContactRecord record;
    record[FileAs] = QStringLiteral("Kim");
    return Add(record, kNote);
  }
  // Null before the page was shown.
  InkX* Ink() const { return m_sheet->findChild<InkX*>(); }
  void ShowMemo() { m_sheet->ShowPage(kMemo); }
  QRect PageRect() const { return m_sheet->ActivePage()->rect(); }
  MenuItem Button(int position) const {
    return m_sheet->MenuBar().Buttons[static_cast<std::size_t>(position)];
  }

  test::ScriptedPrompt m_prompt;
};

TEST_F(MemoPageTest, ItsControlIsMadeWhenItIsFirstShownAndStays) {
  InSheet(AddKim(), [&] {
    EXPECT_EQ(Ink(), nullptr);
    ShowMemo();
    InkX* const ink = Ink();
    ASSERT_NE(ink, nullptr);
    EXPECT_TRUE(ink->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), ink);
    m_sheet->ShowPage(0);
    EXPECT_FALSE(ink->isVisible());
    ShowMemo();
    EXPECT_EQ(Ink(), ink);
    EXPECT_EQ(QApplication::focusWidget(), ink);
  });
}

TEST_F(MemoPageTest, TheControlLeavesTwentyPixelsUntilThePageIsResized) {
  InSheet(AddKim(), [&] {
    ShowMemo();
    EXPECT_EQ(Ink()->geometry(), PageRect().adjusted(0, 0, 0, -20));
    m_panel.Raise();
    EXPECT_EQ(Ink()->geometry(), PageRect());
    EXPECT_LT(PageRect().height(), 200);
    m_panel.Lower();
    EXPECT_EQ(Ink()->geometry(), PageRect());
  });
}

TEST_F(MemoPageTest, ThePanelThatComesWhileAnotherPageIsShownIsMadeRoomFor) {
  InSheet(AddKim(), [&] {
    ShowMemo();
    m_sheet->ShowPage(0);
    m_panel.Raise();
    ShowMemo();
    EXPECT_EQ(Ink()->geometry(), PageRect());
    EXPECT_LT(PageRect().height(), 200);
  });
}

TEST_F(MemoPageTest, ShowsTheContactsNoteAsAPage) {
  InSheet(AddKim(), [&] {
    ShowMemo();
    EXPECT_EQ(Ink()->Data(), kNote);
    EXPECT_EQ(Ink()->PageStyle(), kInkPage);
    EXPECT_EQ(Ink()->Zoom(), 100);
    EXPECT_EQ(Ink()->Wrap(), 1);
    EXPECT_EQ(Ink()->View(), kInkPlainView);
  });
}

TEST_F(MemoPageTest, ItsMenuBarIsThatOfInkAndGoesWithThePage) {
  InSheet(AddKim(), [&] {
    ShowMemo();
    ASSERT_EQ(m_sheet->MenuBar().Menus.size(), 2U);
    EXPECT_EQ(Button(0).Id, ID_INK_TOGGLE);
    EXPECT_EQ(Button(1).Id, ID_INK_MODE);
    m_sheet->RunCommand(ID_INK_ZOOM_150);
    EXPECT_EQ(Ink()->Zoom(), 150);
    m_sheet->ShowPage(0);
    EXPECT_EQ(m_sheet->MenuBar().Menus.size(), 1U);
    EXPECT_EQ(m_sheet->RunCommand(ID_INK_ZOOM_75), CommandResult::Unknown);
  });
}

TEST_F(MemoPageTest, TheInkSurvivesASwitchToAnotherPageAndBack) {
  InSheet(AddKim(), [&] {
    ShowMemo();
    Ink()->SetData(kOther);
    m_sheet->ShowPage(0);
    EXPECT_EQ(g_contactInk.Bytes, kOther);
    ShowMemo();
    EXPECT_EQ(Ink()->Data(), kOther);
  });
}

TEST_F(MemoPageTest, OKStoresTheInkAndLeavesNeitherInkNorControl) {
  const Oid kim = AddKim();
  CEditRecordSheet sheet(*m_screen, QStringLiteral("Edit"));
  sheet.SetContact(kim);
  const test::Steps steps(*m_screen, {[&] {
    sheet.ShowPage(kMemo);
    sheet.findChild<InkX*>()->SetData(kOther);
    sheet.OnOK();
  }});
  ASSERT_EQ(sheet.DoModal(), kResultOK);
  EXPECT_EQ(sheet.findChild<InkX*>(), nullptr);
  EXPECT_EQ(g_contactInk.Count(), 0);
  EXPECT_EQ(Stored(kim).BodyInk, kOther);
}

TEST_F(MemoPageTest, ANoteThatWasNotTouchedIsStoredAsItWas) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    ShowMemo();
    m_sheet->RunCommand(ID_INK_MODE);
    PressOK();
  });
  EXPECT_EQ(Stored(kim).BodyInk, kNote);
}

TEST_F(MemoPageTest, CancelLeavesTheContactItsNote) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    ShowMemo();
    Ink()->SetData(kOther);
    m_sheet->ShowPage(0);
  });
  EXPECT_EQ(Stored(kim).BodyInk, kNote);
  EXPECT_EQ(g_contactInk.Count(), 0);
  EXPECT_EQ(LoadDraft(kim), std::nullopt);
}

TEST_F(MemoPageTest, DeleteNoteAsksAndANoChangesNothing) {
  const Oid kim = AddKim();
  m_prompt.Expect(PromptAnswer::No);
  InSheet(kim, [&] {
    ShowMemo();
    m_sheet->RunCommand(ID_INK_DELETE_NOTE);
    EXPECT_EQ(Ink()->Data(), kNote);
    EXPECT_EQ(g_contactInk.Bytes, kNote);
    PressOK();
  });
  EXPECT_EQ(Stored(kim).BodyInk, kNote);
}

TEST_F(MemoPageTest, DeleteNoteEmptiesTheNote) {
  const Oid kim = AddKim();
  m_prompt.Expect(PromptAnswer::Yes);
  InSheet(kim, [&] {
    ShowMemo();
    m_sheet->RunCommand(ID_INK_DELETE_NOTE);
    EXPECT_EQ(Ink()->DataLength(), 0);
    EXPECT_EQ(g_contactInk.Count(), 0);
    PressOK();
  });
  EXPECT_EQ(Stored(kim).BodyInk, QByteArray());
}

TEST_F(MemoPageTest, InkThatOKCouldNotStoreIsADraft) {
  const Oid kim = AddKim();
  InSheet(kim, [&] {
    ShowMemo();
    Ink()->SetData(kOther);
    m_store.Faults().Save = true;
    PressOK();
  });
  ASSERT_TRUE(LoadDraft(kim).has_value());
  EXPECT_EQ(LoadDraft(kim)->Ink, kOther);
}

TEST_F(MemoPageTest, InkOfANewContactWithoutAnyNameIsADraft) {
  InSheet(0, [&] {
    ShowMemo();
    Ink()->SetData(kOther);
    PressOK();
  });
  ASSERT_TRUE(LoadDraft(0).has_value());
  EXPECT_EQ(LoadDraft(0)->Ink, kOther);
  EXPECT_EQ(Count(AllContacts()), 0);
}

TEST_F(MemoPageTest, InkThatTheProgramsEndClosesIsADraft) {
  InSheet(0, [&] {
    ShowMemo();
    Ink()->SetData(kOther);
    m_isEnded = true;
    m_sheet->EndDialog(kResultCancel);
  });
  ASSERT_TRUE(LoadDraft(0).has_value());
  EXPECT_EQ(LoadDraft(0)->Ink, kOther);
}

// Recovery files in which no drafts can be written.
class WithoutDrafts : public RecoveryFiles {
 public:
  explicit WithoutDrafts(RecoveryFiles& inner) : m_inner(inner) {}

  std::optional<QByteArray> Read(const QString& name) const override { return m_inner.Read(name); }
  bool Write(const QString& name, const QByteArray& content) override {
    return name != QStringLiteral("drafts.json") && m_inner.Write(name, content);
  }
  bool Append(const QString& name, const QByteArray& bytes) override {
    return m_inner.Append(name, bytes);
  }
  bool Remove(const QString& name) override { return m_inner.Remove(name); }
  bool SetAside(const QString& name) override { return m_inner.SetAside(name); }

 private:
  RecoveryFiles& m_inner;
};

// What a crash would leave of Kim's ink.
class MemoPageRecovery : public MemoPageTest {
 protected:
  MemoPageRecovery() {
    ContactRecord record;
    record[FileAs] = QStringLiteral("Kim");
    m_kim = Add(record);
  }
  void Draw() {
    InkStroke dot;
    dot.Points = {{.X = 320, .Y = 320}};
    Ink()->Document().AddStroke(dot, {});
    EXPECT_TRUE(IsKept());
  }
  bool IsKept() const { return FindUnsavedInk(ContactInkRecoveryName(m_kim)).has_value(); }

  Oid m_kim = 0;
};

TEST_F(MemoPageRecovery, NothingIsKeptOfInkThatWasStored) {
  InSheet(m_kim, [&] {
    ShowMemo();
    Draw();
    PressOK();
  });
  EXPECT_FALSE(IsKept());
  EXPECT_NE(Stored(m_kim).BodyInk, QByteArray());
}

TEST_F(MemoPageRecovery, NothingIsKeptOfInkThatWasGivenUp) {
  InSheet(m_kim, [&] {
    ShowMemo();
    Draw();
  });
  EXPECT_FALSE(IsKept());
}

TEST_F(MemoPageRecovery, NothingIsKeptOfADeletedNote) {
  m_prompt.Expect(PromptAnswer::Yes);
  InSheet(m_kim, [&] {
    ShowMemo();
    Draw();
    m_sheet->RunCommand(ID_INK_DELETE_NOTE);
    EXPECT_FALSE(IsKept());
    m_sheet->RunCommand(ID_INK_UNDO);
    EXPECT_EQ(Ink()->Document().Note().Strokes.size(), 1U);
  });
}

TEST_F(MemoPageRecovery, InkThatBecomesADraftIsKeptThereOnly) {
  InSheet(m_kim, [&] {
    ShowMemo();
    Draw();
    m_isEnded = true;
    m_sheet->EndDialog(kResultCancel);
  });
  EXPECT_NE(LoadDraft(m_kim), std::nullopt);
  EXPECT_FALSE(IsKept());
}

TEST_F(MemoPageRecovery, InkThatCanBeNeitherStoredNorADraftStaysOnItsPageUntilItCan) {
  m_prompt.Expect(PromptAnswer::OK);
  WithoutDrafts withoutDrafts(m_home.Recovery);
  InSheet(m_kim, [&] {
    ShowMemo();
    Draw();
    m_store.Faults().Save = true;
    g_services.Recovery = &withoutDrafts;
    PressOK();
    EXPECT_TRUE(IsKept());
    m_store.Faults().Save = false;
    PressOK();
  });
  EXPECT_FALSE(IsKept());
  EXPECT_NE(Stored(m_kim).BodyInk, QByteArray());
}

TEST_F(MemoPageRecovery, InkThatCannotBecomeADraftAtTheProgramsEndIsStillKept) {
  WithoutDrafts withoutDrafts(m_home.Recovery);
  InSheet(m_kim, [&] {
    ShowMemo();
    Draw();
    g_services.Recovery = &withoutDrafts;
    m_isEnded = true;
    m_sheet->EndDialog(kResultCancel);
  });
  EXPECT_TRUE(IsKept());
}

TEST_F(MemoPageRecovery, WhatACrashLeftIsOfferedOnThePage) {
  {
    InkDocument document;
    InkRecovery crashed(document, ContactInkRecoveryName(m_kim));
    InkStroke dot;
    dot.Points = {{.X = 320, .Y = 320}};
    document.AddStroke(dot, {});
  }
  InSheet(m_kim, [&] {
    ShowMemo();
    m_panel.Raise();
    EXPECT_EQ(m_sheet->Control(InkIds::kRestore), nullptr);
    m_panel.Lower();
    ASSERT_NE(m_sheet->Control(InkIds::kRestore), nullptr);
    qobject_cast<QAbstractButton*>(m_sheet->Control(InkIds::kRestore))->click();
    PressOK();
  });
  EXPECT_NE(Stored(m_kim).BodyInk, QByteArray());
  EXPECT_FALSE(IsKept());
}

TEST_F(MemoPageTest, ADraftThatIsTakenBackShowsItsInk) {
  ASSERT_NE(SaveDraft({.Ink = kOther}), 0);
  InSheet(0, [&] {
    ShowMemo();
    EXPECT_EQ(Ink()->DataLength(), 0);
    qobject_cast<QAbstractButton*>(m_sheet->Control(RecordSheetIds::kRestoreDraft))->click();
    EXPECT_EQ(Ink()->Data(), kOther);
  });
}

}  // namespace
}  // namespace quill
