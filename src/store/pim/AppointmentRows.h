// The columns of the appointment table and how an appointment goes in and out of them: the
// properties of the field table, what imports keep, then the members of the recurrence pattern.
//
// Dates are automation dates, a missing one the empty date; times of day are fractions of a day;
// a text that may be missing is NULL then. An appointment that does not recur has NULL in every
// column of the pattern. The columns of the pattern have the names of their properties behind
// "Recurrence", unless they begin so.
//
// Column i of the reading statement (from 0) is parameter i + 1 of the writing ones.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include "store/AppointmentFields.h"

namespace quill {

class Query;

inline constexpr int kPatternColumn =
    static_cast<int>(kAppointmentFields.size() + kAppointmentImportFields.size());
inline constexpr int kAppointmentColumnCount =
    kPatternColumn + static_cast<int>(kPatternFields.size());
inline constexpr int kAppointmentOidParameter = kAppointmentColumnCount + 1;

// Names in the order of the columns, without the Oid's.
QByteArrayList AppointmentColumnNames();
// The statements that make the table of appointments, what finds them, and the journal of the
// deleted ones, which a trigger fills.
QByteArray AppointmentTables();

struct AppointmentSql {
  QByteArray Insert;
  QByteArray Update;
  // The only parameter of each is the Oid.
  QByteArray Read;
  QByteArray ReadSubject;
};
AppointmentSql MakeAppointmentSql();

// Binds every column. A date whose parts make none is written as none.
void BindAppointment(Query& query, const AppointmentItem& item);
// Fills everything but the Id.
void ReadAppointmentRow(const Query& query, AppointmentItem& item);

}  // namespace quill
