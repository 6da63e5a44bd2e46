#include "store/pim/RestrictionSql.h"

#include "store/AppointmentFields.h"
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

// A comparison with the parameter of this name; empty when the property is not one of these items.
using MakeComparison = QByteArray (*)(const RestrictionNode& node, const QByteArray& value);

QByteArray ContactComparison(const RestrictionNode& node, const QByteArray& value) {
  const QByteArray folded = Sign(node.Operator) + "fold_key(" + value + ')';
  switch (node.Property) {
    case RestrictionProperty::FileAs:
      return "fold_key(FileAs)" + folded;
    case RestrictionProperty::CompanyName:
      return "fold_key(CompanyName)" + folded;
    case RestrictionProperty::Categories:
      return CategoriesCondition(node.Operator, value);
    case RestrictionProperty::Subject:
      break;
  }
  return {};
}

QByteArray AppointmentComparison(const RestrictionNode& node, const QByteArray& value) {
  switch (node.Property) {
    case RestrictionProperty::Subject:
      return "unit_key(" + PropertyOf(&AppointmentItem::Subject).toUtf8() + ')' +
             Sign(node.Operator) + "unit_key(" + value + ')';
    case RestrictionProperty::Categories:
      return CategoriesCondition(node.Operator, value);
    case RestrictionProperty::FileAs:
    case RestrictionProperty::CompanyName:
      break;
  }
  return {};
}

bool AppendNode(const RestrictionNode& node, MakeComparison compare, RestrictionSql& sql);

bool AppendComparison(const RestrictionNode& node, MakeComparison compare, RestrictionSql& sql) {
  sql.Values.append(node.Value);
  const QByteArray comparison = compare(node, '?' + QByteArray::number(sql.Values.size()));
  sql.Condition += comparison;
  return !comparison.isEmpty();
}

bool AppendSequence(const RestrictionNode& node, MakeComparison compare, RestrictionSql& sql) {
  const bool all = node.Kind == RestrictionKind::And;
  if (node.Children.empty()) {
    sql.Condition += all ? "1" : "0";
    return true;
  }
  const QByteArray word = all ? " AND " : " OR ";
  QByteArray before = "(";
  for (const RestrictionNode& child : node.Children) {
    sql.Condition += before;
    if (!AppendNode(child, compare, sql)) return false;
    before = word;
  }
  sql.Condition += ')';
  return true;
}

bool AppendNode(const RestrictionNode& node, MakeComparison compare, RestrictionSql& sql) {
  return node.Kind == RestrictionKind::Comparison ? AppendComparison(node, compare, sql)
                                                  : AppendSequence(node, compare, sql);
}

std::optional<RestrictionSql> MakeCondition(const RestrictionNode& node, MakeComparison compare) {
  RestrictionSql sql;
  return AppendNode(node, compare, sql) ? std::optional(std::move(sql)) : std::nullopt;
}

}  // namespace

void RestrictionSql::Bind(Query& query) const {
  int parameter = 0;
  for (const QString& value : Values) query.BindText(++parameter, value);
}

std::optional<RestrictionSql> MakeContactCondition(const RestrictionNode& node) {
  return MakeCondition(node, ContactComparison);
}

std::optional<RestrictionSql> MakeAppointmentCondition(const RestrictionNode& node) {
  return MakeCondition(node, AppointmentComparison);
}

}  // namespace quill
