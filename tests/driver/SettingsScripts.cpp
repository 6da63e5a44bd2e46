// The settings from one start to the next, and the memo folder of a start.
#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <ostream>

#include "driver/DriverProcess.h"

using quill::test::ReadyDriver;

namespace {

class SettingsScript : public testing::Test {
 protected:
  QStringList AtHome(const QStringList& more = {}) const {
    return QStringList{QStringLiteral("--home"), m_home.path()} + more;
  }
  bool HasFolder(const char* below) const {
    return QFileInfo(m_home.filePath(QLatin1String(below))).isDir();
  }
  static QJsonObject Settings(ReadyDriver& driver) {
    return driver.Result(R"({"op":"settings"})", u"settings").toObject();
  }
  static QJsonObject Store(ReadyDriver& driver, const QByteArray& values) {
    return driver.Result(R"({"op":"settings","values":)" + values + '}', u"settings").toObject();
  }
  static QJsonValue RowsPerPage(ReadyDriver& driver) {
    return driver.Result(R"({"op":"list"})", u"list").toObject().value(u"rowsPerPage");
  }

  QTemporaryDir m_home;
};

QJsonObject Defaults() {
  return {{QStringLiteral("ABC"), 1},
          {QStringLiteral("Name"), 0},
          {QStringLiteral("AreaCode"), 0},
          {QStringLiteral("AreaCodeValue"), QString()},
          {QStringLiteral("AreaCodeValueBytes"), 520},
          {QStringLiteral("AreaCodePrefix"), QString()}};
}

}  // namespace

TEST_F(SettingsScript, AFirstStartStoresTheDefaults) {
  ReadyDriver driver(AtHome());
  EXPECT_EQ(Settings(driver), Defaults());
  EXPECT_EQ(RowsPerPage(driver), 14);
}

TEST_F(SettingsScript, WhatIsStoredCountsFromTheNextStart) {
  {
    ReadyDriver driver(AtHome());
    const QJsonObject stored =
        Store(driver, R"({"ABC":0,"Name":4294967295,"AreaCodeValue":"2","AreaCodeValueBytes":4})");
    EXPECT_EQ(stored.value(u"ABC"), 0);
    EXPECT_EQ(stored.value(u"Name").toInteger(), 4294967295);
    EXPECT_EQ(stored.value(u"AreaCodeValue"), QStringLiteral("2"));
    EXPECT_EQ(stored.value(u"AreaCodeValueBytes"), 4);
    EXPECT_EQ(stored.value(u"AreaCodePrefix"), QString()) << "still the program's own";
    EXPECT_EQ(RowsPerPage(driver), 14);
  }
  ReadyDriver driver(AtHome());
  EXPECT_EQ(RowsPerPage(driver), 15);
  EXPECT_EQ(Settings(driver).value(u"AreaCodePrefix"), QStringLiteral("2-"));
}

TEST_F(SettingsScript, AnAreaCodeIsStoredInTheProgramsBlockUnlessBytesAreGiven) {
  ReadyDriver driver(AtHome());
  EXPECT_EQ(Store(driver, R"({"AreaCodeValue":"02"})").value(u"AreaCodeValueBytes"), 520);
  const QJsonObject shorter = Store(driver, R"({"AreaCodeValueBytes":6})");
  EXPECT_EQ(shorter.value(u"AreaCodeValueBytes"), 6);
  EXPECT_EQ(shorter.value(u"AreaCodeValue"), QStringLiteral("02"));
}

TEST_F(SettingsScript, ASavedAreaCodeIsNotThereAtTheNextStart) {
  {
    ReadyDriver driver(AtHome());
    Store(driver, R"({"AreaCodeValue":"02"})");
  }
  ReadyDriver driver(AtHome());
  EXPECT_EQ(Settings(driver).value(u"AreaCodePrefix"), QString());
  EXPECT_EQ(Settings(driver).value(u"AreaCodeValue"), QStringLiteral("02"));
}

class MalformedSettings : public SettingsScript, public testing::WithParamInterface<const char*> {};

TEST_P(MalformedSettings, AreRefusedAndNothingIsStored) {
  ReadyDriver driver(AtHome());
  EXPECT_EQ(driver.Error(QByteArray(R"({"op":"settings","values":)") + GetParam() + '}'),
            QStringLiteral("malformed"));
  EXPECT_EQ(Settings(driver), Defaults());
}

INSTANTIATE_TEST_SUITE_P(Values, MalformedSettings,
                         testing::Values("7", R"({"ABC":0,"Name":-1})", R"({"ABC":0.5})",
                                         R"({"ABC":"0"})", R"({"ABC":4294967296})",
                                         R"({"ABC":0,"AreaCodeValue":2})",
                                         R"({"ABC":0,"AreaCodeValueBytes":-1})",
                                         R"({"AreaCodeValueBytes":"6"})"));

TEST_F(SettingsScript, AStartMakesTheMemoFolder) {
  ReadyDriver driver(AtHome());
  EXPECT_TRUE(HasFolder("My Documents/Fennick"));
}

TEST_F(SettingsScript, AStartWithoutAMemoFolderSaysNothing) {
  ReadyDriver driver(AtHome({QStringLiteral("--fault"), QStringLiteral("memo-folder:112")}));
  EXPECT_EQ(driver.Result(R"({"op":"message"})", u"message"), QJsonValue());
  EXPECT_FALSE(HasFolder("My Documents/Fennick"));
  EXPECT_EQ(Settings(driver), Defaults()) << "the start went on";
}

class FailedStart : public SettingsScript, public testing::WithParamInterface<const char*> {};

TEST_P(FailedStart, MakesNoMemoFolderAndStoresNoSettings) {
  ReadyDriver driver(AtHome({QStringLiteral("--fault"), QLatin1String(GetParam())}));
  EXPECT_FALSE(HasFolder("My Documents"));
  EXPECT_EQ(Settings(driver).value(u"ABC"), QJsonValue());
  EXPECT_EQ(Settings(driver).value(u"AreaCodeValueBytes"), QJsonValue());
}

TEST_F(SettingsScript, TheConfigurationAfterAFailedStartKeepsWhatIsStored) {
  {
    ReadyDriver driver(AtHome());
    Store(driver, R"({"ABC":0,"Name":77,"AreaCode":1})");
  }
  ReadyDriver driver(AtHome({QStringLiteral("--fault"), QStringLiteral("calendar-folder")}));
  driver.Do(R"({"op":"command","id":32830})");
  driver.Do(R"({"op":"cancel"})");
  EXPECT_EQ(Settings(driver).value(u"ABC"), 0);
  EXPECT_EQ(Settings(driver).value(u"Name"), 77);
  EXPECT_EQ(Settings(driver).value(u"AreaCode"), 1);
}

INSTANTIATE_TEST_SUITE_P(Steps, FailedStart,
                         testing::Values("store-create", "store-logon", "contacts-folder",
                                         "calendar-folder"));
