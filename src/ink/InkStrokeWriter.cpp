#include <algorithm>
#include <span>

#include "ink/InkStrokeChunk.h"

namespace quill {

namespace {

constexpr quint8 kRawCodec = 0;
constexpr quint8 kPackedCodec = 1;
constexpr int kPackingLevel = 6;
// With one more stroke of any size that is written, a payload is within its bounds.
constexpr qsizetype kFullChunk = 16 << 20;

qint64 Place(qint64 value) { return std::clamp<qint64>(value, -kFarthestInk, kFarthestInk); }
qint64 Tilt(qint64 value) { return std::clamp<qint64>(value, -kSteepestTilt, kSteepestTilt); }
qint64 Pressure(qint64 value) { return std::min<qint64>(value, kFullPressure); }

template <auto Member>
void WriteCurve(InkByteWriter& writer, std::span<const InkPoint> points) {
  qint64 value = Place(points.front().*Member);
  qint64 step = 0;
  for (const InkPoint& point : points.subspan(1)) {
    const qint64 next = Place(point.*Member);
    writer.Signed(next - value - step);
    step = next - value;
    value = next;
  }
}

template <auto Member>
void WriteTilts(InkByteWriter& writer, std::span<const InkPoint> points) {
  qint64 value = 0;
  for (const InkPoint& point : points) {
    const qint64 next = Tilt(point.*Member);
    writer.Signed(next - value);
    value = next;
  }
}

void WritePressures(InkByteWriter& writer, std::span<const InkPoint> points) {
  qint64 value = Pressure(points.front().Pressure);
  writer.VarInt(static_cast<quint64>(value));
  for (const InkPoint& point : points.subspan(1)) {
    const qint64 next = Pressure(point.Pressure);
    writer.Signed(next - value);
    value = next;
  }
}

void WriteZeros(InkByteWriter& writer, quint64& zeros) {
  if (zeros == 0) return;
  writer.Signed(0);
  writer.VarInt(zeros);
  zeros = 0;
}

void WriteTimes(InkByteWriter& writer, std::span<const InkPoint> points) {
  qint64 value = 0;
  qint64 step = 0;
  quint64 zeros = 0;
  for (const InkPoint& point : points.subspan(1)) {
    const qint64 change = point.Time - value - step;
    step += change;
    value = point.Time;
    if (change == 0) {
      ++zeros;
      continue;
    }
    WriteZeros(writer, zeros);
    writer.Signed(change);
  }
  WriteZeros(writer, zeros);
}

}  // namespace

InkStrokeChunkWriter::InkStrokeChunkWriter(quint64 created, std::size_t pens)
    : m_pens(pens), m_lastStart(static_cast<qint64>(std::min<quint64>(created, kLatestInk))) {}

void InkStrokeChunkWriter::Add(const InkStroke& stroke) {
  const InkPoint& first = stroke.Points.front();
  const quint8 parts = stroke.Parts & (kInkHasPressure | kInkHasTime | kInkHasTilt);
  ++m_count;
  m_strokes.VarInt(std::min<quint64>(stroke.Pen, m_pens - 1));
  m_strokes.VarInt(parts);
  if ((parts & kInkHasTime) != 0) {
    const qint64 start = std::clamp(stroke.Start, -kLatestInk, kLatestInk);
    m_strokes.Signed(start - m_lastStart);
    m_lastStart = start;
  }
  m_strokes.VarInt(stroke.Points.size());
  m_strokes.Signed(Place(first.X) - m_lastX);
  m_strokes.Signed(Place(first.Y) - m_lastY);
  m_lastX = Place(first.X);
  m_lastY = Place(first.Y);
  WriteCurve<&InkPoint::X>(m_strokes, stroke.Points);
  WriteCurve<&InkPoint::Y>(m_strokes, stroke.Points);
  if ((parts & kInkHasPressure) != 0) WritePressures(m_strokes, stroke.Points);
  if ((parts & kInkHasTime) != 0) WriteTimes(m_strokes, stroke.Points);
  if ((parts & kInkHasTilt) != 0) {
    WriteTilts<&InkPoint::TiltX>(m_strokes, stroke.Points);
    WriteTilts<&InkPoint::TiltY>(m_strokes, stroke.Points);
  }
}

bool InkStrokeChunkWriter::IsFull() const {
  return m_count == kMostChunkStrokes || m_strokes.Size() >= kFullChunk;
}

QByteArray InkStrokeChunkWriter::Payload(InkCodec codec) const {
  InkByteWriter raw;
  raw.VarInt(m_count);
  raw.Bytes(m_strokes.Written());
  InkByteWriter payload;
  const QByteArray packed = codec == InkCodec::Raw
                                ? QByteArray()
                                : qCompress(reinterpret_cast<const uchar*>(raw.Written().data()),
                                            raw.Size(), kPackingLevel);
  const bool isShorter = !packed.isEmpty() && packed.size() < raw.Size();
  payload.U8(isShorter ? kPackedCodec : kRawCodec);
  payload.Bytes(isShorter ? QByteArrayView(packed) : raw.Written());
  return payload.Written().toByteArray();
}

}  // namespace quill
