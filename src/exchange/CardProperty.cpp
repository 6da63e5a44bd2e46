#include "exchange/CardProperty.h"

#include <algorithm>

#include "exchange/QuotedPrintable.h"

namespace quill {

namespace {

// Splits at a separator that does not stand in quotes.
QList<QByteArray> SplitUnquoted(QByteArrayView text, char separator) {
  QList<QByteArray> pieces;
  qsizetype start = 0;
  bool isQuoted = false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == '"') isQuoted = !isQuoted;
    if (isQuoted || text[i] != separator) continue;
    pieces.append(text.sliced(start, i - start).toByteArray());
    start = i + 1;
  }
  pieces.append(text.sliced(start).toByteArray());
  return pieces;
}

bool IsNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '_';
}

bool IsEncodingWord(const QString& word) {
  return word == u"QUOTED-PRINTABLE" || word == u"BASE64" || word == u"B" || word == u"8BIT" ||
         word == u"7BIT";
}

// Parameter values write a line feed as ^n, a quote as ^' and the caret twice.
QString DecodeCarets(const QString& value) {
  if (!value.contains(u'^')) return value;
  QString decoded;
  for (qsizetype i = 0; i < value.size(); ++i) {
    const QChar next = value.at(i) == u'^' && i + 1 < value.size() ? value.at(i + 1) : QChar();
    const bool isPair = next == u'n' || next == u'\'' || next == u'^';
    if (!isPair) {
      decoded += value.at(i);
      continue;
    }
    decoded += next == u'n' ? QChar(u'\n') : next == u'\'' ? QChar(u'"') : next;
    ++i;
  }
  return decoded;
}

QString ParameterText(QByteArray value, const CardCharset& charset) {
  if (value.contains('"')) value.replace('"', QByteArrayView());
  return DecodeCarets(DecodeText(value, {}, charset.Fallback));
}

CardParameter ParseParameter(const QByteArray& piece, const CardCharset& charset) {
  const qsizetype equals = piece.indexOf('=');
  if (equals < 0) {
    const QString word = ParameterText(piece, charset).trimmed();
    const QString name = IsEncodingWord(word.toUpper()) ? u"ENCODING"_qs : u"TYPE"_qs;
    return {name, {word}};
  }
  CardParameter parameter{QString::fromLatin1(piece.first(equals)).trimmed().toUpper(), {}};
  for (const QByteArray& value : SplitUnquoted(QByteArrayView(piece).sliced(equals + 1), ',')) {
    parameter.Values.append(ParameterText(value, charset).trimmed());
  }
  return parameter;
}

bool ParseName(const QByteArray& text, CardProperty& property) {
  const QByteArray trimmed = text.trimmed();
  const qsizetype dot = trimmed.lastIndexOf('.');
  const QByteArray name = trimmed.sliced(dot + 1);
  if (name.isEmpty() || !std::all_of(name.begin(), name.end(), IsNameCharacter)) return false;
  property.Name = QString::fromLatin1(name).toUpper();
  if (dot > 0) property.Group = QString::fromUtf8(trimmed.first(dot));
  return true;
}

void TakeText(QByteArrayView bytes, const QByteArray& declared, const QByteArray& fallback,
              CardProperty& property) {
  const std::optional<QString> certain = DecodeCertain(bytes, declared);
  property.IsGuessed = !certain;
  property.Value = certain ? *certain : DecodeText(bytes, {}, fallback);
}

void TakeValue(const CardCharset& charset, CardProperty& property) {
  const QByteArrayView raw = QByteArrayView(property.Line).sliced(property.ValueStart);
  const QByteArray declared = ParameterOf(property, u"CHARSET").toLatin1();
  switch (property.Encoding) {
    case CardEncoding::Base64:
      property.Value = QString::fromLatin1(raw);
      break;
    case CardEncoding::QuotedPrintable:
      TakeText(DecodeQuotedPrintable(raw), declared, charset.Fallback, property);
      break;
    case CardEncoding::Plain:
      TakeText(raw, charset.IsUnicode ? QByteArray() : declared, charset.Fallback, property);
      break;
  }
}

// In quoted-printable a line feed is =0A, so "\n" is what it looks like: a piece of a path.
bool IsLineFeed(QChar escaped, CardEncoding encoding) {
  return (escaped == u'n' || escaped == u'N') && encoding != CardEncoding::QuotedPrintable;
}

QString Unescape(QStringView text, CardEncoding encoding) {
  if (!text.contains(u'\\') && !text.contains(u'\r')) return text.toString();
  QString plain;
  plain.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar next = text[i] == u'\\' && i + 1 < text.size() ? text[i + 1] : QChar();
    const bool isLineFeed = IsLineFeed(next, encoding);
    const bool isMark = next == u';' || next == u',' || next == u'\\' || next == u':';
    plain += isLineFeed ? QChar(u'\n') : isMark ? next : text[i];
    if (isLineFeed || isMark) ++i;
  }
  return plain.replace(u"\r\n"_qs, u"\n"_qs).replace(u'\r', u'\n');
}

// Header without its CHARSET parameter.
QByteArray WithoutCharset(const QByteArray& header) {
  QByteArrayList kept;
  for (const QByteArray& piece : SplitUnquoted(header, ';')) {
    if (!piece.trimmed().toUpper().startsWith("CHARSET=")) kept.append(piece);
  }
  return kept.join(';');
}

}  // namespace

qsizetype HeaderEnd(QByteArrayView line) {
  bool isQuoted = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    if (line[i] == '"') isQuoted = !isQuoted;
    if (line[i] == ':' && !isQuoted) return i;
  }
  return line.indexOf(':');
}

CardEncoding AnnouncedEncoding(const QByteArray& header) {
  if (!header.contains(';')) return CardEncoding::Plain;
  const QByteArray upper = header.toUpper();
  for (QByteArray piece : SplitUnquoted(upper, ';').mid(1)) {
    const qsizetype equals = piece.indexOf('=');
    if (equals >= 0 && piece.first(equals).trimmed() != "ENCODING") continue;
    piece = piece.sliced(equals + 1).replace('"', QByteArrayView()).trimmed();
    if (piece == "QUOTED-PRINTABLE") return CardEncoding::QuotedPrintable;
    if (piece == "BASE64" || piece == "B") return CardEncoding::Base64;
  }
  return CardEncoding::Plain;
}

std::optional<CardProperty> ParseProperty(const QByteArray& line, const CardCharset& charset) {
  const qsizetype colon = HeaderEnd(line);
  if (colon <= 0) return std::nullopt;
  CardProperty property;
  const QByteArray header = line.first(colon);
  if (header.count(';') + header.count(',') > kMaxParameters) return std::nullopt;
  const QList<QByteArray> pieces = SplitUnquoted(header, ';');
  if (!ParseName(pieces.first(), property)) return std::nullopt;
  for (qsizetype i = 1; i < pieces.size(); ++i) {
    if (pieces.at(i).isEmpty()) continue;
    property.Parameters.push_back(ParseParameter(pieces.at(i), charset));
  }
  property.Encoding = AnnouncedEncoding(header);
  property.Line = line;
  property.ValueStart = colon + 1;
  TakeValue(charset, property);
  return property;
}

QStringList TypesOf(const CardProperty& property) {
  QStringList types;
  for (const CardParameter& parameter : property.Parameters) {
    if (parameter.Name != u"TYPE") continue;
    // The comma separates inside quotes as well.
    for (const QString& value : parameter.Values) types += value.toUpper().split(u',');
  }
  return types;
}

QString ParameterOf(const CardProperty& property, QStringView name) {
  for (const CardParameter& parameter : property.Parameters) {
    if (parameter.Name == name) return parameter.Values.value(0);
  }
  return {};
}

QString TextOf(const CardProperty& property) { return Unescape(property.Value, property.Encoding); }

QStringList PartsOf(const CardProperty& property, QChar separator) {
  QStringList parts;
  const QStringView value = property.Value;
  qsizetype start = 0;
  for (qsizetype i = 0; i < value.size(); ++i) {
    if (value[i] == u'\\') {
      ++i;
    } else if (value[i] == separator) {
      parts.append(Unescape(value.sliced(start, i - start), property.Encoding));
      start = i + 1;
    }
  }
  parts.append(Unescape(value.sliced(start), property.Encoding));
  return parts;
}

QStringList FixedPartsOf(const CardProperty& property, int count) {
  QStringList parts = PartsOf(property, u';');
  while (parts.size() < count) parts.append(QString());
  QString& last = parts[count - 1];
  for (qsizetype i = count; i < parts.size(); ++i) {
    const QString& surplus = parts.at(i);
    if (!surplus.trimmed().isEmpty()) last += u"; "_qs + surplus;
  }
  return parts.first(count);
}

QByteArray BytesOf(const CardProperty& property) {
  const QString text = TextOf(property).trimmed();
  if (property.Encoding == CardEncoding::Base64) return QByteArray::fromBase64(text.toLatin1());
  const qsizetype comma = text.indexOf(u',');
  const QStringView head = QStringView(text).first(std::max<qsizetype>(comma, 0));
  const bool isData = head.startsWith(u"data:", Qt::CaseInsensitive) &&
                      head.endsWith(u";base64", Qt::CaseInsensitive);
  return isData ? QByteArray::fromBase64(text.sliced(comma + 1).toLatin1()) : QByteArray();
}

QString CarriedLine(const CardProperty& property) {
  const QByteArray header = property.Line.first(property.ValueStart - 1);
  if (property.Encoding == CardEncoding::QuotedPrintable) {
    const QByteArray raw =
        AsciiQuotedPrintable(QByteArrayView(property.Line).sliced(property.ValueStart));
    return QString::fromUtf8(header) + u':' + QString::fromLatin1(raw);
  }
  return DecodeText(WithoutCharset(header), {}, {}) + u':' + property.Value;
}

}  // namespace quill
