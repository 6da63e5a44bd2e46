// The field table of appointments: one row for each property, with its name and the member that
// holds it. The columns of the store, reading, writing, the journal and whoever shows properties by
// name loop over it; a new property is a new member and a new row.
#pragma once

#include <QStringView>

#include <array>
#include <type_traits>
#include <variant>

#include "store/AppointmentItem.h"
#include "store/ContactFields.h"

namespace quill {

template <typename Owner, typename... Values>
struct MemberRow {
  QStringView Property;
  std::variant<Values Owner::*...> Member;
};

using AppointmentFieldRow = MemberRow<AppointmentItem, QString, CalendarDate, int, bool,
                                      std::optional<QString>, QByteArray>;
using PatternFieldRow = MemberRow<RecurrencePattern, RecurrenceType, QTime, QDate, int, bool>;

namespace detail {
inline constexpr QStringView kDuration = u"Duration";  // of the appointment and of its pattern
}

inline constexpr std::array<AppointmentFieldRow, 14> kAppointmentFields{{
    {u"Subject", &AppointmentItem::Subject},
    {u"Location", &AppointmentItem::Location},
    {FieldRow(ContactField::Categories).Property, &AppointmentItem::Categories},
    {u"Start", &AppointmentItem::Start},
    {u"End", &AppointmentItem::End},
    {detail::kDuration, &AppointmentItem::Duration},
    {u"AllDayEvent", &AppointmentItem::AllDayEvent},
    {u"Sensitivity", &AppointmentItem::Sensitivity},
    {u"BusyStatus", &AppointmentItem::BusyStatus},
    {u"ReminderSet", &AppointmentItem::ReminderSet},
    {u"ReminderSoundFile", &AppointmentItem::ReminderSoundFile},
    {u"ReminderOptions", &AppointmentItem::ReminderOptions},
    {u"ReminderMinutesBeforeStart", &AppointmentItem::ReminderMinutesBeforeStart},
    {u"BodyInk", &AppointmentItem::BodyInk},
}};

// What the store keeps for imports; no properties of an appointment.
inline constexpr std::array<AppointmentFieldRow, 2> kAppointmentImportFields{{
    {u"Uid", &AppointmentItem::Uid},
    {u"CarriedLines", &AppointmentItem::CarriedLines},
}};

inline constexpr std::array<PatternFieldRow, 13> kPatternFields{{
    {u"RecurrenceType", &RecurrencePattern::Type},
    {u"StartTime", &RecurrencePattern::StartTime},
    {u"EndTime", &RecurrencePattern::EndTime},
    {u"PatternStartDate", &RecurrencePattern::PatternStartDate},
    {detail::kDuration, &RecurrencePattern::Duration},
    {u"Occurrences", &RecurrencePattern::Occurrences},
    {u"PatternEndDate", &RecurrencePattern::PatternEndDate},
    {u"NoEndDate", &RecurrencePattern::NoEndDate},
    {u"Interval", &RecurrencePattern::Interval},
    {u"DayOfWeekMask", &RecurrencePattern::DayOfWeekMask},
    {u"DayOfMonth", &RecurrencePattern::DayOfMonth},
    {u"Instance", &RecurrencePattern::Instance},
    {u"MonthOfYear", &RecurrencePattern::MonthOfYear},
}};

// The name of the property that a member holds; empty when it holds none.
template <typename Value>
constexpr QStringView PropertyOf(Value AppointmentItem::*member) {
  const auto holds = [member](auto held) {
    if constexpr (std::is_same_v<decltype(held), Value AppointmentItem::*>) return held == member;
    return false;
  };
  for (const AppointmentFieldRow& row : kAppointmentFields) {
    if (std::visit(holds, row.Member)) return row.Property;
  }
  return {};
}

}  // namespace quill
