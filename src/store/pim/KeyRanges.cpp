#include "store/pim/KeyRanges.h"

#include <QStringList>

#include <algorithm>
#include <utility>

#include "store/CategoryText.h"
#include "store/Collation.h"

namespace quill {

namespace {

// Texts from one key to before another one, or without an upper end.
struct TextRange {
  QByteArray From;
  std::optional<QByteArray> To;
};
using TextRanges = std::vector<TextRange>;  // ascending, apart from each other

// What a part of a restriction lets through.
struct Shape {
  TextRanges Texts;
  std::optional<QStringList> Categories;  // any of them; the empty name: without categories
};

TextRanges Everything() { return {{.From = {}, .To = std::nullopt}}; }

bool EndsBefore(const TextRange& range, const QByteArray& key) {
  return range.To && *range.To <= key;
}

std::optional<QByteArray> LowerEnd(const TextRange& a, const TextRange& b) {
  if (!a.To || !b.To) return a.To ? a.To : b.To;
  return std::min(*a.To, *b.To);
}

std::optional<QByteArray> UpperEnd(const TextRange& a, const TextRange& b) {
  if (!a.To || !b.To) return std::nullopt;
  return std::max(*a.To, *b.To);
}

TextRanges Intersection(const TextRanges& first, const TextRanges& second) {
  TextRanges both;
  for (const TextRange& a : first) {
    for (const TextRange& b : second) {
      TextRange common{.From = std::max(a.From, b.From), .To = LowerEnd(a, b)};
      if (!EndsBefore(common, common.From)) both.push_back(std::move(common));
    }
  }
  return both;
}

TextRanges Union(TextRanges ranges, const TextRanges& more) {
  ranges.insert(ranges.end(), more.begin(), more.end());
  std::sort(ranges.begin(), ranges.end(),
            [](const TextRange& a, const TextRange& b) { return a.From < b.From; });
  TextRanges joined;
  for (TextRange& range : ranges) {
    if (joined.empty() || (joined.back().To && *joined.back().To < range.From)) {
      joined.push_back(std::move(range));
    } else {
      joined.back().To = UpperEnd(joined.back(), range);
    }
  }
  return joined;
}

class Compiler {
 public:
  explicit Compiler(RestrictionProperty name) : m_name(name) {}

  // Nothing when the index cannot answer it.
  std::optional<Shape> Compile(const RestrictionNode& node) const {
    switch (node.Kind) {
      case RestrictionKind::And:
        return CompileAnd(node.Children);
      case RestrictionKind::Or:
        return CompileOr(node.Children);
      case RestrictionKind::Comparison:
        break;
    }
    if (node.Property == m_name) return Shape{.Texts = Compared(node), .Categories = std::nullopt};
    return CompileCategory(node);
  }

 private:
  QByteArray KeyOf(const QString& text) const {
    return m_name == RestrictionProperty::Subject ? UnitKey(text) : FoldKey(text);
  }

  TextRanges Compared(const RestrictionNode& node) const {
    const QByteArray key = KeyOf(node.Value);
    switch (node.Operator) {
      case RestrictionOperator::AtLeast:
        return {{.From = key, .To = std::nullopt}};
      case RestrictionOperator::Below:
        return key.isEmpty() ? TextRanges() : TextRanges{{.From = {}, .To = key}};
      case RestrictionOperator::Equal:
        break;
    }
    return {{.From = key, .To = key + '\1'}};
  }

  static std::optional<Shape> CompileCategory(const RestrictionNode& node) {
    if (node.Property != RestrictionProperty::Categories ||
        node.Operator != RestrictionOperator::Equal) {
      return std::nullopt;
    }
    if (node.Value.isEmpty()) return Shape{.Texts = Everything(), .Categories = {{QString()}}};
    QStringList names = SplitCategories(node.Value);
    names.removeDuplicates();
    names.removeAll(kNoCategories);
    // A text of commas and blanks names no category, and no contact is in it.
    if (names.isEmpty()) return Shape{};
    return Shape{.Texts = Everything(), .Categories = names};
  }

  std::optional<Shape> CompileAnd(const std::vector<RestrictionNode>& children) const {
    Shape all{.Texts = Everything(), .Categories = std::nullopt};
    for (const RestrictionNode& child : children) {
      auto shape = Compile(child);
      if (!shape) return std::nullopt;
      // A contact may well be in both.
      const bool both = all.Categories && shape->Categories;
      if (both && *all.Categories != *shape->Categories) return std::nullopt;
      all.Texts = Intersection(all.Texts, shape->Texts);
      if (!all.Categories) all.Categories = std::move(shape->Categories);
    }
    return all;
  }

  std::optional<Shape> CompileOr(const std::vector<RestrictionNode>& children) const {
    Shape any;
    for (const RestrictionNode& child : children) {
      auto shape = Compile(child);
      if (!shape) return std::nullopt;
      if (shape->Texts.empty()) continue;
      if (any.Texts.empty()) {
        any = std::move(*shape);
      } else if (any.Categories == shape->Categories) {
        any.Texts = Union(std::move(any.Texts), shape->Texts);
      } else {
        return std::nullopt;
      }
    }
    return any;
  }

  RestrictionProperty m_name;
};

KeyRanges Within(const KeyRange& whole, const TextRanges& texts) {
  KeyRanges ranges;
  for (const TextRange& text : texts) {
    ranges.push_back(
        {.From = whole.From + text.From, .To = text.To ? whole.From + *text.To : whole.To});
  }
  return ranges;
}

bool IsByCompany(const ContactCollection& collection) {
  return collection.Order == ContactOrder::ByCompany;
}

std::optional<Shape> ShapeOf(const ContactCollection& collection) {
  const Compiler compiler(IsByCompany(collection) ? RestrictionProperty::CompanyName
                                                  : RestrictionProperty::FileAs);
  return compiler.Compile(collection.Restriction ? *collection.Restriction : RestrictionNode{});
}

KeyRange WholeOfCategory(const ContactCollection& collection, const QString& category) {
  return WholeCategory(
      IsByCompany(collection) ? EntryOrder::CategoryCompany : EntryOrder::CategoryFileAs, category);
}

KeyRange WholeOf(const ContactCollection& collection) {
  return WholeOrder(IsByCompany(collection) ? EntryOrder::Company : EntryOrder::FileAs);
}

}  // namespace

std::optional<KeyRanges> ContactRanges(const ContactCollection& collection) {
  const auto shape = ShapeOf(collection);
  if (!shape) return std::nullopt;
  if (!shape->Categories) return Within(WholeOf(collection), shape->Texts);
  if (shape->Categories->size() > 1) return std::nullopt;
  return Within(WholeOfCategory(collection, shape->Categories->front()), shape->Texts);
}

std::optional<std::vector<CategoryRanges>> SeveralCategoryRanges(
    const ContactCollection& collection) {
  const auto shape = ShapeOf(collection);
  if (!shape || !shape->Categories || shape->Categories->size() < 2) return std::nullopt;
  std::vector<CategoryRanges> several;
  for (const QString& category : *shape->Categories) {
    const KeyRange whole = WholeOfCategory(collection, category);
    several.push_back({.Ranges = Within(whole, shape->Texts), .PrefixSize = whole.From.size()});
  }
  return several;
}

std::optional<KeyRanges> SubjectRanges(const RestrictionNode& restriction) {
  const auto shape = Compiler(RestrictionProperty::Subject).Compile(restriction);
  if (!shape || shape->Categories) return std::nullopt;
  return Within(WholeOrder(EntryOrder::Subject), shape->Texts);
}

}  // namespace quill
