// What of a page is selected: strokes, and a part of the text up to the caret.
#pragma once

#include "ink/InkDocument.h"

namespace quill {

class InkSelection {
 public:
  // The document outlives it.
  explicit InkSelection(const InkDocument& document) : m_document(document) {}

  bool IsEmpty() const { return m_strokes.empty() && m_anchor == m_caret && !m_isAll; }
  const std::vector<InkStrokePtr>& Strokes() const { return m_strokes; }
  int Caret() const { return m_caret; }
  int TextFrom() const { return std::min(m_anchor, m_caret); }
  int TextTo() const { return std::max(m_anchor, m_caret); }
  // All was selected of a note of which not all is shown: what is not shown goes with the rest.
  bool IsAll() const { return m_isAll; }

  void SelectAll();
  void SelectNothing();
  void SelectStrokes(std::vector<InkStrokePtr> strokes);
  // From the position at which a drag began up to the caret.
  void SelectText(int anchor, int caret);
  // Moves the caret; what is selected of the text ends there or begins anew, no stroke stays
  // selected.
  enum class Extend { No, Yes };
  void SetCaret(int caret, Extend extend = Extend::No);

  // After a change of the page: what is no longer there is not selected.
  void FollowPage();

  // The selected strokes' place, units; empty without any.
  QRect Bounds() const;
  // What is selected as a page of its own, where it stands.
  InkNote Fragment() const;

 private:
  const InkDocument& m_document;
  std::vector<InkStrokePtr> m_strokes;
  int m_anchor = 0;
  int m_caret = 0;
  bool m_isAll = false;
};

}  // namespace quill
