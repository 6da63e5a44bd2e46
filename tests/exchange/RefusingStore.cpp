#include "exchange/RefusingStore.h"

#include <utility>

namespace quill::test {

namespace {

// Goes without a commit of the transaction below, which rolls it back.
class FailingTransaction : public StoreTransaction {
 public:
  explicit FailingTransaction(std::unique_ptr<StoreTransaction> below)
      : m_below(std::move(below)) {}
  bool Commit() override { return false; }

 private:
  std::unique_ptr<StoreTransaction> m_below;
};

}  // namespace

std::unique_ptr<StoreTransaction> RefusingStore::Begin() {
  ++m_begun;
  auto transaction = FaultyStore::Begin();
  if (m_begun != m_failing) return transaction;
  return std::make_unique<FailingTransaction>(std::move(transaction));
}

}  // namespace quill::test
