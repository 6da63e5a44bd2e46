#include "store/pim/PimCalendar.h"

#include <sqlite3.h>

#include <algorithm>
#include <limits>

#include "store/pim/PlainOids.h"
#include "store/pim/RestrictionSql.h"

namespace quill {

namespace {

bool SameItems(const AppointmentCollection& a, const AppointmentCollection& b) {
  if (a.Restriction == b.Restriction) return true;
  return a.Restriction && b.Restriction && *a.Restriction == *b.Restriction;
}

std::vector<Oid> OidsIn(Query& query) {
  std::vector<Oid> oids;
  while (query.Next()) oids.push_back(static_cast<Oid>(query.Number(0)));
  return oids;
}

}  // namespace

PimCalendar::PimCalendar(Database& database, qsizetype inkLimit)
    : m_database(database), m_index(database), m_inkLimit(inkLimit), m_sql(MakeAppointmentSql()) {}

int PimCalendar::Check() {
  Query columns = m_database.Prepare(m_sql.Read);
  columns.BindNumber(1, 0);
  columns.Next();
  return columns.Failed() ? m_database.FailureCode() : SQLITE_OK;
}

AppointmentCollection PimCalendar::Items() { return {}; }

std::optional<AppointmentCollection> PimCalendar::Restrict(const AppointmentCollection& collection,
                                                           const QString& restriction) {
  auto node = ParseRestriction(restriction);
  if (!node || !MakeAppointmentCondition(*node)) {
    m_database.Fail(SQLITE_ERROR, QStringLiteral("not a restriction of appointments"));
    return std::nullopt;
  }
  if (collection.Restriction) node = MakeBoth(*collection.Restriction, std::move(*node));
  return AppointmentCollection{.Restriction =
                                   std::make_shared<const RestrictionNode>(std::move(*node))};
}

int PimCalendar::Count(const AppointmentCollection& collection) {
  return static_cast<int>(OidsOf(collection).size());
}

Oid PimCalendar::OidAt(const AppointmentCollection& collection, int position) {
  const std::vector<Oid>& oids = OidsOf(collection);
  if (position < 1 || static_cast<std::size_t>(position) > oids.size()) return 0;
  return oids[static_cast<std::size_t>(position - 1)];
}

bool PimCalendar::Read(Oid oid, AppointmentItem& item) {
  Query query = m_database.Prepare(m_sql.Read);
  query.BindNumber(1, oid);
  if (!query.Next()) return false;
  ReadAppointmentRow(query, item);
  item.Id = oid;
  return true;
}

bool PimCalendar::ReadSubject(Oid oid, QString& subject) {
  Query query = m_database.Prepare(m_sql.ReadSubject);
  query.BindNumber(1, oid);
  if (!query.Next()) return false;
  subject = query.Text(0);
  return true;
}

Oid PimCalendar::Save(const AppointmentItem& item) {
  if (!m_database.MayWrite()) return 0;
  if (item.Id != 0) return Update(item);
  Query query = m_database.Prepare(m_sql.Insert);
  BindAppointment(query, item);
  return query.Run() ? static_cast<Oid>(m_database.LastRowId()) : 0;
}

bool PimCalendar::PutInk(AppointmentItem& item, const QByteArray& ink) {
  if (ink.size() > m_inkLimit) return false;
  item.BodyInk = ink;
  return true;
}

bool PimCalendar::Remove(Oid oid) {
  if (!m_database.MayWrite()) return false;
  Query query = m_database.Prepare("DELETE FROM appointment WHERE Oid = ?1");
  query.BindNumber(1, oid);
  return query.Run() && m_database.ChangedRows() == 1;
}

std::vector<Oid> PimCalendar::FindByUid(const QString& uid) {
  // Appointments without a UID are not the same one.
  if (uid.isEmpty()) return {};
  Query query =
      m_database.Prepare("SELECT Oid FROM appointment WHERE Uid = ?1 AND Uid <> '' ORDER BY Oid");
  query.BindText(1, uid);
  return OidsIn(query);
}

Oid PimCalendar::Update(const AppointmentItem& item) {
  Query query = m_database.Prepare(m_sql.Update);
  BindAppointment(query, item);
  query.BindNumber(kAppointmentOidParameter, item.Id);
  if (!query.Run()) return 0;
  if (m_database.ChangedRows() == 1) return item.Id;
  m_database.Fail(SQLITE_NOTFOUND, QStringLiteral("there is no appointment %1").arg(item.Id));
  return 0;
}

const std::vector<Oid>& PimCalendar::OidsOf(const AppointmentCollection& collection) {
  const DataStamp stamp = m_database.Stamp();
  if (stamp == m_stamp && SameItems(collection, m_collection)) return m_oids;
  const auto ranges =
      collection.Restriction ? SubjectRanges(*collection.Restriction) : std::nullopt;
  m_oids = ranges ? OidsWithin(*ranges) : PlainAppointmentOids(m_database, collection);
  m_collection = collection;
  m_stamp = stamp;
  return m_oids;
}

std::vector<Oid> PimCalendar::OidsWithin(const KeyRanges& ranges) {
  std::vector<Oid> oids;
  for (const KeyRange& range : ranges) {
    const EntrySlice slice = m_index.Slice(range, 0, std::numeric_limits<int>::max());
    oids.insert(oids.end(), slice.Oids.begin(), slice.Oids.end());
  }
  std::sort(oids.begin(), oids.end());
  return oids;
}

}  // namespace quill
