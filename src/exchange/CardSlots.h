// Which number, e-mail or postal address of a card goes to which field of the record. What finds no
// free field stays in the pool.
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

void PlaceNumbers(CardPool& pool, ContactRecord& record);
void PlaceEmails(CardPool& pool, ContactRecord& record);
void PlaceAddresses(CardPool& pool, ContactRecord& record);

}  // namespace quill
