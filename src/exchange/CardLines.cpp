#include "exchange/CardLines.h"

#include <algorithm>
#include <array>

#include "exchange/QuotedPrintable.h"

namespace quill {

namespace {

constexpr qsizetype kMaxHeader = 4096;  // bytes in which the colon must stand to be looked for

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

bool IsIndented(const QByteArray& line) { return !line.isEmpty() && IsBlank(line.front()); }

char LastCharacter(QByteArrayView line) {
  while (!line.isEmpty() && IsBlank(line.back())) line.chop(1);
  return line.isEmpty() ? '\0' : line.back();
}

bool HasOpenBackslash(QByteArrayView line) {
  qsizetype count = 0;
  while (count < line.size() && line[line.size() - 1 - count] == '\\') ++count;
  return count % 2 == 1;
}

void AppendWithin(qsizetype limit, QByteArrayView more, QByteArray& bytes) {
  bytes += more.first(std::clamp<qsizetype>(limit - bytes.size(), 0, more.size()));
}

bool HasQuotedByte(QByteArrayView text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (IsQuotedByte(text, i)) return true;
  }
  return false;
}

// A parameter that properties have, and not quoted-printable text: "TYPE=CELL" looks like both.
bool IsParameter(QByteArrayView piece) {
  constexpr std::array<QByteArrayView, 5> kNames{
      "TYPE=", "CHARSET=", "ENCODING=", "VALUE=", "LANGUAGE="};
  return std::any_of(kNames.begin(), kNames.end(), [piece](QByteArrayView name) {
    return piece.size() > name.size() &&
           piece.first(name.size()).compare(name, Qt::CaseInsensitive) == 0;
  });
}

// Whether a line can be the start of a property rather than quoted-printable text going on: writers
// exist that end such a text with a bare "=".
bool LooksLikeProperty(QByteArrayView line) {
  const qsizetype colon = line.indexOf(':');
  if (colon <= 0 || line.sliced(colon).startsWith("://")) return false;
  const QByteArray header = line.first(colon).toByteArray();
  if (std::any_of(header.begin(), header.end(), IsBlank)) return false;
  const QByteArrayList pieces = header.split(';');
  const bool hasText = std::any_of(pieces.begin(), pieces.end(), [](const QByteArray& piece) {
    return HasQuotedByte(piece) && !IsParameter(piece);
  });
  if (hasText) return false;
  const QByteArray& name = pieces.first();
  return std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || c == '.';
  });
}

}  // namespace

bool CardLines::Next(ByteLine& line) {
  if (!TakeNext(line)) return false;
  m_header = -1;
  m_encoding = CardEncoding::Plain;
  m_last = LastCharacter(line.Bytes);
  FindHeader(line.Bytes);
  while (Peek()) {
    const Following following = Classify(line);
    if (following == Following::Other) break;
    Join(line, following);
  }
  // A soft break with nothing after it.
  if (m_encoding == CardEncoding::QuotedPrintable && m_last == '=' && !line.IsCut) {
    line.Bytes = line.Bytes.trimmed();
    line.Bytes.chop(1);
  }
  NoteVersion(line.Bytes);
  return true;
}

bool CardLines::Peek() {
  if (m_hasAhead) return true;
  m_afterBlank = false;
  QByteArray blanks;
  while (m_source.Next(m_ahead)) {
    m_hasAhead = !m_ahead.Bytes.isEmpty();
    if (m_hasAhead && m_afterBlank) m_ahead.Raw.prepend(blanks);
    if (m_hasAhead) return true;
    m_afterBlank = true;
    AppendWithin(kMaxLine, m_ahead.Raw, blanks);
  }
  return false;
}

bool CardLines::TakeNext(ByteLine& line) {
  if (!Peek()) return false;
  std::swap(line, m_ahead);
  m_hasAhead = false;
  return true;
}

CardLines::Following CardLines::Classify(const ByteLine& line) {
  const QByteArray& next = m_ahead.Bytes;
  if (m_encoding == CardEncoding::QuotedPrintable && m_last == '=') {
    return LooksLikeProperty(next) ? Following::Other : Following::Soft;
  }
  if (IsIndented(next)) return Following::Folded;
  const bool hasColon = next.contains(':');
  if (m_encoding == CardEncoding::Base64) {
    return m_afterBlank || hasColon ? Following::Other : Following::Soft;
  }
  const bool isEscaped = m_isVersion21 && m_header >= 0 && !line.IsCut && !hasColon &&
                         m_encoding == CardEncoding::Plain && HasOpenBackslash(line.Bytes);
  return isEscaped ? Following::Escaped : Following::Other;
}

void CardLines::Join(ByteLine& line, Following following) {
  QByteArrayView more = m_ahead.Bytes;
  if (following == Following::Folded) more = more.sliced(1);
  if (following == Following::Soft && m_encoding == CardEncoding::QuotedPrintable && !line.IsCut) {
    line.Bytes.truncate(line.Bytes.lastIndexOf('='));
  }
  // The backslash stood for the line end that follows it.
  if (following == Following::Escaped) line.Bytes += 'n';
  const qsizetype before = line.Bytes.size();
  const qsizetype room = std::max<qsizetype>(kMaxLine - line.Bytes.size(), 0);
  line.IsCut = line.IsCut || m_ahead.IsCut || more.size() > room;
  line.Bytes += more.first(std::min(more.size(), room));
  AppendWithin(kMaxLine, m_ahead.Raw, line.Raw);
  m_last = LastCharacter(more);
  m_hasAhead = false;
  // Only a new colon can end the header, and only near the beginning: lines may be very long.
  if (m_header < 0 && before < kMaxHeader && more.contains(':')) FindHeader(line.Bytes);
}

void CardLines::FindHeader(const QByteArray& line) {
  const qsizetype colon = HeaderEnd(QByteArrayView(line).first(std::min(line.size(), kMaxHeader)));
  if (colon < 0) return;
  m_header = colon;
  m_encoding = AnnouncedEncoding(line.first(colon));
}

void CardLines::NoteVersion(const QByteArray& line) {
  if (m_header != 7 || line.first(7).compare("VERSION", Qt::CaseInsensitive) != 0) return;
  m_isVersion21 = line.sliced(8).trimmed() == "2.1";
}

}  // namespace quill
