// The process-wide store session and its operations, over whatever provider was opened.
//
// OpenSession once, then any of the others, then CloseSession. Without an open session the others
// do nothing and answer 0, false or an empty collection.
#pragma once

#include <QString>

#include "store/StoreProvider.h"

namespace quill {

// The ink notes of the contact last read or about to be written: one at a time, process-wide.
struct ContactInkBlob {
  QByteArray Bytes;
  qint32 Count() const { return static_cast<qint32>(Bytes.size()); }
};
extern ContactInkBlob g_contactInk;

// How far a start-up came: the code of the step that failed.
enum class StartupCode {
  Opened = 0,
  CreateFailed = 1,
  LogonFailed = 2,
  ContactsFolderFailed = 3,
  CalendarFolderFailed = 4,
};

struct StoreState {
  StoreProvider* Provider = nullptr;  // set while a session is open; not owned
  QString Message;                    // the text of a start-up that failed
  qint64 ChangesSeen = 0;             // the provider's Changes when the window looked last
};
extern StoreState g_store;

// Opens the provider in four steps. Only a failing first step is shown to the user; the texts of
// the others stay in g_store.Message. After a failure the session is closed.
StartupCode OpenSession(StoreProvider& provider);
void CloseSession();

ContactCollection AllContacts();
void SortContacts(ContactCollection& collection, ContactOrder order);
// Empty when the restriction fails (the reason goes to the log).
ContactCollection RestrictContacts(const ContactCollection& collection, const QString& restriction);
int Count(const ContactCollection& collection);

// A contact by position (1-based) in a collection, or by Oid.
struct ContactSelector {
  ContactSelector(const ContactCollection& collection, int position)
      : Collection(&collection), Position(position) {}
  explicit ContactSelector(Oid oid) : Id(oid) {}

  const ContactCollection* Collection = nullptr;
  int Position = 0;
  Oid Id = 0;
};

// Each returns the contact's Oid, or 0 and the record untouched. ReadContact also replaces
// g_contactInk, with nothing when it reads nothing; ReadListRow fills the list-row fields only,
// clears the others and leaves the ink be.
Oid ReadContact(const ContactSelector& selector, ContactRecord& record);
Oid ReadListRow(const ContactSelector& selector, ContactRecord& record);
void ReadNewContactDefaults(ContactRecord& record);

// Writes the record's written-back fields and g_contactInk, then frees g_contactInk, whether or not
// it could write: who wants to keep the ink copies it before. Oid 0 makes a new contact. Returns
// the contact's Oid, 0 when nothing was written (the reason goes to the log, nothing to the user).
Oid WriteContact(Oid oid, const ContactRecord& record);
// Makes a new contact that equals this one, also in the fields that are not written back. It is
// another person to cards, which know people by their UID. Returns its Oid, 0 when nothing was
// written (the reason goes to the log).
Oid CopyContact(Oid oid);
// False also where the store fails.
bool HasContact(Oid oid);
bool DeleteContact(Oid oid);
// All of them or, with false, none (the reason goes to the log).
bool DeleteContacts(const ContactCollection& collection);

}  // namespace quill
