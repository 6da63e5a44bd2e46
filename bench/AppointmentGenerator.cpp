#include "AppointmentGenerator.h"

#include "ContactWords.h"
#include "appointments/ContactLink.h"
#include "store/RecurrencePattern.h"

namespace quill::bench {

namespace {

constexpr unsigned kContactsForEach = 40;  // of those that have some; they have two on average
constexpr int kMinutes = 45;

CalendarDate At(QDate date, unsigned hour, int minute) {
  CalendarDate answer;
  answer.Year = static_cast<quint16>(date.year());
  answer.Month = static_cast<quint16>(date.month());
  answer.DayOfWeek = static_cast<quint16>(date.dayOfWeek() % 7);
  answer.Day = static_cast<quint16>(date.day());
  answer.Hour = static_cast<quint16>(hour);
  answer.Minute = static_cast<quint16>(minute);
  return answer;
}

}  // namespace

std::vector<AppointmentItem> AppointmentGenerator::Next(const QString& fileAs) {
  std::vector<AppointmentItem> appointments;
  if (!m_dice.OneIn(kContactsForEach)) return appointments;
  appointments.resize(1 + m_dice.Below(3));
  for (AppointmentItem& appointment : appointments) appointment = Make(fileAs);
  return appointments;
}

AppointmentItem AppointmentGenerator::Make(const QString& fileAs) {
  AppointmentItem item;
  item.Subject = ContactLinkPrefix(fileAs) + u' ' + m_dice.Pick(kSubjects);
  if (m_dice.OneIn(2)) item.Location = m_dice.Pick(kCities);
  const QDate day = QDate(2004, 1, 1).addDays(m_dice.Below(3 * 365));
  const unsigned hour = 8 + m_dice.Below(10);
  item.Start = At(day, hour, 0);
  item.End = At(day, hour, kMinutes);
  item.Duration = kMinutes;
  item.ReminderSet = m_dice.OneIn(3);
  if (item.ReminderSet) item.ReminderMinutesBeforeStart = 15;
  if (m_dice.OneIn(8)) item.Recurrence = PatternOf(item);
  return item;
}

}  // namespace quill::bench
