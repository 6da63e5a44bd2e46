// A restriction of contacts as a condition of SQL over the contact table.
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

// Nothing when a property is not one of contacts.
std::optional<RestrictionSql> MakeContactCondition(const RestrictionNode& node);

}  // namespace quill
