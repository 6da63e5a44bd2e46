#include "exchange/CharsetProbe.h"

#include "exchange/CardLines.h"
#include "exchange/CardProperty.h"

namespace quill {

namespace {

QString ValueIn(const QByteArray& line, const CardCharset& charset) {
  const auto property = ParseProperty(line, charset);
  return property ? property->Value : QString();
}

// Where the fallback decides, what is no UTF-8 reads differently in this one.
bool NeedsChoice(const QByteArray& line, bool isUnicode) {
  const bool isQuoted = line.contains('=');  // bytes may hide in quoted-printable
  if (!isQuoted && line.isValidUtf8()) return false;
  return ValueIn(line, {.Fallback = "UTF-8", .IsUnicode = isUnicode}) !=
         ValueIn(line, {.Fallback = "windows-1252", .IsUnicode = isUnicode});
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
