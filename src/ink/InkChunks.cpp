#include "ink/InkChunks.h"

#include <algorithm>

#include <zlib.h>

#include "ink/InkByteReader.h"
#include "ink/InkByteWriter.h"

namespace quill {

namespace {

constexpr char kSignature[] = {'\x89', 'I', 'N', 'K', 'X', '\r', '\n', '\x1A'};
constexpr qsizetype kLengthSize = 4;
constexpr qsizetype kTypeSize = 4;
constexpr qsizetype kSumSize = 4;

bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }
bool IsLetter(char c) { return IsCapital(c) || (c >= 'a' && c <= 'z'); }

}  // namespace

QByteArrayView InkSignature() { return {kSignature, std::size(kSignature)}; }

quint32 InkCheckSum(QByteArrayView bytes) {
  return static_cast<quint32>(crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()),
                                      static_cast<z_size_t>(bytes.size())));
}

bool IsNeeded(const InkChunk& chunk) { return IsCapital(chunk.Type[0]); }

bool IsKeptThroughEdits(const InkChunk& chunk) { return !IsCapital(chunk.Type[1]); }

std::optional<InkChunk> InkChunkWalk::Next() {
  InkByteReader reader(m_bytes.sliced(std::min(m_at, m_bytes.size())));
  const qsizetype length = reader.U32();
  if (reader.Failed() || length > kMostPayload) return std::nullopt;
  if (reader.Left() < kTypeSize + length + kSumSize) return std::nullopt;
  InkChunk chunk;
  chunk.Start = m_at;
  chunk.Type = reader.Bytes(kTypeSize);
  chunk.Payload = reader.Bytes(static_cast<quint64>(length));
  const QByteArrayView summed = m_bytes.sliced(m_at + kLengthSize, kTypeSize + length);
  const bool isLetters = std::all_of(chunk.Type.begin(), chunk.Type.end(), IsLetter);
  chunk.IsSound = reader.U32() == InkCheckSum(summed) && isLetters;
  m_at += kLengthSize + kTypeSize + length + kSumSize;
  return chunk;
}

void AppendInkChunk(QByteArray& bytes, QByteArrayView type, QByteArrayView payload) {
  InkByteWriter writer;
  writer.U32(static_cast<quint32>(payload.size()));
  writer.Bytes(type);
  writer.Bytes(payload);
  writer.U32(InkCheckSum(writer.Written().sliced(kLengthSize)));
  bytes.append(writer.Written());
}

}  // namespace quill
