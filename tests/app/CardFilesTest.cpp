#include "app/CardFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quill {
namespace {

class CardFiles : public testing::Test {
 protected:
  QString Make(const QString& name) const {
    const QString path = m_folder.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return path;
  }
  QTemporaryDir m_folder;
};

TEST_F(CardFiles, AreThoseOfAFolderAndOfTheFoldersBelowInOrder) {
  const QString last = Make(u"z.vcf"_qs);
  const QString deep = Make(u"m/n/a.VCARD"_qs);
  const QString first = Make(u"b.Vcf"_qs);
  Make(u"b.vcf.txt"_qs);
  Make(u".hidden/c.vcf"_qs);
  ASSERT_TRUE(QDir().mkpath(m_folder.filePath(u"folder.vcf"_qs)));
  ASSERT_TRUE(QFile::link(m_folder.path(), m_folder.filePath(u"m/loop"_qs)));
  EXPECT_EQ(CardFilesOf(m_folder.path()), (QStringList{first, deep, last}));
}

TEST_F(CardFiles, OfAnythingElseAreThatItself) {
  const QString file = Make(u"notes.txt"_qs);
  EXPECT_EQ(CardFilesOf(file), QStringList{file});
  EXPECT_EQ(CardFilesOf(u"-"_qs), QStringList{u"-"_qs});
  EXPECT_EQ(CardFilesOf(u"/no/such/file"_qs), QStringList{u"/no/such/file"_qs});
}

}  // namespace
}  // namespace quill
