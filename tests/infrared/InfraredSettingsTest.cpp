#include "infrared/InfraredSettings.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "support/CountingRegistry.h"

namespace quill {
namespace {

const QString kKey = u"\\Software\\Fennick\\Quill\\Infrared"_qs;

class InfraredSettingsIn : public testing::Test {
 protected:
  InfraredSettings Read() const { return ReadInfraredSettings(m_registry); }

  QTemporaryDir m_folder;
  test::CountingRegistry m_registry{m_folder.filePath(u"settings.json"_qs)};
  const InfraredSettings m_some{7, true, {u"192.168.0.7"_qs, u"::1"_qs}, u"김:8"_qs};
};

TEST_F(InfraredSettingsIn, AnEmptyRegistryKeepToThisMachine) {
  const InfraredSettings settings = Read();
  EXPECT_EQ(settings, InfraredSettings());
  EXPECT_EQ(settings.Port, 26'500);
  EXPECT_FALSE(settings.LocalNetwork);
  EXPECT_TRUE(settings.TrustedPeers.isEmpty());
}

TEST_F(InfraredSettingsIn, TheRegistrySurviveTheProcess) {
  EXPECT_TRUE(WriteInfraredSettings(m_registry, m_some));
  EXPECT_EQ(m_registry.Puts(), 1);
  const JsonRegistry again(m_folder.filePath(u"settings.json"_qs));
  EXPECT_EQ(ReadInfraredSettings(again), m_some);
  EXPECT_TRUE(WriteInfraredSettings(m_registry, {}));
  EXPECT_EQ(Read(), InfraredSettings());
}

TEST_F(InfraredSettingsIn, TheRegistryLetOthersInOnlyByAOne) {
  for (const quint32 number : {0U, 2U, 4294967295U}) {
    ASSERT_TRUE(m_registry.PutNumber(kKey, u"LocalNetwork"_qs, number));
    EXPECT_FALSE(Read().LocalNetwork) << number;
  }
  ASSERT_TRUE(m_registry.PutNumber(kKey, u"LocalNetwork"_qs, 1));
  EXPECT_TRUE(Read().LocalNetwork);
}

TEST_F(InfraredSettingsIn, APortBeyondThePortsIsTheDefault) {
  ASSERT_TRUE(m_registry.PutNumber(kKey, u"Port"_qs, 65'536));
  EXPECT_EQ(Read().Port, kDefaultObexPort);
  ASSERT_TRUE(m_registry.PutNumber(kKey, u"Port"_qs, 65'535));
  EXPECT_EQ(Read().Port, 65'535);
}

TEST_F(InfraredSettingsIn, TextsAreReadAsFarAsTheyGo) {
  const auto put = [this](const QByteArray& block) {
    return m_registry.PutText(kKey, u"LastReceiver"_qs, block);
  };
  ASSERT_TRUE(put(QByteArray("a\0b\0", 4)));
  EXPECT_EQ(Read().LastReceiver, u"ab"_qs) << "no terminator";
  ASSERT_TRUE(put(QByteArray("a\0\0\0b\0", 6)));
  EXPECT_EQ(Read().LastReceiver, u"a"_qs);
  ASSERT_TRUE(put(QByteArray("a\0b", 3)));
  EXPECT_EQ(Read().LastReceiver.left(1), u"a"_qs) << "half a character";
  ASSERT_TRUE(put(QByteArray(65'538, 'a')));
  EXPECT_EQ(Read().LastReceiver, QString());
  ASSERT_TRUE(m_registry.PutNumber(kKey, u"LastReceiver"_qs, 7));
  EXPECT_EQ(Read().LastReceiver, QString());
}

TEST_F(InfraredSettingsIn, TheRegistryTrustOneMorePeer) {
  ASSERT_TRUE(WriteInfraredSettings(m_registry, m_some));
  EXPECT_TRUE(TrustPeer(m_registry, u"10.0.0.1"_qs));
  EXPECT_TRUE(TrustPeer(m_registry, u"::1"_qs)) << "trusted before";
  InfraredSettings expected = m_some;
  expected.TrustedPeers += u"10.0.0.1"_qs;
  EXPECT_EQ(Read(), expected);
}

TEST_F(InfraredSettingsIn, TheRegistryRememberAReceiver) {
  ASSERT_TRUE(WriteInfraredSettings(m_registry, m_some));
  EXPECT_TRUE(RememberReceiver(m_registry, u"host:9"_qs));
  InfraredSettings expected = m_some;
  expected.LastReceiver = u"host:9"_qs;
  EXPECT_EQ(Read(), expected);
}

TEST_F(InfraredSettingsIn, ARegistryThatCannotBeWrittenAreNotKept) {
  // A folder stands where the file would be.
  const QString file = m_folder.filePath(u"folder"_qs);
  ASSERT_TRUE(QDir().mkpath(file));
  JsonRegistry registry(file);
  EXPECT_FALSE(WriteInfraredSettings(registry, m_some));
  EXPECT_FALSE(TrustPeer(registry, u"::1"_qs));
  EXPECT_FALSE(RememberReceiver(registry, u"host"_qs));
}

}  // namespace
}  // namespace quill
