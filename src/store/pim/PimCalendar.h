// The calendar folder over the appointment table. Each writing operation is one statement, so it is
// durable and whole on its own when no transaction is open.
//
// The Oids of the collection asked for last are kept until the data change.
#pragma once

#include "store/StoreProvider.h"
#include "store/pim/AppointmentRows.h"
#include "store/pim/Database.h"
#include "store/pim/KeyRanges.h"
#include "store/pim/ListIndex.h"

namespace quill {

class PimCalendar : public CalendarFolder {
 public:
  // The limit is in bytes.
  PimCalendar(Database& database, qsizetype inkLimit);

  // Whether the table answers: 0 or the failure.
  int Check();

  AppointmentCollection Items() override;
  std::optional<AppointmentCollection> Restrict(const AppointmentCollection& collection,
                                                const QString& restriction) override;
  int Count(const AppointmentCollection& collection) override;
  Oid OidAt(const AppointmentCollection& collection, int position) override;
  bool Read(Oid oid, AppointmentItem& item) override;
  bool ReadSubject(Oid oid, QString& subject) override;
  Oid Save(const AppointmentItem& item) override;
  bool PutInk(AppointmentItem& item, const QByteArray& ink) override;
  bool Remove(Oid oid) override;
  std::vector<Oid> FindByUid(const QString& uid) override;

 private:
  Oid Update(const AppointmentItem& item);
  const std::vector<Oid>& OidsOf(const AppointmentCollection& collection);
  std::vector<Oid> OidsWithin(const KeyRanges& ranges);

  Database& m_database;
  ListIndex m_index;
  qsizetype m_inkLimit;
  AppointmentSql m_sql;
  DataStamp m_stamp;
  AppointmentCollection m_collection;
  std::vector<Oid> m_oids;  // of that collection at that stamp
};

}  // namespace quill
