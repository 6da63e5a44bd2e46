// The store's back door: contacts and categories as they are stored.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

QJsonArray Categories(ReadyDriver& driver) {
  return driver.Result(R"({"op":"categories"})", u"categories").toArray();
}

}  // namespace

TEST(StoreScript, ANewHomeHasAFewCategories) {
  ReadyDriver driver;
  EXPECT_EQ(Categories(driver), QJsonArray({QStringLiteral("Business"), QStringLiteral("Family"),
                                            QStringLiteral("Friends"), QStringLiteral("Personal"),
                                            QStringLiteral("Work")}));
}

TEST(StoreScript, CategoriesAreSetWhereTheyCanBeCategories) {
  ReadyDriver driver;
  const QJsonArray set =
      driver
          .Result(R"({"op":"categories","names":["Work","No Categories","가족","a,b","Work"]})",
                  u"categories")
          .toArray();
  EXPECT_EQ(set, QJsonArray({QStringLiteral("Work"), QStringLiteral("가족")}));
  EXPECT_EQ(Categories(driver), set);
  EXPECT_EQ(driver.Error(R"({"op":"categories","names":"Work"})"), QStringLiteral("malformed"));
  EXPECT_EQ(driver.Error(R"({"op":"categories","names":[1]})"), QStringLiteral("malformed"));
  EXPECT_EQ(Categories(driver), set);
}

TEST(StoreScript, WithoutAStoreThereAreNoCategories) {
  ReadyDriver driver({QStringLiteral("--fault"), QStringLiteral("contacts-folder")});
  EXPECT_EQ(driver.Error(R"({"op":"categories"})"), QStringLiteral("no store"));
}

TEST(StoreScript, AContactKeepsWhatItHadBesideItsRecord) {
  ReadyDriver driver;
  driver.Result(R"({"op":"put","fields":{"FileAs":"Kim","Email3Address":"k@example.org"}})",
                u"oid");
  driver.Result(R"({"op":"put","oid":1,"fields":{"FileAs":"Lee","BodyInk":"aW5r"}})", u"oid");
  const QJsonObject fields = driver.Result(R"({"op":"contact","oid":1})", u"fields").toObject();
  EXPECT_EQ(fields, QJsonObject({{QStringLiteral("FileAs"), QStringLiteral("Lee")},
                                 {QStringLiteral("Email3Address"), QStringLiteral("k@example.org")},
                                 {QStringLiteral("BodyInk"), QStringLiteral("aW5r")}}));
}

TEST(StoreScript, AnOidOfADroppedContactIsNotUsedAgain) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Result(R"({"op":"put","fields":{"FileAs":"Kim"}})", u"oid"), 1);
  driver.Do(R"({"op":"drop-contact","oid":1})");
  EXPECT_EQ(driver.Error(R"({"op":"drop-contact","oid":1})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Result(R"({"op":"put","fields":{"FileAs":"Lee"}})", u"oid"), 2);
}
