#include "platform/ui/DatePicker.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "platform/Services.h"
#include "platform/ui/CalendarDlg.h"
#include "platform/ui/CalendarView.h"
#include "platform/ui/DateEdit.h"
#include "platform/ui/MenuPopup.h"
#include "platform_ui/SampleWindows.h"
#include "platform_ui/ScreenFixture.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

constexpr QRect kPlace(80, 40, 140, 17);

class DatePickerTest : public test::ScreenFixture {
 protected:
  DatePickerTest() {
    g_services.Clock = &m_clock;
    m_other.setGeometry(80, 80, 100, 17);
    m_other.show();
    for (CDatePicker* picker : {&m_picker, &m_plain}) {
      picker->setGeometry(kPlace);
      picker->Changed = [this] { ++m_changes; };
      picker->Left = [this] { ++m_left; };
    }
    m_picker.show();
    m_picker.SetDate(QDate(1990, 5, 12), {});
  }

  template <class Widget>
  static Widget& Part(const CDatePicker& picker) {
    return *picker.findChild<Widget*>();
  }
  CDateEdit& Edit() const { return Part<CDateEdit>(m_picker); }
  void TapPart(const QWidget& part) { m_input.Tap(part.mapTo(m_screen, part.rect().center())); }
  void TypeDate(const QString& text) {
    m_picker.setFocus();
    Edit().setSelectedSection(QDateTimeEdit::MonthSection);
    m_input.Type(text);
  }
  // Opens the calendar by what is given and does something in it.
  void InCalendar(const Step& open, const std::function<void(CCalendarDlg&)>& act) {
    const Steps steps(*m_screen, {[&] { act(dynamic_cast<CCalendarDlg&>(*m_screen->Topmost())); }});
    open();
  }

  test::FixedClock m_clock{QDateTime({2004, 9, 15}, {9, 30})};
  test::SampleFrame m_frame{*m_screen};
  QLineEdit m_other{&m_frame};
  CDatePicker m_picker{NoneCheck::Shown, &m_frame};
  CDatePicker m_plain{NoneCheck::Absent, &m_frame};
  int m_changes = 0;
  int m_left = 0;
};

TEST_F(DatePickerTest, ShowsTheDayBetweenItsCheckAndItsButton) {
  EXPECT_EQ(Edit().text(), QStringLiteral("05/12/1990"));
  EXPECT_EQ(Part<QCheckBox>(m_picker).geometry(), QRect(1, 2, 13, 13));
  EXPECT_EQ(Edit().geometry(), QRect(17, 0, 106, 17));
  EXPECT_EQ(Part<QToolButton>(m_picker).geometry(), QRect(123, 0, 17, 17));
  EXPECT_TRUE(Part<QCheckBox>(m_picker).isChecked());
}

TEST_F(DatePickerTest, ATapOnASectionLetsWhatIsTypedTakeItsPlace) {
  m_input.Tap(Edit().mapTo(m_screen, QPoint(24, 8)));  // the day
  m_input.Type(QStringLiteral("27"));
  EXPECT_EQ(m_picker.Date(), QDate(1990, 5, 27));
}

TEST_F(DatePickerTest, ReturnIsNoChange) {
  m_picker.setFocus();
  m_input.Key(Qt::Key_Return);
  EXPECT_EQ(m_changes, 0);
  EXPECT_EQ(m_picker.Date(), QDate(1990, 5, 12));
}

TEST_F(DatePickerTest, WithoutADayItShowsTheOneToBeginWith) {
  m_picker.SetDate(std::nullopt, {2004, 9, 15});
  EXPECT_EQ(m_picker.Date(), std::nullopt);
  EXPECT_EQ(m_picker.ShownDate(), QDate(2004, 9, 15));
  EXPECT_EQ(Edit().text(), QStringLiteral("09/15/2004"));
  EXPECT_FALSE(Part<QCheckBox>(m_picker).isChecked());
  EXPECT_FALSE(Edit().isEnabled());
}

TEST_F(DatePickerTest, WithoutACheckThereIsAlwaysADay) {
  m_plain.show();
  m_plain.SetDate(std::nullopt, {2004, 9, 15});
  EXPECT_EQ(m_plain.Date(), QDate(2004, 9, 15));
  EXPECT_FALSE(Part<QCheckBox>(m_plain).isVisible());
  EXPECT_EQ(Part<CDateEdit>(m_plain).geometry(), QRect(0, 0, 123, 17));
  m_plain.SetChecked(false);
  EXPECT_EQ(m_plain.Date(), QDate(2004, 9, 15));
}

TEST_F(DatePickerTest, WhatTheProgramSetsIsNoChange) {
  m_picker.SetDate(QDate(2001, 2, 3), {});
  m_picker.SetDate(std::nullopt, {2004, 9, 15});
  m_picker.SetDate(QDate(2001, 2, 3), {});
  EXPECT_EQ(m_picker.Date(), QDate(2001, 2, 3));
  EXPECT_EQ(m_changes, 0);
}

TEST_F(DatePickerTest, DaysBeyondTheCalendarBecomeTheNearestWithin) {
  m_picker.SetDate(QDate(1800, 1, 1), {});
  EXPECT_EQ(m_picker.Date(), QDate(1900, 1, 1));
  m_picker.SetDate(QDate(4501, 1, 1), {});
  EXPECT_EQ(m_picker.Date(), QDate(2999, 12, 31));
}

TEST_F(DatePickerTest, TheCheckTakesTheDayAwayAndGivesItBack) {
  TapPart(Part<QCheckBox>(m_picker));
  EXPECT_EQ(m_picker.Date(), std::nullopt);
  EXPECT_FALSE(Edit().isEnabled());
  EXPECT_EQ(m_changes, 1);
  TapPart(Part<QCheckBox>(m_picker));
  EXPECT_EQ(m_picker.Date(), QDate(1990, 5, 12));
  EXPECT_TRUE(Edit().isEnabled());
  EXPECT_EQ(m_changes, 2);
}

TEST_F(DatePickerTest, DigitsAreEnough) {
  TypeDate(QStringLiteral("02042001"));
  EXPECT_EQ(m_picker.Date(), QDate(2001, 2, 4));
  EXPECT_EQ(Edit().text(), QStringLiteral("02/04/2001"));
  EXPECT_GT(m_changes, 0);
}

TEST_F(DatePickerTest, SlashesMayBeTyped) {
  TypeDate(QStringLiteral("12/31/2999"));
  EXPECT_EQ(m_picker.Date(), QDate(2999, 12, 31));
  TypeDate(QStringLiteral("1/3/2001"));
  EXPECT_EQ(m_picker.Date(), QDate(2001, 1, 3));
}

TEST_F(DatePickerTest, WhatIsNoDayIsNeverOne) {
  for (const char* const text :
       {"13", "00", "99/99/9999", "02/31/2001", "x", "12/31/1899", "2/3", "//", "0229"}) {
    m_picker.SetDate(QDate(1990, 5, 12), {});
    TypeDate(QString::fromLatin1(text));
    m_other.setFocus();
    ASSERT_TRUE(m_picker.Date().has_value()) << text;
    EXPECT_TRUE(m_picker.Date()->isValid()) << text;
    EXPECT_EQ(Edit().text(), m_picker.Date()->toString(QStringLiteral("MM/dd/yyyy"))) << text;
  }
}

struct TypedDay {
  QDate Before;
  const char* Typed;
  QDate After;  // once the focus has gone on
};

// The clock stands in 2004.
class TypedDayTest : public DatePickerTest, public testing::WithParamInterface<TypedDay> {};

TEST_P(TypedDayTest, IsTheDayThatWasMeant) {
  m_picker.SetDate(GetParam().Before, {});
  TypeDate(QString::fromLatin1(GetParam().Typed));
  m_other.setFocus();
  EXPECT_EQ(m_picker.Date(), GetParam().After);
  EXPECT_EQ(Edit().text(), GetParam().After.toString(QStringLiteral("MM/dd/yyyy")));
}

INSTANTIATE_TEST_SUITE_P(ALeapDayWaitsForItsYear, TypedDayTest,
                         testing::Values(TypedDay{{2005, 3, 31}, "02/29/2004", {2004, 2, 29}},
                                         TypedDay{{2005, 2, 10}, "02292008", {2008, 2, 29}},
                                         TypedDay{{2005, 1, 15}, "02/29/80", {1980, 2, 29}},
                                         TypedDay{{2005, 1, 15}, "02/29/20", {2020, 2, 29}},
                                         TypedDay{{2004, 2, 29}, "02/29/2005", {2005, 2, 28}}));
INSTANTIATE_TEST_SUITE_P(AYearOfTwoDigitsIsTheNearest, TypedDayTest,
                         testing::Values(TypedDay{{2004, 9, 15}, "02/14/80", {1980, 2, 14}},
                                         TypedDay{{2004, 9, 15}, "02/14/05", {2005, 2, 14}},
                                         TypedDay{{2004, 9, 15}, "02/14/19", {2019, 2, 14}},
                                         TypedDay{{2004, 9, 15}, "02/14/24", {2024, 2, 14}},
                                         TypedDay{{2004, 9, 15}, "02/14/25", {1925, 2, 14}},
                                         TypedDay{{1970, 1, 1}, "051280", {1980, 5, 12}}));
INSTANTIATE_TEST_SUITE_P(AHalfTypedYearIsTheOneBefore, TypedDayTest,
                         testing::Values(TypedDay{{1970, 1, 1}, "05/05/1", {1970, 5, 5}},
                                         TypedDay{{1970, 1, 1}, "05/05/9", {1970, 5, 5}},
                                         TypedDay{{1970, 1, 1}, "05/05/198", {1970, 5, 5}}));

TEST_F(DatePickerTest, ADayThatWaitedIsForgottenOnceAnotherWasChosen) {
  m_picker.SetDate(QDate(2005, 3, 31), {});
  TypeDate(QStringLiteral("0229"));
  m_input.Key(Qt::Key_Left);
  m_input.Type(QStringLiteral("282004"));
  EXPECT_EQ(m_picker.Date(), QDate(2004, 2, 28));
}

TEST_F(DatePickerTest, HomeAndEndSelectTheFirstAndTheLastSection) {
  m_picker.setFocus();
  m_input.Key(Qt::Key_End);
  m_input.Type(QStringLiteral("2001"));
  m_input.Key(Qt::Key_Home);
  m_input.Type(QStringLiteral("0214"));
  EXPECT_EQ(m_picker.Date(), QDate(2001, 2, 14));
}

TEST_F(DatePickerTest, AmongRowsUpAndDownAreTheParents) {
  m_picker.HandOnUpAndDown();
  for (const bool hasDay : {true, false}) {
    m_picker.SetChecked(hasDay);
    m_picker.setFocus();
    const QWidget* const before = QApplication::focusWidget();
    m_input.Key(Qt::Key_Down);
    m_input.Key(Qt::Key_Up);
    m_input.Key(Qt::Key_Up);
    EXPECT_EQ(m_picker.ShownDate(), QDate(1990, 5, 12));
    EXPECT_EQ(QApplication::focusWidget(), before);
  }
}

TEST_F(DatePickerTest, ADigitOnTheEmptyCheckBoxBeginsADay) {
  m_picker.SetDate(std::nullopt, QDate(2004, 9, 15));
  m_picker.setFocus();
  m_input.Type(QStringLiteral("02141980"));
  EXPECT_EQ(m_picker.Date(), QDate(1980, 2, 14));
}

TEST_F(DatePickerTest, WhoChecksTheBoxByAKeyGoesOnInTheEditor) {
  m_picker.SetDate(std::nullopt, QDate(2004, 9, 15));
  m_picker.setFocus();
  m_input.Key(Qt::Key_Space);
  m_input.Type(QStringLiteral("02"));
  EXPECT_EQ(m_picker.Date(), QDate(2004, 2, 15));
}

TEST_F(DatePickerTest, ArrowKeysStepTheSection) {
  m_picker.setFocus();
  Edit().setSelectedSection(QDateTimeEdit::MonthSection);
  m_input.Key(Qt::Key_Up);
  EXPECT_EQ(m_picker.Date(), QDate(1990, 6, 12));
  m_input.Key(Qt::Key_Right);
  m_input.Key(Qt::Key_Down);
  EXPECT_EQ(m_picker.Date(), QDate(1990, 6, 11));
  m_input.Key(Qt::Key_Right);
  m_input.Key(Qt::Key_Right);
  m_input.Key(Qt::Key_Up);
  EXPECT_EQ(m_picker.Date(), QDate(1991, 6, 11)) << "there is no section after the year";
  m_input.Key(Qt::Key_Left);
  m_input.Key(Qt::Key_Up);
  EXPECT_EQ(m_picker.Date(), QDate(1991, 6, 12));
  EXPECT_EQ(m_changes, 4);
}

TEST_F(DatePickerTest, ChoosingTheShownDayAgainIsNoChange) {
  m_picker.ChooseDate({1990, 5, 12});
  EXPECT_EQ(m_changes, 0);
  m_picker.ChooseDate({1990, 5, 13});
  EXPECT_EQ(m_changes, 1);
  m_picker.SetChecked(true);
  EXPECT_EQ(m_changes, 1);
  m_picker.SetChecked(false);
  EXPECT_EQ(m_changes, 2);
  EXPECT_EQ(m_picker.Date(), std::nullopt);
}

TEST_F(DatePickerTest, ItsButtonOpensTheCalendarAtTheDay) {
  InCalendar([this] { TapPart(Part<QToolButton>(m_picker)); },
             [this](CCalendarDlg& calendar) {
               const auto& view =
                   dynamic_cast<CCalendarView&>(*calendar.Control(CalendarIds::kMonth));
               EXPECT_EQ(view.Current(), QDate(1990, 5, 12));
               m_input.Key(Qt::Key_Right);
               m_input.Key(Qt::Key_Return);
             });
  EXPECT_EQ(m_picker.Date(), QDate(1990, 5, 13));
  EXPECT_EQ(m_changes, 1);
  EXPECT_TRUE(Edit().hasFocus());
}

TEST_F(DatePickerTest, ACalendarThatIsCancelledChangesNothing) {
  InCalendar([this] { m_picker.OpenCalendar(); },
             [this](CCalendarDlg&) { m_input.Key(Qt::Key_Escape); });
  EXPECT_EQ(m_picker.Date(), QDate(1990, 5, 12));
  EXPECT_EQ(m_changes, 0);
}

TEST_F(DatePickerTest, TodayIsTheDayOnWhichItIsTappedAlsoAfterMidnight) {
  InCalendar([this] { m_picker.OpenCalendar(); },
             [this](CCalendarDlg& calendar) {
               m_clock.Set(QDateTime({2004, 9, 16}, {0, 0, 1}));
               qobject_cast<QPushButton*>(calendar.Control(CalendarIds::kToday))->click();
             });
  EXPECT_EQ(m_picker.Date(), QDate(2004, 9, 16));
}

TEST_F(DatePickerTest, ADayChosenFromTheCalendarTurnsTheCheckOn) {
  m_picker.SetDate(std::nullopt, {2004, 9, 15});
  InCalendar([this] { m_picker.OpenCalendar(); },
             [this](CCalendarDlg&) { m_input.Key(Qt::Key_Return); });
  EXPECT_EQ(m_picker.Date(), QDate(2004, 9, 15));
  EXPECT_TRUE(Edit().isEnabled());
  EXPECT_EQ(m_changes, 1);
}

TEST_F(DatePickerTest, TodayIsTheClocksDay) {
  InCalendar([this] { m_picker.OpenCalendar(); },
             [](CCalendarDlg& calendar) {
               dynamic_cast<QAbstractButton&>(*calendar.Control(CalendarIds::kToday)).click();
             });
  EXPECT_EQ(m_picker.Date(), QDate(2004, 9, 15));
}

TEST_F(DatePickerTest, KeysOpenTheCalendar) {
  m_picker.setFocus();
  int opened = 0;
  const auto cancel = [&](CCalendarDlg&) {
    ++opened;
    m_input.Key(Qt::Key_Escape);
  };
  InCalendar([this] { m_input.Key(Qt::Key_F4); }, cancel);
  InCalendar([this] { m_input.Key(Qt::Key_Down, Qt::AltModifier); }, cancel);
  EXPECT_EQ(opened, 2);
  EXPECT_EQ(m_picker.Date(), QDate(1990, 5, 12));
}

TEST_F(DatePickerTest, GivesTheFocusToWhatCanBeUsed) {
  m_picker.setFocus();
  EXPECT_TRUE(Edit().hasFocus());
  m_other.setFocus();
  m_picker.SetDate(std::nullopt, {2004, 9, 15});
  m_picker.setFocus();
  EXPECT_TRUE(Part<QCheckBox>(m_picker).hasFocus());
}

TEST_F(DatePickerTest, IsLeftOnlyForAnotherControlOfItsWindow) {
  m_picker.setFocus();
  Part<QCheckBox>(m_picker).setFocus();
  Edit().setFocus();
  EXPECT_EQ(m_left, 0) << "its own parts";
  InCalendar([this] { m_picker.OpenCalendar(); },
             [this](CCalendarDlg&) { m_input.Key(Qt::Key_Escape); });
  EXPECT_EQ(m_left, 0) << "its calendar";
  Edit().clearFocus();
  Edit().setFocus();
  EXPECT_EQ(m_left, 0) << "nobody else has it";
  m_other.setFocus();
  EXPECT_EQ(m_left, 1);
  m_frame.setFocus();
  EXPECT_EQ(m_left, 1) << "it was not there";
}

TEST_F(DatePickerTest, ItsMenuOpensInsideTheFrameAndIsNoLeaving) {
  m_picker.setFocus();
  QGuiApplication::clipboard()->clear();
  Edit().setSelectedSection(QDateTimeEdit::YearSection);
  const auto choose = [this] {
    ASSERT_NE(m_screen->Popup(), nullptr);
    EXPECT_TRUE(m_screen->Popup()->Choose(EditMenuIds::kCopy));
  };
  {
    const Steps steps(*m_screen, {choose});
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, Edit().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&Edit(), &event);
  }
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("1990"));
  const Steps steps(*m_screen, {choose});
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
  QCoreApplication::sendEvent(&Edit(), &event);  // some platforms send it beside the key
  m_input.Key(Qt::Key_Menu);
  EXPECT_EQ(m_left, 0);
}

TEST_F(DatePickerTest, AsksTheInputPanelForDigits) {
  EXPECT_EQ(Edit().inputMethodHints(), Qt::ImhDigitsOnly);
}

TEST_F(DatePickerTest, WorksWhenNobodyAsks) {
  m_picker.Changed = nullptr;
  m_picker.Left = nullptr;
  m_picker.setFocus();
  m_picker.ChooseDate({2001, 1, 1});
  m_other.setFocus();
  EXPECT_EQ(m_picker.Date(), QDate(2001, 1, 1));
}

}  // namespace
}  // namespace quill
