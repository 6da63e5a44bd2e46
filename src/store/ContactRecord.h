// One contact as the program passes it around: the texts of ContactField and two dates, a plain
// value. The Oid and the ink notes are not part of it.
#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace quill {

using Oid = qint32;  // identifies a contact for its whole life; 0 is none

// The text fields, in the record's order.
enum class ContactField {
  FileAs,
  Title,
  FirstName,
  MiddleName,
  LastName,
  Suffix,
  JobTitle,
  Department,
  CompanyName,
  BusinessTelephoneNumber,
  Business2TelephoneNumber,
  BusinessFaxNumber,
  HomeTelephoneNumber,
  Home2TelephoneNumber,
  HomeFaxNumber,
  MobileTelephoneNumber,
  PagerNumber,
  CarTelephoneNumber,
  RadioTelephoneNumber,
  Email1Address,
  Email2Address,
  Email3Address,
  WebPage,
  BusinessAddressStreet,
  BusinessAddressCity,
  BusinessAddressState,
  BusinessAddressPostalCode,
  BusinessAddressCountry,
  HomeAddressStreet,
  HomeAddressCity,
  HomeAddressState,
  HomeAddressPostalCode,
  HomeAddressCountry,
  OtherAddressStreet,
  OtherAddressCity,
  OtherAddressState,
  OtherAddressPostalCode,
  OtherAddressCountry,
  Categories,
  Spouse,
  Children,
};
inline constexpr std::size_t kContactFieldCount =
    static_cast<std::size_t>(ContactField::Children) + 1;

// A calendar date-time. Year 0 means that there is no date.
struct CalendarDate {
  quint16 Year = 0;
  quint16 Month = 0;      // 1-12
  quint16 DayOfWeek = 0;  // 0 = Sunday
  quint16 Day = 0;
  quint16 Hour = 0;
  quint16 Minute = 0;
  quint16 Second = 0;
  quint16 Millisecond = 0;

  bool operator==(const CalendarDate&) const = default;
};

struct ContactRecord {
  std::array<QString, kContactFieldCount> Texts;
  CalendarDate Birthday;
  CalendarDate Anniversary;

  QString& operator[](ContactField field) { return Texts[static_cast<std::size_t>(field)]; }
  const QString& operator[](ContactField field) const {
    return Texts[static_cast<std::size_t>(field)];
  }
  bool operator==(const ContactRecord&) const = default;
};

}  // namespace quill
