#include "exchange/CardMapper.h"

#include <QStringList>

#include <algorithm>

#include "exchange/CardFields.h"
#include "exchange/CardPool.h"
#include "exchange/CardRelations.h"
#include "exchange/CardSlots.h"
#include "store/CategoryText.h"
#include "store/FileAsName.h"

namespace quill {

namespace {

using Field = ContactField;

void PlaceTexts(CardPool& pool, ContactRecord& record) {
  for (const CardTextRow& row : kCardTexts) {
    const CardProperty* property = pool.First(row.Property);
    if (!property) continue;
    record[row.Where] = TextOf(*property);
    pool.Take(*property);
  }
}

void PlaceNames(CardPool& pool, ContactRecord& record) {
  const CardProperty* name = pool.First(u"N");
  if (!name) return;
  const QStringList parts = FixedPartsOf(*name, static_cast<int>(kNameParts.size()));
  for (std::size_t i = 0; i < kNameParts.size(); ++i) {
    record[kNameParts[i]] = parts.at(static_cast<qsizetype>(i));
  }
  pool.Take(*name);
}

void PlaceCompany(CardPool& pool, ContactRecord& record) {
  const CardProperty* organization = pool.First(u"ORG");
  if (!organization) return;
  QStringList parts = PartsOf(*organization, u';');
  record[Field::CompanyName] = parts.takeFirst();
  parts.removeAll(QString());
  record[Field::Department] = parts.join(u"; "_qs);
  pool.Take(*organization);
}

void PlaceCategories(CardPool& pool, ContactRecord& record) {
  QStringList names;
  for (const CardProperty* categories : pool.All(u"CATEGORIES")) {
    for (QString name : PartsOf(*categories, u',')) {
      // A comma separates names in the record.
      name = name.replace(u',', u' ').trimmed();
      if (!name.isEmpty() && !names.contains(name)) names.append(name);
    }
    pool.Take(*categories);
  }
  record[Field::Categories] = JoinCategories(names);
}

bool HasName(const ContactRecord& record) {
  return std::any_of(kNameParts.begin(), kNameParts.end(),
                     [&record](Field part) { return !record[part].trimmed().isEmpty(); });
}

// The first of the fields that has a text; empty when none has.
template <typename Fields>
QString FirstText(const Fields& fields, const ContactRecord& record) {
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [&record](Field field) { return !record[field].isEmpty(); });
  return found == fields.end() ? QString() : record[*found];
}

// A card without name parts names its person in FN alone; there FN may as well repeat the company,
// the filing name or an address, which then have their own field.
void PlaceFormattedName(const QString& formatted, ContactRecord& record) {
  if (HasName(record) || formatted == record[Field::CompanyName] ||
      formatted == record[Field::FileAs]) {
    return;
  }
  const bool isEmail = std::any_of(kEmailFields.begin(), kEmailFields.end(),
                                   [&](Field field) { return record[field] == formatted; });
  if (!isEmail) record[Field::FirstName] = formatted;
}

QString FileAsFor(const ContactRecord& record, const QString& formatted) {
  const QString candidates[] = {record[Field::FileAs], MakeFileAs(record).simplified(),
                                formatted.simplified(), FirstText(kEmailFields, record),
                                FirstText(kNumberFields, record)};
  for (const QString& candidate : candidates) {
    if (!candidate.isEmpty()) return candidate;
  }
  return {};
}

// After all other fields: what FN means depends on them.
void PlaceFiling(CardPool& pool, ContactRecord& record) {
  const CardProperty* property = pool.First(u"FN");
  const QString formatted = property ? TextOf(*property) : QString();
  if (!formatted.trimmed().isEmpty()) PlaceFormattedName(formatted, record);
  record[Field::FileAs] = FileAsFor(record, formatted);
  // A spoken name of its own has no field.
  if (property && formatted == FormattedName(record)) pool.Take(*property);
}

void PlaceBeyondRecord(CardPool& pool, ContactItem& item) {
  if (const CardProperty* uid = pool.First(u"UID")) {
    item.Uid = TextOf(*uid).trimmed();
    pool.Take(*uid);
  }
  if (const CardProperty* ink = pool.First(kInkProperty)) {
    item.BodyInk = BytesOf(*ink);
    if (!item.BodyInk.isEmpty()) pool.Take(*ink);
  }
}

}  // namespace

std::optional<ContactItem> ContactFromCard(const Card& card) {
  CardPool pool(card);
  ContactItem item;
  PlaceTexts(pool, item.Record);
  PlaceNames(pool, item.Record);
  PlaceCompany(pool, item.Record);
  PlaceNumbers(pool, item.Record);
  PlaceEmails(pool, item.Record);
  PlaceAddresses(pool, item.Record);
  PlaceCategories(pool, item.Record);
  PlaceRelatives(pool, item.Record);
  PlaceDays(pool, item.Record);
  PlaceFiling(pool, item.Record);
  PlaceBeyondRecord(pool, item);
  if (item.Record == ContactRecord{} && item.BodyInk.isEmpty()) return std::nullopt;
  for (const CardProperty* version : pool.All(u"VERSION")) pool.Take(*version);
  item.CarriedLines = pool.Rest();
  return item;
}

QString FormattedName(const ContactRecord& record) {
  QStringList parts;
  for (const Field part : kSpokenParts) parts.append(record[part]);
  parts.removeAll(QString());
  const QString name = parts.join(u' ');
  if (!name.isEmpty()) return name;
  const QString& company = record[Field::CompanyName];
  return company.isEmpty() ? record[Field::FileAs] : company;
}

}  // namespace quill
