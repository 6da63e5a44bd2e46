#include "app/MemoTaking.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include "memo/MemoFolder.h"
#include "memo/MemoListing.h"
#include "support/DeviceHome.h"

namespace quill {
namespace {

class MemoTaking : public testing::Test {
 protected:
  MemoTaking() { FixMemoFolder(m_memo); }
  ~MemoTaking() override { g_services = {}; }

  QString Take(const QString& file) const { return TakeMemoFile(file, m_roots, m_memo); }
  QString Path(const QString& name) const { return MemoPath(m_memo, name); }
  // A file outside of the device.
  QString Write(const QString& name, const QByteArray& content) const {
    QFile file(m_elsewhere.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  test::DeviceHome m_home;
  QTemporaryDir m_elsewhere;
  const DeviceRoots m_roots{.Device = m_home.Folder.path(),
                            .MyDocuments = m_home.Folder.filePath(u"My Documents"_qs)};
  MemoState m_memo;
};

TEST_F(MemoTaking, MemoFilesAreKnownByTheirNames) {
  EXPECT_TRUE(IsMemoFile(u"/a/b.pwi"_qs));
  EXPECT_TRUE(IsMemoFile(u"B.PWI"_qs));
  EXPECT_FALSE(IsMemoFile(u"b.vcf"_qs));
  EXPECT_FALSE(IsMemoFile(u"pwi"_qs));
}

TEST_F(MemoTaking, AMemoOfTheFolderIsEditedWhereItLies) {
  ASSERT_TRUE(m_home.Files.WriteWhole(Path(u"a.pwi"_qs), "a"));
  const QString file = m_home.Folder.filePath(u"My Documents/Fennick/a.pwi"_qs);
  EXPECT_EQ(Take(file), Path(u"a.pwi"_qs));
  EXPECT_EQ(AllMemos(m_memo).size(), 1);
}

TEST_F(MemoTaking, AFileFromElsewhereIsCopiedIntoTheFolder) {
  EXPECT_EQ(Take(Write(u"a.pwi"_qs, "a")), Path(u"a.pwi"_qs));
  EXPECT_EQ(m_home.Files.ReadWhole(Path(u"a.pwi"_qs)), "a");
}

TEST_F(MemoTaking, AFolderThatWasRemovedMeanwhileIsMadeAgain) {
  ASSERT_TRUE(QDir(m_roots.MyDocuments).removeRecursively());
  EXPECT_EQ(Take(Write(u"a.pwi"_qs, "a")), Path(u"a.pwi"_qs));
  EXPECT_EQ(AllMemos(m_memo), QStringList(u"a.pwi"_qs));
}

TEST_F(MemoTaking, ACopyNeverTakesThePlaceOfAnotherMemo) {
  ASSERT_TRUE(m_home.Files.WriteWhole(Path(u"a.pwi"_qs), "one"));
  ASSERT_TRUE(m_home.Files.WriteWhole(Path(u"a (2).pwi"_qs), "two"));
  EXPECT_EQ(Take(Write(u"a.pwi"_qs, "three")), Path(u"a (3).pwi"_qs));
  EXPECT_EQ(m_home.Files.ReadWhole(Path(u"a.pwi"_qs)), "one");
  EXPECT_EQ(m_home.Files.ReadWhole(Path(u"a (3).pwi"_qs)), "three");
}

TEST_F(MemoTaking, ACopyThatIsThereAlreadyIsTakenAgain) {
  const QString file = Write(u"a.pwi"_qs, "a");
  EXPECT_EQ(Take(file), Take(file));
  EXPECT_EQ(AllMemos(m_memo).size(), 1);
}

TEST_F(MemoTaking, WhatCannotBeReadOrCopiedIsNotTaken) {
  EXPECT_EQ(Take(m_elsewhere.filePath(u"missing.pwi"_qs)), QString());
  ASSERT_TRUE(QDir(m_elsewhere.path()).mkdir(u"folder.pwi"_qs));
  EXPECT_EQ(Take(m_elsewhere.filePath(u"folder.pwi"_qs)), QString());
  EXPECT_EQ(Take(Write(u"a?.pwi"_qs, "a")), QString());
  EXPECT_TRUE(AllMemos(m_memo).isEmpty());
}

}  // namespace
}  // namespace quill
