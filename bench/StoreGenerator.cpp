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
    : m_store(store), m_contacts(seed), m_appointments(seed), m_progress(std::move(progress)) {}

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
    if (!AddOne()) return false;
  }
  return transaction->Commit();
}

bool StoreGenerator::AddOne() {
  const ContactItem contact = m_contacts.Next();
  if (m_store.Contacts()->SaveWhole(0, contact) == 0) return false;
  const auto with = m_appointments.Next(contact.Record[ContactField::FileAs]);
  return std::all_of(with.begin(), with.end(), [this](const AppointmentItem& appointment) {
    return m_store.Calendar()->Save(appointment) != 0;
  });
}

}  // namespace quill::bench
