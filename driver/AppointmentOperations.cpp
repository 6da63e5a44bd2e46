// appointments, appointment, put-appointment, drop-appointment: the calendar's back door.
#include <QJsonArray>

#include "driver/AppointmentJson.h"
#include "driver/Arguments.h"
#include "driver/DropOperation.h"
#include "driver/Operations.h"
#include "driver/StoreNotice.h"

namespace quill::driver {

namespace {

using FolderAction = Answer (*)(const QJsonObject& arguments, CalendarFolder& folder,
                                OperationContext& context);

// An operation on the open calendar folder.
Handler OnFolder(FolderAction action) {
  return [action](const QJsonObject& arguments, OperationContext& context) {
    CalendarFolder* folder = context.Store.Calendar();
    return folder ? action(arguments, *folder, context) : Refusal(u"no store");
  };
}

QJsonObject ItemJson(const AppointmentItem& item) {
  return {{QStringLiteral("fields"), FieldsJson(item)},
          {QStringLiteral("recurrence"), RecurrenceJson(item)}};
}

Answer Appointments(const QJsonObject&, CalendarFolder& folder, OperationContext&) {
  QJsonArray array;
  const AppointmentCollection all = folder.Items();
  for (int position = 1; const Oid oid = folder.OidAt(all, position); ++position) {
    AppointmentItem item;
    if (!folder.Read(oid, item)) return Refusal(u"not read");
    QJsonObject object = ItemJson(item);
    object.insert(u"oid", oid);
    array.append(object);
  }
  return Result(u"appointments", array);
}

Answer Appointment(const QJsonObject& arguments, CalendarFolder& folder, OperationContext&) {
  const std::optional<int> oid = WholeNumber(arguments, u"oid");
  if (!oid) return Refusal(kMalformed);
  AppointmentItem item;
  if (!folder.Read(*oid, item)) return Refusal(kUnknown);
  return {.Members = ItemJson(item)};
}

Answer PutAppointment(const QJsonObject& arguments, CalendarFolder& folder,
                      OperationContext& context) {
  AppointmentItem item;
  const Oid oid = WholeNumber(arguments, u"oid").value_or(0);
  if (oid != 0 && !folder.Read(oid, item)) return Refusal(kUnknown);
  if (!PutFields(arguments.value(u"fields").toObject(), item)) return Refusal(kMalformed);
  if (HasArgument(arguments, u"recurrence") &&
      !PutRecurrence(arguments.value(u"recurrence"), item)) {
    return Refusal(kMalformed);
  }
  const Oid written = folder.Save(item);
  if (written == 0) return Refusal(u"not written");
  NotifyUnlessQuiet(arguments, context);
  return Result(u"oid", written);
}

}  // namespace

OperationTable AppointmentOperations() {
  return {
      {u"appointments", OnFolder(Appointments)},
      {u"appointment", OnFolder(Appointment)},
      {u"put-appointment", OnFolder(PutAppointment)},
      {u"drop-appointment", OnFolder(DropItem<CalendarFolder>)},
  };
}

}  // namespace quill::driver
