#include "app/SampleMemos.h"

#include <gtest/gtest.h>

#include "ink/InkFormat.h"
#include "support/DeviceHome.h"

namespace quill {
namespace {

const QString kFirst =
    QStringLiteral("\\My Documents\\Fennick\\Ahlberg, Ingrid_20240311_101500.pwi");

TEST(SampleMemos, HoldALineAndASketchEach) {
  test::DeviceHome home;
  EXPECT_TRUE(PutSampleMemos(home.Files));
  const QStringList names = home.Files.Find(u"\\My Documents\\Fennick\\*.pwi"_qs);
  EXPECT_EQ(names.size(), 8);
  for (const QString& name : names) {
    const auto content = home.Files.ReadWhole(u"\\My Documents\\Fennick\\"_qs + name);
    const InkContent ink = ReadInk(content.value_or(QByteArray()));
    EXPECT_EQ(ink.Reading, InkReading::Whole) << name.toStdString();
    EXPECT_FALSE(ink.Note.Text.Text.isEmpty()) << name.toStdString();
    EXPECT_GE(ink.Note.Strokes.size(), 2U) << name.toStdString();
  }
}

TEST(SampleMemos, LeaveMemosThatAreThereAlready) {
  test::DeviceHome home;
  ASSERT_TRUE(PutSampleMemos(home.Files));
  ASSERT_TRUE(home.Files.WriteWhole(kFirst, "edited"));
  EXPECT_TRUE(PutSampleMemos(home.Files));
  EXPECT_EQ(home.Files.ReadWhole(kFirst), QByteArray("edited"));
}

TEST(SampleMemos, AreRefusedWhereTheyCannotBeWritten) {
  test::DeviceHome home;
  ASSERT_TRUE(home.Files.WriteWhole(u"\\My Documents\\Fennick"_qs, "a file in the way"));
  EXPECT_FALSE(PutSampleMemos(home.Files));
}

}  // namespace
}  // namespace quill
