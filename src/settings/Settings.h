// The user's settings: loaded from the registry once at the start, saved by the configuration.
//
// The area code is kept in a block of 520 bytes, a buffer of 260 characters, but read with room for
// 5. So a saved area code is not there after the next start: intended. A shorter block, put there
// by other means, is read.
#pragma once

#include <QString>

namespace quill {

inline constexpr int kAreaCodeBlockSize = 520;  // bytes
inline constexpr int kAreaCodeReadSize = 5;     // bytes

// The key and the names of the values in it.
inline constexpr QStringView kSettingsKey = u"\\Software\\Fennick\\Quill";
inline constexpr QStringView kAbcName = u"ABC";
inline constexpr QStringView kNameName = u"Name";
inline constexpr QStringView kAreaCodeName = u"AreaCode";
inline constexpr QStringView kAreaCodeValueName = u"AreaCodeValue";

struct Settings {
  quint32 Abc = 1;              // whether the index strip is shown
  quint32 Name = 0;             // kept as it is stored; nothing here reads it
  quint32 AreaCode = 0;         // whether the automatic area code is on
  QString AreaCodeValue = {};   // such as "02"
  QString AreaCodePrefix = {};  // "02-", empty without an area code

  bool operator==(const Settings&) const = default;
};
extern Settings g_settings;

// Starts from the defaults; writes them when the key is new, otherwise takes what is stored. What
// is missing or cannot be read keeps its default.
void LoadSettings(Settings& settings);

// A value that cannot be stored is said on the log.
void SaveSettings(Settings& settings);

}  // namespace quill
