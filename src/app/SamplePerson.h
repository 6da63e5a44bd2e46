// The people of the sample home. They are invented, like their addresses; the telephone numbers are
// of ranges kept free for fiction or of no subscriber, the mail addresses of a reserved domain.
#pragma once

#include <QStringView>

#include <span>

namespace quill {

// Empty is a field left empty. Dates are "1970-02-28".
struct SamplePerson {
  QStringView Title = {};
  QStringView First = {};
  QStringView Middle = {};
  QStringView Last = {};
  QStringView Suffix = {};
  QStringView JobTitle = {};
  QStringView Department = {};
  QStringView Company = {};
  QStringView Business = {};
  QStringView Business2 = {};
  QStringView BusinessFax = {};
  QStringView Home = {};
  QStringView Home2 = {};
  QStringView HomeFax = {};
  QStringView Mobile = {};
  QStringView Pager = {};
  QStringView Email = {};
  QStringView Email2 = {};
  QStringView WebPage = {};
  QStringView Street = {};
  QStringView City = {};
  QStringView State = {};
  QStringView PostalCode = {};
  QStringView Country = {};
  QStringView HomeStreet = {};
  QStringView HomeCity = {};
  QStringView HomeState = {};
  QStringView HomePostalCode = {};
  QStringView Categories = {};
  QStringView Spouse = {};
  QStringView Children = {};
  QStringView Birthday = {};
  QStringView Anniversary = {};
};

std::span<const SamplePerson> SamplePersons();

}  // namespace quill
