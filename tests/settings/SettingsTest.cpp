#include "settings/Settings.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

#include "platform/JsonRegistry.h"
#include "platform/Services.h"
#include "support/CountingRegistry.h"

namespace quill {
namespace {

const QString kKey = QStringLiteral("\\Software\\Fennick\\Quill");

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() { g_services.Registry = &m_registry; }
  ~SettingsTest() override { g_services = {}; }

  std::optional<quint32> Number(const char* name) const {
    return m_registry.QueryNumber(kKey, QLatin1String(name));
  }
  // The stored area code; "(none)" without one.
  QByteArray AreaCodeBlock() const {
    QByteArray buffer(1000, 'x');
    const auto read = m_registry.QueryText(kKey, QStringLiteral("AreaCodeValue"), buffer);
    return read.Status == RegistryStatus::Done ? buffer.left(read.Size) : QByteArray("(none)");
  }
  void PutAreaCode(const QByteArray& block) {
    ASSERT_TRUE(m_registry.PutText(kKey, QStringLiteral("AreaCodeValue"), block));
  }
  static Settings Load() {
    Settings settings{
        .Abc = 5, .Name = 6, .AreaCode = 7, .AreaCodeValue = u"8"_qs, .AreaCodePrefix = u"9"_qs};
    LoadSettings(settings);
    return settings;
  }

  QTemporaryDir m_folder;
  JsonRegistry m_registry{m_folder.filePath(QStringLiteral("settings.json"))};
};

TEST_F(SettingsTest, AFirstStartHasTheDefaultsAndStoresThem) {
  EXPECT_EQ(Load(), Settings());
  EXPECT_EQ(Settings().Abc, 1U);
  EXPECT_EQ(Number("ABC"), 1U);
  EXPECT_EQ(Number("Name"), 0U);
  EXPECT_EQ(Number("AreaCode"), 0U);
  EXPECT_EQ(AreaCodeBlock(), QByteArray(520, '\0'));
}

TEST_F(SettingsTest, NumbersAreThereAtTheNextStart) {
  Settings saved{.Abc = 0, .Name = 0xFFFFFFFF, .AreaCode = 1};
  SaveSettings(saved);
  EXPECT_EQ(Number("ABC"), 0U);
  EXPECT_EQ(Load(), saved);
}

TEST_F(SettingsTest, AreSavedInOneWriteSoThatNoPartOfThemIsEverStored) {
  test::CountingRegistry registry(m_folder.filePath(QStringLiteral("counted.json")));
  g_services.Registry = &registry;
  Settings settings{.Abc = 0, .AreaCode = 1, .AreaCodeValue = u"02"_qs};
  SaveSettings(settings);
  EXPECT_EQ(registry.Puts(), 1);
}

TEST_F(SettingsTest, AKeyThatWasThereIsNotFilledWithDefaults) {
  ASSERT_TRUE(m_registry.PutNumber(kKey, QStringLiteral("ABC"), 0));
  EXPECT_EQ(Load(), Settings{.Abc = 0});
  EXPECT_EQ(Number("Name"), std::nullopt);
  EXPECT_EQ(AreaCodeBlock(), "(none)");
}

TEST_F(SettingsTest, TheAreaCodeIsSavedInABlockOf520Bytes) {
  Settings settings{.AreaCodeValue = u"02é"_qs};
  SaveSettings(settings);
  EXPECT_EQ(AreaCodeBlock(), QByteArray("0\0002\0\xE9\0", 6).append(514, '\0'));
}

TEST_F(SettingsTest, AnAreaCodeLongerThanItsBlockIsCutToIt) {
  Settings settings{.AreaCodeValue = QString(300, u'7')};
  SaveSettings(settings);
  EXPECT_EQ(AreaCodeBlock(), QByteArray("7\0", 2).repeated(260));
}

TEST_F(SettingsTest, ASavedAreaCodeIsNotThereAtTheNextStart) {
  Settings settings{.AreaCode = 1, .AreaCodeValue = u"02"_qs};
  SaveSettings(settings);
  EXPECT_EQ(Load(), Settings{.AreaCode = 1});
}

TEST_F(SettingsTest, APrefixIsTheAreaCodeAndAHyphenAfterASave) {
  Settings settings{.AreaCodeValue = u"02"_qs};
  SaveSettings(settings);
  EXPECT_EQ(settings.AreaCodePrefix, u"02-"_qs);
  settings.AreaCodeValue.clear();
  SaveSettings(settings);
  EXPECT_EQ(settings.AreaCodePrefix, QString());
}

struct BlockCase {
  QByteArray Block;
  QString AreaCode;
};

void PrintTo(const BlockCase& each, std::ostream* out) { *out << each.Block.size() << " bytes"; }

class StoredAreaCode : public SettingsTest, public testing::WithParamInterface<BlockCase> {};

TEST_P(StoredAreaCode, IsReadOnlyWhereItFitsFiveBytes) {
  PutAreaCode(GetParam().Block);
  const Settings settings = Load();
  EXPECT_EQ(settings.AreaCodeValue, GetParam().AreaCode);
  EXPECT_EQ(settings.AreaCodePrefix,
            GetParam().AreaCode.isEmpty() ? QString() : GetParam().AreaCode + u'-');
}

INSTANTIATE_TEST_SUITE_P(Blocks, StoredAreaCode,
                         testing::Values(BlockCase{QByteArray(), QString()},
                                         BlockCase{QByteArray(2, '\0'), QString()},
                                         BlockCase{QByteArray("2\0", 2), u"2"_qs},
                                         BlockCase{QByteArray("2\0\0\0", 4), u"2"_qs},
                                         BlockCase{QByteArray("0\0002\0", 4), u"02"_qs},
                                         BlockCase{QByteArray("0\0002\0003", 5), u"023"_qs},
                                         BlockCase{QByteArray("0\0002\0\0\0", 6), QString()},
                                         BlockCase{QByteArray("2\0\0\0\0\0", 6), QString()}));

TEST_F(SettingsTest, AValueOfAnotherTypeLeavesTheDefault) {
  ASSERT_TRUE(m_registry.PutText(kKey, QStringLiteral("ABC"), QByteArray(4, '\0')));
  ASSERT_TRUE(m_registry.PutNumber(kKey, QStringLiteral("AreaCodeValue"), 2));
  EXPECT_EQ(Load(), Settings());
}

TEST_F(SettingsTest, WithoutARegistryFileTheDefaultsCount) {
  JsonRegistry unwritable(m_folder.filePath(QStringLiteral("settings.json/below/a/file")));
  ASSERT_EQ(m_registry.Create(kKey), RegistryKeyState::Created);
  g_services.Registry = &unwritable;
  EXPECT_EQ(Load(), Settings());
  Settings settings{.Abc = 0, .AreaCodeValue = u"02"_qs};
  SaveSettings(settings);
  EXPECT_EQ(settings.AreaCodePrefix, u"02-"_qs);
}

}  // namespace
}  // namespace quill
