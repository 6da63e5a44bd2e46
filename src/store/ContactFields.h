// The field table: one row for each text of a contact, in the record's order, with the name of the
// store's property and what the store does with it. Reading, list rows, write-back and the columns
// of the store all loop over it; a new field is a new row (and a new enumerator at its place).
#pragma once

#include <QStringView>

#include <array>

#include "store/ContactRecord.h"

namespace quill {

enum class ContactFieldUse : unsigned {
  None = 0,
  WrittenBack = 1,  // an edit puts it back; without it the store's value survives every edit
  InListRow = 2,    // a list row carries it
  Both = 3,
};

struct ContactFieldRow {
  ContactField Field;
  QStringView Property;
  ContactFieldUse Use;

  constexpr bool WrittenBack() const { return static_cast<unsigned>(Use) & 1U; }
  constexpr bool InListRow() const { return static_cast<unsigned>(Use) & 2U; }
};

namespace detail {
using enum ContactField;
inline constexpr auto kNone = ContactFieldUse::None;
inline constexpr auto kEdit = ContactFieldUse::WrittenBack;
inline constexpr auto kList = ContactFieldUse::InListRow;
inline constexpr auto kBoth = ContactFieldUse::Both;

inline constexpr std::array<ContactFieldRow, kContactFieldCount> kRows{{
    {FileAs, u"FileAs", kBoth},
    {Title, u"Title", kEdit},
    {FirstName, u"FirstName", kEdit},
    {MiddleName, u"MiddleName", kEdit},
    {LastName, u"LastName", kEdit},
    {Suffix, u"Suffix", kEdit},
    {JobTitle, u"JobTitle", kEdit},
    {Department, u"Department", kEdit},
    {CompanyName, u"CompanyName", kBoth},
    {BusinessTelephoneNumber, u"BusinessTelephoneNumber", kBoth},
    {Business2TelephoneNumber, u"Business2TelephoneNumber", kBoth},
    {BusinessFaxNumber, u"BusinessFaxNumber", kBoth},
    {HomeTelephoneNumber, u"HomeTelephoneNumber", kBoth},
    {Home2TelephoneNumber, u"Home2TelephoneNumber", kBoth},
    {HomeFaxNumber, u"HomeFaxNumber", kEdit},
    {MobileTelephoneNumber, u"MobileTelephoneNumber", kBoth},
    {PagerNumber, u"PagerNumber", kBoth},
    {CarTelephoneNumber, u"CarTelephoneNumber", kNone},
    {RadioTelephoneNumber, u"RadioTelephoneNumber", kNone},
    {Email1Address, u"Email1Address", kBoth},
    {Email2Address, u"Email2Address", kBoth},
    // Shown in the list, yet never put back: intended.
    {Email3Address, u"Email3Address", kList},
    {WebPage, u"WebPage", kEdit},
    {BusinessAddressStreet, u"BusinessAddressStreet", kBoth},
    {BusinessAddressCity, u"BusinessAddressCity", kBoth},
    {BusinessAddressState, u"BusinessAddressState", kBoth},
    {BusinessAddressPostalCode, u"BusinessAddressPostalCode", kBoth},
    {BusinessAddressCountry, u"BusinessAddressCountry", kBoth},
    {HomeAddressStreet, u"HomeAddressStreet", kBoth},
    {HomeAddressCity, u"HomeAddressCity", kBoth},
    {HomeAddressState, u"HomeAddressState", kBoth},
    {HomeAddressPostalCode, u"HomeAddressPostalCode", kBoth},
    {HomeAddressCountry, u"HomeAddressCountry", kBoth},
    {OtherAddressStreet, u"OtherAddressStreet", kNone},
    {OtherAddressCity, u"OtherAddressCity", kNone},
    {OtherAddressState, u"OtherAddressState", kNone},
    {OtherAddressPostalCode, u"OtherAddressPostalCode", kNone},
    {OtherAddressCountry, u"OtherAddressCountry", kNone},
    {Categories, u"Categories", kBoth},
    {Spouse, u"Spouse", kEdit},
    {Children, u"Children", kEdit},
}};

constexpr bool RowsFollowTheFields() {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (static_cast<std::size_t>(kRows[i].Field) != i || kRows[i].Property.isEmpty()) return false;
  }
  return true;
}
static_assert(RowsFollowTheFields());
}  // namespace detail

inline constexpr const auto& kContactFields = detail::kRows;

// The two dates are written back always and never in a list row.
struct ContactDateRow {
  CalendarDate ContactRecord::*Date;
  QStringView Property;
};
inline constexpr std::array<ContactDateRow, 2> kContactDates{{
    {&ContactRecord::Birthday, u"Birthday"},
    {&ContactRecord::Anniversary, u"Anniversary"},
}};

constexpr const ContactFieldRow& FieldRow(ContactField field) {
  return kContactFields[static_cast<std::size_t>(field)];
}

}  // namespace quill
