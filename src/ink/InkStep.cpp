#include "ink/InkStep.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ink/InkDocument.h"

namespace quill {

namespace {

constexpr qint64 kTypingPause = 1000;

bool IsTextAlone(const std::vector<InkChange>& changes) {
  return changes.size() == 1 && changes.front().Text;
}

const InkTextChange* TextOf(const std::vector<InkChange>& changes) {
  const auto found = std::ranges::find_if(
      changes, [](const InkChange& change) { return change.Text.has_value(); });
  return found == changes.end() ? nullptr : &*found->Text;
}

// Typed on where the caret was left, with keys that take to its left or right too.
bool GoesOnTyping(const std::vector<InkChange>& before, const std::vector<InkChange>& later) {
  const InkTextChange* const first = TextOf(before);
  const InkTextChange* const next = TextOf(later);
  if (!first || !next) return false;
  return next->CaretBefore == first->CaretAfter || next->At == first->CaretAfter;
}

}  // namespace

InkStep::InkStep(InkDocument& document, std::vector<InkChange> changes, const InkStepKind& kind)
    : m_document(document), m_changes(std::move(changes)), m_kind(kind) {}

void InkStep::redo() { m_document.Apply(m_changes); }

void InkStep::undo() {
  std::vector<InkChange> reversed;
  std::transform(m_changes.rbegin(), m_changes.rend(), std::back_inserter(reversed),
                 [](const InkChange& change) { return Reversed(change); });
  m_document.Apply(reversed);
}

bool InkStep::mergeWith(const QUndoCommand* other) {
  const auto& later = static_cast<const InkStep&>(*other);
  const bool goesOn = m_kind.Merge == InkStepMerge::Erasing
                          ? later.m_kind.Gesture == m_kind.Gesture
                          : later.m_kind.Time - m_kind.Time <= kTypingPause &&
                                GoesOnTyping(m_changes, later.m_changes);
  if (!goesOn) return false;
  m_kind = later.m_kind;
  std::optional<InkTextChange> joined;
  if (IsTextAlone(m_changes) && IsTextAlone(later.m_changes))
    joined = Joined(*m_changes.front().Text, *later.m_changes.front().Text);
  if (!joined) {
    std::ranges::copy(later.m_changes, std::back_inserter(m_changes));
    return true;
  }
  m_changes.front().Text = std::move(joined);
  // What was typed was taken back by keys: nothing is left to undo.
  setObsolete(m_changes.front().Text->Inserted == m_changes.front().Text->Removed);
  return true;
}

}  // namespace quill
