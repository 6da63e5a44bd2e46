#include "ink/InkDocument.h"

#include <algorithm>

#include "ink/InkFormat.h"
#include "ink/InkSelect.h"
#include "ink/InkTextEditing.h"
#include "platform/Clock.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kMostSteps = 1000;
constexpr int kMargin = 2 * kInkUnitsPerPixel;  // what antialiasing and a caret paint around text

qint64 NowInMilliseconds() { return g_services.Clock->Now().toMSecsSinceEpoch(); }

InkNotice NoticeOf(InkReading reading) {
  switch (reading) {
    case InkReading::Damaged:
      return InkNotice::Damaged;
    case InkReading::Foreign:
      return InkNotice::Foreign;
    case InkReading::Newer:
      return InkNotice::Newer;
    default:
      return InkNotice::None;
  }
}

int Units(qreal pixels) { return qRound(pixels * kInkUnitsPerPixel); }

int LinesOf(const InkText& text) {
  return static_cast<int>(text.Text.count(u'\n')) + static_cast<int>(text.SoftBreaks.size()) + 1;
}

InkText WithoutWords(InkText text) {
  text.Text.clear();
  return text;
}

}  // namespace

InkDocument::InkDocument() { m_steps.setUndoLimit(kMostSteps); }

void InkDocument::SetData(const QByteArray& data) {
  InkContent content = ReadInk(data);
  m_original = data;
  m_notice = NoticeOf(content.Reading);
  m_note = std::move(content.Note);
  if (content.Reading == InkReading::Foreign) m_note = {};
  m_inkBounds = BoundsOf(m_note.Strokes);
  m_layout.Load(m_note.Text, m_note.Page.RulePitch);
  m_steps.clear();
  Q_EMIT Changed(WholeArea());
  Q_EMIT TextChanged(static_cast<int>(m_note.Text.Text.size()));
}

QByteArray InkDocument::Data() const {
  if (m_steps.isClean()) return m_original;
  InkNote note = m_note;
  const QRect bounds = m_inkBounds.united(TextArea());
  note.Page.ContentHeight = static_cast<quint32>(std::max(bounds.bottom() + 1, 0));
  return WriteInk(note);
}

InkNotice InkDocument::Notice() const {
  return m_notice == InkNotice::Damaged || m_steps.isClean() ? m_notice : InkNotice::None;
}

bool InkDocument::IsLocked() const {
  return Notice() == InkNotice::Foreign || Notice() == InkNotice::Newer;
}

void InkDocument::SetNewPageWidth(quint32 width) {
  m_newPageWidth = std::max(width, kDefaultPageWidth);
}

// An empty page gets its width when something comes onto it.
void InkDocument::PreparePage() {
  if (!m_note.IsEmpty() || !m_steps.isClean()) return;
  m_note.Page.Width = m_newPageWidth;
  m_note.Page.Created = static_cast<quint64>(NowInMilliseconds());
  const InkText place;
  m_note.Text.WrapWidth = m_newPageWidth - 2 * static_cast<quint32>(place.X);
  m_layout.Load(m_note.Text, m_note.Page.RulePitch);
}

quint32 InkDocument::PenFor(const InkPen& pen) {
  const auto found = std::ranges::find(m_note.Pens, pen);
  const auto index = static_cast<quint32>(found - m_note.Pens.begin());
  if (found == m_note.Pens.end()) m_note.Pens.push_back(pen);
  return index;
}

void InkDocument::PushChange(InkChange change, const InkStepKind& kind) {
  if (!change.IsNothing()) m_steps.push(new InkStep(*this, std::move(change), kind));
}

void InkDocument::AddStroke(InkStroke stroke, const InkPen& pen) {
  if (IsLocked() || stroke.Points.empty()) return;
  PreparePage();
  stroke.Pen = PenFor(pen);
  PushChange({.Added = {{m_note.Strokes.size(), SealInkStroke(std::move(stroke))}}});
}

void InkDocument::Erase(const std::vector<InkStrokePtr>& strokes, int gesture) {
  if (IsLocked()) return;
  PushChange({.Removed = PlacesOf(m_note, strokes)},
             {.Merge = InkStepMerge::Erasing, .Gesture = gesture});
}

std::vector<InkStrokePtr> InkDocument::Move(const std::vector<InkStrokePtr>& strokes, QPoint by) {
  if (IsLocked() || by.isNull()) return strokes;
  InkChange change{.Removed = PlacesOf(m_note, strokes)};
  std::vector<InkStrokePtr> moved;
  for (const InkPlacedStroke& placed : change.Removed) {
    moved.push_back(MovedStroke(*placed.Stroke, by));
    change.Added.push_back({placed.Index, moved.back()});
  }
  PushChange(std::move(change));
  return moved;
}

void InkDocument::Delete(const std::vector<InkStrokePtr>& strokes, int from, int to) {
  if (IsLocked()) return;
  InkChange change{.Removed = PlacesOf(m_note, strokes)};
  if (from < to) change.Text = TextChangeTo(from, to, {});
  PushChange(std::move(change));
}

std::vector<InkStrokePtr> InkDocument::Paste(const InkNote& fragment, QPoint by, int from, int to) {
  if (IsLocked()) return {};
  PreparePage();
  InkChange change;
  std::vector<InkStrokePtr> pasted;
  for (const InkStrokePtr& stroke : fragment.Strokes) {
    InkStroke copy = *MovedStroke(*stroke, by);
    copy.Pen = PenFor(copy.Pen < fragment.Pens.size() ? fragment.Pens[copy.Pen] : InkPen{});
    pasted.push_back(SealInkStroke(std::move(copy)));
    change.Added.push_back({m_note.Strokes.size() + change.Added.size(), pasted.back()});
  }
  if (!fragment.Text.Text.isEmpty()) change.Text = TextChangeTo(from, to, fragment.Text.Text);
  PushChange(std::move(change));
  return pasted;
}

void InkDocument::Type(int from, int to, const QString& text) {
  if (IsLocked() || (from == to && text.isEmpty())) return;
  PreparePage();
  const int line = m_layout.LineOf(to);
  InkChange change{.Text = TextChangeTo(from, to, text)};
  const bool hasFollowing =
      line + 1 < LinesOf(m_note.Text) || to < ParagraphEnd(m_note.Text.Text, to);
  if (hasFollowing)
    MoveInkBelow(line, LinesOf(TextAfter(*change.Text)) - LinesOf(m_note.Text), change);
  PushChange(std::move(change), {.Merge = InkStepMerge::Typing, .Time = NowInMilliseconds()});
}

void InkDocument::MoveInkBelow(int line, int lines, InkChange& change) const {
  if (lines == 0) return;
  const int bottom = Units(m_layout.TopOfLine(line + 1));
  const QPoint by(0, Units(lines * m_layout.LineHeight()));
  for (std::size_t i = 0; i < m_note.Strokes.size(); ++i) {
    const InkStrokePtr& stroke = m_note.Strokes[i];
    if (stroke->Bounds.top() < bottom) continue;
    change.Removed.push_back({i, stroke});
    change.Added.push_back({i, MovedStroke(*stroke, by)});
  }
}

void InkDocument::SetPreedit(const InkPreedit& preedit) {
  if (IsLocked() && !preedit.Text.isEmpty()) return;
  if (!preedit.Text.isEmpty()) PreparePage();
  const QRect before = TextArea();
  m_layout.SetPreedit(preedit);
  Q_EMIT Changed(before.united(TextArea()));
}

void InkDocument::ClearAll() {
  InkNote empty;
  empty.Page = m_note.Page;
  Replace(empty);
}

void InkDocument::Replace(const InkNote& note) { PushChange({.Whole = std::pair(m_note, note)}); }

// What is composed takes part in no change: it is gone before.
InkTextChange InkDocument::TextChangeTo(int from, int to, const QString& text) {
  InkText after = ReplaceInkText(m_note.Text, from, to, text);
  const auto added = static_cast<int>(after.Text.size() - m_note.Text.Text.size()) + (to - from);
  InkTextChange change{.At = from,
                       .Removed = m_note.Text.Text.mid(from, to - from),
                       .Inserted = after.Text.mid(from, added),
                       .Before = WithoutWords(m_note.Text),
                       .CaretBefore = to,
                       .CaretAfter = from + added};
  m_layout.SetPreedit({});
  InkTextLayout laidOut = m_layout;
  laidOut.Edit(after, from, from + added);
  after.SoftBreaks = laidOut.SoftBreaks();
  change.After = WithoutWords(std::move(after));
  return change;
}

InkText InkDocument::TextAfter(const InkTextChange& change) const {
  InkText after = change.After;
  after.Text = m_note.Text.Text;
  after.Text.replace(change.At, change.Removed.size(), change.Inserted);
  return after;
}

void InkDocument::Apply(const InkChange& change) {
  const bool isOnTop = change.Removed.empty() && change.Added.size() == 1 && !change.Text &&
                       change.Added.front().Index == m_note.Strokes.size();
  QRect area;
  for (const InkPlacedStroke& placed : change.Removed)
    area = area.united(PaintedBounds(m_note, *placed.Stroke));
  for (const InkPlacedStroke& placed : change.Added)
    area = area.united(PaintedBounds(m_note, *placed.Stroke));
  ApplyStrokes(m_note.Strokes, change);
  if (change.Whole) area = ApplyWhole(change.Whole->second);
  FollowStrokes(change);
  if (change.Text) area = area.united(ApplyText(*change.Text));
  if (isOnTop)
    Q_EMIT StrokeAdded(m_note.Strokes.back());
  else
    Q_EMIT Changed(area);
  if (change.Text) Q_EMIT TextChanged(change.Text->CaretAfter);
  Q_EMIT Edited();
}

// Writing must not cost what the page holds.
void InkDocument::FollowStrokes(const InkChange& change) {
  if (!change.Removed.empty() || change.Whole) m_inkBounds = BoundsOf(m_note.Strokes);
  for (const InkPlacedStroke& placed : change.Added)
    m_inkBounds = m_inkBounds.united(placed.Stroke->Bounds);
}

QRect InkDocument::ApplyText(const InkTextChange& change) {
  m_layout.SetPreedit({});
  const QRect before = TextArea();
  m_note.Text = TextAfter(change);
  m_layout.Load(m_note.Text, m_note.Page.RulePitch);
  return before.united(TextArea());
}

QRect InkDocument::ApplyWhole(const InkNote& note) {
  const QRect before = WholeArea();
  m_note = note;
  m_layout.Load(m_note.Text, m_note.Page.RulePitch);
  return before.united(WholeArea());
}

QRect InkDocument::TextArea() const {
  const QRectF bounds = m_layout.Bounds();
  if (bounds.isEmpty()) return {};
  return QRect(QPoint(Units(bounds.left()), Units(bounds.top())),
               QPoint(Units(bounds.right()), Units(bounds.bottom())))
      .adjusted(-kMargin, -kMargin, kMargin, kMargin);
}

QRect InkDocument::WholeArea() const {
  QRect area = TextArea();
  for (const InkStrokePtr& stroke : m_note.Strokes)
    area = area.united(PaintedBounds(m_note, *stroke));
  return area;
}

}  // namespace quill
