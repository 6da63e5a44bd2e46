// How an appointment belongs to a contact: its subject begins with the contact's FileAs in
// parentheses. Nothing else links them.
//
// The appointments of a contact are those in a range of subjects, not those that begin so: for Kim
// from "(Kim)" up to, without, "(Kin)". The range also holds subjects of contacts whose FileAs goes
// on after Kim with something that sorts after ")", as "(Kim2)", and not those that go on with what
// sorts before it, as "(Kim Lee)": intended. Subjects compare as Collation.h says.
#pragma once

#include <QString>

#include <vector>

#include "store/ContactRecord.h"

namespace quill {

QString ContactLinkPrefix(const QString& fileAs);

// The subjects from Lower up to, without, Upper.
struct SubjectRange {
  QString Lower;
  QString Upper;
};
// Upper is Lower with the unit before its last one raised by one: the last of FileAs, or the
// opening parenthesis when FileAs is empty.
SubjectRange ContactLinkRange(const QString& fileAs);
// The range as a restriction of appointments.
QString ContactLinkRestriction(const QString& fileAs);

// The appointments in the range, in Oid order. None when the store fails.
std::vector<Oid> FindContactAppointments(const QString& fileAs);

}  // namespace quill
