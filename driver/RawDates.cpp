#include "driver/RawDates.h"

#include "store/ContactFields.h"
#include "store/pim/Database.h"

namespace quill::driver {

QJsonObject ReadRawDates(const QString& storeFile, Oid oid) {
  QJsonObject dates;
  Database database;
  if (database.Open(storeFile) != 0) return dates;
  QByteArrayList columns;
  for (const ContactDateRow& row : kContactDates) columns << row.Property.toLatin1();
  Query query = database.Prepare("SELECT " + columns.join(", ") + " FROM contact WHERE Oid = ?1");
  query.BindNumber(1, oid);
  if (!query.Next()) return dates;
  int column = 0;
  for (const ContactDateRow& row : kContactDates) dates.insert(row.Property, query.Real(column++));
  return dates;
}

}  // namespace quill::driver
