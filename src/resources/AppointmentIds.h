// Control identifiers of the windows of appointments, as in ControlIds.h.
#pragma once

#include <array>

namespace quill {

// The appointment dialog.
namespace AppointmentIds {
inline constexpr int kDialog = 144;
inline constexpr int kSubject = 1028;
inline constexpr int kStartDate = 1026;
inline constexpr int kStartTime = 1027;
inline constexpr int kEndDate = 1031;
inline constexpr int kEndTime = 1030;
inline constexpr int kAllDay = 1032;
inline constexpr int kRecurrence = 1020;
inline constexpr int kAlarm = 1035;
inline constexpr int kAlarmAmount = 1036;
inline constexpr int kAlarmUnit = 1037;
inline constexpr int kSound = 1038;
inline constexpr int kPlay = 1045;
inline constexpr int kMemo = 1049;
}  // namespace AppointmentIds

// The preview of an appointment; its results are those of DoModal.
namespace AppointmentPreviewIds {
inline constexpr int kDialog = 269;
inline constexpr int kModify = 1000;
inline constexpr int kDelete = 1001;
inline constexpr int kModifyResult = 10;
inline constexpr int kDeleteResult = 11;
}  // namespace AppointmentPreviewIds

// The recurrence wizard.
namespace RecurrenceSheetIds {
inline constexpr int kBack = 1001;
inline constexpr int kNext = 1002;
}  // namespace RecurrenceSheetIds

// Its page of the pattern.
namespace RecurrencePatternIds {
inline constexpr int kKinds = 1003;
inline constexpr int kDailyInterval = 1026;
inline constexpr int kWeeklyInterval = 1027;
inline constexpr std::array kDays = {1021, 1022, 1023, 1024, 1036, 1045, 1014};  // Sunday first
inline constexpr int kMonthlyByDay = 1028;
inline constexpr int kMonthDay = 1031;
inline constexpr int kMonthDayInterval = 1030;
inline constexpr int kMonthlyByWeekday = 1012;
inline constexpr int kMonthInstance = 1029;
inline constexpr int kMonthWeekday = 1034;
inline constexpr int kMonthWeekdayInterval = 1032;
inline constexpr int kYearlyByDay = 1035;
inline constexpr int kYearMonth = 1040;
inline constexpr int kYearDay = 1039;
inline constexpr int kYearlyByWeekday = 1013;
inline constexpr int kYearInstance = 1047;
inline constexpr int kYearWeekday = 1048;
inline constexpr int kYearWeekdayMonth = 1046;
}  // namespace RecurrencePatternIds

// Its page of the range.
namespace RecurrenceRangeIds {
inline constexpr int kDoesNotEnd = 1006;
inline constexpr int kEndsOn = 1007;
inline constexpr int kEndDate = 1041;
inline constexpr int kEndsAfter = 1042;
inline constexpr int kOccurrences = 1045;
}  // namespace RecurrenceRangeIds

}  // namespace quill
