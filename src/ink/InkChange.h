// One change of a page, which can be turned round, and the undo steps made of such changes.
#pragma once

#include <QUndoCommand>

#include <optional>
#include <utility>
#include <vector>

#include "ink/InkNote.h"

namespace quill {

class InkDocument;

struct InkPlacedStroke {
  std::size_t Index = 0;  // in the note's strokes
  InkStrokePtr Stroke = {};
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
// ascending order. Whole is the page before and after and stands alone.
struct InkChange {
  std::vector<InkPlacedStroke> Removed = {};
  std::vector<InkPlacedStroke> Added = {};
  std::optional<InkTextChange> Text = {};
  std::optional<std::pair<InkNote, InkNote>> Whole = {};

  bool IsNothing() const { return Removed.empty() && Added.empty() && !Text && !Whole; }
};

InkChange Reversed(const InkChange& change);

// The change that takes these strokes away; those that are not there are left out.
std::vector<InkPlacedStroke> PlacesOf(const InkNote& note,
                                      const std::vector<InkStrokePtr>& strokes);

// Carries a change out on a list of strokes.
void ApplyStrokes(std::vector<InkStrokePtr>& strokes, const InkChange& change);

enum class InkStepMerge { Never, Erasing, Typing };

// What a step is, for going on with the one before it: the same gesture of erasing, or typing at
// most a second later.
struct InkStepKind {
  InkStepMerge Merge = InkStepMerge::Never;
  int Gesture = 0;
  qint64 Time = 0;  // milliseconds
};

class InkStep : public QUndoCommand {
 public:
  InkStep(InkDocument& document, InkChange change, const InkStepKind& kind);

  void undo() override;
  void redo() override;
  int id() const override { return static_cast<int>(m_kind.Merge) - 1; }  // -1: never merges
  bool mergeWith(const QUndoCommand* other) override;

 private:
  InkDocument& m_document;
  std::vector<InkChange> m_changes;
  InkStepKind m_kind;
};

}  // namespace quill
