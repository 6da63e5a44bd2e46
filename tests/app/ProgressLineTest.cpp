#include "app/ProgressLine.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(ProgressLine, ShowsNothingWhenNobodyWatches) {
  QString text;
  QTextStream stream(&text);
  const Console console{stream, stream};
  {
    ProgressLine line(console);
    line.Show(u"half"_qs);
  }
  EXPECT_EQ(text, QString());
}

TEST(ProgressLine, ShowsLongWorkAndLeavesNoTrace) {
  QString text;
  QTextStream stream(&text);
  const Console console{stream, stream, true};
  int tries = 0;
  {
    ProgressLine line(console);
    for (; text.isEmpty(); ++tries) line.Show(u"half"_qs);
    EXPECT_TRUE(text.endsWith(u"half"_qs));
  }
  EXPECT_GT(tries, 1) << "not at once";
  EXPECT_TRUE(text.endsWith(u"\r\x1b[K"_qs));
}

}  // namespace
}  // namespace quill
