#include "platform/Clock.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(SystemClock, TellsTheLocalTimeOfTheMachine) {
  const QDateTime before = QDateTime::currentDateTime();
  const QDateTime now = SystemClock().Now();
  const QDateTime after = QDateTime::currentDateTime();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
  EXPECT_EQ(now.timeSpec(), Qt::LocalTime);
}

}  // namespace
}  // namespace quill
