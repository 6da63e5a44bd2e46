#include "platform/DeviceRoots.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quill {
namespace {

// A home with documents and a store, a folder that is none of the device's, and links between them.
class DeviceRootsTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QDir(m_place.path()).mkpath(u"home/documents/below"_qs));
    ASSERT_TRUE(QDir(m_place.path()).mkpath(u"outside"_qs));
    for (const QString& file : {u"home/store.db"_qs, u"home/documents/a"_qs, u"outside/secret"_qs})
      ASSERT_TRUE(QFile(Path(file)).open(QIODevice::WriteOnly));
    Link(u"../outside"_qs, u"home/out"_qs);
    Link(u"../outside/secret"_qs, u"home/secret"_qs);
    Link(u"../outside/new"_qs, u"home/broken"_qs);
    Link(u"../store.db"_qs, u"home/documents/store"_qs);
    Link(u".."_qs, u"home/documents/up"_qs);
    Link(u"below"_qs, u"home/documents/inside"_qs);
    Link(u"../home/documents/a"_qs, u"outside/back"_qs);
  }
  // The target as it stands in the link.
  void Link(const QString& target, const QString& name) const {
    ASSERT_TRUE(QFile::link(target, Path(name)));
  }
  QString Path(const QString& below) const {
    return QFileInfo(m_place.path()).canonicalFilePath() + u'/' + below;
  }
  DeviceRoots Roots() const {
    return {.Device = Path(u"home"_qs),
            .MyDocuments = Path(u"home/documents"_qs),
            .Own = {Path(u"home/store.db"_qs)}};
  }

  QTemporaryDir m_place;
};

struct ReachCase {
  QString File;
  bool IsIncluded;
};

class ReachTest : public DeviceRootsTest, public testing::WithParamInterface<ReachCase> {};

TEST_P(ReachTest, WhatLiesBelowTheRootsAndIsNotOwnIsIncluded) {
  EXPECT_EQ(DeviceReach(Roots()).Includes(Path(GetParam().File)), GetParam().IsIncluded)
      << GetParam().File.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Files, ReachTest,
    testing::Values(
        ReachCase{u"home"_qs, true}, ReachCase{u"home/documents"_qs, true},
        ReachCase{u"home/documents/a"_qs, true}, ReachCase{u"home/documents/new/file"_qs, true},
        ReachCase{u"home/documents/inside"_qs, true},
        ReachCase{u"home/documents/inside/new"_qs, true}, ReachCase{u"outside"_qs, false},
        ReachCase{u"outside/secret"_qs, false}, ReachCase{u"homeless"_qs, false},
        ReachCase{u"home/out"_qs, false}, ReachCase{u"home/out/secret"_qs, false},
        ReachCase{u"home/out/new"_qs, false}, ReachCase{u"home/out/new/deeper"_qs, false},
        ReachCase{u"home/out/back"_qs, false}, ReachCase{u"home/secret"_qs, false},
        ReachCase{u"home/broken"_qs, false}, ReachCase{u"home/broken/file"_qs, false},
        ReachCase{u"home/store.db"_qs, false}, ReachCase{u"home/STORE.db-wal"_qs, false},
        ReachCase{u"home/documents/store"_qs, false},
        ReachCase{u"home/documents/up/store.db"_qs, false},
        ReachCase{u"home/documents/up/Store.db-new"_qs, false},
        ReachCase{u"home/documents/up/new"_qs, true}));

TEST_F(DeviceRootsTest, ARootMayItselfBeALinkToAnywhere) {
  DeviceRoots roots = Roots();
  roots.MyDocuments = Path(u"home/out"_qs);
  const DeviceReach reach(roots);
  EXPECT_TRUE(reach.Includes(Path(u"home/out"_qs)));
  EXPECT_TRUE(reach.Includes(Path(u"home/out/secret"_qs)));
}

TEST_F(DeviceRootsTest, ARootThatIsNotThereYetHasRoomForFiles) {
  const DeviceReach reach({.Device = Path(u"new/device"_qs), .MyDocuments = Path(u"new/docs"_qs)});
  EXPECT_TRUE(reach.Includes(Path(u"new/docs/a"_qs)));
  EXPECT_FALSE(reach.Includes(Path(u"new/other"_qs)));
}

TEST_F(DeviceRootsTest, ARootBehindALinkToNothingIncludesNothing) {
  const DeviceReach reach(
      {.Device = Path(u"home/broken"_qs), .MyDocuments = Path(u"home/documents"_qs)});
  EXPECT_FALSE(reach.Includes(Path(u"home/broken"_qs)));
  EXPECT_FALSE(reach.Includes(Path(u"outside/secret"_qs)));
}

TEST_F(DeviceRootsTest, AnOwnFileThatIsALinkIsKeptAwayAtBothItsPlaces) {
  DeviceRoots roots = Roots();
  roots.Own = {Path(u"home/documents/store"_qs)};
  const DeviceReach reach(roots);
  EXPECT_FALSE(reach.Includes(Path(u"home/documents/store-wal"_qs)));
  EXPECT_FALSE(reach.Includes(Path(u"home/store.db-wal"_qs)));
}

TEST_F(DeviceRootsTest, AnOwnFileBehindALinkToNothingKeepsNoOtherAway) {
  DeviceRoots roots = Roots();
  roots.Own = {Path(u"home/broken/store.db"_qs)};
  EXPECT_TRUE(DeviceReach(roots).Includes(Path(u"home/documents/a"_qs)));
}

TEST_F(DeviceRootsTest, EntriesOfAFolderAreIncludedAsTheirPathsAre) {
  const DeviceReach reach(Roots());
  for (const QString& folder : {u"home"_qs, u"home/documents"_qs}) {
    const auto entries =
        QDir(Path(folder)).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    ASSERT_FALSE(entries.isEmpty());
    for (const QFileInfo& entry : entries)
      EXPECT_EQ(reach.IncludesIn(Path(folder), entry), reach.Includes(entry.filePath()))
          << entry.filePath().toStdString();
  }
}

TEST_F(DeviceRootsTest, ARealPathHasNoLinks) {
  EXPECT_EQ(RealPath(Path(u"home/documents/up/out/new"_qs)), Path(u"outside/new"_qs));
  EXPECT_EQ(RealPath(Path(u"home/broken/file"_qs)), QString());
  EXPECT_EQ(RealPath({}), QString());
}

struct DevicePathCase {
  QString File;
  QString Path;
};

class DevicePathOfTest : public DeviceRootsTest,
                         public testing::WithParamInterface<DevicePathCase> {};

TEST_P(DevicePathOfTest, NamesTheFilesOfTheDeviceOnly) {
  ASSERT_TRUE(QDir(m_place.path()).mkpath(u"home/my documents"_qs));
  for (const QString& file : {u"home/documents/below/b"_qs, u"home/c"_qs, u"home/my documents/d"_qs,
                              u"home/documents/e\\f"_qs})
    ASSERT_TRUE(QFile(Path(file)).open(QIODevice::WriteOnly));
  EXPECT_EQ(DevicePathOf(Roots(), Path(GetParam().File)), GetParam().Path);
}

INSTANTIATE_TEST_SUITE_P(
    Files, DevicePathOfTest,
    testing::Values(DevicePathCase{u"home/documents/a"_qs, u"\\My Documents\\a"_qs},
                    DevicePathCase{u"home/documents/below/b"_qs, u"\\My Documents\\below\\b"_qs},
                    DevicePathCase{u"home/documents/inside/b"_qs, u"\\My Documents\\below\\b"_qs},
                    DevicePathCase{u"outside/back"_qs, u"\\My Documents\\a"_qs},
                    DevicePathCase{u"home/c"_qs, u"\\c"_qs},
                    DevicePathCase{u"home/my documents/d"_qs, QString()},
                    DevicePathCase{u"home/documents/e\\f"_qs, QString()},
                    DevicePathCase{u"home/documents/missing"_qs, QString()},
                    DevicePathCase{u"home/store.db"_qs, QString()},
                    DevicePathCase{u"home/secret"_qs, QString()},
                    DevicePathCase{u"outside/secret"_qs, QString()}));

}  // namespace
}  // namespace quill
