#include "ink/InkPageChunks.h"

#include <algorithm>

#include "ink/InkByteReader.h"
#include "ink/InkByteWriter.h"

namespace quill {

namespace {

constexpr quint16 kMinor = 0;
constexpr qsizetype kLeastPen = 7;  // bytes
constexpr quint8 kFullWidth = 100;  // percent

quint32 Length(quint32 value) { return std::min<quint32>(value, kFarthestInk); }

InkPartFate ReadPage(InkByteReader& reader, InkHead& head) {
  const quint16 minor = reader.U16();
  const quint32 unitsPerPixel = reader.U32();
  InkPage page{.Width = reader.U32(), .ContentHeight = reader.U32(), .RulePitch = reader.U32()};
  page.Style = reader.U8();
  page.Wrap = reader.U8();
  page.View = reader.U8();
  reader.U8();
  page.Zoom = reader.U16();
  reader.U16();
  page.Created = reader.U64();
  head.Strokes = reader.U32();
  const bool isLong = std::max({page.Width, page.ContentHeight, page.RulePitch}) > kFarthestInk;
  // A later minor version may have more behind.
  const bool isWhole = minor == kMinor ? reader.IsDone() : !reader.Failed();
  if (!isWhole || isLong || page.Created > kLatestInk) return InkPartFate::Refused;
  head.Page = page;
  return unitsPerPixel == kInkUnitsPerPixel ? InkPartFate::Read : InkPartFate::Newer;
}

}  // namespace

InkPartFate ReadHeadChunk(QByteArrayView payload, InkHead& head) {
  InkByteReader reader(payload);
  const quint16 major = reader.U16();
  if (reader.Failed()) return InkPartFate::Refused;
  head.Major = major;
  return major == kInkMajor ? ReadPage(reader, head) : InkPartFate::Newer;
}

QByteArray HeadChunkPayload(const InkHead& head) {
  InkByteWriter writer;
  writer.U16(kInkMajor);
  writer.U16(kMinor);
  writer.U32(kInkUnitsPerPixel);
  writer.U32(Length(head.Page.Width));
  writer.U32(Length(head.Page.ContentHeight));
  writer.U32(Length(head.Page.RulePitch));
  writer.U8(head.Page.Style);
  writer.U8(head.Page.Wrap);
  writer.U8(head.Page.View);
  writer.U8(0);
  writer.U16(head.Page.Zoom);
  writer.U16(0);
  writer.U64(std::min<quint64>(head.Page.Created, kLatestInk));
  writer.U32(head.Strokes);
  return writer.Written().toByteArray();
}

InkPartFate ReadPensChunk(QByteArrayView payload, qint64 memory, std::vector<InkPen>& pens) {
  InkByteReader reader(payload);
  const quint64 count = reader.Count(kLeastPen);
  if (static_cast<qint64>(count * sizeof(InkPen)) > memory) return InkPartFate::Refused;
  std::vector<InkPen> read(count);
  InkPartFate fate = InkPartFate::Read;
  for (InkPen& pen : read) {
    pen.Color = reader.U32();
    pen.Diameter = static_cast<quint32>(reader.VarInt(kThickestInk));
    const quint8 tip = reader.U8();
    pen.MinimumWidth = reader.U8();
    if (pen.MinimumWidth > kFullWidth) reader.Fail();
    if (tip > static_cast<quint8>(InkTip::Highlighter)) {
      fate = InkPartFate::Newer;
    } else {
      pen.Tip = static_cast<InkTip>(tip);
    }
  }
  if (!reader.IsDone()) return InkPartFate::Refused;
  pens = std::move(read);
  return fate;
}

QByteArray PensChunkPayload(const std::vector<InkPen>& pens) {
  InkByteWriter writer;
  writer.VarInt(pens.size());
  for (const InkPen& pen : pens) {
    writer.U32(pen.Color);
    writer.VarInt(std::min(pen.Diameter, kThickestInk));
    writer.U8(static_cast<quint8>(pen.Tip));
    writer.U8(std::min(pen.MinimumWidth, kFullWidth));
  }
  return writer.Written().toByteArray();
}

}  // namespace quill
