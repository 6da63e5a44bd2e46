#include "platform/TextFitting.h"

namespace quill {

namespace {

bool IsLineBreak(QChar unit) { return unit == u'\r' || unit == u'\n'; }

bool SplitsSurrogatePair(QStringView text, qsizetype at) {
  return at > 0 && text[at].isLowSurrogate() && text[at - 1].isHighSurrogate();
}

}  // namespace

QString ShortenText(const QString& text, double limit, const TextWidth& width) {
  if (width(text) <= limit) return text;
  for (qsizetype length = 0; length < text.size(); ++length) {
    const QStringView prefix = QStringView(text).first(length);
    if (IsLineBreak(text[length])) return prefix.toString();
    if (SplitsSurrogatePair(text, length)) continue;
    if (width(prefix) >= limit) return prefix.toString() + QStringLiteral("...");
  }
  // Only the last character crosses the limit: intended to stay whole.
  return text;
}

}  // namespace quill
