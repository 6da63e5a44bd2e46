#include "memo/MemoNames.h"

#include "memo/MemoFolder.h"
#include "platform/Clock.h"
#include "platform/DeviceFiles.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kExtensionLength = 4;
constexpr QStringView kNobody = u"Memo";

QString TwoDigits(int number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); }

// "20040915_093005"; the year as it is, the other figures with two digits.
QString TimeText(const QDateTime& now) {
  const QDate day = now.date();
  const QTime time = now.time();
  return QString::number(day.year()) + TwoDigits(day.month()) + TwoDigits(day.day()) + u'_' +
         TwoDigits(time.hour()) + TwoDigits(time.minute()) + TwoDigits(time.second());
}

}  // namespace

QString NewMemoPath(const MemoState& memo, const QString& fileAs) {
  const QString time = TimeText(g_services.Clock->Now());
  return MemoPath(memo, fileAs + u'_' + time + QStringLiteral(".pwi"));
}

QString NewUnnamedMemoPath(const MemoState& memo) { return NewMemoPath(memo, kNobody.toString()); }

QString MemoOwner(const MemoState& memo, const QString& path) {
  const QString name = path.mid(MemoPath(memo, {}).size());
  const QString owner = name.section(u'_', 0, -3);  // before day and time
  return owner == kNobody ? QString() : owner;
}

QString MemoCopyPath(const QString& path) {
  return path.chopped(qMin<qsizetype>(kExtensionLength, path.size())) + QStringLiteral("_Copy.pwi");
}

QString FreeMemoCopyPath(const QString& path) {
  QString copy = MemoCopyPath(path);
  while (g_services.Files->Exists(copy)) copy = MemoCopyPath(copy);
  return copy;
}

}  // namespace quill
