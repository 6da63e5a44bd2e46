// Contacts in and out by the window's own commands.
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include "driver/WindowWalk.h"

using quill::test::ReadyDriver;

namespace {

// Ids of the shell's menu and of the dialogs' controls.
constexpr const char* kImport = R"({"op":"choose","id":60004})";
constexpr const char* kExport = R"({"op":"choose","id":60005})";
constexpr const char* kOK = R"({"op":"ok"})";

QByteArray CardOf(const QByteArray& name) {
  return "BEGIN:VCARD\r\nVERSION:3.0\r\nN:" + name + ";;;;\r\nFN:" + name + "\r\nEND:VCARD\r\n";
}

class ExchangeScript : public testing::Test {
 protected:
  QStringList AtHome() const { return {QStringLiteral("--home"), m_home.path()}; }
  void Write(const QString& name, const QByteArray& content) const {
    const QFileInfo info(m_home.filePath(name));
    ASSERT_TRUE(QDir().mkpath(info.path()));
    QFile file(info.filePath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }
  QByteArray Content(const QString& name) const {
    QFile file(m_home.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }
  static void Choose(ReadyDriver& driver, const char* command) {
    driver.Do(R"({"op":"hold","on":"screen","x":100,"y":10})");
    driver.Do(command);
  }
  // A tap on the row of the file list that shows this name.
  static void TapRow(ReadyDriver& driver, const QString& name) {
    const QJsonObject text =
        quill::test::FindText(driver.Result(R"({"op":"texts","on":"screen"})", u"texts"), name);
    ASSERT_FALSE(text.isEmpty()) << name.toStdString();
    driver.Do(quill::test::TapOn(text));
  }
  static QJsonValue Message(ReadyDriver& driver) {
    return driver.Result(R"({"op":"message"})", u"message");
  }
  static QString TextOf(const QJsonValue& message) {
    return message.toObject().value(u"text").toString();
  }
  static void Answer(ReadyDriver& driver, const QByteArray& button) {
    driver.Do(R"({"op":"answer","button":")" + button + R"("})");
  }
  static QString TopTitle(ReadyDriver& driver) {
    const auto windows = driver.Result(R"({"op":"windows"})", u"windows").toArray();
    return windows.last().toObject().value(u"title").toString();
  }
  static QJsonObject List(ReadyDriver& driver) {
    return driver.Result(R"({"op":"list"})", u"list").toObject();
  }
  static void Bring(ReadyDriver& driver, const QString& file) {
    Choose(driver, kImport);
    TapRow(driver, file);
    driver.Do(kOK);
  }

  QTemporaryDir m_home;
};

}  // namespace

TEST_F(ExchangeScript, AFileIsFoundByTapsAndItsContactsStandInTheList) {
  Write(QStringLiteral("연락처/김철수의 아주 긴 이름.vcf"), CardOf("Abel") + CardOf("Bell"));
  ReadyDriver driver(AtHome());
  Choose(driver, kImport);
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Import"));
  TapRow(driver, QStringLiteral("연락처"));
  TapRow(driver, QStringLiteral("연락처"));
  TapRow(driver, QStringLiteral("김철수의 아주 긴 이름.vcf"));
  TapRow(driver, QStringLiteral("김철수의 아주 긴 이름.vcf"));
  EXPECT_EQ(
      TextOf(Message(driver)),
      QStringLiteral("김철수의 아주 긴 이름.vcf: 2 new, 0 changed, 0 the same, 0 unreadable."));
  EXPECT_EQ(Message(driver).toObject().value(u"icon"), QStringLiteral("information"));
  Answer(driver, "OK");
  EXPECT_EQ(List(driver).value(u"total"), 2);
}

TEST_F(ExchangeScript, TheSameFileAgainChangesNothing) {
  Write(QStringLiteral("a.vcf"), CardOf("Abel"));
  ReadyDriver driver(AtHome());
  for (const char* counts : {"1 new, 0 changed, 0 the same", "0 new, 0 changed, 1 the same"}) {
    Bring(driver, QStringLiteral("a.vcf"));
    EXPECT_TRUE(TextOf(Message(driver)).contains(QLatin1String(counts))) << counts;
    Answer(driver, "OK");
  }
  EXPECT_EQ(List(driver).value(u"total"), 1);
}

TEST_F(ExchangeScript, KeysAloneDoItToo) {
  Write(QStringLiteral("a.vcf"), CardOf("Abel"));
  ReadyDriver driver(AtHome());
  Choose(driver, kImport);
  driver.Do(R"({"op":"key","key":"End"})");
  driver.Do(R"({"op":"key","key":"Return"})");
  driver.Do(R"({"op":"key","key":"Return"})");
  EXPECT_EQ(List(driver).value(u"total"), 1);
}

TEST_F(ExchangeScript, TheCommandsAreDisabledWhileAnotherWindowIsOpen) {
  ReadyDriver driver(AtHome());
  driver.Do(R"({"op":"command","id":57664})");
  driver.Do(R"({"op":"key","key":"Menu"})");
  const auto items = driver.Result(R"({"op":"popup"})", u"popup").toArray();
  int found = 0;
  for (const QJsonValue& item : items) {
    const int id = item.toObject().value(u"id").toInt();
    if (id != 60004 && id != 60005) continue;
    ++found;
    EXPECT_FALSE(item.toObject().value(u"enabled").toBool()) << id;
  }
  EXPECT_EQ(found, 2);
}

TEST_F(ExchangeScript, AnOldFileAsksForItsCharacterSet) {
  Write(QStringLiteral("old.vcf"), CardOf("\xB1\xE8\xC3\xB6\xBC\xF6"));
  ReadyDriver driver(AtHome());
  Bring(driver, QStringLiteral("old.vcf"));
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Character set"));
  driver.Do(R"({"op":"set","id":1002,"index":0})");
  const auto preview = driver.Result(R"({"op":"get","id":1003})", u"control").toObject();
  EXPECT_EQ(preview.value(u"text"), QStringLiteral("김철수"));
  driver.Do(kOK);
  Answer(driver, "OK");
  const auto rows = List(driver).value(u"rows").toArray();
  ASSERT_EQ(rows.size(), 1);
  EXPECT_EQ(rows[0].toObject().value(u"name"), QStringLiteral("김철수"));
}

TEST_F(ExchangeScript, ExportWritesEveryContact) {
  Write(QStringLiteral("a.vcf"), CardOf("Abel") + CardOf("Bell"));
  ReadyDriver driver(AtHome());
  Bring(driver, QStringLiteral("a.vcf"));
  Answer(driver, "OK");
  Choose(driver, kExport);
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Export"));
  driver.Do(kOK);
  EXPECT_EQ(TextOf(Message(driver)), QStringLiteral("contacts.vcf: 2 contacts."));
  EXPECT_EQ(Content(QStringLiteral("contacts.vcf")).count("BEGIN:VCARD"), 2);
}

TEST_F(ExchangeScript, ExportAsksBeforeItWritesOver) {
  Write(QStringLiteral("a.vcf"), CardOf("Abel"));
  Write(QStringLiteral("친구.vcf"), "old");
  ReadyDriver driver(AtHome());
  Bring(driver, QStringLiteral("a.vcf"));
  Answer(driver, "OK");
  Choose(driver, kExport);
  driver.Do(R"({"op":"set","id":1005,"text":"친구"})");
  driver.Do(kOK);
  EXPECT_EQ(TextOf(Message(driver)), QStringLiteral("친구.vcf is there already. Replace it?"));
  Answer(driver, "No");
  EXPECT_EQ(Content(QStringLiteral("친구.vcf")), "old");
  driver.Do(kOK);
  Answer(driver, "Yes");
  EXPECT_EQ(TextOf(Message(driver)), QStringLiteral("친구.vcf: 1 contact."));
  EXPECT_EQ(Content(QStringLiteral("친구.vcf")).count("BEGIN:VCARD"), 1);
}

TEST_F(ExchangeScript, ExportCanKeepToTheContactsOfTheList) {
  Write(QStringLiteral("a.vcf"), CardOf("Abel") + CardOf("Bell"));
  ReadyDriver driver(AtHome());
  Bring(driver, QStringLiteral("a.vcf"));
  Answer(driver, "OK");
  driver.Do(R"({"op":"set","id":1028,"text":"bell"})");
  driver.Do(R"({"op":"click","id":1035})");
  EXPECT_EQ(List(driver).value(u"total"), 1);
  Choose(driver, kExport);
  driver.Do(R"({"op":"set","id":1006,"checked":true})");
  driver.Do(kOK);
  EXPECT_EQ(TextOf(Message(driver)), QStringLiteral("contacts.vcf: 1 contact."));
  EXPECT_TRUE(Content(QStringLiteral("contacts.vcf")).contains("Bell"));
}

TEST_F(ExchangeScript, ALongImportShowsItsProgressAndKeepsWhatItHasWhenCancelled) {
  QByteArray cards;
  for (int i = 0; i < 40'000; ++i) cards += CardOf("Person" + QByteArray::number(i));
  Write(QStringLiteral("many.vcf"), cards);
  ReadyDriver driver(AtHome());
  Bring(driver, QStringLiteral("many.vcf"));
  EXPECT_EQ(TopTitle(driver), QStringLiteral("Import"));
  EXPECT_EQ(Message(driver), QJsonValue()) << "it still runs";
  quill::test::ExpectSpoken(
      driver.Result(R"({"op":"accessible","on":"top"})", u"accessible").toObject());
  driver.Do(R"({"op":"click","id":2})");
  EXPECT_TRUE(
      TextOf(Message(driver)).contains(QStringLiteral("stopped; what came in until then stays")))
      << TextOf(Message(driver)).toStdString();
  Answer(driver, "OK");
  const int total = List(driver).value(u"total").toInt();
  EXPECT_GT(total, 0);
  EXPECT_LT(total, 40'000);
}
