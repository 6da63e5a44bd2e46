// A store provider that passes everything on to another one, except the calls that are made to
// fail.
#pragma once

#include <memory>

#include "driver/FaultTable.h"
#include "store/StoreProvider.h"

namespace quill::driver {

class FaultyCalendarFolder;
class FaultyContactsFolder;

class FaultyStore : public StoreProvider {
 public:
  // Owns neither; both live longer.
  FaultyStore(StoreProvider& inner, const FaultTable& faults);
  ~FaultyStore() override;

  int Create() override;
  int Logon() override;
  int OpenFolder(FolderKind kind) override;
  void Close() override;
  ContactsFolder* Contacts() override;
  CalendarFolder* Calendar() override;
  CategoryLibrary* Categories() override;
  std::unique_ptr<StoreTransaction> Begin() override;
  std::unique_ptr<StoreTransaction> BeginReading() override;
  qint64 Changes() override;
  QString LastError() const override;

 private:
  StoreProvider& m_inner;
  const FaultTable& m_faults;
  std::unique_ptr<FaultyContactsFolder> m_contacts;
  std::unique_ptr<FaultyCalendarFolder> m_calendar;
};

}  // namespace quill::driver
