#include "exchange/CarriedDetails.h"

#include <QStringList>

#include <algorithm>
#include <array>

#include "exchange/CardFields.h"
#include "exchange/CardMedia.h"
#include "exchange/CardSlots.h"
#include "exchange/CarriedLines.h"

namespace quill {

namespace {

using enum ContactField;
using Properties = std::vector<CardProperty>;

struct FieldLabel {
  ContactField Field;
  QStringView Label;
};
constexpr std::array kFieldLabels{FieldLabel{CarTelephoneNumber, u"Car tel"},
                                  FieldLabel{RadioTelephoneNumber, u"Radio tel"},
                                  FieldLabel{Email3Address, u"Email3"}};
constexpr QStringView kOtherAddressLabel = u"Other addr";
constexpr std::array kOtherAddress{OtherAddressStreet, OtherAddressCity, OtherAddressState,
                                   OtherAddressPostalCode, OtherAddressCountry};

constexpr QStringView kNestedLabel = u"Agent";

// How a property is called; one that is not among them has its own name.
struct PropertyLabel {
  QStringView Name;
  QStringView Label;
};
constexpr std::array kPropertyLabels{
    PropertyLabel{u"ADR", u"Address"},
    PropertyLabel{u"AGENT", kNestedLabel},
    PropertyLabel{u"ANNIVERSARY", u"Anniversary"},
    PropertyLabel{u"BDAY", u"Birthday"},
    PropertyLabel{u"EMAIL", u"Email"},
    PropertyLabel{u"FN", u"Formatted name"},
    PropertyLabel{u"GENDER", u"Gender"},
    PropertyLabel{u"GEO", u"Position"},
    PropertyLabel{u"IMPP", u"Messaging"},
    PropertyLabel{u"KEY", u"Key"},
    PropertyLabel{u"LABEL", u"Address label"},
    PropertyLabel{u"LANG", u"Language"},
    PropertyLabel{u"LOGO", u"Logo"},
    PropertyLabel{u"N", u"Name"},
    PropertyLabel{u"NICKNAME", u"Nickname"},
    PropertyLabel{u"NOTE", u"Note"},
    PropertyLabel{u"ORG", u"Company"},
    PropertyLabel{u"PHOTO", u"Photo"},
    PropertyLabel{u"RELATED", u"Relative"},
    PropertyLabel{u"ROLE", u"Role"},
    PropertyLabel{u"SOUND", u"Sound"},
    PropertyLabel{u"TEL", u"Telephone"},
    PropertyLabel{u"TITLE", u"Job title"},
    PropertyLabel{u"TZ", u"Time zone"},
    PropertyLabel{u"URL", u"Web page"},
    PropertyLabel{u"X-ABDATE", u"Date"},
    PropertyLabel{u"X-ABRELATEDNAMES", u"Relative"},
};

// Of the card and not of its person.
constexpr std::array<QStringView, 6> kSilent{u"VERSION", u"PRODID", u"REV",
                                             u"BEGIN",   u"END",    u"SORT-STRING"};
// Types that say nothing to a reader, or that the text says.
constexpr std::array<QStringView, 4> kSilentTypes{u"PREF", u"VOICE", u"INTERNET", u""};
// Values of several parts between semicolons.
constexpr std::array<QStringView, 3> kParted{u"ADR", u"N", u"ORG"};

template <typename Names>
bool Contains(const Names& names, QStringView name) {
  return std::ranges::find(names, name) != names.end();
}

QString PlainLabel(QString label) {
  if (label.startsWith(kLabelBegin) && label.endsWith(kLabelEnd))
    label = label.sliced(kLabelBegin.size()).chopped(kLabelEnd.size());
  return label;
}

// What the user called the property's group; empty when it has no such label.
QString GroupLabel(const CardProperty& property, const Properties& all) {
  if (property.Group.isEmpty()) return {};
  const auto label = std::ranges::find_if(all, [&](const CardProperty& other) {
    return other.Name == kLabelProperty && other.Group == property.Group;
  });
  return label == all.end() ? QString() : PlainLabel(TextOf(*label));
}

QString NameLabel(const CardProperty& property) {
  const auto known = std::ranges::find(kPropertyLabels, property.Name, &PropertyLabel::Name);
  return known == kPropertyLabels.end() ? property.Name : known->Label.toString();
}

QString LabelOf(const CardProperty& property, const Properties& all) {
  const QString own = GroupLabel(property, all);
  if (!own.isEmpty()) return own;
  QStringList types = TypesOf(property);
  types.removeIf([](const QString& type) { return Contains(kSilentTypes, type); });
  if (types.isEmpty() || MediaIn(property)) return NameLabel(property);
  return QStringLiteral("%1 (%2)").arg(NameLabel(property), types.join(u", ").toLower());
}

QString SizeText(qsizetype bytes) {
  constexpr qsizetype kKilo = 1024;
  if (bytes < kKilo) return QStringLiteral("%1 bytes").arg(bytes);
  if (bytes < kKilo * kKilo) return QStringLiteral("%1 KB").arg((bytes + kKilo / 2) / kKilo);
  return QStringLiteral("%1 MB").arg(double(bytes) / double(kKilo * kKilo), 0, 'f', 1);
}

QStringView KindOf(const QString& mediaType) {
  if (mediaType.startsWith(u"image/")) return u"picture";
  return mediaType.startsWith(u"audio/") ? u"sound" : u"data";
}

QString MediaText(const CardMedia& media) {
  const QString format = media.MediaType.section(u'/', 1).section(u';', 0, 0).toUpper();
  const QString known = media.MediaType == kUnknownMedia ? QString() : format + u' ';
  return known + KindOf(media.MediaType).toString() + QStringLiteral(", ") +
         SizeText(QByteArray::fromBase64(media.Base64).size());
}

QString TextOfParts(const CardProperty& property) {
  QStringList parts = PartsOf(property, u';');
  parts.removeAll(QString());
  return parts.join(QStringLiteral(", "));
}

QString ReadableText(const CardProperty& property) {
  if (const auto media = MediaIn(property)) return MediaText(*media);
  if (property.Name == u"TEL") return NumberOf(property);
  return Contains(kParted, property.Name) ? TextOfParts(property) : TextOf(property);
}

void Add(const QString& label, const QString& text, std::vector<CarriedDetail>& details) {
  if (!text.trimmed().isEmpty()) details.push_back({label, text});
}

void AddFields(const ContactRecord& record, std::vector<CarriedDetail>& details) {
  for (const FieldLabel& row : kFieldLabels) Add(row.Label.toString(), record[row.Field], details);
  QStringList address;
  for (const ContactField part : kOtherAddress) address.append(record[part]);
  address.removeAll(QString());
  Add(kOtherAddressLabel.toString(), address.join(QStringLiteral(", ")), details);
}

bool IsOutside(const CardProperty& property) { return !property.IsNested; }

bool IsShown(const CardProperty& property) {
  return !Contains(kSilent, property.Name) && property.Name != kLabelProperty;
}

// One line of a card within the card.
QString NestedLine(const CardProperty& property, const Properties& all) {
  return LabelOf(property, all) + QStringLiteral(": ") + ReadableText(property);
}

// From the beginning of a card within the card to its end.
QString NestedText(Properties::const_iterator from, Properties::const_iterator to,
                   const Properties& all) {
  QStringList lines;
  for (auto property = from; property != to; ++property)
    if (IsShown(*property)) lines.append(NestedLine(*property, all));
  return lines.join(u'\n');
}

}  // namespace

std::vector<CarriedDetail> CarriedDetails(const ContactItem& item) {
  std::vector<CarriedDetail> details;
  AddFields(item.Record, details);
  const Properties properties = CarriedProperties(item.CarriedLines);
  auto next = properties.begin();
  while (next != properties.end()) {
    const CardProperty& property = *next;
    if (property.IsNested) {
      const auto end = std::find_if(next, properties.end(), IsOutside);
      Add(kNestedLabel.toString(), NestedText(next, end, properties), details);
      next = end;
      continue;
    }
    if (IsShown(property)) Add(LabelOf(property, properties), ReadableText(property), details);
    ++next;
  }
  return details;
}

}  // namespace quill
