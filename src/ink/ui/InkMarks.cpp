#include "ink/ui/InkMarks.h"

#include <QPainter>

#include "ink/InkSelect.h"
#include "platform/ui/RowPainter.h"

namespace quill {

namespace {

constexpr std::size_t kMostMarkedStrokes = 200;  // more are marked as a whole
const QColor kMark(0x33, 0x88, 0xFF, 0x40);
const QColor kMarkEdge(0x20, 0x60, 0xC0);
constexpr Rgb kNoticeGround = 0xE4E4E4;
constexpr int kNoticeHeight = 18;
constexpr Rgb kUnreadableGround = 0xD8D8D8;

QRectF PageFromUnits(const QRect& units) {
  return {QPointF(units.topLeft()) / kInkUnitsPerPixel, QSizeF(units.size()) / kInkUnitsPerPixel};
}

}  // namespace

void PaintInkSelection(QPainter& painter, const InkDocument& document,
                       const InkSelection& selection, const InkView& view, QPointF dragged) {
  for (const QRectF& line :
       document.TextLayout().Selection(selection.TextFrom(), selection.TextTo()))
    painter.fillRect(view.WindowFromPage(line), kMark);
  if (selection.Strokes().empty()) return;
  if (selection.Strokes().size() <= kMostMarkedStrokes)
    for (const InkStrokePtr& stroke : selection.Strokes())
      painter.fillRect(view.WindowFromPage(PageFromUnits(PaintedBounds(document.Note(), *stroke))),
                       kMark);
  painter.setPen(QPen(kMarkEdge, 1, Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  const QRectF bounds = PageFromUnits(selection.Bounds()).translated(dragged);
  painter.drawRect(view.WindowFromPage(bounds).toAlignedRect());
}

void PaintInkCaret(QPainter& painter, const InkDocument& document, int caret, const InkView& view) {
  QRectF line = view.WindowFromPage(document.TextLayout().Caret(caret));
  line.setWidth(1);
  painter.fillRect(line, Qt::black);
}

void PaintInkLasso(QPainter& painter, const QPolygonF& path, const InkView& view) {
  if (path.size() < 2) return;
  QPolygonF shown;
  for (const QPointF at : path) shown.append(view.WindowFromPage(at));
  painter.setPen(QPen(kMarkEdge, 1, Qt::DotLine));
  painter.drawPolyline(shown);
}

QString InkNoticeText(InkNotice notice) {
  switch (notice) {
    case InkNotice::Damaged:
      return QStringLiteral("Part of this note was damaged");
    case InkNotice::Lost:
      return QStringLiteral("This note is damaged; it is kept as it is");
    case InkNotice::Foreign:
      return QStringLiteral("This is no note; it is kept as it is");
    case InkNotice::Newer:
      return QStringLiteral("From a newer version: read only");
    case InkNotice::Full:
      return QStringLiteral("This page is full");
    case InkNotice::None:
      return {};
  }
  Q_UNREACHABLE();
}

void PaintInkNotice(QPainter& painter, InkNotice notice, const QRect& window) {
  const QString text = InkNoticeText(notice);
  if (text.isEmpty()) return;
  QRect line(window.left(), window.bottom() + 1 - kNoticeHeight, window.width(), kNoticeHeight);
  if (notice == InkNotice::Lost || notice == InkNotice::Foreign) {
    painter.fillRect(window, QColor::fromRgb(kUnreadableGround));
    line.moveTop(window.center().y() - kNoticeHeight / 2);  // in place of the page
  }
  painter.fillRect(line, QColor::fromRgb(kNoticeGround));
  DrawRow(painter,
          {.Rectangle = line, .Items = {{.Rectangle = line.adjusted(4, 0, -4, 0), .Text = text}}});
}

}  // namespace quill
