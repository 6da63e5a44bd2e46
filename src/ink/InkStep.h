// A step that can be undone: changes of a page that belong together.
#pragma once

#include <QUndoCommand>

#include <vector>

#include "ink/InkChange.h"

namespace quill {

class InkDocument;

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
  // The document outlives it.
  InkStep(InkDocument& document, std::vector<InkChange> changes, const InkStepKind& kind);

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
