#include <QStringDecoder>

#include <limits>

#include "ink/InkByteReader.h"
#include "ink/InkTextChunk.h"

namespace quill {

namespace {

constexpr quint8 kKnownLooks = kInkBold | kInkItalic | kInkUnderline;
constexpr qsizetype kLeastRun = 7;    // bytes
constexpr qsizetype kLeastBreak = 1;  // bytes

// Goes forward through valid UTF-8 from character to character, counting UTF-16.
class CharacterWalk {
 public:
  explicit CharacterWalk(QByteArrayView bytes) : m_bytes(bytes) {}

  // False when that is beyond the end or within a character.
  bool Skip(quint64 count) {
    if (count > static_cast<quint64>(m_bytes.size() - m_at)) return false;
    for (const qsizetype end = m_at + static_cast<qsizetype>(count); m_at < end; ++m_at) {
      if (IsFirst(m_bytes[m_at])) m_units += static_cast<uchar>(m_bytes[m_at]) >= 0xF0 ? 2 : 1;
    }
    return IsAtEnd() || IsFirst(m_bytes[m_at]);
  }
  bool IsAtEnd() const { return m_at == m_bytes.size(); }
  int Units() const { return m_units; }

 private:
  static bool IsFirst(char byte) { return (byte & 0xC0) != 0x80; }

  QByteArrayView m_bytes;
  qsizetype m_at = 0;
  int m_units = 0;
};

class TextReader {
 public:
  TextReader(QByteArrayView payload, qint64 memory) : m_reader(payload), m_memory(memory) {}

  InkPartFate Read(InkText& text);

 private:
  void ReadBlock();
  void ReadRuns();
  void ReadBreaks();
  quint64 Length() { return m_reader.VarInt(kFarthestInk); }
  quint64 Count(qsizetype size, std::size_t memory);

  InkByteReader m_reader;
  qint64 m_memory;
  QByteArrayView m_bytes;
  InkText m_text;
  bool m_isNewer = false;
};

InkPartFate TextReader::Read(InkText& text) {
  const quint64 blocks = m_reader.VarInt(std::numeric_limits<quint64>::max());
  if (blocks == 0) return InkPartFate::Refused;
  ReadBlock();
  const bool isRead = blocks == 1 ? m_reader.IsDone() : !m_reader.Failed();
  if (!isRead) return blocks > 1 ? InkPartFate::Newer : InkPartFate::Refused;
  if (!m_text.Text.isEmpty()) text = m_text;
  return blocks > 1 || m_isNewer ? InkPartFate::Newer : InkPartFate::Read;
}

// How many things come that take so much of the bytes and of the memory each.
quint64 TextReader::Count(qsizetype size, std::size_t memory) {
  const quint64 count = m_reader.Count(size);
  m_memory -= static_cast<qint64>(count * memory);
  if (m_memory >= 0) return count;
  m_reader.Fail();
  return 0;
}

void TextReader::ReadBlock() {
  m_text.X = static_cast<qint32>(m_reader.Signed(kFarthestInk));
  m_text.Y = static_cast<qint32>(m_reader.Signed(kFarthestInk));
  m_text.WrapWidth = static_cast<quint32>(Length());
  m_bytes = m_reader.Bytes(Count(1, sizeof(QChar)));
  // Of a byte order mark in front as well: it is the user's.
  QStringDecoder decoder(QStringDecoder::Utf8,
                         QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
  m_text.Text = decoder.decode(m_bytes);
  if (decoder.hasError() || m_text.Text.size() > kLongestInkText) m_reader.Fail();
  ReadRuns();
  ReadBreaks();
}

void TextReader::ReadRuns() {
  CharacterWalk walk(m_bytes);
  const quint64 count = Count(kLeastRun, sizeof(InkTextRun));
  m_text.Runs.reserve(count);
  for (quint64 i = 0; i < count && !m_reader.Failed(); ++i) {
    InkTextRun run;
    const int start = walk.Units();
    if (!walk.Skip(Length()) || walk.Units() == start) m_reader.Fail();
    const quint8 looks = m_reader.U8();
    m_isNewer = m_isNewer || (looks & ~kKnownLooks) != 0;
    run.Length = walk.Units() - start;
    run.Flags = looks & kKnownLooks;
    run.Size = static_cast<quint32>(m_reader.VarInt(kThickestInk));
    run.Color = m_reader.U32();
    if (run.Size == 0) m_reader.Fail();
    m_text.Runs.push_back(run);
  }
  if (!walk.IsAtEnd()) m_reader.Fail();
}

void TextReader::ReadBreaks() {
  CharacterWalk walk(m_bytes);
  const quint64 count = Count(kLeastBreak, sizeof(int));
  m_text.SoftBreaks.reserve(count);
  for (quint64 i = 0; i < count && !m_reader.Failed(); ++i) {
    const int last = walk.Units();
    if (!walk.Skip(Length()) || walk.Units() == last) m_reader.Fail();
    m_text.SoftBreaks.push_back(walk.Units());
  }
}

}  // namespace

qint64 InkMemory(const InkText& text) {
  const qint64 runs = std::ssize(text.Runs);
  const qint64 breaks = std::ssize(text.SoftBreaks);
  return text.Text.size() * qint64{sizeof(QChar)} + runs * qint64{sizeof(InkTextRun)} +
         breaks * qint64{sizeof(int)};
}

InkPartFate ReadTextChunk(QByteArrayView payload, qint64 memory, InkText& text) {
  return TextReader(payload, memory).Read(text);
}

}  // namespace quill
