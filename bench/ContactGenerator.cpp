#include "ContactGenerator.h"

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

ContactItem ContactGenerator::Next() {
  ++m_made;
  ContactItem item;
  const ContactKind kind = KindAt(m_dice.Below(kKinds));
  if (kind == ContactKind::Latin) NameLatin(item.Record);
  if (kind == ContactKind::Hangul) NameHangul(item.Record);
  if (kind == ContactKind::Company) NameCompany(item.Record);
  if (kind == ContactKind::Number) {
    NameNumber(item.Record);
  } else {
    AddNumbers(item.Record);
    if (m_dice.OneIn(2)) AddBusinessAddress(item.Record);
  }
  const bool isPerson = kind == ContactKind::Latin || kind == ContactKind::Hangul;
  if (isPerson && m_dice.OneIn(3)) AddHomeAddress(item.Record);
  if (isPerson && m_dice.OneIn(4)) item.Record.Birthday = Birthday();
  AddCategories(item.Record);
  item.Uid = QStringLiteral("made-up-%1-%2").arg(m_seed).arg(m_made);
  return item;
}

void ContactGenerator::NameLatin(ContactRecord& record) {
  record[LastName] = LatinFamily();
  record[FirstName] = m_dice.Pick(kGivenNames);
  if (m_dice.OneIn(2)) record[MiddleName] = QString(QChar(u'A' + m_dice.Below(26))) + u'.';
  record[FileAs] = MakeFileAs(record);
  Employ(record);
}

// Korean names are written in one, the family's name first.
void ContactGenerator::NameHangul(ContactRecord& record) {
  record[LastName] = m_dice.Pick(kHangulFamilies);
  record[FirstName] = m_dice.Pick(kHangulBeginnings);
  record[FirstName] += m_dice.Pick(kHangulEndings);
  record[FileAs] = record[LastName] + record[FirstName];
  Employ(record);
}

void ContactGenerator::NameCompany(ContactRecord& record) {
  record[CompanyName] = Company();
  record[CompanyName] += u' ' + m_dice.Pick(kCities);
  record[FileAs] = record[CompanyName];
}

// A number that was kept in a hurry, or somebody who is filed under one.
void ContactGenerator::NameNumber(ContactRecord& record) {
  record[MobileTelephoneNumber] = QStringLiteral("010-000-") + m_dice.Digits(5);
  record[FileAs] = record[MobileTelephoneNumber];
  if (m_dice.OneIn(2)) return;
  record[FileAs] = m_dice.Pick(kServices);
  record[FileAs] += u' ' + m_dice.Pick(kCities);
}

QString ContactGenerator::LatinFamily() {
  if (m_dice.OneIn(4)) return m_dice.Pick(kFamilies);
  const QString beginning = m_dice.Pick(kFamilyBeginnings);
  return beginning + m_dice.Pick(kFamilyEndings);
}

QString ContactGenerator::Company() {
  QString name = m_dice.Pick(kCompanyBeginnings);
  name += u' ' + m_dice.Pick(kCompanyTrades);
  return name + u' ' + m_dice.Pick(kCompanyForms);
}

void ContactGenerator::Employ(ContactRecord& record) {
  if (m_dice.OneIn(3)) return;
  record[CompanyName] = Company();
  record[JobTitle] = m_dice.Pick(kJobTitles);
  if (m_dice.OneIn(2)) record[Department] = m_dice.Pick(kDepartments);
}

void ContactGenerator::AddNumbers(ContactRecord& record) {
  if (!m_dice.OneIn(5))
    record[MobileTelephoneNumber] = QStringLiteral("010-000-") + m_dice.Digits(5);
  if (!record[CompanyName].isEmpty())
    record[BusinessTelephoneNumber] = QStringLiteral("+44 20 7946 0") + m_dice.Digits(3);
  if (m_dice.OneIn(5))
    record[BusinessFaxNumber] = QStringLiteral("+44 20 7946 0") + m_dice.Digits(3);
  if (m_dice.OneIn(3)) record[HomeTelephoneNumber] = QStringLiteral("02-000-") + m_dice.Digits(4);
  const QString number = QString::number(m_made);
  if (!m_dice.OneIn(5)) record[Email1Address] = QStringLiteral("contact%1@example.org").arg(number);
  if (m_dice.OneIn(8)) record[Email2Address] = QStringLiteral("c%1@mail.example.com").arg(number);
}

void ContactGenerator::AddBusinessAddress(ContactRecord& record) {
  record[BusinessAddressStreet] = m_dice.Pick(kStreets);
  record[BusinessAddressStreet] += u' ' + QString::number(1 + m_dice.Below(200));
  record[BusinessAddressCity] = m_dice.Pick(kCities);
  record[BusinessAddressPostalCode] = m_dice.Digits(5);
  record[BusinessAddressCountry] = m_dice.Pick(kCountries);
}

void ContactGenerator::AddHomeAddress(ContactRecord& record) {
  record[HomeAddressStreet] = m_dice.Pick(kStreets);
  record[HomeAddressStreet] += u' ' + QString::number(1 + m_dice.Below(200));
  record[HomeAddressCity] = m_dice.Pick(kCities);
  record[HomeAddressPostalCode] = m_dice.Digits(5);
}

void ContactGenerator::AddCategories(ContactRecord& record) {
  const unsigned share = m_dice.Below(30);
  if (share < 10) return;
  QStringList names{m_dice.Pick(kCategories)};
  while (share < 13 && names.size() < 2) {
    const QString second = m_dice.Pick(kCategories);
    if (second != names.first()) names.append(second);
  }
  record[Categories] = JoinCategories(names);
}

CalendarDate ContactGenerator::Birthday() {
  CalendarDate date;
  date.Year = static_cast<quint16>(1930 + m_dice.Below(76));
  date.Month = static_cast<quint16>(1 + m_dice.Below(12));
  date.Day = static_cast<quint16>(1 + m_dice.Below(28));
  return date;
}

}  // namespace quill::bench
