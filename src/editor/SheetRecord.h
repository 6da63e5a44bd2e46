// Everything that an open record sheet holds: the rows of its pages and part editors, the dates
// behind the date rows, and whose they are. The ink notes are in g_contactInk meanwhile.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <span>
#include <vector>

#include "editor/RecordRows.h"
#include "settings/Settings.h"
#include "store/ContactRecord.h"

namespace quill {

inline constexpr std::size_t kRowSetCount = 5;

struct SheetRecord {
  quill::Oid Oid = 0;                                       // 0: a new contact
  QString FileAs = {};                                      // as it was at opening
  std::array<std::vector<RecordRow>, kRowSetCount> Rows{};  // by RowSet
  std::array<CalendarDate, kContactDates.size()> Dates{};   // by RowDate
  ContactRecord Opened = {};                                // what the rows said at opening
  QByteArray OpenedInk = {};
  int Draft = 0;  // the number of the draft that it came from, 0 when from none
};

std::vector<RecordRow>& RowsOf(SheetRecord& sheet, RowSet set);
const std::vector<RecordRow>& RowsOf(const SheetRecord& sheet, RowSet set);

// The sheet of a contact, and its ink notes in g_contactInk. With Oid 0, and for a contact that
// cannot be read, the sheet and the ink are empty and it makes a new one. A new contact takes the
// seed text, which is used up by it; all flags are set anew.
SheetRecord LoadSheet(Oid oid, SheetState& state);

// The sheet that shows this record, ink and dates apart: for LoadSheet and for drafts.
SheetRecord SheetOf(Oid oid, const QString& fileAs, const ContactRecord& record);

// A name part, a company or a FileAs. Without them OK writes nothing.
bool HasAnythingToSave(const SheetRecord& sheet);

// The record to be written: an existing contact keeps its FileAs, whatever its name is now, and a
// new one has none. Fields without a row are empty in it; the store leaves them as they are.
ContactRecord RecordOf(const SheetRecord& sheet, const QString& areaCodePrefix);

// Brings the name and address rows of a page up to date with their part rows. A name row shows its
// FileAs no longer then, even when no part changed: intended.
void SumUpParts(SheetRecord& sheet, RowSet page);

// A category was renamed, or removed (to is empty), by the user and in the store already: so it is
// in the sheet, without counting as entered.
void FollowCategory(SheetRecord& sheet, const QString& from, const QString& to);

// The date behind a date row, and a new one with its text; year 0 for none. Other rows have none.
CalendarDate DateAt(const SheetRecord& sheet, RowSet page, int row);
void SetDateAt(SheetRecord& sheet, RowSet page, int row, const CalendarDate& date);

}  // namespace quill
