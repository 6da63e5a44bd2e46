#include "appointments/ui/AppointmentDlg.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>

#include "appointments_ui/AppointmentDlgFixture.h"
#include "resources/AppointmentIds.h"
#include "resources/Ids.h"

namespace quill {
namespace {

const QString kCannotSave =
    QStringLiteral("Cannot save. Please check the Start/End date and Recurrence pattern.");

class AppointmentDlgTest : public test::AppointmentDlgFixture {};

TEST_F(AppointmentDlgTest, IsAFullScreenDialogInWhichAllRowsControlsAreHidden) {
  Add({[&] {
         EXPECT_EQ(Dialog().Kind(), WindowKind::Dialog);
         EXPECT_EQ(Dialog().Caption(), QStringLiteral("Hourpetal"));
         for (const auto& [id, control] : Dialog().Controls())
           EXPECT_EQ(control->isVisible(), id == kResultOK || id == kResultCancel) << id;
         EXPECT_EQ(QApplication::focusWidget(), &Rows());
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, ANewOneBeginsWithItsContactAtTheLastHalfHour) {
  AddFor(QStringLiteral("김철수"),
         {[&] {
            EXPECT_EQ(Subject(), QStringLiteral("(김철수)"));
            for (const int id : {AppointmentIds::kStartDate, AppointmentIds::kEndDate})
              EXPECT_EQ(Date(id), QDate(2004, 2, 3));
            for (const int id : {AppointmentIds::kStartTime, AppointmentIds::kEndTime})
              EXPECT_EQ(Time(id), QTime(9, 30));
            EXPECT_EQ(RowText(AppointmentRow::Start), QStringLiteral("2004.02.03 09:30 AM"));
            EXPECT_FALSE(Get<QCheckBox>(AppointmentIds::kAllDay).isChecked());
          },
          Cancel()});
}

TEST_F(AppointmentDlgTest, ANewOneHasNoAlarmTwelveHoursBeforeAndNothingOfItCanBeSet) {
  Add({[&] {
         EXPECT_EQ(Index(AppointmentIds::kAlarm), 1);
         EXPECT_EQ(Get<QLineEdit>(AppointmentIds::kAlarmAmount).text(), QStringLiteral("12"));
         EXPECT_EQ(Index(AppointmentIds::kAlarmUnit), 1);
         EXPECT_EQ(Index(AppointmentIds::kSound), 0);
         for (const int id : {AppointmentIds::kAlarmAmount, AppointmentIds::kAlarmUnit,
                              AppointmentIds::kSound, AppointmentIds::kPlay})
           EXPECT_FALSE(Dialog().Control(id)->isEnabled()) << id;
         EXPECT_TRUE(Dialog().Control(AppointmentIds::kAlarm)->isEnabled());
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, CancelOfANewOneStoresNothing) {
  EXPECT_EQ(Add({Cancel()}), kResultCancel);
  EXPECT_EQ(Count(AllAppointments()), 0);
}

TEST_F(AppointmentDlgTest, ASubjectOfTheLinkAloneIsSavedAsItStands) {
  EXPECT_EQ(Add({OK()}), kResultOK);
  const AppointmentItem item = Only();
  EXPECT_EQ(item.Subject, QStringLiteral("(Kim)"));
  EXPECT_EQ(item.Start, MakeCalendarDate({2004, 2, 3}, {9, 30}));
  EXPECT_EQ(item.End, item.Start);
  EXPECT_EQ(item.Duration, 0);
  EXPECT_EQ(item.BusyStatus, kBusy);
  EXPECT_FALSE(item.ReminderSet);
  EXPECT_EQ(item.ReminderMinutesBeforeStart, 0);
  EXPECT_EQ(item.Recurrence, std::nullopt);
}

TEST_F(AppointmentDlgTest, WithoutASubjectTheUserIsToldAndTheDialogStays) {
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(Add({Set(AppointmentIds::kSubject, {}), OK(),
                 [&] {
                   ASSERT_EQ(m_prompt.Shown().size(), 1U);
                   EXPECT_EQ(m_prompt.Shown()[0].Text, QStringLiteral("Subject is empty..."));
                   EXPECT_EQ(m_prompt.Shown()[0].Icon, PromptIcon::None);
                   EXPECT_EQ(m_prompt.Shown()[0].Caption, kApplicationTitle.toString());
                   EXPECT_EQ(Count(AllAppointments()), 0);
                 },
                 Set(AppointmentIds::kSubject, QStringLiteral("tea")), OK()}),
            kResultOK);
  EXPECT_EQ(Only().Subject, QStringLiteral("tea"));
}

TEST_F(AppointmentDlgTest, WhatTheStoreRefusesIsToldAndStays) {
  m_prompt.Expect(PromptAnswer::OK);
  m_store.OfCalendar().Save = true;
  EXPECT_EQ(Add({OK(),
                 [&] {
                   ASSERT_EQ(m_prompt.Shown().size(), 1U);
                   EXPECT_EQ(m_prompt.Shown()[0].Text, kCannotSave);
                   EXPECT_EQ(m_prompt.Shown()[0].Icon, PromptIcon::Warning);
                   m_store.OfCalendar().Save = false;
                 },
                 OK()}),
            kResultOK);
  EXPECT_EQ(Only().Subject, QStringLiteral("(Kim)"));
}

TEST_F(AppointmentDlgTest, ALaterStartTakesTheEndAlong) {
  Add({[&] {
         Get<CTimePicker>(AppointmentIds::kStartTime).setTime({11, 0});
       },
       [&] {
         EXPECT_EQ(Time(AppointmentIds::kEndTime), QTime(11, 0));
         Get<CDatePicker>(AppointmentIds::kStartDate).ChooseDate({2004, 2, 5});
         EXPECT_EQ(Date(AppointmentIds::kEndDate), QDate(2004, 2, 5));
         EXPECT_EQ(RowText(AppointmentRow::End), QStringLiteral("2004.02.05 11:00 AM"));
         Get<CDatePicker>(AppointmentIds::kStartDate).ChooseDate({2004, 2, 4});
         EXPECT_EQ(Date(AppointmentIds::kEndDate), QDate(2004, 2, 5));
       },
       Cancel()});
}

// Intended: only a change of the start moves the other one.
TEST_F(AppointmentDlgTest, AnEndBeforeTheStartStaysUntilSavingFails) {
  m_prompt.Expect(PromptAnswer::OK);
  Add({[&] {
         Get<CTimePicker>(AppointmentIds::kEndTime).setTime({8, 0});
       },
       [&] {
         EXPECT_EQ(Time(AppointmentIds::kStartTime), QTime(9, 30));
         EXPECT_EQ(Time(AppointmentIds::kEndTime), QTime(8, 0));
       },
       OK(), [&] { EXPECT_EQ(m_prompt.Shown().at(0).Text, kCannotSave); }, Cancel()});
  EXPECT_EQ(Count(AllAppointments()), 0);
}

TEST_F(AppointmentDlgTest, ReturnInTheStartsRowIsNoChangeOfIt) {
  m_prompt.Expect(PromptAnswer::OK);
  Add({[&] {
         Get<CTimePicker>(AppointmentIds::kEndTime).setTime({8, 0});
       },
       [&] { Rows().ActivateRow(static_cast<int>(AppointmentRow::Start)); },
       [&] { m_input.Key(Qt::Key_Return); },
       [&] { EXPECT_EQ(m_prompt.Shown().at(0).Text, kCannotSave); }, Cancel()});
}

TEST_F(AppointmentDlgTest, DaysBeyondTheCalendarStayUnlessTheyAreChanged) {
  AppointmentItem item = Tea();
  item.Start = MakeCalendarDate({1604, 5, 5}, {9, 0});
  item.End = MakeCalendarDate({1604, 5, 5}, {10, 30});
  const AppointmentItem saved = Saved(
      item,
      {[&] { EXPECT_EQ(RowText(AppointmentRow::Start), QStringLiteral("1604.05.05 09:00 AM")); }});
  EXPECT_EQ(saved.Start, item.Start);
  EXPECT_EQ(saved.End, item.End);
  EXPECT_EQ(saved.Duration, 90);
}

TEST_F(AppointmentDlgTest, ADamagedDateIsShownEmptyAndCannotBeSaved) {
  m_prompt.Expect(PromptAnswer::OK);
  const Oid oid = Add({.Subject = QStringLiteral("(Kim)")});
  Edit(oid, {[&] { EXPECT_EQ(RowText(AppointmentRow::Start), QStringLiteral(" 12:00 AM")); }, OK(),
             [&] { EXPECT_EQ(m_prompt.Shown().at(0).Text, kCannotSave); }, Cancel()});
}

TEST_F(AppointmentDlgTest, ALongSubjectIsCutWithoutHalfACharacter) {
  AppointmentItem item = Tea();
  item.Subject = QString(259, u'x') + QStringLiteral("\U0001F600");
  EXPECT_EQ(Saved(item, {}).Subject, QString(259, u'x'));
}

TEST_F(AppointmentDlgTest, AllDayKeepsTheTimes) {
  const AppointmentItem saved =
      Saved(Tea(), {[&] {
              Get<QCheckBox>(AppointmentIds::kAllDay).click();
              EXPECT_EQ(RowText(AppointmentRow::Start), QStringLiteral("2004.02.03"));
            }});
  EXPECT_TRUE(saved.AllDayEvent);
  EXPECT_EQ(saved.Start, Tea().Start);
  EXPECT_EQ(saved.End, Tea().End);
}

TEST_F(AppointmentDlgTest, SavingUnchangedChangesNothing) {
  AppointmentItem item = Tea();
  item.ReminderSet = true;
  item.ReminderSoundFile = QStringLiteral("Bell.wav");
  item.ReminderOptions = 29;
  item.ReminderMinutesBeforeStart = 2880;
  item.BodyInk = "ink";
  item.Recurrence = DefaultPattern(item);
  item.Id = Add(item);
  EXPECT_EQ(Edit(item.Id, {OK()}), kResultOK);
  EXPECT_EQ(Stored(item.Id), item);
}

TEST_F(AppointmentDlgTest, SavingAnExistingOneWipesPlaceCategoriesSensitivityAndFreeTime) {
  AppointmentItem item = Tea();
  item.Location = QStringLiteral("here");
  item.Categories = QStringLiteral("Friends");
  item.Sensitivity = 2;
  item.BusyStatus = 0;
  const AppointmentItem saved = Saved(item, {});
  EXPECT_EQ(saved.Location, QString());
  EXPECT_EQ(saved.Categories, QString());
  EXPECT_EQ(saved.Sensitivity, 0);
  EXPECT_EQ(saved.BusyStatus, 2);
}

TEST_F(AppointmentDlgTest, ShowsTheAlarmOfAnExistingOne) {
  AppointmentItem item = Tea();
  item.ReminderSet = true;
  item.ReminderSoundFile = QStringLiteral("bell.wav");
  item.ReminderMinutesBeforeStart = 90;
  Edit(Add(item), {[&] {
                     EXPECT_EQ(Index(AppointmentIds::kAlarm), 0);
                     EXPECT_EQ(RowText(AppointmentRow::Alarm), QStringLiteral("90 Minute(s)"));
                     EXPECT_EQ(RowText(AppointmentRow::Sound), QStringLiteral("Bell.wav"));
                     for (const int id : {AppointmentIds::kAlarmAmount, AppointmentIds::kAlarmUnit,
                                          AppointmentIds::kSound, AppointmentIds::kPlay})
                       EXPECT_TRUE(Dialog().Control(id)->isEnabled()) << id;
                   },
                   Cancel()});
}

TEST_F(AppointmentDlgTest, AnAlarmIsSavedWithItsTimeAndSound) {
  const AppointmentItem saved =
      Saved(Tea(), {Chooses(AppointmentIds::kAlarm, 0),
                    Set(AppointmentIds::kAlarmAmount, QStringLiteral("3")),
                    Chooses(AppointmentIds::kAlarmUnit, 2), Chooses(AppointmentIds::kSound, 2)});
  EXPECT_TRUE(saved.ReminderSet);
  EXPECT_EQ(saved.ReminderMinutesBeforeStart, 3 * 1440);
  EXPECT_EQ(saved.ReminderSoundFile, QStringLiteral("Bell.wav"));
  EXPECT_EQ(saved.ReminderOptions, 29);
}

TEST_F(AppointmentDlgTest, TheSoundsAreTheDevicesWaveFilesAlone) {
  Add({[&] {
         const auto& list = Get<QComboBox>(AppointmentIds::kSound);
         ASSERT_EQ(list.count(), 3);
         EXPECT_EQ(list.itemText(0), QStringLiteral("Sound off"));
         EXPECT_EQ(list.itemText(1), QStringLiteral("alarm.wav"));
         EXPECT_EQ(list.itemText(2), QStringLiteral("Bell.wav"));
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, TheChoicesOfRecurrenceSpeakOfTheStart) {
  Add({[&] {
         const auto& list = Get<QComboBox>(AppointmentIds::kRecurrence);
         EXPECT_EQ(list.count(), 9);
         EXPECT_EQ(list.itemText(2), QStringLiteral("Every Tuesday"));
         Choose(AppointmentIds::kRecurrence, 2);
         Get<CDatePicker>(AppointmentIds::kStartDate).ChooseDate({2004, 2, 29});
         EXPECT_EQ(list.itemText(2), QStringLiteral("Every Sunday"));
         EXPECT_EQ(list.itemText(5), QStringLiteral("The 5th Sun. of every month"));
         EXPECT_EQ(list.currentIndex(), 2);
         EXPECT_EQ(RowText(AppointmentRow::Recurrence), QStringLiteral("Every Sunday"));
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, AQuickChoiceIsSavedAsItsPattern) {
  const AppointmentItem saved = Saved(Tea(), {Chooses(AppointmentIds::kRecurrence, 3)});
  ASSERT_TRUE(saved.Recurrence);
  EXPECT_EQ(saved.Recurrence->Type, RecurrenceType::Weekly);
  EXPECT_EQ(saved.Recurrence->DayOfWeekMask, 62);
  EXPECT_EQ(saved.Recurrence->PatternStartDate, QDate(2004, 2, 3));
  EXPECT_EQ(saved.Recurrence->Duration, 90);
  EXPECT_TRUE(saved.Recurrence->NoEndDate);
}

TEST_F(AppointmentDlgTest, OnceClearsTheRecurrence) {
  AppointmentItem item = Tea();
  item.Recurrence = PatternOf(item);
  EXPECT_EQ(Saved(item, {Chooses(AppointmentIds::kRecurrence, 0)}).Recurrence, std::nullopt);
}

TEST_F(AppointmentDlgTest, OneThatRecursShowsItsTimesAndStandsOnThePatternsFirstDay) {
  AppointmentItem item = Tea();
  item.Recurrence = PatternOf(item);
  item.Recurrence->PatternStartDate = QDate(2004, 1, 6);
  Edit(Add(item), {[&] {
                     EXPECT_EQ(Date(AppointmentIds::kStartDate), QDate(2004, 1, 6));
                     EXPECT_EQ(Date(AppointmentIds::kEndDate), QDate(2004, 1, 6));
                     EXPECT_EQ(RowText(AppointmentRow::Start), QStringLiteral("09:00 AM"));
                     EXPECT_EQ(RowText(AppointmentRow::End), QStringLiteral("10:30 AM"));
                     EXPECT_EQ(Index(AppointmentIds::kRecurrence), 2);
                   },
                   Cancel()});
}

TEST_F(AppointmentDlgTest, OneThatIsGoneIsShownEmptyAndCannotBeSaved) {
  m_prompt.Expect(PromptAnswer::OK);
  EXPECT_EQ(Edit(77, {[&] { EXPECT_EQ(Subject(), QString()); },
                      Set(AppointmentIds::kSubject, QStringLiteral("x")), OK(),
                      [&] { EXPECT_EQ(m_prompt.Shown().at(0).Text, kCannotSave); }, Cancel()}),
            kResultCancel);
  EXPECT_EQ(Count(AllAppointments()), 0);
}

TEST_F(AppointmentDlgTest, OneThatWasDeletedMeanwhileCannotBeSaved) {
  m_prompt.Expect(PromptAnswer::OK);
  const Oid oid = Add(Tea());
  Edit(oid, {[&] { ASSERT_TRUE(DeleteAppointment(oid)); }, OK(), Cancel()});
  EXPECT_EQ(Count(AllAppointments()), 0);
}

TEST_F(AppointmentDlgTest, ATapOnARowShowsItsControlsAndHidesTheOthers) {
  const auto tapRow = [this](AppointmentRow row) {
    m_input.Tap(Dialog().mapTo(m_screen, QPoint(20, AppointmentRowArea(row).center().y())));
  };
  Add({[&, tapRow] { tapRow(AppointmentRow::Start); },
       [&, tapRow] {
         EXPECT_TRUE(Dialog().Control(AppointmentIds::kStartDate)->isVisible());
         EXPECT_TRUE(Dialog().Control(AppointmentIds::kStartTime)->isVisible());
         EXPECT_TRUE(Dialog()
                         .Control(AppointmentIds::kStartDate)
                         ->isAncestorOf(QApplication::focusWidget()));
         EXPECT_EQ(RowText(AppointmentRow::Start), QString());
         tapRow(AppointmentRow::Subject);
         EXPECT_EQ(RowText(AppointmentRow::Start), QStringLiteral("2004.02.03 09:30 AM"));
         EXPECT_FALSE(Dialog().Control(AppointmentIds::kStartDate)->isVisible());
         EXPECT_TRUE(Dialog().Control(AppointmentIds::kSubject)->isVisible());
         EXPECT_TRUE(m_panel.IsUp());
         tapRow(AppointmentRow::AllDay);
         EXPECT_FALSE(m_panel.IsUp());
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, TheKeysReachEveryRowAndItsControls) {
  Add({[&] {
         m_input.Key(Qt::Key_Down);
         m_input.Key(Qt::Key_Down);
         m_input.Key(Qt::Key_Return);
         EXPECT_TRUE(Dialog().Control(AppointmentIds::kEndTime)->isVisible());
         // A date and a time have three sections each.
         for (int section = 0; section < 3; ++section) m_input.Key(Qt::Key_Tab);
         EXPECT_EQ(QApplication::focusWidget(), Dialog().Control(AppointmentIds::kEndTime));
         for (int section = 0; section < 3; ++section) m_input.Key(Qt::Key_Tab);
         EXPECT_EQ(QApplication::focusWidget(), Dialog().Control(kResultOK));
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, ATapBelowTheRowsHidesTheControls) {
  Add({[&] { Rows().ActivateRow(static_cast<int>(AppointmentRow::AllDay)); },
       [&] {
         EXPECT_TRUE(Dialog().Control(AppointmentIds::kAllDay)->isVisible());
         m_input.Tap(Dialog().mapTo(m_screen, QPoint(20, 240)));
         EXPECT_FALSE(Dialog().Control(AppointmentIds::kAllDay)->isVisible());
         EXPECT_EQ(RowText(AppointmentRow::AllDay), QStringLiteral("No"));
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, EscapeHidesTheControlsFirstAndThenCloses) {
  EXPECT_EQ(Add({[&] { Rows().ActivateRow(static_cast<int>(AppointmentRow::AllDay)); },
                 [&] {
                   m_input.Key(Qt::Key_Escape);
                   EXPECT_FALSE(Dialog().Control(AppointmentIds::kAllDay)->isVisible());
                 },
                 [&] { m_input.Key(Qt::Key_Escape); }}),
            kResultCancel);
}

TEST_F(AppointmentDlgTest, AnotherRowAndAnAlarmThatIsTurnedOffEndTheSound) {
  Add({Chooses(AppointmentIds::kAlarm, 0), Chooses(AppointmentIds::kSound, 1),
       [&] { Rows().ActivateRow(static_cast<int>(AppointmentRow::Alarm)); },
       [&] {
         EXPECT_EQ(m_sounds.Asked.last(), QStringLiteral("stop"));
         Get<QAbstractButton>(AppointmentIds::kPlay).click();
         Choose(AppointmentIds::kAlarm, 1);
         EXPECT_EQ(m_sounds.Asked.size(), 4);
         EXPECT_EQ(m_sounds.Asked.last(), QStringLiteral("stop"));
       },
       Cancel()});
}

TEST_F(AppointmentDlgTest, ClosingEndsTheSound) {
  Add({Chooses(AppointmentIds::kAlarm, 0), Chooses(AppointmentIds::kSound, 1), Cancel()});
  EXPECT_EQ(m_sounds.Asked,
            QStringList({QStringLiteral("play \\Windows\\alarm.wav"), QStringLiteral("stop")}));
}

}  // namespace
}  // namespace quill
