#include "exchange/CardMedia.h"

#include <array>

namespace quill {

namespace {

struct MediaRow {
  QStringView Property;
  QStringView Media;
};
constexpr std::array kMedia{MediaRow{u"PHOTO", u"image/"}, MediaRow{u"LOGO", u"image/"},
                            MediaRow{u"SOUND", u"audio/"}, MediaRow{u"KEY", u"application/"}};

// What the bytes are by the property's types; there may be words of other meaning among them.
QString MediaTypeOf(const CardProperty& property) {
  const QStringView media = MediaOf(property);
  QStringList types = TypesOf(property);
  types.removeIf(
      [](const QString& type) { return type == u"PREF" || type == u"HOME" || type == u"WORK"; });
  if (media.isEmpty() || types.isEmpty()) return kUnknownMedia.toString();
  return media.toString() + types.first().toLower();
}

}  // namespace

QStringView MediaOf(const CardProperty& property) {
  for (const MediaRow& row : kMedia) {
    if (row.Property == property.Name) return row.Media;
  }
  return {};
}

std::optional<CardMedia> MediaIn(const CardProperty& property) {
  QString text = property.Value;
  text.removeIf([](QChar c) { return c.isSpace(); });
  if (property.Encoding == CardEncoding::Base64)
    return CardMedia{text.toLatin1(), MediaTypeOf(property)};
  const qsizetype comma = text.indexOf(u',');
  QString head = text.left(comma).remove(u'\\');
  const bool isData = comma > 0 && head.startsWith(u"data:", Qt::CaseInsensitive) &&
                      head.endsWith(u";base64", Qt::CaseInsensitive);
  if (!isData) return std::nullopt;
  return CardMedia{text.sliced(comma + 1).toLatin1(), head.sliced(5).chopped(7)};
}

}  // namespace quill
