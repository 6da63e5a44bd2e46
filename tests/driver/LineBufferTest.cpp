#include "driver/LineBuffer.h"

#include <gtest/gtest.h>

using quill::driver::InputLine;
using quill::driver::LineBuffer;

TEST(LineBuffer, PutsALineTogetherFromPieces) {
  LineBuffer buffer(10);
  EXPECT_TRUE(buffer.Add("ab").empty());
  const std::vector<InputLine> lines = buffer.Add("c\n\nd");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].Text, "abc");
  EXPECT_EQ(lines[1].Text, "");
  EXPECT_EQ(buffer.Finish()->Text, "d");
  EXPECT_FALSE(buffer.Finish().has_value());
}

TEST(LineBuffer, KeepsALineOfExactlyTheLimit) {
  LineBuffer buffer(3);
  const std::vector<InputLine> lines = buffer.Add("abc\nabcd\nab\n");
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_FALSE(lines[0].TooLong);
  EXPECT_TRUE(lines[1].TooLong);
  EXPECT_EQ(lines[1].Text, "");
  EXPECT_EQ(lines[2].Text, "ab");
}

TEST(LineBuffer, DropsATooLongLineHoweverItComes) {
  LineBuffer buffer(3);
  EXPECT_TRUE(buffer.Add("ab").empty());
  EXPECT_TRUE(buffer.Add("cd").empty());
  EXPECT_TRUE(buffer.Add("e").empty());
  EXPECT_TRUE(buffer.Finish()->TooLong);
}
