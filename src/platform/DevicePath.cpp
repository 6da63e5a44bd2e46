#include "platform/DevicePath.h"

#include <algorithm>

namespace quill {

namespace {

constexpr QChar kSeparator = u'\\';
constexpr QStringView kForbidden = u"\\/:*?\"<>|";
constexpr char16_t kFirstPrintable = 0x20;

bool IsPlainPart(QStringView part) {
  if (part == u"." || part == u"..") return false;
  return part.isValidUtf16() && !part.contains(u'/') && !part.contains(QChar::Null);
}

bool IsForbidden(QChar unit) { return unit < kFirstPrintable || kForbidden.contains(unit); }

bool MatchesUnit(QChar unit, QChar pattern) {
  return pattern == u'?' || unit.toCaseFolded() == pattern.toCaseFolded();
}

}  // namespace

std::optional<QStringList> DevicePathParts(const QString& path) {
  QStringList parts = path.split(kSeparator, Qt::SkipEmptyParts);
  if (!std::all_of(parts.cbegin(), parts.cend(), IsPlainPart)) return std::nullopt;
  return parts;
}

bool IsDeviceName(QStringView name) {
  return !name.isEmpty() && std::none_of(name.begin(), name.end(), IsForbidden);
}

bool MatchesPattern(QStringView name, QStringView pattern) {
  qsizetype unit = 0;
  qsizetype sign = 0;
  qsizetype star = -1;    // the last "*" met
  qsizetype starEnd = 0;  // how far its text reaches so far
  while (unit < name.size()) {
    if (sign < pattern.size() && pattern[sign] == u'*') {
      star = sign++;
      starEnd = unit;
    } else if (sign < pattern.size() && MatchesUnit(name[unit], pattern[sign])) {
      ++unit;
      ++sign;
    } else if (star >= 0) {
      sign = star + 1;
      unit = ++starEnd;
    } else {
      return false;
    }
  }
  return std::all_of(pattern.begin() + sign, pattern.end(),
                     [](QChar rest) { return rest == u'*'; });
}

}  // namespace quill
