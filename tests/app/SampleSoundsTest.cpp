#include "app/SampleSounds.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "appointments/SoundNames.h"
#include "support/DeviceHome.h"

namespace quill {
namespace {

constexpr int kHeaderSize = 44;
const QStringList kNames = {QStringLiteral("Alarm1.wav"), QStringLiteral("Bell.wav"),
                            QStringLiteral("Chime.wav"), QStringLiteral("Marimba.wav")};

QByteArray ContentOf(const test::DeviceHome& home, const QString& name) {
  return home.Files.ReadWhole(QStringLiteral("\\Windows\\") + name).value_or(QByteArray());
}

template <typename Number>
Number NumberAt(const QByteArray& bytes, qsizetype place) {
  return qFromLittleEndian<Number>(bytes.constData() + place);
}

std::vector<int> SamplesOf(const QByteArray& bytes) {
  std::vector<int> samples;
  for (qsizetype place = kHeaderSize; place + 1 < bytes.size(); place += 2)
    samples.push_back(NumberAt<qint16>(bytes, place));
  return samples;
}

TEST(SampleSounds, AreTheSoundsOfADeviceWithoutAny) {
  test::DeviceHome home;
  MakeSampleSounds(home.Files);
  EXPECT_EQ(SoundNames({QStringLiteral("wav")}), kNames);
}

class SampleSoundFile : public testing::TestWithParam<int> {
 protected:
  SampleSoundFile() { MakeSampleSounds(m_home.Files); }
  QByteArray Content() const { return ContentOf(m_home, kNames[GetParam()]); }

  test::DeviceHome m_home;
};

TEST_P(SampleSoundFile, HoldsPlainSamplesOf16BitsInOneChannel) {
  const QByteArray bytes = Content();
  ASSERT_GT(bytes.size(), kHeaderSize);
  EXPECT_EQ(bytes.left(4), "RIFF");
  EXPECT_EQ(NumberAt<quint32>(bytes, 4), bytes.size() - 8);
  EXPECT_EQ(bytes.mid(8, 8), "WAVEfmt ");
  EXPECT_EQ(NumberAt<quint32>(bytes, 16), 16U);
  EXPECT_EQ(NumberAt<quint16>(bytes, 20), 1);
  EXPECT_EQ(NumberAt<quint16>(bytes, 22), 1);
  EXPECT_EQ(NumberAt<quint32>(bytes, 24), 22'050U);
  EXPECT_EQ(NumberAt<quint32>(bytes, 28), 44'100U);
  EXPECT_EQ(NumberAt<quint16>(bytes, 32), 2);
  EXPECT_EQ(NumberAt<quint16>(bytes, 34), 16);
  EXPECT_EQ(bytes.mid(36, 4), "data");
  EXPECT_EQ(NumberAt<quint32>(bytes, 40), bytes.size() - kHeaderSize);
}

TEST_P(SampleSoundFile, IsShortAndNeitherLoudNorFaint) {
  const std::vector<int> samples = SamplesOf(Content());
  EXPECT_GT(samples.size(), 22'050U / 2);
  EXPECT_LT(samples.size(), 22'050U);
  const auto [least, most] = std::minmax_element(samples.begin(), samples.end());
  const int peak = std::max(-*least, *most);
  EXPECT_GT(peak, 0.55 * 32'767);
  EXPECT_LT(peak, 0.65 * 32'767);
}

// A jump would be heard as a click.
TEST_P(SampleSoundFile, BeginsAndEndsInSilence) {
  const std::vector<int> samples = SamplesOf(Content());
  constexpr std::ptrdiff_t kMillisecond = 22;
  const auto quiet = [](int sample) { return std::abs(sample) < 400; };
  EXPECT_TRUE(quiet(samples[1]));
  EXPECT_TRUE(std::all_of(samples.end() - kMillisecond, samples.end(), quiet));
}

INSTANTIATE_TEST_SUITE_P(SampleSounds, SampleSoundFile, testing::Range(0, 4));

TEST(SampleSounds, AreTheSameEachTimeAndDifferFromEachOther) {
  test::DeviceHome one;
  MakeSampleSounds(one.Files);
  test::DeviceHome other;
  MakeSampleSounds(other.Files);
  QList<QByteArray> seen;
  for (const QString& name : kNames) {
    EXPECT_EQ(ContentOf(one, name), ContentOf(other, name)) << name.toStdString();
    EXPECT_FALSE(seen.contains(ContentOf(one, name))) << name.toStdString();
    seen.append(ContentOf(one, name));
  }
}

TEST(SampleSounds, LeaveAFolderThatIsThereAlsoAnEmptyOne) {
  test::DeviceHome home;
  ASSERT_TRUE(QDir(home.Folder.path()).mkdir(QStringLiteral("windows")));
  MakeSampleSounds(home.Files);
  EXPECT_TRUE(QDir(home.Folder.filePath(QStringLiteral("windows"))).isEmpty());
  EXPECT_FALSE(QFile::exists(home.Folder.filePath(QStringLiteral("Windows"))));
}

TEST(SampleSounds, LeaveTheirOwnFolderToTheUser) {
  test::DeviceHome home;
  MakeSampleSounds(home.Files);
  ASSERT_TRUE(home.Files.Remove(QStringLiteral("\\Windows\\Bell.wav")));
  ASSERT_TRUE(home.Files.WriteWhole(QStringLiteral("\\Windows\\Chime.wav"), "the user's own"));
  MakeSampleSounds(home.Files);
  EXPECT_FALSE(home.Files.Exists(QStringLiteral("\\Windows\\Bell.wav")));
  EXPECT_EQ(ContentOf(home, QStringLiteral("Chime.wav")), "the user's own");
}

TEST(SampleSounds, AreMissingWhereNoFolderCanBeMade) {
  test::DeviceHome home;
  DesktopDeviceFiles files({.Device = QStringLiteral("/proc/no-such-folder"),
                            .MyDocuments = QStringLiteral("/proc/no-such-folder")});
  MakeSampleSounds(files);
  EXPECT_EQ(files.Find(QStringLiteral("\\Windows\\*")), QStringList());
}

TEST(SampleSounds, AreMissingWhereAFileHasTheFoldersName) {
  test::DeviceHome home;
  ASSERT_TRUE(home.Files.WriteWhole(QStringLiteral("\\Windows"), "a file in the way"));
  MakeSampleSounds(home.Files);
  EXPECT_EQ(home.Files.ReadWhole(QStringLiteral("\\Windows")), QByteArray("a file in the way"));
}

}  // namespace
}  // namespace quill
