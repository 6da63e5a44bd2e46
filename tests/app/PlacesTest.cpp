#include "app/Places.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app/RequestChannel.h"

namespace quill {
namespace {

QProcessEnvironment Environment(const QMap<QString, QString>& values) {
  QProcessEnvironment environment;
  for (auto entry = values.begin(); entry != values.end(); ++entry)
    environment.insert(entry.key(), entry.value());
  return environment;
}

TEST(Places, AHomeHoldsEverything) {
  const auto environment =
      Environment({{u"XDG_DATA_HOME"_qs, u"/d"_qs}, {u"XDG_RUNTIME_DIR"_qs, u"/run/user/7"_qs}});
  const Places places = HomePlaces(u"/tmp/home/"_qs, environment);
  EXPECT_EQ(places.StoreFile, u"/tmp/home/store.db"_qs);
  EXPECT_EQ(places.SettingsFile, u"/tmp/home/settings.json"_qs);
  EXPECT_EQ(places.StateFolder, u"/tmp/home"_qs);
  EXPECT_EQ(places.DocumentsFolder, u"/tmp/home/My Documents"_qs);
  EXPECT_EQ(places.DeviceFolder, u"/tmp/home"_qs);
  EXPECT_EQ(places.HomeFolder, u"/tmp/home"_qs);
  EXPECT_EQ(places.RuntimeFolder, u"/run/user/7"_qs);
}

TEST(Places, AHomesOwnFilesAreNotTheDevices) {
  const Places places =
      HomePlaces(u"/tmp/home"_qs, Environment({{u"XDG_RUNTIME_DIR"_qs, u"/r"_qs}}));
  const DeviceRoots roots = DeviceRootsOf(places);
  EXPECT_EQ(roots.Device, u"/tmp/home"_qs);
  EXPECT_EQ(roots.MyDocuments, u"/tmp/home/My Documents"_qs);
  EXPECT_EQ(roots.Own, QStringList({u"/tmp/home/store.db"_qs, u"/tmp/home/settings.json"_qs,
                                    u"/tmp/home/quill.lock"_qs, u"/tmp/home/recovery-"_qs,
                                    u"/tmp/home/"_qs + RequestSocketName(places),
                                    u"/r/"_qs + RequestSocketName(places)}));
}

TEST(Places, AUsersDeviceFilesLieBesideTheStore) {
  const Places places = UserPlaces(Environment({{u"XDG_DATA_HOME"_qs, u"/d"_qs}}));
  EXPECT_EQ(places.DeviceFolder, u"/d/quill/device"_qs);
}

TEST(Places, AUserLooksForFilesInTheirHomeFolder) {
  EXPECT_EQ(UserPlaces(Environment({{u"HOME"_qs, u"/home/ann"_qs}})).HomeFolder, u"/home/ann"_qs);
}

TEST(Places, ARelativeHomeCountsFromTheCurrentFolder) {
  const Places places = HomePlaces(u"a/../b"_qs, {});
  EXPECT_EQ(places.StoreFile, QDir::currentPath() + u"/b/store.db"_qs);
}

struct UserCase {
  const char* Name;
  QMap<QString, QString> Environment;
  QString StoreFile;
  QString SettingsFile;
  QString StateFolder;
  QString RuntimeFolder;
};

class UserPlacesOf : public testing::TestWithParam<UserCase> {};

TEST_P(UserPlacesOf, FollowTheBaseDirectoryRules) {
  const Places places = UserPlaces(Environment(GetParam().Environment));
  EXPECT_EQ(places.StoreFile, GetParam().StoreFile);
  EXPECT_EQ(places.SettingsFile, GetParam().SettingsFile);
  EXPECT_EQ(places.StateFolder, GetParam().StateFolder);
  EXPECT_EQ(places.RuntimeFolder, GetParam().RuntimeFolder);
  EXPECT_EQ(places.DocumentsFolder,
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

INSTANTIATE_TEST_SUITE_P(Places, UserPlacesOf,
                         testing::Values(UserCase{"Defaults",
                                                  {{u"HOME"_qs, u"/home/ann"_qs}},
                                                  u"/home/ann/.local/share/quill/store.db"_qs,
                                                  u"/home/ann/.config/quill/settings.json"_qs,
                                                  u"/home/ann/.local/state/quill"_qs,
                                                  u""_qs},
                                         UserCase{"AllNamed",
                                                  {{u"HOME"_qs, u"/home/ann"_qs},
                                                   {u"XDG_DATA_HOME"_qs, u"/d"_qs},
                                                   {u"XDG_CONFIG_HOME"_qs, u"/c/"_qs},
                                                   {u"XDG_STATE_HOME"_qs, u"/s"_qs},
                                                   {u"XDG_RUNTIME_DIR"_qs, u"/run/user/1000"_qs}},
                                                  u"/d/quill/store.db"_qs,
                                                  u"/c/quill/settings.json"_qs,
                                                  u"/s/quill"_qs,
                                                  u"/run/user/1000"_qs},
                                         UserCase{"EmptyAndRelativeCountAsUnset",
                                                  {{u"HOME"_qs, u"/home/ann"_qs},
                                                   {u"XDG_DATA_HOME"_qs, u""_qs},
                                                   {u"XDG_CONFIG_HOME"_qs, u"config"_qs},
                                                   {u"XDG_STATE_HOME"_qs, u"./state"_qs},
                                                   {u"XDG_RUNTIME_DIR"_qs, u"run"_qs}},
                                                  u"/home/ann/.local/share/quill/store.db"_qs,
                                                  u"/home/ann/.config/quill/settings.json"_qs,
                                                  u"/home/ann/.local/state/quill"_qs,
                                                  u""_qs},
                                         UserCase{
                                             "NoHome",
                                             {},
                                             QDir::homePath() + u"/.local/share/quill/store.db"_qs,
                                             QDir::homePath() + u"/.config/quill/settings.json"_qs,
                                             QDir::homePath() + u"/.local/state/quill"_qs,
                                             u""_qs}),
                         [](const auto& each) { return std::string(each.param.Name); });

TEST(Places, TheSampleHomeIsBesideTheUsersStore) {
  EXPECT_EQ(SampleHome(Environment({{u"XDG_DATA_HOME"_qs, u"/d"_qs}})), u"/d/quill/demo"_qs);
}

TEST(Places, MadeFoldersAreForThisUserOnly) {
  const QTemporaryDir folder;
  Places places = UserPlaces(Environment({{u"XDG_DATA_HOME"_qs, folder.filePath(u"a/b"_qs)},
                                          {u"XDG_CONFIG_HOME"_qs, folder.filePath(u"c"_qs)},
                                          {u"XDG_STATE_HOME"_qs, folder.filePath(u"s"_qs)}}));
  EXPECT_EQ(MakeFolders(places), QString());
  const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
  const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                      QFile::WriteOther | QFile::ExeOther;
  for (const char* made : {"a", "a/b", "a/b/quill", "c/quill", "s/quill"}) {
    const QFileInfo info(folder.filePath(QString::fromLatin1(made)));
    ASSERT_TRUE(info.isDir()) << made;
    EXPECT_EQ(info.permissions() & others, 0) << made;
    EXPECT_EQ(info.permissions() & owner, owner) << made;
  }
  EXPECT_EQ(MakeFolders(places), QString()) << "a second time";
}

TEST(Places, FoldersThatExistKeepTheirPermissions) {
  const QTemporaryDir folder;
  const auto permissions =
      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup;
  ASSERT_TRUE(QFile::setPermissions(folder.path(), permissions));
  EXPECT_EQ(MakeFolders(HomePlaces(folder.path(), {})), QString());
  EXPECT_TRUE(QFileInfo(folder.path()).permission(QFile::ReadGroup | QFile::ExeGroup));
}

TEST(Places, AFolderThatCannotBeMadeIsNamedWithTheReason) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(u"file"_qs));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  const QString home = folder.filePath(u"file/home"_qs);
  const QString problem = MakeFolders(HomePlaces(home, {}));
  EXPECT_TRUE(problem.startsWith(u"cannot make the folder "_qs)) << problem.toStdString();
  EXPECT_TRUE(problem.contains(folder.filePath(u"file"_qs))) << problem.toStdString();
  EXPECT_FALSE(problem.endsWith(u": "_qs));
}

}  // namespace
}  // namespace quill
