#include "platform/ui/TypedDropDown.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>

#include "platform/Services.h"
#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class TypedDropDownTest : public test::ScreenFixture {
 protected:
  TypedDropDownTest() : m_frame(*m_screen), m_list(*m_screen, &m_frame), m_other(&m_frame) {
    m_list.addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("20")});
    m_list.setGeometry(10, 20, 50, 18);
    m_list.show();
    m_other.setGeometry(10, 60, 90, 18);
    m_other.show();
    m_other.setFocus();
    m_list.SetText(QStringLiteral("2"));
    m_list.Changed = [this] { ++m_changes; };
  }

  QPoint OnText() const { return m_list.mapTo(m_screen, QPoint(8, 9)); }
  QPoint OnArrow() const { return m_list.mapTo(m_screen, QPoint(44, 9)); }
  // Opens the list and acts in it; the last step closes it.
  void OpenAnd(std::vector<Step> steps) {
    steps.insert(steps.begin(), [this] { m_input.Release(OnArrow()); });
    const Steps running(*m_screen, std::move(steps));
    m_input.Press(OnArrow());
  }
  void Choose(const char16_t* entry) {
    OpenAnd({[this, entry] {
      m_input.Tap(RowNamed(*m_screen->Popup(), QString::fromUtf16(entry)).center());
    }});
  }
  void TypeOver(const QString& text) {
    m_input.Tap(OnText());
    m_list.lineEdit()->selectAll();
    m_input.Type(text);
  }

  test::SampleFrame m_frame;
  CTypedDropDown m_list;
  QLineEdit m_other;
  int m_changes = 0;
};

TEST_F(TypedDropDownTest, TakesAnyTextAndSaysSo) {
  TypeOver(QStringLiteral("7x"));
  EXPECT_EQ(m_list.currentText(), QStringLiteral("7x"));
  EXPECT_EQ(m_changes, 2);
}

TEST_F(TypedDropDownTest, NeverTakesWhatIsTypedForAnEntry) {
  TypeOver(QStringLiteral("7"));
  m_input.Key(Qt::Key_Return);
  EXPECT_EQ(m_list.count(), 3);
}

TEST_F(TypedDropDownTest, CompletesNothing) {
  TypeOver(QStringLiteral("2"));
  EXPECT_EQ(m_list.currentText(), QStringLiteral("2"));
  m_other.setFocus();
  EXPECT_EQ(m_list.currentText(), QStringLiteral("2"));
  EXPECT_EQ(m_list.completer(), nullptr);
}

TEST_F(TypedDropDownTest, ATypedEntryIsTheCurrentOneAndLeavingSaysNothingMore) {
  TypeOver(QStringLiteral("20"));
  EXPECT_EQ(m_list.currentIndex(), 2);
  m_changes = 0;
  m_other.setFocus();
  EXPECT_EQ(m_changes, 0);
}

TEST_F(TypedDropDownTest, AChosenEntryIsShownAndSaidAlsoTheOneThatWasShown) {
  Choose(u"20");
  EXPECT_EQ(m_list.currentText(), QStringLiteral("20"));
  EXPECT_EQ(m_changes, 1);
  Choose(u"20");
  EXPECT_EQ(m_changes, 2);
}

TEST_F(TypedDropDownTest, AChosenEntryTakesThePlaceOfWhatWasTyped) {
  TypeOver(QStringLiteral("7"));
  Choose(u"2");
  EXPECT_EQ(m_list.currentText(), QStringLiteral("2"));
}

TEST_F(TypedDropDownTest, TheListOpensInsideTheFrameAtTheEntryThatIsShown) {
  OpenAnd({[this] {
    EXPECT_TRUE(m_screen->rect().contains(m_screen->Popup()->geometry()));
    EXPECT_FALSE(m_screen->Popup()->Items()[0].Checked);
    EXPECT_TRUE(m_screen->Popup()->Items()[1].Checked);
    m_screen->Popup()->Dismiss();
  }});
}

TEST_F(TypedDropDownTest, NoEntryIsTheShownOneWhileAnotherTextIsTyped) {
  TypeOver(QStringLiteral("7"));
  OpenAnd({[this] {
    for (const MenuItem& item : m_screen->Popup()->Items()) EXPECT_FALSE(item.Checked);
    m_screen->Popup()->Dismiss();
  }});
  EXPECT_EQ(m_list.currentText(), QStringLiteral("7"));
}

TEST_F(TypedDropDownTest, ATextThatIsSetIsShownAndNotSaid) {
  m_list.SetText(QStringLiteral("7"));
  EXPECT_EQ(m_list.currentText(), QStringLiteral("7"));
  EXPECT_EQ(m_list.currentIndex(), -1);
  m_list.SetText(QStringLiteral("20"));
  EXPECT_EQ(m_list.currentIndex(), 2);
  m_list.SetText(QString());
  EXPECT_EQ(m_list.currentText(), QString());
  EXPECT_EQ(m_changes, 0);
}

TEST_F(TypedDropDownTest, HasThePanelUpWhileItHasTheFocus) {
  m_input.Tap(OnText());
  EXPECT_TRUE(m_panel.IsUp());
  m_input.Tap(m_other.mapTo(m_screen, m_other.rect().center()));
  EXPECT_FALSE(m_panel.IsUp());
}

TEST_F(TypedDropDownTest, ItsListMovesThePanelNeitherUpNorDown) {
  m_input.Tap(OnText());
  OpenAnd({[this] {
    EXPECT_TRUE(m_panel.IsUp());
    m_screen->Popup()->Dismiss();
  }});
  EXPECT_TRUE(m_panel.IsUp());
}

TEST_F(TypedDropDownTest, ItsEditMenuOpensInsideTheFrame) {
  m_input.Tap(OnText());
  m_list.lineEdit()->selectAll();
  const Steps steps(*m_screen, {[this] {
    ASSERT_NE(m_screen->Popup(), nullptr);
    EXPECT_TRUE(m_screen->rect().contains(m_screen->Popup()->geometry()));
    EXPECT_TRUE(m_screen->Popup()->Choose(EditMenuIds::kCut));
  }});
  QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, m_list.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(m_list.lineEdit(), &event);
  EXPECT_EQ(m_list.currentText(), QString());
  EXPECT_EQ(QApplication::focusWidget(), &m_list);
}

TEST_F(TypedDropDownTest, TheMenuKeyOpensTheEditMenu) {
  m_input.Tap(OnText());
  const Steps steps(*m_screen, {[this] { m_screen->Popup()->Dismiss(); }});
  m_input.Key(Qt::Key_Menu);
  EXPECT_TRUE(m_panel.IsUp());
}

TEST_F(TypedDropDownTest, TheTabKeyStopsAtItOnce) {
  m_list.setFocus();
  m_input.Key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &m_other);
  m_input.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), &m_list);
  EXPECT_EQ(m_list.lineEdit()->selectedText(), QStringLiteral("2"));
}

TEST_F(TypedDropDownTest, WhatAnInputMethodCommitsIsTypedToo) {
  m_input.Tap(OnText());
  m_list.lineEdit()->selectAll();
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("15"));
  QCoreApplication::sendEvent(&m_list, &commit);
  EXPECT_EQ(m_list.currentText(), QStringLiteral("15"));
  EXPECT_EQ(m_changes, 1);
}

}  // namespace
}  // namespace quill
