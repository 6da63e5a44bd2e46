#include "app/SampleAppointments.h"

#include <algorithm>
#include <array>

#include "app/SampleInk.h"
#include "appointments/ContactLink.h"
#include "ink/InkFormat.h"
#include "store/AutomationDate.h"

namespace quill {
namespace {

enum class Repeats { Never, Weekly, Yearly };

struct SampleAppointment {
  QStringView Person;  // as filed
  QStringView Words;
  QStringView Location;
  QDate Day;
  QTime From;
  int Minutes;
  Repeats Repeated = Repeats::Never;
  QStringView Note = {};  // by hand
};

const auto kAppointments = std::to_array<SampleAppointment>({
    {u"Ahlberg, Ingrid", u" Lunch", u"The Corner Table", QDate(2024, 6, 12), QTime(12, 30), 75,
     Repeats::Never, u"Table by the window,\nElias comes too"},
    {u"Ahlberg, Ingrid", u" Birthday", u"", QDate(2023, 11, 2), QTime(9, 0), 30, Repeats::Yearly},
    {u"Varma, Raj", u" Drawings, second round", u"Lantern & Loom", QDate(2024, 6, 14), QTime(10, 0),
     90},
    {u"Zander, Milo", u" Tennis", u"Court 3", QDate(2024, 6, 6), QTime(20, 0), 60, Repeats::Weekly,
     u"Own balls"},
    {u"김서연", u" 저녁 식사", u"박가네식당", QDate(2024, 6, 20), QTime(18, 30), 120,
     Repeats::Never, u"2층 창가 자리,\n생일 케이크"},
    {u"이준호", u" 등산", u"", QDate(2024, 6, 22), QTime(7, 0), 300},
});

AppointmentItem ItemOf(const SampleAppointment& sample) {
  AppointmentItem item;
  item.Subject = ContactLinkPrefix(sample.Person.toString()) + sample.Words.toString();
  item.Location = sample.Location.toString();
  item.Start = MakeCalendarDate(sample.Day, sample.From);
  item.End = MakeCalendarDate(sample.Day, sample.From.addSecs(sample.Minutes * 60));
  item.Duration = sample.Minutes;
  if (!sample.Note.isEmpty())
    item.BodyInk = WriteInk(MakeSampleNote(sample.Note.toString(), SampleSketch::Underline));
  if (sample.Repeated == Repeats::Never) return item;
  RecurrencePattern pattern = PatternOf(item);  // weekly
  if (sample.Repeated == Repeats::Yearly) pattern.Type = RecurrenceType::Yearly;
  item.Recurrence = pattern;
  return item;
}

}  // namespace

bool SaveSampleAppointments(CalendarFolder& calendar) {
  return std::all_of(
      kAppointments.begin(), kAppointments.end(),
      [&](const SampleAppointment& sample) { return calendar.Save(ItemOf(sample)) != 0; });
}

}  // namespace quill
