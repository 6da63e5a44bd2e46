#include "cli/ListVerb.h"

#include "app/StoreOpening.h"
#include "cli/ContactPrinter.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

// Each row as it is read, so that a large store needs no more memory than a small one.
int PrintRows(ContactsFolder& contacts, ContactPrinter printer) {
  const ContactCollection all = contacts.Items();
  const int count = contacts.Count(all);
  for (int position = 1; position <= count; ++position) {
    const Oid oid = contacts.OidAt(all, position);
    ContactRecord record;
    // A contact may go while the list is printed.
    if (oid != 0 && contacts.ReadListRow(oid, record)) printer.Print(oid, record);
  }
  return printer.End();
}

}  // namespace

int RunList(const VerbCall& call, const Console& console) {
  PimStore store(call.Where.StoreFile, {.Access = StoreAccess::AtLeastReading});
  const StoreOpening opening(store, call.Where.StoreFile);
  if (!opening.Succeeded()) return Fail(console, opening.Problem());
  const PrintForm form = IsGiven(call, kJsonOption) ? PrintForm::Json : PrintForm::Names;
  const int exitCode = PrintRows(*store.Contacts(), {form, console.Out});
  if (exitCode == kExitPartly) Complain(console, QStringLiteral("there are no contacts yet"));
  return exitCode;
}

}  // namespace quill
