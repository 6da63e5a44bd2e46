#include "ink/InkPaper.h"

#include <algorithm>
#include <cmath>

namespace quill {

namespace {

constexpr QRgb kPaper = 0xFFFFFFFF;
constexpr QRgb kBesidePage = 0xFFD8D8D8;
constexpr QRgb kRule = 0xFFC6D8EC;
constexpr QRgb kMarginLine = 0xFFF2BDBD;
constexpr QRgb kDot = 0xFFA9BCD2;
constexpr int kMarginX = 6 * kInkUnitsPerPixel;
constexpr int kDotsPerRule = 2;

// Fills what lies in the area; all in device pixels of the page.
struct PaperBrush {
  QImage& Image;
  QPoint Origin;
  QRect Area;

  void Fill(QRect rectangle, QRgb color) {
    rectangle = rectangle.intersected(Area).translated(-Origin).intersected(Image.rect());
    for (int y = rectangle.top(); y <= rectangle.bottom(); ++y) {
      auto* const line = reinterpret_cast<QRgb*>(Image.scanLine(y)) + rectangle.left();
      std::fill_n(line, rectangle.width(), color);
    }
  }
};

int Device(double units, double scale) { return static_cast<int>(std::floor(units * scale)); }

int LineWidth(double scale) { return std::max(1, qRound(scale * kInkUnitsPerPixel / 2)); }

// Calls with the device pixel of every multiple of a pitch in a range.
template <typename Found>
void ForEachStep(double pitch, double scale, int from, int to, Found found) {
  if (pitch * scale < 4) return;  // too dense to be of use
  const auto first = static_cast<qint64>(std::max(1.0, std::floor(from / (pitch * scale))));
  for (qint64 step = first;; ++step) {
    const int at = Device(static_cast<double>(step) * pitch, scale);
    if (at > to) return;
    found(at);
  }
}

void PaintRules(PaperBrush& brush, double scale, const InkPage& page, const QRect& sheet) {
  const int width = LineWidth(scale);
  ForEachStep(page.RulePitch, scale, brush.Area.top() - width, brush.Area.bottom(), [&](int y) {
    brush.Fill({sheet.left(), y, sheet.width(), width}, kRule);
  });
  brush.Fill({Device(kMarginX, scale), brush.Area.top(), width, brush.Area.height()}, kMarginLine);
}

void PaintDots(PaperBrush& brush, double scale, const InkPage& page, const QRect& sheet) {
  const double pitch = static_cast<double>(page.RulePitch) / kDotsPerRule;
  const int width = LineWidth(scale);
  ForEachStep(pitch, scale, brush.Area.top() - width, brush.Area.bottom(), [&](int y) {
    const int right = std::min(sheet.right(), brush.Area.right());
    ForEachStep(pitch, scale, brush.Area.left() - width, right, [&](int x) {
      brush.Fill({x, y, width, width}, kDot);
    });
  });
}

}  // namespace

void PaintPaper(QImage& image, QPoint imageOrigin, const QRect& area, double scale,
                const InkPage& page, const InkPaper& paper) {
  PaperBrush brush{image, imageOrigin, area};
  const int pageWidth = static_cast<int>(std::ceil(page.Width * scale));
  QRect sheet = area;
  if (!paper.IsEndless) sheet.setRight(std::min(area.right(), pageWidth - 1));
  brush.Fill(area, kBesidePage);
  brush.Fill(sheet, kPaper);
  brush.Area = sheet.intersected(area);
  if (paper.Style == kDottedPaper)
    PaintDots(brush, scale, page, sheet);
  else
    PaintRules(brush, scale, page, sheet);
}

}  // namespace quill
