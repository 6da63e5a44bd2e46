#include "exchange/CardRelations.h"

#include <QSet>

#include <array>
#include <span>

#include "exchange/CardDate.h"
#include "exchange/CardFields.h"

namespace quill {

namespace {

using Properties = std::vector<const CardProperty*>;

constexpr std::array<QStringView, 5> kSpouseNames{u"X-SPOUSE", kCardSpouse.Property, u"X-MS-SPOUSE",
                                                  u"X-KADDRESSBOOK-X-SPOUSESNAME",
                                                  u"X-WAB-SPOUSE_NAME"};
constexpr std::array<QStringView, 3> kChildrenNames{kCardChildren.Property, u"X-CHILDREN",
                                                    u"X-MS-CHILD"};
constexpr std::array<QStringView, 1> kBirthdayNames{kBirthdayProperty};
constexpr std::array<QStringView, 6> kAnniversaryNames{kAnniversaryProperty40,
                                                       u"X-ANNIVERSARY",
                                                       kAnniversaryProperty,
                                                       u"X-MS-ANNIVERSARY",
                                                       u"X-KADDRESSBOOK-X-ANNIVERSARY",
                                                       u"X-WAB-WEDDING_ANNIVERSARY"};

constexpr QStringView kAndroidEvent = u"vnd.android.cursor.item/contact_event";
constexpr QStringView kAndroidAnniversary = u"1";

void Append(Properties& properties, const Properties& more) {
  properties.insert(properties.end(), more.begin(), more.end());
}

Properties Named(const CardPool& pool, std::span<const QStringView> names) {
  Properties found;
  for (const QStringView name : names) Append(found, pool.All(name));
  return found;
}

Properties Labelled(const CardPool& pool, QStringView name, QStringView label) {
  Properties found;
  for (const CardProperty* property : pool.All(name)) {
    if (pool.Label(*property).compare(label, Qt::CaseInsensitive) == 0) found.push_back(property);
  }
  return found;
}

// Relatives that are named; one that is only a reference to another card has no name to show.
Properties Related(const CardPool& pool, QStringView type) {
  Properties found;
  for (const CardProperty* property : pool.All(kRelativeProperty40)) {
    const bool isReference =
        property->Value.startsWith(u"urn:", Qt::CaseInsensitive) &&
        ParameterOf(*property, u"VALUE").compare(u"text", Qt::CaseInsensitive) != 0;
    if (!isReference && TypesOf(*property).contains(type, Qt::CaseInsensitive))
      found.push_back(property);
  }
  return found;
}

void TakeWithLabel(CardPool& pool, const CardProperty& property) {
  pool.TakeLabel(property);
  pool.Take(property);
}

void PlaceSpouse(CardPool& pool, QString& spouse) {
  Properties sources = Named(pool, kSpouseNames);
  Append(sources, Labelled(pool, kRelativeProperty, kCardSpouse.Label));
  Append(sources, Related(pool, kCardSpouse.Label));
  for (const CardProperty* source : sources) {
    const QString name = TextOf(*source);
    if (spouse.isEmpty()) spouse = name;
    // Programs write the same name under several properties.
    if (name == spouse || name.isEmpty()) TakeWithLabel(pool, *source);
  }
}

void PlaceChildren(CardPool& pool, QString& children) {
  // Our own property holds the field as it is; others are of other programs and add to it.
  const CardProperty* whole = pool.First(kCardChildren.Property);
  if (whole && children.isEmpty()) {
    children = TextOf(*whole);
    pool.Take(*whole);
  }
  Properties sources = Named(pool, kChildrenNames);
  Append(sources, Labelled(pool, kRelativeProperty, kCardChildren.Label));
  Append(sources, Related(pool, kCardChildren.Label));
  const QStringList names = children.split(u", "_qs);
  QSet<QString> known(names.begin(), names.end());
  for (const CardProperty* source : sources) {
    for (const QString& name : TextOf(*source).split(u", "_qs)) {
      if (name.isEmpty() || known.contains(name)) continue;
      children += (children.isEmpty() ? QString() : u", "_qs) + name;
      known.insert(name);
    }
    TakeWithLabel(pool, *source);
  }
}

Properties AndroidAnniversaries(const CardPool& pool) {
  Properties found;
  for (const CardProperty* property : pool.All(u"X-ANDROID-CUSTOM")) {
    const QStringList parts = PartsOf(*property, u';');
    if (parts.value(0) == kAndroidEvent && parts.value(2) == kAndroidAnniversary) {
      found.push_back(property);
    }
  }
  return found;
}

QString DayText(const CardProperty& property) {
  return property.Name == u"X-ANDROID-CUSTOM" ? PartsOf(property, u';').value(1) : TextOf(property);
}

bool IsSameDay(const CalendarDate& a, const CalendarDate& b) {
  return a.Year == b.Year && a.Month == b.Month && a.Day == b.Day;
}

void PlaceDay(CardPool& pool, const Properties& sources, CalendarDate& day) {
  for (const CardProperty* source : sources) {
    const std::optional<CalendarDate> date = DateFromCard(DayText(*source));
    if (!date) continue;
    if (day.Year == 0) day = *date;
    if (IsSameDay(*date, day)) TakeWithLabel(pool, *source);
  }
}

}  // namespace

void PlaceRelatives(CardPool& pool, ContactRecord& record) {
  PlaceSpouse(pool, record[ContactField::Spouse]);
  PlaceChildren(pool, record[ContactField::Children]);
}

void PlaceDays(CardPool& pool, ContactRecord& record) {
  PlaceDay(pool, Named(pool, kBirthdayNames), record.Birthday);
  Properties anniversaries = Named(pool, kAnniversaryNames);
  Append(anniversaries, Labelled(pool, kLabelledDayProperty, kAnniversaryLabel));
  Append(anniversaries, AndroidAnniversaries(pool));
  PlaceDay(pool, anniversaries, record.Anniversary);
}

}  // namespace quill
