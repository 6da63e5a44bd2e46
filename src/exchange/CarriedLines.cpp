#include "exchange/CarriedLines.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <optional>

#include "exchange/CardFields.h"
#include "exchange/CardMedia.h"

namespace quill {

namespace {

// Properties that hold one text whatever marks are in it, though 2.1 does not mark them.
constexpr std::array<QStringView, 5> kWholeTexts{u"FN", u"LABEL", u"NOTE", u"ROLE", u"TITLE"};

bool IsMark(const CardProperty& property, QStringView name) {
  return property.Name == name &&
         property.Value.trimmed().compare(u"VCARD", Qt::CaseInsensitive) == 0;
}

// "NAME" or "NAME=VALUE" taken apart; a bare word has no name.
struct Piece {
  QString Name;   // upper-case
  QString Value;  // as written
};

Piece PieceOf(const QString& text) {
  const qsizetype equals = text.indexOf(u'=');
  if (equals < 0) return {{}, text.trimmed()};
  return {text.first(equals).trimmed().toUpper(), text.sliced(equals + 1).trimmed()};
}

bool IsEncoding(const Piece& piece) {
  if (piece.Name == u"ENCODING" || piece.Name == u"CHARSET") return true;
  const QString word = piece.Value.toUpper();
  return piece.Name.isEmpty() && (word == u"QUOTED-PRINTABLE" || word == u"BASE64" ||
                                  word == u"B" || word == u"8BIT" || word == u"7BIT");
}

// What is written anew, or was for us alone.
bool IsOurs(const Piece& piece) { return IsEncoding(piece) || piece.Name == kSpokenForParameter; }

// The parameter in the syntax of the version, as one piece or, in 2.1, one for each type.
QStringList ConvertedPiece(const QString& text, CardVersion version) {
  const Piece piece = PieceOf(text);
  if (version != CardVersion::V21) return {piece.Name.isEmpty() ? u"TYPE="_qs + piece.Value : text};
  // Without quotes these would end the value.
  QString bare = piece.Value;
  bare.remove(u'"').replace(u';', u' ').replace(u':', u' ');
  if (piece.Name == u"TYPE") return bare.split(u',');
  return {piece.Name.isEmpty() ? bare : piece.Name + u'=' + bare};
}

// Splits the header at semicolons outside of quotes.
QStringList PiecesOf(const QString& header) {
  QStringList pieces;
  qsizetype start = 0;
  bool isQuoted = false;
  for (qsizetype i = 0; i < header.size(); ++i) {
    if (header.at(i) == u'"') isQuoted = !isQuoted;
    if (isQuoted || header.at(i) != u';') continue;
    pieces += header.sliced(start, i - start);
    start = i + 1;
  }
  return pieces << header.sliced(start);
}

CardHeader HeaderOf(const CardProperty& property, CardVersion version) {
  QStringList pieces = PiecesOf(QString::fromUtf8(property.Line.first(property.ValueStart - 1)));
  CardHeader header{pieces.takeFirst()};
  for (const QString& piece : std::as_const(pieces)) {
    if (piece.trimmed().isEmpty() || IsOurs(PieceOf(piece))) continue;
    header.Parameters += ConvertedPiece(piece, version);
  }
  return header;
}

// For bytes: without what says that they are a URI, and with the type only where it belongs.
CardHeader MediaHeaderOf(const CardProperty& property, const CardMedia& bytes,
                         CardVersion version) {
  CardHeader header = HeaderOf(property, version);
  const QStringView media = MediaOf(property);
  header.Parameters.removeIf([&](const QString& parameter) {
    const Piece piece = PieceOf(parameter);
    const bool isSaidByMedia = version == CardVersion::V40 && !media.isEmpty() &&
                               bytes.MediaType != kUnknownMedia && piece.Name == u"TYPE";
    return piece.Name == u"VALUE" || isSaidByMedia;
  });
  const bool wasUri = property.Encoding != CardEncoding::Base64;
  if (version != CardVersion::V40 && wasUri && !media.isEmpty() &&
      bytes.MediaType.startsWith(media)) {
    header.Types += bytes.MediaType.sliced(media.size()).toUpper();
  }
  return header;
}

// The value of a property of unknown shape: its separators stay, its line ends and lone
// backslashes are written as the version writes them.
QString ConvertedValue(const CardProperty& property, CardVersion version) {
  const bool wasQuoted = property.Encoding == CardEncoding::QuotedPrintable;
  const bool is21 = version == CardVersion::V21;
  const QString lineFeed = is21 ? u"\n"_qs : u"\\n"_qs;
  const QString backslash = is21 ? u"\\"_qs : u"\\\\"_qs;
  QString value = property.Value;
  value.replace(u"\r\n"_qs, u"\n"_qs).replace(u'\r', u'\n');
  QString converted;
  for (qsizetype i = 0; i < value.size(); ++i) {
    const QString pair = value.at(i) == u'\\'
                             ? value.sliced(i, std::min<qsizetype>(2, value.size() - i))
                             : QString();
    const bool isKept = pair.size() == 2 && QStringView(u";,:\\").contains(pair.back());
    const bool isLineFeed = !wasQuoted && pair.compare(u"\\n", Qt::CaseInsensitive) == 0;
    if (isKept) {
      converted += pair;
    } else if (isLineFeed || value.at(i) == u'\n') {
      converted += lineFeed;
    } else {
      converted += pair.isEmpty() ? QString(value.at(i)) : backslash;
    }
    if (isKept || isLineFeed) ++i;
  }
  return converted;
}

QString ValueOf(const CardProperty& property, CardVersion version) {
  const bool wasPlain = property.Encoding == CardEncoding::Plain;
  if (wasPlain && version != CardVersion::V21) return property.Value;
  const bool isWhole =
      std::find(kWholeTexts.begin(), kWholeTexts.end(), property.Name) != kWholeTexts.end();
  return isWhole ? EscapeText(TextOf(property), version) : ConvertedValue(property, version);
}

using CarriedIterator = std::vector<CardProperty>::const_iterator;

CarriedIterator EndOfNested(CarriedIterator from, CarriedIterator end) {
  return std::find_if(from, end, [](const CardProperty& property) { return !property.IsNested; });
}

QString NestedText(CarriedIterator from, CarriedIterator to) {
  QStringList lines;
  for (auto line = from; line != to; ++line) lines += QString::fromUtf8(line->Line);
  return lines.join(u'\n');
}

QByteArray WriteOne(const CardProperty& property, CardVersion version) {
  if (const auto bytes = MediaIn(property)) {
    return Base64Lines(MediaHeaderOf(property, *bytes, version), bytes->Base64, bytes->MediaType,
                       version);
  }
  return TextLines(HeaderOf(property, version), ValueOf(property, version), version);
}

}  // namespace

std::vector<CardProperty> CarriedProperties(const QString& lines) {
  std::vector<CardProperty> properties;
  int depth = 0;
  for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
    auto property = ParseProperty(line.toUtf8(), {.IsUnicode = true});
    if (!property) continue;
    const bool opens = IsMark(*property, u"BEGIN");
    const bool closes = IsMark(*property, u"END");
    const bool afterAgent = !properties.empty() && properties.back().Name == u"AGENT";
    if ((opens && depth == 0 && !afterAgent) || (closes && depth == 0)) continue;
    if (opens) ++depth;
    property->IsNested = depth > 0;
    if (closes) --depth;
    properties.push_back(std::move(*property));
  }
  // A card inside the card that was never closed would swallow what follows.
  for (; depth > 0; --depth) {
    properties.push_back(*ParseProperty("END:VCARD", {}));
    properties.back().IsNested = true;
  }
  return properties;
}

QByteArray WriteCarried(const std::vector<CardProperty>& properties, CardVersion version) {
  QByteArray lines;
  auto next = properties.begin();
  while (next != properties.end()) {
    const CardProperty& property = *next++;
    const auto nestedEnd = EndOfNested(next, properties.end());
    const bool holdsCard = version != CardVersion::V21 && !property.IsNested && next != nestedEnd;
    if (holdsCard) {
      lines += TextLines(HeaderOf(property, version),
                         EscapeText(NestedText(next, nestedEnd), version), version);
      next = nestedEnd;
    } else {
      lines += WriteOne(property, version);
    }
  }
  return lines;
}

}  // namespace quill
