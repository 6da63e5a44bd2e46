// Writing and reading a long note, against the least that keeps its points: a file of four floats
// each. "ratio" is how many times longer the note takes, "share" how much of the floats' bytes.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include "InkPages.h"
#include "MeasureTable.h"
#include "ink/InkFormat.h"

namespace quill::bench {
namespace {

constexpr int kStrokes = 10'000;
constexpr double kPoints = kStrokes * kPointsPerStroke;
constexpr double kFloatsSize = 4 * sizeof(float);

// A file in a folder of its own.
class PageFile {
 public:
  void Write(const QByteArray& bytes) const {
    QFile file(m_name);
    if (file.open(QIODevice::WriteOnly)) file.write(bytes);
  }
  QByteArray Read() const {
    QFile file(m_name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

 private:
  QTemporaryDir m_folder;
  QString m_name = m_folder.filePath(QStringLiteral("page"));
};

void WriteNote(benchmark::State& state, InkCodec codec) {
  const InkNote note = WrittenPage(kStrokes);
  const PageFile file;
  double floats = 0;
  double ink = 0;
  for (auto _ : state) {
    floats += MicrosecondsOf([&] { file.Write(RawFloats(note)); });
    const double once = MicrosecondsOf([&] { file.Write(WriteInk(note, codec)); });
    state.SetIterationTime(once / 1e6);
    ink += once;
  }
  const auto size = static_cast<double>(file.Read().size());
  state.counters["ratio"] = ink / floats;
  state.counters["bytes_per_point"] = size / kPoints;
  state.counters["share"] = size / (kFloatsSize * kPoints);
}

void ReadNote(benchmark::State& state, InkCodec codec) {
  const InkNote note = WrittenPage(kStrokes);
  const PageFile floatFile;
  floatFile.Write(RawFloats(note));
  const PageFile file;
  file.Write(WriteInk(note, codec));
  double floats = 0;
  double ink = 0;
  for (auto _ : state) {
    floats += MicrosecondsOf([&] { benchmark::DoNotOptimize(ReadRawFloats(floatFile.Read())); });
    InkContent content;
    const double once = MicrosecondsOf([&] { content = ReadInk(file.Read()); });
    if (content.Note.Strokes.size() != kStrokes) state.SkipWithError("strokes were lost");
    state.SetIterationTime(once / 1e6);
    ink += once;
  }
  state.counters["ratio"] = ink / floats;
}

void BM_WriteInk(benchmark::State& state) { WriteNote(state, InkCodec::Shorter); }
void BM_WriteInkRaw(benchmark::State& state) { WriteNote(state, InkCodec::Raw); }
void BM_ReadInk(benchmark::State& state) { ReadNote(state, InkCodec::Shorter); }
void BM_ReadInkRaw(benchmark::State& state) { ReadNote(state, InkCodec::Raw); }
BENCHMARK(BM_WriteInk)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WriteInkRaw)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadInk)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadInkRaw)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench
