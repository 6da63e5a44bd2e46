#include "list/RestrictionText.h"

#include "list/CategoryFilter.h"
#include "store/Collation.h"
#include "store/ContactFields.h"
#include "store/Restriction.h"

namespace quill {

namespace {

constexpr char16_t kLastUnit = 0xFFFF;

char16_t Folded(char16_t unit) { return FoldCase(QStringView(&unit, 1)).front().unicode(); }

// The unit raised by one. Where the store's comparison would not put that right behind the unit
// (the lower-case letters of other scripts are folded past it), the next unit that it leaves as it
// is.
char16_t UnitAfter(char16_t unit) {
  if (unit == kLastUnit) return unit;
  const char16_t raised = unit + 1;
  const bool isLatin = unit < 0x80;
  if (isLatin ? Folded(raised) > Folded(unit) : Folded(raised) == Folded(unit) + 1) return raised;
  char16_t next = Folded(unit);
  while (next < kLastUnit && Folded(next) <= Folded(unit)) ++next;
  return next;
}

QString Comparison(ContactField field, QStringView comparison, const QString& value) {
  return QStringLiteral("[%1] %2 ").arg(FieldRow(field).Property, comparison) +
         QuoteRestrictionValue(value);
}

QString AtLeast(ContactField field, const QString& value) {
  return Comparison(field, u">=", value);
}

QString Below(ContactField field, const QString& value) { return Comparison(field, u"<", value); }

QString And(const QString& left, const QString& right) {
  return left + QStringLiteral(" AND ") + right;
}

QString CategoryText(const ListState& list) {
  return Comparison(ContactField::Categories, u"=", CategoryToMatch(list));
}

ContactField OrderField(const ListState& list) {
  return list.Mode == ViewMode::ByCompany ? ContactField::CompanyName : ContactField::FileAs;
}

QString WithCategory(const ListState& list, const QString& text) {
  return IsCategoryChosen(list) ? And(text, CategoryText(list)) : text;
}

QString IndexRangeText(const ListState& list) {
  const ContactField field = OrderField(list);
  const QString lower = AtLeast(field, list.IndexLower);
  const QString upper = Below(field, list.IndexUpper);
  if (list.IndexLower < list.IndexUpper) return WithCategory(list, And(lower, upper));
  const QString wrapped = lower + QStringLiteral(" OR ") + upper;
  if (!IsCategoryChosen(list)) return wrapped;
  return And(QStringLiteral("(%1)").arg(wrapped), CategoryText(list));
}

QString SearchRangeText(const ListState& list) {
  const ContactField field = OrderField(list);
  const QString from = AtLeast(field, list.SearchText);
  if (list.SearchText.isEmpty()) return WithCategory(list, from);
  return WithCategory(list, And(from, Below(field, PrefixEnd(list.SearchText))));
}

QString RangeText(const ListState& list) {
  switch (list.SubFilter) {
    case FilterSubKind::IndexRange:
      return IndexRangeText(list);
    case FilterSubKind::SearchText:
      return SearchRangeText(list);
    case FilterSubKind::None:
      break;
  }
  return {};
}

}  // namespace

QString RestrictionText(const ListState& list) {
  switch (list.Filter) {
    case FilterKind::Category:
      return IsCategoryChosen(list) ? CategoryText(list) : QString();
    case FilterKind::Range:
      return RangeText(list);
    case FilterKind::None:
      break;
  }
  return {};
}

QString PrefixEnd(QString prefix) {
  if (!prefix.isEmpty()) prefix.back() = QChar(UnitAfter(prefix.back().unicode()));
  return prefix;
}

}  // namespace quill
