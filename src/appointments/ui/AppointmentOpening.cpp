#include "appointments/ui/AppointmentOpening.h"

#include "appointments/ContactLink.h"
#include "appointments/ui/AppointmentDlg.h"

namespace quill {

int AddAppointment(CScreen& screen, const QString& fileAs) {
  return CAppointmentDlg(screen, ContactLinkPrefix(fileAs)).DoModal();
}

int EditAppointment(CScreen& screen, Oid oid) { return CAppointmentDlg(screen, oid).DoModal(); }

}  // namespace quill
