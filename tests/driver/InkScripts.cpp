// The ink control and the memo page end to end: writing, zoom and modes, storing, deleting.
#include "driver/InkScript.h"

namespace quill::test {
namespace {

TEST_F(InkScript, WithoutAnInkControlThereIsNone) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  EXPECT_EQ(driver.Error(R"({"op":"ink"})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"where","on":"ink"})"), QStringLiteral("unknown"));
  OpenMemoPage(driver);
  EXPECT_EQ(Ink(driver)[u"strokes"], 0);
  driver.Ask(R"({"op":"page","index":0})");
  EXPECT_EQ(driver.Error(R"({"op":"ink"})"), QStringLiteral("unknown"));
}

TEST_F(InkScript, TheInkOperationHasEveryKey) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  OpenMemoPage(driver);
  EXPECT_EQ(Ink(driver).keys().join(u' '),
            QStringLiteral("canRedo canUndo length readOnly selection strokes style text toggle "
                           "view wrap zoom"));
  EXPECT_EQ(Ink(driver)[u"readOnly"], false);
}

TEST_F(InkScript, InkOnTheMemoPageIsStoredWithItsContact) {
  ReadyDriver driver(Arguments());
  const int kim = PutKim(driver);
  OpenMemoPage(driver);
  Write(driver);
  EXPECT_EQ(Strokes(driver), 1);
  EXPECT_TRUE(Ink(driver)[u"canUndo"].toBool());
  driver.Ask(R"({"op":"page","index":0})");
  driver.Ask(R"({"op":"page","index":2})");
  EXPECT_EQ(Strokes(driver), 1);
  const int length = Ink(driver)[u"length"].toInt();
  OK(driver);
  const QByteArray ink =
      QByteArray::fromBase64(Fields(driver, kim)[u"BodyInk"].toString().toLatin1());
  EXPECT_EQ(ink.size(), length);
  EXPECT_TRUE(RecoveryFiles().isEmpty());
  OpenMemoPage(driver);
  EXPECT_EQ(Strokes(driver), 1);
}

TEST_F(InkScript, EditCommandsActOnTheInk) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  OpenMemoPage(driver);
  for (const int id : {32781, 32782, 32783, 32784, 32786})
    EXPECT_FALSE(Item(driver, id)[u"enabled"].toBool()) << id;
  Write(driver);
  EXPECT_TRUE(Item(driver, 32781)[u"enabled"].toBool());
  RunCommand(driver, 32781);
  EXPECT_EQ(Strokes(driver), 0);
  RunCommand(driver, 32782);
  EXPECT_EQ(Strokes(driver), 1);
  RunCommand(driver, 32780);
  EXPECT_TRUE(Ink(driver)[u"selection"].toBool());
  for (const int id : {32783, 32784, 32786})
    EXPECT_TRUE(Item(driver, id)[u"enabled"].toBool()) << id;
  RunCommand(driver, 32783);
  EXPECT_EQ(Strokes(driver), 0);
  RunCommand(driver, 32785);
  RunCommand(driver, 32785);
  EXPECT_EQ(Strokes(driver), 2);
  RunCommand(driver, 32780);
  RunCommand(driver, 32786);
  EXPECT_EQ(Ink(driver)[u"length"], 0);
}

TEST_F(InkScript, ZoomIsCheckedAndTheModeGoesThereAndBack) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  OpenMemoPage(driver);
  EXPECT_EQ(Modes(driver), std::vector<int>({16, 100, 1, 0}));
  EXPECT_EQ(CheckedZooms(driver), std::vector<int>{32788});
  RunCommand(driver, 32791);
  EXPECT_EQ(Ink(driver)[u"zoom"], 300);
  EXPECT_EQ(CheckedZooms(driver), std::vector<int>{32791});
  RunCommand(driver, 205);
  EXPECT_EQ(Modes(driver), std::vector<int>({2, 200, 0, 2}));
  EXPECT_EQ(CheckedZooms(driver), std::vector<int>{32790});
  EXPECT_TRUE(Item(driver, 205)[u"checked"].toBool());
  RunCommand(driver, 205);
  EXPECT_EQ(Modes(driver), std::vector<int>({16, 100, 1, 0}));
  EXPECT_FALSE(Item(driver, 205)[u"checked"].toBool());
}

TEST_F(InkScript, TheButtonsStandInTheMenuBarAndThePenReachesThem) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  OpenMemoPage(driver);
  const QJsonArray menus = driver.Result(R"({"op":"menus"})", u"menus").toArray();
  EXPECT_EQ(menus.last()[u"text"], QString());
  QList<int> buttons;
  for (const auto& item : menus.last()[u"items"].toArray()) buttons.append(item[u"id"].toInt());
  EXPECT_EQ(buttons, QList<int>({204, 205, 60000}));
  driver.Do(R"({"op":"tap","x":174,"y":308})");
  EXPECT_EQ(Ink(driver)[u"toggle"], 1);
  EXPECT_TRUE(Item(driver, 204)[u"checked"].toBool());
  driver.Do(R"({"op":"tap","x":200,"y":308})");
  EXPECT_EQ(Ink(driver)[u"view"], 2);
  RunCommand(driver, 204);
  EXPECT_EQ(Ink(driver)[u"toggle"], 0);
}

TEST_F(InkScript, DeleteNoteOfTheMemoPageAsksFirst) {
  ReadyDriver driver(Arguments());
  const int kim = PutKim(driver);
  OpenMemoPage(driver);
  Write(driver);
  RunCommand(driver, 32824);
  EXPECT_EQ(Message(driver), QStringLiteral("This memo will be deleted. Continue?"));
  Answer(driver, "No");
  EXPECT_EQ(Strokes(driver), 1);
  RunCommand(driver, 32824);
  Answer(driver, "Yes");
  EXPECT_EQ(Strokes(driver), 0);
  RunCommand(driver, 32781);
  EXPECT_EQ(Strokes(driver), 1);
  RunCommand(driver, 32782);
  OK(driver);
  EXPECT_EQ(Fields(driver, kim)[u"BodyInk"].toString(), QString());
}

TEST_F(InkScript, InkOfAnotherMakeIsShownByItsNoticeAndGoesBackAsItWas) {
  PutMemo(QStringLiteral("a.pwi"), "of another make");
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  Write(driver);
  EXPECT_EQ(Strokes(driver), 0);
  OK(driver);
  EXPECT_EQ(Content(QStringLiteral("a.pwi")), "of another make");
}

TEST_F(InkScript, ThePageScrollsByItsBar) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  OpenMemoPage(driver);
  Write(driver);
  RunCommand(driver, 32791);
  driver.Do(R"({"op":"scroll","on":"ink","code":"top"})");
  const QByteArray atTop = Picture(driver);
  driver.Do(R"({"op":"scroll","on":"ink","code":"pagedown"})");
  EXPECT_NE(Picture(driver), atTop);
  driver.Do(R"({"op":"scroll","on":"ink","code":"top"})");
  EXPECT_EQ(Picture(driver), atTop);
}

}  // namespace
}  // namespace quill::test
