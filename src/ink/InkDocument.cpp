#include "ink/InkDocument.h"

#include <QSignalBlocker>

#include <algorithm>
#include <iterator>
#include <utility>

#include "ink/InkFormat.h"
#include "ink/InkSelect.h"
#include "ink/InkTextEditing.h"
#include "platform/Clock.h"
#include "platform/Services.h"

namespace quill {

namespace {

constexpr int kMostSteps = 1000;
// All of a page must be read again: of what a reader takes the rest is for text and the strokes'
// pens.
constexpr qint64 kMostStrokeMemory = kMostInkMemory - (16 << 20);
constexpr qint64 kNearlyFull = InkMemory(2000);

qint64 NowInMilliseconds() { return g_services.Clock->Now().toMSecsSinceEpoch(); }

InkNotice NoticeOf(const InkContent& content) {
  switch (content.Reading) {
    case InkReading::Damaged:
      return content.Note.IsEmpty() ? InkNotice::Lost : InkNotice::Damaged;
    case InkReading::Foreign:
      return InkNotice::Foreign;
    case InkReading::Newer:
      return InkNotice::Newer;
    default:
      return InkNotice::None;
  }
}

}  // namespace

// Only once the stack knows of a step it says rightly what can be undone and what is unchanged.
InkDocument::InkDocument() {
  m_steps.setUndoLimit(kMostSteps);
  connect(&m_steps, &QUndoStack::indexChanged, this, &InkDocument::Edited);
}

// The stack tells of its end too.
InkDocument::~InkDocument() { m_steps.disconnect(this); }

void InkDocument::SetData(const QByteArray& data) {
  InkContent content = ReadInk(data);
  m_original = data;
  m_notice = NoticeOf(content);
  const QSignalBlocker unedited(m_steps);
  m_steps.clear();
  m_leaf.Load(std::move(content.Note));
  FollowNewPageWidth();
  Q_EMIT Changed(m_leaf.PaintedArea());
  Q_EMIT TextChanged(static_cast<int>(Note().Text.Text.size()));
}

QByteArray InkDocument::Data() const {
  if (m_steps.isClean()) return m_original;
  InkNote note = Note();
  const QRect bounds = InkBounds().united(m_leaf.TextArea());
  note.Page.ContentHeight = static_cast<quint32>(std::max(bounds.bottom() + 1, 0));
  return WriteInk(note);
}

InkNotice InkDocument::Notice() const {
  if (m_notice == InkNotice::Damaged || m_steps.isClean()) return m_notice;
  const bool isFull = m_leaf.StrokeMemory() + kNearlyFull > kMostStrokeMemory;
  return isFull ? InkNotice::Full : InkNotice::None;
}

bool InkDocument::HasRoomFor(const std::vector<InkStrokePtr>& strokes) const {
  return m_leaf.StrokeMemory() + MemoryOf(strokes) <= kMostStrokeMemory;
}

bool InkDocument::IsLocked() const {
  const InkNotice notice = Notice();
  return notice == InkNotice::Lost || notice == InkNotice::Foreign || notice == InkNotice::Newer;
}

void InkDocument::SetNewPageWidth(quint32 width) {
  m_newPageWidth = std::max(width, kDefaultPageWidth);
  FollowNewPageWidth();
}

bool InkDocument::WasNeverWritten() const { return Note().IsEmpty() && m_steps.count() == 0; }

void InkDocument::FollowNewPageWidth() {
  if (!WasNeverWritten()) return;
  m_leaf.SetWidth(m_newPageWidth);
  Q_EMIT Changed({});
}

void InkDocument::BeginPage() {
  if (WasNeverWritten()) m_leaf.SetCreated(NowInMilliseconds());
}

void InkDocument::Push(std::vector<InkChange> changes, const InkStepKind& kind) {
  std::erase_if(changes, [](const InkChange& change) { return change.IsNothing(); });
  if (changes.empty()) return;
  m_steps.push(new InkStep(*this, std::move(changes), kind));
}

void InkDocument::AddStroke(InkStroke stroke, const InkPen& pen) {
  if (IsLocked() || stroke.Points.empty()) return;
  BeginPage();
  stroke.Pen = m_leaf.PenFor(pen);
  const InkStrokePtr sealed = SealInkStroke(std::move(stroke));
  if (HasRoomFor({sealed})) Push({{.Added = {{Note().Strokes.size(), sealed}}}});
}

void InkDocument::Erase(const std::vector<InkStrokePtr>& strokes, int gesture) {
  if (IsLocked()) return;
  Push({{.Removed = PlacesOf(Note(), strokes)}},
       {.Merge = InkStepMerge::Erasing, .Gesture = gesture});
}

std::vector<InkStrokePtr> InkDocument::Move(const std::vector<InkStrokePtr>& strokes, QPoint by) {
  InkShift shift{.By = WithinReach(BoundsOf(strokes), by)};
  if (IsLocked() || shift.By.isNull()) return strokes;
  for (const InkPlacedStroke& placed : PlacesOf(Note(), strokes))
    shift.Indices.push_back(placed.Index);
  Push({{.Shifted = shift}});
  std::vector<InkStrokePtr> moved;
  for (const std::size_t index : shift.Indices) moved.push_back(Note().Strokes[index]);
  return moved;
}

void InkDocument::Delete(const std::vector<InkStrokePtr>& strokes, int from, int to) {
  if (IsLocked()) return;
  std::vector<InkChange> changes{{.Removed = PlacesOf(Note(), strokes)}};
  std::vector<InkStrokePtr> left = Note().Strokes;
  ApplyStrokes(left, changes.front());
  std::ranges::move(m_leaf.Typed(from, to, {}, left), std::back_inserter(changes));
  Push(std::move(changes));
}

std::vector<InkStrokePtr> InkDocument::Paste(const InkNote& fragment, QPoint by, int from, int to) {
  if (IsLocked() || !HasRoomFor(fragment.Strokes)) return {};
  BeginPage();
  const QPoint way = WithinReach(BoundsOf(fragment.Strokes), by);
  const std::vector<InkStrokePtr> pasted = m_leaf.WithPensOfPage(fragment).Strokes;
  InkChange change;
  for (const InkStrokePtr& stroke : pasted)
    change.Added.push_back(
        {Note().Strokes.size() + change.Added.size(), MovedStroke(*stroke, way)});
  std::vector<InkChange> changes;
  if (!fragment.Text.Text.isEmpty())
    changes = m_leaf.Typed(from, to, fragment.Text.Text, Note().Strokes);
  changes.push_back(std::move(change));
  Push(std::move(changes));
  return {Note().Strokes.end() - static_cast<std::ptrdiff_t>(pasted.size()), Note().Strokes.end()};
}

void InkDocument::PlaceText(int y) {
  if (IsLocked() || HasText()) return;
  const int line = qRound(TextLayout().LineHeight() * kInkUnitsPerPixel);
  m_leaf.PlaceText(std::max(y, 0) / line * line);
}

void InkDocument::Type(int from, int to, const QString& text) {
  if (IsLocked()) return;
  if (!HasText()) m_leaf.FindRoomForText();
  BeginPage();
  Push(m_leaf.Typed(from, to, text, Note().Strokes),
       {.Merge = InkStepMerge::Typing, .Time = NowInMilliseconds()});
}

void InkDocument::SetPreedit(const InkPreedit& preedit) {
  if (IsLocked() && !preedit.Text.isEmpty()) return;
  const QRect before = m_leaf.PaintedTextArea();
  if (!HasText() && !preedit.Text.isEmpty()) m_leaf.FindRoomForText();
  m_leaf.SetPreedit(preedit);
  Q_EMIT Changed(before.united(m_leaf.PaintedTextArea()));
}

// Text typed later is wrapped as it was.
void InkDocument::ClearAll() {
  Replace({.Page = Note().Page, .Text = SliceInkText(Note().Text, 0, 0)});
}

void InkDocument::Replace(const InkNote& note) {
  Push({{.Whole = std::pair(Note(), m_leaf.WithPensOfPage(note))}});
}

void InkDocument::Apply(const std::vector<InkChange>& changes) {
  const InkChange& first = changes.front();
  const bool isOnTop = changes.size() == 1 && first.Removed.empty() && first.Added.size() == 1 &&
                       first.Added.front().Index == Note().Strokes.size();
  for (const InkChange& change : changes) {
    const QRect area = m_leaf.Apply(change);
    if (!isOnTop) Q_EMIT Changed(area);
    if (change.Text) Q_EMIT TextChanged(change.Text->CaretAfter);
  }
  if (isOnTop) Q_EMIT StrokeAdded(Note().Strokes.back());
}

}  // namespace quill
