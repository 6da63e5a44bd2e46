#include "platform/DesktopDeviceFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace quill {
namespace {

using testing::UnorderedElementsAre;

const QString kFolder = QStringLiteral("\\My Documents\\Fennick");

class DesktopDeviceFilesTest : public testing::Test {
 protected:
  QString OnDisk(const QString& below) const { return m_home.filePath(below); }

  void PutOnDisk(const QString& below, const QByteArray& content = "ink") const {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(OnDisk(below)).path()));
    QFile file(OnDisk(below));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }
  QByteArray ContentOnDisk(const QString& below) const {
    QFile file(OnDisk(below));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
  }
  QStringList NamesOnDisk(const QString& below) const {
    return QDir(OnDisk(below)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  QTemporaryDir m_home;
  DesktopDeviceFiles m_files{{.Device = m_home.path(),
                              .MyDocuments = m_home.filePath(u"My Documents"_qs),
                              .Own = {m_home.filePath(u"store.db"_qs)}}};
};

TEST_F(DesktopDeviceFilesTest, DevicePathsLieBelowTheHome) {
  PutOnDisk(u"My Documents/Fennick/A.pwi"_qs, "memo");
  PutOnDisk(u"Windows/alarm1.wav"_qs, "sound");
  EXPECT_EQ(m_files.ReadWhole(kFolder + u"\\A.pwi"_qs), QByteArray("memo"));
  EXPECT_EQ(m_files.ReadWhole(u"\\Windows\\alarm1.wav"_qs), QByteArray("sound"));
}

TEST(DesktopDeviceFilesOfAUser, HaveTheDocumentsInAPlaceOfTheirOwn) {
  const QTemporaryDir place;
  DesktopDeviceFiles files({.Device = place.filePath(u"data/device"_qs),
                            .MyDocuments = place.filePath(u"ann/Documents"_qs)});
  EXPECT_EQ(files.CreateFolder(kFolder), 0);
  EXPECT_TRUE(files.WriteWhole(kFolder + u"\\A.pwi"_qs, "memo"));
  EXPECT_TRUE(files.WriteWhole(u"\\B.pwi"_qs, "elsewhere"));
  EXPECT_TRUE(QFileInfo::exists(place.filePath(u"ann/Documents/Fennick/A.pwi"_qs)));
  EXPECT_TRUE(QFileInfo::exists(place.filePath(u"data/device/B.pwi"_qs)));
}

TEST_F(DesktopDeviceFilesTest, AFolderIsMadeOnce) {
  EXPECT_EQ(m_files.CreateFolder(kFolder), 0);
  EXPECT_TRUE(QFileInfo(OnDisk(u"My Documents/Fennick"_qs)).isDir());
  EXPECT_EQ(m_files.CreateFolder(kFolder), kDeviceAlreadyExists);
  EXPECT_EQ(m_files.CreateFolder(kFolder.toUpper()), kDeviceAlreadyExists);
}

TEST_F(DesktopDeviceFilesTest, MyDocumentsIsThereAsOnADevice) {
  EXPECT_EQ(m_files.CreateFolder(u"\\My Documents"_qs), kDeviceAlreadyExists);
  EXPECT_TRUE(m_files.WriteWhole(u"\\My Documents\\\\A.pwi"_qs, "memo"));
}

struct FolderCase {
  QString Path;
  int Code;
};

class RefusedFolder : public DesktopDeviceFilesTest,
                      public testing::WithParamInterface<FolderCase> {};

TEST_P(RefusedFolder, AnswersWithTheDevicesCode) {
  PutOnDisk(u"My Documents/file"_qs);
  EXPECT_EQ(m_files.CreateFolder(GetParam().Path), GetParam().Code);
}

INSTANTIATE_TEST_SUITE_P(
    Folders, RefusedFolder,
    testing::Values(FolderCase{u"\\My Documents\\file"_qs, kDeviceAlreadyExists},
                    FolderCase{u"\\Missing\\Fennick"_qs, kDevicePathNotFound},
                    FolderCase{u"\\My Documents\\file\\Fennick"_qs, kDevicePathNotFound},
                    FolderCase{u"\\"_qs, kDeviceInvalidName},
                    FolderCase{u"\\.."_qs, kDeviceInvalidName},
                    FolderCase{u"\\My Documents\\a?b"_qs, kDeviceInvalidName},
                    FolderCase{u"\\"_qs + QString(300, u'a'), kDeviceInvalidName}));

TEST_F(DesktopDeviceFilesTest, NamesAreMatchedWithoutCase) {
  PutOnDisk(u"My Documents/FENNICK/Kim.PWI"_qs, "memo");
  EXPECT_TRUE(m_files.Exists(u"\\my documents\\fennick\\kim.pwi"_qs));
  EXPECT_EQ(m_files.ReadWhole(kFolder + u"\\kim.pwi"_qs), QByteArray("memo"));
  EXPECT_TRUE(m_files.WriteWhole(kFolder + u"\\KIM.pwi"_qs, "new"));
  EXPECT_EQ(NamesOnDisk(u"My Documents/FENNICK"_qs), QStringList(u"Kim.PWI"_qs));
  EXPECT_EQ(ContentOnDisk(u"My Documents/FENNICK/Kim.PWI"_qs), "new");
}

TEST_F(DesktopDeviceFilesTest, AmongNamesThatDifferInCaseTheOneAsWrittenComesFirst) {
  for (const char* name : {"KIM.pwi", "Kim.pwi", "kim.pwi"})
    PutOnDisk(u"My Documents/"_qs + QLatin1String(name), name);
  EXPECT_EQ(m_files.ReadWhole(u"\\My Documents\\kim.pwi"_qs), QByteArray("kim.pwi"));
  EXPECT_EQ(m_files.ReadWhole(u"\\My Documents\\kIM.pwi"_qs), QByteArray("KIM.pwi"));
}

TEST_F(DesktopDeviceFilesTest, FindAnswersTheBareNamesOfMatchingFiles) {
  for (const char* name : {"Kim_1.pwi", "kimberly_2.PWI", "김_3.pwi", ".Kim.pwi", "Kim.txt"})
    PutOnDisk(u"My Documents/Fennick/"_qs + QString::fromUtf8(name));
  ASSERT_TRUE(QDir().mkpath(OnDisk(u"My Documents/Fennick/Kim folder.pwi"_qs)));
  EXPECT_THAT(m_files.Find(kFolder + u"\\Kim*.pwi"_qs),
              UnorderedElementsAre(u"Kim_1.pwi"_qs, u"kimberly_2.PWI"_qs));
  EXPECT_THAT(
      m_files.Find(kFolder + u"\\\\*.pwi"_qs),
      UnorderedElementsAre(u"Kim_1.pwi"_qs, u"kimberly_2.PWI"_qs, u"김_3.pwi"_qs, u".Kim.pwi"_qs));
}

TEST_F(DesktopDeviceFilesTest, FindLeavesOutWhatCannotBeOpenedByItsName) {
  PutOnDisk(u"My Documents/a\\b.pwi"_qs);
  ASSERT_EQ(::mkfifo(QFile::encodeName(OnDisk(u"My Documents/pipe.pwi"_qs)).constData(), 0600), 0);
  EXPECT_EQ(m_files.Find(u"\\My Documents\\*.pwi"_qs), QStringList());
  EXPECT_EQ(m_files.ReadWhole(u"\\My Documents\\pipe.pwi"_qs), std::nullopt);
}

TEST_F(DesktopDeviceFilesTest, FindIsEmptyWhereThereIsNoFolder) {
  EXPECT_EQ(m_files.Find(kFolder + u"\\*.pwi"_qs), QStringList());
  EXPECT_EQ(m_files.Find(u"\\..\\*"_qs), QStringList());
}

TEST_F(DesktopDeviceFilesTest, WritingMakesAFileAndReplacesItsContentWhole) {
  ASSERT_EQ(m_files.CreateFolder(kFolder), 0);
  const QString path = kFolder + u"\\김서연_20040915_093005.pwi"_qs;
  EXPECT_TRUE(m_files.WriteWhole(path, "a longer memo"));
  EXPECT_TRUE(m_files.WriteWhole(path, QByteArray("a\0b", 3)));
  EXPECT_EQ(m_files.ReadWhole(path), QByteArray("a\0b", 3));
  EXPECT_EQ(NamesOnDisk(u"My Documents/Fennick"_qs), QStringList(u"김서연_20040915_093005.pwi"_qs));
}

TEST_F(DesktopDeviceFilesTest, AnEmptyFileIsReadAsEmpty) {
  ASSERT_TRUE(m_files.WriteWhole(u"\\My Documents\\A.pwi"_qs, {}));
  EXPECT_EQ(m_files.ReadWhole(u"\\My Documents\\A.pwi"_qs), QByteArray());
}

class UnwritableFile : public DesktopDeviceFilesTest,
                       public testing::WithParamInterface<QString> {};

TEST_P(UnwritableFile, IsRefusedAndNothingIsMade) {
  PutOnDisk(u"My Documents/A.pwi"_qs, "memo");
  ASSERT_TRUE(QDir().mkpath(OnDisk(u"My Documents/Folder"_qs)));
  EXPECT_FALSE(m_files.WriteWhole(GetParam(), "new"));
  EXPECT_FALSE(m_files.Copy(u"\\My Documents\\A.pwi"_qs, GetParam()));
  EXPECT_FALSE(m_files.Move(u"\\My Documents\\A.pwi"_qs, GetParam()));
  EXPECT_EQ(NamesOnDisk(u"."_qs), QStringList(u"My Documents"_qs));
  EXPECT_EQ(NamesOnDisk(u"My Documents"_qs), QStringList({u"A.pwi"_qs, u"Folder"_qs}));
  EXPECT_EQ(ContentOnDisk(u"My Documents/A.pwi"_qs), "memo");
}

INSTANTIATE_TEST_SUITE_P(
    Paths, UnwritableFile,
    testing::Values(u""_qs, u"\\"_qs, u"\\My Documents\\A/B.pwi"_qs, u"\\My Documents\\A:B.pwi"_qs,
                    u"\\My Documents\\A*.pwi"_qs, u"\\My Documents\\..\\A.pwi"_qs,
                    u"\\My Documents\\Missing\\A.pwi"_qs, u"\\My Documents\\Folder"_qs,
                    u"\\store.db"_qs, u"\\Store.DB-wal"_qs, u"/A.pwi"_qs,
                    u"\\My Documents\\B.pwi\\"_qs));

TEST_F(DesktopDeviceFilesTest, AFileWithANameThatTheDeviceForbidsIsStillUsed) {
  PutOnDisk(u"My Documents/a:b.pwi"_qs, "memo");
  const QString path = u"\\My Documents\\a:b.pwi"_qs;
  EXPECT_EQ(m_files.ReadWhole(path), QByteArray("memo"));
  EXPECT_TRUE(m_files.WriteWhole(path, "new"));
  EXPECT_TRUE(m_files.Move(path, u"\\My Documents\\ab.pwi"_qs));
  EXPECT_EQ(ContentOnDisk(u"My Documents/ab.pwi"_qs), "new");
}

TEST_F(DesktopDeviceFilesTest, NothingOutsideTheRootsIsReachable) {
  PutOnDisk(u"secret"_qs);
  DesktopDeviceFiles files(
      {.Device = OnDisk(u"device"_qs), .MyDocuments = OnDisk(u"documents"_qs)});
  ASSERT_TRUE(files.WriteWhole(u"\\My Documents\\A.pwi"_qs, "memo"));
  for (const QString& path :
       {u"\\..\\secret"_qs, u"\\My Documents\\..\\secret"_qs, OnDisk(u"secret"_qs)}) {
    EXPECT_FALSE(files.Exists(path)) << path.toStdString();
    EXPECT_EQ(files.ReadWhole(path), std::nullopt) << path.toStdString();
    EXPECT_FALSE(files.Remove(path)) << path.toStdString();
    EXPECT_FALSE(files.Move(path, u"\\My Documents\\B.pwi"_qs)) << path.toStdString();
    EXPECT_FALSE(files.Copy(path, u"\\My Documents\\B.pwi"_qs)) << path.toStdString();
  }
  EXPECT_EQ(ContentOnDisk(u"secret"_qs), "ink");
}

TEST_F(DesktopDeviceFilesTest, TheProgramsOwnFilesAreNotReachable) {
  PutOnDisk(u"store.db"_qs);
  PutOnDisk(u"store.db-wal"_qs);
  for (const QString& path : {u"\\store.db"_qs, u"\\STORE.db-wal"_qs}) {
    EXPECT_FALSE(m_files.Exists(path));
    EXPECT_FALSE(m_files.Remove(path));
  }
  EXPECT_EQ(ContentOnDisk(u"store.db"_qs), "ink");
}

// Links that lead out of the home or to its store: a folder's, a file's, and one to nothing yet.
class DeviceFilesWithLinks : public DesktopDeviceFilesTest {
 protected:
  void SetUp() override {
    PutOnDisk(u"store.db"_qs, "store");
    PutOnDisk(u"My Documents/A.pwi"_qs, "memo");
    ASSERT_TRUE(QFile::link(m_outside.path(), OnDisk(u"My Documents/out"_qs)));
    ASSERT_TRUE(QFile::link(u"../store.db"_qs, OnDisk(u"My Documents/own.pwi"_qs)));
    ASSERT_TRUE(QFile::link(m_outside.filePath(u"new"_qs), OnDisk(u"My Documents/new.pwi"_qs)));
    ASSERT_TRUE(QFile::link(u".."_qs, OnDisk(u"My Documents/up"_qs)));
    QFile secret(m_outside.filePath(u"secret.pwi"_qs));
    ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link(secret.fileName(), OnDisk(u"My Documents/secret.pwi"_qs)));
  }
  QStringList NamesOutside() const { return QDir(m_outside.path()).entryList(QDir::Files); }

  QTemporaryDir m_outside;
};

class LinkThatLeadsOut : public DeviceFilesWithLinks,
                         public testing::WithParamInterface<QString> {};

TEST_P(LinkThatLeadsOut, IsFollowedByNothing) {
  const QString memo = u"\\My Documents\\A.pwi"_qs;
  EXPECT_FALSE(m_files.Exists(GetParam()));
  EXPECT_EQ(m_files.ReadWhole(GetParam()), std::nullopt);
  EXPECT_FALSE(m_files.WriteWhole(GetParam(), "new"));
  EXPECT_FALSE(m_files.Copy(memo, GetParam()));
  EXPECT_FALSE(m_files.Move(memo, GetParam()));
  EXPECT_FALSE(m_files.Move(GetParam(), u"\\My Documents\\B.pwi"_qs));
  EXPECT_FALSE(m_files.Remove(GetParam()));
  EXPECT_EQ(m_files.CreateFolder(GetParam()), kDeviceInvalidName);
  EXPECT_EQ(ContentOnDisk(u"store.db"_qs), "store");
  EXPECT_EQ(ContentOnDisk(u"My Documents/A.pwi"_qs), "memo");
  EXPECT_EQ(NamesOutside(), QStringList(u"secret.pwi"_qs));
}

INSTANTIATE_TEST_SUITE_P(
    Paths, LinkThatLeadsOut,
    testing::Values(u"\\My Documents\\out\\secret.pwi"_qs, u"\\My Documents\\OUT\\B.pwi"_qs,
                    u"\\My Documents\\secret.pwi"_qs, u"\\My Documents\\new.pwi"_qs,
                    u"\\My Documents\\own.pwi"_qs, u"\\My Documents\\up\\store.db"_qs,
                    u"\\My Documents\\up\\store.db-wal"_qs));

TEST_F(DeviceFilesWithLinks, FindListsNothingThatALinkLeadsOutTo) {
  EXPECT_EQ(m_files.Find(u"\\My Documents\\*.pwi"_qs), QStringList(u"A.pwi"_qs));
  EXPECT_EQ(m_files.Find(u"\\My Documents\\out\\*"_qs), QStringList());
  EXPECT_EQ(m_files.Find(u"\\My Documents\\up\\*"_qs), QStringList()) << "the store";
}

TEST_F(DeviceFilesWithLinks, ALinkThatStaysBelowTheRootsIsUsed) {
  PutOnDisk(u"Below/B.pwi"_qs, "b");
  ASSERT_TRUE(QFile::link(u"../Below"_qs, OnDisk(u"My Documents/below"_qs)));
  ASSERT_TRUE(QFile::link(u"../Below/B.pwi"_qs, OnDisk(u"My Documents/B.pwi"_qs)));
  EXPECT_EQ(m_files.Find(u"\\My Documents\\below\\*"_qs), QStringList(u"B.pwi"_qs));
  EXPECT_TRUE(m_files.WriteWhole(u"\\My Documents\\B.pwi"_qs, "new"));
  EXPECT_EQ(ContentOnDisk(u"Below/B.pwi"_qs), "new");
  EXPECT_TRUE(m_files.Remove(u"\\My Documents\\B.pwi"_qs));
  EXPECT_EQ(ContentOnDisk(u"Below/B.pwi"_qs), "new") << "the link goes, not the file";
}

TEST_F(DesktopDeviceFilesTest, WritingTakesThePlaceOfNothingButAFile) {
  ASSERT_TRUE(QDir().mkpath(OnDisk(u"My Documents"_qs)));
  const QByteArray pipe = QFile::encodeName(OnDisk(u"My Documents/pipe"_qs));
  ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
  EXPECT_FALSE(m_files.WriteWhole(u"\\My Documents\\pipe"_qs, "memo"));
  EXPECT_FALSE(QFileInfo(OnDisk(u"My Documents/pipe"_qs)).isFile());
}

TEST_F(DesktopDeviceFilesTest, AFileIsRemovedOnce) {
  PutOnDisk(u"My Documents/A.pwi"_qs);
  EXPECT_TRUE(m_files.Remove(u"\\My Documents\\a.pwi"_qs));
  EXPECT_FALSE(m_files.Exists(u"\\My Documents\\A.pwi"_qs));
  EXPECT_FALSE(m_files.Remove(u"\\My Documents\\A.pwi"_qs));
  EXPECT_FALSE(m_files.Remove(u"\\My Documents"_qs)) << "a folder";
  EXPECT_TRUE(QFileInfo::exists(OnDisk(u"My Documents"_qs)));
}

TEST_F(DesktopDeviceFilesTest, AMovedFileIsInItsNewPlaceOnly) {
  PutOnDisk(u"My Documents/Fennick/A.pwi"_qs, "memo");
  EXPECT_TRUE(m_files.Move(kFolder + u"\\A.pwi"_qs, u"B"_qs)) << "without a folder: the root";
  EXPECT_EQ(ContentOnDisk(u"B"_qs), "memo");
  EXPECT_EQ(NamesOnDisk(u"My Documents/Fennick"_qs), QStringList());
}

TEST_F(DesktopDeviceFilesTest, MovingNeverReplacesAnotherFile) {
  PutOnDisk(u"My Documents/A.pwi"_qs, "a");
  PutOnDisk(u"My Documents/B.pwi"_qs, "b");
  EXPECT_FALSE(m_files.Move(u"\\My Documents\\A.pwi"_qs, u"\\My Documents\\b.pwi"_qs));
  EXPECT_EQ(ContentOnDisk(u"My Documents/A.pwi"_qs), "a");
  EXPECT_EQ(ContentOnDisk(u"My Documents/B.pwi"_qs), "b");
  EXPECT_FALSE(m_files.Move(u"\\My Documents"_qs, u"\\Elsewhere"_qs)) << "a folder";
}

TEST_F(DesktopDeviceFilesTest, MovingChangesTheSpellingOfAName) {
  PutOnDisk(u"My Documents/kim.pwi"_qs);
  EXPECT_TRUE(m_files.Move(u"\\My Documents\\kim.pwi"_qs, u"\\My Documents\\Kim.pwi"_qs));
  EXPECT_EQ(NamesOnDisk(u"My Documents"_qs), QStringList(u"Kim.pwi"_qs));
}

TEST_F(DesktopDeviceFilesTest, CopyingReplacesAnotherFile) {
  PutOnDisk(u"My Documents/A.pwi"_qs, "a");
  PutOnDisk(u"My Documents/B.pwi"_qs, "b");
  EXPECT_TRUE(m_files.Copy(u"\\My Documents\\A.pwi"_qs, u"\\My Documents\\b.pwi"_qs));
  EXPECT_EQ(ContentOnDisk(u"My Documents/A.pwi"_qs), "a");
  EXPECT_EQ(ContentOnDisk(u"My Documents/B.pwi"_qs), "a");
}

TEST_F(DesktopDeviceFilesTest, AFileIsNotCopiedToItself) {
  PutOnDisk(u"My Documents/A.pwi"_qs, "a");
  EXPECT_FALSE(m_files.Copy(u"\\My Documents\\A.pwi"_qs, u"\\my documents\\a.pwi"_qs));
  EXPECT_EQ(ContentOnDisk(u"My Documents/A.pwi"_qs), "a");
}

}  // namespace
}  // namespace quill
