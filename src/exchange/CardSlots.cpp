#include "exchange/CardSlots.h"

#include <algorithm>
#include <vector>

#include "exchange/CardFields.h"
#include "exchange/CardParts.h"
#include "store/ContactFields.h"

namespace quill {

namespace {

using Field = ContactField;

// In which turn a number chooses its field: those with a claim of their own before those that take
// what is left.
enum class Turn { Typed, Remainder, Untyped, Never };

struct NumberClaim {
  Turn When = Turn::Untyped;
  std::vector<Field> Fields;  // the first free one is taken
  const CardProperty* Property = nullptr;
  QString Number = {};
};

bool HasAny(const QStringList& types, std::initializer_list<QStringView> words) {
  return std::any_of(words.begin(), words.end(),
                     [&types](QStringView word) { return types.contains(word); });
}

// The fields of the numbers that are written with these types.
std::vector<Field> FieldsOf(QStringView types) {
  std::vector<Field> fields;
  for (const CardNumberRow& row : kCardNumbers) {
    if (row.Types == types) fields.push_back(row.Where);
  }
  return fields;
}

NumberClaim FaxClaim(const QStringList& types) {
  if (HasAny(types, {u"HOMEFAX", u"HOME"})) return {Turn::Typed, FieldsOf(u"HOME,FAX")};
  if (HasAny(types, {u"WORKFAX", u"WORK"})) return {Turn::Typed, FieldsOf(u"WORK,FAX")};
  return {Turn::Remainder, {Field::BusinessFaxNumber, Field::HomeFaxNumber}};
}

// The mobile numbers of Korea: 010 and its elders, with or without the country.
bool IsKoreanMobile(const QString& number) {
  QString digits = number;
  digits.removeIf([](QChar c) { return !c.isDigit() && c != u'+'; });
  if (digits.startsWith(u"+82")) {
    digits = digits.sliced(3);
    if (!digits.startsWith(u'0')) digits.prepend(u'0');
  }
  if (digits.size() < 10 || digits.size() > 11 || !digits.startsWith(u"01")) return false;
  return QStringView(u"016789").contains(digits.at(2));
}

NumberClaim UntypedClaim(const QString& number) {
  std::vector<Field> fields{Field::HomeTelephoneNumber,     Field::Home2TelephoneNumber,
                            Field::BusinessTelephoneNumber, Field::Business2TelephoneNumber,
                            Field::MobileTelephoneNumber,   Field::PagerNumber};
  // A mobile number looks for the two mobile fields first.
  if (IsKoreanMobile(number)) std::rotate(fields.begin(), fields.begin() + 4, fields.end());
  return {Turn::Untyped, fields};
}

NumberClaim ClaimOfTypes(const QStringList& types, const QString& number) {
  if (HasAny(types, {u"MODEM", u"ISDN", u"BBS"})) return {Turn::Never, {}};
  if (HasAny(types, {u"FAX", u"WORKFAX", u"HOMEFAX"})) return FaxClaim(types);
  if (HasAny(types, {u"CELL", u"MOBILE"})) return {Turn::Typed, FieldsOf(u"CELL")};
  if (HasAny(types, {u"CAR"})) return {Turn::Typed, FieldsOf(u"CAR")};
  if (HasAny(types, {u"PAGER"})) return {Turn::Remainder, {Field::PagerNumber}};
  if (HasAny(types, {u"WORK"})) return {Turn::Typed, FieldsOf(u"WORK,VOICE")};
  if (HasAny(types, {u"HOME"})) return {Turn::Typed, FieldsOf(u"HOME,VOICE")};
  return UntypedClaim(number);
}

NumberClaim ClaimOf(const CardProperty& property) {
  const QString number = NumberOf(property);
  NumberClaim claim = ClaimOfTypes(TypesOf(property), number);
  claim.Property = &property;
  claim.Number = number;
  return claim;
}

bool Put(ContactRecord& record, Field field, const QString& text) {
  if (!record[field].isEmpty()) return false;
  record[field] = text;
  return true;
}

// The field that the property names itself: written where an earlier field of its kind was empty.
template <typename Fields>
bool PutWhereNamed(const CardProperty& property, const Fields& fields, const QString& text,
                   ContactRecord& record) {
  const QString name = ParameterOf(property, kFieldParameter);
  const auto isNamed = [&name](Field field) { return FieldRow(field).Property == name; };
  const auto found = std::find_if(fields.begin(), fields.end(), isNamed);
  return found != fields.end() && Put(record, *found, text);
}

template <typename Fields>
bool PutInFirstFree(const Fields& fields, const QString& text, ContactRecord& record) {
  return std::any_of(fields.begin(), fields.end(),
                     [&](Field field) { return Put(record, field, text); });
}

template <typename Text>
void TakeEmpty(CardPool& pool, QStringView name, Text text) {
  for (const CardProperty* property : pool.All(name)) {
    if (text(*property).trimmed().isEmpty()) pool.Take(*property);
  }
}

constexpr int kAddressParts = 7;  // box, extension, street, city, state, postal code, country

bool IsFree(const ContactRecord& record, const CardAddressRow& row) {
  const AddressFields fields = AddressFieldsOf(row);
  return std::all_of(fields.begin(), fields.end(),
                     [&record](Field field) { return record[field].isEmpty(); });
}

const CardAddressRow& FreeRowFor(const CardProperty& address, const ContactRecord& record) {
  const QStringList types = TypesOf(address);
  const auto fits = [&](const CardAddressRow& row) {
    return row.Type.isEmpty() || (types.contains(row.Type) && IsFree(record, row));
  };
  return *std::find_if(kCardAddresses.begin(), kCardAddresses.end(), fits);
}

}  // namespace

QString NumberOf(const CardProperty& tel) {
  const QString text = TextOf(tel);
  return text.startsWith(u"tel:", Qt::CaseInsensitive) ? text.sliced(4) : text;
}

bool MayHaveField(const CardProperty& tel) { return ClaimOf(tel).When != Turn::Never; }

const CardAddressRow& AddressRowOf(const CardProperty& address) {
  const QStringList types = TypesOf(address);
  return *std::find_if(kCardAddresses.begin(), kCardAddresses.end(),
                       [&types](const CardAddressRow& row) {
                         return row.Type.isEmpty() || types.contains(row.Type);
                       });
}

QStringList AddressTexts(const CardProperty& address) {
  const QStringList parts = FixedPartsOf(address, kAddressParts);
  QStringList street = parts.first(3);
  street.removeAll(QString());
  return QStringList(street.join(u'\n')) + parts.sliced(3);
}

void PlaceNumbers(CardPool& pool, ContactRecord& record) {
  TakeEmpty(pool, u"TEL", NumberOf);
  for (const CardProperty* tel : pool.All(u"TEL")) {
    if (PutWhereNamed(*tel, kNumberFields, NumberOf(*tel), record)) pool.Take(*tel);
  }
  std::vector<NumberClaim> claims;
  for (const CardProperty* tel : pool.Preferred(u"TEL")) claims.push_back(ClaimOf(*tel));
  for (const Turn turn : {Turn::Typed, Turn::Remainder, Turn::Untyped}) {
    for (const NumberClaim& claim : claims) {
      if (claim.When != turn || !PutInFirstFree(claim.Fields, claim.Number, record)) continue;
      pool.Take(*claim.Property);
    }
  }
}

void PlaceEmails(CardPool& pool, ContactRecord& record) {
  TakeEmpty(pool, u"EMAIL", TextOf);
  for (const CardProperty* email : pool.All(u"EMAIL")) {
    if (PutWhereNamed(*email, kEmailFields, TextOf(*email), record)) pool.Take(*email);
  }
  for (const CardProperty* email : pool.Preferred(u"EMAIL")) {
    if (PutInFirstFree(kEmailFields, TextOf(*email), record)) pool.Take(*email);
  }
}

void PlaceAddresses(CardPool& pool, ContactRecord& record) {
  for (const CardProperty* address : pool.All(u"ADR")) {
    const QStringList texts = AddressTexts(*address);
    const CardAddressRow& row = FreeRowFor(*address, record);
    const bool isEmpty = texts.join(QString()).trimmed().isEmpty();
    if (!isEmpty && !IsFree(record, row)) continue;
    if (!isEmpty) FillEmpty(AddressFieldsOf(row), texts, record);
    pool.Take(*address);
  }
}

}  // namespace quill
