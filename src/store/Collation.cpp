#include "store/Collation.h"

namespace quill {

namespace {

void AppendUnit(QByteArray& key, char16_t unit) {
  if (unit < 2) {
    // In two bytes, so that the byte 0 is free to end a key.
    key.append('\1').append(static_cast<char>(unit + 1));
  } else if (unit < 0x80) {
    key.append(static_cast<char>(unit));
  } else if (unit < 0x800) {
    key.append(static_cast<char>(0xC0 | (unit >> 6)));
    key.append(static_cast<char>(0x80 | (unit & 0x3F)));
  } else {
    key.append(static_cast<char>(0xE0 | (unit >> 12)));
    key.append(static_cast<char>(0x80 | ((unit >> 6) & 0x3F)));
    key.append(static_cast<char>(0x80 | (unit & 0x3F)));
  }
}

}  // namespace

QString FoldCase(QStringView text) {
  QString folded = text.toString();
  for (QChar& unit : folded) unit = unit.toUpper();
  return folded;
}

QByteArray UnitKey(QStringView text) {
  QByteArray key;
  key.reserve(text.size());
  for (const QChar unit : text) AppendUnit(key, unit.unicode());
  return key;
}

QByteArray FoldKey(QStringView text) {
  QByteArray key;
  key.reserve(text.size());
  for (const QChar unit : text) AppendUnit(key, unit.toUpper().unicode());
  return key;
}

}  // namespace quill
