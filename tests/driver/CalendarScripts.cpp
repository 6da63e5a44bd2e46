// The calendar's back door.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

constexpr char kPutMeeting[] =
    R"({"op":"put-appointment","fields":{"Subject":"(Kim) tea","Start":"2004-02-01T10:00:00",)"
    R"("End":"2004-02-01T11:00:00"}})";

}  // namespace

TEST(Calendar, AnAppointmentIsPutReadChangedAndDropped) {
  ReadyDriver driver;
  EXPECT_EQ(driver.AskForLine(kPutMeeting), R"({"ok":true,"oid":1})");
  driver.Result(R"({"op":"put-appointment","oid":1,"fields":{"Location":"Seoul"},)"
                R"("recurrence":{"RecurrenceType":4,"DayOfWeekMask":0}})",
                u"oid");
  const QJsonObject item = driver.Ask(R"({"op":"appointment","oid":1})");
  const QJsonObject fields = item.value(u"fields").toObject();
  EXPECT_EQ(fields.value(u"Subject"), QStringLiteral("(Kim) tea"));
  EXPECT_EQ(fields.value(u"Location"), QStringLiteral("Seoul"));
  EXPECT_EQ(fields.value(u"Start"), QStringLiteral("2004-02-01T10:00:00"));
  const QJsonObject recurrence = item.value(u"recurrence").toObject();
  EXPECT_EQ(recurrence.value(u"RecurrenceType"), 4);
  EXPECT_EQ(recurrence.value(u"DayOfWeekMask"), 0);
  driver.Do(R"({"op":"drop-appointment","oid":1})");
  EXPECT_EQ(driver.Error(R"({"op":"appointment","oid":1})"), QStringLiteral("unknown"));
}

TEST(Calendar, EveryAppointmentIsListedInOidOrder) {
  ReadyDriver driver;
  driver.Result(kPutMeeting, u"oid");
  driver.Result(R"({"op":"put-appointment","fields":{"Subject":"a"},"recurrence":{}})", u"oid");
  const QJsonArray items = driver.Result(R"({"op":"appointments"})", u"appointments").toArray();
  ASSERT_EQ(items.size(), 2);
  EXPECT_EQ(items.at(0).toObject().value(u"oid"), 1);
  EXPECT_TRUE(items.at(0).toObject().value(u"recurrence").isNull());
  const QJsonObject second = items.at(1).toObject();
  EXPECT_EQ(second.value(u"fields").toObject().value(u"Subject"), QStringLiteral("a"));
  EXPECT_TRUE(second.value(u"recurrence").isObject());
}

TEST(Calendar, WhatIsWrongIsRefusedAndChangesNothing) {
  ReadyDriver driver;
  for (const char* const request :
       {R"({"op":"appointment"})", R"({"op":"drop-appointment","oid":"1"})",
        R"({"op":"put-appointment","fields":{"Colour":"red"}})",
        R"({"op":"put-appointment","fields":{},"recurrence":7})"}) {
    EXPECT_EQ(driver.Error(request), QStringLiteral("malformed")) << request;
  }
  for (const char* const request :
       {R"({"op":"appointment","oid":1})", R"({"op":"drop-appointment","oid":1})",
        R"({"op":"put-appointment","oid":1,"fields":{}})"}) {
    EXPECT_EQ(driver.Error(request), QStringLiteral("unknown")) << request;
  }
  EXPECT_EQ(driver.Result(R"({"op":"appointments"})", u"appointments").toArray().size(), 0);
}

TEST(Calendar, ItsFaultsAreKnown) {
  ReadyDriver driver;
  driver.Do(R"({"op":"fault","name":"save-appointment","on":true})");
  driver.Do(R"({"op":"fault","name":"appointment-ink","on":true,"oid":1})");
  // The back door lies below the faults.
  EXPECT_EQ(driver.Result(kPutMeeting, u"oid"), 1);
}
