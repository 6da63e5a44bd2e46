#include "exchange/CardLineWriter.h"

#include <algorithm>

#include "exchange/QuotedPrintable.h"

namespace quill {

namespace {

constexpr qsizetype kMaxLine = 75;  // bytes, without the line end

QString PlainText(QString text) {
  text.remove(QChar(u'\0'));
  return text.replace(u"\r\n"_qs, u"\n"_qs).replace(u'\r', u'\n');
}

QString EscapeMarks(const QString& text, QStringView marks) {
  QString escaped;
  for (const QChar c : PlainText(text)) {
    if (c == u'\\' || marks.contains(c)) escaped += u'\\';
    escaped += c == u'\n' ? u"\\n"_qs : QString(c);
  }
  return escaped;
}

// A 2.1 reader may know no backslash but the one before a separator, so others stand only where
// the text would be read otherwise.
QString Escape21(const QString& text, QStringView separator) {
  const QString plain = PlainText(text);
  QString escaped;
  for (qsizetype i = 0; i < plain.size(); ++i) {
    const QChar c = plain.at(i);
    const bool isLast = i + 1 == plain.size();
    const bool isMisread =
        isLast ? !separator.isEmpty() : QStringView(u";,:\\").contains(plain[i + 1]);
    if (separator.contains(c) || (c == u'\\' && isMisread)) escaped += u'\\';
    escaped += c;
  }
  return escaped;
}

QByteArray HeaderBytes(const CardHeader& header, CardVersion version) {
  QStringList pieces{header.Name};
  if (version == CardVersion::V21) {
    pieces += header.Types;
  } else if (!header.Types.isEmpty()) {
    pieces += u"TYPE="_qs + header.Types.join(u',');
  }
  return (pieces + header.Parameters).join(u';').toUtf8();
}

bool ContinuesCharacter(char c) { return (c & 0xC0) == 0x80; }

QByteArray Folded(const QByteArray& line) {
  QByteArray folded;
  qsizetype start = 0;
  qsizetype room = kMaxLine;
  while (line.size() - start > room) {
    qsizetype end = start + room;
    while (ContinuesCharacter(line.at(end))) --end;
    folded += line.sliced(start, end - start) + "\r\n ";
    start = end;
    room = kMaxLine - 1;  // after the blank
  }
  return folded + line.sliced(start) + "\r\n";
}

bool IsPlain(char c) { return c >= ' ' && c <= '~' && c != '\\'; }

bool NeedsQuotedPrintable(const QByteArray& value) {
  return !value.isEmpty() && (value.front() == ' ' || value.back() == ' ' ||
                              !std::all_of(value.begin(), value.end(), IsPlain));
}

bool IsAscii(const QByteArray& bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
}

QByteArray Lines21(QByteArray header, const QByteArray& value) {
  const qsizetype length = header.size() + 1 + value.size();
  if (value.isEmpty() || (length <= kMaxLine && !NeedsQuotedPrintable(value))) {
    return header + ':' + value + "\r\n";
  }
  if (!IsAscii(value)) header += ";CHARSET=UTF-8";
  header += ";ENCODING=QUOTED-PRINTABLE:";
  return header + EncodeQuotedPrintable(value, header.size(), kMaxLine) + "\r\n";
}

}  // namespace

QString EscapeText(const QString& text, CardVersion version) {
  return version == CardVersion::V21 ? Escape21(text, u"") : EscapeMarks(text, u";,");
}

QString EscapeParts(const QStringList& parts, QChar separator, CardVersion version) {
  QStringList escaped;
  for (const QString& part : parts) {
    escaped += version == CardVersion::V21 ? Escape21(part, QStringView(&separator, 1))
                                           : EscapeMarks(part, u";,");
  }
  return escaped.join(separator);
}

QString EscapeUri(const QString& uri, CardVersion version) {
  return version == CardVersion::V21 ? Escape21(uri, u"") : EscapeMarks(uri, u"");
}

QByteArray TextLines(const CardHeader& header, const QString& value, CardVersion version) {
  const QByteArray head = HeaderBytes(header, version);
  if (version == CardVersion::V21) return Lines21(head, value.toUtf8());
  return Folded(head + ':' + value.toUtf8());
}

QByteArray Base64Lines(const CardHeader& header, const QByteArray& base64, const QString& mediaType,
                       CardVersion version) {
  const QByteArray head = HeaderBytes(header, version);
  switch (version) {
    case CardVersion::V21:
      // A reader of 2.1 finds its end at the blank line.
      return Folded(head + ";ENCODING=BASE64:" + base64) + "\r\n";
    case CardVersion::V30:
      return Folded(head + ";ENCODING=b:" + base64);
    case CardVersion::V40:
      break;
  }
  return Folded(head + ":data:" + mediaType.toUtf8() + ";base64," + base64);
}

}  // namespace quill
