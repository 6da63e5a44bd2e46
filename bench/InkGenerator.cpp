#include "InkGenerator.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Dice.h"

namespace quill::bench {

namespace {

constexpr double kPageWidth = 240;  // pixels, as all lengths here
constexpr double kMargin = 8;
constexpr double kLinePitch = 24;
constexpr double kLetterSize = 12;
constexpr double kPointsPerLetter = 22;
constexpr qint64 kBegin = 1'600'000'000'000;  // of the first stroke, milliseconds since 1970

// How one hand writes one stroke.
struct Hand {
  double Advance;  // to the right, per letter
  double Height;   // of the letters
  double Slant;    // to the right, per pixel upwards
  double Phase;    // where in a letter the stroke begins
  double Wobble;   // how much every second letter is larger
  double Force;    // the middle pressure, 0 to 1
};

class Writer {
 public:
  explicit Writer(quint32 seed) : m_dice(seed) {}

  InkStrokePtr Next(int points);

 private:
  double Between(double low, double high) {
    return low + (high - low) * m_dice.Below(10'001) / 1e4;
  }
  Hand NextHand();
  void Advance(double width);
  InkPoint PointAt(const Hand& hand, int index, int points);

  Dice m_dice;
  double m_x = kMargin;
  double m_baseline = kLinePitch - 6;
  qint64 m_time = kBegin;
};

qint32 Units(double pixels) {
  return static_cast<qint32>(std::floor(pixels * kInkUnitsPerPixel + 0.5));
}

Hand Writer::NextHand() {
  Hand hand{};
  hand.Advance = Between(5, 8);
  hand.Height = Between(0.8, 1.1) * kLetterSize;
  hand.Slant = Between(0.1, 0.4);
  hand.Phase = Between(0, 2 * std::numbers::pi);
  hand.Wobble = Between(0, 0.4);
  hand.Force = Between(0.45, 0.75);
  return hand;
}

// On to the next word; a word that would leave the page begins the next line.
void Writer::Advance(double width) {
  m_x += width + Between(2, 8);
  if (m_x + width < kPageWidth - kMargin) return;
  m_x = kMargin + Between(0, 4);
  m_baseline += kLinePitch;
}

// Loops that roll to the right, as joined letters do, every other one taller; the hand presses at
// the down strokes and lifts at both ends.
InkPoint Writer::PointAt(const Hand& hand, int index, int points) {
  const double letter = index / kPointsPerLetter;
  const double angle = hand.Phase + 2 * std::numbers::pi * letter;
  const double tall = 1 + hand.Wobble * std::sin(angle / 2);
  const double up = hand.Height / 2 * tall * (1 - std::cos(angle)) / 1.4;
  const double right = hand.Advance * letter + hand.Advance / 2 * std::sin(angle);
  const double done = points > 1 ? static_cast<double>(index) / (points - 1) : 0.5;
  const double lift = std::min(1.0, 8 * std::min(done, 1 - done) + 0.2);
  const double force = (hand.Force + 0.2 * std::sin(angle)) * lift;
  const double tremor = Between(-0.02, 0.02);
  InkPoint point;
  point.X = Units(m_x + right + hand.Slant * up + tremor);
  point.Y = Units(m_baseline - up + Between(-0.02, 0.02));
  point.Pressure = static_cast<quint16>(
      std::lround(kFullPressure * std::clamp(force + Between(-0.004, 0.004), 0.0, 1.0)));
  return point;
}

InkStrokePtr Writer::Next(int points) {
  const Hand hand = NextHand();
  const double width = hand.Advance * (points / kPointsPerLetter + 0.5);
  InkStroke stroke{.Parts = kInkHasPressure | kInkHasTime, .Start = m_time};
  stroke.Points.reserve(static_cast<std::size_t>(points));
  quint32 time = 0;
  for (int i = 0; i < points; ++i) {
    stroke.Points.push_back(PointAt(hand, i, points));
    stroke.Points.back().Time = time;
    time += 5 + (m_dice.OneIn(12) ? m_dice.Below(4) : 0);
  }
  m_time += time + 80 + m_dice.Below(200);
  Advance(width);
  return SealInkStroke(std::move(stroke));
}

}  // namespace

std::vector<InkStrokePtr> GenerateStrokes(int count, int pointsEach, quint32 seed) {
  Writer writer(seed);
  std::vector<InkStrokePtr> strokes;
  strokes.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) strokes.push_back(writer.Next(pointsEach));
  return strokes;
}

}  // namespace quill::bench
