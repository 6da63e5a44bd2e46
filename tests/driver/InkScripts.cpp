// The memo page and the memo editor end to end: writing, zoom and modes, saving, deleting, what the
// list does afterwards.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class InkScript : public testing::Test {
 protected:
  QStringList Arguments() const {
    return {QStringLiteral("--home"), m_home.path(), QStringLiteral("--now"),
            QStringLiteral("2004-09-15T09:30:05")};
  }
  QString MemoFile(const QString& name) const {
    return m_home.filePath(QStringLiteral("My Documents/Fennick/") + name);
  }
  void PutMemo(const QString& name, const QByteArray& content) const {
    QDir(m_home.path()).mkpath(QStringLiteral("My Documents/Fennick"));
    QFile file(MemoFile(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  // Nothing when there is no such file.
  std::optional<QByteArray> Content(const QString& name) const {
    QFile file(MemoFile(name));
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
  }
  QByteArray Picture(ReadyDriver& driver) const {
    QFile file(m_home.filePath(QStringLiteral("picture.png")));
    driver.Do(R"({"op":"screenshot","file":")" + file.fileName().toUtf8() + R"("})");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  QStringList RecoveryFiles() const {
    return QDir(m_home.path()).entryList({QStringLiteral("recovery-ink*")}, QDir::Files);
  }

  QTemporaryDir m_home;
};

const QString kFirstMemo = QStringLiteral("Kim_20040915_093005.pwi");

int PutKim(ReadyDriver& driver) {
  const int oid =
      driver.Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"Kim"}})", u"oid").toInt();
  driver.Do(R"({"op":"command","id":59413})");
  return oid;
}

QJsonObject Fields(ReadyDriver& driver, int oid) {
  return driver.Result(R"({"op":"contact","oid":)" + QByteArray::number(oid) + '}', u"fields")
      .toObject();
}

void RunCommand(ReadyDriver& driver, int id) {
  driver.Do(R"({"op":"command","id":)" + QByteArray::number(id) + '}');
}
void OK(ReadyDriver& driver) { driver.Do(R"({"op":"ok"})"); }
void Cancel(ReadyDriver& driver) { driver.Do(R"({"op":"cancel"})"); }
void Answer(ReadyDriver& driver, const QByteArray& button) {
  driver.Do(R"({"op":"answer","button":")" + button + R"("})");
}

void OpenFirst(ReadyDriver& driver) { driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})"); }
void OpenMemoPage(ReadyDriver& driver) {
  OpenFirst(driver);
  driver.Ask(R"({"op":"page","index":2})");
}
void OpenFirstMemo(ReadyDriver& driver) {
  RunCommand(driver, 32825);
  driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})");
}
// By the row's popup.
void AddMemo(ReadyDriver& driver) {
  driver.Do(R"({"op":"hold","on":"list","x":50,"y":8})");
  driver.Do(R"({"op":"choose","id":32820})");
}

void Write(ReadyDriver& driver) {
  driver.Do(R"({"op":"stroke","on":"ink","points":[[20,30,0.4],[40,50,0.6],[60,30,0.5]]})");
}
QJsonObject Ink(ReadyDriver& driver) { return driver.Result(R"({"op":"ink"})", u"ink").toObject(); }
int Strokes(ReadyDriver& driver) { return Ink(driver)[u"strokes"].toInt(); }
std::vector<int> Modes(ReadyDriver& driver) {
  const QJsonObject ink = Ink(driver);
  return {ink[u"style"].toInt(), ink[u"zoom"].toInt(), ink[u"wrap"].toInt(), ink[u"view"].toInt()};
}

// An item or button of the topmost window's menus.
QJsonObject Item(ReadyDriver& driver, int id) {
  for (const auto& menu : driver.Result(R"({"op":"menus"})", u"menus").toArray())
    for (const auto& item : menu[u"items"].toArray())
      if (item[u"id"] == id) return item.toObject();
  ADD_FAILURE() << "no item " << id;
  return {};
}
std::vector<int> CheckedZooms(ReadyDriver& driver) {
  std::vector<int> checked;
  for (int id = 32787; id <= 32791; ++id)
    if (Item(driver, id)[u"checked"].toBool()) checked.push_back(id);
  return checked;
}

QString Message(ReadyDriver& driver) {
  return driver.Result(R"({"op":"message"})", u"message").toObject()[u"text"].toString();
}
QString TopTitle(ReadyDriver& driver) {
  return driver.Result(R"({"op":"windows"})", u"windows").toArray().last()[u"title"].toString();
}
QStringList Memos(ReadyDriver& driver) {
  QStringList names;
  const QJsonObject list = driver.Result(R"({"op":"list"})", u"list").toObject();
  for (const auto& name : list[u"memos"].toArray()) names.append(name.toString());
  return names;
}
void SetName(ReadyDriver& driver, const QByteArray& path) {
  driver.Do(R"({"op":"set","id":1017,"text":")" + path + R"("})");
}

}  // namespace

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

TEST_F(InkScript, AMemoIsAddedToAContactAndOpenedFromItsPopup) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  AddMemo(driver);
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Memo"));
  Write(driver);
  OK(driver);
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Save As"));
  EXPECT_EQ(driver.Result(R"({"op":"get","id":1017})", u"control")[u"text"],
            QStringLiteral("\\My Documents\\Fennick\\") + kFirstMemo);
  OK(driver);
  ASSERT_TRUE(Content(kFirstMemo).has_value());
  EXPECT_TRUE(Content(kFirstMemo)->startsWith("\x89INKX"));
  EXPECT_TRUE(RecoveryFiles().isEmpty());
  driver.Do(R"({"op":"hold","on":"list","x":50,"y":8})");
  driver.Do(R"({"op":"choose","id":33201})");
  EXPECT_EQ(Strokes(driver), 1);
}

TEST_F(InkScript, ASecondMemoOfTheSameSecondTakesThePlaceOfTheFirst) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  for (const int strokes : {2, 1}) {
    AddMemo(driver);
    for (int i = 0; i < strokes; ++i) Write(driver);
    OK(driver);
    OK(driver);
  }
  driver.Do(R"({"op":"hold","on":"list","x":50,"y":8})");
  driver.Do(R"({"op":"choose","id":33201})");
  EXPECT_EQ(Strokes(driver), 1);
}

TEST_F(InkScript, AnInvalidNameKeepsTheEditorOpenWithItsInk) {
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  RunCommand(driver, 57600);
  Write(driver);
  OK(driver);
  SetName(driver, R"(\\My Documents\\Fennick\\A/B.pwi)");
  OK(driver);
  EXPECT_EQ(Message(driver), QStringLiteral("Please check the file name is valid."));
  Answer(driver, "OK");
  EXPECT_EQ(Strokes(driver), 1);
  OK(driver);
  SetName(driver, R"(\\My Documents\\Fennick\\B.pwi)");
  OK(driver);
  EXPECT_EQ(Memos(driver), QStringList{QStringLiteral("B.pwi")});
}

TEST_F(InkScript, AMemoThatCannotBeWrittenKeepsItsFileAndItsInk) {
  PutMemo(QStringLiteral("a.pwi"), "of another make");
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  driver.Do(R"({"op":"fault","name":"memo-create","on":true})");
  OK(driver);
  EXPECT_EQ(Message(driver), QStringLiteral("Please check the file name is valid."));
  Answer(driver, "OK");
  EXPECT_EQ(Content(QStringLiteral("a.pwi")), "of another make");
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Memo"));
}

TEST_F(InkScript, NewByMemoListsWhatWasWrittenAndNothingElse) {
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  RunCommand(driver, 57600);
  OK(driver);
  EXPECT_FALSE(QFile::exists(MemoFile(QStringLiteral("Memo_20040915_093005.pwi"))));
  RunCommand(driver, 57600);
  Write(driver);
  OK(driver);
  PutMemo(QStringLiteral("unlisted.pwi"), "x");
  Cancel(driver);
  EXPECT_TRUE(Memos(driver).isEmpty());
  RunCommand(driver, 57600);
  Write(driver);
  OK(driver);
  OK(driver);
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("Memo_20040915_093005.pwi"),
                                        QStringLiteral("unlisted.pwi")}));
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

TEST_F(InkScript, AfterAMemoWasOpenTheListIsBuiltAnew) {
  PutMemo(QStringLiteral("b.pwi"), "b");
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  PutMemo(QStringLiteral("a.pwi"), "a");
  Cancel(driver);
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("a.pwi"), QStringLiteral("b.pwi")}));
}

TEST_F(InkScript, DeleteNoteDeletesTheFileOfAnOpenMemo) {
  PutMemo(QStringLiteral("a.pwi"), "a");
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  RunCommand(driver, 32824);
  Answer(driver, "No");
  EXPECT_TRUE(Content(QStringLiteral("a.pwi")).has_value());
  RunCommand(driver, 32824);
  Answer(driver, "Yes");
  EXPECT_EQ(Content(QStringLiteral("a.pwi")), std::nullopt);
  EXPECT_TRUE(Memos(driver).isEmpty());
}

TEST_F(InkScript, AMemoThatCannotBeReadIsNotOpened) {
  PutMemo(QStringLiteral("a.pwi"), "a");
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  QFile::remove(MemoFile(QStringLiteral("a.pwi")));
  driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})");
  EXPECT_EQ(Message(driver), QStringLiteral("The memo could not be read."));
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

TEST_F(InkScript, TheProgramsEndIsACancel) {
  PutMemo(QStringLiteral("a.pwi"), {});
  {
    ReadyDriver driver(Arguments());
    OpenFirstMemo(driver);
    Write(driver);
    EXPECT_FALSE(RecoveryFiles().isEmpty());
    EXPECT_EQ(driver.Finish(), 0);
  }
  EXPECT_EQ(Content(QStringLiteral("a.pwi")), QByteArray());
  EXPECT_TRUE(RecoveryFiles().isEmpty());
}
