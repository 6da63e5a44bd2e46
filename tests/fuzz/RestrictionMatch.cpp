#include "RestrictionMatch.h"

#include <algorithm>

#include "store/CategoryText.h"
#include "store/Collation.h"

namespace quill {

namespace {

bool Compares(const QByteArray& key, RestrictionOperator comparison, const QByteArray& value) {
  switch (comparison) {
    case RestrictionOperator::Equal:
      return key == value;
    case RestrictionOperator::AtLeast:
      return key >= value;
    case RestrictionOperator::Below:
      return key < value;
  }
  Q_UNREACHABLE();
}

bool ComparesFolded(const QString& text, const RestrictionNode& node) {
  return Compares(FoldKey(text), node.Operator, FoldKey(node.Value));
}

bool ComparesCategories(const QString& categories, const RestrictionNode& node) {
  if (node.Operator == RestrictionOperator::Equal) return CategoriesMatch(node.Value, categories);
  return Compares(UnitKey(categories), node.Operator, UnitKey(node.Value));
}

bool SatisfiesComparison(const ContactRecord& record, const RestrictionNode& node) {
  switch (node.Property) {
    case RestrictionProperty::FileAs:
      return ComparesFolded(record[ContactField::FileAs], node);
    case RestrictionProperty::CompanyName:
      return ComparesFolded(record[ContactField::CompanyName], node);
    case RestrictionProperty::Categories:
      return ComparesCategories(record[ContactField::Categories], node);
    case RestrictionProperty::Subject:
      return false;
  }
  Q_UNREACHABLE();
}

}  // namespace

bool SatisfiesRestriction(const ContactRecord& record, const RestrictionNode& node) {
  const auto satisfies = [&record](const RestrictionNode& child) {
    return SatisfiesRestriction(record, child);
  };
  switch (node.Kind) {
    case RestrictionKind::Comparison:
      return SatisfiesComparison(record, node);
    case RestrictionKind::And:
      return std::ranges::all_of(node.Children, satisfies);
    case RestrictionKind::Or:
      return std::ranges::any_of(node.Children, satisfies);
  }
  Q_UNREACHABLE();
}

}  // namespace quill
