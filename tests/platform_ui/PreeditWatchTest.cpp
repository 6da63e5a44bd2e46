#include "platform/ui/PreeditWatch.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QPushButton>

#include "platform/ui/Edit.h"
#include "platform/ui/KeyPanel.h"
#include "platform/ui/MenuPopup.h"
#include "platform_ui/DialogFixture.h"
#include "platform_ui/SampleWindows.h"
#include "resources/Ids.h"

namespace quill {
namespace {

constexpr QPoint kOnFrame{200, 200};  // where nothing takes the focus

void SendInput(QWidget& editor, const QString& preedit, const QString& commit = {}) {
  QInputMethodEvent event(preedit, {});
  event.setCommitString(commit);
  QCoreApplication::sendEvent(&editor, &event);
}

// An editor of one of the two kinds, on a frame beside another one. It holds "Kim" and a half-made
// syllable, and whatever a test does to it, the syllable must be in its text.
template <class Editor>
class PreeditWatchTest : public test::DialogFixture {
 protected:
  PreeditWatchTest() : m_frame(*m_screen), m_editor(&m_frame), m_other(&m_frame) {
    m_editor.setGeometry(10, 10, 100, 40);
    m_other.setGeometry(10, 60, 100, 18);
    m_editor.show();
    m_other.show();
    m_editor.setFocus();
    SendInput(m_editor, {}, QStringLiteral("Kim"));
    SendInput(m_editor, QStringLiteral("가"));
  }

  static QString TextOf(const QLineEdit& editor) { return editor.text(); }
  static QString TextOf(const QPlainTextEdit& editor) { return editor.toPlainText(); }
  QString Text() const { return TextOf(m_editor); }
  void Tap(const QWidget& widget) { m_input.Tap(widget.mapTo(m_screen, widget.rect().center())); }

  test::SampleFrame m_frame;
  Editor m_editor;
  QLineEdit m_other;
};

class LineEditor : public CEdit {
 public:
  explicit LineEditor(QWidget* parent) : CEdit({}, parent) {}
};

using Editors = testing::Types<LineEditor, QPlainTextEdit>;
TYPED_TEST_SUITE(PreeditWatchTest, Editors, );

#define EXPECT_KEPT EXPECT_EQ(this->Text(), QStringLiteral("Kim가"))

TYPED_TEST(PreeditWatchTest, KnowsWhatIsComposedAndThatItIsNoText) {
  EXPECT_EQ(this->Text(), QStringLiteral("Kim"));
  EXPECT_EQ(this->m_screen->Preedit().Preedit(&this->m_editor), QStringLiteral("가"));
  EXPECT_EQ(this->m_screen->Preedit().Preedit(&this->m_other), QString());
  EXPECT_EQ(this->m_screen->Preedit().Preedit(nullptr), QString());
}

TYPED_TEST(PreeditWatchTest, WhatTheInputMethodCommitsItselfIsNotThereTwice) {
  SendInput(this->m_editor, {}, QStringLiteral("각"));
  this->m_other.setFocus();
  EXPECT_EQ(this->Text(), QStringLiteral("Kim각"));
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenTheFocusIsTaken) {
  this->m_other.setFocus();
  EXPECT_KEPT;
  EXPECT_EQ(this->m_screen->Preedit().Preedit(&this->m_editor), QString());
  EXPECT_EQ(this->m_other.text(), QString());
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenTheFocusIsCleared) {
  this->m_editor.clearFocus();
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenATapGoesElsewhere) {
  this->Tap(this->m_other);
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenATapMovesTheCaret) {
  this->m_input.Tap(this->m_editor.mapTo(this->m_screen, QPoint(2, 8)));
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenAPenTouchesWhatTakesNoFocus) {
  this->m_input.TabletPress(kOnFrame);
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenAFingerTouchesWhatTakesNoFocus) {
  const QPoint onTitle = kTitleBarArea.center();  // where touches do not become presses of a mouse
  this->m_input.TouchPress(onTitle);
  EXPECT_KEPT;
  this->m_input.TouchRelease(onTitle);
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenASecondPressFollowsQuickly) {
  this->m_input.PressAgain(kOnFrame);
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenAKeyMovesTheCaret) {
  this->m_input.Key(Qt::Key_Home);
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, AModifierAloneLeavesItComposed) {
  for (const int key :
       {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_CapsLock, Qt::Key_AltGr})
    this->m_input.KeyPress(key);
  EXPECT_EQ(this->m_screen->Preedit().Preedit(&this->m_editor), QStringLiteral("가"));
}

TYPED_TEST(PreeditWatchTest, ATapOnAKeyOfThePanelLeavesItComposed) {
  this->m_panel.Raise();
  this->m_input.Press(kKeyPanelArea.center());
  EXPECT_EQ(this->m_screen->Preedit().Preedit(&this->m_editor), QStringLiteral("가"));
}

TYPED_TEST(PreeditWatchTest, AKeyOfThePanelDoesNotMixWithAnotherInputMethod) {
  this->m_panel.Raise();
  const auto& keys = *this->m_screen->template findChild<CKeyPanel*>();
  this->m_input.Tap(this->RowNamed(keys, QStringLiteral("q")).center());
  EXPECT_EQ(this->Text(), QStringLiteral("Kim가q"));
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenThePanelGoes) {
  this->m_panel.Raise();
  EXPECT_EQ(this->Text(), QStringLiteral("Kim"));
  this->m_panel.Lower();
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenAMenuOpens) {
  QString meanwhile;
  const test::Steps steps(*this->m_screen, {[this, &meanwhile] {
    meanwhile = this->Text();
    this->m_screen->Popup()->Dismiss();
  }});
  this->m_screen->TrackMenu({50, 50}, {{.Text = QStringLiteral("A"), .Id = 1}});
  EXPECT_EQ(meanwhile, QStringLiteral("Kim가"));
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenACommandRuns) {
  this->m_screen->RunCommand(11);
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenADialogOpens) {
  test::SampleDialog dialog(*this->m_screen);
  QString meanwhile;
  const test::Steps steps(*this->m_screen, {[&] {
    meanwhile = this->Text();
    dialog.OnCancel();
  }});
  dialog.DoModal();
  EXPECT_EQ(meanwhile, QStringLiteral("Kim가"));
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenTheProgramIsClosed) {
  this->m_screen->CloseAll();
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenTheEditorIsHidden) {
  this->m_editor.hide();
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenTheEditorsWindowIsHidden) {
  this->m_frame.hide();
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, KeepsItWhenAnotherProgramIsActivated) {
  QWidget other;
  other.show();
  other.activateWindow();
  QCoreApplication::processEvents();
  ASSERT_NE(QApplication::activeWindow(), this->m_outer.get());
  EXPECT_KEPT;
}

TYPED_TEST(PreeditWatchTest, ForgetsAnEditorThatIsGone) {
  {
    TypeParam gone(&this->m_frame);
    gone.show();
    gone.setFocus();
    SendInput(gone, QStringLiteral("나"));
  }
  this->m_screen->Preedit().Commit();
  EXPECT_KEPT;
}

// The ways out of a dialog whose editor holds a half-made syllable.
enum class WayOut {
  Enter,
  Escape,
  OKButton,
  OKClicked,
  CancelButton,
  TitleOK,
  TitleClose,
  Close,
  EndDialog
};

class DialogWithEditor : public test::SampleDialog {
 public:
  explicit DialogWithEditor(CScreen& screen)
      : SampleDialog(screen, test::FullScreenSample()), Text(this) {
    Text.setGeometry(10, 130, 100, 40);
  }
  void OnOK() override {
    Taken = Text.toPlainText() + Get(test::kFirstEdit).text();
    SampleDialog::OnOK();
  }
  QLineEdit& Get(int id) const { return *qobject_cast<QLineEdit*>(Control(id)); }

  QPlainTextEdit Text;
  QString Taken;
};

class DialogWayOut : public test::DialogFixture, public testing::WithParamInterface<WayOut> {
 protected:
  DialogWayOut() : m_frame(*m_screen), m_dialog(*m_screen) {
    m_dialog.Get(test::kFirstEdit).clear();
  }

  void TapTitle(const QString& name) {
    for (auto* const painted : m_screen->findChildren<CPaintedWindow*>())
      if (painted->Role() == QAccessible::TitleBar) m_input.Tap(RowNamed(*painted, name).center());
  }
  void Leave() {
    switch (GetParam()) {
      case WayOut::Enter:
        return m_input.Key(Qt::Key_Return);
      case WayOut::Escape:
        return m_input.Key(Qt::Key_Escape);
      case WayOut::OKButton:
        return TapControl(m_dialog, kResultOK);
      case WayOut::OKClicked:  // as assistive technology does
        return Get<QPushButton>(m_dialog, kResultOK).click();
      case WayOut::CancelButton:
        return TapControl(m_dialog, kResultCancel);
      case WayOut::TitleOK:
        return TapTitle(QStringLiteral("OK"));
      case WayOut::TitleClose:
        return TapTitle(QStringLiteral("Close"));
      case WayOut::Close:
        m_outer->close();
        return;
      case WayOut::EndDialog:
        return m_dialog.EndDialog(kResultCancel);
    }
  }
  bool IsAccepting() const {
    return GetParam() == WayOut::Enter || GetParam() == WayOut::OKButton ||
           GetParam() == WayOut::OKClicked || GetParam() == WayOut::TitleOK;
  }
  // Composes in an editor of the dialog and leaves it.
  void LeaveWhileComposing(QWidget& editor) {
    const test::Steps steps(*m_screen, {[this, &editor] {
      editor.setFocus();
      SendInput(editor, QStringLiteral("가"));
      Leave();
    }});
    EXPECT_EQ(m_dialog.DoModal(), IsAccepting() ? kResultOK : kResultCancel);
  }

  test::SampleFrame m_frame;
  DialogWithEditor m_dialog;
};

TEST_P(DialogWayOut, ALineThatIsComposedBecomesText) {
  LeaveWhileComposing(m_dialog.Get(test::kFirstEdit));
  EXPECT_EQ(m_dialog.Get(test::kFirstEdit).text(), QStringLiteral("가"));
  EXPECT_EQ(m_dialog.Taken, IsAccepting() ? QStringLiteral("가") : QString());
}

class TextWayOut : public DialogWayOut {};

TEST_P(TextWayOut, ATextThatIsComposedBecomesText) {
  LeaveWhileComposing(m_dialog.Text);
  EXPECT_EQ(m_dialog.Text.toPlainText(), QStringLiteral("가"));
  EXPECT_EQ(m_dialog.Taken, IsAccepting() ? QStringLiteral("가") : QString());
}

INSTANTIATE_TEST_SUITE_P(Ways, DialogWayOut,
                         testing::Values(WayOut::Enter, WayOut::Escape, WayOut::OKButton,
                                         WayOut::OKClicked, WayOut::CancelButton, WayOut::TitleOK,
                                         WayOut::TitleClose, WayOut::Close, WayOut::EndDialog));
// Return is a letter of such an editor.
INSTANTIATE_TEST_SUITE_P(Ways, TextWayOut,
                         testing::Values(WayOut::Escape, WayOut::OKButton, WayOut::OKClicked,
                                         WayOut::CancelButton, WayOut::TitleOK, WayOut::TitleClose,
                                         WayOut::Close, WayOut::EndDialog));

}  // namespace
}  // namespace quill
