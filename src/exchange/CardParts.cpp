#include "exchange/CardParts.h"

#include <algorithm>

namespace quill {

bool Agree(FieldSpan fields, const QStringList& texts, const ContactRecord& record) {
  return std::equal(fields.begin(), fields.end(), texts.begin(),
                    [&record](ContactField field, const QString& text) {
                      return text.isEmpty() || record[field].isEmpty() || record[field] == text;
                    });
}

bool HasAll(FieldSpan fields, const QStringList& texts, const ContactRecord& record) {
  return std::equal(fields.begin(), fields.end(), texts.begin(),
                    [&record](ContactField field, const QString& text) {
                      return text.isEmpty() || record[field] == text;
                    });
}

bool HasOne(FieldSpan fields, const QStringList& texts, const ContactRecord& record) {
  return !std::equal(fields.begin(), fields.end(), texts.begin(),
                     [&record](ContactField field, const QString& text) {
                       return text.isEmpty() || record[field] != text;
                     });
}

void FillEmpty(FieldSpan fields, const QStringList& texts, ContactRecord& record) {
  qsizetype position = 0;
  for (const ContactField field : fields) {
    if (record[field].isEmpty()) record[field] = texts.at(position);
    ++position;
  }
}

}  // namespace quill
