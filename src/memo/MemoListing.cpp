#include "memo/MemoListing.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

#include "memo/MemoFolder.h"
#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {

namespace {

// Names are compared by this. It is made once for each, since a folder may hold thousands.
QString InLowerCase(QStringView name) {
  QString lower(name.size(), Qt::Uninitialized);
  std::ranges::transform(name, lower.begin(), [](QChar unit) { return unit.toLower(); });
  return lower;
}

struct SortedName {
  QString LowerCase;
  QString Name;  // those that differ in case only keep to one order, too

  auto Key() const { return std::tie(LowerCase, Name); }
};

QStringList Sorted(const QStringList& names) {
  std::vector<SortedName> sorted;
  sorted.reserve(static_cast<std::size_t>(names.size()));
  for (const QString& name : names) sorted.push_back({InLowerCase(name), name});
  std::ranges::sort(sorted, {}, &SortedName::Key);
  QStringList result;
  for (SortedName& each : sorted) result.append(std::move(each.Name));
  return result;
}

}  // namespace

QStringList AllMemos(const MemoState& memo) { return MemosWithPrefix(memo, {}); }

QStringList MemosInRange(const MemoState& memo, QStringView lower, QStringView upper) {
  const QString from = InLowerCase(lower);
  const QString to = InLowerCase(upper);
  const bool wraps = lower >= upper;
  QStringList names = AllMemos(memo);
  names.removeIf([&](const QString& name) {
    const QString key = InLowerCase(name);
    const bool isBefore = key < from;
    const bool isBehind = key >= to;
    return wraps ? isBefore && isBehind : isBefore || isBehind;
  });
  return names;
}

QStringList MemosWithPrefix(const MemoState& memo, const QString& prefix) {
  // It would be another folder's files that are found, under names that this folder may have too.
  if (prefix.contains(u'\\')) return {};
  return Sorted(g_services.Files->Find(MemoPath(memo, prefix + QStringLiteral("*.pwi"))));
}

std::optional<QString> MemoAt(const MemoState& memo, qsizetype position) {
  if (position < 0 || position >= memo.NameList.size()) return std::nullopt;
  return memo.NameList[position];
}

}  // namespace quill
