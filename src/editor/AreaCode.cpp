#include "editor/AreaCode.h"

namespace quill {

bool IsNumberRow(RowSet set, int row) {
  const RowRule* const rule = FindRule(set, row);
  return rule && rule->Entry == RowEntry::Number;
}

bool ShouldPrefill(RowSet set, int row, const QString& value, const Settings& settings) {
  return settings.AreaCode != 0 && !settings.AreaCodePrefix.isEmpty() && value.isEmpty() &&
         IsNumberRow(set, row);
}

QString TextAfterEdit(RowSet set, int row, const QString& text, const Settings& settings) {
  return IsNumberRow(set, row) && text == settings.AreaCodePrefix ? QString() : text;
}

}  // namespace quill
