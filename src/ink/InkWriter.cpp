#include <algorithm>

#include "ink/InkByteWriter.h"
#include "ink/InkChunks.h"
#include "ink/InkFormat.h"
#include "ink/InkPageChunks.h"
#include "ink/InkStrokeChunk.h"
#include "ink/InkTextChunk.h"

namespace quill {

namespace {

// Those that are written, so that each stroke has one.
std::vector<InkPen> PensOf(const InkNote& note) {
  return note.Pens.empty() && !note.Strokes.empty() ? std::vector{InkPen{}} : note.Pens;
}

InkStrokePtr PieceOf(const InkStroke& stroke, std::size_t from) {
  const std::size_t to = std::min<std::size_t>(from + kMostStrokePoints, stroke.Points.size());
  InkStroke piece{.Pen = stroke.Pen, .Parts = stroke.Parts, .Start = stroke.Start};
  piece.Points.assign(stroke.Points.begin() + static_cast<qsizetype>(from),
                      stroke.Points.begin() + static_cast<qsizetype>(to));
  const quint32 begin = piece.Points.front().Time;
  piece.Start += begin;
  for (InkPoint& point : piece.Points) point.Time -= begin;
  return SealInkStroke(std::move(piece));
}

// A stroke of more points than one may have goes on in another.
void AppendWritable(const InkStrokePtr& stroke, std::vector<InkStrokePtr>& strokes) {
  if (stroke->Points.size() <= kMostStrokePoints) {
    if (!stroke->Points.empty()) strokes.push_back(stroke);
    return;
  }
  for (std::size_t from = 0; from < stroke->Points.size(); from += kMostStrokePoints) {
    strokes.push_back(PieceOf(*stroke, from));
  }
}

class NoteWriter {
 public:
  explicit NoteWriter(InkCodec codec) : m_codec(codec) {}

  void WriteOpen(const InkNote& note);
  void WriteStrokes(const InkPage& page, const std::vector<InkPen>& pens,
                    const std::vector<InkStrokePtr>& strokes);
  void WriteEnd();
  QByteArray Bytes() const { return m_bytes; }

 private:
  void Add(QByteArrayView type, QByteArrayView payload);

  InkCodec m_codec;
  QByteArray m_bytes;
  quint32 m_chunks = 0;
};

void NoteWriter::Add(QByteArrayView type, QByteArrayView payload) {
  AppendInkChunk(m_bytes, type, payload);
  ++m_chunks;
}

void NoteWriter::WriteOpen(const InkNote& note) {
  const std::vector<InkPen> pens = PensOf(note);
  std::vector<InkStrokePtr> strokes;
  strokes.reserve(note.Strokes.size());
  for (const InkStrokePtr& stroke : note.Strokes) AppendWritable(stroke, strokes);
  const auto isHighlighter = [&pens](const InkStrokePtr& stroke) {
    return pens[std::min<std::size_t>(stroke->Pen, pens.size() - 1)].Tip == InkTip::Highlighter;
  };
  std::stable_partition(strokes.begin(), strokes.end(), isHighlighter);
  m_bytes = InkSignature().toByteArray();
  Add(InkChunkType::kHead,
      HeadChunkPayload({.Page = note.Page, .Strokes = static_cast<quint32>(strokes.size())}));
  Add(InkChunkType::kPens, PensChunkPayload(pens));
  if (!note.Text.Text.isEmpty()) Add(InkChunkType::kText, TextChunkPayload(note.Text));
  WriteStrokes(note.Page, pens, strokes);
  for (const InkExtra& extra : note.Extras) Add(extra.Type, extra.Payload);
}

void NoteWriter::WriteStrokes(const InkPage& page, const std::vector<InkPen>& pens,
                              const std::vector<InkStrokePtr>& strokes) {
  const InkStrokeChunkWriter empty(page.Created, pens.size());
  InkStrokeChunkWriter chunk = empty;
  for (const InkStrokePtr& stroke : strokes) {
    chunk.Add(*stroke);
    if (!chunk.IsFull()) continue;
    Add(InkChunkType::kStrokes, chunk.Payload(m_codec));
    chunk = empty;
  }
  if (!chunk.IsEmpty()) Add(InkChunkType::kStrokes, chunk.Payload(m_codec));
}

void NoteWriter::WriteEnd() {
  InkByteWriter writer;
  writer.U32(m_chunks);
  writer.U32(InkCheckSum(m_bytes));
  Add(InkChunkType::kEnd, writer.Written());
}

}  // namespace

QByteArray WriteInk(const InkNote& note, InkCodec codec) {
  if (note.IsEmpty()) return {};
  NoteWriter writer(codec);
  writer.WriteOpen(note);
  writer.WriteEnd();
  return writer.Bytes();
}

QByteArray WriteOpenInk(const InkNote& note) {
  NoteWriter writer(InkCodec::Raw);
  writer.WriteOpen(note);
  return writer.Bytes();
}

QByteArray WriteInkStroke(const InkNote& note, const InkStrokePtr& stroke) {
  NoteWriter writer(InkCodec::Raw);
  std::vector<InkStrokePtr> strokes;
  AppendWritable(stroke, strokes);
  writer.WriteStrokes(note.Page, PensOf(note), strokes);
  return writer.Bytes();
}

}  // namespace quill
