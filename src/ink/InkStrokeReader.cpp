#include <QtEndian>

#include <limits>
#include <optional>

#include <zlib.h>

#include "ink/InkByteReader.h"
#include "ink/InkStrokeChunk.h"

namespace quill {

namespace {

constexpr quint8 kRawCodec = 0;
constexpr quint8 kPackedCodec = 1;
constexpr quint64 kKnownParts = kInkHasPressure | kInkHasTime | kInkHasTilt;
constexpr qsizetype kLeastStroke = 5;       // bytes: pen, parts, count, place
constexpr qint64 kLargestStep = 1LL << 35;  // of a coordinate or time; keeps sums from overflow
constexpr qsizetype kBestPacking = 1032;    // how many bytes one packed byte can hold
constexpr qsizetype kPackedHeader = 4;      // bytes

struct Limits {
  qint64 Least;
  qint64 Most;
};
constexpr Limits kPlaces{-kFarthestInk, kFarthestInk};
constexpr Limits kPressures{0, kFullPressure};
constexpr Limits kTimes{0, std::numeric_limits<quint32>::max()};
constexpr Limits kTilts{-kSteepestTilt, kSteepestTilt};

// Takes what was announced and not a byte more, so that few bytes cannot become many.
std::optional<QByteArray> Unpacked(QByteArrayView packed) {
  if (packed.size() < kPackedHeader) return std::nullopt;
  const qint64 announced = qFromBigEndian<quint32>(packed.data());
  const QByteArrayView stream = packed.sliced(kPackedHeader);
  if (announced > kMostUnpackedBytes || announced > stream.size() * kBestPacking) {
    return std::nullopt;
  }
  QByteArray raw(announced, Qt::Uninitialized);
  auto size = static_cast<uLongf>(announced);
  auto used = static_cast<uLong>(stream.size());
  const int result = uncompress2(reinterpret_cast<Bytef*>(raw.data()), &size,
                                 reinterpret_cast<const Bytef*>(stream.data()), &used);
  const bool isExact =
      size == static_cast<uLongf>(announced) && used == static_cast<uLong>(stream.size());
  if (result != Z_OK || !isExact) return std::nullopt;
  return raw;
}

class StrokeReader {
 public:
  StrokeReader(QByteArrayView raw, const InkStrokeLimits& limits)
      : m_reader(raw), m_limits(limits), m_lastStart(limits.Created) {}

  InkPartFate ReadAll(std::vector<InkStrokePtr>& strokes);

 private:
  using Points = std::vector<InkPoint>;

  InkStroke Next();
  bool Accepts(quint64 parts);
  template <auto Member>
  void Store(InkPoint& point, qint64 value, Limits limits);
  template <auto Member>
  void ReadCurve(Points& points, qint64 first);
  template <auto Member>
  void ReadSteps(Points& points, qint64 first, Limits limits);
  void ReadTimes(Points& points);
  qint64 NextTimeChange(quint64& zeros, std::size_t left);

  InkByteReader m_reader;
  InkStrokeLimits m_limits;
  InkPartFate m_fate = InkPartFate::Read;
  qint64 m_lastStart;
  qint64 m_lastX = 0;
  qint64 m_lastY = 0;
};

InkPartFate StrokeReader::ReadAll(std::vector<InkStrokePtr>& strokes) {
  const std::size_t before = strokes.size();
  const quint64 count = m_reader.Count(kLeastStroke);
  if (count > kMostChunkStrokes) return InkPartFate::Refused;
  for (quint64 i = 0; i < count; ++i) {
    InkStroke stroke = Next();
    if (m_reader.Failed()) break;
    strokes.push_back(SealInkStroke(std::move(stroke)));
  }
  if (m_reader.IsDone()) return m_fate;
  strokes.resize(before);
  return m_fate == InkPartFate::Newer ? m_fate : InkPartFate::Refused;
}

// The points of a stroke with an unknown part cannot be told from that part: the chunk ends there.
bool StrokeReader::Accepts(quint64 parts) {
  if ((parts & ~kKnownParts) == 0) return true;
  if (!m_reader.Failed()) m_fate = InkPartFate::Newer;
  return false;
}

InkStroke StrokeReader::Next() {
  InkStroke stroke;
  stroke.Pen = static_cast<quint32>(m_reader.VarInt(m_limits.Pens - 1));
  const quint64 parts = m_reader.VarInt(std::numeric_limits<quint64>::max());
  if (!Accepts(parts)) m_reader.Fail();
  stroke.Parts = static_cast<quint8>(parts);
  if ((parts & kInkHasTime) != 0) {
    m_lastStart += m_reader.Signed(2 * kLatestInk);
    if (m_lastStart > kLatestInk || m_lastStart < -kLatestInk) m_reader.Fail();
    stroke.Start = m_lastStart;
  }
  const quint64 count = m_reader.VarInt(kMostStrokePoints);
  m_lastX += m_reader.Signed(kLargestStep);
  m_lastY += m_reader.Signed(kLargestStep);
  // Each point but the first takes a byte for x and one for y.
  m_limits.Memory -= InkMemory(count);
  const auto most = static_cast<quint64>(m_reader.Left() / 2 + 1);
  if (count < 1 || count > most || m_limits.Memory < 0) m_reader.Fail();
  if (m_reader.Failed()) return stroke;
  stroke.Points.resize(count);
  ReadCurve<&InkPoint::X>(stroke.Points, m_lastX);
  ReadCurve<&InkPoint::Y>(stroke.Points, m_lastY);
  if ((parts & kInkHasPressure) != 0) {
    const auto first = static_cast<qint64>(m_reader.VarInt(kFullPressure));
    ReadSteps<&InkPoint::Pressure>(stroke.Points, first, kPressures);
  }
  if ((parts & kInkHasTime) != 0) ReadTimes(stroke.Points);
  if ((parts & kInkHasTilt) != 0) {
    ReadSteps<&InkPoint::TiltX>(stroke.Points, m_reader.Signed(kSteepestTilt), kTilts);
    ReadSteps<&InkPoint::TiltY>(stroke.Points, m_reader.Signed(kSteepestTilt), kTilts);
  }
  return stroke;
}

template <auto Member>
void StrokeReader::Store(InkPoint& point, qint64 value, Limits limits) {
  if (value < limits.Least || value > limits.Most) return m_reader.Fail();
  point.*Member = static_cast<std::remove_reference_t<decltype(point.*Member)>>(value);
}

// Each step as its change from the step before, the first from 0.
template <auto Member>
void StrokeReader::ReadCurve(Points& points, qint64 value) {
  Store<Member>(points.front(), value, kPlaces);
  qint64 step = 0;
  for (std::size_t i = 1; i < points.size() && !m_reader.Failed(); ++i) {
    step += m_reader.Signed(kLargestStep);
    value += step;
    Store<Member>(points[i], value, kPlaces);
  }
}

template <auto Member>
void StrokeReader::ReadSteps(Points& points, qint64 value, Limits limits) {
  Store<Member>(points.front(), value, limits);
  for (std::size_t i = 1; i < points.size() && !m_reader.Failed(); ++i) {
    value += m_reader.Signed(kLargestStep);
    Store<Member>(points[i], value, limits);
  }
}

// As a curve from 0; zeros are counted, since a device's beat is even.
void StrokeReader::ReadTimes(Points& points) {
  qint64 value = 0;
  qint64 step = 0;
  quint64 zeros = 0;
  for (std::size_t i = 1; i < points.size() && !m_reader.Failed(); ++i) {
    step += NextTimeChange(zeros, points.size() - i);
    value += step;
    Store<&InkPoint::Time>(points[i], value, kTimes);
  }
}

// `zeros` are those that still come of a run, `left` the points from this one on.
qint64 StrokeReader::NextTimeChange(quint64& zeros, std::size_t left) {
  if (zeros == 0) {
    const qint64 change = m_reader.Signed(kLargestStep);
    if (change != 0) return change;
    zeros = m_reader.VarInt(left);
    if (zeros == 0) m_reader.Fail();
  }
  if (zeros > 0) --zeros;
  return 0;
}

}  // namespace

InkPartFate ReadStrokeChunk(QByteArrayView payload, const InkStrokeLimits& limits,
                            std::vector<InkStrokePtr>& strokes) {
  InkByteReader reader(payload);
  const quint8 codec = reader.U8();
  if (reader.Failed() || limits.Pens == 0) return InkPartFate::Refused;
  if (codec == kRawCodec) return StrokeReader(reader.Rest(), limits).ReadAll(strokes);
  if (codec != kPackedCodec) return InkPartFate::Newer;
  const std::optional<QByteArray> raw = Unpacked(reader.Rest());
  return raw ? StrokeReader(*raw, limits).ReadAll(strokes) : InkPartFate::Refused;
}

}  // namespace quill
