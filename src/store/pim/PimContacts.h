// The contacts folder over the contact table. Each writing operation is one statement, so it is
// durable and whole on its own when no transaction is open.
#pragma once

#include "store/StoreProvider.h"
#include "store/pim/CollectionReader.h"
#include "store/pim/ContactRows.h"

namespace quill {

class PimContacts : public ContactsFolder {
 public:
  explicit PimContacts(Database& database);

  // Whether the tables answer: 0 or the failure.
  int Check();

  ContactCollection Items() override;
  void Sort(ContactCollection& collection, ContactOrder order) override;
  std::optional<ContactCollection> Restrict(const ContactCollection& collection,
                                            const QString& restriction) override;
  int Count(const ContactCollection& collection) override;
  Oid OidAt(const ContactCollection& collection, int position) override;
  bool Has(Oid oid) override;
  bool ReadListRow(Oid oid, ContactRecord& record) override;
  bool Read(Oid oid, ContactItem& item) override;
  Oid Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) override;
  Oid SaveWhole(Oid oid, const ContactItem& item) override;
  bool Remove(Oid oid) override;
  bool RemoveAll(const ContactCollection& collection) override;
  std::vector<Oid> FindByUid(const QString& uid) override;
  std::vector<Oid> FindByFileAs(const QString& fileAs) override;

 private:
  Oid Insert(ContactItem item);
  Oid Update(const QByteArray& sql, Oid oid, const ContactItem& item);
  std::vector<Oid> Find(const QByteArray& condition, const QString& value);

  Database& m_database;
  ContactSql m_sql;
  CollectionReader m_reader;
};

}  // namespace quill
