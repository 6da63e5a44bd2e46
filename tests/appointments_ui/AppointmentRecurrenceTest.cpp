// The recurrence of an appointment, through its dialog and the wizard.
#include <QAbstractButton>

#include "appointments_ui/AppointmentDlgFixture.h"
#include "resources/Ids.h"

namespace quill {
namespace {

constexpr int kEditPattern = static_cast<int>(RecurrenceChoice::EditPattern);

class AppointmentRecurrence : public test::AppointmentDlgFixture {
 protected:
  test::Step OpenWizard() { return Chooses(AppointmentIds::kRecurrence, kEditPattern); }
  test::Step ChangeStart(QDate date, QTime time) {
    return [this, date, time] {
      Get<CDatePicker>(AppointmentIds::kStartDate).ChooseDate(date);
      Get<CTimePicker>(AppointmentIds::kStartTime).setTime(time);
    };
  }
  test::Step ExpectChoice(int index) {
    return [this, index] { EXPECT_EQ(Index(AppointmentIds::kRecurrence), index); };
  }
  // Every two weeks on its day, from Tuesday on.
  static AppointmentItem EverySecondWeek() {
    AppointmentItem item = Tea();
    item.Recurrence = PatternOf(item);
    item.Recurrence->Interval = 2;
    return item;
  }
};

TEST_F(AppointmentRecurrence, TheWizardBeginsWeeklyOnTheDayOfTheStart) {
  Add({ChangeStart({2004, 2, 9}, {18, 0}), OpenWizard(), OK(), OK()});
  const auto pattern = Only().Recurrence;
  ASSERT_TRUE(pattern);
  EXPECT_EQ(pattern->Type, RecurrenceType::Weekly);
  EXPECT_EQ(pattern->DayOfWeekMask, 4) << "Monday, stored one day later";
  EXPECT_EQ(pattern->PatternStartDate, QDate(2004, 2, 9));
  EXPECT_EQ(pattern->StartTime, QTime(18, 0));
  EXPECT_EQ(pattern->EndTime, QTime(18, 0));
}

TEST_F(AppointmentRecurrence, AStartThatIsChangedAfterTheWizardIsThePatternsToo) {
  Add({OpenWizard(), OK(), ChangeStart({2004, 2, 10}, {18, 0}),
       [&] {
         Get<CTimePicker>(AppointmentIds::kEndTime).setTime({20, 0});
       },
       OK()});
  const auto pattern = Only().Recurrence;
  ASSERT_TRUE(pattern);
  EXPECT_EQ(pattern->DayOfWeekMask, 8) << "as the wizard set it";
  EXPECT_EQ(pattern->PatternStartDate, QDate(2004, 2, 10));
  EXPECT_EQ(pattern->StartTime, QTime(18, 0));
  EXPECT_EQ(pattern->EndTime, QTime(20, 0));
  EXPECT_EQ(pattern->Duration, 120);
}

TEST_F(AppointmentRecurrence, APatternOfItsOwnIsSavedAsItWas) {
  const AppointmentItem item = EverySecondWeek();
  EXPECT_EQ(Saved(item, {ExpectChoice(kEditPattern)}).Recurrence, item.Recurrence);
}

TEST_F(AppointmentRecurrence, ATimeThatIsChangedIsSavedInAPatternOfItsOwn) {
  const AppointmentItem saved =
      Saved(EverySecondWeek(), {ChangeStart({2004, 2, 3}, {10, 0}), ExpectChoice(kEditPattern)});
  ASSERT_TRUE(saved.Recurrence);
  EXPECT_EQ(saved.Recurrence->StartTime, QTime(10, 0));
  EXPECT_EQ(saved.Recurrence->Duration, 30);
  EXPECT_EQ(saved.Recurrence->Interval, 2);
}

TEST_F(AppointmentRecurrence, ACancelledWizardOfANewOneMeansOnceAlsoAfterItWasDone) {
  Add({OpenWizard(), OK(), ExpectChoice(kEditPattern), OpenWizard(), Cancel(), ExpectChoice(0),
       Cancel()});
}

TEST_F(AppointmentRecurrence, ACancelledWizardOfAnExistingOneMeansItsStoredChoice) {
  Edit(Add(EverySecondWeek()), {Chooses(AppointmentIds::kRecurrence, 1), OpenWizard(), Cancel(),
                                ExpectChoice(kEditPattern), Cancel()});
}

// What the store refused is not in hand when the dialog goes on.
TEST_F(AppointmentRecurrence, AFailedSaveLeavesTheWizardsPatternAlone) {
  m_prompt.Expect(PromptAnswer::OK);
  m_store.OfCalendar().Save = true;
  Add({Chooses(AppointmentIds::kRecurrence, 1), OK(), [&] { m_store.OfCalendar().Save = false; },
       OpenWizard(), OK(), OK()});
  EXPECT_EQ(Only().Recurrence->Type, RecurrenceType::Weekly);
}

}  // namespace
}  // namespace quill
