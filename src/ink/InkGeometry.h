// The shape of a stroke: its points, smoothed, as capsules whose union the pen covers.
//
// Everything here is in page device pixels: units times scale, from the page's top left corner. The
// shape is part of what a note looks like, in every program that shows it: a line from the first
// point to the first midpoint between two, curves from midpoint to midpoint with the points as
// their controls, a line from the last midpoint to the last point. A prefix of the points gives a
// prefix of the capsules, so what is drawn while the pen is down never has to be taken back.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "ink/InkNote.h"

namespace quill {

// A page with more device pixels than this on a side is cut off there; so is a pen's radius.
inline constexpr int kInkDeviceLimit = 1 << 29;

// What makes a unit a device pixel at a zoom (percent) of a window with that ratio.
constexpr double InkScale(double zoom, double devicePixelRatio) {
  return zoom / 100 * devicePixelRatio / kInkUnitsPerPixel;
}

// What a disc covers that goes from one end to the other, its radius growing or shrinking evenly.
// Equal ends are a dot.
struct InkCapsule {
  double X0 = 0, Y0 = 0, R0 = 0;
  double X1 = 0, Y1 = 0, R1 = 0;

  bool operator==(const InkCapsule&) const = default;
};

// The radius at full pressure, in device pixels.
double InkRadius(const InkPen& pen, double scale);

// The device pixels that a capsule can reach; empty for what is no place at all, as infinity is.
QRect InkCapsuleArea(const InkCapsule& capsule);

// The device pixels that a stroke can reach, as its bounds and its pen tell.
QRect InkStrokeArea(const InkStroke& stroke, const InkPen& pen, double scale);

// Takes the points of one stroke, one by one.
class InkShaper {
 public:
  static constexpr int kMostPieces = 12;

  // Parts are those of the stroke: without pressure it is full.
  InkShaper(const InkPen& pen, double scale, quint8 parts);

  // The capsules that are final with this point, none for the first. They stay until the next call.
  std::span<const InkCapsule> Add(const InkPoint& point);

  // From where the final ones end to the last point: what is still missing, and what ends the
  // stroke when no other point comes. There has been a point.
  InkCapsule Tail() const;

 private:
  struct Node {
    double X = 0, Y = 0, R = 0;
  };

  Node NodeOf(const InkPoint& point) const;
  static Node Middle(const Node& a, const Node& b);
  static int PieceCount(const Node& from, const Node& control, const Node& to);
  static Node OnCurve(const std::array<Node, 3>& curve, double t);
  static InkCapsule Between(const Node& a, const Node& b);
  int CutCurve(const std::array<Node, 3>& curve);

  enum class Stage { NoPoint, OnePoint, Moving };

  double m_scale;
  double m_leastRadius;
  double m_radiusPerPressure;
  Stage m_stage = Stage::NoPoint;
  Node m_end;   // of the capsules so far
  Node m_last;  // point
  std::array<InkCapsule, kMostPieces> m_pieces;
};

// Appends the capsules of a whole stroke, the last one included.
void ShapeStroke(const InkStroke& stroke, const InkPen& pen, double scale,
                 std::vector<InkCapsule>& out);

}  // namespace quill
