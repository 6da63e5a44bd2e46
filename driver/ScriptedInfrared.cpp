#include "driver/ScriptedInfrared.h"

#include <utility>

namespace quill::driver {

bool ScriptedInfrared::Open() {
  m_queue.clear();
  return m_faults.CodeOf(u"infrared-folder") == 0;
}

bool ScriptedInfrared::AddItem(qint32 oid) {
  ContactsFolder* const contacts = m_store.Contacts();
  ContactItem contact;
  if (m_faults.Fails(u"infrared-add", oid) || !contacts || !contacts->Read(oid, contact))
    return false;
  m_queue.push_back(oid);
  return true;
}

bool ScriptedInfrared::Send() {
  std::vector<Oid> queue = std::exchange(m_queue, {});
  if (m_faults.CodeOf(u"infrared-send") != 0) return false;
  m_sends.push_back(std::move(queue));
  return true;
}

// Stored whole, as an import does.
bool ScriptedInfrared::Receive() {
  if (m_faults.CodeOf(u"infrared-receive") != 0) return false;
  ++m_receives;
  ContactsFolder* const contacts = m_store.Contacts();
  bool isStored = false;
  for (const ContactItem& contact : std::exchange(m_offers, {}))
    if (contacts && contacts->SaveWhole(0, contact) != 0) isStored = true;
  if (isStored) m_received();
  return true;
}

}  // namespace quill::driver
