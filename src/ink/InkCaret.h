// How a caret moves through laid-out text. Positions are UTF-16 units from 0.
#pragma once

#include "ink/InkTextLayout.h"

namespace quill {

enum class InkCaretMove {
  Left,
  Right,
  WordLeft,
  WordRight,
  Up,
  Down,
  LineStart,
  LineEnd,
  TextStart,
  TextEnd,
};

// Where a move from a position leads; the text is the one that is laid out.
int MovedCaret(const InkTextLayout& layout, const QString& text, int position, InkCaretMove move);

}  // namespace quill
