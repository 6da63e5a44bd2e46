// The personal-information store as the program sees it: a provider, its folders, their items.
// Implementations: store/pim (SQLite), and decorators of the driver and the tests.
//
// Single-threaded. Nothing throws; what a failure looks like stands at each operation.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

#include "store/AppointmentCollection.h"
#include "store/AppointmentItem.h"
#include "store/ContactCollection.h"
#include "store/ContactRecord.h"

namespace quill {

enum class FolderKind { Calendar = 9, Contacts = 10 };

// A contact with all the store keeps of it: the record, the ink notes, and what an imported card
// held beyond the record. CarriedLines are unfolded vCard lines, each ended by LF.
struct ContactItem {
  ContactRecord Record;
  QByteArray BodyInk = {};
  QString Uid = {};
  QString CarriedLines = {};

  bool operator==(const ContactItem&) const = default;
};

class ContactsFolder {
 public:
  virtual ~ContactsFolder() = default;

  // Every contact, in the order of FileAs.
  virtual ContactCollection Items() = 0;
  virtual void Sort(ContactCollection& collection, ContactOrder order) = 0;
  // The contacts of the collection that satisfy the restriction text, in the same order; nothing
  // when the text cannot be parsed or the store fails.
  virtual std::optional<ContactCollection> Restrict(const ContactCollection& collection,
                                                    const QString& restriction) = 0;
  virtual int Count(const ContactCollection& collection) = 0;
  // The item at a position, 1-based; 0 when there is none.
  virtual Oid OidAt(const ContactCollection& collection, int position) = 0;

  // False also where the store fails, which LastError tells then.
  virtual bool Has(Oid oid) = 0;
  // Each fills what it reads and returns true, or leaves it untouched and returns false.
  virtual bool ReadListRow(Oid oid, ContactRecord& record) = 0;
  virtual bool Read(Oid oid, ContactItem& item) = 0;

  // Writes the fields that an edit writes back, and the ink notes; the rest of an existing contact
  // stays as it is. Oid 0 makes a new contact. Returns its Oid, 0 on failure (nothing written).
  virtual Oid Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) = 0;
  // Writes every field, as an import does.
  virtual Oid SaveWhole(Oid oid, const ContactItem& item) = 0;
  // True when the contact existed and is gone now.
  virtual bool Remove(Oid oid) = 0;
  // Removes every contact of the collection, as one change: all of them or, with false, none.
  virtual bool RemoveAll(const ContactCollection& collection) = 0;

  // Contacts with this UID, and contacts with exactly this FileAs, in Oid order.
  virtual std::vector<Oid> FindByUid(const QString& uid) = 0;
  virtual std::vector<Oid> FindByFileAs(const QString& fileAs) = 0;
};

class CalendarFolder {
 public:
  virtual ~CalendarFolder() = default;

  // Every appointment, in the order of the Oids.
  virtual AppointmentCollection Items() = 0;
  // As for contacts: nothing when the text cannot be parsed or the store fails.
  virtual std::optional<AppointmentCollection> Restrict(const AppointmentCollection& collection,
                                                        const QString& restriction) = 0;
  virtual int Count(const AppointmentCollection& collection) = 0;
  // The item at a position, 1-based; 0 when there is none.
  virtual Oid OidAt(const AppointmentCollection& collection, int position) = 0;

  // Each fills the whole of what it reads and returns true, or leaves it untouched and returns
  // false. The subject alone is read without the ink, which may be long.
  virtual bool Read(Oid oid, AppointmentItem& item) = 0;
  virtual bool ReadSubject(Oid oid, QString& subject) = 0;
  // Writes the whole item, unchecked: what may be saved is a rule above the store. Without an Id it
  // makes a new appointment. Returns its Oid, 0 on failure (nothing written).
  virtual Oid Save(const AppointmentItem& item) = 0;
  // Puts ink on the item in hand, which is not saved by that. False, and the item untouched, when
  // the store would not take so much.
  virtual bool PutInk(AppointmentItem& item, const QByteArray& ink) = 0;
  // True when the appointment existed and is gone now.
  virtual bool Remove(Oid oid) = 0;

  // Appointments with this UID, in Oid order; none for an empty one.
  virtual std::vector<Oid> FindByUid(const QString& uid) = 0;
};

// The categories that the user keeps, in their order. "No Categories" is not one of them.
class CategoryLibrary {
 public:
  virtual ~CategoryLibrary() = default;

  // Empty when the store fails.
  virtual QStringList Names() = 0;
  // Takes the place of the whole list, as far as ValidCategories lets it; the contacts keep theirs.
  // False when the store fails: then the list is as before.
  virtual bool SetNames(const QStringList& names) = 0;
};

// One durable unit of work: rolled back when it goes without a Commit.
class StoreTransaction {
 public:
  virtual ~StoreTransaction() = default;
  virtual bool Commit() = 0;
};

class StoreProvider {
 public:
  virtual ~StoreProvider() = default;

  // The four steps of a start-up. Each returns 0 or the platform's error code.
  virtual int Create() = 0;
  virtual int Logon() = 0;
  virtual int OpenFolder(FolderKind kind) = 0;

  virtual void Close() = 0;

  // Null before the folder is open. Owned by the provider, gone after Close.
  virtual ContactsFolder* Contacts() = 0;
  virtual CalendarFolder* Calendar() = 0;
  // Null before the contacts folder is open. Owned by the provider, gone after Close.
  virtual CategoryLibrary* Categories() = 0;

  // Null when no transaction can be begun.
  virtual std::unique_ptr<StoreTransaction> Begin() = 0;
  // While it lives, everything is read as it was at the first reading, and other programs may
  // write. Nothing is written in it, so it needs no Commit. Null as above.
  virtual std::unique_ptr<StoreTransaction> BeginReading() = 0;
  // A number that differs from the last answer when another program has written meanwhile.
  virtual qint64 Changes() = 0;
  // Why the last operation failed, for the log and for commands; empty when none has.
  virtual QString LastError() const = 0;
};

}  // namespace quill
