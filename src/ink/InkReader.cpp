#include <algorithm>

#include "ink/InkByteReader.h"
#include "ink/InkChunks.h"
#include "ink/InkFormat.h"
#include "ink/InkPageChunks.h"
#include "ink/InkStrokeChunk.h"
#include "ink/InkTextChunk.h"

namespace quill {

namespace {

// Of a note whose own pens are lost: its strokes are shown with as many plain ones at most.
constexpr quint64 kMostLostPens = 256;
constexpr qint64 kExtraMemory = 128;  // bytes, beside the payload

class NoteReader {
 public:
  explicit NoteReader(QByteArrayView bytes) : m_bytes(bytes), m_walk(bytes) {}

  InkContent Read();

 private:
  enum Part { Head = 1, Pens = 2, Text = 4, Strokes = 8, End = 16, RightEnd = 32 };

  bool Has(int part) const { return (m_parts & part) != 0; }
  void Take(const InkChunk& chunk);
  InkPartFate TakePart(const InkChunk& chunk);
  InkPartFate TakeHead(QByteArrayView payload);
  InkPartFate TakePens(QByteArrayView payload);
  InkPartFate TakeText(QByteArrayView payload);
  InkPartFate TakeStrokes(QByteArrayView payload);
  InkPartFate TakeEnd(const InkChunk& chunk);
  InkPartFate TakeOther(const InkChunk& chunk);
  void AddLostPens();
  void PutHighlightersFirst();

  QByteArrayView m_bytes;
  InkChunkWalk m_walk;
  InkContent m_content{.Reading = InkReading::Whole};
  InkNote& m_note = m_content.Note;
  InkHead m_head;
  int m_parts = 0;
  quint32 m_chunks = 0;
  qint64 m_memory = kMostInkMemory;
};

InkContent NoteReader::Read() {
  if (!m_walk.HasSignature()) return {.Reading = InkReading::Foreign};
  while (!Has(End)) {
    const std::optional<InkChunk> chunk = m_walk.Next();
    if (!chunk) break;
    Take(*chunk);
    if (m_head.Major != kInkMajor) return {.Reading = InkReading::Foreign};
  }
  AddLostPens();
  PutHighlightersFirst();
  const bool isAll = m_head.Strokes == m_note.Strokes.size();
  if (!Has(Head) || !Has(RightEnd) || !isAll) m_content.Incomplete = true;
  if (m_content.Incomplete || m_content.SkippedChunks > 0) {
    m_content.Reading = std::max(m_content.Reading, InkReading::Damaged);
  }
  return std::move(m_content);
}

void NoteReader::Take(const InkChunk& chunk) {
  const InkPartFate fate = chunk.IsSound ? TakePart(chunk) : InkPartFate::Refused;
  if (fate == InkPartFate::Refused) ++m_content.SkippedChunks;
  if (fate == InkPartFate::Newer) m_content.Reading = InkReading::Newer;
  ++m_chunks;
}

InkPartFate NoteReader::TakePart(const InkChunk& chunk) {
  if (chunk.Type == InkChunkType::kHead) return TakeHead(chunk.Payload);
  if (chunk.Type == InkChunkType::kPens) return TakePens(chunk.Payload);
  if (chunk.Type == InkChunkType::kText) return TakeText(chunk.Payload);
  if (chunk.Type == InkChunkType::kStrokes) return TakeStrokes(chunk.Payload);
  if (chunk.Type == InkChunkType::kEnd) return TakeEnd(chunk);
  return TakeOther(chunk);
}

// Times count from the head's, so it has to come first.
InkPartFate NoteReader::TakeHead(QByteArrayView payload) {
  if (m_parts != 0) return InkPartFate::Refused;
  const InkPartFate fate = ReadHeadChunk(payload, m_head);
  if (fate == InkPartFate::Refused) return fate;
  m_parts |= Head;
  m_note.Page = m_head.Page;
  return fate;
}

InkPartFate NoteReader::TakePens(QByteArrayView payload) {
  if (Has(Pens | Strokes)) return InkPartFate::Refused;
  const InkPartFate fate = ReadPensChunk(payload, m_memory, m_note.Pens);
  if (fate == InkPartFate::Refused) return fate;
  m_parts |= Pens;
  m_memory -= static_cast<qint64>(m_note.Pens.size() * sizeof(InkPen));
  return fate;
}

InkPartFate NoteReader::TakeText(QByteArrayView payload) {
  if (Has(Text)) return InkPartFate::Refused;
  const InkPartFate fate = ReadTextChunk(payload, m_memory, m_note.Text);
  if (fate == InkPartFate::Refused) return fate;
  m_parts |= Text;
  m_memory -= InkMemory(m_note.Text);
  return fate;
}

InkPartFate NoteReader::TakeStrokes(QByteArrayView payload) {
  m_parts |= Strokes;
  const InkStrokeLimits limits{.Pens = Has(Pens) ? m_note.Pens.size() : kMostLostPens,
                               .Created = static_cast<qint64>(m_note.Page.Created),
                               .Memory = m_memory};
  const std::size_t before = m_note.Strokes.size();
  const InkPartFate fate = ReadStrokeChunk(payload, limits, m_note.Strokes);
  for (std::size_t i = before; i < m_note.Strokes.size(); ++i) {
    m_memory -= InkMemory(m_note.Strokes[i]->Points.size());
  }
  return fate;
}

// Whatever it says: nothing after it is read.
InkPartFate NoteReader::TakeEnd(const InkChunk& chunk) {
  InkByteReader reader(chunk.Payload);
  const quint32 chunks = reader.U32();
  const quint32 sum = reader.U32();
  const bool isRight =
      reader.IsDone() && chunks == m_chunks && sum == InkCheckSum(m_bytes.first(chunk.Start));
  m_parts |= isRight ? End | RightEnd : End;
  return InkPartFate::Read;
}

InkPartFate NoteReader::TakeOther(const InkChunk& chunk) {
  if (IsNeeded(chunk)) return InkPartFate::Newer;
  if (!IsKeptThroughEdits(chunk)) return InkPartFate::Read;
  const qint64 memory = chunk.Payload.size() + kExtraMemory;
  if (memory > m_memory) return InkPartFate::Refused;
  m_memory -= memory;
  m_note.Extras.push_back({chunk.Type.toByteArray(), chunk.Payload.toByteArray()});
  return InkPartFate::Read;
}

// Better black ink than none: strokes outlive the damage of their pens.
void NoteReader::AddLostPens() {
  for (const InkStrokePtr& stroke : m_note.Strokes) {
    if (stroke->Pen < m_note.Pens.size()) continue;
    m_note.Pens.resize(stroke->Pen + 1);
    m_content.Incomplete = true;
  }
}

// Strokes that were put behind an open note come as they were written.
void NoteReader::PutHighlightersFirst() {
  const auto isHighlighter = [this](const InkStrokePtr& stroke) {
    return m_note.Pens[stroke->Pen].Tip == InkTip::Highlighter;
  };
  std::stable_partition(m_note.Strokes.begin(), m_note.Strokes.end(), isHighlighter);
}

}  // namespace

InkContent ReadInk(QByteArrayView bytes) {
  return bytes.isEmpty() ? InkContent{} : NoteReader(bytes).Read();
}

}  // namespace quill
