#include "platform/JsonRegistry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quill {
namespace {

const QString kKey = QStringLiteral("\\Software\\Fennick\\Quill");
const QString kNumber = QStringLiteral("ABC");
const QString kText = QStringLiteral("AreaCodeValue");

// 520 bytes: the text "02", its terminator and zero fill.
QByteArray AreaCodeBlock() { return QByteArray("0\0002\0", 4).append(516, '\0'); }

class JsonRegistryTest : public testing::Test {
 protected:
  QString File() const { return m_folder.filePath(QStringLiteral("settings.json")); }

  void WriteFile(const QByteArray& content) const {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }

  static QByteArray ContentOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
  }

  QStringList FilesInFolder() const {
    return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name);
  }

  QTemporaryDir m_folder;
};

TEST_F(JsonRegistryTest, CreateTellsWhetherTheKeyIsNew) {
  JsonRegistry registry(File());
  EXPECT_EQ(registry.Create(kKey), RegistryKeyState::Created);
  EXPECT_EQ(registry.Create(kKey), RegistryKeyState::Opened);
  EXPECT_EQ(JsonRegistry(File()).Create(kKey), RegistryKeyState::Opened) << "in the next run, too";
}

TEST_F(JsonRegistryTest, NamesOfKeysAndValuesAreComparedWithoutCase) {
  JsonRegistry registry(File());
  EXPECT_TRUE(registry.PutNumber(kKey, kNumber, 7));
  EXPECT_EQ(registry.Create(kKey.toUpper()), RegistryKeyState::Opened);
  EXPECT_EQ(registry.QueryNumber(kKey.toLower(), QStringLiteral("abc")), 7U);
}

TEST_F(JsonRegistryTest, ValuesAndTheirTypesAreThereInTheNextRun) {
  {
    JsonRegistry registry(File());
    EXPECT_TRUE(registry.PutNumber(kKey, kNumber, 0xFFFFFFFF));
    EXPECT_TRUE(registry.PutText(kKey, kText, AreaCodeBlock()));
  }
  const JsonRegistry registry(File());
  EXPECT_EQ(registry.QueryNumber(kKey, kNumber), 0xFFFFFFFF);
  QByteArray buffer(520, 'x');
  const RegistryTextRead read = registry.QueryText(kKey, kText, buffer);
  EXPECT_EQ(read.Status, RegistryStatus::Done);
  EXPECT_EQ(read.Size, 520);
  EXPECT_EQ(buffer, AreaCodeBlock());
}

TEST_F(JsonRegistryTest, ATextThatDoesNotFitTheBufferLeavesItUntouched) {
  JsonRegistry registry(File());
  ASSERT_TRUE(registry.PutText(kKey, kText, AreaCodeBlock()));
  for (const int size : {0, 5, 519}) {
    QByteArray buffer(size, 'x');
    const RegistryTextRead read = registry.QueryText(kKey, kText, buffer);
    EXPECT_EQ(read.Status, RegistryStatus::MoreData) << size;
    EXPECT_EQ(read.Size, 520) << size;
    EXPECT_EQ(buffer, QByteArray(size, 'x'));
  }
}

TEST_F(JsonRegistryTest, AShorterTextFillsTheBuffersBeginOnly) {
  JsonRegistry registry(File());
  ASSERT_TRUE(registry.PutText(kKey, kText, QByteArray("2\0", 2)));
  QByteArray buffer(5, 'x');
  EXPECT_EQ(registry.QueryText(kKey, kText, buffer).Size, 2);
  EXPECT_EQ(buffer, QByteArray("2\0xxx", 5));
}

TEST_F(JsonRegistryTest, WhatWasNeverPutIsMissing) {
  JsonRegistry registry(File());
  QByteArray buffer(520, 'x');
  EXPECT_FALSE(registry.QueryNumber(kKey, kNumber));
  EXPECT_EQ(registry.QueryText(kKey, kText, buffer).Status, RegistryStatus::Missing);
  ASSERT_EQ(registry.Create(kKey), RegistryKeyState::Created);
  EXPECT_FALSE(registry.QueryNumber(kKey, kNumber));
}

TEST_F(JsonRegistryTest, AValueOfTheOtherTypeIsMissing) {
  JsonRegistry registry(File());
  ASSERT_TRUE(registry.PutNumber(kKey, kNumber, 1));
  ASSERT_TRUE(registry.PutText(kKey, kText, "ab"));
  QByteArray buffer(520, 'x');
  EXPECT_EQ(registry.QueryText(kKey, kNumber, buffer).Status, RegistryStatus::Missing);
  EXPECT_FALSE(registry.QueryNumber(kKey, kText));
}

TEST_F(JsonRegistryTest, PutReplacesAValueWhateverItsTypeWas) {
  JsonRegistry registry(File());
  ASSERT_TRUE(registry.PutText(kKey, kNumber, "ab"));
  ASSERT_TRUE(registry.PutNumber(kKey, kNumber, 1));
  ASSERT_TRUE(registry.PutNumber(kKey, kNumber, 2));
  EXPECT_EQ(JsonRegistry(File()).QueryNumber(kKey, kNumber), 2U);
}

TEST_F(JsonRegistryTest, ValuesThatArePutTogetherAreAllStored) {
  EXPECT_TRUE(JsonRegistry(File()).Put(kKey, {{kNumber, 7U}, {kText, AreaCodeBlock()}}));
  const JsonRegistry registry(File());
  EXPECT_EQ(registry.QueryNumber(kKey, kNumber), 7U);
  QByteArray buffer(520, 'x');
  EXPECT_EQ(registry.QueryText(kKey, kText, buffer).Status, RegistryStatus::Done);
  EXPECT_EQ(buffer, AreaCodeBlock());
}

TEST_F(JsonRegistryTest, TheFolderIsMadeWhenItIsMissing) {
  const QString file = m_folder.filePath(QStringLiteral("a/b/settings.json"));
  JsonRegistry registry(file);
  EXPECT_TRUE(registry.PutNumber(kKey, kNumber, 1));
  EXPECT_EQ(JsonRegistry(file).QueryNumber(kKey, kNumber), 1U);
}

TEST_F(JsonRegistryTest, ADamagedFileIsKeptAsideAndTheRegistryBeginsEmpty) {
  WriteFile("{ damaged");
  JsonRegistry registry(File());
  EXPECT_EQ(registry.Create(kKey), RegistryKeyState::Created);
  EXPECT_EQ(ContentOf(File() + QStringLiteral(".bad")), QByteArray("{ damaged"));
}

TEST_F(JsonRegistryTest, ASecondDamagedFileDoesNotReplaceTheFirst) {
  WriteFile("first");
  const JsonRegistry once(File());
  WriteFile("second");
  const JsonRegistry twice(File());
  EXPECT_EQ(ContentOf(File() + QStringLiteral(".bad")), QByteArray("first"));
  EXPECT_EQ(ContentOf(File() + QStringLiteral(".bad-2")), QByteArray("second"));
}

TEST_F(JsonRegistryTest, AFailedWriteKeepsTheOldValueAndLeavesNothingBehind) {
  const QString notAFolder = File();
  WriteFile("a file");
  JsonRegistry registry(notAFolder + QStringLiteral("/settings.json"));
  EXPECT_FALSE(registry.PutNumber(kKey, kNumber, 1));
  EXPECT_FALSE(registry.PutText(kKey, kText, "ab"));
  EXPECT_EQ(registry.Create(kKey), RegistryKeyState::Failed);
  EXPECT_FALSE(registry.QueryNumber(kKey, kNumber));
  EXPECT_EQ(ContentOf(notAFolder), QByteArray("a file"));
  EXPECT_THAT(FilesInFolder(), testing::ElementsAre(QStringLiteral("settings.json")));
}

TEST_F(JsonRegistryTest, AFileThatCannotBeReadIsNeverWrittenOver) {
  // A folder stands in the file's place: it exists, and opening it for reading fails.
  ASSERT_TRUE(QDir().mkpath(File() + QStringLiteral("/inner")));
  JsonRegistry registry(File());
  EXPECT_FALSE(registry.PutNumber(kKey, kNumber, 1));
  EXPECT_TRUE(QDir(File() + QStringLiteral("/inner")).exists());
}

TEST_F(JsonRegistryTest, APipeInTheFilesPlaceKeepsNobodyWaiting) {
  ASSERT_EQ(::mkfifo(QFile::encodeName(File()).constData(), S_IRUSR | S_IWUSR), 0);
  JsonRegistry registry(File());
  EXPECT_EQ(registry.Create(kKey), RegistryKeyState::Failed);
  EXPECT_TRUE(QFileInfo::exists(File()));
  EXPECT_FALSE(QFileInfo(File()).isFile());
}

TEST_F(JsonRegistryTest, AFileThatIsFarTooLongIsKeptAsideUnread) {
  const QByteArray content = R"({"k": {"v": 1}})";
  WriteFile(content + QByteArray(8 * 1024 * 1024 - content.size(), ' '));
  EXPECT_EQ(JsonRegistry(File()).QueryNumber(QStringLiteral("k"), QStringLiteral("v")), 1U);
  ASSERT_TRUE(QFile::resize(File(), 8 * 1024 * 1024 + 1));
  JsonRegistry registry(File());
  EXPECT_EQ(registry.Create(kKey), RegistryKeyState::Created);
  EXPECT_EQ(QFileInfo(File() + QStringLiteral(".bad")).size(), 8 * 1024 * 1024 + 1);
}

TEST_F(JsonRegistryTest, WhatTheNextRunCouldNotReadIsNotPut) {
  JsonRegistry registry(File());
  ASSERT_TRUE(registry.PutText(kKey, kText, "ab"));
  EXPECT_FALSE(registry.PutText(kKey, kText, QByteArray(2 * 1024 * 1024, 'x')));
  QByteArray buffer(2, 'x');
  EXPECT_EQ(JsonRegistry(File()).QueryText(kKey, kText, buffer).Size, 2);
  EXPECT_EQ(registry.QueryText(kKey, kText, buffer).Size, 2);
}

TEST_F(JsonRegistryTest, PuttingTheSameValueAgainWritesTheFileThatVanished) {
  JsonRegistry registry(File());
  ASSERT_TRUE(registry.PutNumber(kKey, kNumber, 1));
  ASSERT_TRUE(registry.PutText(kKey, kText, "ab"));
  ASSERT_TRUE(QFile::remove(File()));
  EXPECT_TRUE(registry.PutNumber(kKey, kNumber, 1));
  EXPECT_EQ(JsonRegistry(File()).QueryNumber(kKey, kNumber), 1U);
  ASSERT_TRUE(QFile::remove(File()));
  EXPECT_TRUE(registry.PutText(kKey, kText, "ab"));
  EXPECT_TRUE(QFile::exists(File()));
}

TEST_F(JsonRegistryTest, OpeningAKeyThatIsThereWritesNothing) {
  ASSERT_TRUE(JsonRegistry(File()).PutNumber(kKey, kNumber, 1));
  JsonRegistry registry(File());
  ASSERT_TRUE(QFile::remove(File()));
  EXPECT_EQ(registry.Create(kKey), RegistryKeyState::Opened);
  EXPECT_FALSE(QFile::exists(File()));
}

}  // namespace
}  // namespace quill
