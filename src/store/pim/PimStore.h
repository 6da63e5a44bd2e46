// The embedded personal-information store: one SQLite file for contacts and calendar, which several
// programs may use at once. Its error codes are SQLite's.
//
// A file that is damaged, foreign, newer or not to be written makes a step of the start-up fail and
// is left as it is; LastError has the plain reason.
#pragma once

#include "store/StoreProvider.h"
#include "store/pim/StoreCheck.h"

namespace quill {

class Database;
class PimCalendar;
class PimCategories;
class PimContacts;

enum class StoreAccess {
  Writing,
  AtLeastReading,  // a file that can only be read is opened all the same
};

struct PimStoreOptions {
  qsizetype AppointmentInkLimit = 64 * 1024;  // bytes of ink that one appointment takes
  StoreAccess Access = StoreAccess::Writing;
};

class PimStore : public StoreProvider {
 public:
  // A file's path, made at the first start with the folders above it; ":memory:" for a store
  // without a file.
  explicit PimStore(QString path, PimStoreOptions options = {});
  ~PimStore() override;
  Q_DISABLE_COPY_MOVE(PimStore)

  int Create() override;  // finds the file fit and opens it
  int Logon() override;   // finds the tables or makes them
  // After Logon, with or without the folders: whether the file is sound.
  StoreHealth Check();
  int OpenFolder(FolderKind kind) override;
  void Close() override;

  ContactsFolder* Contacts() override;
  CalendarFolder* Calendar() override;
  CategoryLibrary* Categories() override;

  // One transaction at a time: null while another one is open. One that outlives Close does
  // nothing.
  std::unique_ptr<StoreTransaction> Begin() override;
  std::unique_ptr<StoreTransaction> BeginReading() override;
  qint64 Changes() override;
  QString LastError() const override;

 private:
  int Refuse(int code, const QString& reason);
  int OpenFile();
  void Release();

  QString m_path;
  PimStoreOptions m_options;
  QString m_lastError;  // of a file that did not open, and of a store that is closed
  std::shared_ptr<Database> m_database;
  std::unique_ptr<PimContacts> m_contacts;
  std::unique_ptr<PimCalendar> m_calendar;
  std::unique_ptr<PimCategories> m_categories;
};

}  // namespace quill
