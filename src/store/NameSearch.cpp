#include "store/NameSearch.h"

#include "store/ContactFields.h"
#include "store/Restriction.h"

namespace quill {

namespace {

// Sorts behind every unit that a name may go on with.
constexpr QChar kLastUnit{0xFFFF};

QString Comparison(QStringView comparison, const QString& value) {
  return QStringLiteral("[%1] %2 ").arg(FieldRow(ContactField::FileAs).Property).arg(comparison) +
         QuoteRestrictionValue(value);
}

}  // namespace

std::optional<ContactCollection> FindByName(ContactsFolder& contacts,
                                            const ContactCollection& collection,
                                            const QString& name) {
  auto exact = contacts.Restrict(collection, Comparison(u"=", name));
  if (!exact || contacts.Count(*exact) > 0) return exact;
  return contacts.Restrict(collection, Comparison(u">=", name) + QStringLiteral(" AND ") +
                                           Comparison(u"<", name + kLastUnit));
}

}  // namespace quill
