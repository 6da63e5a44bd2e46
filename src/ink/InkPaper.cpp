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

void Fill(const InkPiece& piece, const QRect& rectangle, QRgb color) {
  const QRect shown = rectangle.intersected(piece.Area).translated(-piece.Origin);
  const QRect part = shown.intersected(piece.Image.rect());
  for (int y = part.top(); y <= part.bottom(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(piece.Image.scanLine(y)) + part.left();
    std::fill_n(line, part.width(), color);
  }
}

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

// 0 for a page without rules.
double PitchOf(const InkPage& page) { return page.RulePitch == 0 ? 0 : UsedLinePitch(page); }

// Rules and dots are as wide as the sheet, which is the piece's area.
void PaintRules(const InkPiece& sheet, const InkPage& page) {
  const QRect& area = sheet.Area;
  const int width = LineWidth(sheet.Scale);
  ForEachStep(PitchOf(page), sheet.Scale, area.top() - width, area.bottom(), [&](int y) {
    Fill(sheet, {area.left(), y, area.width(), width}, kRule);
  });
  Fill(sheet, {Device(kMarginX, sheet.Scale), area.top(), width, area.height()}, kMarginLine);
}

void PaintDots(const InkPiece& sheet, const InkPage& page) {
  const QRect& area = sheet.Area;
  const double pitch = PitchOf(page) / kDotsPerRule;
  const int width = LineWidth(sheet.Scale);
  ForEachStep(pitch, sheet.Scale, area.top() - width, area.bottom(), [&](int y) {
    ForEachStep(pitch, sheet.Scale, area.left() - width, area.right(), [&](int x) {
      Fill(sheet, {x, y, width, width}, kDot);
    });
  });
}

}  // namespace

void PaintPaper(const InkPiece& piece, const InkPage& page, const InkPaper& paper) {
  InkPiece sheet = piece;
  const int pageWidth = static_cast<int>(std::ceil(UsedPageWidth(page) * piece.Scale));
  if (!paper.IsEndless) sheet.Area.setRight(std::min(piece.Area.right(), pageWidth - 1));
  Fill(piece, piece.Area, kBesidePage);
  if (sheet.Area.isEmpty()) return;
  Fill(sheet, sheet.Area, kPaper);
  if (paper.Style == kDottedPaper)
    PaintDots(sheet, page);
  else
    PaintRules(sheet, page);
}

}  // namespace quill
