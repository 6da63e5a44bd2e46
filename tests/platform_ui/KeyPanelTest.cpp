#include "platform/ui/KeyPanel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QSpinBox>

#include <algorithm>

#include "platform/ui/MenuPopup.h"
#include "platform/ui/MessageBox.h"
#include "platform/ui/PreeditWatch.h"
#include "platform_ui/KeysFixture.h"

namespace quill {
namespace {

constexpr int kFirstRepeat = 400;
constexpr int kNextRepeat = 80;

class KeyPanelTest : public test::KeysFixture {
 protected:
  KeyPanelTest() { m_panel.Raise(); }

  Rgb FaceOf(const QString& name) const {
    for (const PaintedRow& row : Keys().Rows())
      if (row.SpokenName == name) return row.Items[0].Fill.value();
    return 0;
  }
};

// A widget that notes the keys that reach it.
class KeyLog : public QWidget {
 public:
  explicit KeyLog(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }
  QStringList Log;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    Log.append(QStringLiteral("%1 %2").arg(event->key()).arg(event->text()));
  }
  void keyReleaseEvent(QKeyEvent* event) override {
    Log.append(QStringLiteral("up %1").arg(event->key()));
  }
};

TEST_F(KeyPanelTest, StandsAboveTheMenuBarWhileThePanelIsUp) {
  EXPECT_TRUE(Keys().isVisible());
  EXPECT_EQ(Keys().geometry(), QRect(0, 216, 240, 80));
  EXPECT_EQ(WidgetAt({120, 216}), &Keys());
  EXPECT_EQ(WidgetAt({120, 295}), &Keys());
  m_panel.Lower();
  EXPECT_FALSE(Keys().isVisible());
}

TEST_F(KeyPanelTest, IsThereAtOnceWhenTheScreenIsMadeWhileThePanelIsUp) {
  const CScreen screen(m_outer.get());
  EXPECT_FALSE(screen.findChild<CKeyPanel*>()->isHidden());
  m_panel.Lower();
  const CScreen other(m_outer.get());
  EXPECT_TRUE(other.findChild<CKeyPanel*>()->isHidden());
}

TEST_F(KeyPanelTest, TypesAKoreanNameWithADigitAndAnAddress) {
  TapKey(QStringLiteral("Hangul"));
  TapLetters(QStringLiteral("ㄱㅣㅁㅊㅓㄹㅅㅜ1ㅇㅗㅏㄴㄱㅏㅂㅅㅏ "));
  TapKey(QStringLiteral("Latin letters"));
  TapKey(QStringLiteral("Shift"));
  TapLetters(QStringLiteral("Kim@x.kr"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("김철수1완갑사 Kim@x.kr"));
}

TEST_F(KeyPanelTest, WhatIsComposedShowsInTheEditorAndIsNoTextYet) {
  TapKey(QStringLiteral("Hangul"));
  TapLetters(QStringLiteral("ㄱㅏㄴㅏ"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("가"));
  EXPECT_EQ(m_screen->Preedit().Preedit(&m_edit), QStringLiteral("나"));
}

TEST_F(KeyPanelTest, BackspaceTakesBackWhatIsComposedAndThenLetters) {
  m_edit.setText(QStringLiteral("a"));
  TapKey(QStringLiteral("Hangul"));
  TapLetters(QStringLiteral("ㄱㅏ"));
  TapKey(QStringLiteral("Backspace"));
  EXPECT_EQ(m_screen->Preedit().Preedit(&m_edit), QStringLiteral("ㄱ"));
  TapKey(QStringLiteral("Backspace"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("a"));
  EXPECT_EQ(m_screen->Preedit().Preedit(&m_edit), QString());
  TapKey(QStringLiteral("Backspace"));
  EXPECT_EQ(m_edit.text(), QString());
}

TEST_F(KeyPanelTest, AHeldBackspaceRepeatsAndItsReleaseAddsNothing) {
  m_edit.setText(QStringLiteral("abcdefgh"));
  const QPoint at = KeyAt(QStringLiteral("Backspace"));
  m_input.Press(at);
  m_timers.Advance(kFirstRepeat - 1);
  EXPECT_EQ(m_edit.text(), QStringLiteral("abcdefgh"));
  m_timers.Advance(1);
  EXPECT_EQ(m_edit.text(), QStringLiteral("abcdefg"));
  m_timers.Advance(kNextRepeat * 3);
  EXPECT_EQ(m_edit.text(), QStringLiteral("abcd"));
  m_input.Release(at);
  m_timers.Advance(1000);
  EXPECT_EQ(m_edit.text(), QStringLiteral("abcd"));
  TapKey(QStringLiteral("Backspace"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("abc")) << "a tap after a hold is a tap";
}

TEST_F(KeyPanelTest, ABackspaceThatIsSlidOffStopsRepeating) {
  m_edit.setText(QStringLiteral("abc"));
  m_input.Press(KeyAt(QStringLiteral("Backspace")));
  m_timers.Advance(kFirstRepeat);
  m_input.Move(KeyAt(QStringLiteral("q")));
  m_timers.Advance(1000);
  EXPECT_EQ(m_edit.text(), QStringLiteral("ab"));
}

TEST_F(KeyPanelTest, LettersDoNotRepeat) {
  m_input.Press(KeyAt(QStringLiteral("q")));
  m_timers.Advance(1000);
  EXPECT_EQ(m_edit.text(), QString());
  m_input.Release(KeyAt(QStringLiteral("q")));
  EXPECT_EQ(m_edit.text(), QStringLiteral("q"));
}

TEST_F(KeyPanelTest, APanelThatGoesStopsRepeating) {
  m_edit.setText(QStringLiteral("abc"));
  m_input.Press(KeyAt(QStringLiteral("Backspace")));
  m_panel.Lower();
  m_timers.Advance(1000);
  EXPECT_EQ(m_edit.text(), QStringLiteral("abc"));
  EXPECT_FALSE(m_timers.IsRunning(Keys(), 1));
}

TEST_F(KeyPanelTest, TheKeyUnderThePenIsShownAndActsWhenItIsLetGo) {
  const Rgb face = FaceOf(QStringLiteral("q"));
  m_input.Press(KeyAt(QStringLiteral("q")));
  EXPECT_NE(FaceOf(QStringLiteral("q")), face);
  EXPECT_EQ(m_edit.text(), QString());
  m_input.Release(KeyAt(QStringLiteral("q")));
  EXPECT_EQ(FaceOf(QStringLiteral("q")), face);
  EXPECT_EQ(m_edit.text(), QStringLiteral("q"));
}

TEST_F(KeyPanelTest, SlidingOffAKeyCancelsIt) {
  const Rgb face = FaceOf(QStringLiteral("q"));
  m_input.Press(KeyAt(QStringLiteral("q")));
  m_input.Move(KeyAt(QStringLiteral("w")));
  EXPECT_EQ(FaceOf(QStringLiteral("q")), face);
  m_input.Move(KeyAt(QStringLiteral("q")));
  m_input.Release(KeyAt(QStringLiteral("q")));
  m_input.Press(KeyAt(QStringLiteral("q")));
  m_input.Release(KeyAt(QStringLiteral("w")));
  EXPECT_EQ(m_edit.text(), QString());
}

TEST_F(KeyPanelTest, APenTypesTooAndTwiceIsTwice) {
  for (const quint64 time : {1000, 1100}) {
    m_input.TabletPress(KeyAt(QStringLiteral("o")), time);
    m_input.TabletRelease(KeyAt(QStringLiteral("o")));
  }
  EXPECT_EQ(m_edit.text(), QStringLiteral("oo"));
}

TEST_F(KeyPanelTest, ShiftHoldsForOneLetterAndTappedTwiceForAll) {
  TapKey(QStringLiteral("Shift"));
  TapLetters(QStringLiteral("Ab"));
  TapKey(QStringLiteral("Shift"));
  TapKey(QStringLiteral("Shift"));
  TapLetters(QStringLiteral("CD"));
  TapKey(QStringLiteral("Shift"));
  TapLetters(QStringLiteral("e"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("AbCDe"));
}

TEST_F(KeyPanelTest, NeverTakesTheFocusAndIsNotReachedByTab) {
  QLineEdit second(&m_frame);
  second.show();
  TapKey(QStringLiteral("q"));
  EXPECT_TRUE(m_edit.hasFocus());
  EXPECT_EQ(Keys().focusPolicy(), Qt::NoFocus);
  TapKey(QStringLiteral("Tab"));
  EXPECT_TRUE(second.hasFocus());
  TapKey(QStringLiteral("Tab"));
  EXPECT_TRUE(m_edit.hasFocus());
}

TEST_F(KeyPanelTest, ArrowsAndReturnAreKeysOfTheEditor) {
  int returns = 0;
  QObject::connect(&m_edit, &QLineEdit::returnPressed, &m_edit, [&returns] { ++returns; });
  TapLetters(QStringLiteral("ac"));
  TapKey(QStringLiteral("Left"));
  TapLetters(QStringLiteral("b"));
  TapKey(QStringLiteral("Right"));
  TapLetters(QStringLiteral("d"));
  TapKey(QStringLiteral("Return"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("abcd"));
  EXPECT_EQ(returns, 1);
}

TEST_F(KeyPanelTest, AKeyThatIsNoTextEndsTheSyllable) {
  TapKey(QStringLiteral("Hangul"));
  TapLetters(QStringLiteral("ㄱㅏ"));
  TapKey(QStringLiteral("Left"));
  TapLetters(QStringLiteral("ㅏ"));
  TapKey(QStringLiteral("Return"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("ㅏ가"));
}

TEST_F(KeyPanelTest, AWidgetWithoutInputMethodGetsKeys) {
  KeyLog log(&m_frame);
  log.show();
  log.setFocus();
  TapLetters(QStringLiteral("q "));
  TapKey(QStringLiteral("Hangul"));
  TapLetters(QStringLiteral("ㄱ"));
  TapKey(QStringLiteral("Backspace"));
  EXPECT_EQ(log.Log,
            (QStringList{QStringLiteral("81 q"), QStringLiteral("up 81"), QStringLiteral("32  "),
                         QStringLiteral("up 32"), QStringLiteral("0 ㄱ"), QStringLiteral("up 0"),
                         QStringLiteral("16777219 \b"), QStringLiteral("up 16777219")}));
}

TEST_F(KeyPanelTest, WithoutAnyFocusTheScreenGetsTheKeys) {
  m_edit.clearFocus();
  ASSERT_EQ(QApplication::focusWidget(), nullptr);
  TapLetters(QStringLiteral("q"));
  TapKey(QStringLiteral("Backspace"));
  EXPECT_EQ(m_edit.text(), QString());
}

TEST_F(KeyPanelTest, TypesIntoATextOfSeveralLines) {
  QPlainTextEdit text(&m_frame);
  text.show();
  text.setFocus();
  TapKey(QStringLiteral("Hangul"));
  TapLetters(QStringLiteral("ㄱㅏ"));
  TapKey(QStringLiteral("Return"));
  TapLetters(QStringLiteral("ㄴㅏ1"));
  EXPECT_EQ(text.toPlainText(), QStringLiteral("가\n나1"));
}

TEST_F(KeyPanelTest, TypesIntoASpinBox) {
  QSpinBox number(&m_frame);
  number.show();
  number.setFocus();
  number.selectAll();
  TapLetters(QStringLiteral("42"));
  EXPECT_EQ(number.value(), 42);
}

struct HintCase {
  Qt::InputMethodHints Hints;
  const char* Key;  // that only the expected page has
};

class KeyPanelHints : public KeyPanelTest, public testing::WithParamInterface<HintCase> {};

TEST_P(KeyPanelHints, ChooseTheFirstPage) {
  TapKey(QStringLiteral("Hangul"));
  QLineEdit other(&m_frame);
  other.setInputMethodHints(GetParam().Hints);
  other.show();
  other.setFocus();
  EXPECT_TRUE(HasKey(QString::fromUtf8(GetParam().Key)));
  m_edit.setFocus();
  EXPECT_TRUE(HasKey(QStringLiteral("ㄱ"))) << "the last language is back";
}

INSTANTIATE_TEST_SUITE_P(Editors, KeyPanelHints,
                         testing::Values(HintCase{Qt::ImhNone, "ㄱ"},
                                         HintCase{Qt::ImhDigitsOnly, "#"},
                                         HintCase{Qt::ImhDialableCharactersOnly, "#"},
                                         HintCase{Qt::ImhEmailCharactersOnly, "q"}));

TEST_F(KeyPanelTest, APopupLeavesThePageAsItIs) {
  TapKey(QStringLiteral("Digits and signs"));
  const test::Steps steps(*m_screen, {[this] { m_screen->Popup()->Dismiss(); }});
  m_input.Key(Qt::Key_Menu);
  EXPECT_TRUE(m_edit.hasFocus());
  EXPECT_TRUE(HasKey(QStringLiteral("#")));
}

TEST_F(KeyPanelTest, TheLanguageOutlivesTheWindowAndTheDigitsDoNot) {
  TapKey(QStringLiteral("Hangul"));
  TapKey(QStringLiteral("Digits and signs"));
  EXPECT_EQ(g_keyPanel.Letters, KeySet::Hangul);
  const CScreen next(m_outer.get());
  const auto& keys = *next.findChild<CKeyPanel*>();
  EXPECT_EQ(std::ranges::count(keys.Rows(), QStringLiteral("ㄱ"), &PaintedRow::SpokenName), 1);
  TapKey(QStringLiteral("Latin letters"));
  EXPECT_EQ(g_keyPanel.Letters, KeySet::Latin);
}

TEST_F(KeyPanelTest, WorksInADialogAboveItsShade) {
  test::SampleDialog dialog(*m_screen);
  auto& edit = *qobject_cast<QLineEdit*>(dialog.Control(test::kFirstEdit));
  edit.clear();
  const test::Steps steps(*m_screen, {[&] {
    edit.setFocus();
    TapLetters(QStringLiteral("kim"));
    TapKey(QStringLiteral("Return"));
  }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
  EXPECT_EQ(edit.text(), QStringLiteral("kim"));
  EXPECT_TRUE(Keys().isVisible());
}

TEST_F(KeyPanelTest, WorksWhenItComesWhileADialogIsOpen) {
  m_panel.Lower();
  test::SampleDialog dialog(*m_screen, test::FullScreenSample());
  auto& edit = *qobject_cast<QLineEdit*>(dialog.Control(test::kFirstEdit));
  edit.clear();
  const test::Steps steps(*m_screen, {[&] {
    m_panel.Raise();
    edit.setFocus();
    TapLetters(QStringLiteral("kim"));
    dialog.OnOK();
  }});
  dialog.DoModal();
  EXPECT_EQ(edit.text(), QStringLiteral("kim"));
}

TEST_F(KeyPanelTest, LiesBelowAPopup) {
  const test::Steps steps(*m_screen, {[this] {
    m_panel.Lower();
    m_panel.Raise();
    EXPECT_NE(WidgetAt(kKeyPanelArea.center()), &Keys());
    TapKey(QStringLiteral("q"));
  }});
  m_input.Key(Qt::Key_Menu);
  EXPECT_EQ(m_edit.text(), QString()) << "the tap dismissed the menu";
  TapKey(QStringLiteral("q"));
  EXPECT_EQ(m_edit.text(), QStringLiteral("q"));
}

TEST_F(KeyPanelTest, ASmallWindowMovesOutOfItsWay) {
  m_panel.Lower();
  CMessageBox box(*m_screen, {.Text = QStringLiteral("a\n").repeated(8)});
  const int top = box.y();
  const test::Steps steps(*m_screen, {[&] {
    EXPECT_EQ(box.y(), top);
    m_panel.Raise();
    EXPECT_LE(box.geometry().bottom(), 215);
    EXPECT_EQ(box.x(), 10);
    box.OnOK();
  }});
  ASSERT_GT(box.geometry().bottom(), 215);
  box.DoModal();
  CMessageBox next(*m_screen, {.Text = QStringLiteral("a\n").repeated(8)});
  const test::Steps nextSteps(*m_screen, {[&] {
    EXPECT_LE(next.geometry().bottom(), 215);
    next.OnOK();
  }});
  next.DoModal();
}

TEST_F(KeyPanelTest, ASmallWindowAsTallAsTheScreenStandsBeforeIt) {
  CMessageBox box(*m_screen, {.Text = QStringLiteral("a\n").repeated(30)});
  const test::Steps steps(*m_screen, {[&] {
    EXPECT_EQ(box.y(), 0);
    QWidget* const button = box.Control(kResultOK);
    EXPECT_EQ(WidgetAt(button->mapTo(m_screen, button->rect().center())), button);
    box.OnOK();
  }});
  box.DoModal();
}

TEST_F(KeyPanelTest, ItsKeysCanBePressedByAssistiveTechnology) {
  const auto rows = Keys().Rows();
  for (std::size_t i = 0; i < rows.size(); ++i)
    if (rows[i].SpokenName == QStringLiteral("q")) Keys().ActivateRow(static_cast<int>(i));
  EXPECT_EQ(m_edit.text(), QStringLiteral("q"));
  EXPECT_EQ(Keys().accessibleName(), QStringLiteral("Keys"));
  EXPECT_EQ(Keys().Role(), QAccessible::Grouping);
}

}  // namespace
}  // namespace quill
