// The memo editor end to end: saving under a name, what is kept of unsaved ink, deleting, what the
// list does afterwards.
#include <algorithm>

#include "driver/InkScript.h"

namespace quill::test {
namespace {

class MemoScript : public InkScript {
 protected:
  // The list waits half a second after the last change.
  static void WaitForNotice(ReadyDriver& driver) { driver.Do(R"({"op":"wait","ms":800})"); }
};

TEST_F(MemoScript, AMemoIsAddedToAContactAndOpenedFromItsPopup) {
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

TEST_F(MemoScript, ASecondMemoOfTheSameSecondTakesThePlaceOfTheFirst) {
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

TEST_F(MemoScript, AnInvalidNameKeepsTheEditorOpenWithItsInk) {
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

TEST_F(MemoScript, AMemoThatCannotBeWrittenKeepsItsFileAndItsInk) {
  PutMemo(QStringLiteral("a.pwi"), "of another make");
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  driver.Do(R"({"op":"fault","name":"memo-create","on":true})");
  OK(driver);
  EXPECT_EQ(Message(driver),
            QStringLiteral("Cannot save. The storage is full or cannot be written."));
  Answer(driver, "OK");
  EXPECT_EQ(Content(QStringLiteral("a.pwi")), "of another make");
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Memo"));
}

TEST_F(MemoScript, NewByMemoListsWhatWasWrittenAndNothingElse) {
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  RunCommand(driver, 57600);
  OK(driver);
  EXPECT_FALSE(QFile::exists(MemoFile(QStringLiteral("Memo_20040915_093005.pwi"))));
  RunCommand(driver, 57600);
  Write(driver);
  OK(driver);
  Cancel(driver);
  EXPECT_TRUE(Memos(driver).isEmpty());
  RunCommand(driver, 57600);
  Write(driver);
  OK(driver);
  OK(driver);
  EXPECT_EQ(Memos(driver), QStringList(QStringLiteral("Memo_20040915_093005.pwi")));
}

TEST_F(MemoScript, TheListByMemoFollowsWhatOtherProgramsDoToTheFolder) {
  PutMemo(QStringLiteral("b.pwi"), "b");
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  driver.Do(R"({"op":"key","key":"Down"})");
  PutMemo(QStringLiteral("a.pwi"), "a");
  WaitForNotice(driver);
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("a.pwi"), QStringLiteral("b.pwi")}));
  EXPECT_EQ(driver.Result(R"({"op":"list"})", u"list")[u"selected"], QJsonArray{1}) << "still b";
  ASSERT_TRUE(QFile::rename(MemoFile(QStringLiteral("a.pwi")), MemoFile(QStringLiteral("c.pwi"))));
  WaitForNotice(driver);
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("b.pwi"), QStringLiteral("c.pwi")}));
  EXPECT_EQ(driver.Result(R"({"op":"list"})", u"list")[u"selected"], QJsonArray{0});
  ASSERT_TRUE(QFile::remove(MemoFile(QStringLiteral("c.pwi"))));
  WaitForNotice(driver);
  EXPECT_EQ(Memos(driver), QStringList(QStringLiteral("b.pwi")));
}

TEST_F(MemoScript, AfterAMemoWasOpenTheListIsBuiltAnew) {
  PutMemo(QStringLiteral("b.pwi"), "b");
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  PutMemo(QStringLiteral("a.pwi"), "a");
  Cancel(driver);
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("a.pwi"), QStringLiteral("b.pwi")}));
}

TEST_F(MemoScript, DeleteNoteDeletesTheFileOfAnOpenMemo) {
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

TEST_F(MemoScript, AMemoThatCannotBeReadIsNotOpened) {
  PutMemo(QStringLiteral("a.pwi"), "a");
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  QFile::remove(MemoFile(QStringLiteral("a.pwi")));
  driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})");
  EXPECT_EQ(Message(driver), QStringLiteral("The memo could not be read."));
}

TEST_F(MemoScript, InkThatTheProgramsEndClosesIsOfferedWhenTheMemoIsOpenedAgain) {
  PutMemo(QStringLiteral("a.pwi"), {});
  {
    ReadyDriver driver(Arguments());
    OpenFirstMemo(driver);
    Write(driver);
    Type(driver);
    EXPECT_EQ(driver.Finish(), 0);
  }
  EXPECT_EQ(Content(QStringLiteral("a.pwi")), QByteArray());
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  Restore(driver);
  EXPECT_EQ(Strokes(driver), 1);
  EXPECT_EQ(Ink(driver)[u"text"], QStringLiteral("tea"));
  OK(driver);
  EXPECT_NE(Content(QStringLiteral("a.pwi")), QByteArray());
  EXPECT_TRUE(RecoveryFiles().isEmpty());
}

TEST_F(MemoScript, TextOfAMemoThatIsGivenNoNameIsOfferedToTheNext) {
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  RunCommand(driver, 57600);
  Type(driver);
  OK(driver);
  Cancel(driver);
  EXPECT_EQ(driver.Result(R"({"op":"panel"})", u"panel"), false);
  RunCommand(driver, 57600);
  Restore(driver);
  EXPECT_EQ(Ink(driver)[u"text"], QStringLiteral("tea"));
}

TEST_F(MemoScript, UnsavedInkOfAContactsMemoIsOfferedWithItsName) {
  ReadyDriver driver(Arguments());
  PutKim(driver);
  AddMemo(driver);
  Write(driver);
  OK(driver);
  Cancel(driver);
  RunCommand(driver, 32825);
  RunCommand(driver, 57600);
  const QJsonArray texts = driver.Result(R"({"op":"texts","on":"top"})", u"texts").toArray();
  EXPECT_TRUE(std::ranges::any_of(texts, [](const auto& text) {
    return text[u"text"].toString().startsWith(QStringLiteral("Not saved: Kim, "));
  }));
}

TEST_F(MemoScript, AMemoThatAnotherProgramChangesWhileItIsOpenIsSavedBesideTheOther) {
  PutMemo(QStringLiteral("a.pwi"), {});
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  Write(driver);
  PutMemo(QStringLiteral("a.pwi"), "theirs");
  OK(driver);
  EXPECT_EQ(Message(driver),
            QStringLiteral("The memo was changed meanwhile. Please give this one a new name."));
  Answer(driver, "OK");
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Save As"));
  OK(driver);
  EXPECT_EQ(Content(QStringLiteral("a.pwi")), "theirs");
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("a.pwi"), QStringLiteral("a_Copy.pwi")}));
  EXPECT_TRUE(RecoveryFiles().isEmpty());
}

TEST_F(MemoScript, AMemoFileThatWasCutOffStaysAsItIs) {
  const QString name = QStringLiteral("a.pwi");
  PutMemo(name, {});
  ReadyDriver driver(Arguments());
  OpenFirstMemo(driver);
  for (int i = 0; i < 3; ++i) Write(driver);
  OK(driver);
  const QByteArray cut = Content(name)->first(40);
  PutMemo(name, cut);
  OpenFirstMemo(driver);
  Write(driver);
  EXPECT_EQ(Strokes(driver), 0) << "on a page that is not shown";
  RunCommand(driver, 32780);
  RunCommand(driver, 32786);
  Write(driver);
  EXPECT_EQ(Strokes(driver), 1);
  OK(driver);
  EXPECT_EQ(Message(driver),
            QStringLiteral(
                "Not all of the memo can be read, so it stays. Please give this one a new name."));
  Answer(driver, "OK");
  OK(driver);
  EXPECT_EQ(Content(name), cut);
  EXPECT_TRUE(Content(QStringLiteral("a_Copy.pwi")).has_value());
}

TEST_F(MemoScript, ThePanelGoesDownWithANameEntryThatIsCancelled) {
  PutMemo(QStringLiteral("a.pwi"), {});
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  for (const char* copyOrRename : {"32828", "32829"}) {
    driver.Do(R"({"op":"hold","on":"list","x":50,"y":8})");
    driver.Do(QByteArray(R"({"op":"choose","id":)") + copyOrRename + '}');
    EXPECT_EQ(driver.Result(R"({"op":"panel"})", u"panel"), true);
    Cancel(driver);
    EXPECT_EQ(driver.Result(R"({"op":"panel"})", u"panel"), false);
  }
}

TEST_F(MemoScript, AMemoFolderThatIsRemovedMeanwhileIsMadeAgain) {
  ReadyDriver driver(Arguments());
  RunCommand(driver, 32825);
  ASSERT_TRUE(QDir(m_home.filePath(QStringLiteral("My Documents"))).removeRecursively());
  RunCommand(driver, 57600);
  Write(driver);
  OK(driver);
  OK(driver);
  EXPECT_EQ(Memos(driver), QStringList{QStringLiteral("Memo_20040915_093005.pwi")});
}

}  // namespace
}  // namespace quill::test
