#include <algorithm>
#include <vector>

#include "ink/InkByteWriter.h"
#include "ink/InkTextChunk.h"

namespace quill {

namespace {

constexpr quint8 kKnownLooks = kInkBold | kInkItalic | kInkUnderline;

// The same text, as long, in which every surrogate has its other half.
QString WithWholePairs(const QString& text) {
  QString whole = text;
  for (qsizetype i = 0; i < whole.size(); ++i) {
    const bool isPair =
        whole[i].isHighSurrogate() && i + 1 < whole.size() && whole[i + 1].isLowSurrogate();
    if (isPair) {
      ++i;
    } else if (whole[i].isSurrogate()) {
      whole[i] = QChar::ReplacementCharacter;
    }
  }
  return whole;
}

// A place in the text that is not within a pair.
qsizetype Border(const QString& text, qsizetype at) {
  const qsizetype inside = std::clamp<qsizetype>(at, 0, text.size());
  const bool isWithin = inside < text.size() && text[inside].isLowSurrogate();
  return isWithin ? inside + 1 : inside;
}

// Bytes of the text from one border to another.
quint64 Distance(const QString& text, qsizetype from, qsizetype to) {
  return static_cast<quint64>(QStringView(text).sliced(from, to - from).toUtf8().size());
}

struct Run {
  quint64 Bytes;
  InkTextRun Look;
};

std::vector<Run> RunsOf(const QString& text, const std::vector<InkTextRun>& looks) {
  std::vector<Run> runs;
  qsizetype begin = 0;
  qsizetype end = 0;
  for (const InkTextRun& look : looks) {
    end += std::max(look.Length, 0);
    const qsizetype border = Border(text, end);
    if (border > begin) runs.push_back({Distance(text, begin, border), look});
    begin = border;
  }
  if (begin < text.size()) runs.push_back({Distance(text, begin, text.size()), InkTextRun{}});
  return runs;
}

void WriteBreaks(InkByteWriter& writer, const QString& text, const std::vector<int>& breaks) {
  std::vector<quint64> distances;
  qsizetype last = 0;
  for (const int at : breaks) {
    const qsizetype border = Border(text, at);
    if (border <= last) continue;
    distances.push_back(Distance(text, last, border));
    last = border;
  }
  writer.VarInt(distances.size());
  for (const quint64 distance : distances) writer.VarInt(distance);
}

}  // namespace

QByteArray TextChunkPayload(const InkText& text) {
  const QString whole = WithWholePairs(text.Text);
  const QByteArray bytes = whole.toUtf8();
  const std::vector<Run> runs = RunsOf(whole, text.Runs);
  InkByteWriter writer;
  writer.VarInt(1);
  writer.Signed(std::clamp<qint64>(text.X, -kFarthestInk, kFarthestInk));
  writer.Signed(std::clamp<qint64>(text.Y, -kFarthestInk, kFarthestInk));
  writer.VarInt(std::min<quint64>(text.WrapWidth, kFarthestInk));
  writer.VarInt(static_cast<quint64>(bytes.size()));
  writer.Bytes(bytes);
  writer.VarInt(runs.size());
  for (const Run& run : runs) {
    writer.VarInt(run.Bytes);
    writer.U8(run.Look.Flags & kKnownLooks);
    writer.VarInt(std::clamp<quint32>(run.Look.Size, 1, kThickestInk));
    writer.U32(run.Look.Color);
  }
  WriteBreaks(writer, whole, text.SoftBreaks);
  return writer.Written().toByteArray();
}

}  // namespace quill
