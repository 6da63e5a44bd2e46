#include "appointments/SoundNames.h"

#include "support/DeviceHome.h"
#include "support/FreshState.h"

namespace quill {
namespace {

class SoundNamesTest : public test::FreshState {
 protected:
  void Put(const QString& name) {
    m_home.Files.CreateFolder(u"\\Windows"_qs);
    ASSERT_TRUE(m_home.Files.WriteWhole(u"\\Windows\\"_qs + name, "sound"));
  }

  test::DeviceHome m_home;
};

TEST_F(SoundNamesTest, AreTheFilesWithTheseExtensionsSortedAmongAll) {
  for (const char* name : {"b.mp3", "Alarm.WAV", "c.wma", "a.wav", "readme.txt"})
    Put(QString::fromLatin1(name));
  EXPECT_EQ(SoundNames({u"mp3"_qs, u"wav"_qs, u"wma"_qs}),
            QStringList({u"a.wav"_qs, u"Alarm.WAV"_qs, u"b.mp3"_qs, u"c.wma"_qs}));
  EXPECT_EQ(SoundNames({u"wav"_qs}), QStringList({u"a.wav"_qs, u"Alarm.WAV"_qs}));
}

TEST_F(SoundNamesTest, AreNoneWithoutTheFolder) {
  EXPECT_EQ(SoundNames({u"wav"_qs}), QStringList());
}

}  // namespace
}  // namespace quill
