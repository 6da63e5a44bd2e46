#include "driver/Request.h"

#include <gtest/gtest.h>

using namespace quill::driver;

TEST(Request, NeedsAnObjectWithATextForItsOperation) {
  const std::optional<Request> request = ParseRequest(R"( {"x":1,"op":"tap"} )");
  ASSERT_TRUE(request.has_value());
  EXPECT_EQ(request->Operation, QStringLiteral("tap"));
  EXPECT_EQ(request->Arguments.value(u"x"), 1);
  for (const char* const line : {"", "null", "[]", "{}", R"({"op":null})", R"({"op":"a"}{})"})
    EXPECT_FALSE(ParseRequest(line).has_value()) << line;
}

TEST(Answer, PutsOkFirst) {
  EXPECT_EQ(FormatAnswer(Done()), "{\"ok\":true}\n");
  EXPECT_EQ(FormatAnswer(Result(u"a", 1)), "{\"ok\":true,\"a\":1}\n");
  EXPECT_EQ(FormatAnswer(Refusal(u"say \"no\"")), "{\"ok\":false,\"error\":\"say \\\"no\\\"\"}\n");
}

TEST(Answer, IsOneLineWhateverItHolds) {
  EXPECT_EQ(FormatAnswer(Result(u"t", QStringLiteral("a\nb"))).count('\n'), 1);
}
