#include "platform/TextFitting.h"

#include <optional>

namespace quill {

namespace {

bool IsLineBreak(QChar unit) { return unit == u'\r' || unit == u'\n'; }

bool SplitsSurrogatePair(QStringView text, qsizetype at) {
  return at > 0 && text[at].isLowSurrogate() && text[at - 1].isHighSurrogate();
}

constexpr qsizetype kMeasuredFirst = 64;

// The length of a beginning that is wider than the limit; nothing where the whole text is not. Only
// as much of a long text is measured as it takes.
std::optional<qsizetype> WiderBeginning(QStringView text, double limit, const TextWidth& width) {
  for (qsizetype length = kMeasuredFirst; length < text.size(); length *= 2)
    if (width(text.first(length)) > limit) return length;
  return width(text) > limit ? std::optional(text.size()) : std::nullopt;
}

// How many units of the text fit, at least one character.
qsizetype FittingLength(QStringView text, double limit, const TextWidth& width) {
  qsizetype fitting = 0;
  for (qsizetype length = 1; length <= text.size(); ++length) {
    if (length < text.size() && SplitsSurrogatePair(text, length)) continue;
    if (fitting > 0 && width(text.first(length)) > limit) break;
    fitting = length;
  }
  return fitting;
}

// The end of the text's first line: before a blank if there is one.
qsizetype LineEnd(QStringView text, double limit, const TextWidth& width) {
  const qsizetype fitting = FittingLength(text, limit, width);
  if (fitting == text.size() || text[fitting] == u' ') return fitting;
  const qsizetype blank = text.first(fitting).lastIndexOf(u' ');
  return blank > 0 ? blank : fitting;
}

QStringView WithoutBlanksBefore(QStringView text) {
  while (text.startsWith(u' ')) text = text.sliced(1);
  return text;
}

void AppendWrapped(QStringView paragraph, double limit, const TextWidth& width,
                   QStringList& lines) {
  do {
    const qsizetype end = LineEnd(paragraph, limit, width);
    lines.append(paragraph.first(end).toString());
    paragraph = WithoutBlanksBefore(paragraph.sliced(end));
  } while (!paragraph.isEmpty());
}

}  // namespace

QString CutText(const QString& text, qsizetype units) {
  if (text.size() <= units) return text;
  return text.first(SplitsSurrogatePair(text, units) ? units - 1 : units);
}

QString ShortenText(const QString& text, double limit, const TextWidth& width) {
  if (!WiderBeginning(text, limit, width)) return text;
  for (qsizetype length = 0; length < text.size(); ++length) {
    const QStringView prefix = QStringView(text).first(length);
    if (IsLineBreak(text[length])) return prefix.toString();
    if (SplitsSurrogatePair(text, length)) continue;
    if (width(prefix) >= limit) return prefix.toString() + QStringLiteral("...");
  }
  // Only the last character crosses the limit: intended to stay whole.
  return text;
}

QString OnOneLine(QString text) { return text.replace(u'\r', u' ').replace(u'\n', u' '); }

QStringList WrapLines(const QString& text, double limit, const TextWidth& width) {
  QStringList lines;
  if (text.isEmpty()) return lines;
  QString plain = text;
  plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  for (const QString& paragraph : plain.split(u'\n')) AppendWrapped(paragraph, limit, width, lines);
  return lines;
}

QString ElideText(const QString& text, double limit, const TextWidth& width) {
  const auto wider = WiderBeginning(text, limit, width);
  if (!wider) return text;
  const auto elided = [&text](qsizetype length) {
    return text.first(SplitsSurrogatePair(text, length) ? length - 1 : length) +
           QStringLiteral("...");
  };
  qsizetype fitting = 0;
  qsizetype tooLong = *wider;
  while (tooLong - fitting > 1) {
    const qsizetype middle = fitting + (tooLong - fitting) / 2;
    (width(elided(middle)) <= limit ? fitting : tooLong) = middle;
  }
  return elided(fitting);
}

}  // namespace quill
