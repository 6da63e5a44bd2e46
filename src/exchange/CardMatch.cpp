#include "exchange/CardMatch.h"

#include <QStringList>

#include <algorithm>

#include "exchange/CardSlots.h"

namespace quill {

namespace {

QString NumberKey(const QString& number) {
  QString digits = number;
  digits.removeIf([](QChar c) { return !c.isDigit(); });
  return digits.isEmpty() ? number.trimmed() : digits;
}

QString EmailKey(const QString& email) { return email.trimmed().toLower(); }

template <typename Fields, typename Key>
bool ShareOne(const Fields& fields, Key key, const ContactRecord& a, const ContactRecord& b) {
  QStringList keys;
  for (const ContactField field : fields) keys.append(key(a[field]));
  keys.removeAll(QString());
  return std::any_of(fields.begin(), fields.end(),
                     [&](ContactField field) { return keys.contains(key(b[field])); });
}

bool IsSamePerson(const ContactRecord& a, const ContactRecord& b) {
  return ShareOne(kNumberFields, NumberKey, a, b) || ShareOne(kEmailFields, EmailKey, a, b) ||
         a == b;
}

}  // namespace

Oid FindSameContact(ContactsFolder& contacts, const ContactItem& item) {
  if (!item.Uid.isEmpty()) {
    const std::vector<Oid> known = contacts.FindByUid(item.Uid);
    if (!known.empty()) return known.front();
  }
  for (const Oid oid : contacts.FindByFileAs(item.Record[ContactField::FileAs])) {
    ContactItem known;
    if (contacts.Read(oid, known) && IsSamePerson(item.Record, known.Record)) return oid;
  }
  return 0;
}

}  // namespace quill
