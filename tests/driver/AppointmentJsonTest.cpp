#include "driver/AppointmentJson.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

#include "store/AppointmentFields.h"
#include "store/AutomationDate.h"

using namespace quill;
using namespace quill::driver;

namespace {

QJsonObject Object(const char* json) { return QJsonDocument::fromJson(json).object(); }

QJsonObject WholeFields() {
  return Object(R"({"Subject":"(Kim) tea","Location":"Seoul","Categories":"Work, Tea",
    "Start":"2004-02-01T10:00:05","End":"1890-02-01T11:30:00","Duration":90,"AllDayEvent":true,
    "Sensitivity":2,"BusyStatus":1,"ReminderSet":true,"ReminderSoundFile":"alarm1.wav",
    "ReminderOptions":29,"ReminderMinutesBeforeStart":15,"BodyInk":"aW5r"})");
}

QJsonObject WholeRecurrence() {
  return Object(R"({"RecurrenceType":4,"StartTime":"10:00:05","EndTime":"11:30:00",
    "PatternStartDate":"2004-02-01","Duration":91,"Occurrences":10,"PatternEndDate":"2004-09-15",
    "NoEndDate":false,"Interval":2,"DayOfWeekMask":128,"DayOfMonth":31,"Instance":5,
    "MonthOfYear":12})");
}

}  // namespace

TEST(AppointmentJson, EveryFieldIsTakenAndWrittenBack) {
  AppointmentItem item;
  ASSERT_TRUE(PutFields(WholeFields(), item));
  EXPECT_EQ(FieldsJson(item), WholeFields());
  EXPECT_EQ(item.Subject, QStringLiteral("(Kim) tea"));
  EXPECT_EQ(item.Start, MakeCalendarDate(QDate(2004, 2, 1), QTime(10, 0, 5)));
  EXPECT_EQ(item.End, MakeCalendarDate(QDate(1890, 2, 1), QTime(11, 30)));
  EXPECT_EQ(item.ReminderMinutesBeforeStart, 15);
  EXPECT_EQ(item.BodyInk, "ink");
  EXPECT_EQ(WholeFields().size(), qsizetype{kAppointmentFields.size()});
}

TEST(AppointmentJson, EveryMemberOfAPatternIsTakenAndWrittenBack) {
  AppointmentItem item;
  ASSERT_TRUE(PutRecurrence(WholeRecurrence(), item));
  EXPECT_EQ(RecurrenceJson(item), QJsonValue(WholeRecurrence()));
  ASSERT_TRUE(item.Recurrence);
  EXPECT_EQ(item.Recurrence->PatternEndDate, QDate(2004, 9, 15));
  EXPECT_EQ(item.Recurrence->StartTime, QTime(10, 0, 5));
  EXPECT_EQ(WholeRecurrence().size(), qsizetype{kPatternFields.size()});
}

TEST(AppointmentJson, WhatIsEmptyIsLeftOut) {
  EXPECT_EQ(FieldsJson({}),
            Object(R"({"Duration":0,"AllDayEvent":false,"Sensitivity":0,"BusyStatus":2,
              "ReminderSet":false,"ReminderSoundFile":null,"ReminderOptions":0,
              "ReminderMinutesBeforeStart":0})"));
  AppointmentItem item;
  item.Recurrence.emplace();
  const QJsonObject recurrence = RecurrenceJson(item).toObject();
  EXPECT_FALSE(recurrence.contains(u"PatternStartDate"));
  EXPECT_FALSE(recurrence.contains(u"PatternEndDate"));
  EXPECT_EQ(recurrence.size(), qsizetype{kPatternFields.size()} - 2);
}

TEST(AppointmentJson, ASoundFileIsNullOrAText) {
  AppointmentItem item;
  EXPECT_TRUE(PutFields(Object(R"({"ReminderSoundFile":""})"), item));
  EXPECT_EQ(item.ReminderSoundFile, QString());
  EXPECT_EQ(FieldsJson(item).value(u"ReminderSoundFile"), QJsonValue(QString()));
  EXPECT_TRUE(PutFields(Object(R"({"ReminderSoundFile":null})"), item));
  EXPECT_FALSE(item.ReminderSoundFile);
}

TEST(AppointmentJson, ADateIsEmptiedByNullOrAnEmptyText) {
  for (const char* const json : {R"({"Start":null})", R"({"Start":""})"}) {
    AppointmentItem item;
    ASSERT_TRUE(PutFields(WholeFields(), item));
    EXPECT_TRUE(PutFields(Object(json), item)) << json;
    EXPECT_EQ(item.Start, CalendarDate()) << json;
  }
  AppointmentItem item;
  ASSERT_TRUE(PutRecurrence(WholeRecurrence(), item));
  EXPECT_TRUE(PutRecurrence(Object(R"({"PatternEndDate":null})"), item));
  EXPECT_FALSE(item.Recurrence->PatternEndDate.isValid());
}

TEST(AppointmentJson, ANumberIsAnAutomationDate) {
  AppointmentItem item;
  EXPECT_TRUE(PutFields(Object(R"({"Start":36585.5})"), item));
  EXPECT_EQ(item.Start, MakeCalendarDate(QDate(2000, 2, 29), QTime(12, 0)));
}

TEST(AppointmentJson, SecondsMayBeLeftOut) {
  AppointmentItem item;
  EXPECT_TRUE(PutFields(Object(R"({"Start":"2004-02-01T10:30"})"), item));
  EXPECT_EQ(item.Start, MakeCalendarDate(QDate(2004, 2, 1), QTime(10, 30)));
}

TEST(AppointmentJson, WhatIsNotNamedStays) {
  AppointmentItem item;
  ASSERT_TRUE(PutFields(WholeFields(), item));
  ASSERT_TRUE(PutRecurrence(WholeRecurrence(), item));
  EXPECT_TRUE(PutFields(Object(R"({"Location":"Busan"})"), item));
  EXPECT_TRUE(PutRecurrence(Object(R"({"Interval":7})"), item));
  EXPECT_EQ(item.Subject, QStringLiteral("(Kim) tea"));
  EXPECT_EQ(item.Location, QStringLiteral("Busan"));
  EXPECT_EQ(item.Recurrence->Interval, 7);
  EXPECT_EQ(item.Recurrence->DayOfMonth, 31);
}

TEST(AppointmentJson, ANewRecurrenceBeginsAsAFreshPattern) {
  AppointmentItem item;
  ASSERT_TRUE(PutFields(WholeFields(), item));
  ASSERT_TRUE(PutRecurrence(Object(R"({"Interval":2})"), item));
  EXPECT_EQ(item.Recurrence->PatternStartDate, QDate(2004, 2, 1));
  EXPECT_EQ(item.Recurrence->DayOfWeekMask, 1);
}

TEST(AppointmentJson, NullEndsTheRecurrence) {
  AppointmentItem item;
  ASSERT_TRUE(PutRecurrence(WholeRecurrence(), item));
  EXPECT_TRUE(PutRecurrence(QJsonValue::Null, item));
  EXPECT_FALSE(item.Recurrence);
  EXPECT_EQ(RecurrenceJson(item), QJsonValue(QJsonValue::Null));
}

class WrongField : public testing::TestWithParam<const char*> {};

TEST_P(WrongField, IsRefused) {
  AppointmentItem item;
  EXPECT_FALSE(PutFields(Object(GetParam()), item));
}

INSTANTIATE_TEST_SUITE_P(
    Fields, WrongField,
    testing::Values(R"({"Colour":"red"})", R"({"Uid":"1"})", R"({"Subject":7})",
                    R"({"Duration":"7"})", R"({"Duration":1.5})", R"({"AllDayEvent":1})",
                    R"({"ReminderSoundFile":1})", R"({"BodyInk":1})", R"({"Start":true})",
                    R"({"Start":"2004-02-01"})", R"({"Start":"2004-02-01 10:00:00"})",
                    R"({"Start":"2004-02-30T10:00:00"})", R"({"Start":"2004-02-01T24:00:00"})",
                    R"({"Start":"noon"})", R"({"Start":1e300})"));

class WrongRecurrence : public testing::TestWithParam<const char*> {};

TEST_P(WrongRecurrence, IsRefused) {
  AppointmentItem item;
  EXPECT_FALSE(PutRecurrence(Object(GetParam()).value(u"recurrence"), item));
}

INSTANTIATE_TEST_SUITE_P(Values, WrongRecurrence,
                         testing::Values(R"({"recurrence":1})", R"({"recurrence":[]})",
                                         R"({"recurrence":{"Colour":1}})",
                                         R"({"recurrence":{"RecurrenceType":"1"}})",
                                         R"({"recurrence":{"StartTime":null}})",
                                         R"({"recurrence":{"StartTime":"25:00:00"}})",
                                         R"({"recurrence":{"PatternStartDate":"2004-02-30"}})",
                                         R"({"recurrence":{"PatternStartDate":true}})",
                                         R"({"recurrence":{"NoEndDate":0}})",
                                         R"({"recurrence":{"Interval":null}})"));
