#include "cli/AskedContact.h"

#include "app/StoreOpening.h"
#include "store/NameSearch.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

struct NamedContacts {
  QString First;  // its whole name; empty: nobody is meant
  int Count = 0;
};

NamedContacts Find(const QString& name, const Places& places) {
  PimStore store(places.StoreFile, {.Access = StoreAccess::AtLeastReading});
  const StoreOpening opening(store);
  ContactsFolder* contacts = opening.Succeeded() ? store.Contacts() : nullptr;
  if (!contacts) return {};
  const auto found = FindByName(*contacts, contacts->Items(), name);
  ContactRecord record;
  if (!found || !contacts->ReadListRow(contacts->OidAt(*found, 1), record)) return {};
  return {record[ContactField::FileAs], contacts->Count(*found)};
}

}  // namespace

Request WithWholeName(const Request& request, const Places& places, const Console& console) {
  if (request.Kind != RequestKind::Show) return request;
  const NamedContacts named = Find(request.Text, places);
  if (named.Count == 0) return request;
  if (named.Count > 1)
    Complain(console, QStringLiteral("%1 contacts are meant by \"%2\"; the first is \"%3\"")
                          .arg(named.Count)
                          .arg(request.Text, named.First));
  return {RequestKind::Show, named.First, {}};
}

}  // namespace quill
