#include "cli/ListVerb.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/ConsoleFixture.h"

namespace quill {
namespace {

class ListVerb : public test::ConsoleFixture {
 protected:
  void Bring(const QByteArray& cards) {
    ASSERT_EQ(Run({u"import"_qs, MakeFile(u"cards.vcf"_qs, cards)}), kExitDone);
    TakeOut();
  }
  QJsonArray ListAsJson() {
    Run({u"list"_qs, u"--json"_qs});
    return QJsonDocument::fromJson(QByteArray::fromStdString(TakeOut())).array();
  }
};

TEST_F(ListVerb, OfAnEmptyStoreSaysNothingWasFound) {
  EXPECT_EQ(Run({u"list"_qs}), kExitPartly);
  EXPECT_EQ(TakeOut(), "");
  EXPECT_EQ(Run({u"list"_qs, u"--json"_qs}), kExitPartly);
  EXPECT_EQ(TakeOut(), "[]\n");
  EXPECT_EQ(TakeErr(), "quill: there are no contacts yet\nquill: there are no contacts yet\n");
}

TEST_F(ListVerb, PrintsNamesInTheOrderOfTheList) {
  Bring(
      "BEGIN:VCARD\nN:Zed;Zoe\nEND:VCARD\nBEGIN:VCARD\nN:김;서연\nEND:VCARD\n"
      "BEGIN:VCARD\nN:abel;ann\nEND:VCARD\n");
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "abel, ann\nZed, Zoe\n김, 서연\n");
}

TEST_F(ListVerb, KeepsANameOnItsLine) {
  Bring("BEGIN:VCARD\nN:Two\\nLines;Ann\nEND:VCARD\n");
  EXPECT_EQ(Run({u"list"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(), "Two Lines, Ann\n");
}

TEST_F(ListVerb, PrintsJsonOfWhatARowHolds) {
  Bring(
      "BEGIN:VCARD\nN:Abel;Ann\nTEL;TYPE=CELL:010-0000-0001\nEND:VCARD\n"
      "BEGIN:VCARD\nN:Bell;Bob\nEND:VCARD\n");
  const QJsonArray contacts = ListAsJson();
  ASSERT_EQ(contacts.size(), 2);
  const QJsonObject ann = contacts[0].toObject();
  EXPECT_EQ(ann[u"FileAs"_qs].toString(), u"Abel, Ann"_qs);
  EXPECT_EQ(ann[u"MobileTelephoneNumber"_qs].toString(), u"010-0000-0001"_qs);
  EXPECT_GT(ann[u"Oid"_qs].toInt(), 0);
  EXPECT_EQ(contacts[1].toObject().keys(), QStringList({u"FileAs"_qs, u"Oid"_qs}));
}

TEST_F(ListVerb, OfTheSampleHomePrintsThePeople) {
  EXPECT_EQ(Run({u"--demo"_qs, u"list"_qs}), kExitDone);
  const QString names = QString::fromStdString(TakeOut());
  EXPECT_TRUE(names.startsWith(u"Abernathy, Alice\n"_qs));
  EXPECT_TRUE(names.contains(u"\n홍새롬\n"_qs));
}

TEST_F(ListVerb, WithoutAStoreFails) {
  ASSERT_TRUE(QDir().mkpath(Home() + u"/store.db"_qs));
  EXPECT_EQ(Run({u"list"_qs}), kExitFailed);
  EXPECT_NE(TakeErr(), "");
}

}  // namespace
}  // namespace quill
