#include "settings/Configuration.h"

#include <algorithm>

namespace quill {

ConfigEntries EntriesOf(const Settings& settings) {
  return {.ShowIndex = settings.Abc != 0,
          .AutoAreaCode = settings.AreaCode != 0,
          .AreaCode = settings.AreaCodeValue};
}

void TakeEntries(const ConfigEntries& entries, Settings& settings) {
  settings.Abc = entries.ShowIndex ? 1 : 0;
  settings.AreaCode = entries.AutoAreaCode ? 1 : 0;
  settings.AreaCodeValue = entries.AreaCode.left(kAreaCodeEntryLimit);
}

int AreaCodeIndex(QStringView areaCode) {
  const auto found = std::ranges::find(kAreaCodes, areaCode);
  return found == kAreaCodes.end() ? -1 : static_cast<int>(found - kAreaCodes.begin());
}

}  // namespace quill
