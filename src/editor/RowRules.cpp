#include "editor/RowRules.h"

#include <array>

#include "store/CategoryText.h"

namespace quill {

namespace {

using enum ContactField;

constexpr std::array<RowRule, kPageRowCount> kBasicRules{{
    {.Label = u"Name", .Kind = RowKind::Name, .Field = FileAs, .Parts = RowSet::NameParts},
    {.Label = u"Job title", .Field = JobTitle},
    {.Label = u"Department", .Field = Department},
    {.Label = u"Company", .Field = CompanyName},
    {.Label = u"Mobile tel",
     .Field = MobileTelephoneNumber,
     .Entry = RowEntry::Number,
     .Flag = PhoneFlag::Mobile},
    {.Label = u"Work tel",
     .Field = BusinessTelephoneNumber,
     .Entry = RowEntry::Number,
     .Flag = PhoneFlag::Work},
    {.Label = u"Work fax", .Field = BusinessFaxNumber, .Entry = RowEntry::Number},
    {.Label = u"Home tel",
     .Field = HomeTelephoneNumber,
     .Entry = RowEntry::Number,
     .Flag = PhoneFlag::Home},
    {.Label = u"Work addr", .Kind = RowKind::Address, .Parts = RowSet::WorkAddress},
    {.Label = u"Email", .Field = Email1Address, .Entry = RowEntry::Email},
    {.Label = u"Categories",
     .Kind = RowKind::Categories,
     .Field = Categories,
     .EmptyText = kNoCategories},
    {.Kind = RowKind::ClosingBlank},
}};

constexpr std::array<RowRule, kPageRowCount> kDetailRules{{
    {.Label = u"Mobile tel2",
     .Field = PagerNumber,  // the pager is a second mobile
     .Entry = RowEntry::Number,
     .Flag = PhoneFlag::Mobile2},
    {.Label = u"Work tel2",
     .Field = Business2TelephoneNumber,
     .Entry = RowEntry::Number,
     .Flag = PhoneFlag::Work2},
    {.Label = u"Home tel2",
     .Field = Home2TelephoneNumber,
     .Entry = RowEntry::Number,
     .Flag = PhoneFlag::Home2},
    {.Label = u"Home fax", .Field = HomeFaxNumber, .Entry = RowEntry::Number},
    {.Label = u"Home addr", .Kind = RowKind::Address, .Parts = RowSet::HomeAddress},
    {.Label = u"Email2", .Field = Email2Address, .Entry = RowEntry::Email},
    {.Label = u"Web page", .Field = WebPage, .Entry = RowEntry::Web},
    {.Label = u"Birthday", .Kind = RowKind::Date, .Date = RowDate::Birthday, .EmptyText = kNoDate},
    {.Label = u"Anniversary",
     .Kind = RowKind::Date,
     .Date = RowDate::Anniversary,
     .EmptyText = kNoDate},
    {.Label = u"Spouse", .Field = Spouse},
    {.Label = u"Children", .Field = Children},
    {.Kind = RowKind::ClosingBlank},
}};

using PartRules = std::array<RowRule, kPartRowCount>;

constexpr PartRules kNamePartRules{{
    {.Label = u"Title", .Field = Title},
    {.Label = u"First", .Field = FirstName},
    {.Label = u"Middle", .Field = MiddleName},
    {.Label = u"Last", .Field = LastName},
    {.Label = u"Suffix", .Field = Suffix},
}};

constexpr PartRules kWorkAddressRules{{
    {.Label = u"Street", .Field = BusinessAddressStreet},
    {.Label = u"City", .Field = BusinessAddressCity},
    {.Label = u"State", .Field = BusinessAddressState},
    {.Label = u"Zip", .Field = BusinessAddressPostalCode},
    {.Label = u"Country", .Field = BusinessAddressCountry},
}};

constexpr PartRules kHomeAddressRules{{
    {.Label = u"Street", .Field = HomeAddressStreet},
    {.Label = u"City", .Field = HomeAddressCity},
    {.Label = u"State", .Field = HomeAddressState},
    {.Label = u"Zip", .Field = HomeAddressPostalCode},
    {.Label = u"Country", .Field = HomeAddressCountry},
}};

}  // namespace

std::span<const RowRule> RulesOf(RowSet set) {
  switch (set) {
    case RowSet::Detail:
      return kDetailRules;
    case RowSet::Basic:
      return kBasicRules;
    case RowSet::NameParts:
      return kNamePartRules;
    case RowSet::WorkAddress:
      return kWorkAddressRules;
    case RowSet::HomeAddress:
      break;
  }
  return kHomeAddressRules;
}

const RowRule* FindRule(RowSet set, int row) {
  const std::span<const RowRule> rules = RulesOf(set);
  const bool isRow = row >= 0 && static_cast<std::size_t>(row) < rules.size();
  return isRow ? &rules[static_cast<std::size_t>(row)] : nullptr;
}

}  // namespace quill
