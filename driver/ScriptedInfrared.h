// An infrared folder without another device: it keeps what is sent, and receives what was offered.
#pragma once

#include <functional>
#include <vector>

#include "driver/FaultTable.h"
#include "platform/Infrared.h"
#include "store/StoreProvider.h"

namespace quill::driver {

class ScriptedInfrared : public InfraredFolder {
 public:
  // Owns neither; both live longer. received: called after a receive has changed the store.
  ScriptedInfrared(StoreProvider& store, const FaultTable& faults, std::function<void()> received)
      : m_store(store), m_faults(faults), m_received(std::move(received)) {}

  // The next receive gets it.
  void Offer(ContactItem contact) { m_offers.push_back(std::move(contact)); }
  // What was sent, and how many receives there were, so far. What failed is none of them.
  const std::vector<std::vector<Oid>>& Sends() const { return m_sends; }
  int Receives() const { return m_receives; }

  bool Open() override;
  bool AddItem(qint32 oid) override;
  bool Send() override;
  bool Receive() override;

 private:
  StoreProvider& m_store;
  const FaultTable& m_faults;
  std::function<void()> m_received;
  std::vector<Oid> m_queue;
  std::vector<std::vector<Oid>> m_sends;
  std::vector<ContactItem> m_offers;
  int m_receives = 0;
};

}  // namespace quill::driver
