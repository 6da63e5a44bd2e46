// A restriction of contacts as a condition of SQL over the contact table, and one of appointments
// over the appointment table.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

#include "store/Restriction.h"

namespace quill {

class Query;

struct RestrictionSql {
  QByteArray Condition;
  QStringList Values;  // parameters ?1, ?2, ... in this order

  void Bind(Query& query) const;
};

// Each is nothing when a property is not one of these items.
std::optional<RestrictionSql> MakeContactCondition(const RestrictionNode& node);
std::optional<RestrictionSql> MakeAppointmentCondition(const RestrictionNode& node);

}  // namespace quill
