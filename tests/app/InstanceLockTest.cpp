#include "app/InstanceLock.h"

#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(InstanceLock, IsHeldByOneOnly) {
  const QTemporaryDir folder;
  InstanceLock first(folder.path());
  EXPECT_EQ(first.Take(), LockOutcome::Taken);
  EXPECT_EQ(first.Reason(), QString());
  InstanceLock second(folder.path());
  EXPECT_EQ(second.Take(), LockOutcome::HeldByOther);
  EXPECT_EQ(second.Reason(), u"another window of this home is open"_qs);
}

TEST(InstanceLock, IsFreeWhenItsHolderGoes) {
  const QTemporaryDir folder;
  {
    InstanceLock first(folder.path());
    ASSERT_EQ(first.Take(), LockOutcome::Taken);
  }
  EXPECT_EQ(InstanceLock(folder.path()).Take(), LockOutcome::Taken);
}

TEST(InstanceLock, HomesDoNotDisturbEachOther) {
  const QTemporaryDir one;
  const QTemporaryDir other;
  InstanceLock first(one.path());
  InstanceLock second(other.path());
  EXPECT_EQ(first.Take(), LockOutcome::Taken);
  EXPECT_EQ(second.Take(), LockOutcome::Taken);
}

TEST(InstanceLock, OfADeadProcessIsTakenOver) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(u"quill.lock"_qs));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  // Process numbers end at 2^22: nobody has this one.
  file.write("99999999\nquill\n" + QSysInfo::machineHostName().toUtf8() + "\n");
  file.close();
  EXPECT_EQ(InstanceLock(folder.path()).Take(), LockOutcome::Taken);
}

TEST(InstanceLock, WithoutAFolderFailsWithAReason) {
  const QTemporaryDir folder;
  InstanceLock lock(folder.filePath(u"missing"_qs));
  EXPECT_EQ(lock.Take(), LockOutcome::Failed);
  EXPECT_TRUE(lock.Reason().contains(u"quill.lock"_qs)) << lock.Reason().toStdString();
}

}  // namespace
}  // namespace quill
