#include "cli/RejectsFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(RejectsFile, KeepsNothingWithoutAPath) {
  RejectsFile rejects{QString()};
  EXPECT_TRUE(rejects.Open());
  EXPECT_EQ(rejects.Device(), nullptr);
  EXPECT_FALSE(rejects.IsOneOf({QString(), QStringLiteral("/")}));
  EXPECT_TRUE(rejects.Finish());
}

TEST(RejectsFile, IsThereOnceItIsFinished) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("rejects.vcf"));
  RejectsFile rejects(path);
  ASSERT_TRUE(rejects.Open());
  rejects.Device()->write("x");
  EXPECT_FALSE(QFile::exists(path));
  EXPECT_TRUE(rejects.Finish());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "x");
}

TEST(RejectsFile, IsNotMadeForNothing) {
  const QTemporaryDir folder;
  RejectsFile rejects(folder.filePath(QStringLiteral("rejects.vcf")));
  ASSERT_TRUE(rejects.Open());
  EXPECT_TRUE(rejects.Finish());
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

TEST(RejectsFile, TellsWhyItCannotBeWritten) {
  RejectsFile missing(QStringLiteral("/no/such/folder/rejects.vcf"));
  EXPECT_FALSE(missing.Open());
  EXPECT_TRUE(missing.Problem().startsWith(QStringLiteral("/no/such/folder/rejects.vcf: ")));

  // The folder's name is taken by the time the file shall have it.
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("rejects.vcf"));
  RejectsFile late(path);
  ASSERT_TRUE(late.Open());
  late.Device()->write("x");
  ASSERT_TRUE(QDir().mkpath(path));
  EXPECT_FALSE(late.Finish());
  EXPECT_GT(late.Problem().size(), path.size() + 2);
}

}  // namespace
}  // namespace quill
