#include "editor/RecordRows.h"

#include <algorithm>

#include "platform/DatePictures.h"
#include "store/AutomationDate.h"
#include "store/CategoryText.h"

namespace quill {

namespace {

QString FirstFilled(const ContactRecord& record, RowSet parts) {
  for (const RowRule& rule : RulesOf(parts))
    if (rule.Field && !record[*rule.Field].isEmpty()) return record[*rule.Field];
  return {};
}

QString ShownText(const ContactRecord& record, const RowRule& rule) {
  if (rule.Date) return DateText(record.*kContactDates[static_cast<std::size_t>(*rule.Date)].Date);
  QString text;
  if (rule.Field)
    text = record[*rule.Field];
  else if (rule.Parts)
    text = FirstFilled(record, *rule.Parts);
  return text.isEmpty() ? rule.EmptyText.toString() : text;
}

// The text that a row's value stands for.
QString TextToKeep(const RowRule& rule, const QString& value, const QString& areaCodePrefix) {
  if (rule.Kind == RowKind::Categories) return CategoriesOfRow(value);
  return rule.Entry == RowEntry::Number && value == areaCodePrefix ? QString() : value;
}

bool GivesBackItsField(const RowRule& rule) {
  return rule.Kind == RowKind::Text || rule.Kind == RowKind::Categories;
}

void SetFlags(const ContactRecord& record, RowSet set, PhoneFlags& flags) {
  for (const RowRule& rule : RulesOf(set))
    if (rule.Flag && rule.Field) flags[IndexOf(*rule.Flag)] = !record[*rule.Field].isEmpty();
}

}  // namespace

std::vector<RecordRow> RowsFrom(const ContactRecord& record, RowSet set) {
  std::vector<RecordRow> rows;
  for (const RowRule& rule : RulesOf(set))
    rows.push_back({rule.Label.toString(), ShownText(record, rule), rule.Kind});
  return rows;
}

void TakeRows(std::span<const RecordRow> rows, RowSet set, const QString& areaCodePrefix,
              ContactRecord& record) {
  const std::span<const RowRule> rules = RulesOf(set);
  for (std::size_t i = 0; i < std::min(rows.size(), rules.size()); ++i) {
    const RowRule& rule = rules[i];
    if (rule.Field && GivesBackItsField(rule))
      record[*rule.Field] = TextToKeep(rule, rows[i].Value, areaCodePrefix);
  }
}

PhoneFlags PhoneFlagsOf(const ContactRecord& record) {
  PhoneFlags flags{};
  SetFlags(record, RowSet::Basic, flags);
  SetFlags(record, RowSet::Detail, flags);
  return flags;
}

QString NameText(std::span<const RecordRow> parts) {
  QString text;
  for (const RecordRow& part : parts)
    if (!part.Value.isEmpty()) text += part.Value + u' ';
  return text;
}

QString AddressText(std::span<const RecordRow> parts) {
  const auto first =
      std::ranges::find_if(parts, [](const RecordRow& part) { return !part.Value.isEmpty(); });
  return first == parts.end() ? QString() : first->Value;
}

QString CategoryRowText(const QString& categories) {
  const QString kept = CategoriesOfRow(categories);
  return kept.isEmpty() ? kNoCategories.toString() : kept;
}

QString CategoriesOfRow(const QString& value) {
  if (!SplitCategories(value).contains(kNoCategories)) return value;
  return RemoveFromCategories(value, kNoCategories);
}

QString DateText(const CalendarDate& date) {
  return date.Year == 0 ? kNoDate.toString() : FormatDate(DayOf(date), kTypedDatePicture);
}

}  // namespace quill
