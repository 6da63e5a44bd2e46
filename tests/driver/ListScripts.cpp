// The contact list over a real store: page, scroll bar, search, notices, faults.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "driver/DriverProcess.h"

using quill::test::FindText;
using quill::test::ReadyDriver;

namespace {

constexpr int kAfterNotice = 700;  // milliseconds: the list waits 500 after the last notice

QByteArray PutLine(const QByteArray& fileAs) {
  return R"({"op":"put","quiet":true,"fields":{"FileAs":")" + fileAs + R"("}})";
}

// Contacts "P 00", "P 01" and so on, of which the list shows the first page.
void FillList(ReadyDriver& driver, int count) {
  for (int i = 0; i < count; ++i)
    driver.Result(PutLine("P " + QByteArray::number(i).rightJustified(2, '0')), u"oid");
  driver.Do(R"({"op":"command","id":59413})");
}

QJsonObject List(ReadyDriver& driver) {
  return driver.Result(R"({"op":"list"})", u"list").toObject();
}

QString NameOf(const QJsonObject& list, int row) {
  return list.value(u"rows").toArray().at(row).toObject().value(u"name").toString();
}

void Scroll(ReadyDriver& driver, const QByteArray& code) {
  driver.Do(R"({"op":"scroll","on":"view","code":)" + code + '}');
}

int Top(ReadyDriver& driver) { return List(driver).value(u"top").toInt(); }

}  // namespace

TEST(List, HasEveryKeyFromTheStart) {
  ReadyDriver driver;
  const QJsonObject list = List(driver);
  EXPECT_EQ(list.keys().join(u' '),
            QStringLiteral("category categoryCount current filterKind filterSubKind "
                           "indexButton indexLower indexUpper memos mode restriction rows "
                           "rowsPerPage rowsShown scroll search selected top total"));
  EXPECT_EQ(list.value(u"category"), QStringLiteral("Show All"));
  EXPECT_EQ(list.value(u"current"), -1);
  EXPECT_EQ(list.value(u"rowsPerPage"), 14);
  EXPECT_EQ(list.value(u"restriction"), QString());
}

TEST(List, ShowsAContactThatAnotherProgramWroteHalfASecondAfterTheNotice) {
  ReadyDriver driver;
  const int oid =
      driver
          .Result(R"({"op":"put","fields":{"FileAs":"Adams","MobileTelephoneNumber":"010-1"}})",
                  u"oid")
          .toInt();
  EXPECT_EQ(List(driver).value(u"total"), 0);
  driver.Do(QByteArray(R"({"op":"wait","ms":)") + QByteArray::number(kAfterNotice) + '}');
  const QJsonObject row = List(driver).value(u"rows").toArray().at(0).toObject();
  EXPECT_EQ(row.value(u"oid"), oid);
  EXPECT_EQ(row.value(u"name"), QStringLiteral("Adams"));
  EXPECT_EQ(row.value(u"text"), QStringLiteral("010-1"));
  EXPECT_EQ(row.value(u"icon"), 1);
  const QJsonValue texts = driver.Result(R"({"op":"texts","on":"list"})", u"texts");
  EXPECT_EQ(FindText(texts, QStringLiteral("Adams")).value(u"color"), QStringLiteral("#000000"));
}

TEST(List, StaysAsItIsAfterAQuietChangeUntilItIsTold) {
  ReadyDriver driver;
  driver.Result(PutLine("Adams"), u"oid");
  driver.Do(QByteArray(R"({"op":"wait","ms":)") + QByteArray::number(kAfterNotice) + '}');
  EXPECT_EQ(List(driver).value(u"total"), 0);
  driver.Do(R"({"op":"notify","param":1})");
  driver.Do(QByteArray(R"({"op":"wait","ms":)") + QByteArray::number(kAfterNotice) + '}');
  EXPECT_EQ(List(driver).value(u"total"), 0);
  driver.Do(R"({"op":"notify","param":0})");
  driver.Do(QByteArray(R"({"op":"wait","ms":)") + QByteArray::number(kAfterNotice) + '}');
  EXPECT_EQ(List(driver).value(u"total"), 1);
}

TEST(List, PagesKeepOneRowAndStopAtTheEnd) {
  ReadyDriver driver;
  FillList(driver, 40);
  QJsonObject list = List(driver);
  EXPECT_EQ(list.value(u"total"), 40);
  EXPECT_EQ(list.value(u"rowsShown"), 14);
  EXPECT_EQ(NameOf(list, 13), QStringLiteral("P 13"));
  Scroll(driver, "\"pagedown\"");
  list = List(driver);
  EXPECT_EQ(list.value(u"top"), 13);
  EXPECT_EQ(NameOf(list, 0), QStringLiteral("P 13"));
  Scroll(driver, "\"pagedown\"");
  EXPECT_EQ(Top(driver), 26);
  Scroll(driver, "\"pagedown\"");
  list = List(driver);
  EXPECT_EQ(list.value(u"top"), 27);
  EXPECT_EQ(list.value(u"rowsShown"), 13);
  EXPECT_EQ(list.value(u"scroll").toObject().value(u"value"), 27);
  EXPECT_EQ(list.value(u"scroll").toObject().value(u"max"), 27);
  Scroll(driver, "\"pageup\"");
  EXPECT_EQ(Top(driver), 14);
}

TEST(List, LinesThumbAndIgnoredRequestsOfItsScrollBar) {
  ReadyDriver driver;
  FillList(driver, 40);
  Scroll(driver, "\"lineup\"");
  EXPECT_EQ(Top(driver), 0);
  Scroll(driver, "\"linedown\"");
  EXPECT_EQ(NameOf(List(driver), 13), QStringLiteral("P 14"));
  Scroll(driver, "\"thumbtrack\",\"value\":20");
  EXPECT_EQ(NameOf(List(driver), 0), QStringLiteral("P 20"));
  Scroll(driver, "\"bottom\"");
  EXPECT_EQ(Top(driver), 20);
  Scroll(driver, "\"endscroll\"");
  EXPECT_EQ(Top(driver), 20);
  EXPECT_EQ(driver.Error(R"({"op":"scroll","on":"view","code":"sideways"})"),
            QStringLiteral("malformed"));
}

TEST(List, ScrollsByTapsOnItsBarsArrows) {
  ReadyDriver driver;
  FillList(driver, 40);
  const QJsonObject bar = driver.Result(R"({"op":"where","on":1024})", u"where").toObject();
  const QByteArray low = QByteArray::number(bar.value(u"h").toInt() - 4);
  driver.Do(R"({"op":"tap","on":1024,"x":7,"y":)" + low + '}');
  EXPECT_EQ(Top(driver), 1);
  driver.Do(R"({"op":"tap","on":1024,"x":7,"y":4})");
  EXPECT_EQ(Top(driver), 0);
}

TEST(Search, FindsByThePrefixOfTheName) {
  ReadyDriver driver;
  for (const char* const name : {"Kim Chulsoo", "Kimball", "Koch", "Adams", "kim minor"})
    driver.Result(PutLine(name), u"oid");
  driver.Do(R"({"op":"command","id":59413})");
  EXPECT_EQ(List(driver).value(u"total"), 5);
  driver.Do(R"({"op":"set","id":1028,"text":"Kim"})");
  driver.Do(R"({"op":"click","id":1035})");
  const QJsonObject list = List(driver);
  EXPECT_EQ(list.value(u"total"), 3);
  EXPECT_EQ(NameOf(list, 0), QStringLiteral("Kim Chulsoo"));
  EXPECT_EQ(NameOf(list, 1), QStringLiteral("kim minor"));
  EXPECT_EQ(list.value(u"search"), QStringLiteral("Kim"));
  EXPECT_EQ(list.value(u"filterKind"), 2);
  EXPECT_EQ(list.value(u"filterSubKind"), 3);
}

TEST(Search, StartsByTheReturnKeyInTheBoxAndTakesHangul) {
  ReadyDriver driver;
  driver.Result(PutLine("\xea\xb9\x80\xec\xb2\xa0\xec\x88\x98"), u"oid");
  driver.Result(PutLine("Adams"), u"oid");
  driver.Do(R"({"op":"tap","on":1028,"x":20,"y":9})");
  driver.Do("{\"op\":\"type\",\"text\":\"\xea\xb9\x80\"}");
  driver.Do(R"({"op":"key","key":"Return"})");
  const QJsonObject list = List(driver);
  EXPECT_EQ(list.value(u"total"), 1);
  EXPECT_EQ(NameOf(list, 0), QString::fromUtf8("\xea\xb9\x80\xec\xb2\xa0\xec\x88\x98"));
}

TEST(Faults, ReadThatFailsEndsThePageThere) {
  ReadyDriver driver;
  FillList(driver, 5);
  const int third = List(driver).value(u"rows").toArray().at(2).toObject().value(u"oid").toInt();
  driver.Do(R"({"op":"fault","name":"read","on":true,"oid":)" + QByteArray::number(third) + '}');
  driver.Do(R"({"op":"command","id":59413})");
  EXPECT_EQ(List(driver).value(u"rowsShown"), 2);
  driver.Do(R"({"op":"fault","name":"read","on":false})");
  driver.Do(R"({"op":"command","id":59413})");
  EXPECT_EQ(List(driver).value(u"rowsShown"), 5);
}

TEST(Faults, RestrictionThatFailsGivesAnEmptyList) {
  ReadyDriver driver;
  FillList(driver, 5);
  driver.Do(R"({"op":"fault","name":"restrict","on":true})");
  driver.Do(R"({"op":"set","id":1028,"text":"P"})");
  driver.Do(R"({"op":"click","id":1035})");
  EXPECT_EQ(List(driver).value(u"rowsShown"), 0);
  EXPECT_EQ(driver.Error(R"({"op":"fault","name":"rain","on":true})"), QStringLiteral("unknown"));
}

TEST(BackDoor, WritesAndReadsEveryKindOfField) {
  ReadyDriver driver;
  const int oid = driver
                      .Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"Adams",)"
                              R"("Birthday":"2004-02-01","Anniversary":0,"BodyInk":"AQID"}})",
                              u"oid")
                      .toInt();
  const QByteArray number = QByteArray::number(oid);
  QJsonObject fields =
      driver.Result(R"({"op":"contact","oid":)" + number + '}', u"fields").toObject();
  EXPECT_EQ(fields, (QJsonObject{{QStringLiteral("FileAs"), QStringLiteral("Adams")},
                                 {QStringLiteral("Birthday"), QStringLiteral("2004-02-01")},
                                 {QStringLiteral("BodyInk"), QStringLiteral("AQID")}}));
  driver.Result(R"({"op":"put","quiet":true,"oid":)" + number + R"(,"fields":{"Spouse":"Eve"}})",
                u"oid");
  fields =
      driver.Result(R"({"op":"contact","raw":true,"oid":)" + number + '}', u"fields").toObject();
  EXPECT_EQ(fields.value(u"Anniversary"), 0.0);
  EXPECT_EQ(fields.value(u"Birthday"), 38018.0);
  EXPECT_EQ(fields.value(u"Spouse"), QStringLiteral("Eve"));
  driver.Do(R"({"op":"drop-contact","quiet":true,"oid":)" + number + '}');
  EXPECT_EQ(driver.Error(R"({"op":"contact","oid":)" + number + '}'), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"put","fields":{"Wings":"2"}})"), QStringLiteral("malformed"));
}

TEST(List, ShowsAllTheDotsOfALongNameInHangul) {
  ReadyDriver driver;
  const QString name(9, u'\uae40');
  driver.Ask(R"({"op":"put","quiet":true,"fields":{"FileAs":")" + name.toUtf8() + R"("}})");
  driver.Do(R"({"op":"command","id":59413})");
  const QJsonValue shown = driver.Result(R"({"op":"texts","on":"list"})", u"texts")[0];
  EXPECT_TRUE(shown[u"text"].toString().endsWith(QStringLiteral("...")));
  EXPECT_TRUE(shown[u"cut"].isUndefined());
}

TEST(TenThousandContacts, AreImportedPagedAndSearched) {
  const QTemporaryDir home;
  QFile cards(home.filePath(QStringLiteral("people.vcf")));
  ASSERT_TRUE(cards.open(QIODevice::WriteOnly));
  for (int i = 0; i < 10000; ++i) {
    const QByteArray name = "Person" + QByteArray::number(i).rightJustified(5, '0');
    cards.write("BEGIN:VCARD\r\nVERSION:3.0\r\nN:" + name + ";Pat;;;\r\nFN:Pat " + name +
                "\r\nEND:VCARD\r\n");
  }
  cards.close();
  ASSERT_EQ(
      QProcess::execute(QStringLiteral(QUILL_PROGRAM), {QStringLiteral("import"), cards.fileName(),
                                                        QStringLiteral("--home"), home.path()}),
      0);
  ReadyDriver driver({QStringLiteral("--home"), home.path()});
  EXPECT_EQ(List(driver).value(u"total"), 10000);
  Scroll(driver, "\"thumbtrack\",\"value\":5000");
  EXPECT_TRUE(NameOf(List(driver), 0).startsWith(QStringLiteral("Person05000")));
  Scroll(driver, "\"pagedown\"");
  EXPECT_TRUE(NameOf(List(driver), 0).startsWith(QStringLiteral("Person05013")));
  driver.Do(R"({"op":"set","id":1028,"text":"person099"})");
  driver.Do(R"({"op":"click","id":1035})");
  EXPECT_EQ(List(driver).value(u"total"), 100);
}
