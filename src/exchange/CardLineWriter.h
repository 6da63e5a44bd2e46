// The syntax of cards that are written: from a name, its parameters and a text to the lines of a
// file, in UTF-8 with CRLF. What is folded is folded between characters.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "exchange/CardVersion.h"

namespace quill {

// What stands before the colon.
struct CardHeader {
  QString Name;                 // with its group, if any: "item1.TEL"
  QStringList Types = {};       // bare words in 2.1
  QStringList Parameters = {};  // whole: "VALUE=text"
};

// The text as a value, with the backslashes of the version. Line ends of any kind are LF, which
// 2.1 keeps for the quoted-printable; NUL is left out, which no card can hold.
QString EscapeText(const QString& text, CardVersion version);
// A value of several texts. In 2.1 only the separator has a backslash.
QString EscapeParts(const QStringList& parts, QChar separator, CardVersion version);
// An address of the web or the like, which keeps its commas and semicolons.
QString EscapeUri(const QString& uri, CardVersion version);

// The lines of one property; the value has its backslashes. 2.1 takes quoted-printable for what is
// not plain or is too long: it cannot fold a word.
QByteArray TextLines(const CardHeader& header, const QString& value, CardVersion version);
// The same for bytes, which are in base64 already. The media type is written in 4.0 alone, where
// they are a "data:" URI.
QByteArray Base64Lines(const CardHeader& header, const QByteArray& base64, const QString& mediaType,
                       CardVersion version);

}  // namespace quill
