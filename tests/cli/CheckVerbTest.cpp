#include "cli/CheckVerb.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/ConsoleFixture.h"
#include "store/pim/Database.h"

namespace quill {
namespace {

class CheckVerb : public test::ConsoleFixture {
 protected:
  void SetUp() override {
    ASSERT_EQ(Run({u"import"_qs, MakeFile(u"one.vcf"_qs, "BEGIN:VCARD\nN:Kim\nEND:VCARD\n")}), 0);
    TakeOut();
    TakeErr();
  }

  QString StoreFile() const { return Home() + u"/store.db"_qs; }

  // Through a connection that knows nothing of the store, as far as that gets.
  void ChangeStore(const QByteArray& sql) {
    Database database;
    ASSERT_EQ(database.Open(StoreFile()), 0);
    ASSERT_EQ(database.Execute(sql), 0);
  }
};

TEST_F(CheckVerb, SaysThatASoundStoreIsRight) {
  EXPECT_EQ(Run({u"check"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "The file is whole and its index is right.\n");
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(CheckVerb, MakesAWrongIndexAnew) {
  ChangeStore("UPDATE bucket SET n = 7");
  EXPECT_EQ(Run({u"check"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(),
            "1 buckets of the index are counted wrongly.\n"
            "The file is whole. Its index was wrong and has been made anew.\n");
  EXPECT_EQ(Run({u"check"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "The file is whole and its index is right.\n");
}

TEST_F(CheckVerb, MakesAnIndexAnewThatIsGone) {
  ChangeStore("DROP TABLE entry");
  EXPECT_EQ(Run({u"list"_qs}), kExitFailed);
  TakeErr();
  EXPECT_EQ(Run({u"check"_qs}), kExitDone);
  TakeOut();
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Kim\n");
}

TEST_F(CheckVerb, AnswersInJson) {
  ChangeStore("UPDATE bucket SET n = 7");
  EXPECT_EQ(Run({u"check"_qs, u"--json"_qs}), kExitDone);
  const QJsonObject answer = QJsonDocument::fromJson(QByteArray::fromStdString(TakeOut())).object();
  EXPECT_EQ(answer[u"index"_qs].toString(), u"rebuilt"_qs);
  EXPECT_EQ(answer[u"indexFaults"_qs].toArray().size(), 1);
  EXPECT_TRUE(answer[u"fileFaults"_qs].toArray().isEmpty());
}

TEST_F(CheckVerb, SaysWhyAFileIsNoStoreAndLeavesIt) {
  QFile file(StoreFile());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("My dear diary");
  file.close();
  EXPECT_EQ(Run({u"check"_qs}), kExitFailed);
  EXPECT_EQ(TakeOut(), "");
  EXPECT_EQ(TakeErr(),
            "quill: " + Home().toStdString() + "/store.db: the file is damaged or not a store\n");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "My dear diary");
}

TEST_F(CheckVerb, SaysWhereAFileIsDamagedAndLeavesIt) {
  QFile file(StoreFile());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  // A page of the middle: the tables' descriptions in the first pages stay readable.
  const qint64 middle = file.size() / 4096 / 2 * 4096;
  ASSERT_TRUE(file.seek(middle));
  ASSERT_EQ(file.write(QByteArray(4096, '\x55')), 4096);
  ASSERT_TRUE(file.seek(0));
  const QByteArray before = file.readAll();
  file.close();
  EXPECT_EQ(Run({u"check"_qs}), kExitFailed);
  EXPECT_NE(TakeOut() + TakeErr(), "");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), before);
}

}  // namespace
}  // namespace quill
