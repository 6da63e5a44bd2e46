#include "exchange/CharsetProbe.h"

#include "exchange/CardLines.h"
#include "exchange/CardProperty.h"

namespace quill {

namespace {

bool NeedsChoice(const QByteArray& line, bool isUnicode) {
  const bool isQuoted = line.contains('=');  // bytes may hide in quoted-printable
  if (!isQuoted && line.isValidUtf8()) return false;
  const auto property = ParseProperty(line, {.IsUnicode = isUnicode});
  return property && property->IsGuessed;
}

}  // namespace

std::optional<QByteArray> FindUndeclaredText(QIODevice& device) {
  CardLines lines(device);
  ByteLine line;
  while (lines.Next(line)) {
    if (!line.IsCut && NeedsChoice(line.Bytes, lines.Source().IsUnicode())) return line.Bytes;
  }
  return std::nullopt;
}

QString TextInCharset(const QByteArray& line, const QByteArray& charset) {
  const auto property = ParseProperty(line, {.Fallback = charset});
  if (!property) return {};
  QStringList parts = PartsOf(*property, u';');
  parts.removeAll(QString());
  return parts.join(u' ').simplified();
}

}  // namespace quill
