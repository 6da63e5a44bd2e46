#include "cli/ShowVerb.h"

#include "app/StoreOpening.h"
#include "cli/ContactPrinter.h"
#include "store/NameSearch.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

int PrintFound(ContactsFolder& contacts, const ContactCollection& found, ContactPrinter printer) {
  const int count = contacts.Count(found);
  for (int position = 1; position <= count; ++position) {
    const Oid oid = contacts.OidAt(found, position);
    ContactItem item;
    // A contact may go while the others are printed.
    if (oid != 0 && contacts.Read(oid, item)) printer.Print(oid, item.Record);
  }
  return printer.End();
}

}  // namespace

int RunShow(const VerbCall& call, const Console& console) {
  const QString& name = call.Arguments.first();
  if (name.isEmpty()) return Fail(console, QStringLiteral("show needs a name"));
  PimStore store(call.Where.StoreFile, {.Access = StoreAccess::AtLeastReading});
  const StoreOpening opening(store, call.Where.StoreFile);
  ContactsFolder* contacts = opening.Succeeded() ? store.Contacts() : nullptr;
  const auto found = contacts ? FindByName(*contacts, contacts->Items(), name)
                              : std::optional<ContactCollection>();
  if (!found) return Fail(console, contacts ? store.LastError() : opening.Problem());
  const PrintForm form = IsGiven(call, kJsonOption) ? PrintForm::Json : PrintForm::Records;
  const int exitCode = PrintFound(*contacts, *found, {form, console.Out});
  if (exitCode == kExitPartly)
    Complain(console, QStringLiteral("there is no contact \"%1\"").arg(name));
  return exitCode;
}

}  // namespace quill
