#include "ContactGenerator.h"

#include <array>

#include "ContactWords.h"
#include "store/CategoryText.h"
#include "store/FileAsName.h"

namespace quill::bench {

namespace {

using enum ContactField;

enum class ContactKind { Latin, Hangul, Company, Number };

// Of eighteen contacts nine are Latin, six Hangul, two companies and one a number.
constexpr unsigned kKinds = 18;
constexpr ContactKind KindAt(unsigned index) {
  if (index < 9) return ContactKind::Latin;
  if (index < 15) return ContactKind::Hangul;
  return index < 17 ? ContactKind::Company : ContactKind::Number;
}

}  // namespace

std::span<const QStringView> GeneratedCategories() { return kCategories; }

// Not one of the library's distributions: these give other numbers elsewhere.
unsigned ContactGenerator::Below(unsigned limit) {
  return static_cast<unsigned>(m_random() % limit);
}

bool ContactGenerator::OneIn(unsigned count) { return Below(count) == 0; }

QString ContactGenerator::Pick(std::span<const QStringView> words) {
  return words[Below(static_cast<unsigned>(words.size()))].toString();
}

QString ContactGenerator::Digits(int count) {
  QString digits;
  for (int i = 0; i < count; ++i) digits += QChar(u'0' + Below(10));
  return digits;
}

// What is drawn one after the other stands in statements of its own: within one, the order is the
// compiler's.
ContactItem ContactGenerator::Next() {
  ++m_made;
  ContactItem item;
  const ContactKind kind = KindAt(Below(kKinds));
  if (kind == ContactKind::Latin) NameLatin(item.Record);
  if (kind == ContactKind::Hangul) NameHangul(item.Record);
  if (kind == ContactKind::Company) NameCompany(item.Record);
  if (kind == ContactKind::Number) {
    NameNumber(item.Record);
  } else {
    AddNumbers(item.Record);
    if (OneIn(2)) AddBusinessAddress(item.Record);
  }
  const bool isPerson = kind == ContactKind::Latin || kind == ContactKind::Hangul;
  if (isPerson && OneIn(3)) AddHomeAddress(item.Record);
  if (isPerson && OneIn(4)) item.Record.Birthday = Birthday();
  AddCategories(item.Record);
  item.Uid = QStringLiteral("made-up-%1-%2").arg(m_seed).arg(m_made);
  return item;
}

void ContactGenerator::NameLatin(ContactRecord& record) {
  record[LastName] = LatinFamily();
  record[FirstName] = Pick(kGivenNames);
  if (OneIn(2)) record[MiddleName] = QString(QChar(u'A' + Below(26))) + u'.';
  record[FileAs] = MakeFileAs(record);
  Employ(record);
}

// Korean names are written in one, the family's name first.
void ContactGenerator::NameHangul(ContactRecord& record) {
  record[LastName] = Pick(kHangulFamilies);
  record[FirstName] = Pick(kHangulBeginnings);
  record[FirstName] += Pick(kHangulEndings);
  record[FileAs] = record[LastName] + record[FirstName];
  Employ(record);
}

void ContactGenerator::NameCompany(ContactRecord& record) {
  record[CompanyName] = Company();
  record[CompanyName] += u' ' + Pick(kCities);
  record[FileAs] = record[CompanyName];
}

// A number that was kept in a hurry, or somebody who is filed under one.
void ContactGenerator::NameNumber(ContactRecord& record) {
  record[MobileTelephoneNumber] = QStringLiteral("010-000-") + Digits(5);
  record[FileAs] = record[MobileTelephoneNumber];
  if (OneIn(2)) return;
  record[FileAs] = Pick(kServices);
  record[FileAs] += u' ' + Pick(kCities);
}

QString ContactGenerator::LatinFamily() {
  if (OneIn(4)) return Pick(kFamilies);
  const QString beginning = Pick(kFamilyBeginnings);
  return beginning + Pick(kFamilyEndings);
}

QString ContactGenerator::Company() {
  QString name = Pick(kCompanyBeginnings);
  name += u' ' + Pick(kCompanyTrades);
  return name + u' ' + Pick(kCompanyForms);
}

void ContactGenerator::Employ(ContactRecord& record) {
  if (OneIn(3)) return;
  record[CompanyName] = Company();
  record[JobTitle] = Pick(kJobTitles);
  if (OneIn(2)) record[Department] = Pick(kDepartments);
}

void ContactGenerator::AddNumbers(ContactRecord& record) {
  if (!OneIn(5)) record[MobileTelephoneNumber] = QStringLiteral("010-000-") + Digits(5);
  if (!record[CompanyName].isEmpty())
    record[BusinessTelephoneNumber] = QStringLiteral("+44 20 7946 0") + Digits(3);
  if (OneIn(5)) record[BusinessFaxNumber] = QStringLiteral("+44 20 7946 0") + Digits(3);
  if (OneIn(3)) record[HomeTelephoneNumber] = QStringLiteral("02-000-") + Digits(4);
  const QString number = QString::number(m_made);
  if (!OneIn(5)) record[Email1Address] = QStringLiteral("contact%1@example.org").arg(number);
  if (OneIn(8)) record[Email2Address] = QStringLiteral("c%1@mail.example.com").arg(number);
}

void ContactGenerator::AddBusinessAddress(ContactRecord& record) {
  record[BusinessAddressStreet] = Pick(kStreets);
  record[BusinessAddressStreet] += u' ' + QString::number(1 + Below(200));
  record[BusinessAddressCity] = Pick(kCities);
  record[BusinessAddressPostalCode] = Digits(5);
  record[BusinessAddressCountry] = Pick(kCountries);
}

void ContactGenerator::AddHomeAddress(ContactRecord& record) {
  record[HomeAddressStreet] = Pick(kStreets);
  record[HomeAddressStreet] += u' ' + QString::number(1 + Below(200));
  record[HomeAddressCity] = Pick(kCities);
  record[HomeAddressPostalCode] = Digits(5);
}

void ContactGenerator::AddCategories(ContactRecord& record) {
  const unsigned share = Below(30);
  if (share < 10) return;
  QStringList names{Pick(kCategories)};
  while (share < 13 && names.size() < 2) {
    const QString second = Pick(kCategories);
    if (second != names.first()) names.append(second);
  }
  record[Categories] = JoinCategories(names);
}

CalendarDate ContactGenerator::Birthday() {
  CalendarDate date;
  date.Year = static_cast<quint16>(1930 + Below(76));
  date.Month = static_cast<quint16>(1 + Below(12));
  date.Day = static_cast<quint16>(1 + Below(28));
  return date;
}

}  // namespace quill::bench
