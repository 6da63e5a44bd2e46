// One property of a card (vCard 2.1, 3.0, 4.0): the syntax of a single unfolded line.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include "exchange/CardCharset.h"

namespace quill {

// That a property may have, and values of them: each takes far more memory than bytes of the line.
inline constexpr qsizetype kMaxParameters = 128;

enum class CardEncoding { Plain, QuotedPrintable, Base64 };

struct CardParameter {
  QString Name;  // upper-case
  QStringList Values;
};

struct CardProperty {
  QString Group;                          // "item1" of "item1.TEL"; empty when none
  QString Name;                           // upper-case
  std::vector<CardParameter> Parameters;  // a bare word of 2.1 is a TYPE or an ENCODING
  CardEncoding Encoding = CardEncoding::Plain;
  QString Value;  // decoded; still with its backslashes; base64 stays base64
  QByteArray Line;
  qsizetype ValueStart = 0;  // in Line
  qint64 LineNumber = 0;     // 1-based, in the file
  bool IsNested = false;     // part of a card inside the card
  bool IsGuessed = false;    // nothing says how to read the value: it was read in the fallback
};

// Where the colon stands that ends name and parameters; -1 when there is none. A colon inside
// quotes does not count, unless the quotes are never closed.
qsizetype HeaderEnd(QByteArrayView line);

// The encoding that a header (what stands before the colon) announces.
CardEncoding AnnouncedEncoding(const QByteArray& header);

// Nothing when the line has no colon, no proper name or too many parameters.
std::optional<CardProperty> ParseProperty(const QByteArray& line, const CardCharset& charset);

// The TYPE words, upper-case, however they were written.
QStringList TypesOf(const CardProperty& property);
// The first value of a parameter, empty when there is none.
QString ParameterOf(const CardProperty& property, QStringView name);

// The value as one text, and split at a separator that has no backslash; line ends are LF.
QString TextOf(const CardProperty& property);
QStringList PartsOf(const CardProperty& property, QChar separator);
// Exactly count parts between semicolons: missing ones are empty, and what a careless writer has
// beyond them belongs to the last, after "; ".
QStringList FixedPartsOf(const CardProperty& property, int count);
// The bytes of a base64 value or of a base64 "data:" URI; empty when it is neither.
QByteArray BytesOf(const CardProperty& property);

// The property as one line of Unicode text, to be written out again: as it came, but without a
// CHARSET that the text no longer has.
QString CarriedLine(const CardProperty& property);

}  // namespace quill
