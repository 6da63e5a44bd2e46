#include "store/pim/PlainOids.h"

#include "store/pim/Database.h"
#include "store/pim/RestrictionSql.h"

namespace quill {

namespace {

using MakeCondition = std::optional<RestrictionSql> (*)(const RestrictionNode& node);

RestrictionSql ConditionOf(const RestrictionNode* restriction, MakeCondition make) {
  if (!restriction) return {.Condition = "1", .Values = {}};
  const RestrictionSql nothing{.Condition = "0", .Values = {}};
  return make(*restriction).value_or(nothing);
}

std::vector<Oid> ReadOids(Database& database, const QByteArray& table, const RestrictionSql& sql,
                          const QByteArray& order) {
  Query query = database.Prepare("SELECT Oid FROM " + table + " WHERE " + sql.Condition +
                                 " ORDER BY " + order);
  sql.Bind(query);
  std::vector<Oid> oids;
  while (query.Next()) oids.push_back(static_cast<Oid>(query.Number(0)));
  return query.Failed() ? std::vector<Oid>() : oids;
}

QByteArray OrderOf(const ContactCollection& collection) {
  return collection.Order == ContactOrder::ByCompany
             ? "fold_key(CompanyName), fold_key(FileAs), Oid"
             : "fold_key(FileAs), Oid";
}

}  // namespace

std::vector<Oid> PlainContactOids(Database& database, const ContactCollection& collection) {
  const RestrictionSql sql = ConditionOf(collection.Restriction.get(), MakeContactCondition);
  return ReadOids(database, "contact", sql, OrderOf(collection));
}

std::vector<Oid> PlainAppointmentOids(Database& database, const AppointmentCollection& collection) {
  const RestrictionSql sql = ConditionOf(collection.Restriction.get(), MakeAppointmentCondition);
  return ReadOids(database, "appointment", sql, "Oid");
}

}  // namespace quill
