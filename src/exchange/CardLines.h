// The logical lines of a file of cards: physical lines put together again on bytes, before anything
// is decoded, because folds cut characters.
#pragma once

#include <QByteArray>
#include <QIODevice>

#include "exchange/ByteLines.h"
#include "exchange/CardProperty.h"

namespace quill {

// Streams: holds one logical line and the physical line after it. Blank lines are skipped.
class CardLines {
 public:
  static constexpr qsizetype kMaxLine = ByteLines::kMaxLine;  // bytes, unfolded

  // The device is open for reading and outlives this.
  explicit CardLines(QIODevice& device, RawBytes raw = RawBytes::Dropped) : m_source(device, raw) {}

  // The next logical line, numbered by its first physical line; a line beyond the limit is cut. The
  // blank lines before it belong to its raw bytes.
  // False at the end of the file and when the device fails.
  bool Next(ByteLine& line);

  bool IsVersion21() const { return m_isVersion21; }  // by the last VERSION line
  const ByteLines& Source() const { return m_source; }

 private:
  enum class Following { Other, Folded, Soft, Escaped };

  bool Peek();
  bool TakeNext(ByteLine& line);
  Following Classify(const ByteLine& line);
  void Join(ByteLine& line, Following following);
  void FindHeader(const QByteArray& line);
  void NoteVersion(const QByteArray& line);

  ByteLines m_source;
  ByteLine m_ahead;  // the physical line after the current one
  bool m_hasAhead = false;
  bool m_isVersion21 = false;
  bool m_afterBlank = false;  // a blank line stood before m_ahead
  // Of the logical line being put together.
  qsizetype m_header = -1;  // bytes before its colon, -1 while the colon was not seen
  CardEncoding m_encoding = CardEncoding::Plain;
  char m_last = 0;  // last character that is not blank, also of a line that was cut
};

}  // namespace quill
