#include "ink/InkLeaf.h"

#include <algorithm>
#include <map>

#include "ink/InkFormat.h"
#include "ink/InkSelect.h"
#include "ink/InkStrokePainter.h"
#include "ink/InkTextEditing.h"

namespace quill {

namespace {

int Units(qreal pixels) { return qRound(pixels * kInkUnitsPerPixel); }

QRect Units(const QRectF& pixels) {
  if (pixels.isNull()) return {};
  return QRectF(pixels.topLeft() * kInkUnitsPerPixel, pixels.size() * kInkUnitsPerPixel)
      .toAlignedRect();
}

InkText WithoutWords(InkText text) {
  text.Text.clear();
  return text;
}

// Lines go from one place to another: the ink below the line of a position with them.
InkShift ShiftBelow(const InkTextLayout& layout, int position, int lines,
                    const std::vector<InkStrokePtr>& strokes) {
  InkShift shift{.By = {0, Units(lines * layout.LineHeight())}};
  const int bottom = Units(layout.TopOfLine(layout.LineOf(position) + 1));
  QRect moved;
  for (std::size_t i = 0; lines != 0 && i < strokes.size(); ++i) {
    if (strokes[i]->Bounds.top() < bottom) continue;
    shift.Indices.push_back(i);
    moved = moved.united(strokes[i]->Bounds);
  }
  shift.By = WithinReach(moved, shift.By);
  return shift;
}

bool HasTextBelow(const InkTextLayout& layout, const QString& text, int position) {
  return layout.LineOf(position) + 1 < layout.LineCount() ||
         position < ParagraphEnd(text, position);
}

}  // namespace

qint64 MemoryOf(const std::vector<InkStrokePtr>& strokes) {
  qint64 memory = 0;
  for (const InkStrokePtr& stroke : strokes) memory += InkMemory(stroke->Points.size());
  return memory;
}

void InkLeaf::Load(InkNote note) {
  m_note = std::move(note);
  MeasureStrokes();
  m_layout.Load(m_note.Text, UsedLinePitch(m_note.Page));
}

void InkLeaf::SetWidth(quint32 width) {
  m_note.Page.Width = width;
  m_note.Text.WrapWidth = width - 2 * static_cast<quint32>(InkText{}.X);
  m_layout.Load(m_note.Text, UsedLinePitch(m_note.Page));
}

void InkLeaf::PlaceText(qint32 top) {
  m_note.Text.Y = top;
  m_layout.Load(m_note.Text, UsedLinePitch(m_note.Page));
}

void InkLeaf::FindRoomForText() {
  const int pitch = Units(m_layout.LineHeight());
  const int end = m_note.Text.Y + pitch;
  const bool isCovered = std::ranges::any_of(m_note.Strokes, [&](const InkStrokePtr& stroke) {
    return stroke->Bounds.top() < end && stroke->Bounds.bottom() >= m_note.Text.Y;
  });
  if (isCovered) PlaceText((m_inkBounds.bottom() / pitch + 1) * pitch);
}

quint32 InkLeaf::PenFor(const InkPen& pen) {
  const auto found = std::ranges::find(m_note.Pens, pen);
  const auto index = static_cast<quint32>(found - m_note.Pens.begin());
  if (found == m_note.Pens.end()) m_note.Pens.push_back(pen);
  return index;
}

InkNote InkLeaf::WithPensOfPage(InkNote note) {
  std::map<quint32, quint32> numbers;  // of the page's pens, by the note's
  for (InkStrokePtr& stroke : note.Strokes) {
    const auto [known, isNew] = numbers.try_emplace(stroke->Pen);
    if (isNew) known->second = PenFor(InkPenOf(note, *stroke));
    const quint32 pen = known->second;
    if (pen == stroke->Pen) continue;
    auto copy = std::make_shared<InkStroke>(*stroke);
    copy->Pen = pen;
    stroke = std::move(copy);
  }
  note.Pens = m_note.Pens;
  return note;
}

QRect InkLeaf::TextArea() const { return Units(m_layout.Bounds()); }

QRect InkLeaf::PaintedTextArea() const { return Units(m_layout.PaintedBounds()); }

QRect InkLeaf::PaintedArea() const {
  QRect area = PaintedTextArea();
  for (const InkStrokePtr& stroke : m_note.Strokes)
    area = area.united(PaintedBounds(m_note, *stroke));
  return area;
}

std::vector<InkChange> InkLeaf::Typed(int from, int to, const QString& text,
                                      const std::vector<InkStrokePtr>& strokes) const {
  InkText after = ReplaceInkText(m_note.Text, from, to, text);
  const auto added = static_cast<int>(after.Text.size() - m_note.Text.Text.size()) + (to - from);
  if (from == to && added == 0) return {};
  InkTextLayout before = m_layout;
  before.SetPreedit({});  // what is composed takes part in no change
  InkTextLayout laidOut = before;
  laidOut.Edit(after, from, from + added);
  after.SoftBreaks = laidOut.SoftBreaks();
  InkTextChange change{.At = from,
                       .Removed = m_note.Text.Text.mid(from, to - from),
                       .Inserted = after.Text.mid(from, added),
                       .Before = WithoutWords(m_note.Text),
                       .After = WithoutWords(std::move(after)),
                       .CaretBefore = to,
                       .CaretAfter = from + added};
  std::vector<InkChange> changes{{.Text = std::move(change)}};
  if (HasTextBelow(before, m_note.Text.Text, to))
    changes.push_back(
        {.Shifted = ShiftBelow(before, to, laidOut.LineCount() - before.LineCount(), strokes)});
  if (changes.back().IsNothing()) changes.pop_back();
  return changes;
}

QRect InkLeaf::Apply(const InkChange& change) {
  const QRect before = AreaOf(change);
  ApplyStrokes(m_note.Strokes, change);
  if (change.Text) ApplyText(*change.Text);
  if (change.Whole) ApplyWhole(change.Whole->second);
  FollowStrokes(change);
  return before.united(AreaOf(change));
}

// Of its strokes, wherever they are now, and of the text.
QRect InkLeaf::AreaOf(const InkChange& change) const {
  if (change.Whole) return PaintedArea();
  QRect area = change.Text ? PaintedTextArea() : QRect();
  for (const InkPlacedStroke& placed : change.Removed)
    area = area.united(PaintedBounds(m_note, *placed.Stroke));
  for (const InkPlacedStroke& placed : change.Added)
    area = area.united(PaintedBounds(m_note, *placed.Stroke));
  for (const std::size_t index : change.Shifted.Indices)
    area = area.united(PaintedBounds(m_note, *m_note.Strokes[index]));
  return area;
}

// Writing must not cost what the page holds.
void InkLeaf::FollowStrokes(const InkChange& change) {
  const bool isAddedOnly = change.Removed.empty() && change.Shifted.Indices.empty();
  if (!isAddedOnly || change.Whole) return MeasureStrokes();
  for (const InkPlacedStroke& placed : change.Added) {
    m_inkBounds = m_inkBounds.united(placed.Stroke->Bounds);
    m_strokeMemory += MemoryOf({placed.Stroke});
  }
}

void InkLeaf::MeasureStrokes() {
  m_inkBounds = BoundsOf(m_note.Strokes);
  m_strokeMemory = MemoryOf(m_note.Strokes);
}

InkText InkLeaf::TextAfter(const InkTextChange& change) const {
  InkText after = change.After;
  after.Text = m_note.Text.Text;
  after.Text.replace(change.At, change.Removed.size(), change.Inserted);
  return after;
}

void InkLeaf::ApplyText(const InkTextChange& change) {
  m_note.Text = TextAfter(change);
  m_layout.Load(m_note.Text, UsedLinePitch(m_note.Page));
}

void InkLeaf::ApplyWhole(const InkNote& note) {
  const std::vector<InkPen> pens = std::move(m_note.Pens);
  m_note = note;
  m_note.Pens = pens;
  m_layout.Load(m_note.Text, UsedLinePitch(m_note.Page));
}

}  // namespace quill
