// Which number, e-mail or postal address of a card goes to which field of the record. A field that
// has a text keeps it; what finds no free field stays in the pool.
#pragma once

#include <array>

#include "exchange/CardFields.h"
#include "exchange/CardPool.h"
#include "store/ContactRecord.h"

namespace quill {

inline constexpr std::array kNumberFields{
    ContactField::BusinessTelephoneNumber, ContactField::Business2TelephoneNumber,
    ContactField::BusinessFaxNumber,       ContactField::HomeTelephoneNumber,
    ContactField::Home2TelephoneNumber,    ContactField::HomeFaxNumber,
    ContactField::MobileTelephoneNumber,   ContactField::PagerNumber,
    ContactField::CarTelephoneNumber,      ContactField::RadioTelephoneNumber};

// Street, city, state, postal code, country.
using AddressFields = std::array<ContactField, 5>;
constexpr AddressFields AddressFieldsOf(const CardAddressRow& row) {
  return {row.Street, row.City, row.State, row.PostalCode, row.Country};
}

// The number itself: of a "tel:" URI what follows the scheme.
QString NumberOf(const CardProperty& tel);
// False for the numbers of machines, which are only carried.
bool MayHaveField(const CardProperty& tel);

// Where an address of its type belongs, and its texts in the order of AddressFields.
const CardAddressRow& AddressRowOf(const CardProperty& address);
QStringList AddressTexts(const CardProperty& address);

void PlaceNumbers(CardPool& pool, ContactRecord& record);
void PlaceEmails(CardPool& pool, ContactRecord& record);
void PlaceAddresses(CardPool& pool, ContactRecord& record);

}  // namespace quill
