#include "ink/InkSelection.h"

#include <algorithm>
#include <ranges>

#include "ink/InkSelect.h"
#include "ink/InkTextEditing.h"

namespace quill {

void InkSelection::SelectAll() {
  m_strokes = m_document.Note().Strokes;
  m_anchor = 0;
  m_caret = static_cast<int>(m_document.Note().Text.Text.size());
  m_isAll = m_document.Notice() != InkNotice::None;
}

void InkSelection::SelectNothing() {
  m_strokes.clear();
  m_anchor = m_caret;
  m_isAll = false;
}

void InkSelection::SelectStrokes(std::vector<InkStrokePtr> strokes) {
  m_strokes = std::move(strokes);
  m_isAll = false;
}

void InkSelection::SelectText(int anchor, int caret) {
  m_anchor = anchor;
  m_caret = caret;
  m_isAll = false;
}

void InkSelection::SetCaret(int caret, Extend extend) {
  m_strokes.clear();
  m_caret = caret;
  if (extend == Extend::No) m_anchor = caret;
  m_isAll = false;
}

void InkSelection::FollowPage() {
  const auto length = static_cast<int>(m_document.Note().Text.Text.size());
  m_anchor = std::min(m_anchor, length);
  m_caret = std::min(m_caret, length);
  m_isAll = m_isAll && m_document.Notice() != InkNotice::None;
  if (m_strokes.empty()) return;
  std::vector<InkStrokePtr> left;
  for (InkPlacedStroke& placed : PlacesOf(m_document.Note(), m_strokes))
    left.push_back(std::move(placed.Stroke));
  m_strokes = std::move(left);
}

QRect InkSelection::Bounds() const {
  QRect bounds;
  for (const InkStrokePtr& stroke : m_strokes)
    bounds = bounds.united(PaintedBounds(m_document.Note(), *stroke));
  return bounds;
}

InkNote InkSelection::Fragment() const {
  const InkNote& note = m_document.Note();
  const InkTextLayout& layout = m_document.TextLayout();
  InkNote fragment{.Page = note.Page, .Pens = note.Pens, .Strokes = m_strokes};
  fragment.Text = SliceInkText(note.Text, TextFrom(), TextTo());
  const qreal top = layout.TopOfLine(layout.LineOf(TextFrom()));
  fragment.Text.Y = qRound(top * kInkUnitsPerPixel);
  return fragment;
}

}  // namespace quill
