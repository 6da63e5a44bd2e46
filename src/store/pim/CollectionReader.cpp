#include "store/pim/CollectionReader.h"

#include "store/pim/RestrictionSql.h"

namespace quill {

namespace {

constexpr int kWindowSize = 64;

RestrictionSql ConditionOf(const ContactCollection& collection) {
  if (!collection.Restriction) return {.Condition = "1", .Values = {}};
  const RestrictionSql nothing{.Condition = "0", .Values = {}};
  return MakeContactCondition(*collection.Restriction).value_or(nothing);
}

QByteArray OrderOf(const ContactCollection& collection) {
  return collection.Order == ContactOrder::ByCompany ? "CompanyKey, FileAsKey, Oid"
                                                     : "FileAsKey, Oid";
}

bool SameItems(const ContactCollection& a, const ContactCollection& b) {
  if (a.Order != b.Order) return false;
  if (a.Restriction == b.Restriction) return true;
  return a.Restriction && b.Restriction && *a.Restriction == *b.Restriction;
}

}  // namespace

int CollectionReader::Count(const ContactCollection& collection) {
  TurnTo(collection);
  if (!m_count) ReadCount();
  return m_count.value_or(0);
}

Oid CollectionReader::OidAt(const ContactCollection& collection, int position) {
  if (position < 1) return 0;
  TurnTo(collection);
  const auto inWindow = [this, position] {
    return position >= m_windowStart &&
           position - m_windowStart < static_cast<int>(m_window.size());
  };
  if (!inWindow()) ReadWindow(position);
  return inWindow() ? m_window[static_cast<std::size_t>(position - m_windowStart)] : 0;
}

void CollectionReader::TurnTo(const ContactCollection& collection) {
  const DataStamp stamp = m_database.Stamp();
  if (stamp == m_stamp && SameItems(collection, m_collection)) return;
  m_stamp = stamp;
  m_collection = collection;
  m_count.reset();
  m_window.clear();
}

void CollectionReader::ReadCount() {
  const RestrictionSql sql = ConditionOf(m_collection);
  Query query = m_database.Prepare("SELECT count(*) FROM contact WHERE " + sql.Condition);
  sql.Bind(query);
  if (query.Next()) m_count = static_cast<int>(query.Number(0));
}

void CollectionReader::ReadWindow(int position) {
  const RestrictionSql sql = ConditionOf(m_collection);
  const int limit = static_cast<int>(sql.Values.size()) + 1;
  Query query = m_database.Prepare("SELECT Oid FROM contact WHERE " + sql.Condition + " ORDER BY " +
                                   OrderOf(m_collection) + " LIMIT ?" + QByteArray::number(limit) +
                                   " OFFSET ?" + QByteArray::number(limit + 1));
  sql.Bind(query);
  query.BindNumber(limit, kWindowSize);
  query.BindNumber(limit + 1, position - 1);
  m_windowStart = position;
  m_window.clear();
  while (query.Next()) m_window.push_back(static_cast<Oid>(query.Number(0)));
}

}  // namespace quill
