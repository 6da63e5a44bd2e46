#include "store/pim/RestrictionSql.h"

#include "store/pim/Query.h"

namespace quill {

namespace {

QByteArray Sign(RestrictionOperator comparison) {
  switch (comparison) {
    case RestrictionOperator::AtLeast:
      return " >= ";
    case RestrictionOperator::Below:
      return " < ";
    case RestrictionOperator::Equal:
      break;
  }
  return " = ";
}

QByteArray CategoriesCondition(RestrictionOperator comparison, const QByteArray& value) {
  if (comparison == RestrictionOperator::Equal) {
    return "categories_match(" + value + ", Categories)";
  }
  return "unit_key(Categories)" + Sign(comparison) + "unit_key(" + value + ')';
}

bool AppendNode(const RestrictionNode& node, RestrictionSql& sql);

bool AppendComparison(const RestrictionNode& node, RestrictionSql& sql) {
  sql.Values.append(node.Value);
  const QByteArray value = '?' + QByteArray::number(sql.Values.size());
  const QByteArray folded = Sign(node.Operator) + "fold_key(" + value + ')';
  switch (node.Property) {
    case RestrictionProperty::FileAs:
      sql.Condition += "fold_key(FileAs)" + folded;
      return true;
    case RestrictionProperty::CompanyName:
      sql.Condition += "fold_key(CompanyName)" + folded;
      return true;
    case RestrictionProperty::Categories:
      sql.Condition += CategoriesCondition(node.Operator, value);
      return true;
    case RestrictionProperty::Subject:
      break;
  }
  return false;
}

bool AppendSequence(const RestrictionNode& node, RestrictionSql& sql) {
  const bool all = node.Kind == RestrictionKind::And;
  if (node.Children.empty()) {
    sql.Condition += all ? "1" : "0";
    return true;
  }
  const QByteArray word = all ? " AND " : " OR ";
  QByteArray before = "(";
  for (const RestrictionNode& child : node.Children) {
    sql.Condition += before;
    if (!AppendNode(child, sql)) return false;
    before = word;
  }
  sql.Condition += ')';
  return true;
}

bool AppendNode(const RestrictionNode& node, RestrictionSql& sql) {
  return node.Kind == RestrictionKind::Comparison ? AppendComparison(node, sql)
                                                  : AppendSequence(node, sql);
}

}  // namespace

void RestrictionSql::Bind(Query& query) const {
  int parameter = 0;
  for (const QString& value : Values) query.BindText(++parameter, value);
}

std::optional<RestrictionSql> MakeContactCondition(const RestrictionNode& node) {
  RestrictionSql sql;
  return AppendNode(node, sql) ? std::optional(std::move(sql)) : std::nullopt;
}

}  // namespace quill
