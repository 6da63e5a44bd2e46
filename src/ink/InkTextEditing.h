// Changing typed text as a value. Positions are UTF-16 units from 0.
#pragma once

#include "ink/InkFormat.h"

namespace quill {

// The text with the part from one position up to, not including, another replaced. What is new
// looks as what stands before it, at the very beginning as what follows. The soft breaks of the
// paragraphs that it touches are dropped, all others stay with their words. What would make the
// text longer than kLongestInkText is left out at the end of what is new.
InkText ReplaceInkText(const InkText& text, int from, int to, QString with);

// A part of the text as a text of its own.
InkText SliceInkText(const InkText& text, int from, int to);

// The paragraph around a position, without its line end: from its first unit up to its LF or the
// text's end.
int ParagraphStart(const QString& text, int position);
int ParagraphEnd(const QString& text, int position);

}  // namespace quill
