// A place for the file of a store, and files that are and are not one.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "store/pim/Database.h"
#include "store/pim/PimStore.h"
#include "store_pim/TemporaryStore.h"

namespace quill::test {

inline QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

inline void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(bytes), bytes.size());
}

class StoreFileFixture : public testing::Test {
 protected:
  QString Path() const { return m_folder.filePath(QStringLiteral("store.db")); }

  // A step fails with the code and a reason, and the file is left byte for byte.
  void ExpectRefused(int code) {
    const QByteArray before = BytesOf(Path());
    const QStringList files = QDir(m_folder.path()).entryList();
    {
      PimStore store(Path());
      EXPECT_EQ(OpenAll(store), code);
      EXPECT_FALSE(store.LastError().isEmpty());
      EXPECT_EQ(store.Contacts(), nullptr);
      store.Close();
      EXPECT_FALSE(store.LastError().isEmpty());
    }
    EXPECT_EQ(BytesOf(Path()), before);
    EXPECT_EQ(QDir(m_folder.path()).entryList(), files);
  }

  // The file of a store with some contacts, its log written back.
  void MakeStore() {
    PimStore store(Path());
    ASSERT_EQ(OpenAll(store), 0);
    const auto transaction = store.Begin();
    for (int i = 0; i < 200; ++i) {
      ContactRecord record;
      record[ContactField::FileAs] = QStringLiteral("N%1").arg(i);
      ASSERT_NE(store.Contacts()->Save(0, record, {}), 0);
    }
    ASSERT_TRUE(transaction->Commit());
  }

  void RunOnFile(const QByteArray& sql) {
    Database database;
    ASSERT_EQ(database.Open(Path()), 0);
    ASSERT_EQ(database.Execute(sql), 0);
  }

  QTemporaryDir m_folder;
};

}  // namespace quill::test
