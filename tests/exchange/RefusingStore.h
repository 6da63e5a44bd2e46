// A store over another one that refuses one contact or fails one commit, and counts transactions.
#pragma once

#include "support/FaultyStore.h"

namespace quill::test {

class RefusingContacts : public FaultyContacts {
 public:
  using FaultyContacts::FaultyContacts;

  Oid SaveWhole(Oid oid, const ContactItem& item) override {
    const bool isRefused = !Refused.isEmpty() && item.Record[ContactField::FileAs] == Refused;
    return isRefused ? 0 : FaultyContacts::SaveWhole(oid, item);
  }

  QString Refused;
};

class RefusingStore : public FaultyStore {
 public:
  // Does not own the store below.
  explicit RefusingStore(StoreProvider& below) : FaultyStore(below), m_refusing(below) {}

  void Refuse(const QString& fileAs) { m_refusing.Refused = fileAs; }
  void FailCommit(int transaction) { m_failing = transaction; }  // 1-based
  int Begun() const { return m_begun; }

  ContactsFolder* Contacts() override { return &m_refusing; }
  std::unique_ptr<StoreTransaction> Begin() override;

 private:
  RefusingContacts m_refusing;
  int m_failing = 0;
  int m_begun = 0;
};

}  // namespace quill::test
