#include "ink/ui/InkTyping.h"

#include <QTextCharFormat>

#include <algorithm>
#include <optional>

namespace quill {

namespace {

struct CaretKey {
  QKeySequence::StandardKey Move;
  QKeySequence::StandardKey Select;
  InkCaretMove Way;
};

constexpr CaretKey kCaretKeys[] = {
    {QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar, InkCaretMove::Left},
    {QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, InkCaretMove::Right},
    {QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord, InkCaretMove::WordLeft},
    {QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, InkCaretMove::WordRight},
    {QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, InkCaretMove::Up},
    {QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, InkCaretMove::Down},
    {QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, InkCaretMove::LineStart},
    {QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, InkCaretMove::LineEnd},
    {QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument,
     InkCaretMove::TextStart},
    {QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, InkCaretMove::TextEnd},
};

bool IsReturn(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

// What a key types; nothing for one that does something else.
QString TextOf(const QKeyEvent& key) {
  const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const bool isAltGr = key.modifiers().testFlag(Qt::GroupSwitchModifier);
  if ((key.modifiers() & commands) && !isAltGr) return {};
  if (IsReturn(key)) return QStringLiteral("\n");
  const QString text = key.text();
  const bool isPrintable =
      !text.isEmpty() && (text.front().isPrint() || text.front().isSurrogate());
  return isPrintable ? text : QString();
}

std::optional<InkCaretMove> DeletedWay(const QKeyEvent& key) {
  if (key.matches(QKeySequence::DeleteStartOfWord)) return InkCaretMove::WordLeft;
  if (key.matches(QKeySequence::DeleteEndOfWord)) return InkCaretMove::WordRight;
  if (key.key() == Qt::Key_Backspace) return InkCaretMove::Left;
  if (key.key() == Qt::Key_Delete) return InkCaretMove::Right;
  return std::nullopt;
}

InkPreedit PreeditOf(const QInputMethodEvent& input, int position) {
  InkPreedit preedit{.Position = position,
                     .Text = input.preeditString(),
                     .Cursor = static_cast<int>(input.preeditString().size())};
  for (const QInputMethodEvent::Attribute& attribute : input.attributes()) {
    if (attribute.type == QInputMethodEvent::Cursor) preedit.Cursor = attribute.start;
    if (attribute.type == QInputMethodEvent::TextFormat)
      preedit.Formats.append({attribute.start, attribute.length,
                              qvariant_cast<QTextFormat>(attribute.value).toCharFormat()});
  }
  preedit.Cursor = std::clamp(preedit.Cursor, 0, static_cast<int>(preedit.Text.size()));
  return preedit;
}

}  // namespace

bool InkTyping::TakeEditKey(const QKeyEvent& key) {
  if (const std::optional<InkCaretMove> way = DeletedWay(key)) {
    DeleteTo(*way);
    return true;
  }
  const QString text = TextOf(key);
  if (text.isEmpty()) return false;
  Type(text);
  return true;
}

bool InkTyping::TakeCaretKey(const QKeyEvent& key) {
  for (const CaretKey& row : kCaretKeys) {
    const bool selects = key.matches(row.Select);
    if (!selects && !key.matches(row.Move)) continue;
    m_selection.SetCaret(CaretAfter(row.Way),
                         selects ? InkSelection::Extend::Yes : InkSelection::Extend::No);
    return true;
  }
  return false;
}

int InkTyping::CaretAfter(InkCaretMove move) const {
  return MovedCaret(m_document.TextLayout(), m_document.Note().Text.Text, m_selection.Caret(),
                    move);
}

void InkTyping::Type(const QString& text) {
  if (!m_selection.Strokes().empty()) m_selection.SelectStrokes({});
  m_document.Type(m_selection.TextFrom(), m_selection.TextTo(), text);
}

void InkTyping::DeleteSelection() {
  m_document.Delete(m_selection.Strokes(), m_selection.TextFrom(), m_selection.TextTo());
}

void InkTyping::DeleteTo(InkCaretMove move) {
  if (!m_selection.IsEmpty()) return DeleteSelection();
  const int caret = m_selection.Caret();
  const int other = CaretAfter(move);
  m_document.Type(std::min(caret, other), std::max(caret, other), {});
}

// What was composed before is part of no text yet; the new event says what becomes of it.
void InkTyping::TakeInput(const QInputMethodEvent& input) {
  if (!input.commitString().isEmpty() || input.replacementLength() > 0) {
    m_document.SetPreedit({});
    const auto length = static_cast<int>(m_document.Note().Text.Text.size());
    const int from = m_selection.TextFrom() + input.replacementStart();
    if (input.replacementLength() > 0)
      m_selection.SelectText(std::clamp(from, 0, length),
                             std::clamp(from + input.replacementLength(), 0, length));
    Type(input.commitString());
  }
  if (!input.preeditString().isEmpty() && m_selection.TextFrom() < m_selection.TextTo()) Type({});
  m_document.SetPreedit(PreeditOf(input, m_selection.Caret()));
}

QVariant InkTyping::Query(Qt::InputMethodQuery query) const {
  const QString& text = m_document.Note().Text.Text;
  switch (query) {
    case Qt::ImEnabled:
      return !m_document.IsLocked();
    case Qt::ImCursorPosition:
      return m_selection.Caret();
    case Qt::ImAnchorPosition:
      return m_selection.Caret() == m_selection.TextFrom() ? m_selection.TextTo()
                                                           : m_selection.TextFrom();
    case Qt::ImSurroundingText:
      return text;
    case Qt::ImCurrentSelection:
      return text.mid(m_selection.TextFrom(), m_selection.TextTo() - m_selection.TextFrom());
    case Qt::ImHints:
      return static_cast<int>(Qt::ImhMultiLine);
    default:
      return {};
  }
}

}  // namespace quill
