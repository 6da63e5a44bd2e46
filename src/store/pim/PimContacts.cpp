#include "store/pim/PimContacts.h"

#include <sqlite3.h>

#include "store/ContactFields.h"
#include "store/FileAsName.h"
#include "store/pim/RemoveContacts.h"
#include "store/pim/RestrictionSql.h"

namespace quill {

namespace {

// A contact that is made by an edit gets what an edit writes, nothing else.
ContactItem NewItem(const ContactRecord& record, const QByteArray& bodyInk) {
  ContactItem item{.Record = record, .BodyInk = bodyInk};
  for (const ContactFieldRow& row : kContactFields) {
    if (!row.WrittenBack()) item.Record[row.Field].clear();
  }
  return item;
}

}  // namespace

PimContacts::PimContacts(Database& database)
    : m_database(database), m_sql(MakeContactSql()), m_reader(database) {}

int PimContacts::Check() {
  Query columns = m_database.Prepare(m_sql.Read);
  Query index = m_database.Prepare("SELECT n FROM bucket, entry LIMIT 1");
  columns.BindNumber(1, 0);
  columns.Next();
  index.Next();
  return columns.Failed() || index.Failed() ? m_database.FailureCode() : SQLITE_OK;
}

ContactCollection PimContacts::Items() { return {}; }

void PimContacts::Sort(ContactCollection& collection, ContactOrder order) {
  collection.Order = order;
}

std::optional<ContactCollection> PimContacts::Restrict(const ContactCollection& collection,
                                                       const QString& restriction) {
  auto node = ParseRestriction(restriction);
  if (!node || !MakeContactCondition(*node)) {
    m_database.Fail(SQLITE_ERROR, QStringLiteral("not a restriction of contacts"));
    return std::nullopt;
  }
  if (collection.Restriction) node = MakeBoth(*collection.Restriction, std::move(*node));
  return ContactCollection{
      .Order = collection.Order,
      .Restriction = std::make_shared<const RestrictionNode>(std::move(*node))};
}

int PimContacts::Count(const ContactCollection& collection) { return m_reader.Count(collection); }

Oid PimContacts::OidAt(const ContactCollection& collection, int position) {
  return m_reader.OidAt(collection, position);
}

bool PimContacts::Has(Oid oid) {
  Query query = m_database.Prepare("SELECT 1 FROM contact WHERE Oid = ?1");
  query.BindNumber(1, oid);
  return query.Next();
}

bool PimContacts::ReadListRow(Oid oid, ContactRecord& record) {
  Query query = m_database.Prepare(m_sql.ReadListRow);
  query.BindNumber(1, oid);
  if (!query.Next()) return false;
  ReadListRowColumns(query, record);
  return true;
}

bool PimContacts::Read(Oid oid, ContactItem& item) {
  Query query = m_database.Prepare(m_sql.Read);
  query.BindNumber(1, oid);
  if (!query.Next()) return false;
  ReadContactRow(query, item);
  return true;
}

Oid PimContacts::Save(Oid oid, const ContactRecord& record, const QByteArray& bodyInk) {
  if (oid == 0) return Insert(NewItem(record, bodyInk));
  return Update(m_sql.UpdateWrittenBack, oid, {.Record = record, .BodyInk = bodyInk});
}

Oid PimContacts::SaveWhole(Oid oid, const ContactItem& item) {
  return oid == 0 ? Insert(item) : Update(m_sql.UpdateWhole, oid, item);
}

bool PimContacts::Remove(Oid oid) {
  if (!m_database.MayWrite()) return false;
  Query query = m_database.Prepare("DELETE FROM contact WHERE Oid = ?1");
  query.BindNumber(1, oid);
  return query.Run() && m_database.ChangedRows() == 1;
}

bool PimContacts::RemoveAll(const ContactCollection& collection) {
  const int storeSize = Count(Items());
  return m_database.MayWrite() &&
         RemoveContacts(m_database, m_reader.AllOids(collection), storeSize);
}

std::vector<Oid> PimContacts::FindByUid(const QString& uid) {
  // Contacts without a UID are not the same one.
  return uid.isEmpty() ? std::vector<Oid>() : Find("Uid = ?1 AND Uid <> ''", uid);
}

std::vector<Oid> PimContacts::FindByFileAs(const QString& fileAs) {
  return Find("Oid IN (SELECT oid FROM entry WHERE key = entry_key(?1, '', '', 0)) AND FileAs = ?1",
              fileAs);
}

Oid PimContacts::Insert(ContactItem item) {
  if (!m_database.MayWrite()) return 0;
  QString& fileAs = item.Record[ContactField::FileAs];
  if (fileAs.isEmpty()) fileAs = MakeFileAs(item.Record);
  Query query = m_database.Prepare(m_sql.Insert);
  BindContact(query, item);
  return query.Run() ? static_cast<Oid>(m_database.LastRowId()) : 0;
}

Oid PimContacts::Update(const QByteArray& sql, Oid oid, const ContactItem& item) {
  if (!m_database.MayWrite()) return 0;
  Query query = m_database.Prepare(sql);
  BindContact(query, item);
  query.BindNumber(kOidParameter, oid);
  if (!query.Run()) return 0;
  if (m_database.ChangedRows() == 1) return oid;
  m_database.Fail(SQLITE_NOTFOUND, QStringLiteral("there is no contact %1").arg(oid));
  return 0;
}

std::vector<Oid> PimContacts::Find(const QByteArray& condition, const QString& value) {
  Query query = m_database.Prepare("SELECT Oid FROM contact WHERE " + condition + " ORDER BY Oid");
  query.BindText(1, value);
  std::vector<Oid> found;
  while (query.Next()) found.push_back(static_cast<Oid>(query.Number(0)));
  return found;
}

}  // namespace quill
