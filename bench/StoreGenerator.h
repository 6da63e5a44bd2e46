// Fills an empty store with made-up contacts. The same seed and count give the same store.
#pragma once

#include <QString>

#include <functional>

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

  StoreProvider& m_store;
  ContactGenerator m_contacts;
  Progress m_progress;
};

}  // namespace quill::bench
