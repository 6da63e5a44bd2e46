#include "ink/InkChange.h"

#include <algorithm>
#include <unordered_set>

#include "ink/InkSelect.h"

namespace quill {

namespace {

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

bool InkChange::IsNothing() const {
  return Removed.empty() && Added.empty() && Shifted.Indices.empty() && !Text && !Whole;
}

InkChange Reversed(const InkChange& change) {
  InkChange reversed{.Removed = change.Added,
                     .Added = change.Removed,
                     .Shifted = {change.Shifted.Indices, -change.Shifted.By}};
  if (change.Text) reversed.Text = Reversed(*change.Text);
  if (change.Whole) reversed.Whole = std::pair(change.Whole->second, change.Whole->first);
  return reversed;
}

std::optional<InkTextChange> Joined(const InkTextChange& first, const InkTextChange& later) {
  const qsizetype typed = first.Inserted.size();
  const qsizetype kept = later.At - first.At;  // of what was typed; less than 0: of what was before
  if (kept + later.Removed.size() != typed) return std::nullopt;
  InkTextChange joined = first;
  joined.At = std::min(first.At, later.At);
  joined.Removed.prepend(later.Removed.left(std::max<qsizetype>(-kept, 0)));
  joined.Inserted = first.Inserted.left(std::max<qsizetype>(kept, 0)) + later.Inserted;
  joined.After = later.After;
  joined.CaretAfter = later.CaretAfter;
  return joined;
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
  for (const std::size_t index : change.Shifted.Indices)
    strokes[index] = MovedStroke(*strokes[index], change.Shifted.By);
}

}  // namespace quill
