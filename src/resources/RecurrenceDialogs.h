// Resources of the recurrence wizard: the sheet's buttons and the controls of its two pages.
#pragma once

#include <array>

#include "resources/AppointmentIds.h"
#include "resources/Dialogs.h"

namespace quill::resources {

// The pages stand above the buttons.
inline constexpr int kRecurrencePageHeight = 150;

inline constexpr std::array kRecurrenceSheetControls = {
    DialogControl{ControlKind::Button, kResultCancel, u"Cancel", {10, 150, 70, 24}},
    DialogControl{ControlKind::Button, RecurrenceSheetIds::kBack, u"Back", {85, 150, 70, 24}},
    DialogControl{ControlKind::Button, RecurrenceSheetIds::kNext, u"Next", {160, 150, 70, 24}},
};

constexpr DialogControl RecurrenceLabel(QStringView text, Rectangle place) {
  return {ControlKind::Label, kNoId, text, place};
}

inline constexpr std::array kDailyControls = {
    RecurrenceLabel(u"Every", {20, 48, 34, 18}),
    DialogControl{ControlKind::TypedDropDown,
                  RecurrencePatternIds::kDailyInterval,
                  u"Every how many days",
                  {56, 48, 54, 18}},
    RecurrenceLabel(u"day(s)", {115, 48, 50, 18}),
};

constexpr DialogControl WeekdayToggle(std::size_t day, QStringView text) {
  const int left = 8 + static_cast<int>(day) * 32;
  return {ControlKind::Toggle, RecurrencePatternIds::kDays[day], text, {left, 82, 31, 32}};
}

inline constexpr std::array kWeeklyControls = {
    RecurrenceLabel(u"Every", {20, 48, 34, 18}),
    DialogControl{ControlKind::TypedDropDown,
                  RecurrencePatternIds::kWeeklyInterval,
                  u"Every how many weeks",
                  {56, 48, 54, 18}},
    RecurrenceLabel(u"week(s)", {115, 48, 50, 18}),
    WeekdayToggle(0, u"Sun"),
    WeekdayToggle(1, u"Mon"),
    WeekdayToggle(2, u"Tue"),
    WeekdayToggle(3, u"Wed"),
    WeekdayToggle(4, u"Thu"),
    WeekdayToggle(5, u"Fri"),
    WeekdayToggle(6, u"Sat"),
};

inline constexpr std::array kMonthlyControls = {
    DialogControl{ControlKind::Radio, RecurrencePatternIds::kMonthlyByDay, u"Day", {4, 36, 42, 18}},
    DialogControl{ControlKind::TypedDropDown,
                  RecurrencePatternIds::kMonthDay,
                  u"Day of the month",
                  {46, 36, 44, 18}},
    RecurrenceLabel(u"of every", {93, 36, 46, 18}),
    DialogControl{ControlKind::TypedDropDown,
                  RecurrencePatternIds::kMonthDayInterval,
                  u"Every how many months",
                  {140, 36, 44, 18}},
    RecurrenceLabel(u"month(s)", {188, 36, 52, 18}),
    DialogControl{
        ControlKind::Radio, RecurrencePatternIds::kMonthlyByWeekday, u"The", {4, 76, 42, 18}},
    DialogControl{
        ControlKind::DropDown, RecurrencePatternIds::kMonthInstance, u"Week", {46, 76, 72, 18}},
    DialogControl{
        ControlKind::DropDown, RecurrencePatternIds::kMonthWeekday, u"Day", {122, 76, 96, 18}},
    RecurrenceLabel(u"of every", {46, 100, 46, 18}),
    DialogControl{ControlKind::TypedDropDown,
                  RecurrencePatternIds::kMonthWeekdayInterval,
                  u"Every how many months",
                  {94, 100, 44, 18}},
    RecurrenceLabel(u"month(s)", {142, 100, 60, 18}),
};

inline constexpr std::array kYearlyControls = {
    DialogControl{
        ControlKind::Radio, RecurrencePatternIds::kYearlyByDay, u"Every", {4, 36, 52, 18}},
    DialogControl{
        ControlKind::DropDown, RecurrencePatternIds::kYearMonth, u"Month", {58, 36, 92, 18}},
    DialogControl{ControlKind::TypedDropDown,
                  RecurrencePatternIds::kYearDay,
                  u"Day of the month",
                  {154, 36, 44, 18}},
    DialogControl{
        ControlKind::Radio, RecurrencePatternIds::kYearlyByWeekday, u"Every", {4, 76, 52, 18}},
    DialogControl{
        ControlKind::DropDown, RecurrencePatternIds::kYearInstance, u"Week", {58, 76, 72, 18}},
    DialogControl{
        ControlKind::DropDown, RecurrencePatternIds::kYearWeekday, u"Day", {134, 76, 96, 18}},
    RecurrenceLabel(u"of", {58, 100, 14, 18}),
    DialogControl{ControlKind::DropDown,
                  RecurrencePatternIds::kYearWeekdayMonth,
                  u"Month",
                  {74, 100, 92, 18}},
};

// The controls of each kind; the strip of kinds stands above them.
inline constexpr std::array<std::span<const DialogControl>, 4> kRecurrenceKindControls = {
    kDailyControls, kWeeklyControls, kMonthlyControls, kYearlyControls};

inline constexpr std::array kRecurrenceRangeControls = {
    RecurrenceLabel(u"The pattern", {10, 12, 200, 18}),
    DialogControl{
        ControlKind::Radio, RecurrenceRangeIds::kDoesNotEnd, u"Does not end", {10, 40, 96, 18}},
    DialogControl{ControlKind::Radio, RecurrenceRangeIds::kEndsOn, u"Ends on", {10, 68, 72, 18}},
    DialogControl{ControlKind::Date, RecurrenceRangeIds::kEndDate, u"End date", {86, 68, 100, 18}},
    DialogControl{
        ControlKind::Radio, RecurrenceRangeIds::kEndsAfter, u"Ends after", {10, 96, 76, 18}},
    DialogControl{ControlKind::TypedDropDown,
                  RecurrenceRangeIds::kOccurrences,
                  u"Number of occurrences",
                  {86, 96, 54, 18}},
    RecurrenceLabel(u"occurrence(s)", {144, 96, 90, 18}),
};

}  // namespace quill::resources
