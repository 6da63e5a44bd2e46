// Drawing with the pen: from a point that arrives to the piece that is shown, with the page empty
// and with 10,000 strokes on it. What is on the page is in a picture; the window is another.
#include <benchmark/benchmark.h>

#include <QPainter>

#include <algorithm>

#include "InkGenerator.h"
#include "InkPages.h"
#include "MeasureTable.h"
#include "ink/InkLiveStroke.h"
#include "ink/InkStrokePainter.h"

namespace quill::bench {
namespace {

constexpr int kStrokes = 10'000;
constexpr int kWritten = 100;  // strokes in a round
constexpr quint32 kOtherSeed = 2;
constexpr QRect kView(0, 0, 800, 900);

// What is seen of a page, and its window.
class Desk {
 public:
  Desk(InkNote note, double scale)
      : m_note(std::move(note)),
        m_scale(scale),
        m_cache(RenderPage(m_note, scale, kView)),
        m_window(m_cache) {}

  void PenDown() { m_live.Begin(InkPen{}, m_scale, kInkHasPressure, kView); }

  // Returns what was painted.
  QRect Move(const InkPoint& point) {
    const QRect area = m_live.Add(point) & kView;
    if (area.isEmpty()) return {};
    QImage piece = m_cache.copy(area);
    m_live.PaintOver(piece, area.topLeft(), area);
    QPainter painter(&m_window);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(area.topLeft(), piece);
    return area;
  }

  void PenUp(const InkStrokePtr& stroke) {
    m_live.Finish(m_cache, {});
    m_note.Strokes.push_back(stroke);
  }

  const QImage& Window() const { return m_window; }

 private:
  InkNote m_note;
  double m_scale;
  QImage m_cache;
  QImage m_window;
  InkLiveStroke m_live;
};

InkNote EmptyPage() { return {.Pens = {InkPen{}}}; }

// Adds the time of each point but a stroke's first.
void Write(Desk& desk, const InkStrokePtr& stroke, std::vector<double>& times) {
  desk.PenDown();
  desk.Move(stroke->Points.front());
  for (size_t next = 1; next < stroke->Points.size(); ++next) {
    times.push_back(MicrosecondsOf([&] { desk.Move(stroke->Points[next]); }));
  }
  desk.PenUp(stroke);
}

void WriteSegments(QImage& window, const InkStroke& stroke, double scale,
                   std::vector<double>& times) {
  for (size_t next = 1; next < stroke.Points.size(); ++next) {
    times.push_back(MicrosecondsOf(
        [&] { PaintSegment(window, stroke.Points[next - 1], stroke.Points[next], scale); }));
  }
}

double Percentile(std::vector<double> numbers, double part) {
  const auto place = static_cast<std::ptrdiff_t>(part * static_cast<double>(numbers.size() - 1));
  std::nth_element(numbers.begin(), numbers.begin() + place, numbers.end());
  return numbers[static_cast<size_t>(place)];
}

double Mean(const std::vector<double>& numbers) {
  double sum = 0;
  for (const double number : numbers) sum += number;
  return sum / static_cast<double>(numbers.size());
}

struct AppendTimes {
  std::vector<double> Full, Empty, Segments;
};

void Report(benchmark::State& state, const AppendTimes& times) {
  state.counters["full/empty"] = Median(times.Full) / Median(times.Empty);
  state.counters["ours/QPainter"] = Median(times.Full) / Median(times.Segments);
  state.counters["p50_us"] = Median(times.Full);
  state.counters["p99_us"] = Percentile(times.Full, 0.99);
  state.counters["QPainter_p99_us"] = Percentile(times.Segments, 0.99);
}

// A point more, on the page with 10,000 strokes, on the empty one, and as a segment of QPainter.
void BM_InkAppend(benchmark::State& state) {
  const double scale = InkScale(static_cast<double>(state.range(0)), 1);
  const auto strokes = GenerateStrokes(kWritten, kPointsPerStroke, kOtherSeed);
  Desk full(WrittenPage(kStrokes), scale);
  Desk empty(EmptyPage(), scale);
  QImage window = WhitePicture(kView.size());
  AppendTimes times;
  bool fullFirst = false;
  while (state.KeepRunning()) {
    std::vector<double> round;
    for (const InkStrokePtr& stroke : strokes) {
      WriteSegments(window, *stroke, scale, times.Segments);
      fullFirst = !fullFirst;
      if (fullFirst) Write(full, stroke, round);
      Write(empty, stroke, times.Empty);
      if (!fullFirst) Write(full, stroke, round);
    }
    state.SetIterationTime(Mean(round) / 1e6);
    times.Full.insert(times.Full.end(), round.begin(), round.end());
  }
  Report(state, times);
}
BENCHMARK(BM_InkAppend)
    ->Arg(100)
    ->Arg(300)
    ->UseManualTime()
    ->Iterations(20)
    ->Unit(benchmark::kMicrosecond);

// The smallest rectangle around the pixels that differ within an area.
QRect Difference(const QImage& before, const QImage& after, const QRect& area) {
  QRect changed;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (before.pixel(x, y) != after.pixel(x, y)) changed |= QRect(x, y, 1, 1);
    }
  }
  return changed;
}

qint64 Size(const QRect& area) { return qint64{area.width()} * area.height(); }

// What is painted for a point, in pixels, against the rectangle of those that came out different.
void BM_InkPaintedArea(benchmark::State& state) {
  const double scale = InkScale(static_cast<double>(state.range(0)), 1);
  qint64 painted = 0;
  qint64 changed = 0;
  while (state.KeepRunning()) {
    Desk desk(EmptyPage(), scale);
    for (const InkStrokePtr& stroke : GenerateStrokes(kWritten, kPointsPerStroke, kOtherSeed)) {
      desk.PenDown();
      for (const InkPoint& point : stroke->Points) {
        const QImage before = desk.Window().copy();
        const QRect area = desk.Move(point);
        painted += Size(area);
        changed += Size(Difference(before, desk.Window(), area));
      }
      desk.PenUp(stroke);
    }
  }
  state.counters["painted/changed"] =
      static_cast<double>(painted) / static_cast<double>(std::max<qint64>(changed, 1));
}
BENCHMARK(BM_InkPaintedArea)->Arg(100)->Arg(300)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench
