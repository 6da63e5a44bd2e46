// A contact as the labelled rows of its sheet, and the rows as a contact again.
#pragma once

#include <QString>

#include <span>
#include <vector>

#include "editor/RowRules.h"
#include "store/ContactRecord.h"

namespace quill {

struct RecordRow {
  QString Label;
  QString Value;
  RowKind Kind = RowKind::Text;
  QString Auxiliary = {};  // carried with the row, always empty

  bool operator==(const RecordRow&) const = default;
};

// The rows of a set, in their order. An address shows its first part that is not empty; a name its
// FileAs until the parts are shown instead (NameText).
std::vector<RecordRow> RowsFrom(const ContactRecord& record, RowSet set);

// Puts the rows of a set, as many as it has, into their fields. A number that equals the area
// code's prefix is empty, and so is "No Categories". The rows of names, addresses and dates change
// nothing: what they show has rows or a place of its own.
void TakeRows(std::span<const RecordRow> rows, RowSet set, const QString& areaCodePrefix,
              ContactRecord& record);

// Which telephone rows have a number in the record.
PhoneFlags PhoneFlagsOf(const ContactRecord& record);

// What a name row and an address row show of their part rows: all parts, each followed by a blank,
// also the last, which is intended; and the first part that is not empty.
QString NameText(std::span<const RecordRow> parts);
QString AddressText(std::span<const RecordRow> parts);

// A category row's text for the categories of a contact, and back. Beside other names "No
// Categories" is no category and goes.
QString CategoryRowText(const QString& categories);
QString CategoriesOfRow(const QString& value);

// "MM/dd/yyyy", or "None" when there is no date.
QString DateText(const CalendarDate& date);

}  // namespace quill
