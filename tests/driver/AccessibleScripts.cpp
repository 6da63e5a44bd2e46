// What a screen reader is told of every window.
#include <gtest/gtest.h>

#include <set>

#include "driver/WindowWalk.h"

using quill::test::ExpectSpoken;
using quill::test::ForEachInTree;
using quill::test::Has;
using quill::test::IsReached;
using quill::test::ReadyDriver;
using quill::test::SpokenRoles;
using quill::test::WindowWalk;

namespace {

QJsonObject Tree(ReadyDriver& driver) {
  return driver.Result(R"({"op":"accessible"})", u"accessible").toObject();
}

// The first in the tree with this role and name; empty when there is none.
QJsonObject Find(const QJsonObject& tree, const QString& role, const QString& name) {
  QJsonObject found;
  ForEachInTree(tree, [&](const QJsonObject& object) {
    if (found.isEmpty() && object.value(u"role") == role && object.value(u"name") == name)
      found = object;
  });
  return found;
}

}  // namespace

TEST(Accessible, EveryWindowSaysNameAndRoleOfAllThatIsReached) {
  std::set<QString> roles;
  const int places = WindowWalk().Go([&roles](ReadyDriver& driver, const QString&) {
    const QJsonObject tree = Tree(driver);
    ExpectSpoken(tree);
    bool isFocused = false;
    ForEachInTree(tree, [&](const QJsonObject& object) {
      if (IsReached(object)) roles.insert(object.value(u"role").toString());
      isFocused |= Has(object, u"state", QStringLiteral("focused"));
    });
    EXPECT_TRUE(isFocused) << "the keys go somewhere that is not told of";
  });
  EXPECT_GE(places, 70);
  EXPECT_EQ(roles, SpokenRoles()) << "a role was not met";
}

TEST(Accessible, RowsOfTheListSayNameAndNumberAndWhetherTheyAreSelected) {
  ReadyDriver driver;
  driver.Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"김철수",)"
                R"("HomeTelephoneNumber":"02-1"}})",
                u"oid");
  driver.Do(R"({"op":"command","id":59413})");
  driver.Do(R"({"op":"key","key":"Down"})");
  const QJsonObject row =
      Find(Tree(driver), QStringLiteral("ListItem"), QStringLiteral("김철수, 02-1"));
  ASSERT_FALSE(row.isEmpty());
  EXPECT_TRUE(Has(row, u"state", QStringLiteral("selected")));
  EXPECT_TRUE(Has(row, u"state", QStringLiteral("focused")));
  EXPECT_EQ(row.value(u"x"), 0);
  EXPECT_EQ(row.value(u"y"), 71);
  EXPECT_EQ(row.value(u"h"), 16);
}

TEST(Accessible, TheEditorOfARowIsTheRowsAndHasItsName) {
  ReadyDriver driver;
  driver.Do(R"({"op":"command","id":57600})");
  driver.Do(R"({"op":"tap","on":"rows","x":120,"y":28})");
  driver.Do(R"({"op":"type","text":"직함"})");
  const QJsonObject rows = Find(Tree(driver), QStringLiteral("List"), QStringLiteral("Basic"));
  const QJsonObject edit = Find(rows, QStringLiteral("EditableText"), QStringLiteral("Job title"));
  EXPECT_EQ(edit.value(u"value"), QStringLiteral("직함"));
  EXPECT_TRUE(Has(edit, u"state", QStringLiteral("focused")));
}

TEST(Accessible, AChoiceSaysItsNameAndWhatIsChosen) {
  ReadyDriver driver;
  driver.Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"Kim"}})", u"oid");
  driver.Do(R"({"op":"command","id":59413})");
  driver.Do(R"({"op":"hold","on":"list","x":50,"y":8})");
  driver.Do(R"({"op":"choose","id":32819})");
  driver.Do(R"({"op":"reveal","id":1020})");
  const QJsonObject choice =
      Find(Tree(driver), QStringLiteral("ComboBox"), QStringLiteral("Recur"));
  EXPECT_EQ(choice.value(u"value"), QStringLiteral("Once"));
  EXPECT_TRUE(Has(choice, u"state", QStringLiteral("haspopup")));
  driver.Do(R"({"op":"drop","id":1020})");
  EXPECT_FALSE(Find(Tree(driver), QStringLiteral("PopupMenu"), QStringLiteral("Recur")).isEmpty());
}

TEST(Accessible, ADialogIsModalAndTheFrameIsNot) {
  ReadyDriver driver;
  driver.Do(R"({"op":"command","id":57664})");
  const QJsonObject tree = Tree(driver);
  EXPECT_TRUE(Has(Find(tree, QStringLiteral("Dialog"), QStringLiteral("About")), u"state",
                  QStringLiteral("modal")));
  EXPECT_FALSE(Has(Find(tree, QStringLiteral("Window"), QStringLiteral("Quill (Quillbook)")),
                   u"state", QStringLiteral("modal")));
}

TEST(Accessible, AWindowThatIsNotThereIsUnknown) {
  ReadyDriver driver;
  EXPECT_EQ(driver.Error(R"({"op":"accessible","on":"top"})"), QStringLiteral("unknown"));
  EXPECT_EQ(driver.Error(R"({"op":"accessible","on":true})"), QStringLiteral("malformed"));
}
