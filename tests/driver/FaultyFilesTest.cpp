#include "driver/FaultyFiles.h"

#include <gtest/gtest.h>

#include "support/DeviceHome.h"

using namespace quill;
using namespace quill::driver;

namespace {

const QString kFolder = QStringLiteral("\\My Documents\\Fennick");
const QString kMemo = QStringLiteral("\\My Documents\\Fennick\\A.pwi");
const QString kCopy = QStringLiteral("\\My Documents\\Fennick\\B.pwi");

class FaultyFilesTest : public testing::Test {
 protected:
  test::DeviceHome home;
  FaultTable faults;
  FaultyFiles files{home.Files, faults};
};

}  // namespace

TEST_F(FaultyFilesTest, WithoutFaultsEverythingGoesThrough) {
  EXPECT_EQ(files.CreateFolder(kFolder), 0);
  EXPECT_TRUE(files.WriteWhole(kMemo, "memo"));
  EXPECT_TRUE(files.Exists(kMemo));
  EXPECT_EQ(files.ReadWhole(kMemo), QByteArray("memo"));
  EXPECT_TRUE(files.Copy(kMemo, kCopy));
  EXPECT_TRUE(files.Remove(kMemo));
  EXPECT_TRUE(files.Move(kCopy, kMemo));
  EXPECT_EQ(files.Find(kFolder + QStringLiteral("\\*")), QStringList(QStringLiteral("A.pwi")));
}

TEST_F(FaultyFilesTest, AFolderFailsWithTheFaultsCodeUntilSwitchedOff) {
  faults.Switch(QStringLiteral("memo-folder"), Fault{.Code = 112});
  EXPECT_EQ(files.CreateFolder(kFolder), 112);
  EXPECT_FALSE(home.Files.Exists(kFolder));
  faults.Switch(QStringLiteral("memo-folder"), std::nullopt);
  EXPECT_EQ(files.CreateFolder(kFolder), 0);
}

TEST_F(FaultyFilesTest, AMemoIsNotWrittenUntilSwitchedOff) {
  ASSERT_EQ(files.CreateFolder(kFolder), 0);
  faults.Switch(QStringLiteral("memo-create"), Fault{});
  EXPECT_FALSE(files.WriteWhole(kMemo, "memo"));
  EXPECT_FALSE(files.Exists(kMemo));
  faults.Switch(QStringLiteral("memo-create"), std::nullopt);
  EXPECT_TRUE(files.WriteWhole(kMemo, "memo"));
}

TEST_F(FaultyFilesTest, ItsFaultsAreKnownByName) {
  EXPECT_TRUE(FaultTable::IsKnown(u"memo-folder"));
  EXPECT_TRUE(FaultTable::IsKnown(u"memo-create"));
}
