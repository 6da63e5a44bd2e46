// The category library over the table category.
#pragma once

#include "store/StoreProvider.h"

namespace quill {

class Database;

// The table of a new store, with a first few categories.
QByteArray CategoryTables();

class PimCategories : public CategoryLibrary {
 public:
  explicit PimCategories(Database& database) : m_database(database) {}

  QStringList Names() override;
  bool SetNames(const QStringList& names) override;

 private:
  bool Replace(const QStringList& names);

  Database& m_database;
};

}  // namespace quill
