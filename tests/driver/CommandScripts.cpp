// View modes, categories, the commands on contacts and memos and the configuration, end to end.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class CommandScript : public testing::Test {
 protected:
  void AddMemos(const QStringList& names) {
    QDir(m_home.path()).mkpath(QStringLiteral("My Documents/Fennick"));
    for (const QString& name : names) {
      QFile file(MemoFile(name));
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(name.toUtf8());
    }
  }
  QString MemoFile(const QString& name) const {
    return m_home.filePath(QStringLiteral("My Documents/Fennick/") + name);
  }
  QStringList Arguments() const { return {QStringLiteral("--home"), m_home.path()}; }

  QTemporaryDir m_home;
};

// A contact; the program is not told.
void Put(ReadyDriver& driver, const QByteArray& fields) {
  driver.Result(R"({"op":"put","quiet":true,"fields":)" + fields + '}', u"oid");
}

void RunCommand(ReadyDriver& driver, const QByteArray& id) {
  driver.Do(R"({"op":"command","id":)" + id + '}');
}

constexpr char kByName[] = "59413";
constexpr char kByCompany[] = "32823";
constexpr char kByMemo[] = "32825";

QJsonObject List(ReadyDriver& driver) {
  return driver.Result(R"({"op":"list"})", u"list").toObject();
}

QStringList Names(ReadyDriver& driver) {
  QStringList names;
  for (const auto& row : List(driver)[u"rows"].toArray())
    names.append(row.toObject()[u"name"].toString());
  return names;
}

QStringList Memos(ReadyDriver& driver) {
  QStringList names;
  for (const auto& name : List(driver)[u"memos"].toArray()) names.append(name.toString());
  return names;
}

QStringList Texts(const QJsonValue& items, QStringView checkedKey = {}) {
  QStringList texts;
  for (const auto& item : items.toArray())
    if (checkedKey.isEmpty() || item.toObject()[checkedKey].toBool())
      texts.append(item.toObject()[u"text"].toString());
  return texts;
}

QStringList TextsOnView(ReadyDriver& driver) {
  return Texts(driver.Result(R"({"op":"texts","on":"view"})", u"texts"));
}

// Three people of three companies and two categories, by name.
void PutPeople(ReadyDriver& driver) {
  Put(driver, R"({"FileAs":"Adams","CompanyName":"Zoo","Categories":"Work, Friends"})");
  Put(driver, R"({"FileAs":"Gray","CompanyName":"abacus","Categories":"Family"})");
  Put(driver, R"({"FileAs":"박지성"})");
  RunCommand(driver, kByName);
}

}  // namespace

TEST_F(CommandScript, ByCompanyTheListStandsInTheCompaniesOrder) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  RunCommand(driver, kByCompany);
  EXPECT_EQ(Names(driver), QStringList({QStringLiteral("박지성"), QStringLiteral("Gray"),
                                        QStringLiteral("Adams")}));
  EXPECT_TRUE(TextsOnView(driver).contains(QStringLiteral("<None>")));
  driver.Do(R"({"op":"set","id":1028,"text":"ab"})");
  driver.Do(R"({"op":"click","id":1035})");
  EXPECT_EQ(List(driver)[u"restriction"],
            QStringLiteral(R"([CompanyName] >= "ab" AND [CompanyName] < "ac")"));
  EXPECT_EQ(Names(driver), QStringList(QStringLiteral("Gray")));
}

TEST_F(CommandScript, ByMemoTheListHoldsTheMemosCutByIndexAndSearch) {
  AddMemos({QStringLiteral("adams_1.pwi"), QStringLiteral("Gray_1.pwi"),
            QStringLiteral("박지성_1.pwi"), QStringLiteral("notes.txt")});
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  RunCommand(driver, kByMemo);
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("adams_1.pwi"), QStringLiteral("Gray_1.pwi"),
                                        QStringLiteral("박지성_1.pwi")}));
  EXPECT_EQ(List(driver)[u"total"], 3);
  EXPECT_TRUE(TextsOnView(driver).contains(QStringLiteral("박지성_1.pwi")));
  driver.Do(R"({"op":"tap","on":"view","x":20,"y":35})");
  EXPECT_EQ(Memos(driver), QStringList(QStringLiteral("adams_1.pwi")));
  driver.Do(R"({"op":"set","id":1028,"text":"박"})");
  driver.Do(R"({"op":"click","id":1035})");
  EXPECT_EQ(Memos(driver), QStringList(QStringLiteral("박지성_1.pwi")));
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  EXPECT_EQ(driver.Result(R"({"op":"popup"})", u"popup"), QJsonValue());
  RunCommand(driver, kByMemo);
  EXPECT_EQ(List(driver)[u"total"], 3) << "the mode that is on drops its filters";
}

TEST_F(CommandScript, TheCategoryMenuFiltersAndChecksItsChoice) {
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"categories","names":["Family","Work"],"quiet":true})", u"categories");
  PutPeople(driver);
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  const QJsonValue menu = driver.Result(R"({"op":"popup"})", u"popup");
  EXPECT_EQ(Texts(menu), QStringList({QStringLiteral("Show All"), QStringLiteral("Family"),
                                      QStringLiteral("Work"), QStringLiteral("No Categories"),
                                      QStringLiteral("More...")}));
  EXPECT_EQ(Texts(menu, u"checked"), QStringList(QStringLiteral("Show All")));
  driver.Do(R"({"op":"choose","id":109})");
  EXPECT_EQ(Names(driver), QStringList(QStringLiteral("Adams")));
  EXPECT_EQ(List(driver)[u"restriction"], QStringLiteral(R"([Categories] = "Work")"));
  RunCommand(driver, "110");
  EXPECT_EQ(Names(driver), QStringList(QStringLiteral("박지성")));
  EXPECT_EQ(List(driver)[u"restriction"], QStringLiteral(R"([Categories] = "")"));
}

TEST_F(CommandScript, SeveralCategoriesAreChosenBehindMore) {
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"categories","names":["Family","Work"],"quiet":true})", u"categories");
  PutPeople(driver);
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  driver.Do(R"({"op":"choose","id":111})");
  const auto windows = driver.Result(R"({"op":"windows"})", u"windows").toArray();
  EXPECT_EQ(windows.last().toObject()[u"class"], QStringLiteral("CategoryChooser"));
  const QJsonValue library =
      driver.Result(R"({"op":"get","id":1000})", u"control").toObject()[u"items"];
  EXPECT_EQ(Texts(library), QStringList({QStringLiteral("Family"), QStringLiteral("Work"),
                                         QStringLiteral("No Categories")}));
  EXPECT_TRUE(Texts(library, u"checked").isEmpty());
  driver.Do(R"({"op":"set","id":1000,"index":0,"checked":true})");
  driver.Do(R"({"op":"set","id":1000,"index":1,"checked":true})");
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(List(driver)[u"category"], QStringLiteral("Family,Work"));
  EXPECT_EQ(List(driver)[u"categoryCount"], 2);
  EXPECT_EQ(Names(driver), QStringList({QStringLiteral("Adams"), QStringLiteral("Gray")}));
  EXPECT_TRUE(TextsOnView(driver).contains(QStringLiteral("Multi")));
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  EXPECT_EQ(Texts(driver.Result(R"({"op":"popup"})", u"popup"), u"checked"),
            QStringList({QStringLiteral("Family"), QStringLiteral("Work")}));
}

TEST_F(CommandScript, CancellingTheChoiceOfSeveralLeavesTheListAsItWas) {
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"categories","names":["Family","Work"],"quiet":true})", u"categories");
  PutPeople(driver);
  RunCommand(driver, "107");
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  driver.Do(R"({"op":"choose","id":109})");
  for (const char* end : {"cancel", "ok"}) {  // nothing is checked
    RunCommand(driver, "111");
    driver.Do(QByteArray(R"({"op":")") + end + R"("})");
    EXPECT_EQ(List(driver)[u"category"], QStringLiteral("Work"));
    EXPECT_EQ(List(driver)[u"categoryCount"], 1);
    EXPECT_EQ(Names(driver), QStringList(QStringLiteral("Adams")));
  }
}

TEST_F(CommandScript, TheFilterFollowsACategoryThatIsRenamedOrRemoved) {
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"categories","names":["Family","Work"],"quiet":true})", u"categories");
  PutPeople(driver);
  RunCommand(driver, "107");
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  driver.Do(R"({"op":"choose","id":109})");
  RunCommand(driver, "111");
  driver.Do(R"({"op":"tap","on":1000,"x":60,"y":30})");
  driver.Do(R"({"op":"set","id":1001,"text":"Job"})");
  driver.Do(R"({"op":"click","id":1003})");
  driver.Do(R"({"op":"cancel"})");
  EXPECT_EQ(List(driver)[u"category"], QStringLiteral("Job"));
  EXPECT_EQ(Names(driver), QStringList(QStringLiteral("Adams")));
  RunCommand(driver, "111");
  driver.Do(R"({"op":"tap","on":1000,"x":60,"y":30})");
  driver.Do(R"({"op":"click","id":1004})");
  driver.Do(R"({"op":"answer","button":"Yes"})");
  driver.Do(R"({"op":"cancel"})");
  EXPECT_EQ(List(driver)[u"category"], QStringLiteral("Show All"));
  EXPECT_EQ(List(driver)[u"total"], 3);
}

TEST_F(CommandScript, TheFilterAndTheContactFollowACategoryThatIsRenamedInASheet) {
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"categories","names":["Family","Work"],"quiet":true})", u"categories");
  PutPeople(driver);
  RunCommand(driver, "107");
  driver.Do(R"({"op":"tap","on":"view","x":190,"y":12})");
  driver.Do(R"({"op":"choose","id":109})");
  const auto rename = [&](const QByteArray& name) {
    driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})");
    driver.Do(R"({"op":"tap","on":"rows","x":120,"y":199})");
    driver.Do(R"({"op":"tap","on":1000,"x":60,"y":30})");
    driver.Do(R"({"op":"set","id":1001,"text":")" + name + "\"}");
    driver.Do(R"({"op":"click","id":1003})");
    driver.Do(R"({"op":"cancel"})");
  };
  rename("Job");
  driver.Do(R"({"op":"cancel"})");
  EXPECT_EQ(List(driver)[u"category"], QStringLiteral("Job"));
  EXPECT_EQ(Names(driver), QStringList(QStringLiteral("Adams")));
  rename("Office");
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(List(driver)[u"category"], QStringLiteral("Office"));
  EXPECT_EQ(Names(driver), QStringList(QStringLiteral("Adams")));
}

TEST_F(CommandScript, DeletingAllUnderAFilterKeepsTheOthers) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  driver.Do(R"({"op":"tap","on":"view","x":60,"y":35})");
  EXPECT_EQ(Names(driver), QStringList(QStringLiteral("Gray")));
  RunCommand(driver, "40002");
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(List(driver)[u"total"], 0);
  EXPECT_EQ(driver.Error(R"({"op":"command","id":40002})"), QStringLiteral("disabled"));
  RunCommand(driver, kByName);
  EXPECT_EQ(Names(driver), QStringList({QStringLiteral("Adams"), QStringLiteral("박지성")}));
}

TEST_F(CommandScript, TheSelectedRowsAreDeletedAndCopied) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  EXPECT_EQ(driver.Error(R"({"op":"command","id":40017})"), QStringLiteral("disabled"));
  driver.Do(R"({"op":"press","on":"list","x":20,"y":8})");
  driver.Do(R"({"op":"move","on":"list","x":20,"y":24})");
  driver.Do(R"({"op":"release","on":"list","x":20,"y":24})");
  RunCommand(driver, "32822");
  EXPECT_EQ(List(driver)[u"total"], 5);
  RunCommand(driver, "40017");
  const auto windows = driver.Result(R"({"op":"windows"})", u"windows").toArray();
  EXPECT_EQ(windows.last().toObject()[u"title"], QStringLiteral("Delete"));
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(List(driver)[u"total"], 3);
  // What took their place, and no more.
  EXPECT_EQ(List(driver)[u"selected"].toArray().size(), 1);
  EXPECT_EQ(List(driver)[u"current"], 0);
}

TEST_F(CommandScript, ADeletionThatFailsLeavesTheListAsItIs) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  driver.Do(R"({"op":"fault","name":"delete","on":true})");
  RunCommand(driver, "40002");
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(List(driver)[u"total"], 3);
  EXPECT_EQ(driver.Result(R"({"op":"message"})", u"message"), QJsonValue());
}

TEST_F(CommandScript, ADoubleTapOpensAMemoAndWritesNothingInIt) {
  AddMemos({QStringLiteral("a.pwi")});
  ReadyDriver driver(Arguments());
  RunCommand(driver, kByMemo);
  driver.Do(R"({"op":"doubletap","on":"list","x":60,"y":8})");
  const QJsonObject ink = driver.Result(R"({"op":"ink"})", u"ink").toObject();
  EXPECT_EQ(ink[u"strokes"].toInt(-1), 0);
  EXPECT_FALSE(ink[u"canUndo"].toBool(true));
}

TEST_F(CommandScript, AMemoIsRenamedCopiedAndDeletedFromItsPopup) {
  AddMemos({QStringLiteral("a.pwi"), QStringLiteral("b.pwi")});
  ReadyDriver driver(Arguments());
  RunCommand(driver, kByMemo);
  driver.Do(R"({"op":"hold","on":"list","x":20,"y":8})");
  EXPECT_EQ(Texts(driver.Result(R"({"op":"popup"})", u"popup")),
            QStringList({QStringLiteral("Rename Memo..."), QStringLiteral("Copy Memo..."),
                         QStringLiteral("Delete Memo")}));
  driver.Do(R"({"op":"choose","id":32829})");
  EXPECT_EQ(driver.Result(R"({"op":"get","id":1017})", u"control").toObject()[u"text"],
            QStringLiteral("\\My Documents\\Fennick\\a.pwi"));
  driver.Do(R"({"op":"type","text":"\\My Documents\\Fennick\\c.pwi"})");
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(Memos(driver), QStringList({QStringLiteral("b.pwi"), QStringLiteral("c.pwi")}));
  RunCommand(driver, "32828");
  driver.Do(R"({"op":"ok"})");
  EXPECT_EQ(Memos(driver).size(), 3);
  RunCommand(driver, "32826");
  driver.Do(R"({"op":"answer","button":"Yes"})");
  EXPECT_EQ(Memos(driver).size(), 2);
}

TEST_F(CommandScript, AMemoCannotBeMovedOutOfTheHome) {
  AddMemos({QStringLiteral("a.pwi")});
  ReadyDriver driver(Arguments());
  RunCommand(driver, kByMemo);
  for (const char* path : {R"(\\..\\..\\a.pwi)", R"(/tmp/a.pwi)", R"(\\My Documents\\a:b.pwi)"}) {
    driver.Do(R"({"op":"hold","on":"list","x":20,"y":8})");
    driver.Do(R"({"op":"choose","id":32829})");
    driver.Do(QByteArray(R"({"op":"set","id":1017,"text":")") + path + R"("})");
    driver.Do(R"({"op":"ok"})");
    EXPECT_EQ(Memos(driver), QStringList(QStringLiteral("a.pwi"))) << path;
  }
}

TEST_F(CommandScript, TheConfigurationHidesTheIndexStripAndIsKept) {
  {
    ReadyDriver driver(Arguments());
    PutPeople(driver);
    RunCommand(driver, "32830");
    driver.Do(R"({"op":"set","id":1046,"checked":false})");
    driver.Do(R"({"op":"ok"})");
    EXPECT_EQ(List(driver)[u"rowsPerPage"], 15);
    const QJsonObject list = driver.Result(R"({"op":"where","on":"list"})", u"where").toObject();
    const QJsonObject view = driver.Result(R"({"op":"where","on":"view"})", u"where").toObject();
    EXPECT_EQ(list[u"y"].toInt() - view[u"y"].toInt(), 25);
    EXPECT_EQ(list[u"h"], 245);
  }
  ReadyDriver driver(Arguments());
  EXPECT_EQ(List(driver)[u"rowsPerPage"], 15);
}

TEST_F(CommandScript, CancellingTheConfigurationWritesTheSettingsAllTheSame) {
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"settings","values":{"ABC":0,"AreaCodeValueBytes":4}})", u"settings");
  RunCommand(driver, "32830");
  driver.Do(R"({"op":"cancel"})");
  const QJsonObject settings = driver.Result(R"({"op":"settings"})", u"settings").toObject();
  EXPECT_EQ(settings[u"ABC"], 1) << "the program's own";
  EXPECT_EQ(settings[u"AreaCodeValueBytes"], 520);
}

TEST_F(CommandScript, DeleteAllInTheConfigurationKnowsNoFilter) {
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  driver.Do(R"({"op":"tap","on":"view","x":60,"y":35})");
  RunCommand(driver, "32830");
  driver.Do(R"({"op":"click","id":1000})");
  driver.Do(R"({"op":"ok"})");
  driver.Do(R"({"op":"cancel"})");
  EXPECT_TRUE(driver.Result(R"({"op":"contacts"})", u"contacts").toArray().isEmpty());
}

TEST_F(CommandScript, AMemoIsNotCopiedThroughALinkOntoTheStore) {
  AddMemos({QStringLiteral("a.pwi")});
  ASSERT_TRUE(QFile::link(QStringLiteral("../../store.db"), MemoFile(QStringLiteral("b.pwi"))));
  ReadyDriver driver(Arguments());
  PutPeople(driver);
  RunCommand(driver, kByMemo);
  EXPECT_EQ(Memos(driver), QStringList(QStringLiteral("a.pwi")));
  driver.Do(R"({"op":"hold","on":"list","x":20,"y":8})");
  driver.Do(R"({"op":"choose","id":32828})");
  driver.Do(R"({"op":"set","id":1017,"text":"\\My Documents\\Fennick\\b.pwi"})");
  driver.Do(R"({"op":"ok"})");
  RunCommand(driver, kByName);
  EXPECT_EQ(List(driver)[u"total"], 3);
}
