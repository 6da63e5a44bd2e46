// Fills an empty store with made-up contacts and appointments with them. The same seed and count
// give the same store.
#pragma once

#include <QString>

#include <functional>

#include "AppointmentGenerator.h"
#include "ContactGenerator.h"
#include "store/StoreProvider.h"

namespace quill::bench {

class StoreGenerator {
 public:
  // Told now and then how many contacts are in the store, durably.
  using Progress = std::function<void(int made)>;

  // A store whose folders are open; it has to outlive the generator.
  StoreGenerator(StoreProvider& store, unsigned seed, Progress progress = {});

  // Durable after every few thousand contacts. Returns why the store is not filled, an empty text
  // when it is. A store that holds contacts already is left as it is; one that fails on the way
  // keeps what was durable.
  QString Fill(int count);

 private:
  bool AddSome(int count);
  bool AddOne();

  StoreProvider& m_store;
  ContactGenerator m_contacts;
  AppointmentGenerator m_appointments;
  Progress m_progress;
};

}  // namespace quill::bench
