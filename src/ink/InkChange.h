// What changes of a page in one go, which can be turned round.
#pragma once

#include <QPoint>

#include <optional>
#include <utility>
#include <vector>

#include "ink/InkNote.h"

namespace quill {

struct InkPlacedStroke {
  std::size_t Index = 0;  // in the note's strokes
  InkStrokePtr Stroke = {};
};

// Strokes that go elsewhere by the same way, units. They are named by their places alone: to keep
// each of them as it was would fill the memory with copies of whole pages.
struct InkShift {
  std::vector<std::size_t> Indices = {};
  QPoint By = {};
};

// Text replaced at a position. The texts' other parts are kept whole; their Text is empty.
struct InkTextChange {
  int At = 0;
  QString Removed = {};
  QString Inserted = {};
  InkText Before = {};
  InkText After = {};
  int CaretBefore = 0;
  int CaretAfter = 0;
};

// First strokes go, by their places before, then strokes come, by their places after; both in
// ascending order. Shifted and Whole each stand alone; Whole is the page before and after.
struct InkChange {
  std::vector<InkPlacedStroke> Removed = {};
  std::vector<InkPlacedStroke> Added = {};
  InkShift Shifted = {};
  std::optional<InkTextChange> Text = {};
  std::optional<std::pair<InkNote, InkNote>> Whole = {};

  bool IsNothing() const;
};

InkChange Reversed(const InkChange& change);

// Two changes of text as one, where the later one ends at the end of what the first typed: it types
// on, or takes back some of it and of what is before it.
std::optional<InkTextChange> Joined(const InkTextChange& first, const InkTextChange& later);

// These strokes with their places; those that are not there are left out.
std::vector<InkPlacedStroke> PlacesOf(const InkNote& note,
                                      const std::vector<InkStrokePtr>& strokes);

// Carries a change out on a list of strokes.
void ApplyStrokes(std::vector<InkStrokePtr>& strokes, const InkChange& change);

}  // namespace quill
