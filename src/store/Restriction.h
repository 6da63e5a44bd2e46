// The store's query language: one line of text, parsed once into a tree.
//
//   restriction = part { "OR" part }          AND binds tighter than OR
//   part        = term { "AND" term }
//   term        = "(" restriction ")" | property operator value
//   property    = "[FileAs]" | "[CompanyName]" | "[Categories]" | "[Subject]"
//   operator    = "=" | ">=" | "<"
//   value       = a quote, the text, a quote; a quote inside the text is written twice
//
// Blanks may stand between all of these. Names and words are taken exactly as written here. How the
// properties compare stands in Collation.h; "=" on Categories is CategoriesMatch.
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace quill {

enum class RestrictionKind { Comparison, And, Or };
enum class RestrictionProperty { FileAs, CompanyName, Categories, Subject };
enum class RestrictionOperator { Equal, AtLeast, Below };

// A comparison has a property, an operator and a value; And and Or have children. An And without
// children holds for everything, an Or without children for nothing.
struct RestrictionNode {
  RestrictionKind Kind = RestrictionKind::And;
  RestrictionProperty Property = RestrictionProperty::FileAs;
  RestrictionOperator Operator = RestrictionOperator::Equal;
  QString Value = {};
  std::vector<RestrictionNode> Children = {};

  bool operator==(const RestrictionNode& other) const = default;
};

inline constexpr int kRestrictionDepthLimit = 32;        // parentheses inside parentheses
inline constexpr int kRestrictionComparisonLimit = 256;  // in one text

// Nothing when the text does not follow the grammar or passes a limit.
std::optional<RestrictionNode> ParseRestriction(QStringView text);

// What satisfies both.
RestrictionNode MakeBoth(RestrictionNode first, RestrictionNode second);

// The text as a value of a restriction, quotes included.
QString QuoteRestrictionValue(QStringView text);

}  // namespace quill
