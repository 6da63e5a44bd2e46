#include "exchange/CardMapper.h"

#include <QCryptographicHash>
#include <QSet>
#include <QStringList>

#include <algorithm>

#include "exchange/CardFields.h"
#include "exchange/CardParts.h"
#include "exchange/CardPool.h"
#include "exchange/CardRelations.h"
#include "exchange/CardSlots.h"
#include "store/CategoryText.h"
#include "store/FileAsName.h"

namespace quill {

namespace {

using Field = ContactField;

constexpr std::array kCompanyParts{Field::CompanyName, Field::Department};

// Of a contact: the store lists it under each. A line with more is carried.
constexpr qsizetype kMostCategories = 1000;

// True when the field has the text, after it was put there if need be.
bool PutOrHas(const QString& text, QString& field) {
  if (field.isEmpty()) field = text;
  return text.isEmpty() || field == text;
}

void PlaceTexts(CardPool& pool, ContactRecord& record) {
  for (const CardTextRow& row : kCardTexts) {
    for (const CardProperty* property : pool.All(row.Property)) {
      if (PutOrHas(TextOf(*property), record[row.Where])) pool.Take(*property);
    }
  }
}

// Only the first of its name is placed, and as a whole: half a name would make another person.
template <typename TextsOf>
void PlaceParts(CardPool& pool, QStringView name, FieldSpan fields, TextsOf textsOf,
                ContactRecord& record) {
  const auto properties = pool.All(name);
  if (properties.empty()) return;
  const QStringList first = textsOf(*properties.front());
  if (Agree(fields, first, record)) FillEmpty(fields, first, record);
  for (const CardProperty* property : properties) {
    if (HasAll(fields, textsOf(*property), record)) pool.Take(*property);
  }
}

QStringList NameTexts(const CardProperty& name) {
  return FixedPartsOf(name, static_cast<int>(kNameParts.size()));
}

QStringList CompanyTexts(const CardProperty& organization) {
  QStringList parts = PartsOf(organization, u';');
  const QString company = parts.takeFirst();
  parts.removeAll(QString());
  return {company, parts.join(u"; "_qs)};
}

void PlaceNames(CardPool& pool, ContactRecord& record) {
  PlaceParts(pool, u"N", kNameParts, NameTexts, record);
}

void PlaceCompany(CardPool& pool, ContactRecord& record) {
  PlaceParts(pool, u"ORG", kCompanyParts, CompanyTexts, record);
}

void PlaceCategories(CardPool& pool, ContactRecord& record) {
  QString& field = record[Field::Categories];
  QStringList names = SplitCategories(field);
  QSet<QString> known(names.begin(), names.end());
  const qsizetype before = names.size();
  for (const CardProperty* categories : pool.All(u"CATEGORIES")) {
    bool isPlaced = true;
    for (QString name : PartsOf(*categories, u',')) {
      // A comma separates names in the record.
      name = name.replace(u',', u' ').trimmed();
      const bool isName = !name.isEmpty() && name != kNoCategories;
      if (!isName || known.contains(name)) continue;
      isPlaced = names.size() < kMostCategories;
      if (!isPlaced) break;
      known.insert(name);
      names.append(name);
    }
    if (isPlaced) pool.Take(*categories);
  }
  if (names.size() > before) field = JoinCategories(names);
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

// After all other fields: what FN means depends on them. Returns it when the record does not say
// it.
const CardProperty* PlaceFiling(CardPool& pool, ContactRecord& record) {
  const CardProperty* property = pool.Leading(u"FN");
  const QString formatted = property ? TextOf(*property) : QString();
  if (!formatted.trimmed().isEmpty()) PlaceFormattedName(formatted, record);
  record[Field::FileAs] = FileAsFor(record, formatted);
  if (!property) return nullptr;
  pool.Take(*property);
  return formatted == FormattedName(record) ? nullptr : property;
}

void PlaceBeyondRecord(CardPool& pool, ContactItem& item) {
  for (const CardProperty* uid : pool.All(u"UID")) {
    if (PutOrHas(TextOf(*uid).trimmed(), item.Uid)) pool.Take(*uid);
  }
  for (const CardProperty* ink : pool.All(kInkProperty)) {
    const QByteArray bytes = BytesOf(*ink);
    if (item.BodyInk.isEmpty()) item.BodyInk = bytes;
    if (!bytes.isEmpty() && item.BodyInk == bytes) pool.Take(*ink);
  }
  for (const CardProperty* version : pool.All(u"VERSION")) pool.Take(*version);
}

}  // namespace

const CardProperty* PlaceProperties(CardPool& pool, ContactItem& item) {
  PlaceTexts(pool, item.Record);
  PlaceNames(pool, item.Record);
  PlaceCompany(pool, item.Record);
  PlaceNumbers(pool, item.Record);
  PlaceEmails(pool, item.Record);
  PlaceAddresses(pool, item.Record);
  PlaceCategories(pool, item.Record);
  PlaceRelatives(pool, item.Record);
  PlaceDays(pool, item.Record);
  const CardProperty* spokenName = PlaceFiling(pool, item.Record);
  PlaceBeyondRecord(pool, item);
  return spokenName;
}

std::optional<ContactItem> ContactFromCard(const Card& card) {
  CardPool pool(card);
  ContactItem item;
  const CardProperty* spokenName = PlaceProperties(pool, item);
  if (item.Record == ContactRecord{} && item.BodyInk.isEmpty()) return std::nullopt;
  if (spokenName) item.CarriedLines = CarriedSpokenName(*spokenName, item.Record);
  item.CarriedLines += pool.Rest();
  return item;
}

bool SaysFormattedName(const Card& card) {
  CardPool pool(card);
  const CardProperty* property = pool.First(u"FN");
  ContactRecord record;
  PlaceTexts(pool, record);
  PlaceNames(pool, record);
  PlaceCompany(pool, record);
  return property && TextOf(*property) == FormattedName(record);
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

QString CarriedSpokenName(const CardProperty& property, const ContactRecord& record) {
  QString line = CarriedLine(property);
  const auto isNameEnd = [](QChar c) { return c == u';' || c == u':'; };
  const auto nameEnd = std::find_if(line.cbegin(), line.cend(), isNameEnd);
  const QString mark = u";%1=%2"_qs.arg(kSpokenForParameter).arg(NameMark(record));
  return line.insert(nameEnd - line.cbegin(), mark) + u'\n';
}

QString NameMark(const ContactRecord& record) {
  const QByteArray name = FormattedName(record).toUtf8();
  return QString::fromLatin1(
      QCryptographicHash::hash(name, QCryptographicHash::Md5).toHex().first(8));
}

}  // namespace quill
