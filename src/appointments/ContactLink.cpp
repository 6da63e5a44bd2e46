#include "appointments/ContactLink.h"

#include "store/AppointmentFields.h"
#include "store/AppointmentStore.h"
#include "store/Restriction.h"

namespace quill {

QString ContactLinkPrefix(const QString& fileAs) { return u'(' + fileAs + u')'; }

SubjectRange ContactLinkRange(const QString& fileAs) {
  const QString lower = ContactLinkPrefix(fileAs);
  QString upper = lower;
  QChar& raised = upper[upper.size() - 2];
  raised = QChar(static_cast<char16_t>(raised.unicode() + 1));
  return {.Lower = lower, .Upper = upper};
}

QString ContactLinkRestriction(const QString& fileAs) {
  const SubjectRange range = ContactLinkRange(fileAs);
  const QString subject = u'[' + PropertyOf(&AppointmentItem::Subject).toString() + u']';
  return subject + QStringLiteral(" >= ") + QuoteRestrictionValue(range.Lower) +
         QStringLiteral(" AND ") + subject + QStringLiteral(" < ") +
         QuoteRestrictionValue(range.Upper);
}

std::vector<Oid> FindContactAppointments(const QString& fileAs) {
  const AppointmentCollection collection =
      RestrictAppointments(AllAppointments(), ContactLinkRestriction(fileAs));
  const int count = Count(collection);
  std::vector<Oid> found;
  for (int position = 1; position <= count; ++position) {
    found.push_back(AppointmentAt(collection, position));
  }
  return found;
}

}  // namespace quill
