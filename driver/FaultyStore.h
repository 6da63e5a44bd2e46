// The store of a script: calls that a fault is switched on for fail, the others reach the one
// below.
#pragma once

#include <memory>

#include "driver/FaultTable.h"
#include "driver/ForwardingStore.h"

namespace quill::driver {

class FaultyCalendarFolder;
class FaultyContactsFolder;

class FaultyStore : public ForwardingStore {
 public:
  // Owns neither; both live longer.
  FaultyStore(StoreProvider& below, const FaultTable& faults);
  ~FaultyStore() override;

  int Create() override;
  int Logon() override;
  int OpenFolder(FolderKind kind) override;
  ContactsFolder* Contacts() override;
  CalendarFolder* Calendar() override;

 private:
  const FaultTable& m_faults;
  std::unique_ptr<FaultyContactsFolder> m_contacts;
  std::unique_ptr<FaultyCalendarFolder> m_calendar;
};

}  // namespace quill::driver
