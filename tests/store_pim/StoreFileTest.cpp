#include "store/pim/StoreFile.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QFile>
#include <QTemporaryDir>

namespace quill {
namespace {

QByteArray Header(quint32 applicationId, quint8 version) {
  QByteArray header(100, '\0');
  header.replace(0, 15, "SQLite format 3");
  header[63] = static_cast<char>(version);
  for (int i = 0; i < 4; ++i) header[68 + i] = static_cast<char>(applicationId >> (24 - 8 * i));
  return header;
}

struct FileCase {
  const char* Name;
  QByteArray Bytes;
  int Code;  // 0: fit
};

class ExaminedFile : public testing::TestWithParam<FileCase> {};

TEST_P(ExaminedFile, IsFitOrNot) {
  const auto fault = ExamineHeader(GetParam().Bytes);
  EXPECT_EQ(fault ? fault->Code : 0, GetParam().Code) << GetParam().Name;
  EXPECT_NE(fault ? fault->Reason : QStringLiteral("fit"), QString());
}

INSTANTIATE_TEST_SUITE_P(
    Files, ExaminedFile,
    testing::Values(FileCase{"empty", {}, 0}, FileCase{"a store", Header(0x5175696C, 1), 0},
                    FileCase{"without an id", Header(0, 9), 0},
                    FileCase{"newer", Header(0x5175696C, 99), SQLITE_SCHEMA},
                    FileCase{"another program's", Header(0x12345678, 1), SQLITE_NOTADB},
                    FileCase{"short", Header(0x5175696C, 1).left(99), SQLITE_NOTADB},
                    FileCase{"a text", QByteArray(5000, 'x'), SQLITE_NOTADB},
                    FileCase{"zeroes", QByteArray(5000, '\0'), SQLITE_NOTADB}));

TEST(StoreFile, AFileOrNoneIsAPlace) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("store.db"));
  EXPECT_FALSE(ExaminePlace(path));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_FALSE(ExaminePlace(path));
}

TEST(StoreFile, AFolderOrADeviceIsNone) {
  const QTemporaryDir folder;
  for (const QString& path : {folder.path(), QStringLiteral("/dev/null")}) {
    const auto fault = ExaminePlace(path);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->Code, SQLITE_CANTOPEN);
    EXPECT_FALSE(fault->Reason.isEmpty());
  }
}

}  // namespace
}  // namespace quill
