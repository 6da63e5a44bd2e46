#include "cli/AskedContact.h"

#include <QFileInfo>

#include "cli/ConsoleFixture.h"

namespace quill {
namespace {

class AskedContact : public test::ConsoleFixture {
 protected:
  void SetUp() override {
    ASSERT_EQ(Run({u"import"_qs, MakeFile(u"cards.vcf"_qs,
                                          "BEGIN:VCARD\nN:Abel;Ann\nEND:VCARD\n"
                                          "BEGIN:VCARD\nN:Abelard;Al\nEND:VCARD\n"
                                          "BEGIN:VCARD\nN:Abel\nEND:VCARD\n"
                                          "BEGIN:VCARD\nN:Zed;Zoe\nEND:VCARD\n")}),
              kExitDone);
    TakeOut();
  }
  QString Meant(const QString& name) {
    return WithWholeName({RequestKind::Show, name, {}}, HomePlaces(Home(), {}), m_console).Text;
  }
};

TEST_F(AskedContact, IsTheOneOfThisWholeName) {
  EXPECT_EQ(Meant(u"Abel"_qs), u"Abel"_qs);
  EXPECT_EQ(Meant(u"zed, ZOE"_qs), u"Zed, Zoe"_qs);
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(AskedContact, IsTheOneWhoseNameBeginsSo) {
  EXPECT_EQ(Meant(u"zed"_qs), u"Zed, Zoe"_qs);
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(AskedContact, OfSeveralIsTheFirstAndItIsSaid) {
  EXPECT_EQ(Meant(u"Ab"_qs), u"Abel"_qs);
  EXPECT_EQ(TakeErr(), "quill: 3 contacts are meant by \"Ab\"; the first is \"Abel\"\n");
}

TEST_F(AskedContact, ThatThereIsNotStaysAsItWasAsked) {
  EXPECT_EQ(Meant(u"Nobody"_qs), u"Nobody"_qs);
  EXPECT_EQ(TakeErr(), "");
}

TEST_F(AskedContact, StaysAsItWasAskedWithoutAStore) {
  const QString store = HomePlaces(Home(), {}).StoreFile;
  ASSERT_TRUE(QFile::remove(store));
  ASSERT_TRUE(QDir().mkpath(store));
  EXPECT_EQ(Meant(u"zed"_qs), u"zed"_qs);
}

TEST_F(AskedContact, IsForShowingAlone) {
  const Request request{RequestKind::New, u"zed"_qs, {}};
  EXPECT_EQ(WithWholeName(request, HomePlaces(Home(), {}), m_console), request);
}

}  // namespace
}  // namespace quill
