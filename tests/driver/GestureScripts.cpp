// Pen and keys on the contact list: what they select and open.
#include <gtest/gtest.h>

#include <QHash>

#include <array>

#include "driver/DriverProcess.h"

using quill::test::FindText;
using quill::test::ReadyDriver;

namespace {

QByteArray PutLine(const QByteArray& fileAs) {
  return R"({"op":"put","quiet":true,"fields":{"FileAs":")" + fileAs +
         R"(","MobileTelephoneNumber":"010-1"}})";
}

// Contacts "P 00", "P 01" and so on.
void FillList(ReadyDriver& driver, int count) {
  for (int i = 0; i < count; ++i)
    driver.Result(PutLine("P " + QByteArray::number(i).rightJustified(2, '0')), u"oid");
  driver.Do(R"({"op":"command","id":59413})");
}

// A pen operation on a row of the list.
void Pen(ReadyDriver& driver, const QByteArray& operation, int row, int x = 50) {
  driver.Do(R"({"op":")" + operation + R"(","on":"list","x":)" + QByteArray::number(x) +
            R"(,"y":)" + QByteArray::number(16 * row + 8) + '}');
}

void Key(ReadyDriver& driver, const QByteArray& key) {
  driver.Do(R"({"op":"key","key":")" + key + R"("})");
}

QJsonObject List(ReadyDriver& driver) {
  return driver.Result(R"({"op":"list"})", u"list").toObject();
}

int Current(ReadyDriver& driver) { return List(driver).value(u"current").toInt(); }

// The names behind the selected keys, in their order; a key that is not on the page is "?".
QString Selected(ReadyDriver& driver) {
  const QJsonObject list = List(driver);
  QHash<int, QString> names;
  const QJsonArray rows = list.value(u"rows").toArray();
  for (const auto& row : rows) names.insert(row[u"oid"].toInt(), row[u"name"].toString());
  QStringList selected;
  const QJsonArray keys = list.value(u"selected").toArray();
  for (const auto& key : keys) selected.append(names.value(key.toInt(), QStringLiteral("?")));
  return selected.join(u';');
}

// Of whom the record sheet on top is; empty when there is none.
QString Opened(ReadyDriver& driver) {
  const QJsonArray rows = driver.Ask(R"({"op":"rows"})")[u"rows"].toArray();
  return rows.isEmpty() ? QString() : rows.first()[u"value"].toString();
}

void CloseSheet(ReadyDriver& driver) { driver.Do(R"({"op":"cancel"})"); }

// Whose card is shown; 0 when there is none.
int Card(ReadyDriver& driver) {
  return driver.Result(R"({"op":"card"})", u"card").toObject()[u"oid"].toInt();
}

}  // namespace

TEST(ListPen, ATapSelectsTheContactAndOpensIt) {
  ReadyDriver driver;
  FillList(driver, 20);
  EXPECT_EQ(Current(driver), -1);
  Pen(driver, "tap", 2);
  EXPECT_EQ(Opened(driver), QStringLiteral("P 02"));
  EXPECT_EQ(Selected(driver), QStringLiteral("P 02"));
  EXPECT_EQ(Current(driver), 2);
  CloseSheet(driver);
  EXPECT_EQ(Opened(driver), QString());
  EXPECT_EQ(Selected(driver), QStringLiteral("P 02"));
}

TEST(ListPen, ADoubleTapNeverOpensTwoWindows) {
  ReadyDriver driver;
  FillList(driver, 20);
  for (const int x : {50, 205}) {
    Pen(driver, "doubletap", 2, x);
    const QJsonArray windows = driver.Result(R"({"op":"windows"})", u"windows").toArray();
    EXPECT_EQ(windows.size(), 2) << x;
    EXPECT_EQ(Card(driver) != 0, x == 205);
    if (x == 50) CloseSheet(driver);
  }
}

TEST(ListPen, ATapInTheCardsStripShowsTheCard) {
  ReadyDriver driver;
  FillList(driver, 20);
  Pen(driver, "tap", 3, 205);
  EXPECT_EQ(Opened(driver), QString());
  EXPECT_EQ(Selected(driver), QStringLiteral("P 03"));
  EXPECT_EQ(Card(driver), List(driver)[u"rows"][3][u"oid"].toInt());
  Key(driver, "Escape");
  EXPECT_EQ(Card(driver), 0);
}

TEST(ListPen, ADragSelectsARunInTheOrderOfTheDrag) {
  ReadyDriver driver;
  FillList(driver, 20);
  Pen(driver, "press", 5);
  Pen(driver, "move", 2);
  Pen(driver, "move", 3);
  EXPECT_EQ(Current(driver), 3);
  Pen(driver, "release", 3);
  EXPECT_EQ(Selected(driver), QStringLiteral("P 05;P 04;P 03"));
  EXPECT_EQ(Current(driver), 5);
  EXPECT_EQ(Opened(driver), QString());
}

TEST(ListPen, ADragBackToItsRowIsATapEvenAfterALongTime) {
  ReadyDriver driver;
  FillList(driver, 20);
  Pen(driver, "press", 2);
  Pen(driver, "move", 4);
  Pen(driver, "move", 2);
  driver.Do(R"({"op":"wait","ms":600})");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 02"));
  Pen(driver, "release", 2);
  EXPECT_EQ(Opened(driver), QStringLiteral("P 02"));
}

TEST(ListPen, AHoldSelectsAndItsReleaseOpensNothing) {
  ReadyDriver driver;
  FillList(driver, 20);
  Pen(driver, "hold", 4);
  EXPECT_EQ(Selected(driver), QStringLiteral("P 04"));
  Pen(driver, "release", 4);
  EXPECT_EQ(Opened(driver), QString());
  EXPECT_EQ(Selected(driver), QStringLiteral("P 04"));
}

TEST(ListPen, ATapBelowTheLastRowClearsTheSelection) {
  ReadyDriver driver;
  FillList(driver, 3);
  Pen(driver, "tap", 1, 205);
  Pen(driver, "tap", 3);
  EXPECT_EQ(Selected(driver), QString());
  EXPECT_EQ(Opened(driver), QString());
}

TEST(ListPen, AScrollKeepsTheRowAndSelectsWhatComesToIt) {
  ReadyDriver driver;
  FillList(driver, 40);
  driver.Do(R"({"op":"scroll","on":"view","code":"linedown"})");
  EXPECT_EQ(Selected(driver), QString());
  Pen(driver, "press", 2);
  Pen(driver, "move", 4);
  Pen(driver, "release", 4);
  driver.Do(R"({"op":"scroll","on":"view","code":"pagedown"})");
  EXPECT_EQ(Current(driver), 2);
  EXPECT_EQ(Selected(driver), QStringLiteral("P 16"));
}

TEST(ListPen, KoreanContactsAreOpenedByTheirNames) {
  ReadyDriver driver;
  driver.Result(PutLine("\xea\xb9\x80\xec\xb2\xa0\xec\x88\x98"), u"oid");
  FillList(driver, 1);
  Pen(driver, "tap", 1);
  EXPECT_EQ(Opened(driver), QString::fromUtf8("\xea\xb9\x80\xec\xb2\xa0\xec\x88\x98"));
}

TEST(ListPen, ARebuildKeepsTheSelectionButForContactsThatAreGone) {
  ReadyDriver driver;
  FillList(driver, 10);
  Pen(driver, "press", 2);
  Pen(driver, "move", 4);
  Pen(driver, "release", 4);
  const QJsonArray keys = List(driver).value(u"selected").toArray();
  driver.Do(R"({"op":"drop-contact","oid":)" + QByteArray::number(keys[1].toInt()) + '}');
  driver.Do(R"({"op":"wait","ms":700})");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 02;P 04"));
}

TEST(ListPen, ANewFilterClearsTheSelection) {
  const std::array changes = {QByteArray(R"({"op":"tap","on":"view","x":200,"y":35})"),
                              QByteArray(R"({"op":"click","id":1035})"),
                              QByteArray(R"({"op":"command","id":59413})")};
  for (const QByteArray& change : changes) {
    ReadyDriver driver;
    FillList(driver, 3);
    Pen(driver, "tap", 1, 205);
    ASSERT_EQ(Selected(driver), QStringLiteral("P 01")) << change.constData();
    driver.Do(change);
    EXPECT_EQ(Selected(driver), QString()) << change.constData();
    EXPECT_EQ(Current(driver), -1) << change.constData();
  }
}

TEST(ListPen, TheChosenCategoryStandsInTheTitleBand) {
  ReadyDriver driver;
  const QJsonObject label = FindText(driver.Result(R"({"op":"texts","on":"view"})", u"texts"),
                                     QStringLiteral("Show All"));
  EXPECT_EQ(label.value(u"color"), QStringLiteral("#000000"));
  EXPECT_GT(label.value(u"x").toInt(), 152);
  EXPECT_EQ(label.value(u"x").toInt() + label.value(u"w").toInt(), 225);
}

TEST(ListKeys, MoveTheSelectionScrollAndOpen) {
  ReadyDriver driver;
  FillList(driver, 40);
  driver.Do(R"({"op":"tap","on":"list","x":50,"y":224})");  // the focus, but no row
  Key(driver, "Down");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 00"));
  for (int i = 0; i < 14; ++i) Key(driver, "Down");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 14"));
  EXPECT_EQ(List(driver).value(u"top"), 1);
  EXPECT_EQ(Current(driver), 13);
  Key(driver, "PageDown");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 27"));
  Key(driver, "Up");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 26"));
  Key(driver, "End");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 39"));
  Key(driver, "Home");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 00"));
  Key(driver, "Return");
  EXPECT_EQ(Opened(driver), QStringLiteral("P 00"));
  Key(driver, "Return");
  EXPECT_EQ(Opened(driver), QString());
}

TEST(ListKeys, ReachTheListFromTheSearchBox) {
  ReadyDriver driver;
  FillList(driver, 3);
  driver.Do(R"({"op":"tap","on":1028,"x":20,"y":9})");
  Key(driver, "Tab");
  Key(driver, "Down");
  Key(driver, "Down");
  EXPECT_EQ(Selected(driver), QStringLiteral("P 01"));
}
