#include "ink/InkTextLayout.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "ink/InkTextEditing.h"

namespace quill {

namespace {

constexpr qreal kLineEndWidth = 4;  // shows that a line's end is selected
constexpr int kNowhere = -1;

qreal Pixels(qint64 units) { return static_cast<qreal>(units) / kInkUnitsPerPixel; }

qreal OverhangOf(const InkText& text) {
  int pixels = InkFontPixels({});
  for (const InkTextRun& run : text.Runs) pixels = std::max(pixels, InkFontPixels(run));
  return pixels;
}

}  // namespace

InkTextLayout::InkTextLayout() { Load({}, kDefaultRulePitch); }

void InkTextLayout::Load(const InkText& text, quint32 linePitch) {
  m_origin = {Pixels(text.X), Pixels(text.Y)};
  const qreal width = Pixels(text.WrapWidth);
  if (width != m_width) m_paragraphs.clear();
  m_width = width;
  m_lineHeight = Pixels(linePitch > 0 ? linePitch : kDefaultRulePitch);
  Adopt(text);
  LayOutMissing(kNowhere, kNowhere);
}

void InkTextLayout::Edit(const InkText& text, int from, int to) {
  Adopt(text);
  LayOutMissing(from, to);
}

// Paragraphs that are as before, from the front and from the back, keep their lines.
void InkTextLayout::Adopt(const InkText& text) {
  m_preedit = {};
  m_overhang = OverhangOf(text);
  const std::vector<Placed> before = std::exchange(m_paragraphs, {});
  for (InkParagraph& paragraph : SplitInkText(text))
    m_paragraphs.push_back({.Paragraph = std::move(paragraph)});
  const auto isAsBefore = [](const Placed& now, const Placed& then) {
    return now.Paragraph == then.Paragraph;
  };
  const auto keep = [](auto now, auto end, auto then) {
    for (; now != end; ++now, ++then) now->Stored = then->Stored;
  };
  const auto front = std::ranges::mismatch(m_paragraphs, before, isAsBefore);
  keep(m_paragraphs.begin(), front.in1, before.begin());
  const auto left = std::min(m_paragraphs.end() - front.in1, before.end() - front.in2);
  const auto back = std::mismatch(m_paragraphs.rbegin(), m_paragraphs.rbegin() + left,
                                  before.rbegin(), isAsBefore);
  keep(m_paragraphs.rbegin(), back.first, before.rbegin());
}

void InkTextLayout::LayOutMissing(int editedFrom, int editedTo) {
  int start = 0;
  for (Placed& placed : m_paragraphs) {
    placed.Start = start;
    start = placed.End() + 1;
    if (placed.Stored) continue;
    const bool isEdited = placed.Start <= editedTo && placed.End() >= editedFrom;
    placed.Stored = std::make_shared<InkLines>(placed.Paragraph, m_width,
                                               isEdited ? InkBreaking::Anew : InkBreaking::Stored);
    placed.Paragraph.Breaks = placed.Stored->Breaks();
  }
  PlaceParagraphs();
}

void InkTextLayout::PlaceParagraphs() {
  int line = 0;
  for (Placed& placed : m_paragraphs) {
    placed.FirstLine = line;
    line += placed.Lines().Count();
  }
}

void InkTextLayout::SetPreedit(const InkPreedit& preedit) {
  if (preedit == m_preedit) return;
  m_paragraphs[IndexOf(m_preedit.Position)].Composed.reset();
  m_preedit = preedit;
  if (!preedit.Text.isEmpty()) Compose(m_paragraphs[IndexOf(preedit.Position)]);
  PlaceParagraphs();
}

void InkTextLayout::Compose(Placed& placed) {
  const InkComposed composed{.At = m_preedit.Position - placed.Start,
                             .Text = m_preedit.Text,
                             .Formats = m_preedit.Formats};
  placed.Composed = std::make_shared<InkLines>(placed.Paragraph, m_width, composed);
}

std::vector<int> InkTextLayout::SoftBreaks() const {
  std::vector<int> breaks;
  for (const Placed& placed : m_paragraphs)
    for (const int at : placed.Stored->Breaks()) breaks.push_back(placed.Start + at);
  return breaks;
}

std::size_t InkTextLayout::IndexOf(int position) const {
  const auto after = std::ranges::upper_bound(m_paragraphs, position, {}, &Placed::Start);
  return static_cast<std::size_t>(after - m_paragraphs.begin()) - 1;
}

InkTextLayout::Found InkTextLayout::FindLine(int line) const {
  const auto after = std::ranges::upper_bound(m_paragraphs, line, {}, &Placed::FirstLine);
  const Placed& placed = *std::prev(after);
  return {placed, line - placed.FirstLine};
}

// Lines may be longer by what is composed in them; its caret stands within that.
int InkTextLayout::ShownPosition(const Placed& placed, int position) const {
  const int within = position - placed.Start;
  if (!placed.Composed || position < m_preedit.Position) return within;
  const bool isCaret = position == m_preedit.Position;
  return within + (isCaret ? m_preedit.Cursor : static_cast<int>(m_preedit.Text.size()));
}

int InkTextLayout::StoredPosition(const Placed& placed, int shown) const {
  const int at = m_preedit.Position - placed.Start;
  if (!placed.Composed || shown <= at) return placed.Start + shown;
  return placed.Start + std::max(at, shown - static_cast<int>(m_preedit.Text.size()));
}

QRectF InkTextLayout::Bounds() const {
  const bool isEmpty = End() == 0 && m_preedit.Text.isEmpty();
  if (isEmpty) return {};
  qreal width = 1;  // empty lines are there too
  for (const Placed& placed : m_paragraphs) width = std::max(width, placed.Lines().Width());
  return {m_origin.x(), m_origin.y(), width, LineCount() * m_lineHeight};
}

QRectF InkTextLayout::PaintedBounds() const {
  const QRectF bounds = Bounds();
  if (bounds.isNull()) return {};
  return bounds.adjusted(-m_overhang, -m_overhang, m_overhang, m_overhang);
}

std::vector<InkTextLine> InkTextLayout::Lines() const {
  std::vector<InkTextLine> lines;
  for (const Placed& placed : m_paragraphs)
    for (int i = 0; i < placed.Stored->Count(); ++i) {
      const qreal below = TopOfLine(placed.FirstLine + i + 1);
      lines.push_back({{m_origin.x(), below - kInkBaselineAboveRule},
                       placed.Start + placed.Stored->Begin(i),
                       placed.Start + placed.Stored->End(i)});
    }
  return lines;
}

int InkTextLayout::LineOf(int position) const {
  const Placed& placed = ParagraphAt(position);
  return placed.FirstLine + placed.Lines().LineOf(ShownPosition(placed, position));
}

int InkTextLayout::LineCount() const {
  return m_paragraphs.back().FirstLine + m_paragraphs.back().Lines().Count();
}

qreal InkTextLayout::TopOfLine(int line) const { return m_origin.y() + line * m_lineHeight; }

int InkTextLayout::PositionAt(QPointF at) const {
  const qreal wanted = std::floor((at.y() - m_origin.y()) / m_lineHeight);
  const Found found = FindLine(static_cast<int>(std::clamp<qreal>(wanted, 0, LineCount() - 1)));
  return StoredPosition(found.In, found.In.Lines().PositionAt(found.Line, at.x() - m_origin.x()));
}

bool InkTextLayout::IsTextAt(QPointF at) const {
  if (!Bounds().contains(at)) return false;
  const int line = static_cast<int>((at.y() - m_origin.y()) / m_lineHeight);
  const Found found = FindLine(std::min(line, LineCount() - 1));
  return at.x() - m_origin.x() <= found.In.Lines().Width(found.Line);
}

qreal InkTextLayout::X(const Found& found, int position) const {
  return m_origin.x() + found.In.Lines().X(found.Line, ShownPosition(found.In, position));
}

QRectF InkTextLayout::Caret(int position) const {
  const int line = LineOf(position);
  return {X(FindLine(line), position), TopOfLine(line) + 3, 1, m_lineHeight - 5};
}

std::vector<QRectF> InkTextLayout::Selection(int from, int to) const {
  std::vector<QRectF> rectangles;
  if (from >= to) return rectangles;
  const int last = LineOf(to);
  for (int line = LineOf(from); line <= last; ++line) {
    const Found found = FindLine(line);
    const int begin = StoredPosition(found.In, found.In.Lines().Begin(found.Line));
    const int end = StoredPosition(found.In, found.In.Lines().End(found.Line));
    const qreal left = X(found, std::max(from, begin));
    const qreal right = X(found, std::min(to, end)) + (to > end ? kLineEndWidth : 0);
    const QRectF shown(QPointF(left, TopOfLine(line)), QPointF(right, TopOfLine(line + 1)));
    if (left != right) rectangles.push_back(shown.normalized());
  }
  return rectangles;
}

int InkTextLayout::LineBegin(int line) const {
  const Found found = FindLine(line);
  return StoredPosition(found.In, found.In.Lines().Begin(found.Line));
}

int InkTextLayout::LineLast(int line) const {
  const Found found = FindLine(line);
  return StoredPosition(found.In, found.In.Lines().Last(found.Line));
}

void InkTextLayout::Paint(QPainter& painter, const QRectF& area) const {
  for (const Placed& placed : m_paragraphs)
    for (int i = 0; i < placed.Lines().Count(); ++i) {
      const qreal below = TopOfLine(placed.FirstLine + i + 1);
      if (below + m_overhang < area.top()) continue;
      if (below - m_lineHeight - m_overhang > area.bottom()) return;
      placed.Lines().Paint(painter, i, {m_origin.x(), below - kInkBaselineAboveRule});
    }
}

}  // namespace quill
