// A real store on a file of its own, opened in its four steps; the file goes with the fixture.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/pim/PimStore.h"

namespace quill::test {

// The code of the first step that fails, 0 when all four succeed.
inline int OpenAll(StoreProvider& store) {
  if (const int code = store.Create()) return code;
  if (const int code = store.Logon()) return code;
  if (const int code = store.OpenFolder(FolderKind::Contacts)) return code;
  return store.OpenFolder(FolderKind::Calendar);
}

class TemporaryStore : public testing::Test {
 protected:
  TemporaryStore() : m_store(Path()) {}

  void SetUp() override { ASSERT_EQ(OpenAll(m_store), 0) << m_store.LastError().toStdString(); }

  QString Path() const { return m_folder.filePath(QStringLiteral("store.db")); }
  ContactsFolder& Contacts() { return *m_store.Contacts(); }

  // A contact with this FileAs and nothing else.
  Oid Add(const QString& fileAs) {
    ContactRecord record;
    record[ContactField::FileAs] = fileAs;
    return Contacts().Save(0, record, {});
  }

  QTemporaryDir m_folder;
  PimStore m_store;
};

// The items of a collection, in its order.
inline std::vector<Oid> Oids(ContactsFolder& folder, const ContactCollection& collection) {
  std::vector<Oid> oids;
  const int count = folder.Count(collection);
  for (int position = 1; position <= count; ++position) {
    oids.push_back(folder.OidAt(collection, position));
  }
  return oids;
}

// Their names.
inline QStringList Names(ContactsFolder& folder, const ContactCollection& collection) {
  QStringList names;
  for (const Oid oid : Oids(folder, collection)) {
    ContactRecord record;
    if (folder.ReadListRow(oid, record)) names.append(record[ContactField::FileAs]);
  }
  return names;
}

}  // namespace quill::test
