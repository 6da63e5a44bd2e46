// Property sheets: pages, their controls, dates and the size that the shell gives.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::FindText;
using quill::test::ReadyDriver;
using quill::test::TapOn;

namespace {

constexpr int kPageHeight = 248;

// A driver with a sample sheet open: the pages "One", "Two" and "Three"; dates 301 (may be none)
// and 302, and the editor of several lines 303, stand on the second.
class SheetDriver : public ReadyDriver {
 public:
  SheetDriver() : ReadyDriver({}, QStringLiteral(QUILL_PROBE_PROGRAM)) {
    Do(R"({"op":"open-sheet"})");
  }

  QJsonObject Get(const QByteArray& id) {
    return Result(R"({"op":"get","id":)" + id + '}', u"control").toObject();
  }
  QString Title() { return Ask(R"({"op":"page"})").value(u"title").toString(); }
  QJsonObject PlaceOfPage() { return Result(R"({"op":"where","on":"page"})", u"where").toObject(); }
};

TEST(Page, IsUnknownWithoutASheet) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Error(R"({"op":"page"})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"page","index":0})"), QStringLiteral("unknown"));
}

TEST(Page, IsToldAndShown) {
  SheetDriver driver;
  EXPECT_EQ(driver.AskForLine(R"({"op":"page"})"), R"({"ok":true,"index":0,"title":"One"})");
  driver.Do(R"({"op":"page","index":2})");
  EXPECT_EQ(driver.AskForLine(R"({"op":"page"})"), R"({"ok":true,"index":2,"title":"Three"})");
}

TEST(Page, OnesThatASheetDoesNotHaveAreRefused) {
  SheetDriver driver;
  EXPECT_EQ(driver.Error(R"({"op":"page","index":3})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"page","index":-1})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"page","index":"0"})"), QStringLiteral("malformed"));
  EXPECT_EQ(driver.Title(), QStringLiteral("One"));
}

TEST(Page, IsSwitchedByPenAndKeys) {
  SheetDriver driver;
  const QJsonObject tab =
      FindText(driver.Result(R"({"op":"texts"})", u"texts"), QStringLiteral("Three"));
  driver.Do(TapOn(tab));
  EXPECT_EQ(driver.Title(), QStringLiteral("Three"));
  driver.Do(R"({"op":"key","key":"Ctrl+PageUp"})");
  EXPECT_EQ(driver.Title(), QStringLiteral("Two"));
}

TEST(Page, IsATargetOfThePenAndHasItsOwnControls) {
  SheetDriver driver;
  EXPECT_EQ(driver.PlaceOfPage().value(u"y"), 26);
  EXPECT_EQ(driver.PlaceOfPage().value(u"h"), kPageHeight);
  EXPECT_EQ(driver.Get("202").value(u"text"), QStringLiteral("One202"));
  driver.Do(R"({"op":"tap","on":"page","x":20,"y":38})");
  EXPECT_EQ(driver.Result(R"({"op":"focus"})", u"focus").toObject().value(u"id"), 202);
  driver.Do(R"({"op":"page","index":1})");
  EXPECT_EQ(driver.Get("202").value(u"text"), QStringLiteral("Two202"));
}

TEST(Page, StaysTheSheetsBelowACalendar) {
  SheetDriver driver;
  driver.Do(R"({"op":"page","index":1})");
  driver.Do(R"({"op":"set","id":301,"checked":true})");
  driver.Do(R"({"op":"key","key":"F4"})");
  const QJsonArray windows = driver.Result(R"({"op":"windows"})", u"windows").toArray();
  ASSERT_EQ(windows.size(), 3);
  EXPECT_EQ(windows[1].toObject().value(u"kind"), QStringLiteral("sheet"));
  EXPECT_EQ(windows[2].toObject().value(u"class"), QStringLiteral("CalendarDlg"));
  EXPECT_EQ(driver.Error(R"({"op":"page","index":0})"), QStringLiteral("busy"));
  EXPECT_EQ(driver.Title(), QStringLiteral("Two"));
  driver.Do(R"({"op":"key","key":"Right"})");
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(driver.Get("301").value(u"date"), QStringLiteral("2004-09-16"));
}

TEST(Page, TakesTheSizeThatTheShellGives) {
  SheetDriver driver;
  driver.Do(R"({"op":"resize","w":240,"h":190})");
  EXPECT_EQ(driver.PlaceOfPage().value(u"h"), 168);
  driver.Do(R"({"op":"resize","w":240,"h":270})");
  EXPECT_EQ(driver.PlaceOfPage().value(u"h"), kPageHeight);
  driver.Result(R"({"op":"panel","up":true})", u"panel");
  EXPECT_EQ(driver.PlaceOfPage().value(u"h"), 168);
}

TEST(Page, IsGoneWithItsSheet) {
  SheetDriver driver;
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(driver.Error(R"({"op":"page"})"), QStringLiteral("unknown"));
}

TEST(Dates, AreSetAndClearedAndTold) {
  SheetDriver driver;
  driver.Do(R"({"op":"page","index":1})");
  EXPECT_EQ(driver.Get("301").value(u"checked"), false);
  EXPECT_EQ(driver.Get("301").value(u"date"), QStringLiteral("2004-09-15"));
  driver.Do(R"({"op":"set","id":301,"date":"1961-02-03"})");
  EXPECT_EQ(driver.Get("301").value(u"checked"), true);
  EXPECT_EQ(driver.Get("301").value(u"date"), QStringLiteral("1961-02-03"));
  driver.Do(R"({"op":"set","id":301,"date":null})");
  EXPECT_EQ(driver.Get("301").value(u"checked"), false);
  EXPECT_EQ(driver.Get("301").value(u"date"), QStringLiteral("1961-02-03"));
  EXPECT_EQ(driver.Error(R"({"op":"set","id":302,"date":null})"), QStringLiteral("malformed"));
  EXPECT_TRUE(driver.Get("302").value(u"checked").isUndefined());
}

TEST(Lines, AreSetAndTyped) {
  SheetDriver driver;
  driver.Do(R"({"op":"page","index":1})");
  driver.Do(R"({"op":"set","id":303,"text":"one\ntwo"})");
  driver.Do(R"({"op":"key","key":"Return"})");
  driver.Do(R"({"op":"type","text":"3"})");
  EXPECT_EQ(driver.Get("303").value(u"text"), QStringLiteral("one\ntwo\n3"));
}

}  // namespace
