#include "exchange/CardWriter.h"

#include <algorithm>

#include "exchange/CardDate.h"
#include "exchange/CardFields.h"
#include "exchange/CardMapper.h"
#include "exchange/CarriedLines.h"
#include "store/CategoryText.h"
#include "store/ContactFields.h"

namespace quill {

namespace {

using Field = ContactField;

constexpr QStringView kListSeparator = u", ";  // in Children
constexpr QStringView kPartSeparator = u"; ";  // in Department

bool IsBlank(const QString& text) { return text.trimmed().isEmpty(); }

// The names, when joining them again gives the same text; else nothing.
QStringList CleanPieces(const QString& text, QStringView separator) {
  const QStringList pieces = text.split(separator.toString());
  QStringList unique = pieces;
  const bool isClean = !pieces.contains(QString()) && unique.removeDuplicates() == 0;
  return isClean ? pieces : QStringList();
}

class CardComposer {
 public:
  CardComposer(const ContactItem& item, CardVersion version)
      : m_item(item),
        m_record(item.Record),
        m_version(version),
        m_carried(CarriedProperties(item.CarriedLines)) {
    const QString name = NameMark(m_record);
    std::erase_if(m_carried, [&name](const CardProperty& property) {
      const QString mark = ParameterOf(property, kSpokenForParameter);
      return !mark.isEmpty() && mark != name;
    });
  }

  QByteArray Compose() {
    AddBeginning();
    AddNames();
    for (const CardTextRow& row : kCardTexts) {
      const CardHeader header{row.Property.toString()};
      if (row.Kind == CardTextKind::Uri) AddUri(header, m_record[row.Where]);
      if (row.Kind == CardTextKind::Text) AddText(header, m_record[row.Where]);
    }
    AddCompany();
    AddNumbers();
    AddEmails();
    for (const CardAddressRow& row : kCardAddresses) AddAddress(row);
    AddParts({u"CATEGORIES"_qs}, SplitCategories(m_record[Field::Categories]), u',');
    AddSpouse();
    AddChildren();
    AddDays();
    AddBeyondRecord();
    m_card += WriteCarried(m_carried, m_version) + "END:VCARD\r\n";
    return std::move(m_card);
  }

 private:
  bool Is40() const { return m_version == CardVersion::V40; }

  void AddLine(const CardHeader& header, const QString& value) {
    m_card += TextLines(header, value, m_version);
  }
  void AddText(const CardHeader& header, const QString& text) {
    if (!text.isEmpty()) AddLine(header, EscapeText(text, m_version));
  }
  void AddUri(const CardHeader& header, const QString& uri) {
    if (!uri.isEmpty()) AddLine(header, EscapeUri(uri, m_version));
  }
  // Nothing when all parts are empty.
  void AddParts(const CardHeader& header, const QStringList& parts, QChar separator) {
    if (!parts.join(QString()).isEmpty()) AddLine(header, EscapeParts(parts, separator, m_version));
  }

  void AddBeginning() {
    const char* const versions[] = {"2.1", "3.0", "4.0"};
    m_card += "BEGIN:VCARD\r\nVERSION:";
    m_card += versions[static_cast<int>(m_version)];
    m_card += "\r\n";
  }

  // Both have to be in a card, whatever there is to say.
  void AddNames() {
    QStringList parts;
    for (const Field part : kNameParts) parts += m_record[part];
    AddLine({u"N"_qs}, EscapeParts(parts, u';', m_version));
    const auto isName = [](const CardProperty& property) {
      return property.Name == u"FN" && !property.IsNested;
    };
    // A spoken name of its own was carried.
    if (std::any_of(m_carried.begin(), m_carried.end(), isName)) return;
    AddLine({u"FN"_qs}, EscapeText(FormattedName(m_record), m_version));
  }

  void AddCompany() {
    const QString& department = m_record[Field::Department];
    QStringList parts = CleanPieces(department, kPartSeparator);
    if (parts.isEmpty() && !department.isEmpty()) parts = {department};
    AddParts({u"ORG"_qs}, QStringList(m_record[Field::CompanyName]) + parts, u';');
  }

  // Where an earlier field of its kind is empty, the number would come back in that one.
  void AddInField(const QString& property, const QStringList& types, Field field,
                  bool comesBackElsewhere) {
    if (IsBlank(m_record[field])) return;
    CardHeader header{property, types};
    if (comesBackElsewhere) {
      header.Parameters += u"%1=%2"_qs.arg(kFieldParameter).arg(FieldRow(field).Property);
    }
    AddText(header, m_record[field]);
  }

  void AddNumbers() {
    for (const CardNumberRow& row : kCardNumbers) {
      const bool comesBackElsewhere =
          std::any_of(kCardNumbers.data(), &row, [&](const CardNumberRow& earlier) {
            return earlier.Types == row.Types && IsBlank(m_record[earlier.Where]);
          });
      AddInField(u"TEL"_qs, row.Types.toString().split(u','), row.Where, comesBackElsewhere);
    }
  }

  void AddEmails() {
    bool comesBackElsewhere = false;
    for (const Field field : kEmailFields) {
      AddInField(u"EMAIL"_qs, {u"INTERNET"_qs}, field, comesBackElsewhere);
      comesBackElsewhere = comesBackElsewhere || IsBlank(m_record[field]);
    }
  }

  void AddAddress(const CardAddressRow& row) {
    CardHeader header{u"ADR"_qs};
    if (!row.Type.isEmpty()) header.Types += row.Type.toString();
    const QStringList parts{QString(),
                            QString(),
                            m_record[row.Street],
                            m_record[row.City],
                            m_record[row.State],
                            m_record[row.PostalCode],
                            m_record[row.Country]};
    if (!IsBlank(parts.join(QString()))) AddParts(header, parts, u';');
  }

  void AddRelated(const CardRelativeRow& row, const QString& name) {
    AddText({kRelativeProperty40.toString(), {row.Label.toString().toLower()}, {u"VALUE=text"_qs}},
            name);
  }

  void AddLabelled(QStringView property, const QString& text, QStringView label) {
    const QString name = NextGroup() + u".%1"_qs;
    AddText({name.arg(property)}, text);
    AddText({name.arg(kLabelProperty)}, u"%1%2%3"_qs.arg(kLabelBegin).arg(label).arg(kLabelEnd));
  }

  void AddSpouse() {
    const QString& name = m_record[kCardSpouse.Where];
    if (name.isEmpty()) return;
    if (Is40()) return AddRelated(kCardSpouse, name);
    AddText({kCardSpouse.Property.toString()}, name);
    AddLabelled(kRelativeProperty, name, kCardSpouse.Label);
  }

  void AddChildren() {
    const QString& children = m_record[kCardChildren.Where];
    const QStringList names = CleanPieces(children, kListSeparator);
    // In 4.0 only a text that is no clean list needs to be kept as it is.
    if (!Is40() || names.isEmpty()) AddText({kCardChildren.Property.toString()}, children);
    for (const QString& name : names) {
      if (Is40()) {
        AddRelated(kCardChildren, name);
      } else {
        AddLabelled(kRelativeProperty, name, kCardChildren.Label);
      }
    }
  }

  void AddDays() {
    if (m_record.Birthday.Year != 0)
      AddText({kBirthdayProperty.toString()}, DateForCard(m_record.Birthday, m_version));
    if (m_record.Anniversary.Year == 0) return;
    const QString day = DateForCard(m_record.Anniversary, m_version);
    if (Is40()) return AddText({kAnniversaryProperty40.toString()}, day);
    AddText({kAnniversaryProperty.toString()}, day);
    AddLabelled(kLabelledDayProperty, day, kAnniversaryLabel);
  }

  void AddBeyondRecord() {
    AddUri({u"UID"_qs}, m_item.Uid);
    if (m_item.BodyInk.isEmpty()) return;
    m_card += Base64Lines({kInkProperty.toString()}, m_item.BodyInk.toBase64(),
                          u"application/octet-stream"_qs, m_version);
  }

  // One that no carried line has: their labels would be taken for ours.
  QString NextGroup() {
    QString group;
    const auto isTaken = [&group](const CardProperty& property) {
      return property.Group.compare(group, Qt::CaseInsensitive) == 0;
    };
    do {
      group = u"item%1"_qs.arg(++m_groups);
    } while (std::any_of(m_carried.begin(), m_carried.end(), isTaken));
    return group;
  }

  const ContactItem& m_item;
  const ContactRecord& m_record;
  CardVersion m_version;
  std::vector<CardProperty> m_carried;
  QByteArray m_card;
  int m_groups = 0;
};

}  // namespace

QByteArray WriteCard(const ContactItem& item, CardVersion version) {
  return CardComposer(item, version).Compose();
}

}  // namespace quill
