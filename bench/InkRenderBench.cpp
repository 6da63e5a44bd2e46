// Loading and painting a page of 10,000 strokes, the first view of it, and painting again what one
// stroke touched. "ratio" is the time in that of the baseline named with each, measured in turn.
#include <benchmark/benchmark.h>

#include <QImage>

#include "InkPages.h"
#include "MeasureTable.h"
#include "ink/InkFormat.h"
#include "ink/InkStrokePainter.h"

namespace quill::bench {
namespace {

constexpr int kStrokes = 10'000;
constexpr QRect kView(0, 0, 240, 320);

// Runs both in turn; their ratio is that of the medians.
template <typename Work, typename Baseline>
void Compare(benchmark::State& state, Work work, Baseline baseline) {
  std::vector<double> ours;
  std::vector<double> theirs;
  while (state.KeepRunning()) {
    theirs.push_back(MicrosecondsOf(baseline));
    ours.push_back(MicrosecondsOf(work));
    state.SetIterationTime(ours.back() / 1e6);
  }
  state.counters["ratio"] = Median(ours) / Median(theirs);
  state.counters["baseline_us"] = Median(theirs);
}

// Baseline: floats as they lie in memory, painted segment by segment.
void BM_InkLoadAndRender(benchmark::State& state) {
  const double scale = InkScale(static_cast<double>(state.range(0)), 1);
  const InkNote note = WrittenPage(kStrokes);
  const QByteArray bytes = WriteInk(note);
  const QByteArray floats = RawFloats(note);
  const QRect area = PageArea(note, scale);
  Compare(
      state, [&] { benchmark::DoNotOptimize(RenderPage(ReadInk(bytes).Note, scale, area)); },
      [&] {
        benchmark::DoNotOptimize(ReadRawFloats(floats));
        QImage image = WhitePicture(area.size());
        PaintSegments(image, note, scale);
      });
}
BENCHMARK(BM_InkLoadAndRender)->Arg(100)->Arg(300)->UseManualTime()->Unit(benchmark::kMillisecond);

// Baseline: painting the whole page segment by segment.
void BM_InkRender(benchmark::State& state) {
  const double scale = InkScale(static_cast<double>(state.range(0)), 1);
  const InkNote note = WrittenPage(kStrokes);
  const QRect area = PageArea(note, scale);
  Compare(
      state, [&] { benchmark::DoNotOptimize(RenderPage(note, scale, area)); },
      [&] {
        QImage image = WhitePicture(area.size());
        PaintSegments(image, note, scale);
      });
}
BENCHMARK(BM_InkRender)->Arg(100)->Arg(300)->UseManualTime()->Unit(benchmark::kMillisecond);

// Loading and the first view of the page. Baseline: loading it and painting all of it.
void BM_InkFirstView(benchmark::State& state) {
  const double scale = InkScale(static_cast<double>(state.range(0)), 1);
  const InkNote note = WrittenPage(kStrokes);
  const QByteArray bytes = WriteInk(note);
  const QRect area = PageArea(note, scale);
  Compare(
      state, [&] { benchmark::DoNotOptimize(RenderPage(ReadInk(bytes).Note, scale, kView)); },
      [&] { benchmark::DoNotOptimize(RenderPage(ReadInk(bytes).Note, scale, area)); });
}
BENCHMARK(BM_InkFirstView)->Arg(100)->Arg(300)->UseManualTime()->Unit(benchmark::kMillisecond);

// What an undone or erased stroke leaves is painted anew. Baseline: painting the whole page.
void BM_InkRenderAfterErase(benchmark::State& state) {
  const double scale = InkScale(static_cast<double>(state.range(0)), 1);
  InkNote note = WrittenPage(kStrokes);
  const QRect area = PageArea(note, scale);
  QImage image = RenderPage(note, scale, area);
  const auto middle = note.Strokes.begin() + kStrokes / 2;
  const QRect touched = InkStrokeArea(**middle, InkPen{}, scale);
  note.Strokes.erase(middle);
  Compare(
      state,
      [&] {
        for (int y = touched.top(); y <= touched.bottom(); ++y) {
          auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
          std::fill(row + touched.left(), row + touched.right() + 1, 0xFFFFFFFF);
        }
        PaintStrokes(image, {}, touched, scale, note);
      },
      [&] { benchmark::DoNotOptimize(RenderPage(note, scale, area)); });
}
BENCHMARK(BM_InkRenderAfterErase)
    ->Arg(100)
    ->Arg(300)
    ->UseManualTime()
    ->Iterations(25)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quill::bench
