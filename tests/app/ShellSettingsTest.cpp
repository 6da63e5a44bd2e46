#include "app/ShellSettings.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "support/CountingRegistry.h"

namespace quill {
namespace {

const QString kKey = u"\\Software\\Fennick\\Quill\\Shell"_qs;

class ShellSettingsIn : public testing::Test {
 protected:
  QTemporaryDir m_folder;
  test::CountingRegistry m_registry{m_folder.filePath(u"settings.json"_qs)};
};

TEST_F(ShellSettingsIn, AnEmptyRegistryAreTheDefaults) {
  const ShellSettings settings = ReadShellSettings(m_registry);
  EXPECT_EQ(settings.WindowScale.Quarters, 8);
  EXPECT_FALSE(settings.FullScreen.has_value());
}

TEST_F(ShellSettingsIn, AScaleAloneLeavesFullScreenToTheScreen) {
  ASSERT_TRUE(WriteShellSettings(m_registry, {Scale{7}, std::nullopt}));
  EXPECT_EQ(ReadShellSettings(m_registry).FullScreen, std::nullopt);
}

TEST_F(ShellSettingsIn, TheRegistrySurviveTheProcess) {
  const ShellSettings settings{Scale{5}, true};
  EXPECT_TRUE(WriteShellSettings(m_registry, settings));
  EXPECT_EQ(m_registry.Puts(), 1);
  const JsonRegistry again(m_folder.filePath(u"settings.json"_qs));
  EXPECT_EQ(ReadShellSettings(again), settings);
}

TEST_F(ShellSettingsIn, TheRegistryAreNumbersInHundredths) {
  ASSERT_TRUE(WriteShellSettings(m_registry, {Scale{7}, true}));
  EXPECT_EQ(m_registry.QueryNumber(kKey, u"Scale"_qs), 175U);
  EXPECT_EQ(m_registry.QueryNumber(kKey, u"FullScreen"_qs), 1U);
  ASSERT_TRUE(WriteShellSettings(m_registry, {Scale{8}, false}));
  EXPECT_EQ(m_registry.QueryNumber(kKey, u"FullScreen"_qs), 0U);
}

TEST_F(ShellSettingsIn, AScaleThatMakesNoSenseIsTheDefault) {
  for (const quint32 broken : {0U, 1U, 75U, 130U, 825U, 4294967295U}) {
    ASSERT_TRUE(m_registry.PutNumber(kKey, u"Scale"_qs, broken));
    EXPECT_EQ(ReadShellSettings(m_registry).WindowScale, Scale()) << broken;
  }
  for (const quint32 right : {100U, 125U, 800U}) {
    ASSERT_TRUE(m_registry.PutNumber(kKey, u"Scale"_qs, right));
    EXPECT_EQ(ReadShellSettings(m_registry).WindowScale.Quarters, static_cast<int>(right / 25));
  }
}

TEST_F(ShellSettingsIn, ValuesOfAnotherKindAreTheDefaults) {
  ASSERT_TRUE(m_registry.PutText(kKey, u"Scale"_qs, QByteArray("3\0", 2)));
  ASSERT_TRUE(m_registry.PutNumber(kKey, u"FullScreen"_qs, 2));
  EXPECT_EQ(ReadShellSettings(m_registry), ShellSettings());
}

TEST(ShellSettings, ThatCannotBeStoredAreReported) {
  const QTemporaryDir folder;
  JsonRegistry registry(folder.filePath(u"settings.json"_qs));
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"settings.json"_qs));
  EXPECT_FALSE(WriteShellSettings(registry, {Scale{5}, true}));
}

}  // namespace
}  // namespace quill
