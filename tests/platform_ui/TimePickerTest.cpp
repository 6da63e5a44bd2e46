#include "platform/ui/TimePicker.h"

#include <QApplication>
#include <QLineEdit>
#include <QToolButton>

#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class TimePickerTest : public test::ScreenFixture {
 protected:
  TimePickerTest() {
    m_picker.setGeometry(80, 40, 78, 17);
    m_picker.SetTime({9, 30, 12});
    m_picker.show();
    m_picker.Changed = [this] { ++m_changes; };
  }

  QToolButton& Button() { return *m_picker.findChild<QToolButton*>(); }
  // Opens the list by what is given and acts in it.
  void InList(const test::Step& open, const std::function<void(CMenuPopup&)>& act) {
    const test::Steps steps(*m_screen, {[&] { act(*m_screen->Popup()); }});
    open();
  }

  test::SampleFrame m_frame{*m_screen};
  CTimePicker m_picker{&m_frame};
  int m_changes = 0;
};

TEST_F(TimePickerTest, ShowsTwelveHoursLeftOfItsButton) {
  EXPECT_EQ(m_picker.text(), QStringLiteral("09:30 AM"));
  m_picker.setTime({13, 5});
  EXPECT_EQ(m_picker.text(), QStringLiteral("01:05 PM"));
  EXPECT_EQ(Button().geometry(), QRect(61, 0, 17, 17));
}

TEST_F(TimePickerTest, ReturnChangesNothingNotEvenTheSeconds) {
  m_picker.setFocus();
  m_input.Key(Qt::Key_Return);
  EXPECT_EQ(m_picker.time(), QTime(9, 30, 12));
  EXPECT_EQ(m_changes, 0);
}

TEST_F(TimePickerTest, OnlyTheUsersChangesAreTold) {
  m_picker.SetTime({10, 0});
  EXPECT_EQ(m_changes, 0);
  m_picker.setFocus();
  m_picker.setSelectedSection(QDateTimeEdit::MinuteSection);
  m_input.Key(Qt::Key_Up);
  EXPECT_EQ(m_picker.time(), QTime(10, 1));
  EXPECT_EQ(m_changes, 1);
}

TEST_F(TimePickerTest, IsTypedSectionBySection) {
  m_picker.setFocus();
  m_picker.setSelectedSection(QDateTimeEdit::HourSection);
  m_input.Type(QStringLiteral("1145pm"));
  EXPECT_EQ(m_picker.text(), QStringLiteral("11:45 PM"));
}

TEST_F(TimePickerTest, ATapOnASectionLetsWhatIsTypedTakeItsPlace) {
  m_input.Tap(m_picker.mapTo(m_screen, QPoint(26, 8)));  // the minutes
  EXPECT_EQ(m_picker.currentSection(), QDateTimeEdit::MinuteSection);
  m_input.Type(QStringLiteral("45"));
  EXPECT_EQ(m_picker.text(), QStringLiteral("09:45 AM"));
  m_input.Tap(m_picker.mapTo(m_screen, QPoint(6, 8)));
  m_input.Type(QStringLiteral("11"));
  EXPECT_EQ(m_picker.text(), QStringLiteral("11:45 AM"));
}

TEST_F(TimePickerTest, OneLetterChoosesTheHalfOfTheDay) {
  m_picker.setFocus();
  m_picker.setSelectedSection(QDateTimeEdit::AmPmSection);
  m_input.Type(QStringLiteral("p"));
  EXPECT_EQ(m_picker.text(), QStringLiteral("09:30 PM"));
  m_input.Type(QStringLiteral("m"));
  EXPECT_EQ(m_picker.text(), QStringLiteral("09:30 PM"));
  m_input.Type(QStringLiteral("a"));
  EXPECT_EQ(m_picker.text(), QStringLiteral("09:30 AM"));
}

TEST_F(TimePickerTest, ItsButtonOffersEveryHalfHourFromTheOneShown) {
  InList([&] { m_input.Tap(Button().mapTo(m_screen, Button().rect().center())); },
         [&](CMenuPopup& list) {
           ASSERT_EQ(list.Items().size(), 48U);
           EXPECT_EQ(list.Items()[0].Text, QStringLiteral("12:00 AM"));
           EXPECT_EQ(list.Items()[47].Text, QStringLiteral("11:30 PM"));
           const auto current = static_cast<std::size_t>(list.CurrentRow());
           EXPECT_EQ(list.Rows()[current].SpokenName, QStringLiteral("09:30 AM"));
           list.Choose(list.Items()[27].Id);
         });
  EXPECT_EQ(m_picker.time(), QTime(13, 30));
  EXPECT_EQ(m_changes, 1);
  EXPECT_TRUE(m_picker.isAncestorOf(QApplication::focusWidget()) ||
              QApplication::focusWidget() == &m_picker);
}

TEST_F(TimePickerTest, ADismissedListChangesNothing) {
  InList([&] { m_picker.OpenList(); }, [](CMenuPopup& list) { list.Dismiss(); });
  EXPECT_EQ(m_picker.time(), QTime(9, 30, 12));
  EXPECT_EQ(m_changes, 0);
}

TEST_F(TimePickerTest, KeysOpenTheList) {
  m_picker.setFocus();
  InList([&] { m_input.Key(Qt::Key_F4); }, [](CMenuPopup& list) { list.Dismiss(); });
  InList([&] { m_input.Key(Qt::Key_Down, Qt::AltModifier); },
         [](CMenuPopup& list) { list.Dismiss(); });
}

TEST_F(TimePickerTest, ItsMenuOpensInsideTheFrame) {
  m_picker.setFocus();
  InList([&] { m_input.Key(Qt::Key_Menu); },
         [](CMenuPopup& menu) {
           EXPECT_EQ(menu.Items().front().Text, QStringLiteral("Cut"));
           menu.Dismiss();
         });
}

TEST_F(TimePickerTest, OutsideAScreenItHasNoList) {
  CTimePicker alone(nullptr);
  alone.setTime({8, 0});
  alone.OpenList();
  EXPECT_EQ(alone.time(), QTime(8, 0));
}

}  // namespace
}  // namespace quill
