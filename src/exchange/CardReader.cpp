#include "exchange/CardReader.h"

#include <algorithm>
#include <utility>

#include "exchange/CardName.h"

namespace quill {

namespace {

bool EndsWithLineEnd(const QByteArray& bytes) {
  return bytes.endsWith('\n') || bytes.endsWith('\r');
}

bool IsMark(const QByteArray& line, QByteArrayView mark) {
  return line.size() >= mark.size() && line.size() < 64 &&
         line.trimmed().compare(mark, Qt::CaseInsensitive) == 0;
}

// Says that a card begins or ends only once it is decoded: carried along, it would do so.
bool IsFalseMark(const CardProperty& property, const QByteArray& line) {
  return (property.Name == u"BEGIN" || property.Name == u"END") &&
         property.Value.trimmed().compare(u"VCARD", Qt::CaseInsensitive) == 0 && !IsBegin(line) &&
         !IsEnd(line);
}

}  // namespace

bool IsBegin(const QByteArray& line) { return IsMark(line, "BEGIN:VCARD"); }
bool IsEnd(const QByteArray& line) { return IsMark(line, "END:VCARD"); }

CardReader::CardReader(QIODevice& device, CardCharset charset, RawBytes raw)
    : m_lines(device, raw), m_charset(std::move(charset)) {}

bool CardReader::Next(Card& card) {
  card = {};
  if (!FindBeginning(card)) return false;
  while (m_lines.Next(m_line)) {
    if (Take(card) == Place::After) break;
  }
  if (card.Fault != CardFault::None) card.Properties.clear();
  if (card.Fault == CardFault::None) CloseCardsWithin(card);
  return true;
}

bool CardReader::FindBeginning(Card& card) {
  bool mayBegin = true;
  while (m_isPending || m_lines.Next(m_line)) {
    m_isPending = false;
    m_charset.IsUnicode = m_lines.Source().IsUnicode();
    if (IsBegin(m_line.Bytes)) {
      Begin(card);
      return true;
    }
    // A card whose BEGIN was lost still starts like one; in the middle of something else it does
    // not.
    if (mayBegin && StartsLikeCard()) {
      Begin(card);
      TakeProperty(card);
      return true;
    }
    mayBegin = IsEnd(m_line.Bytes);
    ++m_strayLines;
  }
  return false;
}

bool CardReader::StartsLikeCard() const {
  const auto property = ParseProperty(m_line.Bytes, m_charset);
  return property &&
         (property->Name == u"VERSION" || property->Name == u"N" || property->Name == u"FN");
}

void CardReader::Begin(Card& card) {
  card.Ordinal = ++m_ordinal;
  card.Line = m_line.Number;
  m_depth = 0;
  m_bytes = 0;
  m_afterAgent = false;
  KeepRaw(card);
}

CardReader::Place CardReader::Take(Card& card) {
  if (IsBegin(m_line.Bytes) && !m_afterAgent) {
    // The card before was never closed.
    m_isPending = true;
    return Place::After;
  }
  KeepRaw(card);
  if (IsBegin(m_line.Bytes)) {
    if (++m_depth > kMaxDepth) SetFault(card, CardFault::NestedTooDeep);
  }
  if (IsEnd(m_line.Bytes) && m_depth == 0) return Place::After;
  TakeProperty(card);
  if (IsEnd(m_line.Bytes)) --m_depth;
  return Place::Within;
}

void CardReader::TakeProperty(Card& card) {
  m_bytes += m_line.Bytes.size();
  if (m_line.IsCut) SetFault(card, CardFault::LineTooLong);
  if (m_bytes > kMaxCard) SetFault(card, CardFault::CardTooLarge);
  if (card.Properties.size() >= kMaxProperties) SetFault(card, CardFault::TooManyLines);
  auto property = ParseProperty(m_line.Bytes, m_charset);
  m_afterAgent = m_lines.IsVersion21() && property && property->Name == u"AGENT" &&
                 property->Value.trimmed().isEmpty();
  if (!property || IsFalseMark(*property, m_line.Bytes)) {
    ++card.LinesNotUnderstood;
  } else if (card.Fault == CardFault::None) {
    Keep(card, std::move(*property));
  }
}

void CardReader::Keep(Card& card, CardProperty property) {
  property.LineNumber = m_line.Number;
  property.IsNested = m_depth > 0;
  card.Properties.push_back(std::move(property));
}

void CardReader::KeepRaw(Card& card) const {
  const QByteArrayView raw = m_line.Raw;
  if (raw.isEmpty()) return;
  const qsizetype room = std::max<qsizetype>(kMaxCard - card.Raw.size(), 0);
  // Where something was cut off, the next line still begins on a line of its own.
  if (!card.Raw.isEmpty() && !EndsWithLineEnd(card.Raw)) card.Raw += '\n';
  card.Raw += raw.first(std::min(room, raw.size()));
}

void CardReader::CloseCardsWithin(Card& card) {
  const auto end = ParseProperty("END:VCARD", m_charset);
  if (!end) return;
  for (; m_depth > 0; --m_depth) Keep(card, *end);
}

void CardReader::SetFault(Card& card, CardFault fault) const {
  if (card.Fault != CardFault::None) return;
  card.Fault = fault;
  card.FaultLine = m_line.Number;
  card.Name = CardName(card.Properties);
  card.Properties = {};
}

}  // namespace quill
