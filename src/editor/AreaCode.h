// The automatic area code in the telephone rows of a sheet, faxes included: put into an empty row
// whose edit begins, taken out again when nothing was typed behind it.
#pragma once

#include <QString>

#include "editor/RowRules.h"
#include "settings/Settings.h"

namespace quill {

// Whether the row, counted from 0, takes a telephone number.
bool IsNumberRow(RowSet set, int row);

// Whether the edit of a row with this value begins with the prefix.
bool ShouldPrefill(RowSet set, int row, const QString& value, const Settings& settings);

// The row's value when its edit ends with this text. A prefix alone is no number, whether or not
// the area code is on.
QString TextAfterEdit(RowSet set, int row, const QString& text, const Settings& settings);

}  // namespace quill
