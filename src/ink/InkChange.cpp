#include "ink/InkChange.h"

#include <algorithm>
#include <unordered_set>

#include "ink/InkDocument.h"

namespace quill {

namespace {

constexpr qint64 kTypingPause = 1000;

InkTextChange Reversed(const InkTextChange& change) {
  return {.At = change.At,
          .Removed = change.Inserted,
          .Inserted = change.Removed,
          .Before = change.After,
          .After = change.Before,
          .CaretBefore = change.CaretAfter,
          .CaretAfter = change.CaretBefore};
}

void TakeAway(std::vector<InkStrokePtr>& strokes, const std::vector<InkPlacedStroke>& removed) {
  auto next = removed.begin();
  std::size_t index = 0;
  std::erase_if(strokes, [&](const InkStrokePtr&) {
    const bool goes = next != removed.end() && next->Index == index;
    if (goes) ++next;
    ++index;
    return goes;
  });
}

void PutIn(std::vector<InkStrokePtr>& strokes, const std::vector<InkPlacedStroke>& added) {
  std::vector<InkStrokePtr> result;
  result.reserve(strokes.size() + added.size());
  auto next = strokes.begin();
  for (const InkPlacedStroke& placed : added) {
    while (result.size() < placed.Index && next != strokes.end()) result.push_back(*next++);
    result.push_back(placed.Stroke);
  }
  result.insert(result.end(), next, strokes.end());
  strokes = std::move(result);
}

}  // namespace

InkChange Reversed(const InkChange& change) {
  InkChange reversed{.Removed = change.Added, .Added = change.Removed};
  if (change.Text) reversed.Text = Reversed(*change.Text);
  if (change.Whole) reversed.Whole = std::pair(change.Whole->second, change.Whole->first);
  return reversed;
}

std::vector<InkPlacedStroke> PlacesOf(const InkNote& note,
                                      const std::vector<InkStrokePtr>& strokes) {
  const std::unordered_set<InkStrokePtr> wanted(strokes.begin(), strokes.end());
  std::vector<InkPlacedStroke> places;
  for (std::size_t i = 0; i < note.Strokes.size(); ++i)
    if (wanted.contains(note.Strokes[i])) places.push_back({i, note.Strokes[i]});
  return places;
}

void ApplyStrokes(std::vector<InkStrokePtr>& strokes, const InkChange& change) {
  if (!change.Removed.empty()) TakeAway(strokes, change.Removed);
  const bool isOnTop = change.Added.size() == 1 && change.Added.front().Index == strokes.size();
  if (isOnTop)
    strokes.push_back(change.Added.front().Stroke);  // writing must not cost what the page holds
  else if (!change.Added.empty())
    PutIn(strokes, change.Added);
}

InkStep::InkStep(InkDocument& document, InkChange change, const InkStepKind& kind)
    : m_document(document), m_kind(kind) {
  m_changes.push_back(std::move(change));
}

void InkStep::redo() {
  for (const InkChange& change : m_changes) m_document.Apply(change);
}

void InkStep::undo() {
  std::for_each(m_changes.rbegin(), m_changes.rend(),
                [this](const InkChange& change) { m_document.Apply(Reversed(change)); });
}

bool InkStep::mergeWith(const QUndoCommand* other) {
  const auto& later = static_cast<const InkStep&>(*other);
  const bool goesOn = m_kind.Merge == InkStepMerge::Erasing
                          ? later.m_kind.Gesture == m_kind.Gesture
                          : later.m_kind.Time - m_kind.Time <= kTypingPause;
  if (!goesOn) return false;
  m_changes.insert(m_changes.end(), later.m_changes.begin(), later.m_changes.end());
  m_kind = later.m_kind;
  return true;
}

}  // namespace quill
