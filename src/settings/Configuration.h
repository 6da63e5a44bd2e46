// What the configuration dialog shows of the settings and what its OK makes of them.
#pragma once

#include <QString>

#include <array>

#include "settings/Settings.h"

namespace quill {

// The mobile and regional codes that the dialog's list offers; any other may be typed.
inline constexpr std::array<QStringView, 21> kAreaCodes = {
    u"011", u"016", u"017", u"018", u"019", u"02",  u"051", u"053", u"032", u"062", u"042",
    u"052", u"031", u"033", u"043", u"041", u"054", u"055", u"063", u"061", u"064"};

// UTF-16 units of a typed area code that count. More than the block that is stored has room for:
// intended.
inline constexpr int kAreaCodeEntryLimit = 520;

struct ConfigEntries {
  bool ShowIndex = false;
  bool AutoAreaCode = false;
  QString AreaCode = {};  // as typed: what the list shows is never taken, intended

  bool operator==(const ConfigEntries&) const = default;
};

ConfigEntries EntriesOf(const Settings& settings);
// Leaves everything else of the settings as it is, the prefix too, which saving makes anew.
void TakeEntries(const ConfigEntries& entries, Settings& settings);

// The place of this area code among kAreaCodes, -1 when it is not one of them.
int AreaCodeIndex(QStringView areaCode);

}  // namespace quill
