#include "editor/DraftJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

#include "store/ContactFields.h"

namespace quill {

namespace {

constexpr QStringView kDrafts = u"drafts";
constexpr QStringView kNumber = u"number";
constexpr QStringView kOid = u"oid";
constexpr QStringView kFileAs = u"fileAs";
constexpr QStringView kEntered = u"entered";
constexpr QStringView kOpened = u"opened";
constexpr QStringView kTexts = u"texts";
constexpr QStringView kDates = u"dates";
constexpr QStringView kInk = u"ink";

constexpr std::array kDateParts = {&CalendarDate::Year,      &CalendarDate::Month,
                                   &CalendarDate::DayOfWeek, &CalendarDate::Day,
                                   &CalendarDate::Hour,      &CalendarDate::Minute,
                                   &CalendarDate::Second,    &CalendarDate::Millisecond};

QJsonArray JsonFromDate(const CalendarDate& date) {
  QJsonArray parts;
  for (const auto part : kDateParts) parts.append(date.*part);
  return parts;
}

CalendarDate DateFromJson(const QJsonArray& parts) {
  CalendarDate date;
  for (std::size_t i = 0; i < kDateParts.size(); ++i)
    date.*kDateParts[i] = static_cast<quint16>(parts.at(static_cast<qsizetype>(i)).toInt());
  return date;
}

QJsonObject JsonFromTexts(const ContactRecord& record) {
  QJsonObject texts;
  for (const ContactFieldRow& row : kContactFields)
    if (!record[row.Field].isEmpty()) texts.insert(row.Property, record[row.Field]);
  return texts;
}

QJsonObject JsonFromDates(const ContactRecord& record) {
  QJsonObject dates;
  for (const ContactDateRow& row : kContactDates)
    if ((record.*row.Date).Year != 0) dates.insert(row.Property, JsonFromDate(record.*row.Date));
  return dates;
}

QJsonObject JsonFromContent(const ContactRecord& record, const QByteArray& ink) {
  QJsonObject json;
  json.insert(kTexts, JsonFromTexts(record));
  json.insert(kDates, JsonFromDates(record));
  json.insert(kInk, QString::fromLatin1(ink.toBase64()));
  return json;
}

QJsonObject JsonFromDraft(const Draft& draft) {
  QJsonObject json;
  json.insert(kNumber, draft.Number);
  json.insert(kOid, draft.Oid);
  json.insert(kFileAs, draft.FileAs);
  json.insert(kEntered, JsonFromContent(draft.Record, draft.Ink));
  json.insert(kOpened, JsonFromContent(draft.Opened, draft.OpenedInk));
  return json;
}

// False when the object is no such content.
bool TakeContent(const QJsonObject& json, ContactRecord& record, QByteArray& ink) {
  const auto bytes = QByteArray::fromBase64Encoding(json.value(kInk).toString().toLatin1(),
                                                    QByteArray::AbortOnBase64DecodingErrors);
  const bool isContent = json.value(kTexts).isObject() && json.value(kDates).isObject() &&
                         json.value(kInk).isString() && bytes;
  if (!isContent) return false;
  const QJsonObject texts = json.value(kTexts).toObject();
  for (const ContactFieldRow& row : kContactFields)
    record[row.Field] = texts.value(row.Property).toString();
  const QJsonObject dates = json.value(kDates).toObject();
  for (const ContactDateRow& row : kContactDates)
    record.*row.Date = DateFromJson(dates.value(row.Property).toArray());
  ink = *bytes;
  return true;
}

bool IsDraft(const QJsonObject& json) {
  return json.value(kNumber).toInt() > 0 && json.value(kOid).isDouble() &&
         json.value(kFileAs).isString();
}

std::optional<Draft> DraftFromJson(const QJsonObject& json) {
  if (!IsDraft(json)) return std::nullopt;
  Draft draft{.Number = json.value(kNumber).toInt(),
              .Oid = json.value(kOid).toInt(),
              .FileAs = json.value(kFileAs).toString()};
  const bool isWhole = TakeContent(json.value(kEntered).toObject(), draft.Record, draft.Ink) &&
                       TakeContent(json.value(kOpened).toObject(), draft.Opened, draft.OpenedInk);
  return isWhole ? std::optional(draft) : std::nullopt;
}

}  // namespace

QByteArray JsonFromDrafts(const std::vector<Draft>& drafts) {
  QJsonArray list;
  for (const Draft& draft : drafts) list.append(JsonFromDraft(draft));
  QJsonObject json;
  json.insert(kDrafts, list);
  return QJsonDocument(json).toJson();
}

std::optional<std::vector<Draft>> DraftsFromJson(const QByteArray& json) {
  const QJsonValue list = QJsonDocument::fromJson(json).object().value(kDrafts);
  if (!list.isArray()) return std::nullopt;
  std::vector<Draft> drafts;
  const QJsonArray entries = list.toArray();
  for (qsizetype i = 0; i < entries.size(); ++i) {
    auto draft = DraftFromJson(entries.at(i).toObject());
    if (!draft) return std::nullopt;
    drafts.push_back(std::move(*draft));
  }
  return drafts;
}

}  // namespace quill
