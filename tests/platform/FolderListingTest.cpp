#include "platform/FolderListing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quill {
namespace {

const QStringList kPatterns = {u"*.vcf"_qs, u"*.vcard"_qs};

class FolderListingTest : public testing::Test {
 protected:
  void MakeFile(const QString& name) const {
    QFile file(m_folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  void MakeFolder(const QString& name) const { ASSERT_TRUE(QDir(m_folder.path()).mkdir(name)); }
  // Without the folder above, folders with a slash.
  QStringList Names() const {
    QStringList names;
    for (const FolderEntry& entry : ListFolder(m_folder.path(), kPatterns).Entries)
      if (entry.Kind != FolderEntryKind::Parent)
        names.append(entry.Kind == FolderEntryKind::Folder ? entry.Name + u'/' : entry.Name);
    return names;
  }

  QTemporaryDir m_folder;
};

TEST_F(FolderListingTest, BeginsWithTheFolderAbove) {
  const FolderListing listing = ListFolder(m_folder.path(), kPatterns);
  ASSERT_EQ(listing.Entries.size(), 1U);
  EXPECT_EQ(listing.Entries[0], (FolderEntry{FolderEntryKind::Parent, u".."_qs}));
  EXPECT_EQ(listing.Folder, m_folder.path());
  EXPECT_TRUE(listing.IsReadable);
}

TEST_F(FolderListingTest, HasFoldersBeforeFilesBothByNameWithoutCase) {
  for (const char16_t* name : {u"b.vcf", u"A.VCF", u"c.vCard"}) MakeFile(QString::fromUtf16(name));
  for (const char16_t* name : {u"z", u"Y", u"연락처"}) MakeFolder(QString::fromUtf16(name));
  EXPECT_EQ(Names(), QStringList({u"Y/"_qs, u"z/"_qs, u"연락처/"_qs, u"A.VCF"_qs, u"b.vcf"_qs,
                                  u"c.vCard"_qs}));
}

TEST_F(FolderListingTest, LeavesOtherAndHiddenFilesOut) {
  for (const char16_t* name : {u"a.txt", u".b.vcf", u"vcf"}) MakeFile(QString::fromUtf16(name));
  MakeFolder(u".hidden"_qs);
  EXPECT_EQ(Names(), QStringList());
}

TEST_F(FolderListingTest, TheRootHasNoFolderAbove) {
  const FolderListing listing = ListFolder(u"/"_qs, kPatterns);
  EXPECT_EQ(listing.Folder, u"/"_qs);
  EXPECT_EQ(FindEntry(listing, u".."_qs), -1);
}

TEST_F(FolderListingTest, AFolderThatIsNotThereCannotBeReadButLeft) {
  const FolderListing listing = ListFolder(m_folder.filePath(u"none"_qs), kPatterns);
  EXPECT_FALSE(listing.IsReadable);
  ASSERT_EQ(listing.Entries.size(), 1U);
  EXPECT_EQ(EntryPath(listing, listing.Entries[0]), m_folder.path());
}

TEST_F(FolderListingTest, AFileIsNoFolder) {
  MakeFile(u"a.vcf"_qs);
  EXPECT_FALSE(ListFolder(m_folder.filePath(u"a.vcf"_qs), kPatterns).IsReadable);
}

TEST_F(FolderListingTest, AnEntryKnowsItsPath) {
  MakeFile(u"a.vcf"_qs);
  const FolderListing listing = ListFolder(m_folder.path() + u"/./"_qs, kPatterns);
  EXPECT_EQ(listing.Folder, m_folder.path());
  const int file = FindEntry(listing, u"a.vcf"_qs);
  ASSERT_EQ(file, 1);
  EXPECT_EQ(EntryPath(listing, listing.Entries[1]), m_folder.filePath(u"a.vcf"_qs));
}

}  // namespace
}  // namespace quill
