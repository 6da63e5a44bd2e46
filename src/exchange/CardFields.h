// Which property of a card holds which field of a contact: the tables that reading and writing
// share. What reading accepts beside these stands with the readers.
#pragma once

#include <QStringView>

#include <array>

#include "store/ContactRecord.h"

namespace quill {

namespace detail {
using enum ContactField;

// An address of the web is written without a backslash before its commas and semicolons.
enum class CardTextKind { Text, Uri };

// A field that is one whole property.
struct CardTextRow {
  QStringView Property;
  ContactField Where;
  CardTextKind Kind = CardTextKind::Text;
};
inline constexpr std::array kCardTexts{
    CardTextRow{u"X-EVOLUTION-FILE-AS", FileAs},
    CardTextRow{u"TITLE", JobTitle},
    CardTextRow{u"URL", WebPage, CardTextKind::Uri},
    CardTextRow{u"X-QUILL-FIELD19", RadioTelephoneNumber},
};

// The parts of N, in its order, and in the order in which they are spoken.
inline constexpr std::array kNameParts{LastName, FirstName, MiddleName, Title, Suffix};
inline constexpr std::array kSpokenParts{Title, FirstName, MiddleName, LastName, Suffix};

// A field that is a TEL with these types. Of fields with the same types, a card's numbers fill the
// first one first.
struct CardNumberRow {
  ContactField Where;
  QStringView Types;
};
inline constexpr std::array kCardNumbers{
    CardNumberRow{BusinessTelephoneNumber, u"WORK,VOICE"},
    CardNumberRow{Business2TelephoneNumber, u"WORK,VOICE"},
    CardNumberRow{BusinessFaxNumber, u"WORK,FAX"},
    CardNumberRow{HomeTelephoneNumber, u"HOME,VOICE"},
    CardNumberRow{Home2TelephoneNumber, u"HOME,VOICE"},
    CardNumberRow{HomeFaxNumber, u"HOME,FAX"},
    CardNumberRow{MobileTelephoneNumber, u"CELL"},
    CardNumberRow{PagerNumber, u"CELL"},
    CardNumberRow{CarTelephoneNumber, u"CAR"},
};

// A postal address is an ADR with this type.
struct CardAddressRow {
  QStringView Type;  // empty: none
  ContactField Street;
  ContactField City;
  ContactField State;
  ContactField PostalCode;
  ContactField Country;
};
inline constexpr std::array kCardAddresses{
    CardAddressRow{u"WORK", BusinessAddressStreet, BusinessAddressCity, BusinessAddressState,
                   BusinessAddressPostalCode, BusinessAddressCountry},
    CardAddressRow{u"HOME", HomeAddressStreet, HomeAddressCity, HomeAddressState,
                   HomeAddressPostalCode, HomeAddressCountry},
    CardAddressRow{u"", OtherAddressStreet, OtherAddressCity, OtherAddressState,
                   OtherAddressPostalCode, OtherAddressCountry},
};

// A relative is written thrice: before 4.0 as a property of its own and as one that takes its
// meaning from the X-ABLABEL of its group, in 4.0 as RELATED with the label as its type.
struct CardRelativeRow {
  ContactField Where;
  QStringView Property;
  QStringView Label;
};
inline constexpr CardRelativeRow kCardSpouse{Spouse, u"X-EVOLUTION-SPOUSE", u"Spouse"};
inline constexpr CardRelativeRow kCardChildren{Children, u"X-QUILL-CHILDREN", u"Child"};
}  // namespace detail

using detail::CardAddressRow;
using detail::CardNumberRow;
using detail::CardRelativeRow;
using detail::CardTextKind;
using detail::CardTextRow;
using detail::kCardAddresses;
using detail::kCardChildren;
using detail::kCardNumbers;
using detail::kCardSpouse;
using detail::kCardTexts;
using detail::kNameParts;
using detail::kSpokenParts;

inline constexpr std::array kEmailFields{ContactField::Email1Address, ContactField::Email2Address,
                                         ContactField::Email3Address};

inline constexpr QStringView kFieldParameter = u"X-QUILL-FIELD";  // names a TEL's or EMAIL's field
// On a carried FN alone, and in no file: the NameMark of the name that it was the spoken form of.
inline constexpr QStringView kSpokenForParameter = u"X-QUILL-SPOKEN-FOR";
inline constexpr QStringView kInkProperty = u"X-QUILL-INK";
inline constexpr QStringView kRelativeProperty = u"X-ABRELATEDNAMES";
inline constexpr QStringView kRelativeProperty40 = u"RELATED";
inline constexpr QStringView kBirthdayProperty = u"BDAY";
inline constexpr QStringView kAnniversaryProperty = u"X-EVOLUTION-ANNIVERSARY";
inline constexpr QStringView kAnniversaryProperty40 = u"ANNIVERSARY";
inline constexpr QStringView kLabelledDayProperty = u"X-ABDATE";
inline constexpr QStringView kAnniversaryLabel = u"Anniversary";
inline constexpr QStringView kLabelProperty = u"X-ABLABEL";
// Built-in labels stand between these, which tells them from the user's own.
inline constexpr QStringView kLabelBegin = u"_$!<";
inline constexpr QStringView kLabelEnd = u">!$_";

}  // namespace quill
