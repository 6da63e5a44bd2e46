#include "platform/ui/CalendarDlg.h"

#include <QPushButton>

#include "platform/Services.h"
#include "platform/ui/CalendarView.h"
#include "platform_ui/AccessibleChild.h"
#include "platform_ui/DialogFixture.h"
#include "platform_ui/SampleWindows.h"
#include "support/FixedClock.h"

namespace quill {
namespace {

using test::Step;
using test::Steps;

class CalendarDlgTest : public test::DialogFixture {
 protected:
  int Run(std::vector<Step> steps) {
    const Steps running(*m_screen, std::move(steps));
    return m_dialog.DoModal();
  }
  Step Keys(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return [this, key, modifiers] { m_input.Key(key, modifiers); };
  }
  CCalendarView& View() const { return Get<CCalendarView>(m_dialog, CalendarIds::kMonth); }
  QPoint On(const QString& name) const { return RowNamed(View(), name).center(); }
  Step Tap(const QString& name) {
    return [this, name] { m_input.Tap(On(name)); };
  }

  // A clock that is there before the dialog asks it.
  struct Today {
    explicit Today(QDate date) : Clock(QDateTime(date, {9, 30})) { g_services.Clock = &Clock; }
    ~Today() { g_services.Clock = nullptr; }
    Today(const Today&) = delete;
    Today& operator=(const Today&) = delete;
    test::FixedClock Clock;
  };

  Today m_today{{2004, 9, 15}};
  test::SampleFrame m_frame{*m_screen};
  CCalendarDlg m_dialog{*m_screen, {2004, 9, 8}};
};

TEST_F(CalendarDlgTest, StandsAboveTheInputPanelAndShowsTheDay) {
  m_panel.Raise();
  EXPECT_TRUE(m_panel.VisibleArea().contains(m_dialog.geometry()));
  EXPECT_EQ(View().Current(), QDate(2004, 9, 8));
  EXPECT_EQ(ClientPlace(m_dialog, CalendarIds::kMonth), QRect(3, 3, 190, 133));
}

TEST_F(CalendarDlgTest, ATapOnADayChoosesIt) {
  EXPECT_EQ(Run({Tap(QStringLiteral("Tuesday, September 28, 2004"))}), kResultOK);
  EXPECT_EQ(m_dialog.Date(), QDate(2004, 9, 28));
}

TEST_F(CalendarDlgTest, APenThatLeavesTheDayChoosesNothing) {
  const int result = Run({[this] {
                            m_input.Press(On(QStringLiteral("Tuesday, September 28, 2004")));
                            const QPoint other = On(QStringLiteral("Monday, September 27, 2004"));
                            m_input.Move(other);
                            m_input.Release(other);
                            EXPECT_EQ(View().Current(), QDate(2004, 9, 8));
                          },
                          Keys(Qt::Key_Escape)});
  EXPECT_EQ(result, kResultCancel);
}

TEST_F(CalendarDlgTest, ItsButtonsMoveTheDayAndChooseNothing) {
  Run({Tap(QStringLiteral("Ten years back")), Tap(QStringLiteral("Next month")),
       [this] { EXPECT_EQ(View().Current(), QDate(1994, 10, 8)); },
       Tap(QStringLiteral("Previous year")), Tap(QStringLiteral("Previous month")),
       [this] { EXPECT_EQ(View().Current(), QDate(1993, 9, 8)); }, Keys(Qt::Key_Escape)});
}

TEST_F(CalendarDlgTest, ATapOnAHeadDoesNothing) {
  Run({Tap(QStringLiteral("Sunday")), Tap(QStringLiteral("September")),
       [this] { EXPECT_EQ(View().Current(), QDate(2004, 9, 8)); }, Keys(Qt::Key_Escape)});
}

TEST_F(CalendarDlgTest, KeysMoveTheDayAndReturnChoosesIt) {
  EXPECT_EQ(
      Run({[this] { EXPECT_TRUE(View().hasFocus()); }, Keys(Qt::Key_Right), Keys(Qt::Key_Down),
           Keys(Qt::Key_PageUp), Keys(Qt::Key_PageUp, Qt::ControlModifier), Keys(Qt::Key_Return)}),
      kResultOK);
  EXPECT_EQ(m_dialog.Date(), QDate(2003, 8, 16));
}

TEST_F(CalendarDlgTest, EscapeAndItsButtonCancel) {
  EXPECT_EQ(Run({Keys(Qt::Key_Escape)}), kResultCancel);
  EXPECT_EQ(Run({[this] { TapControl(m_dialog, kResultCancel); }}), kResultCancel);
}

TEST_F(CalendarDlgTest, TodayIsChosenByItsButton) {
  EXPECT_EQ(Run({[this] { TapControl(m_dialog, CalendarIds::kToday); }}), kResultOK);
  EXPECT_EQ(m_dialog.Date(), QDate(2004, 9, 15));
}

TEST_F(CalendarDlgTest, TabGoesFromTheDaysToTheButtons) {
  Run({Keys(Qt::Key_Tab),
       [this] { EXPECT_TRUE(m_dialog.Control(CalendarIds::kToday)->hasFocus()); },
       Keys(Qt::Key_Tab), [this] { EXPECT_TRUE(m_dialog.Control(kResultCancel)->hasFocus()); },
       Keys(Qt::Key_Tab), [this] { EXPECT_TRUE(View().hasFocus()); }, Keys(Qt::Key_Escape)});
}

TEST_F(CalendarDlgTest, DatesBeyondItsEndsBecomeTheNearestWithin) {
  m_today.Clock.Set(QDateTime({3004, 9, 15}, {9, 30}));
  CCalendarDlg dialog(*m_screen, {1800, 5, 5});
  EXPECT_EQ(Get<CCalendarView>(dialog, CalendarIds::kMonth).Current(), QDate(1900, 1, 1));
  const Steps steps(*m_screen, {[&] { TapControl(dialog, CalendarIds::kToday); }});
  EXPECT_EQ(dialog.DoModal(), kResultOK);
  EXPECT_EQ(dialog.Date(), QDate(2999, 12, 31));
}

TEST_F(CalendarDlgTest, AssistiveTechnologyChoosesADayToo) {
  EXPECT_EQ(Run({[this] {
              test::AccessibleChild(View(), u"Wednesday, September 15, 2004, today").Press();
            }}),
            kResultOK);
  EXPECT_EQ(m_dialog.Date(), QDate(2004, 9, 15));
}

TEST_F(CalendarDlgTest, AMonthWithoutADialogOnlyMakesTheDayCurrent) {
  CCalendarView view({2004, 9, 8}, {2004, 9, 15}, &m_frame);
  view.resize(190, 133);
  view.show();
  m_input.Tap(RowNamed(view, QStringLiteral("Friday, September 10, 2004")).center());
  EXPECT_EQ(view.Current(), QDate(2004, 9, 10));
}

}  // namespace
}  // namespace quill
