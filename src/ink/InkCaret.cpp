#include "ink/InkCaret.h"

#include <algorithm>

#include "ink/InkTextEditing.h"

namespace quill {

namespace {

int BesideLine(const InkTextLayout& layout, int position, int line) {
  return layout.PositionAt(
      {layout.Caret(position).x(), layout.TopOfLine(line) + layout.LineHeight() / 2});
}

bool IsLeft(InkCaretMove move) {
  return move == InkCaretMove::Left || move == InkCaretMove::WordLeft;
}

QTextLayout::CursorMode ModeOf(InkCaretMove move) {
  const bool isWord = move == InkCaretMove::WordLeft || move == InkCaretMove::WordRight;
  return isWord ? QTextLayout::SkipWords : QTextLayout::SkipCharacters;
}

int BesidePosition(const QString& text, int position, InkCaretMove move) {
  const int begin = ParagraphStart(text, position);
  const int end = ParagraphEnd(text, position);
  if (IsLeft(move) && position == begin) return std::max(position - 1, 0);
  if (!IsLeft(move) && position == end)
    return std::min(position + 1, static_cast<int>(text.size()));
  const QTextLayout paragraph(text.mid(begin, end - begin));
  const int within = position - begin;
  return begin + (IsLeft(move) ? paragraph.previousCursorPosition(within, ModeOf(move))
                               : paragraph.nextCursorPosition(within, ModeOf(move)));
}

}  // namespace

int MovedCaret(const InkTextLayout& layout, const QString& text, int position, InkCaretMove move) {
  const int line = layout.LineOf(position);
  const auto end = static_cast<int>(text.size());
  switch (move) {
    case InkCaretMove::Up:
      return line == 0 ? 0 : BesideLine(layout, position, line - 1);
    case InkCaretMove::Down:
      return line + 1 >= layout.LineCount() ? end : BesideLine(layout, position, line + 1);
    case InkCaretMove::LineStart:
      return layout.LineBegin(line);
    case InkCaretMove::LineEnd:
      return layout.LineLast(line);
    case InkCaretMove::TextStart:
      return 0;
    case InkCaretMove::TextEnd:
      return end;
    default:
      return BesidePosition(text, position, move);
  }
}

}  // namespace quill
