#include "StoreGenerator.h"

#include <algorithm>
#include <utility>

namespace quill::bench {

namespace {

constexpr int kContactsOfATransaction = 5000;

QString Reason(const QString& lastError) {
  return lastError.isEmpty() ? QStringLiteral("the store takes no contacts") : lastError;
}

}  // namespace

StoreGenerator::StoreGenerator(StoreProvider& store, unsigned seed, Progress progress)
    : m_store(store), m_contacts(seed), m_progress(std::move(progress)) {}

QString StoreGenerator::Fill(int count) {
  ContactsFolder& folder = *m_store.Contacts();
  if (folder.Count(folder.Items()) > 0) return QStringLiteral("the store holds contacts already");
  for (int made = 0; made < count;) {
    const int some = std::min(count - made, kContactsOfATransaction);
    if (!AddSome(some)) return Reason(m_store.LastError());
    made += some;
    if (m_progress) m_progress(made);
  }
  return {};
}

bool StoreGenerator::AddSome(int count) {
  const auto transaction = m_store.Begin();
  if (!transaction) return false;
  for (int i = 0; i < count; ++i) {
    if (m_store.Contacts()->SaveWhole(0, m_contacts.Next()) == 0) return false;
  }
  return transaction->Commit();
}

}  // namespace quill::bench
