#include "memo/MemoListing.h"

#include <algorithm>

#include "memo/MemoFolder.h"
#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {

namespace {

char16_t LowerUnit(QChar unit) { return unit.toLower().unicode(); }

// Unit by unit, each in lower case.
bool SortsBeforeWithoutCase(QStringView a, QStringView b) {
  return std::ranges::lexicographical_compare(a, b, {}, &LowerUnit, &LowerUnit);
}

// Names that differ in case only, which a device's folder cannot hold, keep to one order too.
bool SortsBefore(const QString& a, const QString& b) {
  if (SortsBeforeWithoutCase(a, b)) return true;
  return !SortsBeforeWithoutCase(b, a) && a < b;
}

bool IsInRange(QStringView name, QStringView lower, QStringView upper) {
  const bool fromLower = !SortsBeforeWithoutCase(name, lower);
  const bool beforeUpper = SortsBeforeWithoutCase(name, upper);
  return lower < upper ? fromLower && beforeUpper : fromLower || beforeUpper;
}

}  // namespace

QStringList AllMemos(const MemoState& memo) { return MemosWithPrefix(memo, {}); }

QStringList MemosInRange(const MemoState& memo, QStringView lower, QStringView upper) {
  QStringList names = AllMemos(memo);
  names.removeIf([&](const QString& name) { return !IsInRange(name, lower, upper); });
  return names;
}

QStringList MemosWithPrefix(const MemoState& memo, const QString& prefix) {
  QStringList names = g_services.Files->Find(MemoPath(memo, prefix + QStringLiteral("*.pwi")));
  std::sort(names.begin(), names.end(), SortsBefore);
  return names;
}

std::optional<QString> MemoAt(const MemoState& memo, qsizetype position) {
  if (position < 0 || position >= memo.NameList.size()) return std::nullopt;
  return memo.NameList[position];
}

}  // namespace quill
