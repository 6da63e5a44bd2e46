#include "platform/DatePictures.h"

#include <QLocale>

namespace quill {

QString QtFormat(QStringView picture) {
  return picture.toString().replace(QStringLiteral("tt"), QStringLiteral("AP"));
}

QString FormatDate(QDate date, QStringView picture) {
  return QLocale::c().toString(date, QtFormat(picture));
}

QString FormatTime(QTime time, QStringView picture) {
  return QLocale::c().toString(time, QtFormat(picture));
}

}  // namespace quill
