#include "cli/ShowVerb.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/ConsoleFixture.h"

namespace quill {
namespace {

class ShowVerb : public test::ConsoleFixture {
 protected:
  void SetUp() override {
    ASSERT_EQ(Run({u"import"_qs, MakeFile(u"cards.vcf"_qs,
                                          "BEGIN:VCARD\nVERSION:3.0\nN:Abel;Ann\nTEL;TYPE=CAR:1\n"
                                          "ADR;TYPE=WORK:;;One\\nT\x1bwo;Oslo\nBDAY:1970-02-28\n"
                                          "X-ANNIVERSARY:1999-12-01\nEND:VCARD\n"
                                          "BEGIN:VCARD\nVERSION:3.0\nN:Abelard;Al\nEND:VCARD\n")}),
              kExitDone);
    TakeOut();
  }
};

TEST_F(ShowVerb, PrintsEveryFieldOfTheContact) {
  EXPECT_EQ(Run({u"show"_qs, u"abel, ann"_qs}), kExitDone);
  EXPECT_EQ(TakeOut(),
            "FileAs: Abel, Ann\nFirstName: Ann\nLastName: Abel\nCarTelephoneNumber: 1\n"
            "BusinessAddressStreet: One\n  T wo\nBusinessAddressCity: Oslo\n"
            "Birthday: 1970-02-28\nAnniversary: 1999-12-01\n");
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(ShowVerb, PrintsAllWhoseNameBeginsSo) {
  EXPECT_EQ(Run({u"show"_qs, u"Abel"_qs}), kExitDone);
  const QString out = QString::fromStdString(TakeOut());
  EXPECT_TRUE(out.startsWith(u"FileAs: Abel, Ann\n"_qs));
  EXPECT_TRUE(out.endsWith(u"\n\nFileAs: Abelard, Al\nFirstName: Al\nLastName: Abelard\n"_qs));
}

TEST_F(ShowVerb, PrintsJson) {
  EXPECT_EQ(Run({u"show"_qs, u"Abel, Ann"_qs, u"--json"_qs}), kExitDone);
  const QJsonArray contacts = QJsonDocument::fromJson(QByteArray::fromStdString(TakeOut())).array();
  ASSERT_EQ(contacts.size(), 1);
  const QJsonObject ann = contacts[0].toObject();
  EXPECT_GT(ann[u"Oid"_qs].toInt(), 0);
  EXPECT_EQ(ann[u"CarTelephoneNumber"_qs].toString(), u"1"_qs);
  EXPECT_EQ(ann[u"BusinessAddressStreet"_qs].toString(), u"One\nT\x1bwo"_qs);
  EXPECT_EQ(ann[u"Birthday"_qs].toString(), u"1970-02-28"_qs);
  EXPECT_EQ(ann[u"Anniversary"_qs].toString(), u"1999-12-01"_qs);
  EXPECT_EQ(ann.size(), 9);
}

TEST_F(ShowVerb, SaysThatThereIsNone) {
  EXPECT_EQ(Run({u"show"_qs, u"Zed"_qs}), kExitPartly);
  EXPECT_EQ(TakeOut(), "");
  EXPECT_EQ(TakeErr(), "quill: there is no contact \"Zed\"\n");
  EXPECT_EQ(Run({u"show"_qs, u"Zed"_qs, u"--json"_qs}), kExitPartly);
  EXPECT_EQ(TakeOut(), "[]\n");
}

TEST_F(ShowVerb, NeedsAName) {
  EXPECT_EQ(Run({u"show"_qs}), kExitFailed);
  TakeErr();
  EXPECT_EQ(Run({u"show"_qs, QString()}), kExitFailed);
  EXPECT_EQ(TakeErr(), "quill: show needs a name\n");
}

TEST_F(ShowVerb, FailsWithoutAStore) {
  QDir(Home()).removeRecursively();
  ASSERT_TRUE(QDir().mkpath(Home() + u"/store.db"_qs));
  EXPECT_EQ(Run({u"show"_qs, u"Abel"_qs}), kExitFailed);
  EXPECT_NE(TakeErr(), "");
}

}  // namespace
}  // namespace quill
