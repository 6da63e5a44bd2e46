// The popup of a contact's row.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class RowPopup : public testing::Test {
 protected:
  // A memo file of this name.
  void AddMemo(const QString& name) {
    QDir(m_home.path()).mkpath(QStringLiteral("My Documents/Fennick"));
    QFile file(m_home.filePath(QStringLiteral("My Documents/Fennick/") + name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  QStringList Arguments() const { return {QStringLiteral("--home"), m_home.path()}; }

  QTemporaryDir m_home;
};

QJsonArray Popup(ReadyDriver& driver) {
  return driver.Result(R"({"op":"popup"})", u"popup").toArray();
}

QStringList Texts(const QJsonValue& items) {
  QStringList texts;
  for (const auto& item : items.toArray()) texts.append(item.toObject()[u"text"].toString());
  return texts;
}

}  // namespace

TEST_F(RowPopup, CountsAndListsWhatIsLinkedToTheContact) {
  AddMemo(QStringLiteral("김민수_20040915_093005.pwi"));
  AddMemo(QStringLiteral("Kim_20040915_093005.pwi"));
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"put","fields":{"FileAs":"김민수"},"quiet":true})", u"oid");
  driver.Result(R"({"op":"put-appointment","fields":{"Subject":"(김민수) tea"},"quiet":true})",
                u"oid");
  driver.Result(R"({"op":"put-appointment","fields":{"Subject":"(Kim) tea"}})", u"oid");
  driver.Do(R"({"op":"wait","ms":700})");
  driver.Do(R"({"op":"hold","on":"list","x":20,"y":8})");
  const QJsonArray items = Popup(driver);
  EXPECT_EQ(Texts(items), QStringList({QStringLiteral("Appointment: 1"),
                                       QStringLiteral("Memo: 1"),
                                       {},
                                       QStringLiteral("Add Appoint..."),
                                       QStringLiteral("Add Memo..."),
                                       {},
                                       QStringLiteral("Beam Contact..."),
                                       QStringLiteral("Copy Contact"),
                                       QStringLiteral("Delete Contact")}));
  EXPECT_EQ(Texts(items[0].toObject()[u"items"]), QStringList(QStringLiteral("(김민수) tea")));
  EXPECT_EQ(Texts(items[1].toObject()[u"items"]),
            QStringList(QStringLiteral("김민수_20040915_093005.pwi")));
  driver.Do(R"({"op":"dismiss"})");
  EXPECT_TRUE(Popup(driver).isEmpty());
  EXPECT_EQ(driver.Result(R"({"op":"list"})", u"list").toObject()[u"selected"].toArray().size(), 1);
  EXPECT_EQ(driver.Result(R"({"op":"message"})", u"message"), QJsonValue());
}

TEST_F(RowPopup, BelowTheLastContactThereIsNone) {
  ReadyDriver driver(Arguments());
  driver.Result(R"({"op":"put","fields":{"FileAs":"Kim"}})", u"oid");
  driver.Do(R"({"op":"wait","ms":700})");
  driver.Do(R"({"op":"hold","on":"list","x":20,"y":40})");
  EXPECT_TRUE(Popup(driver).isEmpty());
  driver.Do(R"({"op":"release","on":"list","x":20,"y":40})");
}
