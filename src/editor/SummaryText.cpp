#include "editor/SummaryText.h"

#include <QStringList>

#include <array>
#include <span>

#include "platform/TextFitting.h"

namespace quill {

namespace {

using enum ContactField;

// The first of the fields that is not empty is shown.
constexpr std::array kCell = {MobileTelephoneNumber, PagerNumber};  // the pager is a second mobile
constexpr std::array kWork = {BusinessTelephoneNumber, Business2TelephoneNumber};
constexpr std::array kHome = {HomeTelephoneNumber, Home2TelephoneNumber};
constexpr std::array kWorkFax = {BusinessFaxNumber};
constexpr std::array kEmail = {Email1Address, Email2Address, Email3Address};

struct Choice {
  QStringView Label;
  std::span<const ContactField> Fields;
};
constexpr std::array kChoices = {
    Choice{u"Cell:", kCell},     Choice{u"Work:", kWork},   Choice{u"Home:", kHome},
    Choice{u"W.Fax:", kWorkFax}, Choice{u"Email:", kEmail},
};

// The street first.
constexpr std::array kWorkAddress = {BusinessAddressStreet, BusinessAddressCity,
                                     BusinessAddressState, BusinessAddressPostalCode,
                                     BusinessAddressCountry};
constexpr std::array kHomeAddress = {HomeAddressStreet, HomeAddressCity, HomeAddressState,
                                     HomeAddressPostalCode, HomeAddressCountry};

QString FirstFilled(const ContactRecord& record, std::span<const ContactField> fields) {
  for (const ContactField field : fields)
    if (!record[field].isEmpty()) return record[field];
  return {};
}

QString Address(const ContactRecord& record, std::span<const ContactField> parts) {
  QStringList filled{OnOneLine(record[parts.front()])};
  for (const ContactField part : parts.subspan(1)) filled.append(record[part]);
  filled.removeAll(QString());
  return filled.join(QStringLiteral(", "));
}

}  // namespace

std::vector<SummaryLine> SummaryLines(const ContactRecord& record) {
  std::vector<SummaryLine> lines;
  const auto add = [&lines](const SummaryLine& line) {
    if (!line.Text.isEmpty()) lines.push_back(line);
  };
  for (const Choice& choice : kChoices) add({choice.Label, FirstFilled(record, choice.Fields)});
  const QString work = Address(record, kWorkAddress);
  if (work.isEmpty())
    add({u"H.Adr:", Address(record, kHomeAddress), kCardAddressHeight});
  else
    add({u"W.Adr:", work, kCardAddressHeight});
  return lines;
}

}  // namespace quill
