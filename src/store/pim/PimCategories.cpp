#include "store/pim/PimCategories.h"

#include "store/CategoryText.h"
#include "store/pim/Database.h"
#include "store/pim/Savepoint.h"

namespace quill {

QByteArray CategoryTables() {
  return "CREATE TABLE category (Position INTEGER PRIMARY KEY, Name TEXT NOT NULL UNIQUE);"
         "INSERT INTO category (Name) VALUES ('Business'), ('Family'), ('Friends'), ('Personal'), "
         "('Work');";
}

QStringList PimCategories::Names() {
  Query query = m_database.Prepare("SELECT Name FROM category ORDER BY Position");
  QStringList names;
  while (query.Next()) names.append(query.Text(0));
  return names;
}

bool PimCategories::SetNames(const QStringList& names) {
  Savepoint savepoint(m_database);
  return savepoint.IsOpen() && Replace(ValidCategories(names)) && savepoint.Release();
}

bool PimCategories::Replace(const QStringList& names) {
  if (m_database.Execute("DELETE FROM category") != 0) return false;
  for (const QString& name : names) {
    Query query = m_database.Prepare("INSERT INTO category (Name) VALUES (?1)");
    query.BindText(1, name);
    if (!query.Run()) return false;
  }
  return true;
}

}  // namespace quill
