// Opens the appointment dialog. Each returns what it ended with.
#pragma once

#include "store/ContactRecord.h"

class QString;

namespace quill {

class CScreen;

// A new appointment that belongs to the contact filed under this name.
int AddAppointment(CScreen& screen, const QString& fileAs);
int EditAppointment(CScreen& screen, Oid oid);

}  // namespace quill
