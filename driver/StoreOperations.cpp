// contacts, contact, put, drop-contact, categories: the store's back door.
#include <QJsonArray>

#include <algorithm>

#include "driver/Arguments.h"
#include "driver/ContactJson.h"
#include "driver/DropOperation.h"
#include "driver/Operations.h"
#include "driver/RawDates.h"
#include "driver/StoreNotice.h"

namespace quill::driver {

namespace {

using FolderAction = Answer (*)(const QJsonObject& arguments, ContactsFolder& folder,
                                OperationContext& context);

// An operation on the open contacts folder.
Handler OnFolder(FolderAction action) {
  return [action](const QJsonObject& arguments, OperationContext& context) {
    ContactsFolder* folder = context.Store.Contacts();
    return folder ? action(arguments, *folder, context) : Refusal(u"no store");
  };
}

Answer Contacts(const QJsonObject&, ContactsFolder& folder, OperationContext&) {
  QJsonArray array;
  const ContactCollection all = folder.Items();
  const int count = folder.Count(all);
  for (int position = 1; position <= count; ++position) {
    const Oid oid = folder.OidAt(all, position);
    ContactItem item;
    if (!folder.Read(oid, item)) return Refusal(u"not read");
    array.append(
        QJsonObject{{QStringLiteral("oid"), oid}, {QStringLiteral("fields"), FieldsJson(item)}});
  }
  return Result(u"contacts", array);
}

Answer Contact(const QJsonObject& arguments, ContactsFolder& folder, OperationContext& context) {
  const std::optional<int> oid = WholeNumber(arguments, u"oid");
  if (!oid) return Refusal(kMalformed);
  ContactItem item;
  if (!folder.Read(*oid, item)) return Refusal(kUnknown);
  QJsonObject fields = FieldsJson(item);
  if (IsSet(arguments, u"raw")) {
    const QJsonObject dates = ReadRawDates(context.StoreFile, *oid);
    for (auto date = dates.begin(); date != dates.end(); ++date)
      fields.insert(date.key(), date.value());
  }
  return Result(u"fields", fields);
}

Answer Put(const QJsonObject& arguments, ContactsFolder& folder, OperationContext& context) {
  const Oid oid = WholeNumber(arguments, u"oid").value_or(0);
  const QJsonObject fields = arguments.value(u"fields").toObject();
  ContactItem item;
  if (oid != 0) {
    if (!folder.Read(oid, item)) return Refusal(kUnknown);
    KeepStoredDates(fields, item.Record);
  }
  if (!PutFields(fields, item)) return Refusal(kMalformed);
  const Oid written = folder.SaveWhole(oid, item);
  if (written == 0) return Refusal(u"not written");
  NotifyUnlessQuiet(arguments, context);
  return Result(u"oid", written);
}

std::optional<QStringList> NamesIn(const QJsonValue& value) {
  const QJsonArray array = value.toArray();
  const bool isTexts =
      value.isArray() &&
      std::all_of(array.begin(), array.end(), [](const auto& name) { return name.isString(); });
  if (!isTexts) return std::nullopt;
  QStringList names;
  for (const auto& name : array) names.append(name.toString());
  return names;
}

Answer Categories(const QJsonObject& arguments, OperationContext& context) {
  CategoryLibrary* library = context.Store.Categories();
  if (!library) return Refusal(u"no store");
  if (arguments.contains(u"names")) {
    const auto names = NamesIn(arguments.value(u"names"));
    if (!names) return Refusal(kMalformed);
    if (!library->SetNames(*names)) return Refusal(u"not written");
    NotifyUnlessQuiet(arguments, context);
  }
  return Result(u"categories", QJsonArray::fromStringList(library->Names()));
}

}  // namespace

OperationTable StoreOperations() {
  return {
      {u"contacts", OnFolder(Contacts)}, {u"contact", OnFolder(Contact)},
      {u"put", OnFolder(Put)},           {u"drop-contact", OnFolder(DropItem<ContactsFolder>)},
      {u"categories", Categories},
  };
}

}  // namespace quill::driver
