#include "list/RowContent.h"

#include <algorithm>

namespace quill {

namespace {

struct SecondColumnField {
  ContactField Field;
  RowIconKind Icon;
};

// The first that is not empty is shown. Home fax is not among them: intended.
constexpr std::array kSecondColumnOrder = {
    SecondColumnField{ContactField::MobileTelephoneNumber, RowIconKind::Mobile},
    SecondColumnField{ContactField::BusinessTelephoneNumber, RowIconKind::Business},
    SecondColumnField{ContactField::HomeTelephoneNumber, RowIconKind::Home},
    SecondColumnField{ContactField::PagerNumber, RowIconKind::Pager},
    SecondColumnField{ContactField::Business2TelephoneNumber, RowIconKind::Business2},
    SecondColumnField{ContactField::Home2TelephoneNumber, RowIconKind::Home2},
    SecondColumnField{ContactField::Email1Address, RowIconKind::Email1},
    SecondColumnField{ContactField::Email2Address, RowIconKind::Email2},
    SecondColumnField{ContactField::Email3Address, RowIconKind::Email3},
    SecondColumnField{ContactField::BusinessFaxNumber, RowIconKind::BusinessFax},
};

constexpr std::array kAddressParts = {
    ContactField::BusinessAddressStreet,  ContactField::BusinessAddressCity,
    ContactField::BusinessAddressState,   ContactField::BusinessAddressPostalCode,
    ContactField::BusinessAddressCountry, ContactField::HomeAddressStreet,
    ContactField::HomeAddressCity,        ContactField::HomeAddressState,
    ContactField::HomeAddressPostalCode,  ContactField::HomeAddressCountry,
};

void FillSecondColumn(const ContactRecord& record, ListRow& row) {
  const auto filled = [&](ContactField field) { return !record[field].isEmpty(); };
  const auto first = std::ranges::find_if(kSecondColumnOrder, filled, &SecondColumnField::Field);
  if (first != kSecondColumnOrder.end()) {
    row.Text = CutListRowText(record[first->Field]);
    row.Icon = first->Icon;
  } else if (std::ranges::any_of(kAddressParts, filled)) {
    row.Icon = RowIconKind::Address;
  }
}

}  // namespace

ListRow MakeListRow(Oid oid, const ContactRecord& record, int position) {
  ListRow row;
  row.Name = CutListRowText(record[ContactField::FileAs]);
  row.Company = CutListRowText(record[ContactField::CompanyName]);
  FillSecondColumn(record, row);
  row.Oid = oid;
  row.Position = position;
  return row;
}

QString CutListRowText(const QString& text) {
  if (text.size() <= kListRowTextLimit) return text;
  const bool splitsPair =
      text[kListRowTextLimit - 1].isHighSurrogate() && text[kListRowTextLimit].isLowSurrogate();
  return text.left(splitsPair ? kListRowTextLimit - 1 : kListRowTextLimit);
}

}  // namespace quill
