#include "appointments/AppointmentRows.h"

#include <gtest/gtest.h>

#include <set>

#include "resources/AppointmentDialogs.h"
#include "resources/SoundPictures.h"

namespace quill {
namespace {

double TenPerUnit(QStringView text) { return 10.0 * static_cast<double>(text.size()); }

AppointmentForm Tea() {
  return {.Subject = QStringLiteral("(Kim) tea"),
          .Start = {QDate(2004, 2, 3), QTime(9, 5)},
          .End = {QDate(2004, 2, 4), QTime(13, 30)},
          .Before = {2, AlarmUnit::Hours},
          .Sound = QStringLiteral("Bell.wav")};
}

AppointmentForm With(const std::function<void(AppointmentForm&)>& change) {
  AppointmentForm form = Tea();
  change(form);
  return form;
}

struct ValueCase {
  AppointmentRow Row;
  AppointmentForm Form;
  const char16_t* Value;
};

class AppointmentValue : public testing::TestWithParam<ValueCase> {};

TEST_P(AppointmentValue, IsWhatTheRowShows) {
  EXPECT_EQ(ValueText(GetParam().Row, GetParam().Form), QString::fromUtf16(GetParam().Value));
}

const auto kAllDay = With([](auto& form) { form.AllDay = true; });
const auto kDaily = With([](auto& form) { form.Recurrence = RecurrenceChoice::Everyday; });
const auto kCustom = With([](auto& form) { form.Recurrence = RecurrenceChoice::EditPattern; });
const auto kDailyAllDay = With([](auto& form) {
  form.AllDay = true;
  form.Recurrence = RecurrenceChoice::Everyday;
});
const auto kAlarm = With([](auto& form) { form.Alarm = Alarm::Yes; });
const auto kSilent = With([](auto& form) { form.Sound.clear(); });

INSTANTIATE_TEST_SUITE_P(
    All, AppointmentValue,
    testing::Values(ValueCase{AppointmentRow::Subject, Tea(), u"(Kim) tea"},
                    ValueCase{AppointmentRow::Start, Tea(), u"2004.02.03 09:05 AM"},
                    ValueCase{AppointmentRow::End, Tea(), u"2004.02.04 01:30 PM"},
                    ValueCase{AppointmentRow::Start, kAllDay, u"2004.02.03"},
                    ValueCase{AppointmentRow::End, kAllDay, u"2004.02.04"},
                    ValueCase{AppointmentRow::Start, kDaily, u"09:05 AM"},
                    ValueCase{AppointmentRow::End, kDaily, u"01:30 PM"},
                    ValueCase{AppointmentRow::Start, kCustom, u"09:05 AM"},
                    ValueCase{AppointmentRow::Start, kDailyAllDay, u"All day recurring"},
                    ValueCase{AppointmentRow::End, kDailyAllDay, u"All day recurring"},
                    ValueCase{AppointmentRow::AllDay, Tea(), u"No"},
                    ValueCase{AppointmentRow::AllDay, kAllDay, u"Yes"},
                    ValueCase{AppointmentRow::Recurrence, Tea(), u"Once"},
                    ValueCase{AppointmentRow::Recurrence, kDaily, u"Everyday"},
                    ValueCase{AppointmentRow::Alarm, Tea(), u"No"},
                    ValueCase{AppointmentRow::Alarm, kAlarm, u"2 Hour(s)"},
                    ValueCase{AppointmentRow::Sound, Tea(), u"Bell.wav"},
                    ValueCase{AppointmentRow::Sound, kSilent, u"Sound off"},
                    ValueCase{AppointmentRow::Memo, Tea(), u"Edit memo..."}));

struct ControlCase {
  int Id;
  std::optional<AppointmentRow> Row;
};

class AppointmentControl : public testing::TestWithParam<ControlCase> {};

TEST_P(AppointmentControl, HasItsRow) { EXPECT_EQ(RowOfControl(GetParam().Id), GetParam().Row); }

INSTANTIATE_TEST_SUITE_P(
    All, AppointmentControl,
    testing::Values(ControlCase{AppointmentIds::kSubject, AppointmentRow::Subject},
                    ControlCase{AppointmentIds::kStartDate, AppointmentRow::Start},
                    ControlCase{AppointmentIds::kStartTime, AppointmentRow::Start},
                    ControlCase{AppointmentIds::kEndDate, AppointmentRow::End},
                    ControlCase{AppointmentIds::kEndTime, AppointmentRow::End},
                    ControlCase{AppointmentIds::kAllDay, AppointmentRow::AllDay},
                    ControlCase{AppointmentIds::kRecurrence, AppointmentRow::Recurrence},
                    ControlCase{AppointmentIds::kAlarm, AppointmentRow::Alarm},
                    ControlCase{AppointmentIds::kAlarmAmount, AppointmentRow::Alarm},
                    ControlCase{AppointmentIds::kAlarmUnit, AppointmentRow::Alarm},
                    ControlCase{AppointmentIds::kSound, AppointmentRow::Sound},
                    ControlCase{AppointmentIds::kPlay, AppointmentRow::Sound},
                    ControlCase{AppointmentIds::kMemo, AppointmentRow::Memo},
                    ControlCase{kResultOK, std::nullopt},
                    ControlCase{kResultCancel, std::nullopt}));

// The dialog's resource places the controls, this room says which row shows them.
TEST(AppointmentRows, EachControlStandsInItsRow) {
  int rowControls = 0;
  for (const resources::DialogControl& control : resources::kAppointmentControls) {
    const auto row = RowOfControl(control.Id);
    if (!row) continue;
    ++rowControls;
    const QRect place(control.Place.X, control.Place.Y, control.Place.Width, control.Place.Height);
    EXPECT_TRUE(AppointmentRowArea(*row).contains(place)) << control.Id;
    EXPECT_EQ(control.State, resources::ControlState::Hidden) << control.Id;
  }
  EXPECT_EQ(rowControls, 13);
}

struct TapCase {
  QPoint At;
  std::optional<AppointmentRow> Row;
};

class AppointmentTap : public testing::TestWithParam<TapCase> {};

TEST_P(AppointmentTap, MeansTheRowBelowTheHeading) {
  EXPECT_EQ(AppointmentRowAt(GetParam().At), GetParam().Row);
}

INSTANTIATE_TEST_SUITE_P(All, AppointmentTap,
                         testing::Values(TapCase{{100, 0}, std::nullopt},
                                         TapCase{{100, 64}, std::nullopt},
                                         TapCase{{100, 65}, AppointmentRow::Subject},
                                         TapCase{{5, 84}, AppointmentRow::Subject},
                                         TapCase{{5, 85}, AppointmentRow::Start},
                                         TapCase{{239, 224}, AppointmentRow::Memo},
                                         TapCase{{100, 225}, std::nullopt},
                                         TapCase{{100, -70}, std::nullopt}));

std::vector<PaintedRow> LayOut(const AppointmentForm& form, const AppointmentRowsView& view = {}) {
  return LayOutAppointmentRows(form, view, TenPerUnit);
}

PaintedRow Row(const AppointmentForm& form, AppointmentRow row) {
  return LayOut(form)[static_cast<std::size_t>(row)];
}

TEST(AppointmentRows, StandBelowEachOtherAndAreSpokenWithTheirValues) {
  const auto rows = LayOut(Tea());
  ASSERT_EQ(rows.size(), 8U);
  for (int i = 0; i < kAppointmentRowCount; ++i) {
    const PaintedRow& row = rows[static_cast<std::size_t>(i)];
    EXPECT_EQ(row.Rectangle, QRect(0, 65 + 20 * i, 240, 20));
    EXPECT_EQ(row.Key, i);
    EXPECT_FALSE(row.State.testFlag(PaintedStateFlag::Current));
  }
  EXPECT_EQ(rows[1].SpokenName, QStringLiteral("Start, 2004.02.03 09:05 AM"));
  EXPECT_EQ(rows[1].Items[0].Text, QStringLiteral("Start"));
  EXPECT_EQ(rows[1].Items[0].Alignment, TextAlign::Right);
  EXPECT_EQ(rows[7].Role, PaintedRole::Button);
}

TEST(AppointmentRows, TheCurrentOneIsMarked) {
  const auto rows = LayOut(Tea(), {.Current = AppointmentRow::End});
  EXPECT_TRUE(rows[2].State.testFlag(PaintedStateFlag::Current));
  EXPECT_TRUE(rows[2].Items[0].Fill.has_value());
  EXPECT_FALSE(rows[1].State.testFlag(PaintedStateFlag::Current));
}

TEST(AppointmentRows, TheRevealedOneHasItsLabelAlone) {
  const auto rows = LayOut(Tea(), {.Revealed = AppointmentRow::Sound});
  EXPECT_EQ(rows[6].Items.size(), 2U);
  EXPECT_EQ(rows[6].Items[0].Text, QStringLiteral("Sound"));
  EXPECT_EQ(rows[6].SpokenName, QStringLiteral("Sound, Bell.wav"));
  EXPECT_EQ(rows[5].Items.size(), 3U);
}

TEST(AppointmentRows, TheMemosRowAlwaysSaysWhatItIs) {
  const auto rows = LayOut(Tea(), {.Revealed = AppointmentRow::Memo});
  EXPECT_EQ(rows[7].Items[2].Text, QStringLiteral("Edit memo..."));
}

TEST(AppointmentRows, TheAlarmIsGreyWhileThereIsNone) {
  const Rgb grey = Row(Tea(), AppointmentRow::Alarm).Items[2].Color;
  EXPECT_EQ(Row(Tea(), AppointmentRow::Alarm).Items[0].Color, grey);
  EXPECT_NE(Row(kAlarm, AppointmentRow::Alarm).Items[2].Color, grey);
  EXPECT_NE(Row(kAlarm, AppointmentRow::Alarm).Items[0].Color, grey);
}

TEST(AppointmentRows, TheSoundIsGreyWhileThereIsNoAlarm) {
  const Rgb grey = Row(Tea(), AppointmentRow::Alarm).Items[2].Color;
  for (const std::size_t item : {0U, 2U, 3U, 4U}) {
    EXPECT_EQ(Row(Tea(), AppointmentRow::Sound).Items[item].Color, grey) << item;
    EXPECT_NE(Row(kAlarm, AppointmentRow::Sound).Items[item].Color, grey) << item;
  }
}

TEST(AppointmentRows, TheMemosTextIsBlue) {
  EXPECT_EQ(Row(Tea(), AppointmentRow::Memo).Items[2].Color, 0x3232FFU);
}

TEST(AppointmentRows, TwoPicturesOfSixteenPixelsSayWhetherThereIsASound) {
  const auto pictures = [](const AppointmentForm& form) {
    const PaintedRow row = Row(form, AppointmentRow::Sound);
    EXPECT_EQ(row.Items[3].Rectangle, QRect(204, 187, 16, 16));
    EXPECT_EQ(row.Items[4].Rectangle, QRect(220, 187, 16, 16));
    return std::pair(row.Items[3].Picture, row.Items[4].Picture);
  };
  EXPECT_EQ(pictures(Tea()), std::pair(&resources::kBellPicture, &resources::kSpeakerPicture));
  EXPECT_EQ(pictures(kSilent),
            std::pair(&resources::kSilentBellPicture, &resources::kSilentSpeakerPicture));
}

TEST(AppointmentRows, LongValuesEndWithDotsBeforeTheRightEnd) {
  const auto form = With([](auto& changed) {
    changed.Subject = QString(40, u'가');
    changed.Sound = QString(40, u'나');
  });
  EXPECT_EQ(Row(form, AppointmentRow::Subject).Items[2].Text,
            QString(14, u'가') + QStringLiteral("..."));
  const PaintedRow sound = Row(form, AppointmentRow::Sound);
  EXPECT_LE(sound.Items[2].Rectangle.right(), sound.Items[3].Rectangle.left());
  EXPECT_TRUE(sound.Items[2].Text.endsWith(QStringLiteral("...")));
}

TEST(AppointmentRows, ASubjectOfSeveralLinesIsShownOnOne) {
  const auto form = With([](auto& changed) { changed.Subject = QStringLiteral("a\nb"); });
  EXPECT_EQ(Row(form, AppointmentRow::Subject).Items[2].Text, QStringLiteral("a b"));
}

TEST(AppointmentRows, TheHeadingEndsAboveThem) {
  const PaintedRow heading = LayOutAppointmentHeading(QStringLiteral("Appointment"));
  EXPECT_EQ(heading.Rectangle, QRect(0, 0, 240, 65));
  EXPECT_EQ(heading.Role, PaintedRole::Text);
  EXPECT_EQ(heading.SpokenName, QStringLiteral("Appointment"));
}

}  // namespace
}  // namespace quill
