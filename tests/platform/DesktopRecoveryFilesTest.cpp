#include "platform/DesktopRecoveryFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quill {
namespace {

class DesktopRecoveryFilesTest : public testing::Test {
 protected:
  QStringList Names() const { return QDir(m_folder.path()).entryList(QDir::Files); }

  QTemporaryDir m_folder;
  DesktopRecoveryFiles m_files{m_folder.path()};
};

TEST_F(DesktopRecoveryFilesTest, AFileIsThereForTheNextRun) {
  EXPECT_EQ(m_files.Read(u"a.json"_qs), std::nullopt);
  EXPECT_TRUE(m_files.Write(u"a.json"_qs, "old"));
  EXPECT_TRUE(m_files.Write(u"a.json"_qs, "new"));
  EXPECT_EQ(DesktopRecoveryFiles(m_folder.path()).Read(u"a.json"_qs), QByteArray("new"));
  EXPECT_EQ(Names(), QStringList(u"recovery-a.json"_qs));
}

TEST_F(DesktopRecoveryFilesTest, BytesAreAddedToAFileThatIsThere) {
  EXPECT_FALSE(m_files.Append(u"a.json"_qs, "none"));
  EXPECT_TRUE(Names().isEmpty());
  ASSERT_TRUE(m_files.Write(u"a.json"_qs, "a"));
  EXPECT_TRUE(m_files.Append(u"a.json"_qs, "b"));
  EXPECT_TRUE(m_files.Append(u"a.json"_qs, "c"));
  EXPECT_EQ(m_files.Read(u"a.json"_qs), QByteArray("abc"));
}

TEST_F(DesktopRecoveryFilesTest, ARemovedFileIsGoneAndMayBeRemovedAgain) {
  ASSERT_TRUE(m_files.Write(u"a.json"_qs, "a"));
  EXPECT_TRUE(m_files.Remove(u"a.json"_qs));
  EXPECT_TRUE(Names().isEmpty());
  EXPECT_TRUE(m_files.Remove(u"a.json"_qs));
}

TEST_F(DesktopRecoveryFilesTest, AFileSetAsideIsKeptAndReadNoMore) {
  ASSERT_TRUE(m_files.Write(u"a.json"_qs, "damaged"));
  EXPECT_TRUE(m_files.SetAside(u"a.json"_qs));
  EXPECT_EQ(m_files.Read(u"a.json"_qs), std::nullopt);
  EXPECT_EQ(Names(), QStringList(u"recovery-a.json.bad"_qs));
  EXPECT_TRUE(m_files.SetAside(u"a.json"_qs));
}

TEST_F(DesktopRecoveryFilesTest, WhatCannotBeDoneIsSaid) {
  EXPECT_FALSE(DesktopRecoveryFiles(m_folder.filePath(u"none"_qs)).Write(u"a.json"_qs, "a"));
  ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"recovery-a.json"_qs));
  EXPECT_EQ(m_files.Read(u"a.json"_qs), std::nullopt);
  EXPECT_FALSE(m_files.Write(u"a.json"_qs, "a"));
  EXPECT_FALSE(m_files.Append(u"a.json"_qs, "a"));
  EXPECT_FALSE(m_files.Remove(u"a.json"_qs));
}

}  // namespace
}  // namespace quill
