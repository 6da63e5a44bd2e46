// The cards of a file, one after the other: where a card begins and ends, and what it holds.
#pragma once

#include <QIODevice>

#include <vector>

#include "exchange/CardLines.h"
#include "exchange/CardProperty.h"

namespace quill {

// Why a card cannot be brought in.
enum class CardFault {
  None,
  LineTooLong,
  CardTooLarge,
  TooManyLines,
  NestedTooDeep,
  NothingToFile,  // no name, company, number or address
  NotStored,
};

struct Card {
  qint64 Ordinal = 0;                    // 1-based, in the file
  qint64 Line = 0;                       // its first line, 1-based
  std::vector<CardProperty> Properties;  // without BEGIN, END; empty when there is a fault
  int LinesNotUnderstood = 0;
  CardFault Fault = CardFault::None;
  qint64 FaultLine = 0;  // 1-based; 0 without a fault
  QString Name;          // of whom it was, as far as was read; empty without a fault
  QByteArray Raw;        // its lines as they came; empty unless kept, cut at kMaxCard
};

// Whether the line begins or ends a card.
bool IsBegin(const QByteArray& line);
bool IsEnd(const QByteArray& line);

// Streams: holds one card at a time, and never more than the limits below. What is wrong inside a
// card stays inside it.
class CardReader {
 public:
  static constexpr qsizetype kMaxCard = 16 * 1024 * 1024;  // bytes
  static constexpr std::size_t kMaxProperties = 5'000;
  static constexpr int kMaxDepth = 16;  // cards within cards

  // The device is open for reading and outlives this.
  CardReader(QIODevice& device, CardCharset charset, RawBytes raw = RawBytes::Dropped);

  // False at the end of the file and when the device fails.
  bool Next(Card& card);

  qint64 StrayLines() const { return m_strayLines; }  // so far, outside of any card
  const ByteLines& Source() const { return m_lines.Source(); }

 private:
  enum class Place { Within, After };

  bool FindBeginning(Card& card);
  bool StartsLikeCard() const;
  void Begin(Card& card);
  Place Take(Card& card);
  void TakeProperty(Card& card);
  void Keep(Card& card, CardProperty property);
  // So that what is carried of them ends before what is carried beside them.
  void CloseCardsWithin(Card& card);
  void KeepRaw(Card& card) const;
  void SetFault(Card& card, CardFault fault) const;

  CardLines m_lines;
  CardCharset m_charset;
  ByteLine m_line;           // the line looked at
  bool m_isPending = false;  // m_line begins the next card
  qint64 m_ordinal = 0;
  qint64 m_strayLines = 0;
  // Of the card being read.
  int m_depth = 0;
  qsizetype m_bytes = 0;
  bool m_afterAgent = false;  // the last line was an AGENT that announces a card
};

}  // namespace quill
