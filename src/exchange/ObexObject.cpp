#include "exchange/ObexObject.h"

#include <QBuffer>

#include <algorithm>
#include <iterator>

#include "exchange/CardName.h"
#include "exchange/CardReader.h"
#include "platform/TextFitting.h"

namespace quill {

namespace {

constexpr qsizetype kLongestLabel = 60;  // UTF-16 units

bool BeginsLikeCard(QBuffer& file) {
  ByteLines lines(file);
  ByteLine line;
  while (lines.Next(line)) {
    if (!line.Bytes.trimmed().isEmpty()) return IsBegin(line.Bytes);
  }
  return false;
}

bool IsNamedLikeCard(const QString& name) {
  return name.endsWith(u".vcf", Qt::CaseInsensitive) ||
         name.endsWith(u".vcard", Qt::CaseInsensitive);
}

bool IsShown(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return false;
    default:
      return true;
  }
}

void CountCards(QBuffer& file, ObexObject& object, int mostCards) {
  // Declared character sets are read as they are; of others only the name could be wrong.
  CardReader reader(file, {"windows-1252"});
  Card card;
  while (object.Cards <= mostCards && reader.Next(card)) {
    ++object.Cards;
    if (object.Cards > 1) continue;
    object.Person = ObexLabel(card.Name.isEmpty() ? CardName(card.Properties) : card.Name);
  }
}

}  // namespace

std::optional<ObexObject> CardObject(const QString& name, const QByteArray& bytes, int mostCards) {
  QBuffer file;
  file.setData(bytes);
  file.open(QIODevice::ReadOnly);
  if (!BeginsLikeCard(file) && !IsNamedLikeCard(name)) return std::nullopt;
  file.seek(0);
  ObexObject object{ObexLabel(name), {}, bytes};
  CountCards(file, object, mostCards);
  if (object.Cards == 0) return std::nullopt;
  return object;
}

QString ObexLabel(const QString& name) {
  // Halves of characters do not survive the way there and back.
  const QString line = QString::fromUtf8(name.toUtf8()).simplified();
  QString label;
  std::copy_if(line.begin(), line.end(), std::back_inserter(label), IsShown);
  return CutText(label.trimmed(), kLongestLabel);
}

}  // namespace quill
