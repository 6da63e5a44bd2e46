#include "bench/RunApart.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <csignal>

namespace quill::bench {
namespace {

TEST(RunApart, HandsBackWhatTheWorkReturned) {
  const QByteArray large(300'000, 'x');  // more than a pipe holds
  EXPECT_EQ(RunApart([&] { return std::optional(large); }), large);
  EXPECT_EQ(RunApart([] { return std::optional(QByteArray()); }), QByteArray());
}

TEST(RunApart, RunsInAnotherProcess) {
  const auto answer = RunApart([] { return std::optional(QByteArray::number(qint64(getpid()))); });
  ASSERT_TRUE(answer);
  EXPECT_NE(answer->toLongLong(), qint64(getpid()));
}

TEST(RunApart, GivesNothingForWorkThatFails) {
  EXPECT_EQ(RunApart([]() -> std::optional<QByteArray> { return std::nullopt; }), std::nullopt);
}

TEST(RunApart, GivesNothingForWorkThatBreaksDown) {
  const auto breakDown = []() -> std::optional<QByteArray> {
    std::raise(SIGKILL);
    return QByteArray();
  };
  EXPECT_EQ(RunApart(breakDown), std::nullopt);
}

}  // namespace
}  // namespace quill::bench
