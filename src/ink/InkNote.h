// A page of handwriting and typed text as plain data: what a note's bytes hold.
//
// Lengths are units of 1/32 pixel at 100 % (96 pixels are an inch); x goes right, y down, from the
// page's top left corner. Nothing here is checked: the reader of the format keeps the limits.
#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

#include <memory>
#include <vector>

namespace quill {

inline constexpr int kInkUnitsPerPixel = 32;
inline constexpr int kFullPressure = 1023;
inline constexpr quint32 kDefaultPageWidth = 240 * kInkUnitsPerPixel;
inline constexpr quint32 kDefaultRulePitch = 24 * kInkUnitsPerPixel;

enum class InkTip : quint8 {
  Round = 0,
  Highlighter = 1,  // multiplied with what is below it; painted under all round ink
};

struct InkPen {
  quint32 Color = 0xFF102040;  // AARRGGBB
  quint32 Diameter = 64;       // units, at full pressure
  InkTip Tip = InkTip::Round;
  quint8 MinimumWidth = 25;  // percent of the diameter, at pressure 0

  bool operator==(const InkPen&) const = default;
};

struct InkPoint {
  qint32 X = 0;
  qint32 Y = 0;
  quint16 Pressure = kFullPressure;  // 0 to kFullPressure
  qint8 TiltX = 0;                   // degrees
  qint8 TiltY = 0;
  quint32 Time = 0;  // milliseconds since the stroke began

  bool operator==(const InkPoint&) const = default;
};

// What was recorded of a stroke's points beside their places; the rest has its default.
inline constexpr quint8 kInkHasPressure = 1;
inline constexpr quint8 kInkHasTime = 2;
inline constexpr quint8 kInkHasTilt = 4;

struct InkStroke {
  quint32 Pen = 0;                    // index of the note's pens
  quint8 Parts = 0;                   // kInkHas...
  qint64 Start = 0;                   // milliseconds since 1970 UTC; 0 without time
  std::vector<InkPoint> Points = {};  // at least one
  QRect Bounds = {};                  // of the points, without the pen's width; see SealInkStroke

  bool operator==(const InkStroke&) const = default;
};

// A stroke that is on a page never changes; documents, undo steps and files share it.
using InkStrokePtr = std::shared_ptr<const InkStroke>;

// Works out the bounds of a stroke that is complete. Its right and bottom are inclusive, so one
// point has a rectangle of 1 by 1.
InkStrokePtr SealInkStroke(InkStroke stroke);

inline constexpr quint8 kInkBold = 1;
inline constexpr quint8 kInkItalic = 2;
inline constexpr quint8 kInkUnderline = 4;

struct InkTextRun {
  int Length = 0;      // UTF-16 units
  quint8 Flags = 0;    // kInkBold, ...
  quint32 Size = 448;  // of the font, units per em
  quint32 Color = 0xFF000000;

  bool operator==(const InkTextRun&) const = default;
};

// Typed text; without a text there is none, whatever else is in it.
struct InkText {
  qint32 X = 8 * kInkUnitsPerPixel;
  qint32 Y = 0;
  quint32 WrapWidth = kDefaultPageWidth - 16 * kInkUnitsPerPixel;  // 0: none
  QString Text = {};                  // paragraphs end in LF, the last one may do without
  std::vector<InkTextRun> Runs = {};  // their lengths sum to the text's
  std::vector<int> SoftBreaks = {};   // where a line begins within a paragraph; UTF-16, ascending

  bool operator==(const InkText&) const = default;
};

// The page; style to zoom are hints for other readers.
struct InkPage {
  quint32 Width = kDefaultPageWidth;
  quint32 ContentHeight = 0;
  quint32 RulePitch = kDefaultRulePitch;  // 0: none
  quint8 Style = 16;
  quint8 Wrap = 1;
  quint8 View = 0;
  quint16 Zoom = 100;   // percent
  quint64 Created = 0;  // milliseconds since 1970 UTC, 0: not known

  bool operator==(const InkPage&) const = default;
};

// What a page measures where it is shown and written on. A file may say anything, and keeps it:
// here its width is at least the default, its lines are 8 to 1,000 pixels apart, 24 where it has
// none.
quint32 UsedPageWidth(const InkPage& page);
quint32 UsedLinePitch(const InkPage& page);

// Something of a later version or another program that may be kept through an edit.
struct InkExtra {
  QByteArray Type;  // four letters
  QByteArray Payload;

  bool operator==(const InkExtra&) const = default;
};

struct InkNote {
  InkPage Page = {};
  std::vector<InkPen> Pens = {};
  InkText Text = {};
  std::vector<InkStrokePtr> Strokes = {};  // in painting order, but highlighters come first
  std::vector<InkExtra> Extras = {};

  bool IsEmpty() const { return Strokes.empty() && Text.Text.isEmpty(); }
};

}  // namespace quill
