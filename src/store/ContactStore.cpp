#include "store/ContactStore.h"

#include <utility>

#include "platform/Prompt.h"
#include "platform/Services.h"
#include "store/Restriction.h"
#include "store/StoreLog.h"

namespace quill {

ContactInkBlob g_contactInk;
StoreState g_store;

namespace {

ContactsFolder* Folder() { return g_store.Provider ? g_store.Provider->Contacts() : nullptr; }

QString StartupText(StartupCode step, int code) {
  return QStringLiteral("Error occurred [%1:%2]")
      .arg(static_cast<int>(step), 3, 10, QLatin1Char('0'))
      .arg(code);
}

StartupCode FailStartup(StoreProvider& provider, StartupCode step, int code) {
  const QString message = StartupText(step, code);
  qCWarning(storeLog).noquote() << message << provider.LastError();
  provider.Close();
  g_store = {};
  g_store.Message = message;
  // Only the first step is shown: intended.
  if (step == StartupCode::CreateFailed && g_services.Prompt) {
    g_services.Prompt->Show({.Text = message, .Icon = PromptIcon::Error});
  }
  return step;
}

ContactCollection EmptyCollection(ContactOrder order) {
  return {.Order = order,
          .Restriction = std::make_shared<const RestrictionNode>(
              RestrictionNode{.Kind = RestrictionKind::Or})};
}

Oid Resolve(ContactsFolder& folder, const ContactSelector& selector) {
  return selector.Collection ? folder.OidAt(*selector.Collection, selector.Position) : selector.Id;
}

}  // namespace

StartupCode OpenSession(StoreProvider& provider) {
  CloseSession();
  if (const int code = provider.Create()) {
    return FailStartup(provider, StartupCode::CreateFailed, code);
  }
  if (const int code = provider.Logon()) {
    return FailStartup(provider, StartupCode::LogonFailed, code);
  }
  if (const int code = provider.OpenFolder(FolderKind::Contacts)) {
    return FailStartup(provider, StartupCode::ContactsFolderFailed, code);
  }
  if (const int code = provider.OpenFolder(FolderKind::Calendar)) {
    return FailStartup(provider, StartupCode::CalendarFolderFailed, code);
  }
  g_store.Provider = &provider;
  g_store.ChangesSeen = provider.Changes();
  return StartupCode::Opened;
}

void CloseSession() {
  if (g_store.Provider) g_store.Provider->Close();
  g_store = {};
  g_contactInk = {};
}

ContactCollection AllContacts() {
  ContactsFolder* folder = Folder();
  return folder ? folder->Items() : EmptyCollection(ContactOrder::ByFileAs);
}

void SortContacts(ContactCollection& collection, ContactOrder order) {
  if (ContactsFolder* folder = Folder()) folder->Sort(collection, order);
}

ContactCollection RestrictContacts(const ContactCollection& collection,
                                   const QString& restriction) {
  ContactsFolder* folder = Folder();
  if (folder) {
    if (auto restricted = folder->Restrict(collection, restriction)) return std::move(*restricted);
    qCWarning(storeLog) << "Restriction failed:" << restriction;
  }
  return EmptyCollection(collection.Order);
}

int Count(const ContactCollection& collection) {
  ContactsFolder* folder = Folder();
  return folder ? folder->Count(collection) : 0;
}

Oid ReadContact(const ContactSelector& selector, ContactRecord& record) {
  g_contactInk = {};
  ContactsFolder* folder = Folder();
  if (!folder) return 0;
  const Oid oid = Resolve(*folder, selector);
  ContactItem item;
  if (oid == 0 || !folder->Read(oid, item)) return 0;
  record = std::move(item.Record);
  g_contactInk.Bytes = std::move(item.BodyInk);
  return oid;
}

Oid ReadListRow(const ContactSelector& selector, ContactRecord& record) {
  ContactsFolder* folder = Folder();
  if (!folder) return 0;
  const Oid oid = Resolve(*folder, selector);
  return oid != 0 && folder->ReadListRow(oid, record) ? oid : 0;
}

void ReadNewContactDefaults(ContactRecord& record) { record = {}; }

Oid WriteContact(Oid oid, const ContactRecord& record) {
  const ContactInkBlob ink = std::exchange(g_contactInk, {});
  ContactsFolder* folder = Folder();
  const Oid written = folder ? folder->Save(oid, record, ink.Bytes) : 0;
  if (folder && written == 0)
    qCWarning(storeLog) << "Contact" << oid << "not written:" << g_store.Provider->LastError();
  return written;
}

Oid CopyContact(Oid oid) {
  ContactsFolder* folder = Folder();
  ContactItem item;
  if (!folder || !folder->Read(oid, item)) return 0;
  item.Uid.clear();
  const Oid copy = folder->SaveWhole(0, item);
  if (copy == 0)
    qCWarning(storeLog) << "Contact" << oid << "not copied:" << g_store.Provider->LastError();
  return copy;
}

bool HasContact(Oid oid) {
  ContactsFolder* folder = Folder();
  return folder && folder->Has(oid);
}

bool DeleteContact(Oid oid) {
  ContactsFolder* folder = Folder();
  return folder && folder->Remove(oid);
}

bool DeleteContacts(const ContactCollection& collection) {
  ContactsFolder* folder = Folder();
  if (folder && folder->RemoveAll(collection)) return true;
  qCWarning(storeLog) << "Contacts not deleted";
  return false;
}

}  // namespace quill
