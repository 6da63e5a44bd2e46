// The record sheet end to end: every field edited, drafts, the card.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class RecordScript : public testing::Test {
 protected:
  QStringList Arguments() const { return {QStringLiteral("--home"), m_home.path()}; }

  QTemporaryDir m_home;
};

constexpr char kNew[] = R"({"op":"command","id":57600})";

int Put(ReadyDriver& driver, const QByteArray& fields) {
  const int oid =
      driver.Result(R"({"op":"put","quiet":true,"fields":)" + fields + '}', u"oid").toInt();
  driver.Do(R"({"op":"command","id":59413})");
  return oid;
}

QJsonObject Fields(ReadyDriver& driver, int oid) {
  return driver.Result(R"({"op":"contact","oid":)" + QByteArray::number(oid) + '}', u"fields")
      .toObject();
}

void OpenFirst(ReadyDriver& driver) { driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})"); }

void ShowPage(ReadyDriver& driver, int page) {
  driver.Ask(R"({"op":"page","index":)" + QByteArray::number(page) + '}');
}

// With the panel down, so that every row stands where it is expected.
void TapRow(ReadyDriver& driver, int row, int x = 120) {
  driver.Ask(R"({"op":"panel","up":false})");
  driver.Do(R"({"op":"tap","on":"rows","x":)" + QByteArray::number(x) + R"(,"y":)" +
            QByteArray::number(19 * row + 9) + '}');
}

// The closing row stands below every editor of parts.
void CloseParts(ReadyDriver& driver) { TapRow(driver, 11, 10); }

void Type(ReadyDriver& driver, const QByteArray& text) {
  driver.Do(R"({"op":"type","text":")" + text + R"("})");
}

void EditRow(ReadyDriver& driver, int row, const QByteArray& text) {
  TapRow(driver, row);
  Type(driver, text);
}

void EditPart(ReadyDriver& driver, int y, const QByteArray& text) {
  driver.Do(R"({"op":"tap","on":"parts","x":100,"y":)" + QByteArray::number(y) + '}');
  Type(driver, text);
}

void OK(ReadyDriver& driver) { driver.Do(R"({"op":"ok"})"); }

void ClickControl(ReadyDriver& driver, int id) {
  driver.Do(R"({"op":"click","id":)" + QByteArray::number(id) + '}');
}

QString RowValue(ReadyDriver& driver, int row) {
  return driver.Result(R"({"op":"rows"})", u"rows").toArray()[row].toObject()[u"value"].toString();
}

}  // namespace

TEST_F(RecordScript, EveryFieldWithARowIsEditedAndTheOthersStay) {
  ReadyDriver driver(Arguments());
  const int oid = Put(driver, R"({"FileAs":"Kim","CarTelephoneNumber":"car","Email3Address":"e3",)"
                              R"("RadioTelephoneNumber":"radio","OtherAddressCity":"other",)"
                              R"("BodyInk":"aW5r","Birthday":"1970-02-28"})");
  OpenFirst(driver);
  TapRow(driver, 0);
  for (const auto& [y, text] : {std::pair(9, "T"), {28, "F"}, {47, "M"}, {66, "L"}, {85, "S"}})
    EditPart(driver, y, text);
  CloseParts(driver);
  for (int row = 1; row <= 7; ++row) EditRow(driver, row, "b" + QByteArray::number(row));
  TapRow(driver, 8);
  for (const auto& [y, text] :
       {std::pair(25, "ws"), {60, "wc"}, {79, "wst"}, {98, "wz"}, {117, "wco"}})
    EditPart(driver, y, text);
  CloseParts(driver);
  EditRow(driver, 9, "b9");
  ShowPage(driver, 1);
  for (const int row : {0, 1, 2, 3, 5, 6, 9, 10})
    EditRow(driver, row, "d" + QByteArray::number(row));
  TapRow(driver, 4);
  for (const auto& [y, text] :
       {std::pair(25, "hs"), {60, "hc"}, {79, "hst"}, {98, "hz"}, {117, "hco"}})
    EditPart(driver, y, text);
  CloseParts(driver);
  TapRow(driver, 7);
  driver.Do(R"({"op":"set","id":716,"date":"1971-03-01"})");
  TapRow(driver, 8);
  driver.Do(R"({"op":"set","id":716,"date":"2001-12-31"})");
  OK(driver);
  const QJsonObject expected{
      {u"FileAs"_qs, u"Kim"_qs},
      {u"Title"_qs, u"T"_qs},
      {u"FirstName"_qs, u"F"_qs},
      {u"MiddleName"_qs, u"M"_qs},
      {u"LastName"_qs, u"L"_qs},
      {u"Suffix"_qs, u"S"_qs},
      {u"JobTitle"_qs, u"b1"_qs},
      {u"Department"_qs, u"b2"_qs},
      {u"CompanyName"_qs, u"b3"_qs},
      {u"MobileTelephoneNumber"_qs, u"b4"_qs},
      {u"BusinessTelephoneNumber"_qs, u"b5"_qs},
      {u"BusinessFaxNumber"_qs, u"b6"_qs},
      {u"HomeTelephoneNumber"_qs, u"b7"_qs},
      {u"BusinessAddressStreet"_qs, u"ws"_qs},
      {u"BusinessAddressCity"_qs, u"wc"_qs},
      {u"BusinessAddressState"_qs, u"wst"_qs},
      {u"BusinessAddressPostalCode"_qs, u"wz"_qs},
      {u"BusinessAddressCountry"_qs, u"wco"_qs},
      {u"Email1Address"_qs, u"b9"_qs},
      {u"PagerNumber"_qs, u"d0"_qs},
      {u"Business2TelephoneNumber"_qs, u"d1"_qs},
      {u"Home2TelephoneNumber"_qs, u"d2"_qs},
      {u"HomeFaxNumber"_qs, u"d3"_qs},
      {u"Email2Address"_qs, u"d5"_qs},
      {u"WebPage"_qs, u"d6"_qs},
      {u"Spouse"_qs, u"d9"_qs},
      {u"Children"_qs, u"d10"_qs},
      {u"HomeAddressStreet"_qs, u"hs"_qs},
      {u"HomeAddressCity"_qs, u"hc"_qs},
      {u"HomeAddressState"_qs, u"hst"_qs},
      {u"HomeAddressPostalCode"_qs, u"hz"_qs},
      {u"HomeAddressCountry"_qs, u"hco"_qs},
      {u"Birthday"_qs, u"1971-03-01"_qs},
      {u"Anniversary"_qs, u"2001-12-31"_qs},
      {u"CarTelephoneNumber"_qs, u"car"_qs},
      {u"Email3Address"_qs, u"e3"_qs},
      {u"RadioTelephoneNumber"_qs, u"radio"_qs},
      {u"OtherAddressCity"_qs, u"other"_qs},
      {u"BodyInk"_qs, u"aW5r"_qs},
  };
  EXPECT_EQ(Fields(driver, oid), expected);
}

TEST_F(RecordScript, WhatAnotherProgramChangedMeanwhileStays) {
  ReadyDriver driver(Arguments());
  const int oid = Put(driver, R"({"FileAs":"Kim","BusinessTelephoneNumber":"1"})");
  OpenFirst(driver);
  driver.Result(R"({"op":"put","quiet":true,"oid":)" + QByteArray::number(oid) +
                    R"(,"fields":{"BusinessTelephoneNumber":"2","BodyInk":"aW5r"}})",
                u"oid");
  EditRow(driver, 1, "Pilot");
  OK(driver);
  const QJsonObject expected{{u"FileAs"_qs, u"Kim"_qs},
                             {u"JobTitle"_qs, u"Pilot"_qs},
                             {u"BusinessTelephoneNumber"_qs, u"2"_qs},
                             {u"BodyInk"_qs, u"aW5r"_qs}};
  EXPECT_EQ(Fields(driver, oid), expected);
}

TEST_F(RecordScript, AContactDeletedMeanwhileInWhichNothingWasEnteredIsNotOffered) {
  ReadyDriver driver(Arguments());
  const int oid = Put(driver, R"({"FileAs":"Kim"})");
  OpenFirst(driver);
  driver.Do(R"({"op":"drop-contact","quiet":true,"oid":)" + QByteArray::number(oid) + '}');
  OK(driver);
  driver.Do(kNew);
  EXPECT_FALSE(driver.Ask(R"({"op":"get","id":1101})")[u"ok"].toBool());
}

TEST_F(RecordScript, LinesPastedIntoARowAreJoinedByBlanks) {
  ReadyDriver driver(Arguments());
  const int oid = Put(driver, R"({"FileAs":"Kim","BusinessAddressStreet":"a\nb",)"
                              R"("Department":"c\r\nd"})");
  OpenFirst(driver);
  TapRow(driver, 8);
  driver.Do(R"({"op":"tap","on":"parts","x":100,"y":25})");
  driver.Do(R"({"op":"command","id":40020})");
  driver.Do(R"({"op":"tap","on":"parts","x":100,"y":60})");
  driver.Do(R"({"op":"key","key":"Ctrl+V"})");
  CloseParts(driver);
  TapRow(driver, 1);
  driver.Do(R"({"op":"command","id":40021})");
  TapRow(driver, 2);
  driver.Do(R"({"op":"key","key":"End"})");
  Type(driver, "e");
  OK(driver);
  const QJsonObject expected{{u"FileAs"_qs, u"Kim"_qs},
                             {u"BusinessAddressStreet"_qs, u"a\nb"_qs},
                             {u"BusinessAddressCity"_qs, u"a b"_qs},
                             {u"JobTitle"_qs, u"a b"_qs},
                             {u"Department"_qs, u"c\r\nde"_qs}};
  EXPECT_EQ(Fields(driver, oid), expected);
}

TEST_F(RecordScript, UndoIsOverWithTheEdit) {
  ReadyDriver driver(Arguments());
  Put(driver, R"({"FileAs":"Kim"})");
  OpenFirst(driver);
  EditRow(driver, 1, "Pilot");
  EXPECT_NE(driver.Ask(R"({"op":"command","id":32773})")[u"error"], QStringLiteral("disabled"));
  EditRow(driver, 1, "Painter");
  TapRow(driver, 11, 10);
  EXPECT_EQ(driver.Error(R"({"op":"command","id":32773})"), QStringLiteral("disabled"));
}

TEST_F(RecordScript, TypingBringsARowThatWasScrolledAwayBackIntoSight) {
  ReadyDriver driver(Arguments());
  Put(driver, R"({"FileAs":"Kim"})");
  OpenFirst(driver);
  TapRow(driver, 1);
  driver.Ask(R"({"op":"panel","up":true})");
  driver.Do(R"({"op":"scroll","on":1006,"code":"pagedown"})");
  const auto top = [&] {
    return driver.Result(R"({"op":"get","id":713})", u"control")[u"y"].toInt();
  };
  EXPECT_LT(top(), 0);
  Type(driver, "x");
  EXPECT_EQ(top(), 10);
}

TEST_F(RecordScript, ByKeyAnEditedNumberIsOfferedToBeCalled) {
  ReadyDriver driver(Arguments());
  Put(driver, R"({"FileAs":"Kim","MobileTelephoneNumber":"010-1"})");
  OpenFirst(driver);
  TapRow(driver, 4);
  driver.Do(R"({"op":"key","key":"Menu"})");
  const QJsonArray items = driver.Result(R"({"op":"popup"})", u"popup").toArray();
  ASSERT_EQ(items.size(), 7);
  EXPECT_EQ(items[6][u"text"], QStringLiteral("Call"));
  driver.Do(R"({"op":"dismiss"})");
}

TEST_F(RecordScript, CategoriesAreChosenAndNoCategoriesIsNone) {
  ReadyDriver driver(Arguments());
  const int oid = Put(driver, R"({"FileAs":"Kim","Categories":"Elsewhere"})");
  OpenFirst(driver);
  TapRow(driver, 10);
  driver.Do(R"({"op":"set","id":1000,"index":0,"checked":true})");
  OK(driver);
  EXPECT_TRUE(RowValue(driver, 10).contains(u"Elsewhere"));
  OK(driver);
  EXPECT_TRUE(Fields(driver, oid)[u"Categories"].toString().contains(u','));
}

TEST_F(RecordScript, ANewContactWithoutAnyNameIsNotWrittenButOfferedToTheNext) {
  ReadyDriver driver(Arguments());
  driver.Do(kNew);
  EditRow(driver, 1, "Pilot");
  OK(driver);
  EXPECT_TRUE(driver.Result(R"({"op":"contacts"})", u"contacts").toArray().isEmpty());
  driver.Do(kNew);
  ClickControl(driver, 1101);
  EXPECT_EQ(RowValue(driver, 1), QStringLiteral("Pilot"));
  EditRow(driver, 3, "Quill");
  OK(driver);
  const QJsonArray contacts = driver.Result(R"({"op":"contacts"})", u"contacts").toArray();
  ASSERT_EQ(contacts.size(), 1);
  EXPECT_EQ(contacts[0][u"fields"][u"JobTitle"].toString(), QStringLiteral("Pilot"));
}

TEST_F(RecordScript, ADraftIsTakenBackByKeys) {
  ReadyDriver driver(Arguments());
  driver.Do(kNew);
  EditRow(driver, 1, "Pilot");
  OK(driver);
  driver.Do(kNew);
  for (const int id : {1102, 1101}) {
    driver.Do(R"({"op":"key","key":"Shift+Tab"})");
    EXPECT_EQ(driver.Result(R"({"op":"focus"})", u"focus")[u"id"], id);
  }
  driver.Do(R"({"op":"key","key":"Space"})");
  EXPECT_EQ(RowValue(driver, 1), QStringLiteral("Pilot"));
}

TEST_F(RecordScript, WhatTheStoreCouldNotWriteIsOfferedAfterARestart) {
  {
    ReadyDriver driver(Arguments());
    Put(driver, R"({"FileAs":"Kim","CompanyName":"Old"})");
    OpenFirst(driver);
    EditRow(driver, 3, "Newer");
    driver.Do(R"({"op":"fault","name":"write","on":true})");
    OK(driver);
  }
  ReadyDriver driver(Arguments());
  driver.Do(kNew);
  EXPECT_FALSE(driver.Ask(R"({"op":"get","id":1101})")[u"ok"].toBool());
  driver.Do(R"({"op":"cancel"})");
  OpenFirst(driver);
  ClickControl(driver, 1101);
  EXPECT_EQ(RowValue(driver, 0), QStringLiteral("Kim")) << "as when it is opened";
  EXPECT_EQ(RowValue(driver, 3), QStringLiteral("Newer"));
  OK(driver);
  const QJsonArray contacts = driver.Result(R"({"op":"contacts"})", u"contacts").toArray();
  ASSERT_EQ(contacts.size(), 1);
  EXPECT_EQ(contacts[0][u"fields"][u"CompanyName"].toString(), QStringLiteral("Newer"));
}

TEST_F(RecordScript, AContactThatCannotBeReadIsNotWrittenOver) {
  ReadyDriver driver(Arguments());
  const int oid = Put(driver, R"({"FileAs":"Kim","MobileTelephoneNumber":"010"})");
  driver.Do(R"({"op":"fault","name":"read","on":true})");
  OpenFirst(driver);
  driver.Do(R"({"op":"fault","name":"read","on":false})");
  EditRow(driver, 3, "Quill");
  OK(driver);
  EXPECT_EQ(Fields(driver, oid)[u"MobileTelephoneNumber"].toString(), QStringLiteral("010"));
}

TEST_F(RecordScript, AnotherProgramsNewContactHoldsItsText) {
  ReadyDriver driver(Arguments());
  EXPECT_EQ(driver.Result(R"({"op":"copydata","kind":2,"text":"0101234"})", u"copydata"), true);
  driver.Do(R"({"op":"wait","ms":300})");
  EXPECT_EQ(RowValue(driver, 1), QStringLiteral("0101234"));
}

TEST_F(RecordScript, ImportedDetailsAreReadBehindTheTitleBar) {
  ReadyDriver driver(Arguments());
  Put(driver, R"({"FileAs":"Kim","CarTelephoneNumber":"011-9"})");
  OpenFirst(driver);
  driver.Do(R"({"op":"command","id":60006})");
  const QString text = driver.Result(R"({"op":"get","id":1001})", u"control")[u"text"].toString();
  EXPECT_TRUE(text.contains(u"011-9")) << text.toStdString();
}
