#include "cli/ListVerb.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include "app/StoreOpening.h"
#include "store/ContactFields.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

// On one line, whatever the name holds.
QString PlainLine(QString name) {
  std::replace_if(
      name.begin(), name.end(), [](QChar each) { return each.category() == QChar::Other_Control; },
      QChar(u' '));
  return name;
}

QByteArray JsonLine(Oid oid, const ContactRecord& record) {
  QJsonObject object{{QStringLiteral("Oid"), oid}};
  for (const ContactFieldRow& row : kContactFields) {
    if (!record[row.Field].isEmpty()) object.insert(row.Property.toString(), record[row.Field]);
  }
  return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Each row as it is read, so that a large store needs no more memory than a small one.
bool PrintRows(ContactsFolder& contacts, const VerbCall& call, QTextStream& out) {
  const bool asJson = IsGiven(call, kJsonOption);
  const ContactCollection all = contacts.Items();
  const int count = contacts.Count(all);
  bool isFirst = true;
  for (int position = 1; position <= count; ++position) {
    const Oid oid = contacts.OidAt(all, position);
    ContactRecord record;
    // A contact may go while the list is printed.
    if (oid == 0 || !contacts.ReadListRow(oid, record)) continue;
    if (asJson) {
      out << (isFirst ? "[\n" : ",\n") << JsonLine(oid, record);
    } else {
      out << PlainLine(record[ContactField::FileAs]) << '\n';
    }
    isFirst = false;
  }
  if (asJson) out << (isFirst ? "[]\n" : "\n]\n");
  out.flush();
  return !isFirst;
}

}  // namespace

int RunList(const VerbCall& call, const Console& console) {
  PimStore store(call.Where.StoreFile);
  const StoreOpening opening(store);
  if (!opening.Succeeded()) {
    Complain(console, opening.Problem());
    return kExitFailed;
  }
  return PrintRows(*store.Contacts(), call, console.Out) ? kExitDone : kExitPartly;
}

}  // namespace quill
