// Fitting a text into a column.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>

namespace quill {

// The width of a text in logical pixels in the font that the painter uses.
using TextWidth = std::function<double(QStringView)>;

// The text as a column of this width shows it. A text that is wider ends at its first line break,
// or with "..." after the first beginning that is not narrower than the limit; what it returns is
// therefore somewhat wider than the limit, which is intended: painters clip. A surrogate pair
// counts as one character. A text that is not wider is returned unchanged, line breaks included.
QString ShortenText(const QString& text, double limit, const TextWidth& width);

// The text's first units, as many as this at most: a surrogate pair at the end stays whole or goes.
QString CutText(const QString& text, qsizetype units);

// The text with a blank for each carriage return and line feed.
QString OnOneLine(QString text);

// The text as lines that are not wider than the limit: broken at its own line breaks, at blanks,
// which go with the break, and inside a word only where the word alone is too wide. Every line
// keeps at least one character. An empty text has no line.
QStringList WrapLines(const QString& text, double limit, const TextWidth& width);

// The same so that all of it can be seen: the longest beginning that with "..." behind it is not
// wider than the limit. Line breaks do not count.
QString ElideText(const QString& text, double limit, const TextWidth& width);

}  // namespace quill
