#include "store/pim/PlainOids.h"

#include "store/pim/Database.h"
#include "store/pim/RestrictionSql.h"

namespace quill {

namespace {

RestrictionSql ConditionOf(const ContactCollection& collection) {
  if (!collection.Restriction) return {.Condition = "1", .Values = {}};
  const RestrictionSql nothing{.Condition = "0", .Values = {}};
  return MakeContactCondition(*collection.Restriction).value_or(nothing);
}

QByteArray OrderOf(const ContactCollection& collection) {
  return collection.Order == ContactOrder::ByCompany
             ? "fold_key(CompanyName), fold_key(FileAs), Oid"
             : "fold_key(FileAs), Oid";
}

}  // namespace

std::vector<Oid> PlainContactOids(Database& database, const ContactCollection& collection) {
  const RestrictionSql sql = ConditionOf(collection);
  Query query = database.Prepare("SELECT Oid FROM contact WHERE " + sql.Condition + " ORDER BY " +
                                 OrderOf(collection));
  sql.Bind(query);
  std::vector<Oid> oids;
  while (query.Next()) oids.push_back(static_cast<Oid>(query.Number(0)));
  return oids;
}

}  // namespace quill
