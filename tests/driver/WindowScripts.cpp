// Menus, popups, dialogs and controls, as a pen and a keyboard work on them.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::FindText;
using quill::test::ReadyDriver;
using quill::test::TapOn;

namespace {

QJsonArray Windows(ReadyDriver& driver) {
  return driver.Result(R"({"op":"windows"})", u"windows").toArray();
}

void TapText(ReadyDriver& driver, const QString& words) {
  const QJsonObject text = FindText(driver.Result(R"({"op":"texts"})", u"texts"), words);
  ASSERT_FALSE(text.isEmpty()) << qPrintable(words) << " is not on the screen";
  driver.Do(TapOn(text));
}

QJsonArray Popup(ReadyDriver& driver) {
  return driver.Result(R"({"op":"popup"})", u"popup").toArray();
}

}  // namespace

TEST(Frame, StandsAloneAtFirst) {
  ReadyDriver driver;
  const QJsonArray windows = Windows(driver);
  ASSERT_EQ(windows.size(), 1);
  const QJsonObject frame = windows[0].toObject();
  EXPECT_EQ(frame.value(u"class"), QStringLiteral("MainFrame"));
  EXPECT_EQ(frame.value(u"title"), QStringLiteral("Quill (Quillbook)"));
  EXPECT_EQ(frame.value(u"kind"), QStringLiteral("frame"));
  EXPECT_EQ(frame.value(u"y"), 26);
  EXPECT_EQ(frame.value(u"h"), 270);
}

TEST(AboutBox, OpensFromTheHelpMenuByPenAndClosesByItsButton) {
  ReadyDriver driver;
  TapText(driver, QStringLiteral("Help"));
  ASSERT_EQ(Popup(driver).size(), 1);
  TapText(driver, QStringLiteral("About Quill (Quillbook)..."));
  const QJsonArray windows = Windows(driver);
  ASSERT_EQ(windows.size(), 2);
  EXPECT_EQ(windows[1].toObject().value(u"class"), QStringLiteral("AboutDialog"));
  EXPECT_EQ(windows[1].toObject().value(u"kind"), QStringLiteral("dialog"));
  const QJsonValue texts = driver.Result(R"({"op":"texts","on":"top"})", u"texts");
  EXPECT_FALSE(FindText(texts, QStringLiteral("Quill (Quillbook)")).isEmpty());
  driver.Do(R"({"op":"click","id":1})");
  EXPECT_EQ(Windows(driver).size(), 1);
}

TEST(AboutBox, ClosesByTheTitleBarsButtonsAndByKeys) {
  ReadyDriver driver;
  for (const char* const close :
       {R"({"op":"ok"})", R"({"op":"cancel"})", R"({"op":"key","key":"Escape"})",
        R"({"op":"key","key":"Return"})"}) {
    driver.Do(R"({"op":"command","id":57664})");
    EXPECT_EQ(Windows(driver).size(), 2) << close;
    driver.Do(close);
    EXPECT_EQ(Windows(driver).size(), 1) << close;
  }
}

TEST(Widgets, AreCountedByClassAndNoneIsLeftOfAWindowThatWasClosed) {
  ReadyDriver driver;
  const QJsonValue before = driver.Result(R"({"op":"widgets"})", u"widgets");
  EXPECT_EQ(before[u"MainFrame"], 1);
  EXPECT_TRUE(before[u"AboutDialog"].isUndefined());
  driver.Do(R"({"op":"command","id":57664})");
  EXPECT_EQ(driver.Result(R"({"op":"widgets"})", u"widgets")[u"AboutDialog"], 1);
  driver.Do(R"({"op":"cancel"})");
  EXPECT_EQ(driver.Result(R"({"op":"widgets"})", u"widgets"), before);
}

TEST(Commands, DisabledOnesAreRefused) {
  ReadyDriver driver;
  EXPECT_EQ(driver.AskForLine(R"({"op":"command","id":40015})"),
            R"({"ok":false,"error":"disabled"})");
  EXPECT_EQ(driver.Error(R"({"op":"command","id":40017})"), QStringLiteral("disabled"));
  driver.Do(R"({"op":"command","id":40017,"force":true})");
  EXPECT_EQ(Windows(driver).size(), 1);
}

TEST(Commands, UnknownOnesAreRefused) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Error(R"({"op":"command","id":123456})"), QStringLiteral("unknown"));
}

TEST(Commands, AreRefusedWhileAPopupIsOpenOrThePenIsDown) {
  ReadyDriver driver;
  driver.Do(R"({"op":"hold","x":80,"y":12})");
  EXPECT_EQ(driver.Error(R"({"op":"command","id":57664})"), QStringLiteral("busy"));
  EXPECT_EQ(driver.Error(R"({"op":"click","id":1035})"), QStringLiteral("busy"));
  driver.Do(R"({"op":"dismiss"})");
  driver.Do(R"({"op":"command","id":57664})");
  EXPECT_EQ(Windows(driver).size(), 2);
}

TEST(Drop, IsAnsweredWhileAPopupIsOpenOrThePenIsDown) {
  ReadyDriver driver;
  driver.Do(R"({"op":"hold","x":80,"y":12})");
  EXPECT_EQ(driver.Error(R"({"op":"drop","id":1028})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"set","id":1028,"text":"x"})"), QStringLiteral("busy"));
}

TEST(Menus, ListEveryItemWithItsStateAndTheBarsButtonsLast) {
  ReadyDriver driver;
  const QJsonArray menus = driver.Result(R"({"op":"menus"})", u"menus").toArray();
  ASSERT_EQ(menus.size(), 4);
  QStringList titles;
  for (const auto& menu : menus) titles << menu.toObject().value(u"text").toString();
  EXPECT_EQ(titles.join(u'|'), QStringLiteral("Tool|View|Help|"));
  const QJsonArray tools = menus[0].toObject().value(u"items").toArray();
  ASSERT_EQ(tools.size(), 7);
  EXPECT_EQ(tools[0].toObject().value(u"id"), 40015);
  EXPECT_EQ(tools[0].toObject().value(u"enabled"), false);
  EXPECT_EQ(tools[2].toObject().value(u"separator"), true);
  EXPECT_EQ(menus[3].toObject().value(u"items").toArray()[0].toObject().value(u"id"), 57600);
}

TEST(Menus, OpenAndChooseByKeys) {
  ReadyDriver driver;
  driver.Do(R"({"op":"key","key":"F10"})");
  EXPECT_EQ(Popup(driver).size(), 7);
  driver.Do(R"({"op":"key","key":"Left"})");
  EXPECT_EQ(Popup(driver).size(), 1);
  driver.Do(R"({"op":"key","key":"Down"})");
  driver.Do(R"({"op":"key","key":"Return"})");
  EXPECT_EQ(Windows(driver).size(), 2);
}

TEST(Popups, TapWhosePressOpensOneChoosesNothing) {
  ReadyDriver driver;
  TapText(driver, QStringLiteral("View"));
  EXPECT_EQ(Popup(driver).size(), 3);
  EXPECT_EQ(Windows(driver).size(), 1);
  driver.Do(R"({"op":"dismiss"})");
  EXPECT_EQ(driver.Result(R"({"op":"popup"})", u"popup"), QJsonValue());
}

TEST(Popups, TitleBarsOneOpensByHoldAndIsDismissed) {
  ReadyDriver driver;
  driver.Do(R"({"op":"hold","x":80,"y":12})");
  const QJsonArray items = Popup(driver);
  ASSERT_EQ(items.size(), 6);
  EXPECT_EQ(items[0].toObject().value(u"text"), QStringLiteral("Larger"));
  EXPECT_EQ(items[1].toObject().value(u"enabled"), false);
  driver.Do(R"({"op":"dismiss"})");
  EXPECT_EQ(driver.Result(R"({"op":"popup"})", u"popup"), QJsonValue());
}

TEST(Popups, LiftOfTheHeldPenLeavesThePopupOpen) {
  ReadyDriver driver;
  driver.Do(R"({"op":"hold","x":80,"y":12})");
  driver.Do(R"({"op":"release","x":80,"y":12})");
  EXPECT_FALSE(Popup(driver).isEmpty());
}

TEST(Popups, TitleBarsOneOpensByHoldAndIsChosenFrom) {
  ReadyDriver driver;
  driver.Do(R"({"op":"hold","x":80,"y":12})");
  EXPECT_EQ(driver.Error(R"({"op":"choose","id":60002})"), QStringLiteral("disabled"));
  EXPECT_EQ(driver.Error(R"({"op":"choose","id":57664})"), QStringLiteral("unknown"));
  driver.Do(R"({"op":"choose","id":60001})");
  EXPECT_EQ(driver.Result(R"({"op":"popup"})", u"popup"), QJsonValue());
  driver.Do(R"({"op":"hold","x":80,"y":12})");
  EXPECT_EQ(Popup(driver)[1].toObject().value(u"enabled"), true);
}

TEST(Popups, PressOutsideDismisses) {
  ReadyDriver driver;
  TapText(driver, QStringLiteral("View"));
  driver.Do(R"({"op":"tap","x":200,"y":100})");
  EXPECT_EQ(driver.Result(R"({"op":"popup"})", u"popup"), QJsonValue());
}

TEST(Popups, AreRefusedWhereThereIsNone) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Error(R"({"op":"choose","id":57664})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"dismiss"})"), QStringLiteral("unknown"));
}

TEST(Pen, MoveAndReleaseWithoutAPressAreAnswered) {
  ReadyDriver driver;
  driver.Do(R"({"op":"move","on":"list","x":10,"y":10})");
  driver.Do(R"({"op":"release","on":"list","x":10,"y":10})");
}

TEST(Pen, WindowsThatAreNotThereAreUnknown) {
  ReadyDriver driver;
  for (const char* const window : {"\"top\"", "\"page\"", "\"ink\"", "\"moon\"", "999"})
    EXPECT_EQ(driver.Error(QByteArray(R"({"op":"tap","x":1,"y":1,"on":)") + window + '}'),
              QStringLiteral("unknown"))
        << window;
}

TEST(Pen, WindowsOfAWrongTypeAreMalformed) {
  ReadyDriver driver;
  for (const char* const window : {"null", "true", "{}", "[]", "1.5"}) {
    const QByteArray on = QByteArray(R"(,"on":)") + window + '}';
    EXPECT_EQ(driver.Error(R"({"op":"tap","x":1,"y":1)" + on), QStringLiteral("malformed"))
        << window;
    EXPECT_EQ(driver.Error(R"({"op":"where")" + on), QStringLiteral("malformed")) << window;
    EXPECT_EQ(driver.Error(R"({"op":"scroll","code":"top")" + on), QStringLiteral("malformed"))
        << window;
  }
}

TEST(Where, GivesClientAreasInPixelsOfTheScreen) {
  ReadyDriver driver;
  const QJsonObject screen = driver.Result(R"({"op":"where"})", u"where").toObject();
  EXPECT_EQ(screen, (QJsonObject{{QStringLiteral("x"), 0},
                                 {QStringLiteral("y"), 0},
                                 {QStringLiteral("w"), 240},
                                 {QStringLiteral("h"), 320}}));
  const QJsonObject view = driver.Result(R"({"op":"where","on":"view"})", u"where").toObject();
  EXPECT_EQ(view.value(u"y"), 26);
  const QJsonObject list = driver.Result(R"({"op":"where","on":"list"})", u"where").toObject();
  EXPECT_EQ(list.value(u"y"), 26 + 45);
  EXPECT_EQ(list.value(u"w"), 225);
  EXPECT_EQ(driver.Result(R"({"op":"where","on":1036})", u"where").toObject(), list);
}

TEST(Where, LeavesTheCaptionOfASmallWindowOut) {
  ReadyDriver driver;
  driver.Do(R"({"op":"command","id":57664})");
  const QJsonObject whole = Windows(driver)[1].toObject();
  const QJsonObject client = driver.Result(R"({"op":"where","on":"top"})", u"where").toObject();
  EXPECT_EQ(client.value(u"y").toInt(), whole.value(u"y").toInt() + 16);
  EXPECT_EQ(client.value(u"h").toInt(), whole.value(u"h").toInt() - 16);
}

TEST(Controls, OfTheViewAreListedWhileOnlyTheFrameIsOpen) {
  ReadyDriver driver;
  QList<int> ids;
  for (const auto& control : driver.Result(R"({"op":"controls"})", u"controls").toArray())
    ids << control.toObject().value(u"id").toInt();
  EXPECT_EQ(ids, (QList<int>{1024, 1028, 1035, 1036}));
  const QJsonObject edit = driver.Result(R"({"op":"get","id":1028})", u"control").toObject();
  EXPECT_EQ(edit.value(u"text"), QString());
  EXPECT_EQ(edit.value(u"x"), 2);
  EXPECT_EQ(edit.value(u"visible"), true);
  EXPECT_EQ(driver.Error(R"({"op":"get","id":7})"), QStringLiteral("unknown"));
}

TEST(Controls, TextIsSetAndTypedAndSelected) {
  ReadyDriver driver;
  driver.Do(R"({"op":"set","id":1028,"text":"Baker"})");
  driver.Do(R"({"op":"key","key":"Shift+Home"})");
  const QJsonObject focus = driver.Result(R"({"op":"focus"})", u"focus").toObject();
  EXPECT_EQ(focus.value(u"id"), 1028);
  EXPECT_EQ(focus.value(u"selected"), QStringLiteral("Baker"));
  driver.Do("{\"op\":\"type\",\"text\":\"Kim \xea\xb9\x80\xec\xb2\xa0\xec\x88\x98 1\"}");
  EXPECT_EQ(driver.Result(R"({"op":"get","id":1028})", u"control").toObject().value(u"text"),
            QString::fromUtf8("Kim \xea\xb9\x80\xec\xb2\xa0\xec\x88\x98 1"));
}

TEST(Controls, OnesThatCannotTakeAChangeRefuseIt) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Error(R"({"op":"set","id":1036,"text":"x"})"), QStringLiteral("malformed"));
  EXPECT_EQ(driver.Error(R"({"op":"set","id":1035,"checked":true})"), QStringLiteral("malformed"));
  EXPECT_EQ(driver.Error(R"({"op":"drop","id":1028})"), QStringLiteral("unknown"));
}

TEST(Dialogs, TakeTheSizeThatTheShellGives) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Error(R"({"op":"resize","w":100,"h":90})"), QStringLiteral("unknown"));
  driver.Do(R"({"op":"command","id":57664})");
  driver.Do(R"({"op":"resize","w":100,"h":90})");
  const QJsonObject client = driver.Result(R"({"op":"where","on":"top"})", u"where").toObject();
  EXPECT_EQ(client.value(u"w"), 100);
  EXPECT_EQ(client.value(u"h"), 90);
}

TEST(InputPanel, IsRaisedAndLoweredAndItsButtonIsChecked) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Result(R"({"op":"panel"})", u"panel"), false);
  EXPECT_EQ(driver.Result(R"({"op":"panel","up":true})", u"panel"), true);
  const QJsonArray menus = driver.Result(R"({"op":"menus"})", u"menus").toArray();
  const QJsonObject button = menus.last().toObject().value(u"items").toArray().last().toObject();
  EXPECT_EQ(button.value(u"checked"), true);
  driver.Do(R"({"op":"command","id":60000})");
  EXPECT_EQ(driver.Result(R"({"op":"panel"})", u"panel"), false);
}
