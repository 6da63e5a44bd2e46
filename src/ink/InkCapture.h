// From a pen's, finger's or mouse's events to strokes: what to begin, to extend and to end.
//
// It copes with what drivers do: moves without pressure when the pen lifts, a press while another
// one is still down, a release that never comes. A stroke ends where it leaves the page, and
// another begins where it comes back; a press outside of it is nothing. While a pen writes, no
// finger and no mouse does.
#pragma once

#include <QPointF>

#include <optional>
#include <vector>

#include "ink/InkNote.h"

namespace quill {

enum class InkDevice { Mouse, Finger, Pen, Eraser };
enum class InkPhase { Press, Move, Release, Hover };  // Hover: near the page without touching it

struct InkInput {
  InkDevice Device = InkDevice::Mouse;
  InkPhase Phase = InkPhase::Press;
  QPointF At = {};     // on the page, pixels at 100 %
  qreal Pressure = 1;  // 0 to 1; of pens only
  QPointF Tilt = {};   // degrees; of pens only
  qint64 Time = 0;     // milliseconds of any clock that does not go back
};

// Either end of one.
bool IsPen(InkDevice device);

// A pen's tip that reports no pressure does not touch.
bool IsTouching(const InkInput& input);

// Begin and Extend come with a point.
enum class InkAction { Begin, Extend, End };

struct InkCaptured {
  InkAction Action = InkAction::Begin;
  InkPoint Point = {};  // its Time is 0 at the beginning of a stroke
};

class InkCapture {
 public:
  // Where strokes end: from 0 to the right edge, in pixels at 100 %, endless without one; never
  // above the page's top.
  void SetRightEdge(std::optional<qreal> pixels) { m_rightEdge = pixels; }

  // What follows from an event, in this order.
  std::vector<InkCaptured> Take(const InkInput& input);

  // True from a press to its release, also off the page.
  bool IsDown() const { return m_down; }
  // The device that is down.
  InkDevice Device() const { return m_device; }
  // Which parts of its points such a device records: kInkHas...
  static quint8 PartsOf(InkDevice device);
  // Forgets what is down, without an end.
  void Reset();

 private:
  bool IsOnPage(QPointF at) const;
  QPointF EdgePoint(QPointF inside, QPointF outside) const;
  InkPoint PointOf(const InkInput& input, QPointF at) const;
  void Press(const InkInput& input, std::vector<InkCaptured>& out);
  void Begin(const InkInput& input, QPointF at, std::vector<InkCaptured>& out);
  void Extend(const InkInput& input, std::vector<InkCaptured>& out);
  void End(std::vector<InkCaptured>& out);
  void Lift(std::vector<InkCaptured>& out);

  std::optional<qreal> m_rightEdge;
  InkDevice m_device = InkDevice::Mouse;
  bool m_down = false;
  bool m_writing = false;  // a stroke was begun and not ended
  QPointF m_last;
  qint64 m_begun = 0;
};

}  // namespace quill
